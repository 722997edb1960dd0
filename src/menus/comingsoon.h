#pragma once
// The screen an activity opens while it is still being made: it names the
// activity, carries the window title its menu gave it, and says goodbye back
// to that menu.
#include "runtime/form.h"

class PictureBox;
class QLabel;
class QPushButton;

class Comingsoon : public Form {
    Q_OBJECT
public:
    Comingsoon();

    // The activity's title and the menu that opened it.
    void setActivity(const QString& title, const QString& menu);
    QString menu() const { return m_menu; }

    PictureBox* Picture1;
    QLabel* Label1; // the activity's title
    QLabel* Label2; // what the child can do meanwhile
    QPushButton* cmdexit; // "Goodbye"

public slots:
    void Form_Load();
    void cmdexit_Click();

protected:
    // Escape and the close box say Goodbye.
    void wayBack() override;

private:
    QString m_menu;
};
