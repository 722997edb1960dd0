// The mixed-numbers screen's other modes: one way only (Year 5) and Year 6's
// larger numbers. Their questions, and one played by the keyboard alone from
// the menu.
#include "activities/activitytable.h"
#include "activities/mixed/y5fract4.h"
#include "fractions/fraction.h"
#include "activitytest.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {
constexpr int kEither = MixedQuestion::kEitherWay;
constexpr int kToMixed = MixedQuestion::kToMixed;
constexpr int kToImproper = MixedQuestion::kToImproper;
constexpr int kDraws = 4000;

// Each mode: its screen and menu, the direction, the largest whole
// number and denominator, the largest improper numerator, the year.
void addModeColumns()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("largestWhole");
    QTest::addColumn<int>("largestDenom");
    QTest::addColumn<int>("largestImproper");
    QTest::addColumn<QString>("year");
}

void addModeRows()
{
    QTest::newRow("y5fract6, to improper fractions") << int(MixedModes::kToImproper) << "y5Intro2" << kToImproper << 9 << 10 << 99 << "Year 5";
    QTest::newRow("y5fract7, to mixed numbers") << int(MixedModes::kToMixed) << "y5Intro2" << kToMixed
                                                << 5 << 10 << 59 << "Year 5";
    QTest::newRow("y6fract1, Year 6") << int(MixedModes::kYearSix) << "y6Intro" << kEither << 12 << 12
                                      << 155 << "Year 6";
}

const MixedMode& modeOf(int id)
{
    return MixedModes::mode(MixedModes::Id(id));
}
} // namespace

class TestMixedModes : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(7); }

    void drawsOverManySeeds_data() { addModeColumns(); addModeRows(); }
    void oneQuestionByKeyboard_data() { addModeColumns(); addModeRows(); }

    // Every draw keeps to the mode's direction and ranges, a proper fraction
    // in lowest terms beside its whole number, and never comes twice in a
    // row; the ends of the ranges come up.
    void drawsOverManySeeds()
    {
        QFETCH(int, mode);
        QFETCH(int, direction);
        QFETCH(int, largestWhole);
        QFETCH(int, largestDenom);
        QFETCH(int, largestImproper);
        const MixedQuestion::Range& range = modeOf(mode).range;
        QCOMPARE(range.largestImproperNumerator(), largestImproper);
        QSet<int> directions, wholes, denoms;
        int improper = 0;
        MixedQuestion last;
        for (int n = 0; n < kDraws; ++n) {
            const MixedQuestion q = MixedQuestion::draw(Random::program(), range, n ? &last : nullptr);
            QVERIFY2(!(q == last), qPrintable(q.answerText()));
            QVERIFY2(q.whole >= 1 && q.whole <= largestWhole && q.numer >= 1 && q.numer < q.denom
                         && q.denom <= largestDenom && Fractions::hcf(q.numer, q.denom) == 1,
                     qPrintable(q.answerText()));
            directions << q.direction;
            wholes << q.whole;
            denoms << q.denom;
            improper = std::max(improper, int(q.improperNumerator()));
            last = q;
        }
        const QSet<int> ways = direction == kEither ? QSet<int>{kToMixed, kToImproper} : QSet<int>{direction};
        QCOMPARE(directions, ways);
        QCOMPARE(wholes.size(), largestWhole);
        QCOMPARE(denoms.size(), largestDenom - 1);
        QVERIFY(improper > largestImproper - largestDenom);
    }

    // From the menu: Start, the boxes by keys and ENTER, the last checks.
    // The screen has its own name, title and year; Escape leads back to the menu.
    void oneQuestionByKeyboard()
    {
        QFETCH(int, mode);
        QFETCH(QString, menu);
        QFETCH(int, direction);
        QFETCH(int, largestImproper);
        QFETCH(QString, year);
        auto* form = ActivityTest::open<y5fract4>(QString::fromLatin1(modeOf(mode).screen));
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), year);
        QCOMPARE(form->Label4->text(), activitytitle);
        QCOMPARE(activitytitle, Activities::titleText(*Activities::forScreen(form->objectName())));
        QTest::keyClicks(form->Text3, QStringLiteral("1234")); // as many figures as the largest answer
        QCOMPARE(form->Text3->text().size(), QString::number(largestImproper).size());
        QApplication::setActiveWindow(form);
        QTest::keyClick(form->cmdstart, Qt::Key_Space);
        const MixedQuestion q = form->question();
        QVERIFY(direction == kEither || q.direction == direction);
        for (int n : q.answerNumbers()) {
            QVERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
            ActivityTest::enter(QString::number(n));
        }
        QCOMPARE(counter, 1);
        QCOMPARE(form->Label2->text(), praisetext + QStringLiteral(" ") + q.answerText());
        form->Timer1_Timer();
        QVERIFY(!(form->question() == q) || modeOf(mode).mayRepeat);
        QTest::keyClick(form, Qt::Key_Escape);
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{menu});
    }
};

QTEST_MAIN(TestMixedModes)
#include "tst_mixedmodes.moc"
