#include "y3fract1.h"

#include "partsofsetboard.h"

y3fract1::y3fract1()
    : KitScreen(QStringLiteral("y3fract1"), new PartsOfSetBoard)
{
}
