#pragma once
// The hidden screen that holds two one-shot timers the other screens switch
// on: Timer1 brings up the stars after a right answer, Timer2 is the hook an
// activity screen starts when it loads. Grey is loaded once and never shown.
#include "runtime/form.h"

class FormTimer;

class Grey : public Form {
    Q_OBJECT
public:
    Grey();

    FormTimer* Timer1;
    FormTimer* Timer2;

    // The sound file that Timer1 last chose ("wav\harp3.wav"); it is not played.
    QString harpFile() const { return m_harpFile; }

    static constexpr int kStarsDelayMs = 100;
    static constexpr int kVisitsHookMs = 1000;
    static constexpr int kHarpCount = 5;

public slots:
    void Form_Load();
    void Timer1_Timer();
    void Timer2_Timer();

private:
    QString m_harpFile;
};
