#include "y4fract5.h"

#include "compareboard.h"

y4fract5::y4fract5()
    : KitScreen(QStringLiteral("y4fract5"), new CompareBoard)
{
}
