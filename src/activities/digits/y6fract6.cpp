#include "y6fract6.h"

#include "digitsboard.h"

y6fract6::y6fract6()
    : KitScreen(QStringLiteral("y6fract6"), new DigitsBoard)
{
}
