#pragma once
// Plays the whole program at random, in-process, as a restless child would:
// clicks on whatever is on show (through the window, so stacking and modal
// boxes apply), keys into the focused control, a running timer ticking, a
// message box answered, the close box, and now and then the right answer
// on the activity on show, so runs reach the certificate, the Challenge and
// the retry panel. Every choice comes from one seed, and the program's own
// random source is fixed from it too, so a seed plays the same events again.
#include "runtime/msgbox.h"
#include "runtime/random.h"

#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <functional>

#include <QObject>
#include <QPointer>
#include <QUrl>

class QPoint;
class QWidget;
class QWindow;

namespace Play {

// A left click at `at` in the window, delivered as the window system
// delivers one (press and release, handled before it returns).
void deliverClick(QWindow* target, const QPoint& at);

// Stands in for the browser: the publisher's site is noted, never opened.
class SiteCatcher : public QObject {
    Q_OBJECT
public:
    std::function<void(const QUrl&)> opened;
public slots:
    void open(const QUrl& url)
    {
        if (opened)
            opened(url);
    }
};

class Player {
public:
    explicit Player(std::uint64_t seed);
    ~Player();

    // Starts the program as a fresh process does: every screen unloaded,
    // the shared state as at start-up, the title screen shown. The
    // settings folder stays, as the saved settings do.
    void start();

    // One event, then the screens settle and every invariant is checked;
    // starts the program again when the event ended it. Returns the broken
    // invariant in words, empty when all hold.
    QString step();

    // The last events, oldest first (at most kRemembered).
    const std::deque<QString>& lastEvents() const { return m_last; }
    static constexpr std::size_t kRemembered = 30;

    // Called with each event's description as it happens (a replay prints them).
    void setEcho(std::function<void(const QString&)> echo) { m_echo = std::move(echo); }

    // What the play has reached so far.
    struct Reached {
        int events = 0;
        int starts = 0;
        int rightAnswers = 0;
        int certificates = 0;
        int challengesWon = 0;
        int retryPanels = 0;
        int boxes = 0;
    };
    const Reached& reached() const { return m_reached; }
    QStringList screensSeen() const;

    QString pdfFolder() const { return m_pdf.path(); }

private:
    enum class Kind { Timer, Click, Key, RightAnswer, Slip, CloseBox };

    Kind chooseKind();
    bool fireTimer();
    bool click();
    bool key();
    bool rightAnswer();
    bool closeBox();
    bool slip();
    void clickAt(QWidget* control, const QPoint& at);
    void settle();
    void note(const QString& event);
    MsgBox::Answer answerBox(const MsgBox::Request& request);

    void count();

    Random::Source m_rnd;
    SiteCatcher m_site;
    QPointer<QWidget> m_lastCertificate;
    QPointer<QWidget> m_lastRetryPanel;
    QTemporaryDir m_settings;
    QTemporaryDir m_pdf;
    std::deque<QString> m_last;
    std::function<void(const QString&)> m_echo;
    Reached m_reached;
    QStringList m_seen;
    int m_moodLeft = 0;
    bool m_diligent = false;
};

} // namespace Play
