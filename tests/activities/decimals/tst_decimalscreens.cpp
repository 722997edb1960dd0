// Decimals Between and Rounding played with the keyboard alone, from the Year 6 menu.
#include "activities/decimals/betweenboard.h"
#include "activities/decimals/roundingboard.h"
#include "activities/decimals/y6fract2.h"
#include "activities/decimals/y6fract7.h"
#include "kit/parts/numberline.h"
#include "activitytest.h"

using namespace Module1;

class TestDecimalScreens : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(6); }

    // Start; a comma, a lone point and two points are refused with short messages; a wrong
    // answer is pinned on the line; Enter brings the next question, answered right.
    void betweenByKeyboard()
    {
        y6fract2* form = nullptr;
        auto* board = ActivityTest::start<BetweenBoard>(QStringLiteral("y6fract2"), &form);
        QVERIFY(board);
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
        QCOMPARE(ActivityTest::said(form, QStringLiteral("."), board->Text1), QStringLiteral("Type a number in the box first!"));

        QCOMPARE(ActivityTest::hint(form), DecimalsBetween::hint(q));
        QCOMPARE(board->Line1->from(), q.low().toFixed(q.places + 1));

        QCOMPARE(ActivityTest::said(form, q.to(), board->Text1),
                 QStringLiteral("Not quite. ") + DecimalsBetween::check(q, q.to()).statement);
        QCOMPARE(board->Line1->marked(), q.to());
        QCOMPARE(counter, 0);
        form->setEnabled(true);
        QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
        QVERIFY(board->Text1->text().isEmpty() && board->Line1->marked().isEmpty());

        const DecimalsBetween::Question next = board->question();
        ActivityTest::enter(next.middle().toText(), board->Text1);
        QCOMPARE(counter, 1);
        QCOMPARE(board->Line1->marked(), next.middle().toText());
        QVERIFY(board->Line1->accessibleName().contains(QStringLiteral(" point ")));
    }

    // The number to round stands on the line between the two it rounds to;
    // the rounded number typed with a place too many is wrong, and pinned.
    void roundingByKeyboard()
    {
        y6fract7* form = nullptr;
        auto* board = ActivityTest::start<RoundingBoard>(QStringLiteral("y6fract7"), &form);
        QVERIFY(board);
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        const Rounding::Question q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction());
        QCOMPARE(board->Line1->toRound(), q.written());
        QCOMPARE(board->Line1->from() + QLatin1Char(' ') + board->Line1->to(), q.below() + QLatin1Char(' ') + q.above());
        QCOMPARE(ActivityTest::hint(form), Rounding::hint(q));

        const QString tooLong = q.answer().toFixed(q.asked + 1);
        QCOMPARE(ActivityTest::said(form, tooLong, board->Text1), QStringLiteral("Not quite. ") + q.statement());
        QCOMPARE(board->Line1->marked(), tooLong);
        form->setEnabled(true);
        QTest::keyClick(board->Text1, Qt::Key_Return);

        const Rounding::Question next = board->question();
        ActivityTest::enter(next.answerText(), board->Text1);
        ActivityTest::expectPraised(form, next.statement());
    }
};

QTEST_MAIN(TestDecimalScreens)
#include "tst_decimalscreens.moc"
