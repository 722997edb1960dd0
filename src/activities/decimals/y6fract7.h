#pragma once
// Rounding, the Year 6 activity: round a decimal to the nearest whole
// number, or to one or two decimal places.
#include "kit/kitscreen.h"

class y6fract7 : public KitScreen {
    Q_OBJECT
public:
    y6fract7();
};
