// Halves and Quarters 2 played with the keyboard alone, from its menu.
#include "activities/halvesshapes/shapesboard.h"
#include "activities/halvesshapes/y2fractions2.h"
#include "kit/parts/shapeboard.h"
#include "testsupport.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestY2fractions2 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(11); }
    void oneQuestionByKeyboard();

private:
    TestSupport::World world;
};

static void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

// Tab to Start, Space; the arrows and Space colour as many parts as asked,
// Enter checks; then a wrong colouring and a hint.
void TestY2fractions2::oneQuestionByKeyboard()
{
    Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    TestSupport::flushUnloads();
    auto* form = Forms::find<Y2fractions2>();
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    form->cmdstart->setFocus();
    press(Qt::Key_Space);
    auto* board = static_cast<ShapesBoard*>(form->board());
    QCOMPARE(QApplication::focusWidget(), board->Shape1);
    QCOMPARE(form->Label1->text(), board->question().instruction());

    for (int part = 0; part < board->question().partsToColour(); ++part) {
        press(Qt::Key_Space);
        press(Qt::Key_Right);
    }
    press(Qt::Key_Return);
    QCOMPARE(counter, 1);
    QVERIFY(form->Label2->text().startsWith(praisetext + QStringLiteral("You coloured ")));

    form->setEnabled(true); // as when the stars have played
    form->Timer3_Timer();
    const int asked = board->question().partsToColour();
    for (int part = 0; part <= asked && part < board->question().parts; ++part) {
        press(Qt::Key_Space);
        press(Qt::Key_Right);
    }
    form->cmdhint->click();
    QVERIFY(form->Label2->text().endsWith(QStringLiteral("You have coloured %1.").arg(board->Shape1->colouredCount())));
    QCOMPARE(QApplication::focusWidget(), board->Shape1);
    press(Qt::Key_Return);
    QCOMPARE(counter, 1);
    QVERIFY(form->Label2->text().startsWith(QStringLiteral("Not quite. You coloured ")));
}

QTEST_MAIN(TestY2fractions2)
#include "tst_y2fractions2.moc"
