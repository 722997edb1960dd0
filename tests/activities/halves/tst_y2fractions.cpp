// Halves and Quarters 1: the questions, the board, Check and Hint, and whole
// games from the menu through practice and the Challenge back to the menu.
#include "activities/halves/picturecell.h"
#include "activities/halves/y2fractions.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "activitytest.h"

#include <QAccessible>
#include <QFrame>
#include <QRadioButton>

using namespace Module1;

namespace {

QList<PictureCell*> shownCells(Y2fractions* form)
{
    QList<PictureCell*> cells;
    std::copy_if(form->Image1.begin(), form->Image1.end(), std::back_inserter(cells), [](PictureCell* c) { return c->isVisible(); });
    return cells;
}

// Between two questions: the stars play to their end, then the pause ends.
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

Y2fractions* openFromMenu() { return ActivityTest::open<Y2fractions>(QStringLiteral("Y2fractions")); }

// Start, then further questions until one asks for this many pictures.
Y2fractions* startWithTarget(int target)
{
    Y2fractions* form = openFromMenu();
    form->cmdstart->click();
    for (int i = 0; i < 200 && form->question.target != target; ++i)
        form->Timer3_Timer();
    return form;
}

struct Outcome {
    bool hint; // Hint pressed, or Check
    int target, chosen;
    QString message; // after the praise, for a right answer
    int timer;       // 1: the same question comes back; 3: a new one; 0: Check waits
};
} // namespace
Q_DECLARE_METATYPE(Outcome)

