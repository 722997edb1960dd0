#include "player.h"

#include "answering.h"
#include "invariants.h"
#include "runtime/form.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/options.h"
#include "rewards/reward.h"
#include "runtime/pictures.h"
#include "shell/activityform.h"
#include "shell/module1.h"
#include "shell/startup.h"
#include "testsupport.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimerEvent>
#include <QUrl>
#include <QWindow>
#include <QtTest>

namespace Play {
namespace {

// How often each kind of event comes, out of the sum of a row. A diligent
// stretch answers whatever is asked and lets the timers run, so runs reach
// the certificate and the Challenge's end; a restless one clicks and types.
struct Weights {
    int timer, click, key, rightAnswer, slip, closeBox;
};
constexpr Weights kRestless{30, 42, 20, 3, 2, 2};
constexpr Weights kDiligent{45, 10, 4, 40, 2, 1};
// A slip: a few clicks or digits on the board, then Check.
constexpr int kMostSlipTouches = 5;
constexpr int kShortestMood = 50;
constexpr int kLongestMood = 600;

// A click lands on the control's centre, or now and then anywhere on it.
constexpr int kCentreOneIn = 2;
// Most clicks go where the child can use them: the window in front.
constexpr int kAnyWindowOneIn = 5;

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* name;
    const char* text;
};
const Key kKeys[] = {
    {Qt::Key_Tab, Qt::NoModifier, "Tab", "\t"},          {Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab", ""},
    {Qt::Key_Return, Qt::NoModifier, "Return", "\r"},    {Qt::Key_Enter, Qt::KeypadModifier, "Enter", "\r"},
    {Qt::Key_Space, Qt::NoModifier, "Space", " "},       {Qt::Key_Escape, Qt::NoModifier, "Escape", "\x1b"},
    {Qt::Key_Left, Qt::NoModifier, "Left", ""},          {Qt::Key_Right, Qt::NoModifier, "Right", ""},
    {Qt::Key_Up, Qt::NoModifier, "Up", ""},              {Qt::Key_Down, Qt::NoModifier, "Down", ""},
    {Qt::Key_F11, Qt::NoModifier, "F11", ""},            {Qt::Key_Backspace, Qt::NoModifier, "Backspace", "\b"},
};
constexpr int kKeyCount = int(sizeof(kKeys) / sizeof(kKeys[0]));
constexpr int kDigitsAndLetters = 36;

// Clicks and keys as the window system delivers them.
int g_clock = 0;
constexpr int kEventGapMs = 1000; // never a double click

void deliverKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
}

// The windows on show, in a fixed order: the order they were made in.
QWidgetList windowsOnShow()
{
    QWidgetList windows;
    for (const QString& name : Forms::loadedNames())
        if (Form* form = Forms::find(name); form && form->isVisible())
            windows << form;
    return windows;
}

QString describe(const QWidget* control)
{
    QStringList names;
    for (const QWidget* w = control; w; w = w->isWindow() ? nullptr : w->parentWidget())
        if (!w->objectName().isEmpty())
            names.prepend(w->objectName());
    return names.join(QLatin1Char('/'));
}

QString describe(const MsgBox::Request& request)
{
    QString text = request.text.simplified();
    constexpr int kShown = 60;
    if (text.size() > kShown)
        text = text.left(kShown) + QStringLiteral("...");
    return QStringLiteral("\"%1\"").arg(text);
}

// Qt's warnings during play: each is a fault of the program (a sentence
// with a placeholder left over, a layout that cannot fit), except the
// offscreen platform's notes about what it cannot do.
QStringList g_warnings;
QtMessageHandler g_previousHandler = nullptr;

bool isPlatformNote(const QString& message)
{
    return message.contains(QLatin1String("This plugin does not support")) || message.startsWith(QLatin1String("QStandardPaths:"));
}

void keepWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isPlatformNote(message))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        g_warnings << message;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

} // namespace

