// Equivalent Fractions 1, 2 and 3 played with the keyboard alone, from their
// menu.
#include "activities/equivalent/choiceboard.h"
#include "activities/equivalent/equationpanel.h"
#include "activities/equivalent/equivalentscreens.h"
#include "activities/equivalent/pairboard.h"
#include "fractions/fraction.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/fractionwall.h"
#include "activitytest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {
int secondRowShaded(const PairBoard* board)
{
    return board->Picture3->rows().value(1).shaded;
}
} // namespace

class TestEquivalent : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(21); }
    void missingNumberByKeyboard_data();
    void missingNumberByKeyboard();
    void cardByKeyboard();

private:
    TestSupport::World world;
};

void TestEquivalent::missingNumberByKeyboard_data()
{
    QTest::addColumn<QString>("screen");
    QTest::newRow("on the wall") << "y4fract1";
    QTest::newRow("anywhere") << "y4fract2";
}

// Enter in the empty box keeps the question; a wrong number is told, and on
// the wall shades as many bricks as it says; the hint works it out; the
// next question is answered right.
void TestEquivalent::missingNumberByKeyboard()
{
    QFETCH(QString, screen);
    KitScreen* form = nullptr;
    auto* board = ActivityTest::start<PairBoard>(screen, &form);
    QVERIFY(board);
    const bool onWall = board->Picture3 != nullptr;
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(form->Label1->text(), Fractions::capitalised(board->question().spoken()));
    QCOMPARE(board->Picture2->accessibleName(), board->question().spoken());
    QVERIFY(board->Picture2->blankRect().intersects(QRectF(board->Text1->geometry())));

    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Type the missing number in the box first!"));
    const int wrong = board->question().answer() + 1;
    ActivityTest::enter(QString::number(wrong), board->Text1);
    QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + board->question().statement());
    if (onWall)
        QCOMPARE(secondRowShaded(board), std::min(wrong, board->question().bottom * board->question().factor));

    form->Timer3_Timer();
    if (onWall)
        QCOMPARE(secondRowShaded(board), 0);
    form->cmdhint->click();
    const Equivalent::Pair& asked = board->question();
    QCOMPARE(form->Label2->text(), onWall ? Equivalent::wallHint(asked) : Equivalent::hint(asked));
    if (onWall)
        QCOMPARE(secondRowShaded(board), board->question().answer());
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    ActivityTest::enter(QString::number(board->question().answer()), board->Text1);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + board->question().statement());
}

// Check with no card chosen keeps the question; a wrong card's key marks it
// and the right one and draws the two as bars; the right card's key counts.
void TestEquivalent::cardByKeyboard()
{
    KitScreen* form = nullptr;
    auto* board = ActivityTest::start<ChoiceBoard>(QStringLiteral("y4fract3"), &form);
    QVERIFY(board);
    const Equivalent::Choice asked = board->question();
    QCOMPARE(form->Label1->text(), asked.instruction());
    QVERIFY(!board->Picture3->isVisible());
    QTest::keyClick(form->cmdcheck, Qt::Key_Space);
    QCOMPARE(form->Label2->text(), QStringLiteral("Choose one of the cards first!"));

    const int wrong = (asked.right + 1) % Equivalent::kCards;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + wrong));
    QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + Equivalent::checkChoice(asked, wrong).statement);
    QCOMPARE(board->Cards->card(wrong)->mark(), ChoiceCard::Mark::Wrong);
    QCOMPARE(board->Cards->card(asked.right)->mark(), ChoiceCard::Mark::Right);
    QVERIFY(board->Picture3->isVisible());
    QCOMPARE(board->Picture3->rows().value(1).bottom, asked.cards[wrong].bottom);

    form->Timer3_Timer();
    const Equivalent::Choice next = board->question();
    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), Equivalent::choiceHint(next));
    QCOMPARE(board->Picture3->rows().value(1).bottom, next.bottom * next.factor);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + next.right));
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + Equivalent::checkChoice(next, next.right).statement);
}

QTEST_MAIN(TestEquivalent)
#include "tst_equivalent.moc"
