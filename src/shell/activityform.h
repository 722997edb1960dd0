#pragma once
// What every activity screen has, and what the shared routines of Module1
// reach on it: the five common buttons, the opening panel Picture1 and the
// reward picture Image2. An activity screen derives from this and adds its
// own board; it may rename a control to its own name (the halves board calls
// its reward picture "Image2(0)").
#include "runtime/form.h"

class QPushButton;
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

    // Size of each of the five common buttons, in twips.
    static constexpr int kButtonWidth = 1455;
    static constexpr int kButtonHeight = 855;
};
