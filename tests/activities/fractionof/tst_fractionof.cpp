// Halves, Quarters, Thirds and Tenths 3 and Fractions of Numbers played with
// the keyboard alone, from their menus.
#include "activities/fractionof/fractionofboard.h"
#include "kit/kitscreen.h"
#include "kit/parts/barmodel.h"
#include "activitytest.h"

using namespace Module1;

class TestFractionOf : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(5); }

    // Each screen and its largest multiple of the bottom.
    void oneQuestionByKeyboard_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("most");
        QTest::newRow("Year 3") << "y3fract3" << 10;
        QTest::newRow("Year 5") << "y5fract1" << 12;
    }

    // Start, Enter on an empty box, the hint fills the bar, then the answer typed and Enter.
    void oneQuestionByKeyboard()
    {
        QFETCH(QString, screen);
        QFETCH(int, most);
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<FractionOfBoard>(screen, &form);
        QVERIFY(board);
        const FractionOf::Question q = board->question();
        QVERIFY(q.amount <= q.bottom * most);
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(form->Label1->text(), q.instruction());
        QCOMPARE(board->Text1->accessibleName(), QStringLiteral("your answer: ") + q.spoken());
        QCOMPARE(board->Bar1->amount(), q.amount);
        QCOMPARE(board->Bar1->parts(), q.bottom);

        QCOMPARE(ActivityTest::said(form, QString(), board->Text1), QStringLiteral("Type your answer in the box first!"));
        QCOMPARE(ActivityTest::hint(form), FractionOf::hint(q));
        QVERIFY(board->Bar1->showsWorking());
        QCOMPARE(board->Bar1->perPart(), q.amount / q.bottom);
        QCOMPARE(board->Bar1->shadedParts(), q.top);

        QTest::keyClicks(board->Text1, QStringLiteral("x") + QString::number(q.answer()));
        QCOMPARE(board->Text1->text(), QString::number(q.answer()));
        QTest::keyClick(board->Text1, Qt::Key_Return);
        ActivityTest::expectPraised(form, q.statement());
        form->setEnabled(true);
        QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
        QVERIFY(board->Text1->text().isEmpty() && !board->Bar1->showsWorking() && !(board->question() == q));
    }

    // Year 3's fractions of a number never draw the sphere's reward pictures.
    void yearThreeRewardsNeverSphere()
    {
        KitScreen* form = ActivityTest::open(QStringLiteral("y3fract3"));
        QVERIFY(form);
        QSet<QString> sets;
        for (int i = 0; i < 200; ++i) {
            form->cmdstart->click();
            sets << picset;
        }
        QVERIFY(sets.size() > 5);
        QVERIFY(!sets.contains(QStringLiteral("sphfra")));
    }
};

QTEST_MAIN(TestFractionOf)
#include "tst_fractionof.moc"
