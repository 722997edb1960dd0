#pragma once
// Write A Fraction, the Year 4 (Unit 3) activity: write the fraction a shape,
// a hundred square or a set of ringed pictures shows.
#include "kit/kitscreen.h"

class y4fract4 : public KitScreen {
    Q_OBJECT
public:
    y4fract4();
};
