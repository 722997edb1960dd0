// Finding Amounts played with the keyboard alone, from its menu.
#include "activities/amounts/amountsboard.h"
#include "activities/amounts/y6fract5.h"
#include "kit/parts/barmodel.h"
#include "activitytest.h"

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

private:
    TestSupport::World world;
};

// Start, a refused 0, the hint's bar, the answer beside its unit.
void TestY6fract5::oneQuestionByKeyboard()
{
    KitScreen* form = nullptr;
    auto* board = ActivityTest::start<AmountsBoard>(QStringLiteral("y6fract5"), &form);
    QVERIFY(board);
    const Amounts::Question q = board->question();
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(board->Picture2->amount(), q.amount);
    QCOMPARE(board->Label1->text() + QString::number(q.amount) + board->Label2->text(),
             q.withUnit(q.amount).remove(QLatin1Char(' ')));

    ActivityTest::enter(QStringLiteral("0"), board->Text1);
    QCOMPARE(form->Label2->text(), QStringLiteral("0 is not the answer: every amount here is more than 0."));
    QVERIFY(board->Text1->text().isEmpty());

    form->cmdhint->click();
    QCOMPARE(form->Label2->text(), Amounts::hint(q));
    QVERIFY(board->Picture2->showsWorking());
    QCOMPARE(board->Picture2->perPart() * board->Picture2->parts(), q.amount);

    ActivityTest::enter(QString::number(q.answer()), board->Text1);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + q.statement());
}

QTEST_MAIN(TestY6fract5)
#include "tst_y6fract5.moc"
