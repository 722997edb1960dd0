// The cycle every activity runs on, tried once with a small stand-in board.
#include "kit/kitboard.h"
#include "kit/kitscreen.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWindow>
#include <QtTest>

using namespace Module1;

namespace {

// A board whose next verdict the test chooses; each question has a number.
class ProbeBoard : public KitBoard {
public:
    ProbeBoard()
    {
        box->setObjectName(QStringLiteral("Text1"));
        box->setAccessibleName(QStringLiteral("your answer"));
    }
    void pose(Random::Source&) override { ++asked; }
    QString instruction() const override { return QStringLiteral("Question %1").arg(asked); }
    Verdict check() override { return next; }
    QString hint() override { ++hints; return QStringLiteral("Count the parts."); }
    void setAnswering(bool on) override { answering = on; }
    void focusAnswer() override { box->setFocus(); }
    void giveRightAnswer() override { next = Verdict::right(QStringLiteral("given")); }

    QLineEdit* box = new QLineEdit(this);
    Verdict next = Verdict::right(QStringLiteral("1/2 of 4 is 2."));
    int asked = 0, hints = 0;
    bool answering = false;
};

// The stand-in opens from the Year 2 menu's second button.
const QString kScreen = QStringLiteral("Y2fractions2");

class ProbeScreen : public KitScreen {
public:
    ProbeScreen() : KitScreen(kScreen, new ProbeBoard) {}
    ProbeBoard* probe() const { return static_cast<ProbeBoard*>(board()); }
};

ProbeScreen* openFromMenu()
{
    Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    TestSupport::flushUnloads();
    return static_cast<ProbeScreen*>(Forms::find(kScreen));
}

// The stars play out, then the pause before the next question ends.
void nextQuestion(ProbeScreen* form)
{
    if (Grey* grey = Forms::find<Grey>(); grey && grey->Timer1->isEnabled()) {
        grey->Timer1_Timer();
        for (int frame = 0; frame < 60 && Forms::isLoaded(QStringLiteral("Reward")); ++frame)
            Forms::find<Reward>()->Timer1_Timer();
    }
    if (form->Timer3->isEnabled())
        form->Timer3_Timer();
}

void answer(ProbeScreen* form, const Verdict& verdict)
{
    form->probe()->next = verdict;
    form->cmdcheck->click();
}

// Right answers in a row, each moving on to the next question.
void answerRight(ProbeScreen* form, int times)
{
    for (int right = 1; right <= times; ++right) {
        answer(form, Verdict::right(QStringLiteral("right")));
        TestSupport::flushUnloads();
        nextQuestion(form);
    }
}

} // namespace

