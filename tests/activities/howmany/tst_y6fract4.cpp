// How Many? played with the keyboard alone, from its menu.
#include "activities/howmany/howmanyboard.h"
#include "activities/howmany/y6fract4.h"
#include "kit/parts/placevaluetable.h"
#include "activitytest.h"

using namespace Module1;

class TestY6fract4 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(12); }

    // Start, Enter on an empty box, a 0 in front, the hint's columns, the answer.
    void oneQuestionByKeyboard()
    {
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<HowManyBoard>(QStringLiteral("y6fract4"), &form);
        QVERIFY(board);
        const HowMany::Question q = board->question();
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(board->Picture2->number(), q.number());
        QVERIFY(!board->Picture2->columnsShown());

        QCOMPARE(ActivityTest::said(form, QString(), board->Text1), QStringLiteral("Type your answer in the box first!"));
        QCOMPARE(ActivityTest::said(form, QStringLiteral("01"), board->Text1),
                 QStringLiteral("Write your number without a 0 in front."));
        QCOMPARE(counter, 0);

        QCOMPARE(ActivityTest::hint(form), HowMany::hint(q));
        QVERIFY(board->Picture2->columnsShown());
        QCOMPARE(board->Picture2->lowest(), q.counted);
        QCOMPARE(board->Picture2->markedTo(), q.counted);
        QCOMPARE(board->Picture2->digitAt(q.counted), QString::number(Places::digitAt(q.thousandths, q.counted)));

        board->Text1->clear();
        QTest::keyClicks(board->Text1, QStringLiteral("x.") + QString::number(q.answer()));
        QCOMPARE(board->Text1->text(), QString::number(q.answer()));
        QTest::keyClick(board->Text1, Qt::Key_Return);
        ActivityTest::expectPraised(form, q.statement());
    }
};

QTEST_MAIN(TestY6fract4)
#include "tst_y6fract4.moc"
