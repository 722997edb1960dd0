#include "mixedmodes.h"

#include "activities/activitytable.h"
#include "mixedboard.h"
#include "y5fract4.h"

#include <QCoreApplication>

namespace MixedModes {

namespace {
constexpr int kToMixedWay = MixedQuestion::kToMixed;
constexpr int kToImproperWay = MixedQuestion::kToImproper;
constexpr int kEitherWay = MixedQuestion::kEitherWay;
// Year 6: whole numbers 1..12, denominators 2..12 (numerators up to 11).
constexpr int kYearSixLargestWhole = 12;
constexpr int kYearSixLargestNumer = 11;
constexpr int kYearSixLargestDenom = 12;

// screen, year, the numbers (direction, largest whole to a mixed number and
// to an improper fraction, largest numerator and denominator), the
// certificate's words, whether a question may come twice in a row
const MixedMode kModes[] = {
    {"y5fract4", QT_TRANSLATE_NOOP("Year", "Year 5"), {}, QT_TRANSLATE_NOOP("Activities", "Equivalent Fractions 3"), true},
    {"y5fract6", QT_TRANSLATE_NOOP("Year", "Year 5"), {kToImproperWay}},
    {"y5fract7", QT_TRANSLATE_NOOP("Year", "Year 5"), {kToMixedWay}},
    {"y6fract1", QT_TRANSLATE_NOOP("Year", "Year 6"),
     {kEitherWay, kYearSixLargestWhole, kYearSixLargestWhole, kYearSixLargestNumer, kYearSixLargestDenom}},
};
} // namespace

const MixedMode& mode(Id id)
{
    return kModes[id];
}

Form* makeScreen(const MixedMode& mode)
{
    return new y5fract4(mode);
}

Worksheets::Sheet worksheet(const MixedMode& mode, Random::Source& rnd)
{
    const Activities::Row* row = Activities::forScreen(QString::fromLatin1(mode.screen));
    return MixedBoard::worksheet(rnd, mode.range, row ? Activities::titleText(*row) : QString());
}

} // namespace MixedModes
