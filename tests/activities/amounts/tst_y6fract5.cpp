// Finding Amounts played with the keyboard alone, from its menu, and its worksheet.
#include "activities/amounts/amountsboard.h"
#include "activities/amounts/y6fract5.h"
#include "kit/parts/barmodel.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestY6fract5 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(12); }
    void oneQuestionByKeyboard();
    void worksheet();

private:
    y6fract5* open()
    {
        Forms::show(QStringLiteral("y6Intro"))->findChild<QPushButton*>(QStringLiteral("Command6"))->click();
        TestSupport::flushUnloads();
        return Forms::find<y6fract5>();
    }
    TestSupport::World world;
};

// Start, a refused 0, the hint's bar, the answer beside its unit.
void TestY6fract5::oneQuestionByKeyboard()
{
    auto* form = open();
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<AmountsBoard*>(form->board());
    const Amounts::Question q = board->question();
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(board->Picture2->amount(), q.amount);
    QCOMPARE(board->Label1->text() + QString::number(q.amount) + board->Label2->text(),
             q.withUnit(q.amount).remove(QLatin1Char(' ')));

    QTest::keyClicks(board->Text1, QStringLiteral("0"));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("0 is not the answer: every amount here is more than 0."));
    QVERIFY(board->Text1->text().isEmpty());

    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), Amounts::hint(q));
    QVERIFY(board->Picture2->showsWorking());
    QCOMPARE(board->Picture2->perPart() * board->Picture2->parts(), q.amount);

    QTest::keyClicks(board->Text1, QString::number(q.answer()));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestY6fract5::worksheet()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    auto* form = open();
    world.answer = MsgBox::Answer::Yes;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, AmountsBoard::worksheet), QString());
    QCOMPARE(world.messages.size(), 1);
}

QTEST_MAIN(TestY6fract5)
#include "tst_y6fract5.moc"
