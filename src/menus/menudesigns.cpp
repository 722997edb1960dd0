// The six activity menus as data: caption, year and unit labels, logo and
// where "Goodbye" leads. Their buttons are the activity table's rows.
#include "activitymenu.h"

namespace Menus {

namespace {
constexpr const char* kWelcome = "Welcome";
constexpr const char* kMixedNumbers = "Mixed Numbers and Improper Fractions";
} // namespace

const Design y2Intro{"y2Intro", kWelcome, "Year 2", "Unit 1", Logo::Frames::Large, "Year", true};

const Design y3Intro{"y3Intro", kWelcome, "Year 3", "Unit 2", Logo::Frames::Small, "Year", true};

const Design y4Intro{"y4Intro", kWelcome, "Year 4", "Unit 3", Logo::Frames::Large, "Year", true};

const Design y5Intro{"y5Intro", kWelcome, "Year 5", "Unit 4", Logo::Frames::Large, "Year", true};

const Design y5Intro2{"y5Intro2", kMixedNumbers, "Year 5", "Unit 4", Logo::Frames::Small, "y5Intro", false};

const Design y6Intro{"y6Intro", kWelcome, "Year 6", "Unit 5", Logo::Frames::Small, "Year", true};

const QVector<const Design*>& all()
{
    static const QVector<const Design*> designs{&y2Intro, &y3Intro, &y4Intro, &y5Intro, &y5Intro2, &y6Intro};
    return designs;
}

} // namespace Menus
