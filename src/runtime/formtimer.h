#pragma once
// A timer control on a screen. It is switched on and off as the screens
// design it (Enabled), has an interval in milliseconds, and never ticks faster
// than the display can show a change, so a 1 ms interval cannot spin a core.
#include <QTimer>

class FormTimer : public QTimer {
    Q_OBJECT
public:
    FormTimer(QObject* parent, const QString& name, int intervalMs);

    // Enabling a running timer leaves its countdown alone; enabling a stopped
    // one starts a fresh interval.
    void setEnabled(bool on);
    bool isEnabled() const { return isActive(); }

    // The design's Interval, raised to the shortest useful tick.
    void setDesignInterval(int ms);

    // The shortest tick: one frame of the display (about 16 ms at 60 Hz).
    static int shortestTick();
};
