#pragma once
// Halves and Quarters 1, the Year 2 (Unit 1) activity: a board of identical
// pictures, of which the child clicks one half or one quarter, then Check.
// Practice with hints until a run of right answers opens the certificate;
// then the Challenge, with no hints, back to the menu when it is won.
#include "fractions/halvesquestion.h"
#include "shell/activityform.h"

#include <QVector>

class FormTimer;
class PictureCell;
class QFrame;
class QLabel;

class Y2fractions : public ActivityForm {
    Q_OBJECT
public:
    Y2fractions();

    QVector<PictureCell*> Image1; // the 16 cells, a 4 x 4 grid filled in index order
    QLabel* Label1; // the instruction
    QLabel* Label2; // the answer or hint message, in the instruction's place
    QLabel* Label8; // the end-of-run message
    QLabel* Label3; // opening panel: "Good Luck."
    QLabel* Label4; // opening panel: the title
    QLabel* Label6; // opening panel: what to aim for (the menu writes its prompt here)
    QFrame* Frame1; // the 10/20 question options
    QFrame* Frame2; // the board
    FormTimer* Timer1; // a hint or an empty answer ends: the instruction comes back
    FormTimer* Timer2; // quick check (not switched on by the screen)
    FormTimer* Timer3; // the pause after an answer, then the next question
    FormTimer* Timer4; // a hook for each picture set
    FormTimer* Timer5; // after a half question
    FormTimer* Timer6; // after a quarter question

    // The question on the board, and the set of the one before it.
    Halves::Question question;
    int lastset = 0;

    // Cells whose Appearance is 1.
    int selectedCount() const;

    void clearBoardAtEnd() override;
    QRect boardArea() const override;
    bool giveRightAnswer() override;

    static constexpr int kTimer1Ms = 2500;
    static constexpr int kTimer2Ms = 1000;
    static constexpr int kTimer3Ms = 3000;
    static constexpr int kQuickTimer3Ms = 500;
    static constexpr int kTimer4Ms = 2000;
    static constexpr int kTimer5Ms = 100;
    static constexpr int kTimer6Ms = 100;

public slots:
    void Form_Load();
    void cmdcheck_Click();
    void cmdhint_Click();
    void cmdstart_Click();
    void cmdprint_Click();
    void cmdexit_Click();
    void Image1_Click(int index);
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer();
    void Timer5_Timer();
    void Timer6_Timer();

private:
    void resetpics();
    void resetform();
    void switchon();
    void switchoff();
    void newquestion();
    void layOut();
};
