// Halves and Quarters 1: the board, Check and Hint, the practice run to the
// certificate, the Challenge back to the menu, and one whole game by clicks.
#include "activities/halves/picturecell.h"
#include "activities/halves/y2fractions.h"
#include "menus/activitymenu.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/printtarget.h"
#include "testsupport.h"

#include <QAccessible>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace Module1;

namespace {

const QString kChallengeWords = QStringLiteral("Congratulations!!! You have risen to the Challenge.");

QList<PictureCell*> shownCells(Y2fractions* form)
{
    QList<PictureCell*> cells;
    for (PictureCell* cell : form->Image1)
        if (cell->isVisible())
            cells << cell;
    return cells;
}

// Selects the first n pictures on the board.
void choose(Y2fractions* form, int n)
{
    for (int i = 0; i < n; ++i)
        form->Image1[i]->click();
}

// What comes between two questions: the stars to their end, then the pause
// timer.
void nextQuestion(Y2fractions* form)
{
    if (Grey* grey = Forms::find<Grey>(); grey && grey->Timer1->isEnabled()) {
        grey->Timer1_Timer();
        for (int frame = 0; frame < 60 && Forms::isLoaded(QStringLiteral("Reward")); ++frame)
            Forms::find<Reward>()->Timer1_Timer();
        QVERIFY(!Forms::isLoaded(QStringLiteral("Reward")));
    }
    form->Timer3_Timer();
}

bool fits(QLabel* label)
{
    const QRect needed = label->fontMetrics().boundingRect(QRect(0, 0, label->contentsRect().width(), 10000),
                                                           Qt::TextWordWrap, label->text());
    return needed.height() <= label->contentsRect().height();
}

QRect inForm(QWidget* control, Y2fractions* form)
{
    return QRect(control->mapTo(form, QPoint(0, 0)), control->size());
}

} // namespace

class TestY2fractions : public QObject {
    Q_OBJECT
private slots:
    void init();
    void opensWaitingForStart();
    void boardShowsTheQuestion();
    void checkOutcomes_data();
    void checkOutcomes();
    void hintOutcomes_data();
    void hintOutcomes();
    void practiceRunOpensTheCertificate_data();
    void practiceRunOpensTheCertificate();
    void challengeRun();
    void printAndExit();
    void playedByClicksOnly();

private:
    Y2fractions* openFromMenu();
    // Start, then new questions until one has this target (0: any).
    Y2fractions* startWithTarget(int target);
    TestSupport::World world;
};

void TestY2fractions::init()
{
    world.fresh(5);
    version = QStringLiteral("0");
    yearlabel = QStringLiteral("Year 2");
    streak = 10;
    questions = 20;
}

Y2fractions* TestY2fractions::openFromMenu()
{
    Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command5"))->click();
    TestSupport::flushUnloads();
    return Forms::find<Y2fractions>();
}

Y2fractions* TestY2fractions::startWithTarget(int target)
{
    Y2fractions* form = openFromMenu();
    form->cmdstart->click();
    for (int i = 0; i < 200 && target != 0 && form->question.target != target; ++i)
        form->Timer3_Timer();
    return form;
}

