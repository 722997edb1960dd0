#include "y3fract3.h"

#include "fractionofboard.h"

y3fract3::y3fract3()
    : KitScreen(QStringLiteral("y3fract3"), new FractionOfBoard(FractionOf::kYear3))
{
}
