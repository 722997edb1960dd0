// Equivalent Fractions and Cancelling played with the keyboard alone, from
// their menu.
#include "activities/equivalent/cancelboard.h"
#include "activities/equivalent/chainboard.h"
#include "activities/equivalent/fractionline.h"
#include "kit/kitscreen.h"
#include "rewards/reward.h"
#include "activitytest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {
KitScreen* openAndStart(const char* screen, int challengeMode = 0)
{
    KitScreen* form = ActivityTest::open(QLatin1String(screen));
    challenge = challengeMode; // the menu opens the practice
    if (form)
        ActivityTest::pressStart(form);
    return form;
}
} // namespace

class TestChainCancel : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(5); }
    void chainByKeyboard();
    void cancellingByKeyboardInTheChallenge();

private:
    TestSupport::World world;
};

// A blank box keeps the question; the hint writes the multipliers; the
// boxes fill left to right, Enter moving on, and the last Enter checks.
void TestChainCancel::chainByKeyboard()
{
    KitScreen* form = openAndStart("y5fract2");
    QVERIFY(form);
    auto* board = qobject_cast<ChainBoard*>(form->board());
    QVERIFY(board);
    const EquivalentChain::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(board->Picture2->accessibleName(), q.spoken());
    QCOMPARE(QApplication::focusWidget(), board->Text1);

    ActivityTest::enter(QString());
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
        ActivityTest::enter(QString::number(q.number(i)));
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
    KitScreen* form = openAndStart("y5fract3", 1);
    QVERIFY(form);
    auto* board = qobject_cast<CancelBoard*>(form->board());
    QVERIFY(board && !form->cmdhint->isEnabled());
    const Cancelling::Question q = board->question();
    QCOMPARE(form->Label1->text(), q.instruction());
    QCOMPARE(QApplication::focusWidget(), board->Text1);

    const int times = q.factor == 2 ? 3 : 2; // equal, and not the fraction shown
    const QString top = QString::number(q.simplestTop * times), bottom = QString::number(q.simplestBottom * times);
    ActivityTest::enter(top);
    QCOMPARE(QApplication::focusWidget(), board->Text2);
    ActivityTest::enter(bottom);
    QCOMPARE(form->Label2->text(), Cancelling::check(q, top, bottom).statement);
    QVERIFY(challenge == 1 && counter == 0 && !Forms::isLoaded(QStringLiteral("Reward")));
    QVERIFY(board->question() == q && form->cmdcheck->isEnabled());

    board->Text1->setFocus();
    board->Text1->clear();
    ActivityTest::enter(QString::number(q.simplestTop));
    board->Text2->clear();
    ActivityTest::enter(QStringLiteral("0"));
    QCOMPARE(form->Label2->text(), QStringLiteral("A bottom number cannot be 0."));
    QVERIFY(challenge == 1 && counter == 0);

    board->Text2->setFocus();
    board->Text2->clear();
    ActivityTest::enter(QString::number(q.simplestBottom));
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
}

QTEST_MAIN(TestChainCancel)
#include "tst_chaincancel.moc"
