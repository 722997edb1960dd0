#include "activities/ordering/boardlabels.h"
#include "activities/ordering/orderhelp.h"
#include "activities/ordering/y6fract3.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "activitytest.h"

#include <QRadioButton>
#include <algorithm>

using namespace Module1;

namespace {
void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }

QStringList captions(const QVector<QLabel*>& labels)
{
    QStringList texts;
    for (QLabel* l : labels)
        texts << l->text();
    return texts;
}

int shown(const QVector<QLabel*>& labels)
{ return int(std::count_if(labels.begin(), labels.end(), [](QLabel* l) { return !l->isHidden(); })); }
} // namespace

class TestY6fract3 : public QObject {
    Q_OBJECT
    TestSupport::World world;
    Y6fract3* form = nullptr;

    void start()
    {
        form = Forms::show<Y6fract3>();
        form->cmdstart->click();
    }

    // The numbers' indexes, smallest first: with one whole part and no 0 digit, the texts sort as their values.
    QVector<int> smallestFirst() const
    {
        QVector<int> order{0, 1, 2, 3, 4};
        std::sort(order.begin(), order.end(), [this](int a, int b) { return form->Label10[a]->text() < form->Label10[b]->text(); });
        return order;
    }

    // Places all five numbers, smallest first, or with the smallest last.
    void answer(bool right)
    {
        QVector<int> order = smallestFirst();
        if (!right)
            std::rotate(order.begin(), order.begin() + 1, order.end());
        for (int i : order)
            click(form->Label10[i]);
    }

private slots:
    void init()
    {
        world.fresh(7);
        yearlabel = QStringLiteral("Year 6");
        streak = 20;
    }

    void clicksPlaceAndGrey()
    {
        visits = 0;
        start();
        QCOMPARE(activitytitle, QStringLiteral("Place In Order"));
        QVERIFY(visits == 3 && Forms::find<Grey>()->Timer2->isEnabled());
        QVERIFY(form->Picture1->isHidden() && !form->Frame1->isHidden() && !form->Label9->isHidden());
        QVERIFY(!form->cmdcheck->isEnabled() && !form->Label12.value(5)->isHidden() && !form->Label5->isHidden());

        click(form->Label10[3]);
        QCOMPARE(form->Label11[0]->text(), form->Label10[3]->text());
        QVERIFY(!form->Label10[3]->isEnabled() && !form->Label10[3]->isHidden());
        QVERIFY(form->Label12.value(5)->isHidden() && form->Label12.value(0)->isHidden() && form->Label5->isHidden()
                && form->Label13->isHidden());
        click(form->Label10[3]); // greyed: no second click, as the last line shows
        // While the feedback line shows, the board takes no click at all.
        form->Label2->show();
        form->Label10_Click(1);
        QVERIFY(form->Label11[1]->text().isEmpty() && form->Label10[1]->isEnabled());
        form->Label2->hide();
        QTest::keyClick(form->Label10[1], Qt::Key_Space); // the keyboard reaches the numbers too
        QCOMPARE(captions(form->Label11).mid(0, 2), QStringList({form->Label10[3]->text(), form->Label10[1]->text()}));
    }

    void undo_data()
    {
        QTest::addColumn<int>("placed");
        QTest::addColumn<int>("filledAfter");
        QTest::newRow("none placed") << 0 << 0;
        QTest::newRow("one placed") << 1 << 0;
        QTest::newRow("four placed") << 4 << 3;
        QTest::newRow("five placed") << 5 << 5;
    }

    void undo()
    {
        QFETCH(int, placed);
        QFETCH(int, filledAfter);
        start();
        const QVector<int> order = smallestFirst();
        for (int i = 0; i < placed; ++i)
            form->Label10_Click(order[i]);
        const QStringList before = captions(form->Label11);
        form->cmdundo_Click();
        for (int i = 0; i < NumberSet::kCount; ++i) {
            QCOMPARE(form->Label11[i]->text(), i < filledAfter ? before[i] : QString());
            // Exactly the numbers still placed stay greyed.
            QCOMPARE(form->Label10[i]->isEnabledTo(form), order.indexOf(i) >= filledAfter);
        }
    }

