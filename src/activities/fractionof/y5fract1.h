#pragma once
// Fractions of Numbers, the Year 5 (Unit 4) activity: halves to twelfths of
// larger numbers, on the same bar model as Year 3's fractions of a number.
#include "kit/kitscreen.h"

class y5fract1 : public KitScreen {
    Q_OBJECT
public:
    y5fract1();
};
