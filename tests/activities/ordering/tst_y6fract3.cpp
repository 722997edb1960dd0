#include "activities/ordering/boardlabels.h"
#include "activities/ordering/orderhelp.h"
#include "activities/ordering/y6fract3.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/picturebox.h"
#include "runtime/formtimer.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <algorithm>

using namespace Module1;

namespace {
// The numbers' indexes, smallest first. One whole part and no digit 0 make
// the texts' own order the order of their values.
QVector<int> smallestFirst(Y6fract3* form)
{
    QVector<int> order{0, 1, 2, 3, 4};
    std::sort(order.begin(), order.end(),
              [form](int a, int b) { return form->Label10[a]->text() < form->Label10[b]->text(); });
    return order;
}

void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }

QStringList captions(const QVector<QLabel*>& labels)
{
    QStringList texts;
    for (QLabel* l : labels)
        texts << l->text();
    return texts;
}

int shown(const QVector<QLabel*>& labels)
{
    return int(std::count_if(labels.begin(), labels.end(), [](QLabel* l) { return !l->isHidden(); }));
}
} // namespace

class TestY6fract3 : public QObject {
    Q_OBJECT
private slots:
    void init();
    void loadsReadyToStart();
    void clicksPlaceAndGrey();
    void undo_data();
    void undo();
    void check_data();
    void check();
    void wrongOrderIsRevealedOneByOne();
    void failedChallengeShowsRetryWhileRevealing();
    void practiceThenChallenge();
    void helpLeavesTheRunAlone();
    void printThenFocus_data();
    void printThenFocus();
    void keyfilterKeepsNumberKeys();

private:
    Y6fract3* start(int challengeState = 0);
    void answer(bool right);
    TestSupport::World world;
    Y6fract3* form = nullptr;
};

void TestY6fract3::init()
{
    world.fresh(7);
    yearlabel = QStringLiteral("Year 6");
    streak = 20;
}

Y6fract3* TestY6fract3::start(int challengeState)
{
    form = Forms::show<Y6fract3>();
    challenge = challengeState;
    // A Challenge follows a practice run, whose last check turned Hint off.
    if (challengeState > 0)
        form->cmdhint->setEnabled(false);
    form->cmdstart->click();
    return form;
}

// Places all five numbers, smallest first, or with the smallest last.
void TestY6fract3::answer(bool right)
{
    QVector<int> order = smallestFirst(form);
    if (!right)
        std::rotate(order.begin(), order.begin() + 1, order.end());
    for (int i : order)
        click(form->Label10[i]);
}

void TestY6fract3::loadsReadyToStart()
{
    visits = 0;
    form = Forms::show<Y6fract3>();
    QCOMPARE(activitytitle, QStringLiteral("Place In Order"));
    QCOMPARE(visits, 3);
    QVERIFY(Forms::find<Grey>()->Timer2->isEnabled());
    QCOMPARE(questions, 20);
    QVERIFY(form->Option2->isChecked());
    QCOMPARE(form->cmdprint->text(), QStringLiteral("Print A Worksheet"));
    QCOMPARE(form->findChild<QWidget*>(QStringLiteral("Image2(0)")), form->Image2);
    const QList<QPair<FormTimer*, int>> timers = {{form->Timer1, 32000}, {form->Timer2, 3600}, {form->Timer3, 3600},
                                                   {form->Timer4, 1000},  {form->Timer5, 6500}, {form->Timer6, 1000},
                                                   {form->Timer7, 300}};
    for (const auto& [timer, ms] : timers) {
        QCOMPARE(timer->interval(), ms);
        QCOMPARE(timer->isEnabled(), timer == form->Timer1);
    }
    QVERIFY(!form->Picture1->isHidden());
    QVERIFY(form->Frame1->isHidden());
    QVERIFY(!form->cmdcheck->isEnabled());
}

