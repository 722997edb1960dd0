#pragma once
// The hidden screen that holds two one-shot timers the other screens switch
// on: Timer1 brings up the stars after a right answer, with a harp; Timer2
// greets the child with a harp when an activity screen loads. Grey is loaded
// once and never shown. The harps sound only while "Play Sound" is ticked.
#include "runtime/form.h"

class FormTimer;

class Grey : public Form {
    Q_OBJECT
public:
    Grey();

    FormTimer* Timer1;
    FormTimer* Timer2;

    // The sound file that Timer1 last chose ("wav\harp3.wav"), played with sound on.
    QString harpFile() const { return m_harpFile; }

    static constexpr int kStarsDelayMs = 100;
    static constexpr int kVisitsHookMs = 1000;
    static constexpr int kHarpCount = 5;
    // The sweep up the strings that greets the child in an activity, for the
    // first few activities of a session only, so it never grows tiresome.
    static constexpr int kGreetingHarp = 3;
    static constexpr int kGreetedVisits = 4; // greeted while visits is below this
    // The gentle falling one, with the message that the Challenge begins again.
    static constexpr int kRetryHarp = 4;

    // "wav\harp3.wav"
    static QString harpName(int n);
    // Plays harp n when the child has "Play Sound" ticked (soundoption 1).
    static void playHarp(int n);

public slots:
    void Form_Load();
    void Timer1_Timer();
    void Timer2_Timer();

private:
    QString m_harpFile;
};