// QTest's own QWindow clicks also run the event loop afterwards, where a
// timer whose interval has passed on the clock would tick: that would make a
// seed's play depend on how fast the machine is.
void deliverClick(QWindow* target, const QPoint& at)
{
    const QPointer<QWindow> window(target);
    const QPointF local(at);
    const QPointF global = window->mapToGlobal(at);
    g_clock += kEventGapMs;
    qt_handleMouseEvent(window, local, global, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress, Qt::NoModifier, g_clock);
    g_clock += kEventGapMs;
    if (window) // the press may have taken the window away
        qt_handleMouseEvent(window, local, global, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease, Qt::NoModifier, g_clock);
}

Player::Player(std::uint64_t seed)
    : m_rnd(seed)
{
    g_warnings.clear();
    g_previousHandler = qInstallMessageHandler(keepWarnings);
    QHashSeed::setDeterministicGlobalSeed();
    Random::fixSeed(seed);
    MsgBox::setHandler([this](const MsgBox::Request& r) { return answerBox(r); });
    // The publisher's site is never opened; the click is noted instead.
    m_site.opened = [this](const QUrl& url) { note(QStringLiteral("  site %1 not opened").arg(url.toString())); };
    for (const QString& scheme : {QStringLiteral("http"), QStringLiteral("https")})
        QDesktopServices::setUrlHandler(scheme, &m_site, "open");
}

Player::~Player()
{
    qInstallMessageHandler(g_previousHandler);
    for (const QString& scheme : {QStringLiteral("http"), QStringLiteral("https")})
        QDesktopServices::unsetUrlHandler(scheme);
    MsgBox::setHandler({});
    TestSupport::unloadAll();
}

void Player::start()
{
    TestSupport::unloadAll();
    Module1::reset();
    StartOptions options;
    options.assetFolder = Pictures::assetFolder();
    options.settingsFolder = m_settings.path();
    options.pdfFolder = m_pdf.path();
    startProgram(options);
    ++m_reached.starts;
    note(QStringLiteral("start"));
    settle();
}

Player::Kind Player::chooseKind()
{
    if (m_moodLeft <= 0) {
        m_diligent = m_rnd.below(2) == 0;
        m_moodLeft = m_rnd.between(kShortestMood, kLongestMood);
    }
    --m_moodLeft;
    const Weights& w = m_diligent ? kDiligent : kRestless;
    int pick = m_rnd.below(w.timer + w.click + w.key + w.rightAnswer + w.slip + w.closeBox);
    for (const auto& [kind, weight] : {std::pair{Kind::Timer, w.timer}, std::pair{Kind::Click, w.click},
                                       std::pair{Kind::Key, w.key}, std::pair{Kind::RightAnswer, w.rightAnswer},
                                       std::pair{Kind::Slip, w.slip}}) {
        if (pick < weight)
            return kind;
        pick -= weight;
    }
    return Kind::CloseBox;
}

QString Player::step()
{
    ++m_reached.events;
    bool done = false;
    switch (chooseKind()) {
    case Kind::Timer: done = fireTimer(); break;
    case Kind::Click: done = click(); break;
    case Kind::Key: done = key(); break;
    case Kind::RightAnswer: done = rightAnswer(); break;
    case Kind::Slip: done = slip(); break;
    case Kind::CloseBox: done = closeBox(); break;
    }
    // With nothing of that kind to do, the child clicks, or waits a tick.
    if (!done && !click() && !fireTimer())
        note(QStringLiteral("nothing to do"));
    settle();
    QString broken = brokenInvariant();
    if (broken.isEmpty() && !g_warnings.isEmpty())
        broken = QStringLiteral("Qt warned: ") + g_warnings.takeFirst();
    if (broken.isEmpty() && Forms::programEnded()) {
        start();
        broken = brokenInvariant();
    }
    return broken;
}

