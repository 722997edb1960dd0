#include "equivalentscreens.h"

#include "choiceboard.h"
#include "pairboard.h"

y4fract1::y4fract1()
    : KitScreen(QStringLiteral("y4fract1"), new PairBoard(PairBoard::Kind::OnWall))
{
}

y4fract2::y4fract2()
    : KitScreen(QStringLiteral("y4fract2"), new PairBoard(PairBoard::Kind::Anywhere))
{
}

y4fract3::y4fract3()
    : KitScreen(QStringLiteral("y4fract3"), new ChoiceBoard)
{
}
