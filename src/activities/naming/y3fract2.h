#pragma once
// Halves, Quarters, Thirds and Tenths 2, the Year 3 (Unit 2) activity: name
// the shaded fraction of a shape cut into 2 to 10 equal parts.
#include "kit/kitscreen.h"

class y3fract2 : public KitScreen {
    Q_OBJECT
public:
    y3fract2();
};
