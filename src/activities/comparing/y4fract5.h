#pragma once
// More Than, Less Than, the Year 4 (Unit 3) activity: say whether one
// fraction is less than, equal to or more than another.
#include "kit/kitscreen.h"

class y4fract5 : public KitScreen {
    Q_OBJECT
public:
    y4fract5();
};
