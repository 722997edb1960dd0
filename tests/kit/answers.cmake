# The answer box, the chain of boxes and the choice cards.
partitude_add_test(tst_answers tst_answers.cpp)
