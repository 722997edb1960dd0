#include "y5fract3.h"

#include "cancelboard.h"

y5fract3::y5fract3()
    : KitScreen(QStringLiteral("y5fract3"), new CancelBoard)
{
}
