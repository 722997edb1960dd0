#pragma once
// Cancelling, the Year 5 (Unit 4) activity: cancel a fraction to its
// simplest form.
#include "kit/kitscreen.h"

class y5fract3 : public KitScreen {
    Q_OBJECT
public:
    y5fract3();
};
