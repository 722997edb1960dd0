#pragma once
// Answers one activity's questions rightly, as fast as its timers allow:
// Start, the right answer, every running timer ticked until the next
// question, the certificate left (which arms the Challenge), and back in
// from the menu when a won Challenge went there.
#include "activities/activitytable.h"
#include "runtime/form.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "shell/activityform.h"
#include "testsupport.h"

#include <QPointer>
#include <QPushButton>
#include <QTimerEvent>

namespace Play {

// What the event loop would do after an event, short of timers: the window
// system's events (a window shown, activated, hidden), posted events
// (layout, painting) and the screens unloaded during the event. Without it
// those events pile up, and a heap that only holds them looks like a leak.
inline void settle()
{
    QWindowSystemInterface::flushWindowSystemEvents(QEventLoop::AllEvents);
    QCoreApplication::sendPostedEvents();
    TestSupport::flushUnloads();
}

class Answering {
public:
    explicit Answering(const Activities::Row& row) : m_row(row) {}

    // Plays until `count` more right answers were taken; false if the
    // activity stopped taking them (a stuck screen).
    bool answer(int count)
    {
        constexpr int kMostEventsPerAnswer = 500;
        for (int events = 0; count > 0; ++events) {
            if (events > kMostEventsPerAnswer)
                return false;
            if (next()) {
                --count;
                events = 0;
            }
            settle();
        }
        return true;
    }

    int taken() const { return m_taken; }

    // Where a stuck play stands: the screens loaded and the timers running.
    static QString where()
    {
        QStringList parts;
        for (const QString& name : Forms::loadedNames()) {
            Form* form = Forms::find(name);
            QStringList timers;
            for (FormTimer* timer : form->findChildren<FormTimer*>())
                if (timer->isActive())
                    timers << timer->objectName();
            parts << QStringLiteral("%1%2%3 [%4]")
                         .arg(name, form->isVisible() ? QString() : QStringLiteral(" hidden"),
                              form->isEnabled() ? QString() : QStringLiteral(" disabled"), timers.join(QLatin1Char(' ')));
        }
        return parts.join(QStringLiteral(", "));
    }

    // Every running timer of the loaded screens ticks once; false if none runs.
    static bool tickRunningTimers()
    {
        QList<QPointer<FormTimer>> running;
        for (const QString& name : Forms::loadedNames())
            if (Form* form = Forms::find(name))
                for (FormTimer* timer : form->findChildren<FormTimer*>())
                    if (timer->isActive())
                        running << timer;
        for (const QPointer<FormTimer>& timer : running) {
            if (timer && timer->isActive()) {
                QTimerEvent tick(timer->timerId());
                QCoreApplication::sendEvent(timer, &tick);
            }
        }
        return !running.isEmpty();
    }

private:
    bool next()
    {
        const QString screen = QString::fromLatin1(m_row.screen);
        if (Form* certificate = Forms::find(QStringLiteral("Welldone"))) {
            certificate->findChild<QPushButton*>(QStringLiteral("cmdexit"))->click();
            return false;
        }
        auto* form = static_cast<ActivityForm*>(Forms::find(screen));
        if (!form || !form->isVisible()) {
            Forms::showAndUnload(screen, Forms::find(QString::fromLatin1(m_row.menu)));
            return false;
        }
        if (form->giveRightAnswer()) {
            ++m_taken;
            m_idle = 0;
            return true;
        }
        // Between runs only timers that change nothing may be running (a
        // logo, an instruction that hides itself): Start once they had time.
        constexpr int kIdleBeforeStart = 120;
        if (++m_idle < kIdleBeforeStart && tickRunningTimers())
            return false;
        m_idle = 0;
        if (form->cmdstart->isEnabled())
            form->cmdstart->click();
        return false;
    }

    const Activities::Row& m_row;
    int m_taken = 0;
    int m_idle = 0;
};

} // namespace Play
