#include "y6fract5.h"

#include "amountsboard.h"

y6fract5::y6fract5()
    : KitScreen(QStringLiteral("y6fract5"), new AmountsBoard)
{
}