void TestY2fractions::opensWaitingForStart()
{
    const int visitsBefore = visits;
    Y2fractions* form = openFromMenu();
    QVERIFY(form && form->isVisible());
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Y2fractions")});
    QCOMPARE(form->windowTitle(), QStringLiteral("Year 2"));
    QCOMPARE(questions, 10);
    QVERIFY(form->Option1->isChecked() && form->Option1->isVisible());
    QCOMPARE(activitytitle, QStringLiteral("Halves and Quarters 1"));
    QCOMPARE(visits, visitsBefore + 1);
    QVERIFY(Forms::find<Grey>()->Timer2->isEnabled());
    QVERIFY(form->Picture1->isVisible());
    QCOMPARE(form->findChild<QLabel*>(QStringLiteral("Label6"))->text(),
             QStringLiteral("Choose either 10 or 20 questions. Answer this number of questions correctly to gain a "
                            "certificate."));
    QVERIFY(shownCells(form).isEmpty());
    QVERIFY(!form->Label1->isVisible() && !form->Label2->isVisible() && !form->Label8->isVisible());
    QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
    QVERIFY(form->cmdstart->isEnabled());
    QCOMPARE(form->Image2->objectName(), QStringLiteral("Image2(0)"));
    QCOMPARE(form->Timer3->interval(), 3000);

    // A 4 x 4 grid in index order, of cells big enough for small fingers,
    // clear of one another, of the reward picture (short or tall) and of the
    // messages over the board.
    const QRect shortPicture(form->Image2->x(), 80, 288, 240), tallPicture(form->Image2->x(), 40, 288, 320);
    for (PictureCell* cell : form->Image1) {
        const QRect r = inForm(cell, form);
        QVERIFY(r.width() >= 64 && r.height() >= 64);
        QVERIFY(form->rect().contains(r));
        QVERIFY(!r.intersects(shortPicture) && !r.intersects(tallPicture));
        QVERIFY(!r.intersects(form->Label1->geometry()) && !r.intersects(form->Frame1->geometry()));
        if (cell->index() % 4 != 0) {
            const QRect left = inForm(form->Image1[cell->index() - 1], form);
            QVERIFY(left.right() < r.left() && left.top() == r.top());
        }
        if (cell->index() >= 4)
            QVERIFY(inForm(form->Image1[cell->index() - 4], form).bottom() < r.top());
    }
    QCOMPARE(form->Label2->geometry(), form->Label1->geometry());
    QVERIFY(!form->Label1->geometry().intersects(tallPicture));
    for (const QString& longest : {QStringLiteral("Click on one quarter of the dinosaurs"),
                                   QStringLiteral("Smart cookie! You chose one quarter of the dinosaurs"),
                                   QStringLiteral("You don't need a hint, you have the right answer!")}) {
        form->Label2->setText(longest);
        QVERIFY2(fits(form->Label2), qPrintable(longest));
    }
    ActivityForm::showReadyMessage(form->Label8, QStringLiteral("20"));
    QVERIFY(fits(form->Label8));
}

void TestY2fractions::boardShowsTheQuestion()
{
    Y2fractions* form = startWithTarget(0);
    for (int q = 0; q < 40; ++q, form->Timer3_Timer()) {
        const Halves::Question& question = form->question;
        QCOMPARE(shownCells(form).size(), question.howmany);
        QCOMPARE(shownCells(form), form->Image1.mid(0, question.howmany));
        QCOMPARE(form->Label1->text(), question.instruction());
        QVERIFY(form->Label1->isVisible() && !form->Picture1->isVisible());
        QCOMPARE(setname, question.picname());
        QCOMPARE(form->lastset, question.set);
        QCOMPARE(form->Timer5->isEnabled(), question.parts == 2);
        QCOMPARE(form->Timer6->isEnabled(), question.parts == 4);
        // The per-set hook follows the fraction's timer.
        if (question.parts == 2)
            form->Timer5_Timer();
        else
            form->Timer6_Timer();
        QVERIFY(form->Timer4->isEnabled() && !form->Timer5->isEnabled() && !form->Timer6->isEnabled());
        if (q % 2 == 0)
            form->Timer4_Timer();
        QCOMPARE(form->Timer4->isEnabled(), q % 2 == 1);
        for (PictureCell* cell : shownCells(form)) {
            QCOMPARE(cell->picturePath(), question.pictureFile());
            QCOMPARE(cell->appearance(), 0);
            QCOMPARE(cell->borderStyle(), 0);
            QVERIFY(cell->isEnabled());
        }
    }

    // A click stops the per-set hook and clears the message.
    QVERIFY(form->Timer4->isEnabled());
    form->Label2->setText(QStringLiteral("old message"));
    PictureCell* cell = form->Image1[1];
    cell->click();
    QVERIFY(!form->Timer4->isEnabled());
    QCOMPARE(form->Label2->text(), QString());
    QCOMPARE(cell->property("Appearance").toInt(), 1);
    QCOMPARE(cell->property("BorderStyle").toInt(), 1);
    QCOMPARE(form->selectedCount(), 1);

    // Screen readers hear the picture's name and whether it is chosen.
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(cell);
    QVERIFY(spoken);
    QCOMPARE(spoken->text(QAccessible::Name), form->question.picname());
    QVERIFY(spoken->state().checkable && spoken->state().checked);
    cell->click();
    QCOMPARE(cell->appearance(), 0);
    QVERIFY(!spoken->state().checked);

    // Keyboard: Tab from Check reaches the first picture, Space chooses it.
    QApplication::setActiveWindow(form);
    form->cmdcheck->setFocus();
    QTest::keyClick(form->cmdcheck, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form->Image1[0]);
    QTest::keyClick(form->Image1[0], Qt::Key_Space);
    QCOMPARE(form->Image1[0]->appearance(), 1);
    QTest::keyClick(form->Image1[0], Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form->Image1[1]);

    // After Check the board no longer reacts.
    form->cmdcheck->click();
    const int chosen = form->selectedCount();
    form->Image1[2]->click();
    QCOMPARE(form->selectedCount(), chosen);
}

