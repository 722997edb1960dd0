// Halves and Quarters 3 played with the keyboard alone, from its menu.
#include "activities/halvesnumbers/picturesboard.h"
#include "activities/halvesnumbers/y2fractions3.h"
#include "kit/parts/picturerows.h"
#include "activitytest.h"

using namespace Module1;

class TestY2fractions3 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(12); }

    // Start, type the answer, Enter; an empty Enter and a refused letter keep
    // the question; the hint regroups the pictures.
    void oneQuestionByKeyboard()
    {
        Y2fractions3* form = nullptr;
        auto* board = ActivityTest::start<PicturesBoard>(QStringLiteral("Y2fractions3"), &form);
        QVERIFY(board);
        const HalvesOfNumbers::Question q = board->question();
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(board->Picture2->count(), q.amount);

        QCOMPARE(ActivityTest::said(form, QString(), board->Text1), QStringLiteral("Type your answer in the box first!"));
        form->cmdhint->click();
        QCOMPARE(board->Picture2->groups(), q.bottom);
        QCOMPARE(board->Picture2->shadedGroups(), q.top);
        QTest::keyClicks(board->Text1, QStringLiteral("x") + QString::number(q.answer()));
        QCOMPARE(board->Text1->text(), QString::number(q.answer()));
        QTest::keyClick(board->Text1, Qt::Key_Return);
        ActivityTest::expectPraised(form, q.statement());
        form->setEnabled(true);
        QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
        QVERIFY(board->Text1->text().isEmpty() && board->Picture2->groups() == 0 && form->Label1->isVisible());
    }
};

QTEST_MAIN(TestY2fractions3)
#include "tst_y2fractions3.moc"
