partitude_add_test(tst_drawings tst_drawings.cpp paintrecorder.h)
