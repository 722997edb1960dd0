#include "y2fractions3.h"

#include "picturesboard.h"

Y2fractions3::Y2fractions3()
    : KitScreen(QStringLiteral("Y2fractions3"), new PicturesBoard)
{
}