void TestY6fract3::clicksPlaceAndGrey()
{
    start();
    QVERIFY(form->Picture1->isHidden() && !form->Frame1->isHidden() && !form->Label9->isHidden());
    QCOMPARE(form->Label1->text(), Y6fract3::kStartInstruction);
    QVERIFY(!form->Label12.value(5)->isHidden() && !form->Label5->isHidden());

    click(form->Label10[3]);
    QCOMPARE(form->Label11[0]->text(), form->Label10[3]->text());
    QCOMPARE(form->order[0], 3);
    QVERIFY(!form->Label10[3]->isEnabled());
    QVERIFY(!form->Label10[3]->isHidden());
    QVERIFY(form->Label12.value(5)->isHidden() && form->Label12.value(0)->isHidden());
    QVERIFY(form->Label5->isHidden() && form->Label13->isHidden());

    // A greyed number takes no second click.
    click(form->Label10[3]);
    QCOMPARE(form->Label11[1]->text(), QString());
    // While the feedback line shows, the board takes no click at all.
    form->Label2->show();
    form->Label10_Click(1);
    QCOMPARE(form->Label11[1]->text(), QString());
    QVERIFY(form->Label10[1]->isEnabled());
    form->Label2->hide();
    click(form->Label10[1]);
    QCOMPARE(captions(form->Label11).mid(0, 2), QStringList({form->Label10[3]->text(), form->Label10[1]->text()}));
    // The keyboard reaches the numbers too.
    QTest::keyClick(form->Label10[0], Qt::Key_Space);
    QCOMPARE(form->Label11[2]->text(), form->Label10[0]->text());
}

void TestY6fract3::undo_data()
{
    QTest::addColumn<int>("placed");
    QTest::addColumn<int>("filledAfter");
    QTest::newRow("none placed") << 0 << 0;
    QTest::newRow("one placed") << 1 << 0;
    QTest::newRow("four placed") << 4 << 3;
    QTest::newRow("five placed") << 5 << 5;
}

void TestY6fract3::undo()
{
    QFETCH(int, placed);
    QFETCH(int, filledAfter);
    start();
    const QVector<int> order = smallestFirst(form);
    for (int i = 0; i < placed; ++i)
        form->Label10_Click(order[i]);
    const QStringList before = captions(form->Label11);
    form->cmdundo_Click();
    for (int i = 0; i < NumberSet::kCount; ++i) {
        QCOMPARE(form->Label11[i]->text(), i < filledAfter ? before[i] : QString());
        // Exactly the numbers still placed stay greyed.
        const int slot = int(std::find(order.begin(), order.end(), i) - order.begin());
        QCOMPARE(form->Label10[i]->isEnabledTo(form), slot >= filledAfter);
    }
}

void TestY6fract3::check_data()
{
    QTest::addColumn<int>("descent"); // swapped neighbours, or -1
    QTest::newRow("smallest first") << -1;
    for (int p = 0; p < NumberSet::kCount - 1; ++p)
        QTest::addRow("descent at %d", p) << p;
}

void TestY6fract3::check()
{
    QFETCH(int, descent);
    start();
    counter = 3;
    QVector<int> order = smallestFirst(form);
    if (descent >= 0)
        std::swap(order[descent], order[descent + 1]);
    for (int i = 0; i < 4; ++i)
        click(form->Label10[order[i]]);
    QVERIFY(form->Label2->isHidden());
    click(form->Label10[order[4]]); // the fifth click checks at once
    QVERIFY(!form->Label2->isHidden() && form->Label1->isHidden());
    QVERIFY(form->Label9->isHidden() && !form->cmdhint->isEnabled() && !form->cmdcheck->isEnabled());
    if (descent < 0) {
        QCOMPARE(counter, 4);
        QVERIFY(std::any_of(std::begin(kPraise), std::end(kPraise), [&](const char* p) {
            return form->Label2->text() == QString::fromLatin1(p) + Y6fract3::kRightOrder;
        }));
        QVERIFY(form->Timer3->isEnabled() && !form->isEnabled());
        QVERIFY(Forms::find<Grey>()->Timer1->isEnabled());
        form->Timer3_Timer();
        QVERIFY(form->isEnabled() && form->cmdhint->isEnabled() && form->Label2->isHidden());
        QCOMPARE(NumberSet::firstFreeSlot(form->answers()), 0);
    } else {
        QCOMPARE(counter, 3); // practice forgives a wrong order
        QCOMPARE(form->Label2->text(), Y6fract3::kWrongOrder);
        QVERIFY(form->Timer4->isEnabled() && !form->Timer3->isEnabled() && !form->Timer5->isEnabled());
    }
}

