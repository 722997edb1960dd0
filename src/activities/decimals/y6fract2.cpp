#include "y6fract2.h"

#include "betweenboard.h"

y6fract2::y6fract2()
    : KitScreen(QStringLiteral("y6fract2"), new BetweenBoard)
{
}