bool Player::fireTimer()
{
    QList<FormTimer*> running;
    for (const QString& name : Forms::loadedNames())
        if (Form* form = Forms::find(name))
            for (FormTimer* timer : form->findChildren<FormTimer*>())
                if (timer->isActive())
                    running << timer;
    if (running.isEmpty())
        return false;
    FormTimer* timer = running[m_rnd.below(int(running.size()))];
    note(QStringLiteral("tick %1/%2").arg(timer->parent()->objectName(), timer->objectName()));
    // The tick the event loop would deliver when the interval is up.
    QTimerEvent tick(timer->timerId());
    QCoreApplication::sendEvent(timer, &tick);
    return true;
}

bool Player::click()
{
    const QWidgetList windows = windowsOnShow();
    if (windows.isEmpty())
        return false;
    const OnShow shown = onShow();
    QWidgetList targets = windows;
    if (shown.front && m_rnd.below(kAnyWindowOneIn) != 0)
        targets = {shown.front};
    QWidgetList controls;
    for (QWidget* window : targets)
        for (QWidget* control : window->findChildren<QWidget*>())
            if (!control->objectName().isEmpty() && control->isVisible() && control->isEnabled()
                && !control->size().isEmpty())
                controls << control;
    if (controls.isEmpty())
        return false;
    QWidget* control = controls[m_rnd.below(int(controls.size()))];
    QPoint at = control->rect().center();
    if (m_rnd.below(kCentreOneIn) != 0)
        at = QPoint(m_rnd.below(control->width()), m_rnd.below(control->height()));
    clickAt(control, at);
    return true;
}

void Player::clickAt(QWidget* control, const QPoint& at)
{
    QWidget* window = control->window();
    const QPoint inWindow = control->mapTo(window, at);
    note(QStringLiteral("click %1 at %2,%3").arg(describe(control)).arg(inWindow.x()).arg(inWindow.y()));
    deliverClick(window->windowHandle(), inWindow);
}

bool Player::key()
{
    QWindow* target = QGuiApplication::focusWindow();
    const OnShow shown = onShow();
    if ((!target || !target->isVisible()) && shown.front)
        target = shown.front->windowHandle();
    if (!target)
        return false;
    const int pick = m_rnd.below(kKeyCount + kDigitsAndLetters);
    if (pick < kKeyCount) {
        const Key& k = kKeys[pick];
        note(QStringLiteral("key %1 into %2").arg(QLatin1String(k.name), target->objectName()));
        deliverKey(target, k.key, k.modifiers, QString::fromLatin1(k.text));
    } else {
        const int n = pick - kKeyCount;
        const char c = n < 10 ? char('0' + n) : char('a' + n - 10);
        note(QStringLiteral("key %1 into %2").arg(QLatin1Char(c)).arg(target->objectName()));
        deliverKey(target, n < 10 ? Qt::Key_0 + n : Qt::Key_A + n - 10, Qt::NoModifier, QString(QLatin1Char(c)));
    }
    return true;
}

bool Player::rightAnswer()
{
    // The child answers the activity in front, not one behind a box.
    QWidget* front = onShow().front;
    if (front && front->objectName() == QLatin1String("Welldone")) {
        // Leaving the certificate arms the Challenge.
        auto* leave = front->findChild<QPushButton*>(QStringLiteral("cmdexit"));
        if (!leave || !leave->isEnabled())
            return false;
        clickAt(leave, leave->rect().center());
        return true;
    }
    auto* form = qobject_cast<ActivityForm*>(front);
    if (!form)
        return false;
    note(QStringLiteral("right answer on %1").arg(form->objectName()));
    if (form->giveRightAnswer()) {
        ++m_reached.rightAnswers;
        return true;
    }
    // No question waits: once nothing is running, a run (or the Challenge) begins.
    const QList<FormTimer*> timers = form->findChildren<FormTimer*>();
    const bool waiting = std::any_of(timers.cbegin(), timers.cend(), [](const FormTimer* t) { return t->isActive(); })
        || Forms::isLoaded(QStringLiteral("Reward"));
    if (waiting || !form->isEnabled() || !form->cmdstart->isEnabled())
        return false;
    clickAt(form->cmdstart, form->cmdstart->rect().center());
    return true;
}

