// Decimals Between and Rounding played with the keyboard alone, from the
// Year 6 menu, and their printed worksheets.
#include "activities/activitytable.h"
#include "activities/decimals/betweenboard.h"
#include "activities/decimals/roundingboard.h"
#include "activities/decimals/y6fract2.h"
#include "activities/decimals/y6fract7.h"
#include "kit/parts/numberline.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestDecimalScreens : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(6); }
    void betweenByKeyboard();
    void roundingByKeyboard();
    void worksheets_data();
    void worksheets();

private:
    KitScreen* open(const char* button);
    TestSupport::World world;
};

KitScreen* TestDecimalScreens::open(const char* button)
{
    Forms::show(QStringLiteral("y6Intro"))->findChild<QPushButton*>(QLatin1String(button))->click();
    TestSupport::flushUnloads();
    KitScreen* form = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* kit = qobject_cast<KitScreen*>(w); kit && kit->isVisible())
            form = kit;
    return form;
}

// Start; a comma, a lone point and two points are refused with short
// messages; a wrong answer is pinned on the line; Enter brings the next
// question, answered right.
void TestDecimalScreens::betweenByKeyboard()
{
    auto* form = qobject_cast<y6fract2*>(open("Command3"));
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<BetweenBoard*>(form->board());
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    const DecimalsBetween::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(board->Line1->from(), q.from());

    QTest::keyClicks(board->Text1, QStringLiteral("1,"));
    QCOMPARE(board->Text1->text(), QStringLiteral("1"));
    QCOMPARE(form->Label2->text(), QStringLiteral("Type a point for a decimal, not a comma."));
    QTest::keyClicks(board->Text1, QStringLiteral(".2.3"));
    QCOMPARE(board->Text1->text(), QStringLiteral("1.23"));
    board->Text1->clear();
    QTest::keyClicks(board->Text1, QStringLiteral("."));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Type a number in the box first!"));
    QCOMPARE(counter, 0);

    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), DecimalsBetween::hint(q));
    QCOMPARE(board->Line1->from(), q.low().toFixed(q.places + 1));

    QTest::keyClicks(board->Text1, q.to());
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + DecimalsBetween::check(q, q.to()).statement);
    QCOMPARE(board->Line1->marked(), q.to());
    QCOMPARE(counter, 0);
    form->setEnabled(true);
    QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
    QVERIFY(board->Text1->text().isEmpty() && board->Line1->marked().isEmpty());

    const DecimalsBetween::Question next = board->question();
    QTest::keyClicks(board->Text1, next.middle().toText());
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(board->Line1->marked(), next.middle().toText());
    QVERIFY(board->Line1->accessibleName().contains(QStringLiteral(" point ")));
}

// The number to round stands on the line between the two it rounds to;
// the rounded number typed with a place too many is wrong, and pinned.
void TestDecimalScreens::roundingByKeyboard()
{
    auto* form = qobject_cast<y6fract7*>(open("Command8"));
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<RoundingBoard*>(form->board());
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    const Rounding::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(board->Line1->toRound(), q.written());
    QCOMPARE(board->Line1->from() + QLatin1Char(' ') + board->Line1->to(), q.below() + QLatin1Char(' ') + q.above());
    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), Rounding::hint(q));

    const QString tooLong = q.answer().toFixed(q.asked + 1);
    QTest::keyClicks(board->Text1, tooLong);
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + q.statement());
    QCOMPARE(board->Line1->marked(), tooLong);
    form->setEnabled(true);
    QTest::keyClick(board->Text1, Qt::Key_Return);

    const Rounding::Question next = board->question();
    QTest::keyClicks(board->Text1, next.answerText());
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + next.statement());
}

void TestDecimalScreens::worksheets_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("screen");
    QTest::newRow("Decimals Between") << "Command3"
                                      << "y6fract2";
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestDecimalScreens::worksheets()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    QFETCH(QString, button);
    QFETCH(QString, screen);
    KitScreen* form = open(button.toLatin1().constData());
    QCOMPARE(form->objectName(), screen);
    world.answer = MsgBox::Answer::Yes;
    const auto sheet = Activities::forScreen(screen)->sheet;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, sheet), QString());
    QCOMPARE(world.messages.size(), 1);
}

QTEST_MAIN(TestDecimalScreens)
#include "tst_decimalscreens.moc"
