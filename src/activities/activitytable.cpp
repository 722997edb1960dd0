#include "activitytable.h"

#include "activities/amounts/amountsboard.h"
#include "activities/amounts/y6fract5.h"
#include "activities/comparing/compareboard.h"
#include "activities/comparing/y4fract5.h"
#include "activities/decimals/betweenboard.h"
#include "activities/decimals/roundingboard.h"
#include "activities/decimals/y6fract2.h"
#include "activities/decimals/y6fract7.h"
#include "activities/digits/digitsboard.h"
#include "activities/digits/y6fract6.h"
#include "activities/equivalent/cancelboard.h"
#include "activities/equivalent/chainboard.h"
#include "activities/equivalent/choiceboard.h"
#include "activities/equivalent/equivalentscreens.h"
#include "activities/equivalent/pairboard.h"
#include "activities/equivalent/y5fract2.h"
#include "activities/equivalent/y5fract3.h"
#include "activities/fractionof/fractionofboard.h"
#include "activities/fractionof/y3fract3.h"
#include "activities/fractionof/y5fract1.h"
#include "activities/halves/y2fractions.h"
#include "activities/halvesnumbers/picturesboard.h"
#include "activities/halvesnumbers/y2fractions3.h"
#include "activities/halvesshapes/shapesboard.h"
#include "activities/halvesshapes/y2fractions2.h"
#include "activities/howmany/howmanyboard.h"
#include "activities/howmany/y6fract4.h"
#include "activities/mixed/mixedmodes.h"
#include "activities/mixed/y5fract4.h"
#include "activities/naming/namingboard.h"
#include "activities/naming/y3fract2.h"
#include "activities/naming/y4fract4.h"
#include "activities/ordering/y6fract3.h"
#include "activities/partsofset/partsofsetboard.h"
#include "activities/partsofset/y3fract1.h"
#include "activities/review/y5fract5.h"
#include "runtime/forms.h"

#include <QCoreApplication>

