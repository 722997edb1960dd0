// How Many? played with the keyboard alone, from its menu, and its worksheet.
#include "activities/howmany/howmanyboard.h"
#include "activities/howmany/y6fract4.h"
#include "kit/parts/placevaluetable.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestY6fract4 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(12); }
    void oneQuestionByKeyboard();
    void worksheet();

private:
    y6fract4* open()
    {
        Forms::show(QStringLiteral("y6Intro"))->findChild<QPushButton*>(QStringLiteral("Command5"))->click();
        TestSupport::flushUnloads();
        return Forms::find<y6fract4>();
    }
    TestSupport::World world;
};

// Start, Enter on an empty box, a 0 in front, the hint's columns, the answer.
void TestY6fract4::oneQuestionByKeyboard()
{
    auto* form = open();
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<HowManyBoard*>(form->board());
    const HowMany::Question q = board->question();
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(board->Picture2->number(), q.number());
    QVERIFY(!board->Picture2->columnsShown());

    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Type your answer in the box first!"));
    QTest::keyClicks(board->Text1, QStringLiteral("01"));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Write your number without a 0 in front."));
    QCOMPARE(counter, 0);

    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), HowMany::hint(q));
    QVERIFY(board->Picture2->columnsShown());
    QCOMPARE(board->Picture2->lowest(), q.counted);
    QCOMPARE(board->Picture2->markedTo(), q.counted);
    QCOMPARE(board->Picture2->digitAt(q.counted), QString::number(Places::digitAt(q.thousandths, q.counted)));

    board->Text1->clear();
    QTest::keyClicks(board->Text1, QStringLiteral("x.") + QString::number(q.answer()));
    QCOMPARE(board->Text1->text(), QString::number(q.answer()));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestY6fract4::worksheet()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    auto* form = open();
    world.answer = MsgBox::Answer::Yes;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, HowManyBoard::worksheet), QString());
    QCOMPARE(world.messages.size(), 1);
}

QTEST_MAIN(TestY6fract4)
#include "tst_y6fract4.moc"
