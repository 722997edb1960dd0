// The mixed-numbers screen and its other modes, one way only (Year 5) and Year 6's larger numbers: their
// questions, the boxes, and whole games played from the menu.
#include "activities/activitytable.h"
#include "activities/mixed/y5fract4.h"
#include "fractions/fraction.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "activitytest.h"

#include <QClipboard>
#include <QRadioButton>

using namespace Module1;

namespace {
constexpr int kEither = MixedQuestion::kEitherWay;
constexpr int kToMixed = MixedQuestion::kToMixed;
constexpr int kToImproper = MixedQuestion::kToImproper;
constexpr int kDraws = 2000;

y5fract4* openScreen()
{
    yearlabel = QStringLiteral("Year 5");
    streak = 20;
    return qobject_cast<y5fract4*>(Forms::show(QStringLiteral("y5fract4")));
}

// The boxes of the question on show, in order, with their labels and the numbers that answer it.
struct Step { QLineEdit* box; QLabel* label; int number; };
QList<Step> steps(y5fract4* f)
{
    const MixedQuestion q = f->question();
    if (q.direction == kToMixed)
        return {{f->Text1, f->Label12, q.whole}, {f->Text4, f->Label8, q.numer}, {f->Text2, f->Label10, q.denom}};
    return {{f->Text3, f->Label17, q.improperNumerator()}, {f->Text5, f->Label14, q.denom}};
}

// Types the answer box by box, ENTER and Tab in turn.
void answer(y5fract4* form)
{
    const QList<Step> all = steps(form);
    for (int i = 0; i < all.size(); ++i)
        ActivityTest::enter(QString::number(all[i].number), all[i].box, i % 2 ? Qt::Key_Tab : Qt::Key_Return);
}

// Checks a partial answer, by Timer4 or by Check: the missing boxes count 0.
void checkPartialAnswer(y5fract4* form, bool byTimer4)
{
    const Step first = steps(form).first();
    ActivityTest::enter(QString::number(first.number), first.box);
    const int right = counter;
    byTimer4 ? form->Timer4_Timer() : form->cmdcheck_Click();
    QCOMPARE(form->Label2->text(), QStringLiteral("Incorrect! ") + form->answertext());
    QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible());
    QVERIFY(form->Timer3->isEnabled() && !form->Timer1->isEnabled());
    QCOMPARE(form->Timer1->interval(), byTimer4 ? y5fract4::kTimer1QuickMs : y5fract4::kTimer1Ms);
    QCOMPARE(counter, challenge > 0 ? 0 : right);
    form->Timer3_Timer();
    QVERIFY(form->Label1->isVisible() && !form->Label2->isVisible());
    QCOMPARE(form->cmdhint->isEnabled(), challenge == 0);
}

// Each mode: its screen and menu, the direction, the largest whole number and
// denominator, the largest improper numerator, the year.
void addModes()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("largestWhole");
    QTest::addColumn<int>("largestDenom");
    QTest::addColumn<int>("largestImproper");
    QTest::addColumn<QString>("year");
    QTest::newRow("y5fract6, to improper") << int(MixedModes::kToImproper) << "y5Intro2" << kToImproper << 9 << 10 << 99 << "Year 5";
    QTest::newRow("y5fract7, to mixed") << int(MixedModes::kToMixed) << "y5Intro2" << kToMixed << 5 << 10 << 59 << "Year 5";
    QTest::newRow("y6fract1, Year 6") << int(MixedModes::kYearSix) << "y6Intro" << kEither << 12 << 12 << 155 << "Year 6";
}

const MixedMode& modeOf(int id)
{
    return MixedModes::mode(MixedModes::Id(id));
}
} // namespace

