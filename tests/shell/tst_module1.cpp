#include "rewards/grey.h"
#include "rewards/reward.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/activityform.h"
#include "testsupport.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

// An activity screen with nothing but the common controls.
class Activity : public ActivityForm {
    Q_OBJECT
public:
    explicit Activity(const QString& name = QStringLiteral("Activity")) : ActivityForm(name) {}
};

class TestModule1 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }
    void praiseGivesOnlyTheTwelvePhrases();
    void rewardFramesEndOnTwenty_data();
    void rewardFramesEndOnTwenty();
    void pickpictureChoosesSetAndPlace();
    void aRepeatedChallengeKeepsThePicture();
    void nextpicturePausesTheScreenUntilTheLastAnswer();
    void setupformLaysOutTheActivity();
    void hcfCountsDownFromB_data();
    void hcfCountsDownFromB();
    void randomdecimalNeverEndsInZero();
    void showwelldoneAndShowrewardLoadAfresh();

private:
    TestSupport::World world;
};

void TestModule1::praiseGivesOnlyTheTwelvePhrases()
{
    QSet<QString> seen;
    for (int i = 0; i < 2000; ++i) {
        praise();
        seen.insert(praisetext);
    }
    QSet<QString> expected;
    for (const char* p : kPraise)
        expected.insert(QString::fromLatin1(p));
    QCOMPARE(seen, expected);
    QVERIFY(expected.contains("Yipee! "));
    QCOMPARE(expected.size(), 12);
    for (const QString& p : expected)
        QVERIFY(p.endsWith("! ") && !p.endsWith("  "));
}

void TestModule1::rewardFramesEndOnTwenty_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QStringList>("frames");
    QStringList even, all;
    for (int f = 2; f <= 20; f += 2)
        even << QString("%1").arg(f, 2, 10, QChar('0'));
    for (int f = 1; f <= 20; ++f)
        all << QString("%1").arg(f, 2, 10, QChar('0'));
    QTest::newRow("10 questions") << 10 << even;
    QTest::newRow("20 questions") << 20 << all;
}

void TestModule1::rewardFramesEndOnTwenty()
{
    QFETCH(int, length);
    QFETCH(QStringList, frames);
    Activity form;
    questions = length;
    pickpicture(form);
    QVERIFY(!form.Image2->isVisible());
    QCOMPARE(form.Image2->picturePath(), "jpg2\\" + picset + "00.jpg");
    QStringList shown;
    for (int answer = 1; answer <= length; ++answer) {
        counter = answer;
        nextpicture(form);
        shown << form.Image2->picturePath().mid(5 + picset.size(), 2);
        QVERIFY(form.Image2->isVisibleTo(&form));
        QCOMPARE(form.Image2->picturePath(), rewardFrameFile(picset, frames[answer - 1].toInt()));
    }
    QCOMPARE(shown, frames);
}

void TestModule1::pickpictureChoosesSetAndPlace()
{
    Activity plain;
    Activity y3("y3fract3");
    QSet<QString> sets, y3sets;
    for (int i = 0; i < 3000; ++i) {
        challenge = i % 2; // a new run, in practice or in the Challenge
        pickpicture(plain);
        sets.insert(picset);
        QCOMPARE(counter, 0);
        const bool tall = picset == "thermo" || picset == "cake" || picset == "greenb";
        QCOMPARE(plain.Image2->y(), Twips::toPixels(tall ? 600 : 1200));
        pickpicture(y3);
        y3sets.insert(picset);
    }
    QCOMPARE(sets.size(), 10);
    QCOMPARE(y3sets.size(), 9);
    QVERIFY(!y3sets.contains("sphfra"));
}

void TestModule1::aRepeatedChallengeKeepsThePicture()
{
    Activity form;
    challenge = 1;
    pickpicture(form);
    const QString first = picset;
    const int top = form.Image2->y();
    questions = 10;
    counter = 3;
    nextpicture(form);
    challenge = 2; // a wrong answer in the Challenge
    for (int i = 0; i < 50; ++i) {
        pickpicture(form);
        QCOMPARE(picset, first);
        QCOMPARE(form.Image2->y(), top);
        QCOMPARE(counter, 0);
        QCOMPARE(form.Image2->picturePath(), rewardFrameFile(first, 0));
        QVERIFY(!form.Image2->isVisibleTo(&form));
    }
}

void TestModule1::nextpicturePausesTheScreenUntilTheLastAnswer()
{
    Activity form;
    form.show();
    questions = 10;
    pickpicture(form);
    form.cmdhint->setEnabled(true);
    counter = 9;
    nextpicture(form);
    QVERIFY(!form.cmdhint->isEnabled());
    QVERIFY(!form.isEnabled()); // until the next question gives it back
    Grey* grey = Forms::find<Grey>();
    QVERIFY(grey && grey->Timer1->isEnabled());
    QVERIFY(!grey->isVisible());

    grey->Timer1->setEnabled(false);
    form.setEnabled(true);
    counter = 10; // the last answer: no stars, the run is over
    nextpicture(form);
    QVERIFY(form.isEnabled());
    QVERIFY(!grey->Timer1->isEnabled());
    QCOMPARE(form.Image2->picturePath(), rewardFrameFile(picset, 20));
}

