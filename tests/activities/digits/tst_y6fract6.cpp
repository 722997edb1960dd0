// Digits played with the keyboard alone, from its menu, and its worksheet.
#include "activities/digits/digitsboard.h"
#include "activities/digits/y6fract6.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/placevaluetable.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestY6fract6 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(12); }
    void oneQuestionByKeyboard();
    void worksheet();

private:
    y6fract6* open()
    {
        Forms::show(QStringLiteral("y6Intro"))->findChild<QPushButton*>(QStringLiteral("Command7"))->click();
        TestSupport::flushUnloads();
        return Forms::find<y6fract6>();
    }
    TestSupport::World world;
};

// Start, Check with no card chosen, the hint's columns, the right card's number key.
void TestY6fract6::oneQuestionByKeyboard()
{
    auto* form = open();
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<DigitsBoard*>(form->board());
    const Digits::Question q = board->question();
    QCOMPARE(QApplication::focusWidget(), board->Cards1->card(0));
    QCOMPARE(board->Picture2->number(), q.number());
    QCOMPARE(board->Picture2->markedFrom(), q.marked);
    QCOMPARE(board->Cards1->count(), Digits::kCards);
    QCOMPARE(board->Cards1->card(q.right)->text(), Digits::valueText(q.digit(), q.marked));

    form->cmdcheck->click();
    QCOMPARE(form->Label2->text(), QStringLiteral("Choose a card first!"));
    form->cmdhint->click();
    QVERIFY(board->Picture2->columnsShown());
    QCOMPARE(board->Picture2->digitAt(q.marked), QString::number(q.digit()));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + q.right));
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
    QCOMPARE(board->Cards1->card(q.right)->mark(), ChoiceCard::Mark::Right);
    QVERIFY(!board->Cards1->isChoosable());
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestY6fract6::worksheet()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    auto* form = open();
    world.answer = MsgBox::Answer::Yes;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, DigitsBoard::worksheet), QString());
    QCOMPARE(world.messages.size(), 1);
}

QTEST_MAIN(TestY6fract6)
#include "tst_y6fract6.moc"