void TestY6fract3::wrongOrderIsRevealedOneByOne()
{
    start();
    const QVector<int> order = smallestFirst(form);
    QStringList right;
    for (int i : order)
        right << form->Label10[i]->text();
    answer(false);
    QCOMPARE(captions(form->Label11), right);
    QCOMPARE(shown(form->Label11), 0);
    for (int tick = 1; tick <= NumberSet::kCount; ++tick) {
        QVERIFY(!form->Timer2->isEnabled());
        form->Timer4_Timer();
        for (int i = 0; i < NumberSet::kCount; ++i)
            QCOMPARE(!form->Label11[i]->isHidden(), i < tick);
    }
    QVERIFY(form->Timer2->isEnabled() && !form->Timer4->isEnabled());
    form->cmdundo_Click(); // all five placed: nothing to take back
    QCOMPARE(captions(form->Label11), right);
    form->Timer2_Timer();
    QVERIFY(form->Label2->isHidden() && form->cmdhint->isEnabled());
    QCOMPARE(captions(form->Label11), QStringList(5, QString()));
    QCOMPARE(shown(form->Label11), 5);
    QVERIFY(form->Label1->isHidden());
    form->Timer7_Timer();
    QVERIFY(!form->Label1->isHidden() && !form->Timer7->isEnabled() && form->Timer6->isEnabled());
}

void TestY6fract3::failedChallengeShowsRetryWhileRevealing()
{
    start(1);
    QVERIFY(!form->cmdhint->isEnabled());
    answer(true);
    form->Timer3_Timer();
    QCOMPARE(counter, 1);
    QVERIFY(!form->cmdhint->isEnabled());
    const QString picture = picset;
    answer(false);
    QCOMPARE(challenge, 2);
    QCOMPARE(counter, 0);
    QCOMPARE(picset, picture);
    QVERIFY(form->Image2->isHidden());
    QVERIFY(form->Timer5->isEnabled() && form->Timer4->isEnabled());
    QVERIFY(!Forms::isLoaded(QStringLiteral("Reward")));
    form->Timer4_Timer();
    form->Timer4_Timer();
    form->Timer5_Timer(); // 6.5 s after the check
    auto* reward = Forms::find<Reward>();
    QVERIFY(reward && reward->isVisible() && !reward->Label1->isHidden());
    QVERIFY(!form->Timer5->isEnabled());
    QVERIFY(form->Timer4->isEnabled()); // the reveal goes on
    for (int i = 0; i < 3; ++i)
        form->Timer4_Timer();
    QCOMPARE(shown(form->Label11), 5);
    form->Timer2_Timer();
    QVERIFY(!form->cmdhint->isEnabled()); // still the Challenge
    QCOMPARE(NumberSet::firstFreeSlot(form->answers()), 0);
}

