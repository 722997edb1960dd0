// Halves and Quarters 3 played with the keyboard alone, from its menu.
#include "activities/halvesnumbers/picturesboard.h"
#include "activities/halvesnumbers/y2fractions3.h"
#include "kit/parts/picturerows.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestY2fractions3 : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(12); }
    void oneQuestionByKeyboard();

private:
    TestSupport::World world;
};

// Start, type the answer, Enter; an empty Enter and a refused letter keep
// the question; the hint regroups the pictures.
void TestY2fractions3::oneQuestionByKeyboard()
{
    Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command3"))->click();
    TestSupport::flushUnloads();
    auto* form = Forms::find<Y2fractions3>();
    QVERIFY(form);
    QApplication::setActiveWindow(form);
    QTest::keyClick(form->cmdstart, Qt::Key_Space);
    auto* board = static_cast<PicturesBoard*>(form->board());
    QCOMPARE(QApplication::focusWidget(), board->Text1);
    QCOMPARE(board->Picture2->count(), board->question().amount);

    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(form->Label2->text(), QStringLiteral("Type your answer in the box first!"));
    form->cmdhint->click();
    QCOMPARE(board->Picture2->groups(), board->question().bottom);
    QCOMPARE(board->Picture2->shadedGroups(), board->question().top);
    QTest::keyClicks(board->Text1, QStringLiteral("x") + QString::number(board->question().answer()));
    QCOMPARE(board->Text1->text(), QString::number(board->question().answer()));
    QTest::keyClick(board->Text1, Qt::Key_Return);
    QCOMPARE(counter, 1);
    QCOMPARE(form->Label2->text(), praisetext + board->question().statement());
    form->setEnabled(true);
    QTest::keyClick(board->Text1, Qt::Key_Return); // moves on at once
    QVERIFY(board->Text1->text().isEmpty() && board->Picture2->groups() == 0 && form->Label1->isVisible());
}

QTEST_MAIN(TestY2fractions3)
#include "tst_y2fractions3.moc"
