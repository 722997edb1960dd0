# Tests of the shared drawings.
partitude_add_test(tst_drawings ${CMAKE_CURRENT_LIST_DIR}/tst_drawings.cpp ${CMAKE_CURRENT_LIST_DIR}/paintrecorder.h)
