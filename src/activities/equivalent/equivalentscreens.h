#pragma once
// The three Year 4 (Unit 3) Equivalent Fractions activities: the missing
// top on a fraction wall, the missing number anywhere in two equal
// fractions, and the card equal to a fraction.
#include "kit/kitscreen.h"

class y4fract1 : public KitScreen {
    Q_OBJECT
public:
    y4fract1();
};

class y4fract2 : public KitScreen {
    Q_OBJECT
public:
    y4fract2();
};

class y4fract3 : public KitScreen {
    Q_OBJECT
public:
    y4fract3();
};