// The whole cycle: a practice run of 10 (every third answer wrong first,
// which practice forgives), the certificate, then the Challenge of 10 from
// the same screen, as long as the streak (the certificate sets it), which
// ends at the Year 6 menu and the certificate.
void TestY6fract3::practiceThenChallenge()
{
    start();
    form->Option1->click();
    QCOMPARE(questions, 10);
    for (int n = 1; n <= 10; ++n) {
        if (n % 3 == 0) {
            answer(false);
            for (int t = 0; t < NumberSet::kCount; ++t)
                form->Timer4_Timer();
            form->Timer2_Timer();
        }
        answer(true);
        if (n < 10) {
            QCOMPARE(counter, n);
            form->Timer3_Timer();
        }
    }
    auto* certificate = Forms::find<Welldone>();
    QVERIFY(certificate && certificate->isVisible());
    QVERIFY(form->isVisible() && form->isEnabled());
    QCOMPARE(form->Label8->text(), ActivityForm::readyText(QStringLiteral("20"))); // the streak, not the count
    QVERIFY(!form->Label8->isHidden());
    QCOMPARE(shown(form->Label11), 0);
    QVERIFY(form->cmdundo->isHidden() && form->Label12.value(5)->isHidden() && form->Label5->isHidden());
    QVERIFY(!form->cmdhint->isEnabled());

    certificate->cmdexit->click();
    TestSupport::flushUnloads();
    QCOMPARE(challenge, 1);
    QCOMPARE(questions, 20);
    form->cmdstart->click();
    QVERIFY(form->Label8->isHidden() && !form->cmdhint->isEnabled());
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

void TestY6fract3::helpLeavesTheRunAlone()
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
    QVERIFY(help && help->isVisible());
    QCOMPARE(help->windowModality(), Qt::ApplicationModal);
    QCOMPARE(help->windowTitle(), QStringLiteral("Year 6 "));
    QCOMPARE(help->Label1->text(), QStringLiteral("Happy to help"));
    QCOMPARE(help->Label2->text(),
             QStringLiteral("The following decimals are in order of size starting with the smallest:"));
    QStringList examples;
    for (QLabel* l : help->examples)
        examples << l->objectName() + '=' + l->text();
    QCOMPARE(examples, QStringList({"Label3=3.4 7 2", "Label4=3.4 8 2", "Label5=3.4 9", "Label6=3.5 1 6",
                                    "Label7=4.2 1 1"}));
    // Each comparison sets off the digits that decide it: the first place
    // where the two numbers differ, and the same digits on the next line.
    QCOMPARE(help->kExplanation.size(), std::size_t(9));
    for (std::size_t n = 1; n + 1 < help->kExplanation.size(); n += 2) {
        const QString line = QString::fromLatin1(help->kExplanation[n].text);
        const QString why = QString::fromLatin1(help->kExplanation[n + 1].text);
        QStringList marked, reasons;
        for (int at : help->kExplanation[n].compared)
            marked << line.mid(at, 1);
        for (int at : help->kExplanation[n + 1].compared)
            reasons << why.mid(at, 1);
        QCOMPARE(reasons.mid(0, marked.size()), marked);
        if (line.contains(QStringLiteral(" is less than "))) {
            const QStringList pair = line.split(QStringLiteral(" is less than "));
            int d = 0;
            while (pair[0][d] == pair[1][d])
                ++d;
            QCOMPARE(help->kExplanation[n].compared, (std::vector<int>{d, int(pair[0].size()) + 14 + d}));
        }
    }
    QCOMPARE(help->Image2->text().count(QStringLiteral("<p")), 9);
    QCOMPARE(snapshot(), before);
    help->cmdexit->click();
    TestSupport::flushUnloads();
    QVERIFY(!Forms::isLoaded(QStringLiteral("orderhelp")));
    QCOMPARE(snapshot(), before);
}

void TestY6fract3::printThenFocus_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("focus");
    QTest::newRow("practice: Hint") << 0 << "cmdhint";
    QTest::newRow("Challenge: Hint is off, Exit next") << 1 << "cmdexit";
}

void TestY6fract3::printThenFocus()
{
    QFETCH(int, state);
    QFETCH(QString, focus);
    start(state);
    world.answer = MsgBox::Answer::No;
    form->cmdstart->setFocus();
    form->cmdprint->click();
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
    QCOMPARE(world.messages[0].title, QStringLiteral("Year 6"));
    QVERIFY(world.messages[0].buttons == MsgBox::Buttons::YesNo);
    QCOMPARE(form->focusWidget()->objectName(), focus);
}

void TestY6fract3::keyfilterKeepsNumberKeys()
{
    start();
    for (int key : {int('0'), int('7'), int('9'), int('.'), int('-'), 8}) {
        int k = key;
        form->keyfilter(k);
        QCOMPARE(k, key);
    }
    for (int key : {int('a'), int('Z'), int(','), int(' '), int('+'), 9, 13}) {
        int k = key;
        form->keyfilter(k);
        QCOMPARE(k, 0);
    }
    // Enter on a filled entry locks it and checks; the board has no entry.
    QCOMPARE(form->keyentry, nullptr);
    QLineEdit entry(QStringLiteral("3.4"));
    form->keyentry = &entry;
    int enter = 13;
    form->keyfilter(enter);
    QVERIFY(entry.isReadOnly());
    QCOMPARE(counter, 1); // the check ran: an empty column is all 0s, in order
    form->keyentry = nullptr;
}

QTEST_MAIN(TestY6fract3)
#include "tst_y6fract3.moc"
