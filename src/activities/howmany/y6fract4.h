#pragma once
// How Many?, the Year 6 (Unit 5) activity: how many tenths, hundredths or
// thousandths there are in a decimal.
#include "kit/kitscreen.h"

class y6fract4 : public KitScreen {
    Q_OBJECT
public:
    y6fract4();
};
