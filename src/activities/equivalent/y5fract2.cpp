#include "y5fract2.h"

#include "chainboard.h"

y5fract2::y5fract2()
    : KitScreen(QStringLiteral("y5fract2"), new ChainBoard)
{
}