namespace Activities {

namespace {
constexpr Prompt kShort = Prompt::TenOrTwenty;
constexpr Prompt kEither = Prompt::EitherTenOrTwenty;
constexpr const char* kBothWays =
    QT_TRANSLATE_NOOP("Activities", "Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers");

template <class F> Form* make()
{
    return new F;
}
} // namespace

QString promptText(Prompt prompt)
{
    return prompt == Prompt::TenOrTwenty
        ? QCoreApplication::translate("Activities", "Choose 10 or 20 questions. Answer them correctly to gain a certificate.")
        : QCoreApplication::translate("Activities", "Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.");
}

QString titleText(const Row& row)
{
    return QCoreApplication::translate("Activities", row.title);
}

const QVector<Row>& all()
{
    // menu, button, title, screen, prompt, screen maker, designed worksheet, generated worksheet
    static const QVector<Row> rows{
        {"y2Intro", "Command5", QT_TRANSLATE_NOOP("Activities", "Halves and Quarters 1"), "Y2fractions", kEither, make<Y2fractions>, "y2fracprint1"},
        {"y2Intro", "Command2", QT_TRANSLATE_NOOP("Activities", "Halves and Quarters 2"), "Y2fractions2", kEither, make<Y2fractions2>, nullptr, ShapesBoard::worksheet},
        {"y2Intro", "Command3", QT_TRANSLATE_NOOP("Activities", "Halves and Quarters 3"), "Y2fractions3", kShort, make<Y2fractions3>, nullptr, PicturesBoard::worksheet},

        {"y3Intro", "Command2", QT_TRANSLATE_NOOP("Activities", "Halves, Quarters, Thirds and Tenths 1"), "y3fract1", kEither, make<y3fract1>, nullptr, PartsOfSetBoard::worksheet},
        {"y3Intro", "Command3", QT_TRANSLATE_NOOP("Activities", "Halves, Quarters, Thirds and Tenths 2"), "y3fract2", kEither, make<y3fract2>, nullptr, NamingBoard::year3Worksheet},
        {"y3Intro", "Command5", QT_TRANSLATE_NOOP("Activities", "Halves, Quarters, Thirds and Tenths 3"), "y3fract3", kEither, make<y3fract3>, nullptr, FractionOfBoard::year3Sheet},

        {"y4Intro", "Command1", QT_TRANSLATE_NOOP("Activities", "Equivalent Fractions 3"), "y4fract3", kEither, make<y4fract3>, nullptr, ChoiceBoard::worksheet},
        {"y4Intro", "Command2", QT_TRANSLATE_NOOP("Activities", "Equivalent Fractions 2"), "y4fract2", kEither, make<y4fract2>, nullptr, PairBoard::worksheet},
        {"y4Intro", "Command3", QT_TRANSLATE_NOOP("Activities", "Write A Fraction"), "y4fract4", kEither, make<y4fract4>, nullptr, NamingBoard::year4Worksheet},
        {"y4Intro", "Command5", QT_TRANSLATE_NOOP("Activities", "Equivalent Fractions 1"), "y4fract1", kEither, make<y4fract1>, nullptr, PairBoard::wallWorksheet},
        {"y4Intro", "Command6", QT_TRANSLATE_NOOP("Activities", "More Than, Less Than"), "y4fract5", kEither, make<y4fract5>, nullptr, CompareBoard::worksheet},

        {"y5Intro", "Command1", QT_TRANSLATE_NOOP("Activities", "Fractions of Numbers"), "y5fract1", kEither, make<y5fract1>, nullptr, FractionOfBoard::year5Sheet},
        {"y5Intro", "Command3", QT_TRANSLATE_NOOP("Activities", "Equivalent Fractions"), "y5fract2", kEither, make<y5fract2>, nullptr, ChainBoard::worksheet},
        {"y5Intro", "Command5", QT_TRANSLATE_NOOP("Activities", "Cancelling"), "y5fract3", kEither, make<y5fract3>, nullptr, CancelBoard::worksheet},
        {"y5Intro", "Command2", QT_TRANSLATE_NOOP("Activities", "Mixed Numbers and Improper Fractions"), "y5Intro2", kEither, nullptr, nullptr, nullptr, true},
        {"y5Intro", "Command6", QT_TRANSLATE_NOOP("Activities", "Partitude"), "y5fract5", kEither, make<y5fract5>, nullptr, y5fract5::worksheet},

        {"y5Intro2", "Command1", kBothWays, "y5fract4", kShort, make<y5fract4>, "y5fracprint4"},
        {"y5Intro2", "Command2", QT_TRANSLATE_NOOP("Activities", "Mixed Numbers To Improper Fractions"), "y5fract6", kEither, MixedModes::make<MixedModes::kToImproper>, nullptr, MixedModes::sheet<MixedModes::kToImproper>},
        {"y5Intro2", "Command5", QT_TRANSLATE_NOOP("Activities", "Improper Fractions To Mixed Numbers"), "y5fract7", kEither, MixedModes::make<MixedModes::kToMixed>, nullptr, MixedModes::sheet<MixedModes::kToMixed>},

        {"y6Intro", "Command2", kBothWays, "y6fract1", kEither, MixedModes::make<MixedModes::kYearSix>, nullptr, MixedModes::sheet<MixedModes::kYearSix>},
        {"y6Intro", "Command3", QT_TRANSLATE_NOOP("Activities", "Decimals Between"), "y6fract2", kEither, make<y6fract2>, nullptr, BetweenBoard::worksheet},
        {"y6Intro", "Command1", QT_TRANSLATE_NOOP("Activities", "Place In Order"), "Y6fract3", kEither, make<Y6fract3>, "y6fracprint3"},
        {"y6Intro", "Command5", QT_TRANSLATE_NOOP("Activities", "How Many?"), "y6fract4", kEither, make<y6fract4>, nullptr, HowManyBoard::worksheet},
        {"y6Intro", "Command6", QT_TRANSLATE_NOOP("Activities", "Finding Amounts"), "y6fract5", kEither, make<y6fract5>, nullptr, AmountsBoard::worksheet},
        {"y6Intro", "Command7", QT_TRANSLATE_NOOP("Activities", "Digits"), "y6fract6", kEither, make<y6fract6>, nullptr, DigitsBoard::worksheet},
        {"y6Intro", "Command8", QT_TRANSLATE_NOOP("Activities", "Rounding"), "y6fract7", kEither, make<y6fract7>, nullptr, RoundingBoard::worksheet},
    };
    return rows;
}

QVector<const Row*> onMenu(const QString& menu)
{
    QVector<const Row*> rows;
    for (const Row& row : all())
        if (menu == QLatin1String(row.menu))
            rows.append(&row);
    return rows;
}

const Row* forScreen(const QString& screen)
{
    for (const Row& row : all())
        if (!row.subMenu && screen == QLatin1String(row.screen))
            return &row;
    return nullptr;
}

void registerScreens()
{
    for (const Row& row : all())
        if (row.make)
            Forms::registerForm(QString::fromLatin1(row.screen), row.make);
}

} // namespace Activities
