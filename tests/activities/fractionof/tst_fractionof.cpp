// Halves, Quarters, Thirds and Tenths 3 and Fractions of Numbers played with
// the keyboard alone, from their menus, and their worksheets.
#include "activities/fractionof/fractionofboard.h"
#include "kit/kitscreen.h"
#include "kit/parts/barmodel.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {
// Each screen from its menu, its largest multiple of the bottom and its year.
void addScreens()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("year");
    QTest::newRow("Year 3") << "y3Intro" << "Command5" << "y3fract3" << 10 << 3;
    QTest::newRow("Year 5") << "y5Intro" << "Command1" << "y5fract1" << 12 << 5;
}
} // namespace

class TestFractionOf : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(5); }
    void oneQuestionByKeyboard_data() { addScreens(); }
    void oneQuestionByKeyboard();
    void worksheet_data() { addScreens(); }
    void worksheet();
    void yearThreeRewardsNeverSphere();

private:
    KitScreen* open(const QString& menu, const QString& button, const QString& screen)
    {
        Forms::show(menu)->findChild<QPushButton*>(button)->click();
        TestSupport::flushUnloads();
        return qobject_cast<KitScreen*>(Forms::find(screen));
    }
    TestSupport::World world;
};

// Start, Enter on an empty box, the hint fills the bar, then the answer
// typed and Enter.
void TestFractionOf::oneQuestionByKeyboard()
{
    QFETCH(QString, menu);
    QFETCH(QString, button);
    QFETCH(QString, screen);
    QFETCH(int, most);
    KitScreen* form = open(menu, button, screen);
    QVERIFY(form && form->isVisible());
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = qobject_cast<FractionOfBoard*>(form->board());
    QVERIFY(board);
    const FractionOf::Question q = board->question();
    QVERIFY(q.amount <= q.bottom * most);
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(board->Text1->accessibleName(), QStringLiteral("your answer: ") + q.spoken());
    QCOMPARE(board->Bar1->amount(), q.amount);
    QCOMPARE(board->Bar1->parts(), q.bottom);

    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Type your answer in the box first!"));
    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), FractionOf::hint(q));
    QVERIFY(board->Bar1->showsWorking());
    QCOMPARE(board->Bar1->perPart(), q.amount / q.bottom);
    QCOMPARE(board->Bar1->shadedParts(), q.top);

    QTest::keyClicks(board->Text1, QStringLiteral("x") + QString::number(q.answer()));
    QCOMPARE(board->Text1->text(), QString::number(q.answer()));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
    form->setEnabled(true);
    QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
    QVERIFY(board->Text1->text().isEmpty() && !board->Bar1->showsWorking() && !(board->question() == q));
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestFractionOf::worksheet()
{
    QFETCH(QString, menu);
    QFETCH(QString, button);
    QFETCH(QString, screen);
    QFETCH(int, year);
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    KitScreen* form = open(menu, button, screen);
    world.answer = MsgBox::Answer::Yes;
    const auto sheet = year == 3 ? FractionOfBoard::year3Sheet : FractionOfBoard::year5Sheet;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, sheet), QString());
    QCOMPARE(world.messages.size(), 1);
}

// Year 3's fractions of a number never draw the sphere's reward pictures.
void TestFractionOf::yearThreeRewardsNeverSphere()
{
    KitScreen* form = open(QStringLiteral("y3Intro"), QStringLiteral("Command5"), QStringLiteral("y3fract3"));
    QSet<QString> sets;
    for (int i = 0; i < 200; ++i) {
        form->cmdstart->click();
        sets << picset;
    }
    QVERIFY(sets.size() > 5);
    QVERIFY(!sets.contains(QStringLiteral("sphfra")));
}

QTEST_MAIN(TestFractionOf)
#include "tst_fractionof.moc"
