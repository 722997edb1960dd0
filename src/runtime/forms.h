#pragma once
// Loading, showing and unloading screens. At most one copy of each screen is
// loaded at a time. Loading builds the screen afresh and runs its load steps;
// unloading hides it, stops its timers and deletes it, so the next showing
// starts again from its load steps.
#include <QString>
#include <functional>

class Form;
class QWidget;

namespace Forms {

using Factory = std::function<Form*()>;

// Every screen is registered once, by name, at start-up.
void registerForm(const QString& name, Factory factory);
bool isRegistered(const QString& name);
// Forgets a screen (tests put stand-in screens in and take them out again).
void unregisterForm(const QString& name);
// Every registered screen's name, sorted.
QStringList registeredNames();

// The loaded screen of that name, or nullptr.
Form* find(const QString& name);
bool isLoaded(const QString& name);

// The loaded screen, loading it first if needed (running its load steps).
Form* load(const QString& name);
// Loads if needed, shows and brings to the front.
Form* show(const QString& name);
void unload(const QString& name);
void unload(QWidget* form);
// Shows one screen and unloads another: the usual way from screen to screen.
Form* showAndUnload(const QString& showName, QWidget* unloadThis);
// Every loaded screen, by name.
QStringList loadedNames();

// Ends the program: every screen is unloaded and the event loop left.
void endProgram();
bool programEnded();

template <class F> F* load() { return static_cast<F*>(load(QString::fromLatin1(F::staticMetaObject.className()))); }
template <class F> F* find() { return static_cast<F*>(find(QString::fromLatin1(F::staticMetaObject.className()))); }
template <class F> F* show() { return static_cast<F*>(show(QString::fromLatin1(F::staticMetaObject.className()))); }

} // namespace Forms
