#pragma once
// Decimals Between, the Year 6 activity: type a decimal that lies between
// two decimals next to each other at their last place.
#include "kit/kitscreen.h"

class y6fract2 : public KitScreen {
    Q_OBJECT
public:
    y6fract2();
};