void TestModule1::setupformLaysOutTheActivity()
{
    Activity form;
    questions = 10;
    setupform(form);
    QCOMPARE(questions, 20);
    QCOMPARE(form.size(), QSize(632, 434)); // ScaleWidth 9480 x ScaleHeight 6510
    QCOMPARE(form.backColour(), QColor(48, 133, 214));
    const QList<QPair<QPushButton*, int>> lefts = {
        {form.cmdprint, 120}, {form.cmdstart, 2067}, {form.cmdcheck, 4014}, {form.cmdhint, 5961}, {form.cmdexit, 7910}};
    for (const auto& [button, left] : lefts)
        QCOMPARE(button->pos(), QPoint(Twips::toPixels(left), Twips::toPixels(280)));
    QCOMPARE(form.Picture1->x(), Twips::toPixels(1300));
    QCOMPARE(form.cmdprint->text(), QString("Print A Worksheet"));
    QCOMPARE(form.cmdcheck->toolTip(), QString("Check Your Answer"));
    QCOMPARE(form.cmdstart->toolTip(), QString("Press To Start"));
    QCOMPARE(form.cmdhint->toolTip(), QString("Get Some Help"));
    QCOMPARE(form.cmdexit->toolTip(), QString("Goodbye"));
    QCOMPARE(form.cmdprint->toolTip(), QString("Print A Worksheet"));
    // Centred on the display, by its outer size of 9600 x 7200 twips.
    const QRect display = QGuiApplication::primaryScreen()->geometry();
    QCOMPARE(form.x(), display.x() + Twips::toPixels(Twips::fromPixels(display.width()) / 2 - 4800));
    QCOMPARE(form.y(), display.y() + Twips::toPixels(Twips::fromPixels(display.height()) / 2 - 3600));
    QVERIFY(!QGuiApplication::overrideCursor()); // the hourglass is gone again
}

void TestModule1::hcfCountsDownFromB_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("result");
    QTest::newRow("12, 18") << 12 << 18 << 6;
    QTest::newRow("5, 0") << 5 << 0 << 0;
    QTest::newRow("-4, -6") << -4 << -6 << 2;
    QTest::newRow("11, 4 coprime") << 11 << 4 << 1;
    QTest::newRow("0, 7") << 0 << 7 << 7;
    QTest::newRow("99, 9") << 99 << 9 << 9;
}

void TestModule1::hcfCountsDownFromB()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, result);
    QCOMPARE(hcf(a, b), result);
    // Over every pair the screens use, the result divides both and nothing
    // larger does.
    for (int x = 1; x <= 99; ++x)
        for (int y = 1; y <= 10; ++y) {
            const int h = hcf(x, y);
            QVERIFY(x % h == 0 && y % h == 0);
            QCOMPARE(hcf(x / h, y / h), 1);
        }
}

void TestModule1::randomdecimalNeverEndsInZero()
{
    const QList<QPair<int, int>> cases = {{3, 1}, {3, 2}, {3, 3}, {5, 7}, {1, 0}};
    for (const auto& [whole, places] : cases) {
        const int digits = (places == 1 || places == 2) ? places : 3;
        QSet<QChar> seen;
        for (int seed = 0; seed < 2000; ++seed) {
            Random::fixSeed(seed);
            const QString text = randomdecimal(whole, places);
            QCOMPARE(text.section('.', 0, 0), QString::number(whole));
            const QString after = text.section('.', 1);
            QCOMPARE(after.size(), digits);
            for (QChar c : after) {
                QVERIFY(c >= '1' && c <= '9');
                seen.insert(c);
            }
        }
        QCOMPARE(seen.size(), 9);
    }
}

void TestModule1::showwelldoneAndShowrewardLoadAfresh()
{
    showwelldone("Halves and Quarters 2");
    QPointer<Form> first = Forms::find("Welldone");
    QVERIFY(first && first->isVisible());
    showwelldone("Halves and Quarters 2"); // while it is open: built again
    QVERIFY(Forms::find("Welldone") != first.data());
    TestSupport::flushUnloads();
    QVERIFY(first.isNull());
    QVERIFY(Forms::find("Welldone")->isVisible());

    showreward();
    Reward* reward = Forms::find<Reward>();
    QVERIFY(reward && reward->isVisible());
    QCOMPARE(retry, 0); // the retry screen took the message and cleared the flag
    QVERIFY(reward->Label1->isVisibleTo(reward));
    QVERIFY(reward->Timer2->isEnabled());
    QVERIFY(!reward->Timer1->isEnabled());
}

QTEST_MAIN(TestModule1)
#include "tst_module1.moc"
