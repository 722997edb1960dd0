#pragma once
// Halves, Quarters, Thirds and Tenths 1, the Year 3 (Unit 2) activity: choose
// a half, a third, a quarter or some tenths of a set of pictures.
#include "kit/kitscreen.h"

class y3fract1 : public KitScreen {
    Q_OBJECT
public:
    y3fract1();
};
