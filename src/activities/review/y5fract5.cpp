#include "y5fract5.h"

#include "activities/equivalent/cancelboard.h"
#include "activities/equivalent/chainboard.h"
#include "activities/fractionof/fractionofboard.h"
#include "activities/mixed/mixedboard.h"
#include "activities/mixed/mixedmodes.h"

#include <QCoreApplication>

namespace {
using MixedModes::mode;

KitBoard* fractionsOfNumbersBoard()
{
    return new FractionOfBoard(FractionOf::kYear5);
}

KitBoard* toImproperBoard()
{
    return new MixedBoard(mode(MixedModes::kToImproper).range);
}

KitBoard* toMixedBoard()
{
    return new MixedBoard(mode(MixedModes::kToMixed).range);
}

Worksheets::Sheet toImproperSheet(Random::Source& rnd)
{
    return MixedBoard::worksheet(rnd, mode(MixedModes::kToImproper).range, QString());
}

Worksheets::Sheet toMixedSheet(Random::Source& rnd)
{
    return MixedBoard::worksheet(rnd, mode(MixedModes::kToMixed).range, QString());
}
} // namespace

y5fract5::y5fract5()
    : KitScreen(QStringLiteral("y5fract5"), new ReviewBoard(members()))
{
}

// One line a board: its name in the review, its maker (ReviewBoard::make<Board>
// for a board built with no arguments) and its worksheet's maker.
const QVector<ReviewBoard::Member>& y5fract5::members()
{
    static const QVector<ReviewBoard::Member> list{
        {"FractionsOfNumbers", fractionsOfNumbersBoard, FractionOfBoard::year5Sheet},
        {"MixedToImproper", toImproperBoard, toImproperSheet},
        {"MixedToMixed", toMixedBoard, toMixedSheet},
        {"EquivalentChain", ReviewBoard::make<ChainBoard>, ChainBoard::worksheet},
        {"Cancelling", ReviewBoard::make<CancelBoard>, CancelBoard::worksheet},
    };
    return list;
}

Worksheets::Sheet y5fract5::worksheet(Random::Source& rnd)
{
    return ReviewBoard::worksheet(members(), rnd, QCoreApplication::translate("Activities", "Partitude"),
                                  QCoreApplication::translate("y5fract5", "Answer each question."));
}
