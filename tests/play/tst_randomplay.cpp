// The random play itself: a seed plays the same events again and a
// different seed does not; every invariant it checks catches the fault it
// is there for; and every built activity of the table takes the right
// answer the play gives it.
#include "answering.h"
#include "invariants.h"
#include "player.h"

#include "kit/run.h"
#include "shell/module1.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <functional>

using namespace Module1;

namespace {

QStringList play(std::uint64_t seed, int events, QString* broken)
{
    QStringList lines;
    Play::Player player(seed);
    player.setEcho([&lines](const QString& line) { lines << line; });
    player.start();
    for (int n = 0; n < events && broken->isEmpty(); ++n)
        *broken = player.step();
    return lines;
}

ActivityForm* openActivity(const char* screen)
{
    version = QStringLiteral("0");
    streak = 10;
    auto* form = static_cast<ActivityForm*>(Forms::show(QString::fromLatin1(screen)));
    form->cmdstart->click();
    return form;
}

using Fault = std::function<void()>;

} // namespace

class TestRandomPlay : public QObject {
    Q_OBJECT
private slots:
    void init();
    void aSeedPlaysTheSameEventsAgain();
    void invariantsCatchTheirFaults_data();
    void invariantsCatchTheirFaults();
    void everyActivityTakesTheRightAnswer_data();
    void everyActivityTakesTheRightAnswer();

private:
    TestSupport::World world;
};

void TestRandomPlay::init()
{
    world.fresh(2);
}

void TestRandomPlay::aSeedPlaysTheSameEventsAgain()
{
    constexpr int kEvents = 400;
    QString broken;
    const QStringList first = play(11, kEvents, &broken);
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
    const QStringList again = play(11, kEvents, &broken);
    const QStringList other = play(12, kEvents, &broken);
    QVERIFY(first.size() > kEvents);
    QCOMPARE(again, first);
    QVERIFY(other != first);
}

void TestRandomPlay::invariantsCatchTheirFaults_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("broken"); // words the broken invariant names; empty: all hold

    QTest::newRow("an activity in practice") << Fault([] { openActivity("Y2fractions2"); }) << QString();
    QTest::newRow("a Challenge, Hint off") << Fault([] {
        challenge = 1;
        openActivity("y5fract4");
    }) << QString();
    QTest::newRow("a menu and the certificate") << Fault([] {
        Forms::show(QStringLiteral("y2Intro"));
        Forms::show(QStringLiteral("Welldone"));
    }) << QString();
    QTest::newRow("two screens") << Fault([] {
        Forms::show(QStringLiteral("Year"));
        Forms::show(QStringLiteral("y2Intro"));
    }) << QStringLiteral("2 screens on show, not 1");
    QTest::newRow("Grey shown") << Fault([] {
        Forms::show(QStringLiteral("Year"));
        Forms::show(QStringLiteral("Grey"));
    }) << QStringLiteral("Grey is on show");
    QTest::newRow("no screen, program running") << Fault([] {}) << QStringLiteral("0 screens on show, not 1");
    QTest::newRow("count above the run") << Fault([] {
        openActivity("Y6fract3");
        questions = 10;
        counter = 11;
    }) << QStringLiteral("counter 11 is above questions 10");
    QTest::newRow("Hint in a Challenge") << Fault([] {
        challenge = 2;
        openActivity("Y2fractions")->cmdhint->setEnabled(true);
    }) << QStringLiteral("Y2fractions: Hint is on in a Challenge");
    QTest::newRow("a control outside") << Fault([] {
        Form* menu = Forms::show(QStringLiteral("y2Intro"));
        auto* exit = menu->findChildren<QPushButton*>().constFirst();
        exit->move(menu->width() - exit->width() / 2, exit->y());
    }) << QStringLiteral("stands outside its screen");
    QTest::newRow("nothing to use") << Fault([] {
        Form* menu = Forms::show(QStringLiteral("y3Intro"));
        for (QWidget* control : menu->findChildren<QWidget*>())
            control->setEnabled(false);
        for (QTimer* timer : menu->findChildren<QTimer*>())
            timer->stop();
    }) << QStringLiteral("y3Intro has nothing the child can use");
}

void TestRandomPlay::invariantsCatchTheirFaults()
{
    QFETCH(Fault, fault);
    QFETCH(QString, broken);
    fault();
    // The hidden timer screen's hook plays no part in any of these.
    if (Form* grey = Forms::find(QStringLiteral("Grey")); grey && !grey->isVisible())
        for (QTimer* timer : grey->findChildren<QTimer*>())
            timer->stop();
    const QString found = Play::brokenInvariant();
    if (broken.isEmpty())
        QVERIFY2(found.isEmpty(), qPrintable(found));
    else
        QVERIFY2(found.contains(broken), qPrintable(found));
}

void TestRandomPlay::everyActivityTakesTheRightAnswer_data()
{
    QTest::addColumn<int>("row");
    const QVector<Activities::Row>& rows = Activities::all();
    for (int i = 0; i < rows.size(); ++i)
        if (rows[i].make)
            QTest::newRow(rows[i].screen) << i;
}

// Through a practice run to the certificate, then a whole Challenge won
// back to the menu; an answer is refused while none is asked.
void TestRandomPlay::everyActivityTakesTheRightAnswer()
{
    QFETCH(int, row);
    const Activities::Row& activity = Activities::all()[row];
    version = QStringLiteral("0");
    streak = 10;
    auto* form = static_cast<ActivityForm*>(Forms::showAndUnload(QString::fromLatin1(activity.screen),
                                                                  Forms::show(QString::fromLatin1(activity.menu))));
    QVERIFY(!form->giveRightAnswer()); // before Start
    form->cmdstart->click();
    QVERIFY(form->giveRightAnswer());
    QCOMPARE(counter, 1);
    QVERIFY(!form->giveRightAnswer()); // the stars and the praise hold the screen

    Play::Answering answering(activity);
    QVERIFY2(answering.answer(questions - 1), qPrintable(Play::Answering::where()));
    QVERIFY(Forms::isLoaded(QStringLiteral("Welldone")));
    QCOMPARE(challenge, 0);
    const int challengeLength = questions;
    QVERIFY2(answering.answer(challengeLength), qPrintable(Play::Answering::where()));
    QVERIFY(Forms::isLoaded(QStringLiteral("Welldone")));
    QVERIFY(challenge > 0);
    TestSupport::flushUnloads();
    QStringList expected{QString::fromLatin1(activity.menu), QStringLiteral("Welldone")};
    expected.sort();
    // The stars of the answer before may still be playing over the menu.
    QStringList visible = TestSupport::visibleForms();
    visible.removeAll(QStringLiteral("Reward"));
    QCOMPARE(visible.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
}

QTEST_MAIN(TestRandomPlay)
#include "tst_randomplay.moc"
