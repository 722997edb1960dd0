#pragma once
// Finding Amounts, the Year 6 (Unit 5) activity: a percentage or a fraction
// of an amount, in numbers, kilograms, metres or pounds.
#include "kit/kitscreen.h"

class y6fract5 : public KitScreen {
    Q_OBJECT
public:
    y6fract5();
};
