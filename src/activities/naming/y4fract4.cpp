#include "y4fract4.h"

#include "namingboard.h"

y4fract4::y4fract4()
    : KitScreen(QStringLiteral("y4fract4"), new NamingBoard(NameFraction::Mode::Year4Pictures))
{
}