class TestRun : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init()
    {
        world.fresh(3);
        version = QStringLiteral("0");
        yearlabel = QStringLiteral("Year 2");
        streak = 10;
        Forms::registerForm(kScreen, [] { return new ProbeScreen; });
    }

    // In practice slips and hints cost nothing; the tenth right answer brings the certificate.
    void practiceToTheCertificate()
    {
        ProbeScreen* form = openFromMenu();
        QCOMPARE(activitytitle, QStringLiteral("Halves and Quarters 2"));
        QVERIFY(form->Picture1->isVisible() && !form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
        QCOMPARE(questions, 20);
        form->Option1->click();
        QCOMPARE(questions, 10);
        form->cmdstart->click();
        QVERIFY(!form->Picture1->isVisible() && form->Frame1->isVisible() && form->Option1->isChecked());
        QCOMPARE(form->Label1->text(), QStringLiteral("Question 1"));
        const QString picture = picset;

        form->cmdhint->click();
        QVERIFY(form->Label2->isVisible() && form->Label2->text() == QStringLiteral("Count the parts."));
        answer(form, Verdict::notCheckable(QStringLiteral("You must colour some parts!")));
        QVERIFY(form->Timer1->isEnabled() && form->probe()->answering);
        form->Timer1_Timer();
        QVERIFY(form->Label1->isVisible() && form->probe()->asked == 1);
        answer(form, Verdict::wrong(QStringLiteral("One quarter is 1 part.")));
        QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. One quarter is 1 part."));
        QVERIFY(!form->probe()->answering && !form->cmdcheck->isEnabled() && counter == 0);
        // Enter moves on at once; a second Check in the pause does nothing.
        form->cmdcheck_Click();
        QCOMPARE(counter, 0);
        QTest::keyClick(form->probe()->box, Qt::Key_Return);
        QVERIFY(form->probe()->asked == 2 && !form->Timer3->isEnabled() && form->probe()->answering);
        QCOMPARE(form->probe()->hints, 1);

        for (int right = 1; right <= 10; ++right) {
            answer(form, Verdict::right(QStringLiteral("1/2 of 4 is 2.")));
            if (right < 10) {
                QCOMPARE(form->Label2->text(), praisetext + QStringLiteral("1/2 of 4 is 2."));
                QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, right * 2));
                QVERIFY(!form->isEnabled()); // the stars have the screen
                nextQuestion(form);
                QVERIFY(form->isEnabled() && form->cmdhint->isEnabled());
            }
        }
        QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, 20));
        QVERIFY(Forms::isLoaded(QStringLiteral("Welldone")) && counter == 0 && challenge == 0);
        QVERIFY(form->Label8->isVisible() && !form->Frame2->isVisible());
        QCOMPARE(form->Label8->text(), ActivityForm::readyText(QStringLiteral("10")));
        QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
    }

    // A Challenge without hints, failed to the retry screen, begun again and won back to the menu.
    void challengeFailedThenWon()
    {
        ProbeScreen* form = openFromMenu();
        challenge = 1;
        questions = 10;
        form->cmdstart->click();
        QVERIFY(!form->cmdhint->isEnabled());
        form->cmdhint_Click(); // even called directly, no hint in the Challenge
        QCOMPARE(form->probe()->hints, 0);
        answerRight(form, 1);
        QVERIFY(counter == 1 && !form->cmdhint->isEnabled());
        const QString picture = picset;

        answer(form, Verdict::wrong(QStringLiteral("wrong")));
        QVERIFY(challenge == 2 && counter == 0 && picset == picture && !form->Image2->isVisible());
        auto* retry = Forms::find<Reward>();
        QVERIFY(retry && retry->Label1->isVisible() && retry->Timer2->isEnabled());
        retry->Timer2_Timer();
        TestSupport::flushUnloads();
        nextQuestion(form);

        answerRight(form, 9);
        answer(form, Verdict::right(QStringLiteral("right")));
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y2Intro")}));
        QCOMPARE(Forms::find<Welldone>()->Label1->text(), QStringLiteral("Congratulations!!! You have risen to the Challenge."));
    }

    // Exit and the close box lead back to the menu.
    void waysBackToTheMenu()
    {
        ProbeScreen* form = openFromMenu();
        form->cmdstart->click();
        form->cmdexit->click();
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("y2Intro")});

        form = openFromMenu();
        TestSupport::pressCloseBox(form);
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("y2Intro")});
        QVERIFY(!Forms::programEnded());
    }

    // "10 Questions" after 15 right answers of 20 leaves the run at 20; before that it is taken.
    void runLengthNeverBelowTheCount()
    {
        ProbeScreen* form = openFromMenu();
        form->cmdstart->click();
        QCOMPARE(questions, 20);
        answerRight(form, 15);
        form->Option1->click();
        QVERIFY(questions == 20 && counter == 15 && form->Option2->isChecked() && !form->Option1->isChecked());
        form->cmdstart->click();
        form->Option1->click();
        QVERIFY(questions == 10 && form->Option1->isChecked());
    }
};

QTEST_MAIN(TestRun)
#include "tst_run.moc"
