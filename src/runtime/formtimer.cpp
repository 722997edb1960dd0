#include "formtimer.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

FormTimer::FormTimer(QObject* parent, const QString& name, int intervalMs)
    : QTimer(parent)
{
    setObjectName(name);
    setTimerType(Qt::CoarseTimer);
    setDesignInterval(intervalMs);
}

void FormTimer::setEnabled(bool on)
{
    if (!on)
        stop();
    else if (!isActive())
        start();
}

void FormTimer::setDesignInterval(int ms)
{
    setInterval(std::max(ms, shortestTick()));
}

int FormTimer::shortestTick()
{
    constexpr double kFallbackHz = 60.0;
    double hz = kFallbackHz;
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        hz = screen->refreshRate() > 1.0 ? screen->refreshRate() : kFallbackHz;
    hz = std::min(hz, kFallbackHz); // faster panels need not cost more
    return static_cast<int>(std::ceil(1000.0 / hz));
}
