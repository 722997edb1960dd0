#pragma once
// Digits, the Year 6 (Unit 5) activity: the value of one digit of a number
// with up to two whole digits and three decimal places.
#include "kit/kitscreen.h"

class y6fract6 : public KitScreen {
    Q_OBJECT
public:
    y6fract6();
};
