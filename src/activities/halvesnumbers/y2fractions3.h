#pragma once
// Halves and Quarters 3, the Year 2 (Unit 1) activity: one half, or one,
// two or three quarters, of a number shown as pictures.
#include "kit/kitscreen.h"

class Y2fractions3 : public KitScreen {
    Q_OBJECT
public:
    Y2fractions3();
};
