#include "paintwatch.h"

#include <QApplication>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <limits>

#if defined(PARTITUDE_BENCH_XCB)
#include <cstdlib>
#include <xcb/xcb.h>
#endif

namespace {

// Waits until the X server has handled every request sent so far (the
// backing store's image among them).
void roundTripToServer()
{
#if defined(PARTITUDE_BENCH_XCB)
    auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return;
    xcb_connection_t* connection = x11->connection();
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
#endif
}

} // namespace

PaintWatch::PaintWatch()
{
    qApp->installEventFilter(this);
}

PaintWatch::~PaintWatch()
{
    qApp->removeEventFilter(this);
}

std::optional<double> PaintWatch::time(const std::function<QString()>& act)
{
    // The screen is known once `act` has run; a screen repainted at once,
    // inside `act`, is not seen, and waits for its next drawing.
    m_screen.clear();
    m_ms = std::numeric_limits<double>::infinity();
    m_watching = true;
    m_clock.start();
    m_screen = act();
    if (m_screen.isEmpty()) {
        m_watching = false;
        return std::nullopt;
    }
    if (m_watching) {
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        limit.start(m_limitMs);
        m_loop.exec();
    }
    m_watching = false;
    return m_ms;
}

bool PaintWatch::isWatchedWindow(QObject* watched) const
{
    if (auto* widget = qobject_cast<QWidget*>(watched))
        return widget->isWindow() && widget->objectName() == m_screen;
    if (auto* window = qobject_cast<QWindow*>(watched))
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->windowHandle() == window)
                return top->objectName() == m_screen;
    return false;
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_watching)
        return false;
    const QEvent::Type type = event->type();
    if (type == QEvent::Paint) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->window()->objectName() == m_screen)
            m_painted = true;
        return false;
    }
    const bool expose = type == QEvent::Expose && watched->isWindowType();
    const bool update = type == QEvent::UpdateRequest && watched->isWidgetType();
    if ((!expose && !update) || m_delivering || !isWatchedWindow(watched))
        return false;
    m_painted = false;
    m_delivering = true;
    watched->event(event);
    m_delivering = false;
    // An Expose of an already painted window is answered by a flush alone.
    if (m_painted || (expose && static_cast<QWindow*>(watched)->isExposed()))
        drawn();
    return true;
}

void PaintWatch::drawn()
{
    roundTripToServer();
    m_ms = m_clock.nsecsElapsed() / 1e6;
    m_watching = false;
    m_loop.quit();
}