    void check_data()
    {
        QTest::addColumn<int>("descent"); // swapped neighbours, or -1
        QTest::newRow("smallest first") << -1;
        QTest::newRow("descent at the top") << 0;
        QTest::newRow("descent at the bottom") << 3;
    }

    // A right order is praised; a wrong one, forgiven in practice, is shown put right, a number a tick.
    void check()
    {
        QFETCH(int, descent);
        start();
        counter = 3;
        QVector<int> order = smallestFirst();
        QStringList right;
        for (int i : order)
            right << form->Label10[i]->text();
        if (descent >= 0)
            std::swap(order[descent], order[descent + 1]);
        for (int i = 0; i < 4; ++i)
            click(form->Label10[order[i]]);
        QVERIFY(form->Label2->isHidden());
        click(form->Label10[order[4]]); // the fifth click checks at once
        QVERIFY(!form->Label2->isHidden() && form->Label1->isHidden() && form->Label9->isHidden());
        QVERIFY(!form->cmdhint->isEnabled() && !form->cmdcheck->isEnabled());
        QCOMPARE(captions(form->Label11), right);
        if (descent < 0) {
            QCOMPARE(counter, 4);
            QVERIFY(std::any_of(std::begin(kPraise), std::end(kPraise), [this](const char* p) {
                return form->Label2->text() == QString::fromLatin1(p) + Y6fract3::rightOrder();
            }));
            QVERIFY(form->Timer3->isEnabled() && !form->isEnabled() && Forms::find<Grey>()->Timer1->isEnabled());
            form->Timer3_Timer();
            QVERIFY(form->isEnabled() && form->cmdhint->isEnabled() && form->Label2->isHidden());
            QCOMPARE(captions(form->Label11), QStringList(5, QString()));
            return;
        }
        QCOMPARE(counter, 3);
        QCOMPARE(form->Label2->text(), Y6fract3::wrongOrder());
        QVERIFY(!form->Timer3->isEnabled() && !form->Timer5->isEnabled());
        for (int tick = 0; tick <= NumberSet::kCount; ++tick) {
            for (int i = 0; i < NumberSet::kCount; ++i)
                QCOMPARE(!form->Label11[i]->isHidden(), i < tick);
            QCOMPARE(form->Timer2->isEnabled() + 2 * form->Timer4->isEnabled(), tick == NumberSet::kCount ? 1 : 2);
            if (tick < NumberSet::kCount)
                form->Timer4_Timer();
        }
        form->cmdundo_Click(); // all five placed: nothing to take back
        QCOMPARE(captions(form->Label11), right);
        form->Timer2_Timer();
        QVERIFY(form->Label2->isHidden() && form->cmdhint->isEnabled() && form->Label1->isHidden());
        QVERIFY(captions(form->Label11) == QStringList(5, QString()) && shown(form->Label11) == 5);
        form->Timer7_Timer();
        QVERIFY(!form->Label1->isHidden());
    }

    // Practice of 10 to the certificate; in the Challenge a slip restarts the same picture, the retry
    // screen coming while the reveal goes on; a full streak ends at the menu.
    void practiceThenChallenge()
    {
        start();
        form->Option1->click();
        for (int n = 1; n <= 10; ++n) {
            answer(true);
            if (n < 10) {
                QCOMPARE(counter, n);
                form->Timer3_Timer();
            }
        }
        auto* certificate = Forms::find<Welldone>();
        QVERIFY(certificate && certificate->isVisible() && form->isEnabled());
        QCOMPARE(form->Label8->text(), ActivityForm::readyText(QStringLiteral("20"))); // the streak, not the count
        QVERIFY(!form->Label8->isHidden() && shown(form->Label11) == 0 && form->cmdundo->isHidden());
        QVERIFY(form->Label12.value(5)->isHidden() && form->Label5->isHidden() && !form->cmdhint->isEnabled());

        certificate->cmdexit->click();
        TestSupport::flushUnloads();
        QVERIFY(challenge == 1 && questions == 20);
        form->cmdstart->click();
        QVERIFY(form->Label8->isHidden() && !form->cmdhint->isEnabled());
        answer(true);
        form->Timer3_Timer();
        QVERIFY(counter == 1 && !form->cmdhint->isEnabled());
        const QString picture = picset;
        answer(false);
        QVERIFY(challenge == 2 && counter == 0 && picset == picture && form->Image2->isHidden());
        QVERIFY(form->Timer5->isEnabled() && form->Timer4->isEnabled());
        for (int i = 0; i < 5; ++i) { // the reveal's ticks, the retry screen after the third
            QCOMPARE(Forms::isLoaded(QStringLiteral("Reward")), i > 2);
            if (i == 2)
                form->Timer5_Timer();
            form->Timer4_Timer();
        }
        QVERIFY(Forms::find<Reward>()->isVisible() && !Forms::find<Reward>()->Label1->isHidden() && !form->Timer5->isEnabled());
        QCOMPARE(shown(form->Label11), 5);
        Forms::find<Reward>()->Timer2_Timer();
        form->Timer2_Timer();
        QVERIFY(!form->cmdhint->isEnabled() && captions(form->Label11) == QStringList(5, QString()));
        QPointer<Y6fract3> board = form;
        for (int n = 1; n <= 20; ++n) {
            answer(true);
            if (n < 20)
                form->Timer3_Timer();
        }
        TestSupport::flushUnloads();
        QVERIFY(!board);
        QCOMPARE(TestSupport::visibleForms(), QStringList({"Welldone", "y6Intro"}));
    }

