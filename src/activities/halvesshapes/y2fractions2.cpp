#include "y2fractions2.h"

#include "shapesboard.h"

Y2fractions2::Y2fractions2()
    : KitScreen(QStringLiteral("Y2fractions2"), new ShapesBoard)
{
}
