// Halves, Quarters, Thirds and Tenths 1 played with the keyboard alone, from its menu.
#include "activities/halves/picturecell.h"
#include "activities/partsofset/partsofsetboard.h"
#include "activities/partsofset/y3fract1.h"
#include "runtime/keyboard.h"
#include "activitytest.h"

using namespace Module1;

namespace {
void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
} // namespace

class TestY3fract1 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(7); }

    // Start; Enter with nothing chosen keeps the question; the hint frames the
    // groups and counts the choice; arrows and Space choose the answer; Enter checks.
    void oneQuestionByKeyboard()
    {
        y3fract1* form = nullptr;
        auto* board = ActivityTest::start<PartsOfSetBoard>(QStringLiteral("y3fract1"), &form);
        QVERIFY(board);
        const PartsOfSet::Question q = board->question();
        QCOMPARE(QApplication::focusWidget(), board->Image1[0]);
        // The board is one Tab stop, held by the cursor's picture.
        int stops = 0;
        for (PictureCell* cell : board->Image1)
            stops += cell->isVisibleTo(board) && Keyboard::takesTab(cell);
        QCOMPARE(stops, 1);
        press(Qt::Key_Return);
        QCOMPARE(form->Label2->text(), QStringLiteral("You must choose some pictures!"));

        // Two pictures too many, or one too few when that leaves none: the hint says so.
        const int first = q.target() + 2 <= q.howmany ? q.target() + 2 : q.target() - 1;
        for (int i = 0; i < first; ++i)
            press(Qt::Key_Space), press(Qt::Key_Right);
        QCOMPARE(board->chosenCount(), first);
        QCOMPARE(ActivityTest::hint(form), PartsOfSet::hint(q));
        QCOMPARE(board->Label9->text(), PartsOfSet::progress(q, first));
        QVERIFY(board->Label9->isVisible());
        const int each = q.howmany / q.bottom;
        for (PictureCell* cell : board->Image1.mid(0, q.howmany)) {
            QVERIFY(cell->groupColour().isValid());
            QCOMPARE(cell->groupAsked(), cell->index() / each < q.top);
            QCOMPARE(cell->groupColour() == board->Image1[0]->groupColour(), cell->index() < each);
        }

        // Back to the start (up a row, then left), leaving out what is too many or choosing what is missing.
        board->focusAnswer();
        while (board->cursor() >= PartsOfSet::kRowLength)
            press(Qt::Key_Up);
        while (board->cursor() > 0)
            press(Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), board->Image1[0]);
        for (int i = 0; i < q.howmany; ++i) {
            if (board->Image1[i]->isSelected() != (i < q.target()))
                press(Qt::Key_Space);
            press(Qt::Key_Right);
        }
        QCOMPARE(board->Label9->text(), PartsOfSet::progress(q, q.target()));
        press(Qt::Key_Enter);
        ActivityTest::expectPraised(form, q.rightAnswer());
        QVERIFY(!board->Label9->isVisible());
        form->setEnabled(true);
        press(Qt::Key_Return); // moves on at once
        QVERIFY(!(board->question() == q) && board->chosenCount() == 0 && form->Label1->isVisible());
        QVERIFY(!board->Image1[0]->groupColour().isValid());
    }
};

QTEST_MAIN(TestY3fract1)
#include "tst_y3fract1.moc"
