#pragma once
// What every screen test needs: the drawn assets, a fresh temporary settings
// folder, the screens registered, message boxes answered by the test, a fixed
// random seed, silence, and a way to unload everything between test functions.
#include "runtime/forms.h"
#include "runtime/fullscreen.h"
#include "runtime/msgbox.h"
#include "runtime/pictures.h"
#include "runtime/printer.h"
#include "runtime/random.h"
#include "runtime/settingsfile.h"
#include "runtime/sound.h"
#include "shell/module1.h"
#include "shell/screens.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>
#include <QWindow>
#include <memory>

// The window system's own way of delivering a close: Qt exports it for
// platform plugins; declared here so a test can press a window's close box.
class QWindowSystemInterface {
public:
    struct SynchronousDelivery;
    template <typename Delivery> static bool handleCloseEvent(QWindow* window);
    // Delivers the window system's queued events (a window shown, activated) now.
    static bool flushWindowSystemEvents(QEventLoop::ProcessEventsFlags flags);
};

namespace TestSupport {

// Presses the window's close box, as the window system does.
inline void pressCloseBox(QWidget* form)
{
    form->winId(); // the window must exist
    QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::SynchronousDelivery>(form->windowHandle());
}

// Deletes the screens that were unloaded (they go at the end of an event).
inline void flushUnloads()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

inline void unloadAll()
{
    for (const QString& name : Forms::loadedNames())
        Forms::unload(name);
    flushUnloads();
}

inline QStringList visibleForms()
{
    QStringList names;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible())
            names << w->objectName();
    names.sort();
    return names;
}

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
}

// One test's world: call fresh() at the start of each test function.
struct World {
    std::unique_ptr<QTemporaryDir> settings;
    QList<MsgBox::Request> messages;
    MsgBox::Answer answer = MsgBox::Answer::Ok;

    void fresh(quint64 seed = 1)
    {
        unloadAll();
        FullScreen::setOn(false); // a test that pressed F11 leaves no full screen behind
        Module1::reset();
        Random::fixSeed(seed);
        // No test makes a sound; one that listens unmutes and records.
        Sound::setMuted(true);
        Sound::setPlayer({});
        settings = std::make_unique<QTemporaryDir>();
        SettingsFile::setFolder(settings->path());
        Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
        registerScreens();
        messages.clear();
        MsgBox::setHandler([this](const MsgBox::Request& r) {
            messages << r;
            return answer;
        });
    }

    QString settingsFile(const QString& name) const { return settings->filePath(name); }

    // The settings files an earlier run left: by default the primary edition, sound offered.
    void writeSettings(const QByteArray& edition = "0\r\n", const QByteArray& sound = "0\r\n")
    {
        writeBytes(settingsFile(QStringLiteral("primary.inf")), edition);
        writeBytes(settingsFile(QStringLiteral("sound.inf")), sound);
    }

    // Printing goes to PDF files in the test's own folder; when blocked, a file stands in the folder's place and it fails.
    QString printToPdf(bool blocked = false)
    {
        const QString folder = settingsFile(blocked ? QStringLiteral("blocked") : QStringLiteral("pdf"));
        if (blocked)
            writeBytes(folder, "not a folder");
        PrintTarget::setPdfFolder(folder);
        return folder;
    }

    // What a screen finds when the child arrives at it from a menu: primary edition, no sound.
    static void arrive(const QString& yearlabel = QStringLiteral("Year 2"), int streak = 10)
    {
        Module1::version = Module1::soundsetting = QStringLiteral("0");
        Module1::yearlabel = yearlabel;
        Module1::streak = streak;
    }
};

} // namespace TestSupport
