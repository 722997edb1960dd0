// Equivalent Fractions and Cancelling played with the keyboard alone, from
// their menu, and their printed worksheets.
#include "activities/equivalent/cancelboard.h"
#include "activities/equivalent/chainboard.h"
#include "activities/equivalent/fractionline.h"
#include "kit/kitscreen.h"
#include "rewards/reward.h"
#include "sheetcheck.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {
// The screen behind the Year 5 menu's button.
KitScreen* open(const QString& button, const char* screen)
{
    Forms::show(QStringLiteral("y5Intro"))->findChild<QPushButton*>(button)->click();
    TestSupport::flushUnloads();
    return qobject_cast<KitScreen*>(Forms::find(QString::fromLatin1(screen)));
}

KitScreen* openAndStart(const char* button, const char* screen, int challengeMode = 0)
{
    KitScreen* form = open(QString::fromLatin1(button), screen);
    challenge = challengeMode; // the menu opens the practice
    if (form) {
        QApplication::setActiveWindow(form);
        QTest::keyClick(form->cmdstart, Qt::Key_Space);
    }
    return form;
}

void type(const QString& text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}
} // namespace

class TestChainCancel : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(5); }
    void chainByKeyboard();
    void cancellingByKeyboardInTheChallenge();
    void worksheet_data();
    void worksheet();

private:
    TestSupport::World world;
};

// A blank box keeps the question; the hint writes the multipliers; the
// boxes fill left to right, Enter moving on, and the last Enter checks.
void TestChainCancel::chainByKeyboard()
{
    KitScreen* form = openAndStart("Command3", "y5fract2");
    QVERIFY(form);
    auto* board = qobject_cast<ChainBoard*>(form->board());
    QVERIFY(board);
    const EquivalentChain::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(board->Picture2->accessibleName(), q.spoken());
    QCOMPARE(QApplication::focusWidget(), board->Text1);

    type(QString());
    QCOMPARE(form->Label2->text(), QStringLiteral("Fill in every box first!"));
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), EquivalentChain::hint(q));
    QCOMPARE(board->Picture2->notes().size(), EquivalentChain::kFractions);

    QList<QLineEdit*> boxes{board->Text1, board->Text2, board->Text3};
    int box = 0;
    for (int i = 0; i < EquivalentChain::kNumbers; ++i) {
        if (!q.missing[std::size_t(i)])
            continue;
        // Each box stands in its missing number's place, and takes its turn.
        QCOMPARE(boxes[box]->geometry(), board->Picture2->numberPlace(i / 2 + 1, i % 2 == 1));
        QCOMPARE(QApplication::focusWidget(), boxes[box++]);
        type(QString::number(q.number(i)));
    }
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.answerText() + QLatin1Char('.'));
    form->setEnabled(true); // the reward picture's stars are over
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // moves on at once
    QVERIFY(board->Text1->text().isEmpty() && board->Picture2->notes().isEmpty());
    QVERIFY(!(board->question() == q));
}

// An equal fraction that can still be cancelled keeps the question and does
// not count as wrong, even in the Challenge; a bottom of 0 is refused.
void TestChainCancel::cancellingByKeyboardInTheChallenge()
{
    KitScreen* form = openAndStart("Command5", "y5fract3", 1);
    QVERIFY(form);
    auto* board = qobject_cast<CancelBoard*>(form->board());
    QVERIFY(board && !form->cmdhint->isEnabled());
    const Cancelling::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(QApplication::focusWidget(), board->Text1);

    const int times = q.factor == 2 ? 3 : 2; // equal, and not the fraction shown
    type(QString::number(q.simplestTop * times));
    QCOMPARE(QApplication::focusWidget(), board->Text2);
    type(QString::number(q.simplestBottom * times));
    QCOMPARE(form->Label2->text(), QStringLiteral("%1 is equal to %2/%3, but it can be cancelled further.")
                                       .arg(q.text())
                                       .arg(q.simplestTop * times)
                                       .arg(q.simplestBottom * times));
    QVERIFY(challenge == 1 && counter == 0 && !Forms::isLoaded(QStringLiteral("Reward")));
    QVERIFY(board->question() == q && form->cmdcheck->isEnabled());

    board->Text1->setFocus();
    board->Text1->clear();
    type(QString::number(q.simplestTop));
    board->Text2->clear();
    type(QStringLiteral("0"));
    QCOMPARE(form->Label2->text(), QStringLiteral("A bottom number cannot be 0."));
    QVERIFY(challenge == 1 && counter == 0);

    board->Text2->setFocus();
    board->Text2->clear();
    type(QString::number(q.simplestBottom));
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
}

void TestChainCancel::worksheet_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<bool>("chain");
    QTest::newRow("Equivalent Fractions") << "Command3" << "y5fract2" << true;
    QTest::newRow("Cancelling") << "Command5" << "y5fract3" << false;
}

// Print asks first, then gives 12 fresh questions and their answers.
void TestChainCancel::worksheet()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    QFETCH(QString, button);
    QFETCH(QString, screen);
    QFETCH(bool, chain);
    KitScreen* form = open(button, qPrintable(screen));
    QVERIFY(form);
    world.answer = MsgBox::Answer::Yes;
    QCOMPARE(SheetCheck::printAndRead(form->cmdprint, chain ? ChainBoard::worksheet : CancelBoard::worksheet),
             QString());
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
}

QTEST_MAIN(TestChainCancel)
#include "tst_chaincancel.moc"
