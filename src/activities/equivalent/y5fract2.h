#pragma once
// Equivalent Fractions, the Year 5 (Unit 4) activity: fill in the missing
// numbers of a chain of four equal fractions.
#include "kit/kitscreen.h"

class y5fract2 : public KitScreen {
    Q_OBJECT
public:
    y5fract2();
};
