#pragma once
// Every activity of the program, one row each: the menu and button that open
// it, its screen, its title, the prompt the menu writes into it, and its
// worksheet. The menus, the screen registry, Exit and Print all read this one
// table, so an activity is added by adding its row.
#include "worksheets/generatedsheet.h"

#include <QString>
#include <QVector>

class Form;

namespace Random {
class Source;
}

namespace Activities {

// The prompt an activity button writes into its screen's Label6.
enum class Prompt { EitherTenOrTwenty, TenOrTwenty };
QString promptText(Prompt prompt);

struct Row {
    const char* menu;   // the menu that lists it: "y2Intro"
    const char* button; // its button there: "Command5"
    const char* title;  // "Halves and Quarters 1", beside the button and on the certificate
    const char* screen; // the screen it opens
    Prompt prompt = Prompt::EitherTenOrTwenty;
    // The screen, built afresh; nullptr only on a row whose button opens a
    // sub-menu.
    Form* (*make)() = nullptr;
    // A designed worksheet's print form ("y2fracprint1"); nullptr when the
    // worksheet is generated from the activity's own questions.
    const char* printForm = nullptr;
    // The worksheet made from 12 fresh questions when it is printed.
    Worksheets::Sheet (*sheet)(Random::Source& rnd) = nullptr;
    bool subMenu = false; // the button opens another menu, not an activity
};

// The row's title in the reader's language.
QString titleText(const Row& row);

// All rows, each menu's rows in the order its buttons stand, top to bottom.
const QVector<Row>& all();
// The rows of one menu, top to bottom.
QVector<const Row*> onMenu(const QString& menu);
// The row of a screen, or nullptr.
const Row* forScreen(const QString& screen);

// Registers every built activity's screen by name.
void registerScreens();

} // namespace Activities
