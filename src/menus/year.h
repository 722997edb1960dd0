#pragma once
// The year menu: the program's main menu. For now it carries the title and
// the door back to the title screen; the year buttons come with the
// activity menus.
#include "runtime/form.h"

class QLabel;
class QPushButton;

class Year : public Form {
    Q_OBJECT
public:
    Year();

    QPushButton* Command4; // the door back to the title screen
    QLabel* Label4;

public slots:
    void Form_Load();
    void Command4_Click();
};
