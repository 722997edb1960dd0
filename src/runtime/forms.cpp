#include "forms.h"

#include "form.h"
#include "fullscreen.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>
#include <QMetaObject>
#include <QPointer>
#include <QTimer>

namespace Forms {
namespace {

QHash<QString, Factory>& factories()
{
    static QHash<QString, Factory> f;
    return f;
}

QMap<QString, QPointer<Form>>& loaded()
{
    static QMap<QString, QPointer<Form>> l;
    return l;
}

bool g_ended = false;

void runLoadSteps(Form* form)
{
    const QMetaObject* meta = form->metaObject();
    if (meta->indexOfMethod("Form_Load()") >= 0)
        QMetaObject::invokeMethod(form, "Form_Load", Qt::DirectConnection);
}

} // namespace

void registerForm(const QString& name, Factory factory)
{
    factories().insert(name, std::move(factory));
}

bool isRegistered(const QString& name) { return factories().contains(name); }

void unregisterForm(const QString& name) { factories().remove(name); }

QStringList registeredNames()
{
    QStringList names = factories().keys();
    names.sort();
    return names;
}

Form* find(const QString& name)
{
    auto it = loaded().find(name);
    if (it == loaded().end())
        return nullptr;
    if (it.value().isNull()) {
        loaded().erase(it);
        return nullptr;
    }
    return it.value();
}

bool isLoaded(const QString& name) { return find(name) != nullptr; }

Form* load(const QString& name)
{
    if (Form* form = find(name))
        return form;
    const auto factory = factories().constFind(name);
    Q_ASSERT_X(factory != factories().constEnd(), "Forms::load", qPrintable(name));
    if (factory == factories().constEnd())
        qFatal("No screen is registered under the name %s", qPrintable(name));
    Form* form = (*factory)();
    form->setObjectName(name);
    loaded().insert(name, form);
    g_ended = false;
    runLoadSteps(form);
    // The load steps may have unloaded the screen again.
    Form* loadedForm = find(name);
    if (loadedForm)
        loadedForm->prepareKeyboard();
    return loadedForm;
}

Form* show(const QString& name)
{
    Form* form = load(name);
    if (form) {
        FullScreen::prepare(form);
        form->show();
        form->raise();
        if (!form->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
            form->activateWindow();
    }
    return form;
}

void unload(QWidget* form)
{
    if (!form)
        return;
    for (auto it = loaded().begin(); it != loaded().end(); ++it) {
        if (it.value() == form) {
            loaded().erase(it);
            break;
        }
    }
    // Nothing of an unloaded screen may run again: its timers stop now, and
    // the widget goes once the current event is over (it may be the one whose
    // button is being clicked).
    for (QTimer* timer : form->findChildren<QTimer*>())
        timer->stop();
    form->hide();
    form->setEnabled(false);
    form->deleteLater();
}

void unload(const QString& name) { unload(find(name)); }

Form* showAndUnload(const QString& showName, QWidget* unloadThis)
{
    Form* shown = show(showName);
    if (unloadThis != shown)
        unload(unloadThis);
    return shown;
}

QStringList loadedNames()
{
    QStringList names;
    for (auto it = loaded().cbegin(); it != loaded().cend(); ++it)
        if (!it.value().isNull())
            names << it.key();
    return names;
}

void endProgram()
{
    for (const QString& name : loadedNames())
        unload(name);
    g_ended = true;
    QCoreApplication::exit(0);
}

bool programEnded() { return g_ended; }

} // namespace Forms
