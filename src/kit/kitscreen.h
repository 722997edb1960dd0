#pragma once
// The screen every kit activity stands on: the five common buttons, the
// opening panel, the 10/20 options, the reward picture, the instruction and
// message line, and the activity's board. Start poses the first question,
// Check hands the board's verdict to the run, Hint shows the board's worked
// explanation, and the pace timer brings the next question. An activity
// screen is this with its own board:
//
//     class Y2fractions2 : public KitScreen {
//     public:
//         Y2fractions2() : KitScreen(QStringLiteral("Y2fractions2"), new ShapesBoard) {}
//     };
#include "shell/activityform.h"

class FormTimer;
class KitBoard;
class QFrame;
class QLabel;

class KitScreen : public ActivityForm {
    Q_OBJECT
public:
    KitScreen(const QString& name, KitBoard* board);

    KitBoard* board() const { return m_board; }

    QLabel* Label1; // the question
    QLabel* Label2; // praise, the worked answer, a hint or a short message, in Label1's place
    QLabel* Label8; // the end of a run
    QLabel* Label3; // opening panel: "Good Luck."
    QLabel* Label4; // opening panel: the title
    QLabel* Label6; // opening panel: the menu's prompt
    QFrame* Frame1; // the 10/20 options
    QFrame* Frame2; // the board's place
    FormTimer* Timer1; // a short message ends: the same question again
    FormTimer* Timer3; // the pause after an answer, then the next question

    static constexpr int kTimer1Ms = 2500;
    static constexpr int kTimer3Ms = 3000;

    void clearBoardAtEnd() override;
    QRect boardArea() const override;
    bool giveRightAnswer() override;

public slots:
    void Form_Load();
    void cmdstart_Click();
    void cmdcheck_Click();
    void cmdhint_Click();
    void cmdprint_Click();
    void cmdexit_Click();
    void Timer1_Timer();
    void Timer3_Timer();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void newquestion();
    void boardRefused(const QString& message);

    KitBoard* m_board;
};
