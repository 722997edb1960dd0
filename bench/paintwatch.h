#pragma once
// Times an action (a click) until the screen it leads to is drawn: painted
// and flushed to the X server.
//
// How "drawn" is seen. A raster top-level widget is painted in one go by its
// repaint manager, which paints every dirty widget into the window's backing
// store and then flushes the store to the window. That happens inside one of
// two events: the window's Expose (a window just mapped, or uncovered) or the
// top-level widget's UpdateRequest (something on it changed). The watch, an
// application-wide event filter, takes those two events of the watched
// screen, delivers them itself, and when the delivery has painted something
// (a Paint event reached one of the screen's widgets meanwhile) or the
// Expose was answered from the backing store, makes a round trip to the X
// server, so the image has been taken by the server, and stops the clock.
#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

class QWidget;

class PaintWatch : public QObject {
public:
    static constexpr int kDefaultLimitMs = 5000;

    PaintWatch();
    ~PaintWatch() override;

    // Runs `act`, which returns the name of the screen (a top-level
    // widget's objectName) it should have drawn, or an empty name when it
    // did nothing (then nothing is timed: no value). Otherwise the
    // milliseconds from the start of `act` until that screen was drawn,
    // infinity when it was not drawn within the time limit. The event loop
    // runs meanwhile.
    std::optional<double> time(const std::function<QString()>& act);

    // How long a screen may take to be drawn before it counts as never drawn.
    void setLimitMs(int ms) { m_limitMs = ms; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isWatchedWindow(QObject* watched) const;
    void drawn();

    QString m_screen;
    QElapsedTimer m_clock;
    QEventLoop m_loop;
    bool m_watching = false;
    bool m_delivering = false;
    bool m_painted = false;
    double m_ms = -1;
    int m_limitMs = kDefaultLimitMs;
};
