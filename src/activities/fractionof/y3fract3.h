#pragma once
// Halves, Quarters, Thirds and Tenths 3, the Year 3 (Unit 2) activity: a
// half, third, quarter, fifth or tenth (or more of them) of a number, on a
// bar model.
#include "kit/kitscreen.h"

class y3fract3 : public KitScreen {
    Q_OBJECT
public:
    y3fract3();
};