    void helpLeavesTheRunAlone()
    {
        start();
        answer(true);
        form->Timer3_Timer();
        click(form->Label10[2]);
        const auto snapshot = [this] {
            QStringList s = captions(form->Label11);
            for (NumberLabel* n : form->Label10)
                s << n->text() + (n->isEnabled() ? "+" : "-");
            for (FormTimer* t : form->findChildren<FormTimer*>())
                s << t->objectName() + (t->isEnabled() ? "+" : "-");
            return s << QString::number(counter) << QString::number(challenge) << QString::number(questions) << picset;
        };
        const QStringList before = snapshot();
        form->cmdhint->click();
        auto* help = Forms::find<orderhelp>();
        QVERIFY(help && help->isVisible() && help->windowModality() == Qt::ApplicationModal);
        // Each comparing line sets off the first digit where its numbers differ; the "since" line names them.
        for (std::size_t n = 1; n + 1 < help->kExplanation.size(); n += 2) {
            const auto& numbers = help->kExplanation[n].numbers;
            const auto& since = help->kExplanation[n + 1].numbers;
            QVERIFY(since.size() >= numbers.size());
            for (std::size_t m = 0; m < numbers.size(); ++m) {
                const char digit = numbers[m].digits[numbers[m].compared];
                QCOMPARE(QString::fromLatin1(since[m].digits), QString(QChar::fromLatin1(digit)));
            }
            if (numbers.size() == 2) {
                const std::string a = numbers[0].digits, b = numbers[1].digits;
                const int d = int(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
                QVERIFY(numbers[0].compared == d && numbers[1].compared == d);
            }
        }
        QCOMPARE(help->Image2->text().count(QStringLiteral("font-weight:bold")), 15);
        QVERIFY(help->Image2->text().contains(
            QStringLiteral("3.4<span style=\"color:#ffe050; font-weight:bold; font-size:large;\">7</span>2 is less than")));
        QCOMPARE(snapshot(), before);
        help->cmdexit->click();
        TestSupport::flushUnloads();
        QVERIFY(!Forms::isLoaded(QStringLiteral("orderhelp")));
        QCOMPARE(snapshot(), before);
    }

    // After Print's question the focus goes to Hint, or when Hint is off to the next button on; the
    // key filter keeps what a decimal is typed with.
    void printFocusAndKeys()
    {
        start();
        world.answer = MsgBox::Answer::No;
        for (const char* focus : {"cmdhint", "cmdexit"}) {
            form->cmdstart->setFocus();
            form->cmdprint->click();
            QCOMPARE(form->focusWidget()->objectName(), QString::fromLatin1(focus));
            form->cmdhint->setEnabled(false);
        }

        for (int key : {int('0'), int('9'), int('.'), int('-'), 8, int('a'), int('Z'), int(','), int(' '), 9, 13}) {
            int k = key;
            form->keyfilter(k);
            QCOMPARE(k, QByteArray("09.-\b").contains(char(key)) ? key : 0);
        }
    }
};

QTEST_MAIN(TestY6fract3)
#include "tst_y6fract3.moc"