void TestY2fractions::checkOutcomes_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("message"); // praise comes before a right answer's words
    QTest::addColumn<bool>("pause");      // Timer3: a new question follows; otherwise Timer1
    QTest::newRow("right, one picture") << 1 << 1 << "You chose one " << true;
    QTest::newRow("right, five pictures") << 5 << 5 << "You chose one half of the " << true;
    QTest::newRow("none chosen") << 3 << 0 << "You must choose some pictures!" << false;
    QTest::newRow("one too many") << 1 << 2 << "You should have clicked on 1 picture" << true;
    QTest::newRow("one too few") << 3 << 2 << "You should have clicked on 3 pictures" << true;
    QTest::newRow("too many") << 2 << 7 << "You should have clicked on 2 pictures" << true;
}

void TestY2fractions::checkOutcomes()
{
    QFETCH(int, target);
    QFETCH(int, chosen);
    QFETCH(QString, message);
    QFETCH(bool, pause);
    Y2fractions* form = startWithTarget(target);
    QCOMPARE(form->question.target, target);
    const bool right = chosen == target;
    choose(form, chosen);
    form->Timer5->setEnabled(true);
    form->cmdcheck->click();

    QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible());
    if (right) {
        QCOMPARE(form->Label2->text(), praisetext + form->question.rightAnswer());
        QVERIFY(form->Label2->text().contains(message));
        QCOMPARE(counter, 1);
        QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picset, 2));
        QVERIFY(form->Image2->isVisible());
        QVERIFY(!form->isEnabled()); // the stars have the screen until the next question
        QVERIFY(Forms::find<Grey>()->Timer1->isEnabled());
    } else {
        QCOMPARE(form->Label2->text(), message);
        QCOMPARE(counter, 0);
        QVERIFY(form->isEnabled() && !form->Image2->isVisible());
    }
    QCOMPARE(form->Timer3->isEnabled(), pause);
    QCOMPARE(form->Timer1->isEnabled(), !pause);
    QVERIFY(!form->Timer5->isEnabled());
    QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled() && !form->Image1[0]->isEnabled());

    const Halves::Question asked = form->question;
    if (pause) {
        nextQuestion(form);
        QVERIFY(form->question.set != asked.set);
        QCOMPARE(form->selectedCount(), 0);
    } else {
        form->Timer1_Timer(); // the same question, the marks kept
        QCOMPARE(form->question.set, asked.set);
        QCOMPARE(form->selectedCount(), chosen);
    }
    QVERIFY(form->isEnabled() && form->Label1->isVisible() && !form->Label2->isVisible());
    QVERIFY(form->cmdcheck->isEnabled() && form->cmdhint->isEnabled() && form->Image1[0]->isEnabled());
    QVERIFY(!form->Timer1->isEnabled() && !form->Timer3->isEnabled());
    QCOMPARE(counter, right ? 1 : 0);
}

void TestY2fractions::hintOutcomes_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("message");
    QTest::newRow("not enough") << 1 << "You have not chosen enough!";
    QTest::newRow("just right") << 2 << "You don't need a hint, you have the right answer!";
    QTest::newRow("too many") << 3 << "You have chosen too many!";
}

