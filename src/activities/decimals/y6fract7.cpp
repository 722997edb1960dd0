#include "y6fract7.h"

#include "roundingboard.h"

y6fract7::y6fract7()
    : KitScreen(QStringLiteral("y6fract7"), new RoundingBoard)
{
}
