#pragma once
// Halves and Quarters 2, the Year 2 (Unit 1) activity: colour one half, or
// one, two or three quarters, of a shape cut into equal parts.
#include "kit/kitscreen.h"

class Y2fractions2 : public KitScreen {
    Q_OBJECT
public:
    Y2fractions2();
};
