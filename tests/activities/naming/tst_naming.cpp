// The two screens that name the fraction shown, Halves, Quarters, Thirds and
// Tenths 2 and Write A Fraction, played with the keyboard alone from their menus.
#include "activities/naming/namingboard.h"
#include "fractions/halvesquestion.h"
#include "kit/kitscreen.h"
#include "kit/parts/hundredsquare.h"
#include "kit/parts/picturerows.h"
#include "kit/parts/shapeboard.h"
#include "activitytest.h"

using namespace Module1;

// The picture on show, and what a screen reader should hear of it.
static QWidget* shownPicture(NamingBoard* board, QString* spoken)
{
    const NameFraction::Question& q = board->question();
    switch (q.picture) {
    case NameFraction::Picture::Shape:
        *spoken = QStringLiteral("a %1 cut into %2 equal parts, %3 shaded").arg(shapeNoun(q.kind)).arg(q.parts).arg(q.shaded);
        return board->Shape1;
    case NameFraction::Picture::HundredSquare:
        *spoken = QStringLiteral("a hundred square with %1 small squares shaded").arg(q.shaded);
        return board->Square1;
    case NameFraction::Picture::Pictures:
        *spoken = QStringLiteral("%1 %2, %3 ringed").arg(q.parts).arg(Halves::setName(q.set)).arg(q.shaded);
        return board->Picture2;
    }
    return nullptr;
}

class TestNaming : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(23); }

    void oneQuestionByKeyboard_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::newRow("Year 3") << "y3fract2";
        QTest::newRow("Write A Fraction") << "y4fract4";
    }

    // Start; an empty Enter and a 0 are refused; the hint numbers the parts;
    // top number, Enter, bottom number, Enter checks; then a wrong answer.
    void oneQuestionByKeyboard()
    {
        QFETCH(QString, screen);
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<NamingBoard>(screen, &form);
        QVERIFY(board);
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        const NameFraction::Question q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction());
        QString spoken;
        QWidget* picture = shownPicture(board, &spoken);
        QVERIFY(picture->isVisible());
        QCOMPARE(picture->accessibleName(), spoken);

        QCOMPARE(ActivityTest::said(form, QString()), QStringLiteral("Type the top number and the bottom number first!"));
        QVERIFY(ActivityTest::said(form, QStringLiteral("0")).startsWith(QStringLiteral("The top number cannot be 0")));
        QCOMPARE(ActivityTest::hint(form), NameFraction::hint(q));
        QVERIFY(board->Shape1->isNumbered() || board->Picture2->isNumbered() || board->Square1->isVisible());

        ActivityTest::enter(QString::number(q.shaded));
        QCOMPARE(QApplication::focusWidget(), board->Text2);
        ActivityTest::enter(QString::number(q.parts));
        ActivityTest::expectPraised(form, NameFraction::check(q, QString::number(q.shaded), QString::number(q.parts)).statement);

        form->setEnabled(true); // as when the stars have played
        form->Timer3_Timer();
        QVERIFY(board->Text1->text().isEmpty() && !board->Shape1->isNumbered());
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        const NameFraction::Question next = board->question();
        ActivityTest::enter(QString::number(next.parts));
        ActivityTest::enter(QString::number(next.shaded)); // upside down
        QCOMPARE(counter, 1);
        QVERIFY(form->Label2->text().startsWith(QStringLiteral("Not quite. %1 of ").arg(NameFraction::counted(next))));
    }
};

QTEST_MAIN(TestNaming)
#include "tst_naming.moc"
