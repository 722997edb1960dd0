#include "grey.h"

#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/random.h"
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

void Grey::Timer1_Timer()
{
    // The stars: a fresh retry screen, which plays them since retry is 0 here.
    Forms::unload(QStringLiteral("Reward"));
    Forms::show(QStringLiteral("Reward"));
    const int n = static_cast<int>(Random::Rnd() * kHarpCount) + 1;
    m_harpFile = QStringLiteral("wav\\harp%1.wav").arg(n);
    Timer1->setEnabled(false);
}

void Grey::Timer2_Timer()
{
    // A hook for the activities' loads: with sound offered, the number of
    // visits could choose a greeting. No sound is played, so it only ends.
    Timer2->setEnabled(false);
}
