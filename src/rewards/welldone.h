#pragma once
// The certificate screen, shown at the end of a run: after practice the
// child is ready for the Challenge; after a Challenge it celebrates. The
// child types a name and prints a certificate once. Leaving it arms the
// Challenge.
#include "runtime/form.h"

class FormTimer;
class PictureBox;
class QLabel;
class QLineEdit;
class QPushButton;

class Welldone : public Form {
    Q_OBJECT
public:
    Welldone();

    QLabel* Label1;
    PictureBox* Picture1;
    QLineEdit* Text1; // the child's name
    QLabel* Label2;
    QPushButton* Command2; // "Print Certificate"
    QPushButton* cmdexit;
    FormTimer* Timer1; // picks a celebration after a Challenge
    FormTimer* Timer2; // puts the focus into the name box
    FormTimer* Timer3; // celebration frames
    FormTimer* Timer4;

    static constexpr int kTimer1Ms = 400;
    static constexpr int kTimer2Ms = 100;
    static constexpr int kTimer3Ms = 80;
    static constexpr int kTimer4Ms = 1000;

    // The celebration playing, and its frame.
    QString animationBase() const;
    int animationFrames() const;
    int frame() const { return m_frame; }

    // The banner across the top of the certificate.
    static QString banner();

public slots:
    void Form_Load();
    void cmdexit_Click();
    void Command2_Click();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // Escape and the close box leave as the door does.
    void wayBack() override;

private:
    void printcertificate();

    int m_pick = 0; // in the list of celebrations
    int m_frame = 0;
};