void TestY2fractions::hintOutcomes()
{
    QFETCH(int, chosen);
    QFETCH(QString, message);
    Y2fractions* form = startWithTarget(2);
    choose(form, chosen);
    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), message);
    QVERIFY(form->Label2->isVisible() && !form->Label1->isVisible());
    QVERIFY(!form->cmdhint->isEnabled() && !form->Image1[0]->isEnabled());
    QCOMPARE(counter, 0);
    if (chosen == 2) {
        // No timer: the child goes on with Check, which is ready.
        QVERIFY(!form->Timer1->isEnabled());
        QVERIFY(form->cmdcheck->isEnabled());
        QVERIFY(form->cmdcheck->hasFocus() || QApplication::focusWidget() == nullptr);
        form->cmdcheck->click();
        QCOMPARE(counter, 1);
        return;
    }
    QVERIFY(form->Timer1->isEnabled() && !form->cmdcheck->isEnabled());
    form->Timer1_Timer();
    QVERIFY(form->Label1->isVisible() && form->cmdhint->isEnabled() && form->Image1[0]->isEnabled());
    QCOMPARE(form->selectedCount(), chosen);

    // The quick check of Timer2 checks at once and shortens the next pause once.
    form->Timer2_Timer();
    QCOMPARE(form->Label2->text(), QStringLiteral("You should have clicked on 2 pictures"));
    QCOMPARE(form->Timer3->interval(), 500);
    form->Timer3_Timer();
    QCOMPARE(form->Timer3->interval(), 3000);
}

void TestY2fractions::practiceRunOpensTheCertificate_data()
{
    QTest::addColumn<bool>("twenty");
    QTest::newRow("10 questions") << false;
    QTest::newRow("20 questions") << true;
}

// Right answers, with wrong ones and hints in between, which cost nothing in
// practice; the reward picture grows with each; the last one says the child
// is ready and opens the certificate; leaving it arms the Challenge.
void TestY2fractions::practiceRunOpensTheCertificate()
{
    QFETCH(bool, twenty);
    Y2fractions* form = openFromMenu();
    if (twenty)
        form->Option2->click();
    const int run = twenty ? 20 : 10;
    QCOMPARE(questions, run);
    form->cmdstart->click();
    const QString picture = picset;
    for (int right = 1; right <= run; ++right) {
        if (right % 3 == 0) { // a hint and a wrong answer first
            choose(form, form->question.target + 1);
            form->cmdhint->click();
            form->Timer1_Timer();
            form->cmdcheck->click();
            nextQuestion(form);
        }
        choose(form, form->question.target);
        form->cmdcheck->click();
        QCOMPARE(picset, picture);
        if (right == run)
            break;
        QCOMPARE(counter, right);
        QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picset, right * 20 / run));
        nextQuestion(form);
    }
    QCOMPARE(counter, 0);
    QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picset, 20));
    QVERIFY(shownCells(form).isEmpty());
    QCOMPARE(form->Label1->text(), QString());
    QVERIFY(form->Label8->isVisible());
    QCOMPARE(form->Label8->text(),
             QStringLiteral("  You are now ready for the Challenge.  10 correct answers on the run, with no hints. "
                            "Click Start to take the Challenge."));
    QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());
    QVERIFY(!form->Timer3->isEnabled());
    auto* certificate = Forms::find<Welldone>();
    QVERIFY(certificate && certificate->isVisible());
    QVERIFY(certificate->Label1->text() != kChallengeWords);
    certificate->cmdexit->click();
    QCOMPARE(challenge, 1);

    form->cmdstart->click();
    QVERIFY(!form->Label8->isVisible() && !form->cmdhint->isEnabled() && form->cmdcheck->isEnabled());
}

void TestY2fractions::challengeRun()
{
    Y2fractions* form = openFromMenu();
    challenge = 1;
    form->cmdstart->click();
    QVERIFY(!form->cmdhint->isEnabled());
    const QString picture = picset;
    choose(form, form->question.target);
    form->cmdcheck->click();
    nextQuestion(form);
    QVERIFY(!form->cmdhint->isEnabled());
    form->cmdcheck->click(); // nothing chosen: the same question comes back
    form->Timer1_Timer();
    QVERIFY(!form->cmdhint->isEnabled());
    QCOMPARE(counter, 1);

    // A wrong answer: the retry screen, the same picture from nothing, a new question.
    choose(form, form->question.target + 1);
    form->cmdcheck->click();
    QCOMPARE(challenge, 2);
    QCOMPARE(counter, 0);
    QCOMPARE(picset, picture);
    QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, 0));
    QVERIFY(!form->Image2->isVisible());
    auto* retry = Forms::find<Reward>();
    QVERIFY(retry && retry->isVisible() && retry->Label1->isVisible());
    QVERIFY(form->Timer3->isEnabled());
    QCOMPARE(form->Label2->text(), Halves::shouldHaveClicked(form->question.target));
    retry->Timer2_Timer();
    nextQuestion(form);
    QVERIFY(!form->cmdhint->isEnabled());

    // Ten right answers in a row win it: back to the menu, then the certificate.
    for (int right = 1; right <= questions; ++right) {
        choose(form, form->question.target);
        form->cmdcheck->click();
        if (right < questions) {
            QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, right * 2));
            nextQuestion(form);
            QVERIFY(!form->cmdhint->isEnabled());
        }
    }
    TestSupport::flushUnloads();
    QVERIFY(!Forms::isLoaded(QStringLiteral("Y2fractions")));
    QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y2Intro")}));
    QCOMPARE(Forms::find<Welldone>()->Label1->text(), kChallengeWords);
}

