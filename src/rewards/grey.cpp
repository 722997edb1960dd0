#include "grey.h"

#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/random.h"
#include "runtime/sound.h"
#include "shell/module1.h"

Grey::Grey()
    : Form(QStringLiteral("Grey"))
    , Timer1(addTimer(QStringLiteral("Timer1"), kStarsDelayMs))
    , Timer2(addTimer(QStringLiteral("Timer2"), kVisitsHookMs))
{
    connect(Timer1, &QTimer::timeout, this, &Grey::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Grey::Timer2_Timer);
}

void Grey::Form_Load()
{
    setBackColour(Module1::kActivityBack);
}

QString Grey::harpName(int n)
{
    return QStringLiteral("wav\\harp%1.wav").arg(n);
}

void Grey::playHarp(int n)
{
    if (Module1::soundoption == 1)
        Sound::play(harpName(n));
}

void Grey::Timer1_Timer()
{
    // The stars: a fresh retry screen, which plays them since retry is 0 here.
    Forms::unload(QStringLiteral("Reward"));
    Forms::show(QStringLiteral("Reward"));
    const int n = static_cast<int>(Random::Rnd() * kHarpCount) + 1;
    m_harpFile = harpName(n);
    playHarp(n);
    Timer1->setEnabled(false);
}

void Grey::Timer2_Timer()
{
    // An activity has loaded. With sound on, the harps are made ready for
    // the right answers to come, and the first few activities are greeted.
    if (Module1::soundoption == 1) {
        QStringList harps;
        for (int n = 1; n <= kHarpCount; ++n)
            harps << harpName(n);
        Sound::preload(harps);
        if (Module1::visits < kGreetedVisits)
            playHarp(kGreetingHarp);
    }
    Timer2->setEnabled(false);
}
