#pragma once
// The title screen: the first screen of every run. It reads the two settings
// files, plays the turning sphere, and leads on to the year menu (or, on the
// very first run, to the settings screen). Its Exit ends the program.
#include "runtime/form.h"
#include "runtime/pictures.h"

class FormTimer;
class PictureBox;
class QFrame;
class QLabel;
class QPushButton;

class Titlefrm : public Form {
    Q_OBJECT
public:
    Titlefrm();

    QFrame* Frame1;
    FormTimer* Timer1;
    PictureBox* Picture1;
    QPushButton* Command2; // "Exit"
    QPushButton* Command1; // "OK", or "Cancel" when the year menu sent us back
    QLabel* Label3;
    QLabel* Label2;
    QLabel* Label4;

    // "gif\sphfra\sphf0007.jpg": animation frame n, 0..49.
    static QString frameFile(int n);
    static constexpr int kFrameCount = 50;
    static constexpr int kAnimationIntervalMs = 1;

public slots:
    void Form_Load();
    void Timer1_Timer();
    void Command1_Click();
    void Command2_Click();

protected:
    // The close box ends the program as Exit does. Escape does nothing here
    // (the screen has no way back), so no child leaves by accident.
    void closeBoxPressed() override;

private:
    bool readSettings();

    // The sphere's frames, decoded once while the screen lives.
    Pictures::Keep m_frames{QStringLiteral("gif\\sphfra\\")};
};
