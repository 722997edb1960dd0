#include "fullscreen.h"

#include "form.h"
#include "screenfit.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QWindow>

namespace FullScreen {
namespace {

bool g_on = false;

// Marks a screen whose frame was taken away for full screen (and given back
// when full screen ends); the panels that are frameless by design never are.
const char* const kHostedProperty = "fullScreenHost";

class ScreenHost : public QWidget {
public:
    explicit ScreenHost(Form* form)
        : m_form(form)
    {
        setObjectName(form->objectName() + QStringLiteral("Host"));
        setAccessibleName(form->windowTitle().isEmpty() ? form->objectName() : form->windowTitle());
        setWindowTitle(form->windowTitle());
        setWindowIcon(form->windowIcon());
        setWindowFlag(Qt::FramelessWindowHint);
        setFocusPolicy(Qt::NoFocus);
        setControlBackColour(this, form->backColour().isValid() ? form->backColour() : form->palette().color(QPalette::Window));
        form->installEventFilter(this);
        QObject::connect(form, &QObject::destroyed, this, &QObject::deleteLater);
    }

    // The screen, while it is one (not while it is being taken down).
    Form* form() const { return qobject_cast<Form*>(m_form.data()); }

    // Puts this window over the display, and the screen over the middle of it.
    void cover()
    {
        const QScreen* screen = QGuiApplication::primaryScreen();
        const QRect area = screen ? screen->geometry() : ScreenFit::available();
        // Placed by hand as well, for a display without a window manager.
        setGeometry(area);
        showFullScreen();
        raise();
        QRect placed(QPoint(0, 0), m_form->size());
        placed.moveCenter(area.center());
        m_form->move(ScreenFit::keepInside(placed.topLeft(), placed.size(), area));
        if (m_form->windowHandle())
            m_form->windowHandle()->setTransientParent(windowHandle());
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_form.data()) {
            if (event->type() == QEvent::Show)
                cover();
            else if (event->type() == QEvent::Hide)
                hide();
        }
        return false;
    }

    void closeEvent(QCloseEvent* event) override
    {
        event->ignore();
        if (Form* screen = form(); event->spontaneous() && screen)
            screen->pressCloseBox();
    }

private:
    // Held as a widget: the filter still sees the screen's last events while
    // it is being taken down, when it is no longer a Form.
    QPointer<QWidget> m_form;
};

class ToggleKey : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F11)
            return false;
        // Not while a message waits for an answer: the screens shown again
        // would cover it.
        if (!QApplication::activeModalWidget())
            toggle();
        return true;
    }
};

bool hostable(const Form* form)
{
    return form->property(kHostedProperty).toBool() || !form->windowFlags().testFlag(Qt::FramelessWindowHint);
}

QList<Form*> shownScreens()
{
    QList<Form*> shown;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<Form*>(w); form && form->isVisible() && hostable(form))
            shown << form;
    // The screen in use is shown last, so it ends on top.
    if (auto* active = qobject_cast<Form*>(QApplication::activeWindow()); active && shown.removeOne(active))
        shown << active;
    return shown;
}

void host(Form* form)
{
    if (hostOf(form) || !hostable(form))
        return;
    form->setProperty(kHostedProperty, true);
    form->setWindowFlag(Qt::FramelessWindowHint, true);
    new ScreenHost(form);
}

void release(Form* form)
{
    delete hostOf(form);
    form->setWindowFlag(Qt::FramelessWindowHint, false);
    form->setProperty(kHostedProperty, false);
    QRect placed(QPoint(0, 0), form->frameGeometry().size());
    const QRect area = ScreenFit::available();
    placed.moveCenter(area.center());
    form->move(ScreenFit::keepInside(placed.topLeft(), placed.size(), area));
}

} // namespace

bool isOn() { return g_on; }

void setOn(bool on)
{
    if (on == g_on)
        return;
    g_on = on;
    // Changing a window's frame hides it: each screen is shown again, in the
    // order they were on the display.
    for (Form* form : shownScreens()) {
        if (on)
            host(form);
        else
            release(form);
        form->show();
        form->raise();
    }
}

void toggle() { setOn(!g_on); }

void prepare(Form* form)
{
    if (g_on)
        host(form);
}

QWidget* hostOf(const Form* form)
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* host = dynamic_cast<ScreenHost*>(w); host && host->form() == form)
            return host;
    return nullptr;
}

const Form* hostedBy(const QWidget* window)
{
    const auto* host = dynamic_cast<const ScreenHost*>(window);
    return host ? host->form() : nullptr;
}

void installKey()
{
    static ToggleKey key;
    QCoreApplication::instance()->installEventFilter(&key);
}

} // namespace FullScreen