class TestY5fract4 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(7); }

    void boxesLeadOnAndTheLastChecks_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("refused");
        QTest::addColumn<int>("end");
        for (int direction : {kToMixed, kToImproper}) {
            const char* way = direction == kToMixed ? "mixed" : "improper";
            QTest::addRow("%s, empty ENTER", way) << direction << "" << int(Qt::Key_Return);
            QTest::addRow("%s, zero ENTER", way) << direction << "0" << int(Qt::Key_Enter);
            QTest::addRow("%s, zeros Tab", way) << direction << "00" << int(Qt::Key_Tab);
        }
    }

    // The hint replaces the typing instruction. Each box takes two digits at most, by keys or pasting,
    // refuses an empty or zero entry without a word, then gives way to its label and opens the next.
    void boxesLeadOnAndTheLastChecks()
    {
        QFETCH(int, direction);
        QFETCH(QString, refused);
        QFETCH(int, end);
        y5fract4* form = openScreen();
        do
            form->cmdstart_Click();
        while (form->question().direction != direction);
        const MixedQuestion q = form->question();
        QVERIFY(form->Label5->isVisible() && form->Timer5->isEnabled());
        form->cmdhint->click();
        QVERIFY(!form->Label5->isVisible() && !form->Timer5->isEnabled() && form->Label18->isVisible());
        QCOMPARE(form->Label18->text() + form->Label20->text(), q.hintText() + q.productText());
        QCOMPARE(form->Label20->isVisible(), direction == kToImproper);
        const QString keys = QStringLiteral("a -Z3.q54");
        for (const QChar c : keys) {
            int code = c.unicode();
            direction == kToMixed ? form->Text1_KeyPress(code) : form->Text3_KeyPress(code);
            QCOMPARE(code != 0, c.isDigit());
        }
        QGuiApplication::clipboard()->setText(QStringLiteral("5a"));

        const QList<Step> all = steps(form);
        for (int i = 0; i < all.size(); ++i) {
            const Step& s = all[i];
            QCOMPARE(form->focusWidget(), s.box);
            for (int j = i + 1; j < all.size(); ++j)
                QVERIFY(!all[j].box->isEnabled());
            QTest::keyClicks(s.box, keys);
            QTest::keyClick(s.box, Qt::Key_Backspace);
            QCOMPARE(s.box->text(), QStringLiteral("3"));
            s.box->clear();
            QTest::keyClick(s.box, Qt::Key_V, Qt::ControlModifier);
            s.box->paste();
            ActivityTest::enter(refused, s.box, Qt::Key(end));
            QVERIFY(s.box->isVisible() && s.box->text().isEmpty() && !form->Label2->isVisible());
            QCOMPARE(form->focusWidget(), s.box);
            ActivityTest::enter(QString::number(s.number), s.box, Qt::Key(end));
            QVERIFY(!s.box->isVisible() && s.label->isVisible());
            QCOMPARE(s.label->text(), QString::number(s.number));
            QVERIFY(i + 1 == all.size() || all[i + 1].box->isEnabled());
        }
        QCOMPARE(counter, 1);
        QCOMPARE(form->Label2->text(), praisetext + QStringLiteral(" ") + q.answerText());
        QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible() && !form->Label18->isVisible()
                && !form->Label20->isVisible());
        QVERIFY(!form->isEnabled() && !form->cmdhint->isEnabled() && world.messages.isEmpty());
        QVERIFY(form->Timer1->isEnabled() && Forms::find<Grey>()->Timer1->isEnabled());

        form->Timer1_Timer();
        QVERIFY(form->isEnabled() && form->cmdhint->isEnabled() && form->Label1->isVisible() && !form->Label2->isVisible());
        const Step first = steps(form).first();
        QVERIFY(first.box->isVisible() && first.box->isEnabled() && first.box->text().isEmpty());
        QCOMPARE(form->focusWidget(), first.box);
    }

    // Ten right answers, with a hint and a partial answer between, make the child ready; in the Challenge
    // a partial answer begins the same picture again, and twenty right answers lead back to the menu.
    void practiceThenChallenge()
    {
        y5fract4* form = openScreen();
        QCOMPARE(activitytitle, form->Label4->text());
        QVERIFY(form->Option2->isChecked());
        QVERIFY(form->Picture1->isVisible() && !form->Picture2->isVisible() && !form->Picture3->isVisible());
        QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
        form->Option1->click();
        form->cmdstart->click();
        QVERIFY(!form->Picture1->isVisible());
        for (int right = 1; right <= 10; ++right) {
            if (right == 4) {
                form->cmdhint->click();
                checkPartialAnswer(form, true);
            }
            answer(form);
            QCOMPARE(counter, right % 10);
            if (right < 10)
                form->Timer1_Timer();
        }
        QCOMPARE(form->Label80->text(), QStringLiteral("  You are now ready for the Challenge.   20 correct answers on "
                                                       "the run, with no hints. Click Start to take the Challenge."));
        QVERIFY(form->Label80->isVisible() && !form->Picture2->isVisible() && !form->Picture3->isVisible());
        QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y5fract4")}));

        Forms::find<Welldone>()->cmdexit->click();
        QCOMPARE(challenge, 1);
        form->cmdstart->click();
        QVERIFY(!form->Label80->isVisible());
        answer(form);
        form->Timer1_Timer();
        const QString set = picset;
        checkPartialAnswer(form, false);
        QVERIFY(challenge == 2 && picset == set);
        QVERIFY(Forms::find<Reward>()->isVisible() && Forms::find<Reward>()->Label1->isVisible());
        Forms::find<Reward>()->Timer2_Timer();
        for (int right = 1; right < 20; ++right) {
            answer(form);
            QCOMPARE(counter, right);
            form->Timer1_Timer();
            QVERIFY(!form->cmdhint->isEnabled());
        }
        QPointer<y5fract4> leaving(form);
        answer(form);
        TestSupport::flushUnloads();
        QVERIFY(!leaving);
        QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y5Intro2")}));
        QCOMPARE(Forms::find<Welldone>()->Label1->text(),
                 QStringLiteral("Congratulations!!! You have risen to the Challenge."));
    }

    void draws_data() { addModes(); }
    void oneQuestionByKeyboard_data() { addModes(); }

    // Every draw keeps to the mode's direction and ranges, a proper fraction in lowest
    // terms beside its whole number, and never comes twice in a row; the ends come up.
    void draws()
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

    // From the menu: Start, the boxes by keys and ENTER, the last checks. The screen has
    // its own name, title and year; Escape leads back to the menu.
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

QTEST_MAIN(TestY5fract4)
#include "tst_y5fract4.moc"
