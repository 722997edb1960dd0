// Finding Amounts played with the keyboard alone, from its menu.
#include "activities/amounts/amountsboard.h"
#include "activities/amounts/y6fract5.h"
#include "kit/parts/barmodel.h"
#include "activitytest.h"

using namespace Module1;

class TestY6fract5 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(12); }

    // Start, a refused 0, the hint's bar, the answer beside its unit.
    void oneQuestionByKeyboard()
    {
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<AmountsBoard>(QStringLiteral("y6fract5"), &form);
        QVERIFY(board);
        const Amounts::Question q = board->question();
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(board->Picture2->amount(), q.amount);
        QCOMPARE(board->Label1->text() + QString::number(q.amount) + board->Label2->text(),
                 q.withUnit(q.amount).remove(QLatin1Char(' ')));
        QCOMPARE(ActivityTest::said(form, QStringLiteral("0"), board->Text1),
                 QStringLiteral("0 is not the answer: every amount here is more than 0."));
        QVERIFY(board->Text1->text().isEmpty());
        QCOMPARE(ActivityTest::hint(form), Amounts::hint(q));
        QVERIFY(board->Picture2->showsWorking());
        QCOMPARE(board->Picture2->perPart() * board->Picture2->parts(), q.amount);
        ActivityTest::enter(QString::number(q.answer()), board->Text1);
        ActivityTest::expectPraised(form, q.statement());
    }
};

QTEST_MAIN(TestY6fract5)
#include "tst_y6fract5.moc"
