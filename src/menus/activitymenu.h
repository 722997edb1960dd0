#pragma once
// The activity menus: one design for every year. Each menu lists its
// activities as a button beside a title; a button sets practice mode, writes
// the activity screen's prompt and window title, and opens it. "Goodbye"
// goes back to the menu above. The six menus differ only in their rows of
// data (menudesigns.cpp); their buttons are the activity table's rows.
#include "activities/activitytable.h"
#include "logo.h"
#include "runtime/form.h"

#include <QVector>

class FormTimer;
class PictureBox;
class QLabel;
class QPushButton;

namespace Menus {

struct Design {
    const char* name;       // "y2Intro"
    const char* caption;    // the window title
    const char* yearLabel;  // "Year 2"
    const char* unitLabel;  // "Unit 1"
    Logo::Frames logo;
    const char* goodbye;    // where "Goodbye" leads
    bool secondStartupTimer; // Timer2 of the start-up chain
};

extern const Design y2Intro;
extern const Design y3Intro;
extern const Design y4Intro;
extern const Design y5Intro;
extern const Design y5Intro2;
extern const Design y6Intro;
// All six, in the order above.
const QVector<const Design*>& all();

} // namespace Menus

class ActivityMenu : public Form {
    Q_OBJECT
public:
    explicit ActivityMenu(const Menus::Design& design);

    const Menus::Design& design() const { return m_design; }

    FormTimer* Timer4; // logo animation
    PictureBox* Picture1; // logo frame
    PictureBox* Picture2; // the publisher's logo
    FormTimer* Timer1;
    FormTimer* Timer2; // nullptr where the chain has one timer
    QVector<QPushButton*> buttons; // beside Label12(0), Label12(1), ...: the table's rows of this menu
    QPushButton* Command4; // "Goodbye"
    QVector<QLabel*> Label12;
    QLabel* Label1; // the year or unit
    QLabel* Label4; // "Partitude"

public slots:
    void Form_Load();
    void Command4_Click();
    void Timer4_Timer();
    void Timer1_Timer();
    void Timer2_Timer();

    // The activities are a list beside the logo's column: Tab reads the list
    // top to bottom, then comes to Goodbye under the logo.
    QList<QWidget*> tabOrder() const override;

protected:
    // Escape and the close box say Goodbye.
    void wayBack() override;

private:
    void open(const Activities::Row& activity);

    const Menus::Design& m_design;
};

// The six menus, one class each so every screen has its own name.
class y2Intro : public ActivityMenu {
    Q_OBJECT
public:
    y2Intro() : ActivityMenu(Menus::y2Intro) {}
};
class y3Intro : public ActivityMenu {
    Q_OBJECT
public:
    y3Intro() : ActivityMenu(Menus::y3Intro) {}
};
class y4Intro : public ActivityMenu {
    Q_OBJECT
public:
    y4Intro() : ActivityMenu(Menus::y4Intro) {}
};
class y5Intro : public ActivityMenu {
    Q_OBJECT
public:
    y5Intro() : ActivityMenu(Menus::y5Intro) {}
};
class y5Intro2 : public ActivityMenu {
    Q_OBJECT
public:
    y5Intro2() : ActivityMenu(Menus::y5Intro2) {}
};
class y6Intro : public ActivityMenu {
    Q_OBJECT
public:
    y6Intro() : ActivityMenu(Menus::y6Intro) {}
};
