#include "y3fract2.h"

#include "namingboard.h"

y3fract2::y3fract2()
    : KitScreen(QStringLiteral("y3fract2"), new NamingBoard(NameFraction::Mode::Year3Shapes))
{
}
