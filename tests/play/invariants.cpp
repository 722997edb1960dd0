#include "invariants.h"

#include "runtime/form.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/fullscreen.h"
#include "shell/activityform.h"
#include "shell/module1.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGuiApplication>
#include <QPushButton>
#include <QWindow>

namespace Play {
namespace {

const QString kGrey = QStringLiteral("Grey");
const QString kCertificate = QStringLiteral("Welldone");
const QString kRetryPanel = QStringLiteral("Reward");

// Tool tips and pop-up lists come and go with the pointer; they are no screen.
bool isTransient(const QWidget* w)
{
    const Qt::WindowType type = w->windowType();
    return type == Qt::ToolTip || type == Qt::Popup;
}

bool isOverlay(const QWidget* w)
{
    return w->objectName() == kCertificate || w->objectName() == kRetryPanel || w->isModal();
}

QString nameOf(const QWidget* w)
{
    return w->objectName().isEmpty() ? QString::fromLatin1(w->metaObject()->className()) : w->objectName();
}

QString pathOf(const QWidget* control)
{
    QStringList names;
    for (const QWidget* w = control; w; w = w->isWindow() ? nullptr : w->parentWidget())
        names.prepend(nameOf(w));
    return names.join(QLatin1Char('/'));
}

QList<ActivityForm*> activitiesOnShow(const OnShow& shown)
{
    QList<ActivityForm*> forms;
    for (QWidget* w : shown.screens + shown.overlays)
        if (auto* form = qobject_cast<ActivityForm*>(w))
            forms << form;
    return forms;
}

bool anyTimerRunning()
{
    for (const QString& name : Forms::loadedNames())
        if (const Form* form = Forms::find(name))
            for (const FormTimer* timer : form->findChildren<FormTimer*>())
                if (timer->isActive())
                    return true;
    return false;
}

} // namespace

bool isUsable(const QWidget* control)
{
    if (!control->isVisible() || !control->isEnabled())
        return false;
    return qobject_cast<const QAbstractButton*>(control) || (control->focusPolicy() & Qt::ClickFocus)
        || control->metaObject()->indexOfSignal("clicked()") >= 0;
}

OnShow onShow()
{
    OnShow shown;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (!w->isVisible() || isTransient(w))
            continue;
        if (const Form* screen = FullScreen::hostedBy(w)) {
            // A full-screen backdrop belongs to its screen and is on show with it.
            if (!screen->isVisible())
                shown.screens << w;
            continue;
        }
        (isOverlay(w) ? shown.overlays : shown.screens) << w;
    }
    if (QWindow* modal = QGuiApplication::modalWindow())
        for (QWidget* w : shown.overlays)
            if (w->windowHandle() == modal)
                shown.front = w;
    if (!shown.front && shown.screens.size() == 1)
        shown.front = shown.screens.first();
    return shown;
}

QString checkScreenCount(const OnShow& shown)
{
    QStringList names;
    for (const QWidget* w : shown.screens)
        names << nameOf(w);
    if (names.contains(kGrey))
        return QStringLiteral("the hidden screen Grey is on show");
    const int expected = Forms::programEnded() ? 0 : 1;
    if (names.size() != expected)
        return QStringLiteral("%1 screens on show, not %2: %3").arg(names.size()).arg(expected).arg(names.join(QLatin1Char(' ')));
    return {};
}

QString checkRunCount(const OnShow& shown)
{
    if (!activitiesOnShow(shown).isEmpty() && Module1::counter > Module1::questions)
        return QStringLiteral("counter %1 is above questions %2").arg(Module1::counter).arg(Module1::questions);
    return {};
}

QString checkHintInChallenge(const OnShow& shown)
{
    if (Module1::challenge == 0)
        return {};
    for (const ActivityForm* form : activitiesOnShow(shown))
        if (form->cmdhint->isEnabled())
            return QStringLiteral("%1: Hint is on in a Challenge (challenge %2)").arg(nameOf(form)).arg(Module1::challenge);
    return {};
}

QString checkControlsInside(const OnShow& shown)
{
    for (const QWidget* screen : shown.screens + shown.overlays) {
        for (const QWidget* control : screen->findChildren<QWidget*>()) {
            if (!control->isVisible() || control->isWindow() || control->size().isEmpty())
                continue;
            const QRect place(control->mapTo(screen, QPoint(0, 0)), control->size());
            if (!screen->rect().contains(place))
                return QStringLiteral("%1 at (%2,%3 %4x%5) stands outside its screen (%6x%7)")
                    .arg(pathOf(control))
                    .arg(place.x())
                    .arg(place.y())
                    .arg(place.width())
                    .arg(place.height())
                    .arg(screen->width())
                    .arg(screen->height());
        }
    }
    return {};
}

QString checkWayOn(const OnShow& shown)
{
    if (Forms::programEnded() || !shown.front)
        return {};
    if (shown.front->isEnabled()) {
        const QList<QWidget*> controls = shown.front->findChildren<QWidget*>();
        if (std::any_of(controls.cbegin(), controls.cend(), isUsable))
            return {};
    }
    if (anyTimerRunning())
        return {};
    return QStringLiteral("%1 has nothing the child can use, and nothing runs that would change it").arg(nameOf(shown.front));
}

QString brokenInvariant()
{
    const OnShow shown = onShow();
    for (const QString& broken : {checkScreenCount(shown), checkRunCount(shown), checkHintInChallenge(shown),
                                  checkControlsInside(shown), checkWayOn(shown)})
        if (!broken.isEmpty())
            return broken;
    return {};
}

} // namespace Play
