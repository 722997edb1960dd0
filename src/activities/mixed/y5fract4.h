#pragma once
// "Mixed Numbers To Improper Fractions or Improper Fractions To Mixed
// Numbers" (Year 5): each question shows an improper fraction to be typed as
// a mixed number, or a mixed number to be typed as an improper fraction,
// one answer box at a time. Practice with hints leads to the Challenge.
//
// The same screen runs the activity's other modes (mixedmodes.h): one way
// only, and Year 6's larger numbers; each under its own screen name.
#include "fractions/mixedquestion.h"
#include "mixedmodes.h"
#include "shell/activityform.h"

class FormTimer;
class QFrame;
class QLabel;
class QLineEdit;

class y5fract4 : public ActivityForm {
    Q_OBJECT
public:
    // The designed Year 5 activity, or another mode of it.
    explicit y5fract4(const MixedMode& mode = MixedModes::mode(MixedModes::kBothWays));
    const MixedMode& mode() const { return m_mode; }

    QLabel* Label1;  // the question's instruction
    QLabel* Label2;  // feedback after a check, in Label1's place
    QLabel* Label3;  // "Good Luck."
    QLabel* Label4;  // the title
    QLabel* Label5;  // typing instruction, for a few seconds
    QLabel* Label6;  // how to gain a certificate
    QFrame* Frame1;  // the 10/20 option buttons
    QFrame* Frame2;  // where the typing instruction and the hint stand
    QLabel* Label18; // the hint
    QLabel* Label20; // the hint's product
    QLabel* Label80; // end of a run

    // An improper fraction shown; a mixed number typed.
    QFrame* Picture2;
    QLabel* Label7;  // numerator
    QFrame* Line1;
    QLabel* Label9;  // denominator
    QLabel* Label11; // "="
    QLineEdit* Text1; // whole number, replaced by Label12
    QLineEdit* Text4; // numerator, replaced by Label8
    QFrame* Line2;
    QLineEdit* Text2; // denominator, replaced by Label10
    QLabel* Label12;
    QLabel* Label8;
    QLabel* Label10;

    // A mixed number shown; an improper fraction typed.
    QFrame* Picture3;
    QLabel* Label19; // whole number
    QLabel* Label16; // numerator
    QFrame* Line3;
    QLabel* Label15; // denominator
    QLabel* Label13; // "="
    QLineEdit* Text3; // numerator, replaced by Label17
    QFrame* Line4;
    QLineEdit* Text5; // denominator, replaced by Label14
    QLabel* Label17;
    QLabel* Label14;

    FormTimer* Timer1; // next question after a right answer
    FormTimer* Timer2; // never switched on
    FormTimer* Timer3; // next question after a wrong answer
    FormTimer* Timer4; // a quick check; never switched on
    FormTimer* Timer5; // hides the typing instruction
    FormTimer* Timer6; // started by an improper-fraction question
    FormTimer* Timer7; // started by a mixed-number question

    static constexpr int kTimer1Ms = 3000;
    static constexpr int kTimer1QuickMs = 500;
    static constexpr int kTimer2Ms = 1000;
    static constexpr int kTimer3Ms = 3000;
    static constexpr int kTimer4Ms = 1000;
    static constexpr int kTimer5Ms = 4000;
    static constexpr int kTimer6Ms = 1000;
    static constexpr int kTimer7Ms = 1000;

    const MixedQuestion& question() const { return m_question; }
    QString answertext() const { return m_answertext; }

    // Puts this question on the board (newquestion() draws one and calls
    // this; tests give their own).
    void showQuestion(const MixedQuestion& question);

    void clearBoardAtEnd() override;
    QRect boardArea() const override;
    bool giveRightAnswer() override;

public slots:
    void Form_Load();
    void cmdstart_Click();
    void cmdcheck_Click();
    void cmdhint_Click();
    void cmdexit_Click();
    void cmdprint_Click();
    void Timer1_Timer();
    void Timer3_Timer();
    void Timer4_Timer();
    void Timer5_Timer();
    void Timer6_Timer();
    void Timer7_Timer();

public:
    // Each key pressed in an answer box, as its code; 0 drops the key.
    void Text1_KeyPress(int& KeyAscii);
    void Text2_KeyPress(int& KeyAscii);
    void Text3_KeyPress(int& KeyAscii);
    void Text4_KeyPress(int& KeyAscii);
    void Text5_KeyPress(int& KeyAscii);

    // A mixed number reads whole number first, then its fraction: Tab comes
    // to the whole number's box before the numerator's above it.
    QList<QWidget*> tabOrder() const override;

private:
    void buildBoard();
    void newquestion();
    // On Tab or ENTER: a box holding a number other than 0 gives way to its
    // label and returns true; otherwise it is emptied and keeps the focus.
    bool enter(QLineEdit* box, QLabel* label);

    const MixedMode& m_mode;
    MixedQuestion m_question;
    QString m_answertext;
};
