// Digits played with the keyboard alone, from its menu.
#include "activities/digits/digitsboard.h"
#include "activities/digits/y6fract6.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/placevaluetable.h"
#include "activitytest.h"

using namespace Module1;

class TestY6fract6 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(12); }

    // Start, Check with no card chosen, the hint's columns, the right card's number key.
    void oneQuestionByKeyboard()
    {
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<DigitsBoard>(QStringLiteral("y6fract6"), &form);
        QVERIFY(board);
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
        ActivityTest::expectPraised(form, q.statement());
        QCOMPARE(board->Cards1->card(q.right)->mark(), ChoiceCard::Mark::Right);
        QVERIFY(!board->Cards1->isChoosable());
    }
};

QTEST_MAIN(TestY6fract6)
#include "tst_y6fract6.moc"