bool Player::slip()
{
    QPointer<ActivityForm> form = qobject_cast<ActivityForm*>(onShow().front);
    if (!form || !form->isEnabled() || !form->cmdcheck->isEnabled())
        return false;
    note(QStringLiteral("slip on %1").arg(form->objectName()));
    QList<QPointer<QWidget>> board;
    for (QWidget* control : form->findChildren<QWidget*>())
        if (isUsable(control) && !control->objectName().isEmpty()
            && form->boardArea().contains(control->mapTo(form, control->rect().center())))
            board << control;
    const int touches = 1 + m_rnd.below(kMostSlipTouches);
    for (int n = 0; n < touches && !board.isEmpty(); ++n) {
        QWidget* control = board[m_rnd.below(int(board.size()))];
        if (!form || !control || !isUsable(control))
            continue;
        clickAt(control, control->rect().center());
        if (control && qobject_cast<QLineEdit*>(control) && control->hasFocus()) {
            const char digit = char('0' + m_rnd.below(10));
            note(QStringLiteral("  types %1 and Return").arg(QLatin1Char(digit)));
            deliverKey(control->window()->windowHandle(), Qt::Key_0 + (digit - '0'), Qt::NoModifier, QString(QLatin1Char(digit)));
            if (control)
                deliverKey(control->window()->windowHandle(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        }
        settle();
    }
    if (form && form->isEnabled() && form->cmdcheck->isEnabled() && form->cmdcheck->isVisible())
        clickAt(form->cmdcheck, form->cmdcheck->rect().center());
    return true;
}

bool Player::closeBox()
{
    const QWidgetList windows = windowsOnShow();
    if (windows.isEmpty())
        return false;
    QWidget* window = windows[m_rnd.below(int(windows.size()))];
    note(QStringLiteral("close box of %1").arg(window->objectName()));
    TestSupport::pressCloseBox(window);
    return true;
}

MsgBox::Answer Player::answerBox(const MsgBox::Request& request)
{
    ++m_reached.boxes;
    MsgBox::Answer answer = MsgBox::Answer::Ok;
    if (request.buttons == MsgBox::Buttons::YesNo)
        answer = m_rnd.below(2) == 0 ? MsgBox::Answer::Yes : MsgBox::Answer::No;
    const char* words = answer == MsgBox::Answer::Ok ? "OK" : answer == MsgBox::Answer::Yes ? "Yes" : "No";
    note(QStringLiteral("  box %1 answered %2").arg(describe(request), QLatin1String(words)));
    return answer;
}

void Player::settle()
{
    Play::settle();
    count();
}

void Player::count()
{
    for (QWidget* w : windowsOnShow())
        if (!m_seen.contains(w->objectName()))
            m_seen << w->objectName();
    QWidget* certificate = Forms::find(QStringLiteral("Welldone"));
    if (certificate && certificate != m_lastCertificate) {
        ++m_reached.certificates;
        if (Module1::challenge > 0)
            ++m_reached.challengesWon;
    }
    m_lastCertificate = certificate;
    // The retry panel says the Challenge begins again; the stars use it too.
    auto* retryPanel = Forms::find<Reward>();
    if (retryPanel && retryPanel != m_lastRetryPanel && retryPanel->Label1->isVisible())
        ++m_reached.retryPanels;
    m_lastRetryPanel = retryPanel;
}

void Player::note(const QString& event)
{
    const QString line = event.startsWith(QLatin1Char(' ')) ? event : QStringLiteral("#%1 %2").arg(m_reached.events).arg(event);
    m_last.push_back(line);
    while (m_last.size() > kRemembered)
        m_last.pop_front();
    if (m_echo)
        m_echo(line);
}

QStringList Player::screensSeen() const
{
    QStringList seen = m_seen;
    seen.sort();
    return seen;
}

} // namespace Play
