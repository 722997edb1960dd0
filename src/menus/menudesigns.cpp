// The six activity menus as data. Rows run top to bottom; each names the
// button beside its title and the screen it opens. Until a screen is built
// (registered), its button opens the "coming soon" screen.
#include "activitymenu.h"

namespace Menus {

namespace {
constexpr Prompt kShort = Prompt::TenOrTwenty;
constexpr Prompt kEither = Prompt::EitherTenOrTwenty;
constexpr const char* kWelcome = "Welcome";
constexpr const char* kMixedNumbers = "Mixed Numbers and Improper Fractions";
constexpr const char* kBothWays = "Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers";
} // namespace

QString promptText(Prompt prompt)
{
    return prompt == Prompt::TenOrTwenty
        ? QStringLiteral("Choose 10 or 20 questions. Answer them correctly to gain a certificate.")
        : QStringLiteral("Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.");
}

const Design y2Intro{"y2Intro", kWelcome, "Year 2", "Unit 1", Logo::Frames::Large, "Year", true, {
    {"Command5", "Halves and Quarters 1", "Y2fractions"},
    {"Command2", "Halves and Quarters 2", "Y2fractions2"},
    {"Command3", "Halves and Quarters 3", "Y2fractions3", kShort},
}};

const Design y3Intro{"y3Intro", kWelcome, "Year 3", "Unit 2", Logo::Frames::Small, "Year", true, {
    {"Command2", "Halves, Quarters, Thirds and Tenths 1", "y3fract1"},
    {"Command3", "Halves, Quarters, Thirds and Tenths 2", "y3fract2"},
    {"Command5", "Halves, Quarters, Thirds and Tenths 3", "y3fract3"},
}};

const Design y4Intro{"y4Intro", kWelcome, "Year 4", "Unit 3", Logo::Frames::Large, "Year", true, {
    {"Command1", "Equivalent Fractions 3", "y4fract3"},
    {"Command2", "Equivalent Fractions 2", "y4fract2"},
    {"Command3", "Write A Fraction", "y4fract4"},
    {"Command5", "Equivalent Fractions 1", "y4fract1"},
    {"Command6", "More Than, Less Than", "y4fract5"},
}};

const Design y5Intro{"y5Intro", kWelcome, "Year 5", "Unit 4", Logo::Frames::Large, "Year", true, {
    {"Command1", "Fractions of Numbers", "y5fract1"},
    {"Command3", "Equivalent Fractions", "y5fract2"},
    {"Command5", "Cancelling", "y5fract3"},
    {"Command2", kMixedNumbers, "y5Intro2", kEither, true},
    {"Command6", "Partitude", "y5fract5"},
}};

const Design y5Intro2{"y5Intro2", kMixedNumbers, "Year 5", "Unit 4", Logo::Frames::Small, "y5Intro", false, {
    {"Command1", kBothWays, "y5fract4", kShort},
    {"Command2", "Mixed Numbers To Improper Fractions", "y5fract6"},
    {"Command5", "Improper Fractions To Mixed Numbers", "y5fract7"},
}};

const Design y6Intro{"y6Intro", kWelcome, "Year 6", "Unit 5", Logo::Frames::Small, "Year", true, {
    {"Command2", kBothWays, "y6fract1"},
    {"Command3", "Decimals Between", "y6fract2"},
    {"Command1", "Place In Order", "Y6fract3"},
    {"Command5", "How Many?", "y6fract4"},
    {"Command6", "Finding Amounts", "y6fract5"},
    {"Command7", "Digits", "y6fract6"},
    {"Command8", "Rounding", "y6fract7"},
}};

const QVector<const Design*>& all()
{
    static const QVector<const Design*> designs{&y2Intro, &y3Intro, &y4Intro, &y5Intro, &y5Intro2, &y6Intro};
    return designs;
}

} // namespace Menus
