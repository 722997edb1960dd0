// The six activity menus as data: caption, year and unit labels, logo and
// where "Goodbye" leads. Their buttons are the activity table's rows.
#include "activitymenu.h"

#include <QtGlobal>

namespace Menus {

namespace {
constexpr const char* kWelcome = QT_TRANSLATE_NOOP("Menus", "Welcome");
constexpr const char* kMixedNumbers = QT_TRANSLATE_NOOP("Menus", "Mixed Numbers and Improper Fractions");
} // namespace

const Design y2Intro{"y2Intro", kWelcome, QT_TRANSLATE_NOOP("Year", "Year 2"), QT_TRANSLATE_NOOP("Year", "Unit 1"), Logo::Frames::Large, "Year", true};

const Design y3Intro{"y3Intro", kWelcome, QT_TRANSLATE_NOOP("Year", "Year 3"), QT_TRANSLATE_NOOP("Year", "Unit 2"), Logo::Frames::Small, "Year", true};

const Design y4Intro{"y4Intro", kWelcome, QT_TRANSLATE_NOOP("Year", "Year 4"), QT_TRANSLATE_NOOP("Year", "Unit 3"), Logo::Frames::Large, "Year", true};

const Design y5Intro{"y5Intro", kWelcome, QT_TRANSLATE_NOOP("Year", "Year 5"), QT_TRANSLATE_NOOP("Year", "Unit 4"), Logo::Frames::Large, "Year", true};

const Design y5Intro2{"y5Intro2", kMixedNumbers, QT_TRANSLATE_NOOP("Year", "Year 5"), QT_TRANSLATE_NOOP("Year", "Unit 4"), Logo::Frames::Small, "y5Intro", false};

const Design y6Intro{"y6Intro", kWelcome, QT_TRANSLATE_NOOP("Year", "Year 6"), QT_TRANSLATE_NOOP("Year", "Unit 5"), Logo::Frames::Small, "Year", true};

const QVector<const Design*>& all()
{
    static const QVector<const Design*> designs{&y2Intro, &y3Intro, &y4Intro, &y5Intro, &y5Intro2, &y6Intro};
    return designs;
}

} // namespace Menus
