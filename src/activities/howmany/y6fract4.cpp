#include "y6fract4.h"

#include "howmanyboard.h"

y6fract4::y6fract4()
    : KitScreen(QStringLiteral("y6fract4"), new HowManyBoard)
{
}
