// More Than, Less Than played with the keyboard alone from its menu, and its hint.
#include "activities/comparing/compareboard.h"
#include "activities/comparing/fractionpair.h"
#include "activities/comparing/y4fract5.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/fractionwall.h"
#include "activitytest.h"

using namespace Module1;
using CompareFractions::Relation;

// The sign key of each answer.
static char signOf(Relation relation)
{
    return relation == Relation::Less ? '<' : relation == Relation::Equal ? '=' : '>';
}

class TestY4fract5 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(31); }

    // Start; Check with nothing chosen is refused; the hint draws both as bars;
    // the right sign key answers; then a wrong one, marked on the cards.
    void oneQuestionByKeyboard()
    {
        y4fract5* form = nullptr;
        auto* board = ActivityTest::start<CompareBoard>(QStringLiteral("y4fract5"), &form);
        QVERIFY(board);
        QCOMPARE(QApplication::focusWidget(), board->Cards1->card(0));
        const CompareFractions::Question q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction());
        QCOMPARE(board->Fractions1->accessibleName(), CompareFractions::spokenPair(q));

        form->cmdcheck->click();
        QCOMPARE(form->Label2->text(), QStringLiteral("Choose one of the three cards first!"));
        QVERIFY(!board->Wall1->isVisible());
        form->cmdhint->click();
        QVERIFY(board->Wall1->isVisible());
        QCOMPARE(board->Wall1->rows().size(), 2);
        QCOMPARE(board->Wall1->rows()[0].bottom, q.leftBottom);
        QCOMPARE(board->Wall1->rows()[1].shaded, q.rightTop);

        QTest::keyClick(QApplication::focusWidget(), signOf(q.relation()));
        ActivityTest::expectPraised(form, q.statement());
        QCOMPARE(board->Cards1->card(int(q.relation()))->mark(), ChoiceCard::Mark::Right);

        form->setEnabled(true); // as when the stars have played
        form->Timer3_Timer();
        QVERIFY(!board->Wall1->isVisible());
        const CompareFractions::Question next = board->question();
        const Relation wrong = next.relation() == Relation::Less ? Relation::More : Relation::Less;
        QTest::keyClick(QApplication::focusWidget(), signOf(wrong));
        QCOMPARE(counter, 1);
        QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + CompareFractions::check(next, int(wrong)).statement);
        QCOMPARE(board->Cards1->card(int(wrong))->mark(), ChoiceCard::Mark::Wrong);
        QCOMPARE(board->Cards1->card(int(next.relation()))->mark(), ChoiceCard::Mark::Right);
    }
};

QTEST_MAIN(TestY4fract5)
#include "tst_y4fract5.moc"
