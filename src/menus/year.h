#pragma once
// The year menu, the program's main menu. The child picks a year (or a unit
// in the secondary edition); that sets the year label and the run length
// the year's activities ask for, and opens the year's activity menu. The
// door goes back to the title screen.
#include "runtime/form.h"

#include <QVector>

class FormTimer;
class PictureBox;
class QCheckBox;
class QFrame;
class QLabel;
class QPushButton;

class Year : public Form {
    Q_OBJECT
public:
    Year();

    FormTimer* Timer4; // logo animation
    PictureBox* Picture2; // the publisher's logo
    FormTimer* Timer3;
    FormTimer* Timer2;
    FormTimer* Timer1;
    QCheckBox* Check1;
    PictureBox* Picture1; // logo animation frame
    QPushButton* Command6; // Year 5
    QPushButton* Command1; // Year 6
    QPushButton* Command3; // Year 4
    QPushButton* Command5; // Year 2
    QPushButton* Command2; // Year 3
    QPushButton* Command4; // the door back to the title screen
    QFrame* Frame1;
    QLabel* Label3; // the publisher's web address
    QVector<QLabel*> Label12; // "Year 2" .. "Year 6"
    QLabel* Label2;
    QLabel* Label4;

    // What each year button sets and opens, in year order.
    struct Choice {
        const char* button;
        const char* yearLabel;
        const char* unitLabel;
        int streak;
        const char* menu;
    };
    static const Choice kChoices[5];

public slots:
    void Form_Load();
    void Command4_Click();
    void Timer4_Timer();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Label3_Click();
    void Check1_Click();

protected:
    // Escape and the close box are the door: back to the title screen.
    void wayBack() override;

private:
    // A year button's click: the label and run length, then its menu.
    void choose(const Choice& choice);
};