void TestY2fractions::printAndExit()
{
    QTemporaryDir pdfs;
    PrintTarget::setPdfFolder(pdfs.path());
    Y2fractions* form = startWithTarget(0);
    world.answer = MsgBox::Answer::No;
    form->cmdprint->click();
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
    QCOMPARE(world.messages[0].title, QStringLiteral("Year 2"));
    QCOMPARE(world.messages[0].buttons, MsgBox::Buttons::YesNo);
    QVERIFY(QDir(pdfs.path()).isEmpty());
    world.answer = MsgBox::Answer::Yes;
    form->cmdprint->click();
    QCOMPARE(QDir(pdfs.path()).entryList({QStringLiteral("*.pdf")}).size(), 1);
    QCOMPARE(form->focusWidget(), form->cmdcheck);
    PrintTarget::setPdfFolder(QString());

    form->cmdexit->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("y2Intro")});
}

// A whole game as a child plays it: the menu's button, Start, pictures and
// Check by mouse until the certificate, its exit, then the Challenge with
// one slip, and its certificate back at the menu. What to click is read off
// the screen: the instruction and the pictures shown.
void TestY2fractions::playedByClicksOnly()
{
    Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command5"))->click();
    TestSupport::flushUnloads();
    Y2fractions* form = Forms::find<Y2fractions>();
    QTest::mouseClick(form->cmdstart, Qt::LeftButton);
    auto answer = [form](int extra) {
        const QList<PictureCell*> cells = shownCells(form);
        const int parts = form->Label1->text().contains(QLatin1String("one half")) ? 2 : 4;
        for (int i = 0; i < cells.size() / parts + extra; ++i)
            QTest::mouseClick(cells[i], Qt::LeftButton);
        QTest::mouseClick(form->cmdcheck, Qt::LeftButton);
    };
    int asked = 0;
    for (; !Forms::isLoaded(QStringLiteral("Welldone")) && asked < 30; ++asked) {
        answer(asked == 4 ? 1 : 0);
        if (!Forms::isLoaded(QStringLiteral("Welldone")))
            nextQuestion(form);
    }
    QCOMPARE(asked, 11); // ten right, one wrong
    QVERIFY(form->Label8->text().startsWith(QLatin1String("  You are now ready for the Challenge.  10 ")));
    QTest::mouseClick(Forms::find<Welldone>()->cmdexit, Qt::LeftButton);
    TestSupport::flushUnloads();

    QTest::mouseClick(form->cmdstart, Qt::LeftButton);
    QVERIFY(!form->cmdhint->isEnabled());
    for (asked = 0; Forms::isLoaded(QStringLiteral("Y2fractions")) && asked < 30; ++asked) {
        answer(asked == 2 ? -1 : 0);
        if (asked == 2) {
            QVERIFY(Forms::find<Reward>()->Label2->isVisible());
            Forms::find<Reward>()->Timer2_Timer();
        }
        TestSupport::flushUnloads();
        if (Forms::isLoaded(QStringLiteral("Y2fractions")))
            nextQuestion(form);
    }
    QCOMPARE(asked, 13); // two right, one wrong, then ten right
    QCOMPARE(challenge, 2);
    QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y2Intro")}));
    QCOMPARE(Forms::find<Welldone>()->Label1->text(), kChallengeWords);
}

QTEST_MAIN(TestY2fractions)
#include "tst_y2fractions.moc"
