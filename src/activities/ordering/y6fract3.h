#pragma once
// Place In Order, the Year 6 (Unit 5) activity: five decimal numbers that
// share a whole part, which the child clicks smallest first into the
// answer column. The fifth click checks the order; a wrong order is put
// right before the child's eyes, one number a second.
#include "fractions/numberset.h"
#include "shell/activityform.h"

#include <QMap>
#include <QVector>
#include <array>

class ArrowLabel;
class FormTimer;
class NumberLabel;
class QFrame;
class QLineEdit;

class Y6fract3 : public ActivityForm {
    Q_OBJECT
public:
    Y6fract3();

    // The board.
    QVector<NumberLabel*> Label10; // the five numbers to put in order
    QVector<QLabel*> Label11;      // the answer column, top slot first; empty = free
    QMap<int, QLabel*> Label12;    // Label12(5) "Smallest" and Label12(0) "Biggest"
    ArrowLabel* Label5;            // arrow to the top slot
    ArrowLabel* Label13;           // arrow to the bottom slot
    QLabel* Label1;                // instruction line
    QLabel* Label2;                // feedback line; while it shows, clicks are ignored
    QLabel* Label3;                // "Good Luck."
    QLabel* Label4;                // "Place In Order"
    QLabel* Label6;                // the menu's prompt
    QLabel* Label8;                // end-of-run message
    QLabel* Label9;                // "Click each number starting with the smallest."
    QPushButton* cmdundo;
    QFrame* Frame1;                // holds the board
    QFrame* Frame2;                // holds the 10/20 options
    QFrame* Shape1;                // the box round the answer column

    FormTimer* Timer1; // hides the instruction under the title
    FormTimer* Timer2; // next question after the correct order was shown
    FormTimer* Timer3; // next question after praise
    FormTimer* Timer4; // shows the correct order, one slot a tick
    FormTimer* Timer5; // the retry screen after a failed Challenge
    FormTimer* Timer6; // brings the instruction line back
    FormTimer* Timer7; // and again, sooner

    static constexpr int kTimer1Ms = 32000;
    static constexpr int kTimer2Ms = 3600;
    static constexpr int kTimer3Ms = 3600;
    static constexpr int kTimer4Ms = 1000;
    static constexpr int kTimer5Ms = 6500;
    static constexpr int kTimer6Ms = 1000;
    static constexpr int kTimer7Ms = 300;

    // The question.
    int wholepart = 0;  // shared by all five numbers, 1..5
    int numberkind = 0; // 1: decimals with one whole part, the only kind
    std::array<int, 6> order{}; // order[i]: the number clicked into slot i; never read back

    // The typed entry that keyfilter serves. The board takes no typed
    // input, so there is none and keyfilter is bound to no key.
    QLineEdit* keyentry = nullptr;

    // The captions of the numbers and of the answer column.
    NumberSet::Texts numbers() const;
    NumberSet::Texts answers() const;

    // The button that takes the focus after printing: Hint, or when Hint is
    // off (as in the Challenge) the next one along the row that is on.
    QPushButton* focusAfterPrint() const;

    void clearBoardAtEnd() override;
    QRect boardArea() const override;
    bool giveRightAnswer() override;

    // A typed-key filter kept for a typed-entry board: Tab or Enter locks a
    // filled entry and checks; only digits, ".", "-" and backspace pass.
    void keyfilter(int& KeyAscii);

    static QString startInstruction();
    static QString rightOrder();
    static QString wrongOrder();
    // The arrows, the pointers' words and the feedback line.
    static const QColor kHighlight;

public slots:
    void Form_Load();
    void newnumbers();
    int check_order();
    void Label10_Click(int Index);
    void cmdundo_Click();
    void resetform();

    void cmdstart_Click();
    void cmdcheck_Click();
    void cmdhint_Click();
    void cmdprint_Click();
    void cmdexit_Click();
    void showorder();

    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer();
    void Timer5_Timer();
    void Timer6_Timer();
    void Timer7_Timer();

private:
    void buildBoard();
    void layOut();
    void buildOpeningPanel();
    void nextQuestion();
    void showPointers(bool on);
};
