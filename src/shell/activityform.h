#pragma once
// What every activity screen has, and what the shared routines of Module1
// reach on it: the five common buttons, the opening panel Picture1 and the
// reward picture Image2. An activity screen derives from this and adds its
// own board; it may rename a control to its own name (the halves board calls
// its reward picture "Image2(0)").
#include "runtime/form.h"

class QColor;
class QFrame;
class QLabel;
class Run;
class QPushButton;
class QRadioButton;
class PictureBox;

class ActivityForm : public Form {
    Q_OBJECT
public:
    explicit ActivityForm(const QString& name, QWidget* parent = nullptr);

    QPushButton* cmdprint;
    QPushButton* cmdstart;
    QPushButton* cmdcheck;
    QPushButton* cmdhint;
    QPushButton* cmdexit;
    PictureBox* Picture1;
    PictureBox* Image2;
    // "10 Questions" and "20 Questions": a click sets the run's length.
    QRadioButton* Option1;
    QRadioButton* Option2;

    // The practice -> Challenge -> certificate cycle this screen runs on.
    Run& run() { return *m_run; }

    // What the end of a run takes off the board before the ready text or
    // the way back to the menu.
    virtual void clearBoardAtEnd() {}

    // Where the question stands, in the screen's own coordinates: the stars
    // and the retry message play over it, clear of the buttons and of the
    // reward picture.
    virtual QRect boardArea() const { return rect(); }

    // Gives the right answer to the question on the board and hands it in,
    // as the child would. Returns false, doing nothing, when no question
    // waits for an answer (before Start, while a checked answer shows,
    // while the screen is disabled). For the random play and the tests.
    virtual bool giveRightAnswer() { return false; }

    // The buttons' pictures and the screen's icon, as every activity loads
    // them.
    void loadButtonPictures();
    // Puts the button row above everything else: a tall reward picture
    // reaches up behind it.
    void raiseButtons();
    // The opening panel Picture1 as the board activities lay it out: the
    // title, "Good Luck." and the menu's prompt, across the middle.
    void layOutOpeningPanel(QLabel* title, QLabel* goodLuck, QLabel* prompt);
    // The 10/20 options in their own frame, under the reward picture.
    void layOutOptions(QFrame* frame, const QColor& ink);

    // The first load steps of the board activities: the buttons' pictures,
    // setupform, the back colour of the panel and the options, the opening
    // panel shown.
    void loadAsABoardActivity();

    // Ticks the option that matches the run's length.
    void showQuestionsChoice();
    // Hides the end-of-run label, moves it to the middle of the screen and
    // shows it again with the ready-for-the-Challenge text around streakText.
    static void showReadyMessage(QLabel* label, const QString& streakText);
    static QString readyText(const QString& streakText);

    // Size of each of the five common buttons, in twips.
    static constexpr int kButtonWidth = 1455;
    static constexpr int kButtonHeight = 855;

    // The keyboard starts on Start, not on Print at the head of the row.
    QWidget* firstControl() const override;

protected:
    // Escape and the close box do what Exit does: back to the menu.
    void wayBack() override;

private:
    Run* m_run;
};

// A label in the activities' words: "Times New Roman" bold, centred and
// wrapped, in an ink that stays when its screen is disabled for a moment.
QLabel* wordLabel(QWidget* parent, const QString& name, const QString& text, double points, const QColor& ink);
