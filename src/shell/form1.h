#pragma once
// The settings screen, shown on the first run: the choice between the
// primary edition (Year 2..6) and the secondary edition (Unit 1..5), and
// whether the year menu offers sound. Every choice is written when clicked.
#include "runtime/form.h"

class QCheckBox;
class QFrame;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

class Form1 : public Form {
    Q_OBJECT
public:
    Form1();

    QPushButton* Command1;
    QGroupBox* Frame1;
    QRadioButton* Option2;
    QRadioButton* Option1;
    QCheckBox* Check2;
    QLabel* Label3;
    QFrame* Frame2;

    // The keyboard starts on OK: the choices shown are already the saved ones.
    QWidget* firstControl() const override;

public slots:
    void Form_Load();
    void Option1_Click();
    void Option2_Click();
    void Check2_Click();
    void Command1_Click();

protected:
    // Escape and the close box are OK: the choices are already saved, and
    // the program ends only from the title screen.
    void wayBack() override;

private:
    void chooseEdition(const QString& value);
    // Writes a settings file; the first failure is told once, naming the folder.
    void save(const QString& fileName, const QString& value);
    bool m_toldUnwritable = false;
};
