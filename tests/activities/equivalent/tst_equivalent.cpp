// The Equivalent Fractions screens and Cancelling, played with the keyboard alone from their menus.
#include "activities/equivalent/cancelboard.h"
#include "activities/equivalent/chainboard.h"
#include "activities/equivalent/choiceboard.h"
#include "activities/equivalent/equationpanel.h"
#include "activities/equivalent/equivalentscreens.h"
#include "activities/equivalent/fractionline.h"
#include "activities/equivalent/pairboard.h"
#include "fractions/fraction.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/fractionwall.h"
#include "activitytest.h"

using namespace Module1;

class TestEquivalent : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(21); }

    void missingNumberByKeyboard_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::newRow("on the wall") << "y4fract1";
        QTest::newRow("anywhere") << "y4fract2";
    }

    // Enter in the empty box keeps the question; a wrong number is told, and on the wall
    // shades as many bricks as it says; the hint works it out; the next question is answered right.
    void missingNumberByKeyboard()
    {
        QFETCH(QString, screen);
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<PairBoard>(screen, &form);
        QVERIFY(board);
        // The bricks shaded in the wall's second row, or -1 off the wall.
        const auto shaded = [board] { return board->Picture3 ? board->Picture3->rows().value(1).shaded : -1; };
        const bool onWall = board->Picture3 != nullptr;
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(form->Label1->text(), Fractions::capitalised(board->question().spoken()));
        QCOMPARE(board->Picture2->accessibleName(), board->question().spoken());
        QVERIFY(board->Picture2->blankRect().intersects(QRectF(board->Text1->geometry())));

        QCOMPARE(ActivityTest::said(form, QString(), board->Text1), QStringLiteral("Type the missing number in the box first!"));
        const Equivalent::Pair first = board->question();
        const int wrong = first.answer() + 1;
        QCOMPARE(ActivityTest::said(form, QString::number(wrong), board->Text1), QStringLiteral("Not quite. ") + first.statement());
        QCOMPARE(shaded(), onWall ? std::min(wrong, first.bottom * first.factor) : -1);

        form->Timer3_Timer();
        QCOMPARE(shaded(), onWall ? 0 : -1);
        const Equivalent::Pair& asked = board->question();
        QCOMPARE(ActivityTest::hint(form), onWall ? Equivalent::wallHint(asked) : Equivalent::hint(asked));
        QCOMPARE(shaded(), onWall ? asked.answer() : -1);
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        ActivityTest::enter(QString::number(asked.answer()), board->Text1);
        ActivityTest::expectPraised(form, asked.statement());
    }

    // Check with no card chosen keeps the question; a wrong card's key marks it
    // and the right one and draws the two as bars; the right card's key counts.
    void cardByKeyboard()
    {
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<ChoiceBoard>(QStringLiteral("y4fract3"), &form);
        QVERIFY(board);
        const Equivalent::Choice asked = board->question();
        QCOMPARE(form->Label1->text(), asked.instruction());
        QVERIFY(!board->Picture3->isVisible());
        QTest::keyClick(form->cmdcheck, Qt::Key_Space);
        QCOMPARE(form->Label2->text(), QStringLiteral("Choose one of the cards first!"));

        const int wrong = (asked.right + 1) % Equivalent::kCards;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + wrong));
        QCOMPARE(form->Label2->text(), QStringLiteral("Not quite. ") + Equivalent::checkChoice(asked, wrong).statement);
        QCOMPARE(board->Cards->card(wrong)->mark(), ChoiceCard::Mark::Wrong);
        QCOMPARE(board->Cards->card(asked.right)->mark(), ChoiceCard::Mark::Right);
        QVERIFY(board->Picture3->isVisible());
        QCOMPARE(board->Picture3->rows().value(1).bottom, asked.cards[wrong].bottom);

        form->Timer3_Timer();
        const Equivalent::Choice next = board->question();
        QCOMPARE(ActivityTest::hint(form), Equivalent::choiceHint(next));
        QCOMPARE(board->Picture3->rows().value(1).bottom, next.bottom * next.factor);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_1 + next.right));
        ActivityTest::expectPraised(form, Equivalent::checkChoice(next, next.right).statement);
    }

    // A blank box keeps the question; the hint writes the multipliers; the
    // boxes fill left to right, Enter moving on, and the last Enter checks.
    void chainByKeyboard()
    {
        KitScreen* form = nullptr;
        auto* board = ActivityTest::start<ChainBoard>(QStringLiteral("y5fract2"), &form);
        QVERIFY(board);
        const EquivalentChain::Question q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction());
        QCOMPARE(board->Picture2->accessibleName(), q.spoken());
        QCOMPARE(QApplication::focusWidget(), board->Text1);

        QCOMPARE(ActivityTest::said(form, QString()), QStringLiteral("Fill in every box first!"));
        QCOMPARE(QApplication::focusWidget(), board->Text1);
        QCOMPARE(ActivityTest::hint(form), EquivalentChain::hint(q));
        QCOMPARE(board->Picture2->notes().size(), EquivalentChain::kFractions);

        QList<QLineEdit*> boxes{board->Text1, board->Text2, board->Text3};
        int box = 0;
        for (int i = 0; i < EquivalentChain::kNumbers; ++i) {
            if (!q.missing[std::size_t(i)])
                continue;
            // Each box stands in its missing number's place, and takes its turn.
            QCOMPARE(boxes[box]->geometry(), board->Picture2->numberPlace(i / 2 + 1, i % 2 == 1));
            QCOMPARE(QApplication::focusWidget(), boxes[box++]);
            ActivityTest::enter(QString::number(q.number(i)));
        }
        ActivityTest::expectPraised(form, q.answerText() + QLatin1Char('.'));
        form->setEnabled(true); // the reward picture's stars are over
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // moves on at once
        QVERIFY(board->Text1->text().isEmpty() && board->Picture2->notes().isEmpty());
        QVERIFY(!(board->question() == q));
    }

    // An equal fraction that can still be cancelled keeps the question and does
    // not count as wrong, even in the Challenge; a bottom of 0 is refused.
    void cancellingByKeyboardInTheChallenge()
    {
        KitScreen* form = ActivityTest::open(QStringLiteral("y5fract3"));
        QVERIFY(form);
        challenge = 1; // the menu opens the practice
        ActivityTest::pressStart(form);
        auto* board = qobject_cast<CancelBoard*>(form->board());
        QVERIFY(board && !form->cmdhint->isEnabled());
        const Cancelling::Question q = board->question();
        QCOMPARE(form->Label1->text(), q.instruction());
        QCOMPARE(QApplication::focusWidget(), board->Text1);

        const int times = q.factor == 2 ? 3 : 2; // equal, and not the fraction shown
        const QString top = QString::number(q.simplestTop * times), bottom = QString::number(q.simplestBottom * times);
        ActivityTest::enter(top);
        QCOMPARE(QApplication::focusWidget(), board->Text2);
        QCOMPARE(ActivityTest::said(form, bottom), Cancelling::check(q, top, bottom).statement);
        QVERIFY(challenge == 1 && counter == 0 && !Forms::isLoaded(QStringLiteral("Reward")));
        QVERIFY(board->question() == q && form->cmdcheck->isEnabled());

        board->Text1->setFocus();
        board->Text1->clear();
        ActivityTest::enter(QString::number(q.simplestTop));
        board->Text2->clear();
        QCOMPARE(ActivityTest::said(form, QStringLiteral("0")), QStringLiteral("A bottom number cannot be 0."));
        QVERIFY(challenge == 1 && counter == 0);

        board->Text2->setFocus();
        board->Text2->clear();
        ActivityTest::enter(QString::number(q.simplestBottom));
        ActivityTest::expectPraised(form, q.statement());
    }
};

QTEST_MAIN(TestEquivalent)
#include "tst_equivalent.moc"
