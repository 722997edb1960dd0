// Halves and Quarters 2 played with the keyboard alone, from its menu.
#include "activities/halvesshapes/shapesboard.h"
#include "activities/halvesshapes/y2fractions2.h"
#include "kit/parts/shapeboard.h"
#include "activitytest.h"

using namespace Module1;

namespace {
void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

// Space and the right arrow over the first `parts` parts, colouring each.
void colour(int parts)
{
    for (int part = 0; part < parts; ++part)
        press(Qt::Key_Space), press(Qt::Key_Right);
}
} // namespace

class TestY2fractions2 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(11); }

    // The arrows and Space colour as many parts as asked, Enter checks; then a
    // wrong colouring and a hint.
    void oneQuestionByKeyboard()
    {
        Y2fractions2* form = nullptr;
        auto* board = ActivityTest::start<ShapesBoard>(QStringLiteral("Y2fractions2"), &form);
        QVERIFY(board);
        QCOMPARE(QApplication::focusWidget(), board->Shape1);
        QCOMPARE(form->Label1->text(), board->question().instruction());
        colour(board->question().partsToColour());
        press(Qt::Key_Return);
        QCOMPARE(counter, 1);
        QVERIFY(form->Label2->text().startsWith(praisetext + QStringLiteral("You coloured ")));

        form->setEnabled(true); // as when the stars have played
        form->Timer3_Timer();
        colour(std::min(board->question().partsToColour() + 1, board->question().parts));
        form->cmdhint->click();
        QVERIFY(form->Label2->text().endsWith(QStringLiteral("You have coloured %1.").arg(board->Shape1->colouredCount())));
        QCOMPARE(QApplication::focusWidget(), board->Shape1);
        press(Qt::Key_Return);
        QCOMPARE(counter, 1);
        QVERIFY(form->Label2->text().startsWith(QStringLiteral("Not quite. You coloured ")));
    }
};

QTEST_MAIN(TestY2fractions2)
#include "tst_y2fractions2.moc"