class TestY2fractions : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init()
    {
        world.fresh(5);
        version = QStringLiteral("0");
        yearlabel = QStringLiteral("Year 2");
        streak = 10;
    }

    // A count a multiple of its parts, never the last set or count; every set and every
    // possible count turn up, halves as often as quarters.
    void questionDraws()
    {
        const int draws = 2000;
        QSet<int> sets, halves, quarters;
        int halfQuestions = 0;
        Halves::Question last;
        for (int i = 0; i < draws; ++i) {
            const Halves::Question q = Halves::drawQuestion(Random::program(), last.set, last.howmany);
            QVERIFY(q.target * q.parts == q.howmany && q.set != last.set && q.howmany != last.howmany);
            sets << q.set;
            (q.parts == 2 ? halves : quarters) << q.howmany;
            halfQuestions += q.parts == 2;
            last = q;
        }
        QCOMPARE(sets, (QSet<int>{1, 2, 3, 4, 5, 6}));
        QCOMPARE(halves, (QSet<int>{2, 4, 6, 8, 10, 12, 14, 16}));
        QCOMPARE(quarters, (QSet<int>{4, 8, 12, 16}));
        QVERIFY(std::abs(2 * halfQuestions - draws) < draws * 3 / 20); // 3s are thrown away, not mapped
    }

    // The screen as it opens, its board by mouse and keyboard, then Print and Exit.
    void screenBoardAndPrint()
    {
        questions = 20;
        Y2fractions* form = openFromMenu();
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Y2fractions")});
        QVERIFY(questions == 10 && visits == 1 && form->Option1->isChecked() && form->Picture1->isVisible());
        QCOMPARE(activitytitle, QStringLiteral("Halves and Quarters 1"));
        QVERIFY(Forms::find<Grey>()->Timer2->isEnabled() && shownCells(form).isEmpty() && !form->Label8->isVisible());
        QVERIFY(!form->cmdcheck->isEnabled() && !form->cmdhint->isEnabled());

        // A 4 x 4 grid in index order of cells for small fingers, clear of the reward picture, the
        // options and the instruction, which holds the longest message.
        for (PictureCell* cell : form->Image1) {
            const QRect r(cell->mapTo(form, QPoint(0, 0)), cell->size());
            const int i = cell->index();
            QVERIFY(r.width() >= 64 && r.height() >= 64 && form->rect().contains(r));
            QVERIFY(!r.intersects(QRect(form->Image2->x(), 40, 288, 280)) && !r.intersects(form->Label1->geometry())
                    && !r.intersects(form->Frame1->geometry()));
            QVERIFY((i % 4 == 0 || form->Image1[i - 1]->geometry().right() < cell->x())
                    && (i < 4 || form->Image1[i - 4]->geometry().bottom() < cell->y()));
        }
        QCOMPARE(form->Label2->geometry(), form->Label1->geometry());
        form->Label2->setText(QStringLiteral("Smart cookie! You chose one quarter of the dinosaurs"));
        QVERIFY(form->Label2->heightForWidth(form->Label2->width()) <= form->Label2->height());

        form->cmdstart->click();
        for (int q = 0; q < 30; ++q, form->Timer3_Timer()) {
            const Halves::Question& question = form->question;
            QCOMPARE(shownCells(form), form->Image1.mid(0, question.howmany));
            QCOMPARE(shownCells(form).last()->picturePath(), question.pictureFile());
            QCOMPARE(form->Label1->text() + setname, question.instruction() + question.picname());
            // The fraction's own timer, then the per-set hook.
            QCOMPARE(form->Timer5->isEnabled() + 2 * form->Timer6->isEnabled(), question.parts / 2);
            question.parts == 2 ? form->Timer5_Timer() : form->Timer6_Timer();
            QVERIFY(form->Timer4->isEnabled());
        }
        PictureCell* cell = form->Image1[1];
        form->Label2->setText(QStringLiteral("old"));
        form->Timer4->setEnabled(true);
        cell->click(); // which stops the hook and clears the message
        QVERIFY(!form->Timer4->isEnabled() && form->Label2->text().isEmpty());
        QCOMPARE(cell->property("Appearance").toInt() + cell->property("BorderStyle").toInt(), 2);
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(cell);
        QVERIFY(spoken->state().checkable && spoken->state().checked);
        cell->click();
        QCOMPARE(cell->property("Appearance").toInt() + cell->property("BorderStyle").toInt(), 0);
        QVERIFY(!spoken->state().checked);

        // Space chooses a picture, Return on Check checks (the Tab round is the keyboard test's).
        QApplication::setActiveWindow(form);
        form->Image1[0]->setFocus();
        QTest::keyClick(form->Image1[0], Qt::Key_Space);
        QCOMPARE(form->selectedCount(), 1);
        form->cmdcheck->setFocus();
        QTest::keyClick(form->cmdcheck, Qt::Key_Return);
        QVERIFY(form->Label2->isVisible() && !form->cmdcheck->isEnabled());
        form->Image1[2]->click(); // a checked board no longer reacts
        QCOMPARE(form->selectedCount(), 1);

        // Timer2's quick check shortens the next pause once.
        form->Timer1_Timer(), form->Timer2_Timer();
        QVERIFY(!form->cmdcheck->isEnabled() && form->Timer3->interval() == Y2fractions::kQuickTimer3Ms);
        form->Timer3_Timer();
        QCOMPARE(form->Timer3->interval(), Y2fractions::kTimer3Ms);

        world.answer = MsgBox::Answer::No; // the worksheet itself is the worksheets' test
        form->cmdprint->setFocus();
        form->cmdprint->click();
        QCOMPARE(form->focusWidget(), form->cmdcheck);
        form->cmdexit->click();
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("y2Intro")});
    }

    void answerOutcomes_data()
    {
        QTest::addColumn<Outcome>("outcome");
        QTest::newRow("right, 5") << Outcome{false, 5, 5, "You chose one half of the ", 3};
        QTest::newRow("none") << Outcome{false, 3, 0, "You must choose some pictures!", 1};
        QTest::newRow("1 too many") << Outcome{false, 1, 2, "You should have clicked on 1 picture", 3};
        QTest::newRow("1 too few") << Outcome{false, 2, 1, "You should have clicked on 2 pictures", 3};
        QTest::newRow("hint, not enough") << Outcome{true, 2, 1, "You have not chosen enough!", 1};
        QTest::newRow("hint, just right") << Outcome{true, 2, 2, "You don't need a hint, you have the right answer!", 0};
        QTest::newRow("hint, too many") << Outcome{true, 2, 3, "You have chosen too many!", 1};
    }

    void answerOutcomes()
    {
        QFETCH(Outcome, outcome);
        const auto& [hint, target, chosen, message, timer] = outcome;
        Y2fractions* form = startWithTarget(target);
        const Halves::Question asked = form->question;
        for (int i = 0; i < chosen; ++i)
            form->Image1[i]->click();
        (hint ? form->cmdhint : form->cmdcheck)->click();
        const bool right = !hint && chosen == target;
        QCOMPARE(form->Label2->text(), right ? praisetext + asked.rightAnswer() : message);
        QVERIFY(form->Label2->text().contains(message) && form->Label2->isVisible() && !form->Label1->isVisible());
        QCOMPARE(counter, right ? 1 : 0);
        // The stars have the screen until the next question.
        QVERIFY(form->Image2->isVisible() == right && form->isEnabled() != right);
        QCOMPARE(form->Timer1->isEnabled() + 3 * form->Timer3->isEnabled(), timer);
        QCOMPARE(form->cmdcheck->isEnabled(), timer == 0);
        QVERIFY(!form->cmdhint->isEnabled() && !form->Image1[0]->isEnabled());
        if (timer == 0) {
            form->cmdcheck->click();
            QCOMPARE(counter, 1);
            return;
        }
        timer == 1 ? form->Timer1_Timer() : nextQuestion(form);
        QCOMPARE(form->question.set == asked.set, timer == 1);
        QCOMPARE(form->selectedCount(), timer == 1 ? chosen : 0);
        QVERIFY(form->isEnabled() && form->Label1->isVisible() && !form->Label2->isVisible());
        QVERIFY(form->cmdcheck->isEnabled() && form->cmdhint->isEnabled() && form->Image1[0]->isEnabled());
    }

    // A game played off the screen: 20 questions of practice, a slip and a hint costing nothing, to the
    // certificate; the Challenge, where a slip starts the same picture again; the certificate at the menu.
    void wholeGameByClicks()
    {
        Y2fractions* form = openFromMenu();
        QTest::mouseClick(form->Option2, Qt::LeftButton, {}, QPoint(8, form->Option2->height() / 2));
        const int run = 20;
        QCOMPARE(questions, run);
        QTest::mouseClick(form->cmdstart, Qt::LeftButton);
        const QString picture = picset;
        auto answer = [form](int extra) {
            const QList<PictureCell*> cells = shownCells(form);
            const int parts = form->Label1->text().contains(QLatin1String("one half")) ? 2 : 4;
            for (int i = 0; i < cells.size() / parts + extra; ++i)
                QTest::mouseClick(cells[i], Qt::LeftButton);
            QTest::mouseClick(form->cmdcheck, Qt::LeftButton);
        };
        int asked = 0;
        for (; !Forms::isLoaded(QStringLiteral("Welldone")) && asked < 40; ++asked) {
            if (asked == 3)
                QTest::mouseClick(form->cmdhint, Qt::LeftButton), form->Timer1_Timer();
            answer(asked == 4 ? 1 : 0);
            if (Forms::isLoaded(QStringLiteral("Welldone")))
                break;
            QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, counter * 20 / run));
            nextQuestion(form);
        }
        QCOMPARE(asked, run); // and the last answer, which ended the loop: one wrong, the rest right
        QCOMPARE(form->Image2->picturePath(), rewardFrameFile(picture, 20));
        QVERIFY(shownCells(form).isEmpty() && form->Label8->isVisible());
        QCOMPARE(form->Label8->text(), ActivityForm::readyText(QStringLiteral("10")));
        QTest::mouseClick(Forms::find<Welldone>()->cmdexit, Qt::LeftButton);
        QCOMPARE(challenge, 1);

        // The Challenge is as long as the year's run, and the options say so.
        QTest::mouseClick(form->cmdstart, Qt::LeftButton);
        QVERIFY(form->Option1->isChecked() && !form->Option2->isChecked());
        const QString challengePicture = picset;
        for (asked = 0; Forms::isLoaded(QStringLiteral("Y2fractions")) && asked < 40; ++asked) {
            QVERIFY(!form->cmdhint->isEnabled());
            answer(asked == 2 ? -1 : 0);
            if (asked == 2) {
                QVERIFY(challenge == 2 && counter == 0 && picset == challengePicture && !form->Image2->isVisible());
                QVERIFY(Forms::find<Reward>()->Label1->isVisible());
                Forms::find<Reward>()->Timer2_Timer();
            }
            TestSupport::flushUnloads();
            if (Forms::isLoaded(QStringLiteral("Y2fractions")))
                nextQuestion(form);
        }
        QCOMPARE(asked, streak + 3);
        QCOMPARE(TestSupport::visibleForms(), (QStringList{QStringLiteral("Welldone"), QStringLiteral("y2Intro")}));
        QCOMPARE(Forms::find<Welldone>()->Label1->text(), QStringLiteral("Congratulations!!! You have risen to the Challenge."));
    }
};

QTEST_MAIN(TestY2fractions)
#include "tst_y2fractions.moc"
