partitude_add_test(tst_answers tst_answers.cpp)
