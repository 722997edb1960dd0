#include "y5fract1.h"

#include "fractionofboard.h"

y5fract1::y5fract1()
    : KitScreen(QStringLiteral("y5fract1"), new FractionOfBoard(FractionOf::kYear5))
{
}
