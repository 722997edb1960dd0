#include "msgbox.h"

#include <QApplication>
#include <QMessageBox>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace MsgBox {
namespace {
Handler g_handler;

QString programTitle() { return QStringLiteral("Partitude"); }

// Platforms that draw into memory only: a box there waits for a click that
// cannot come.
bool boxesCanBeSeen()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

Answer ask(const Request& request)
{
    if (g_handler)
        return g_handler(request);
    // Over the screen in use, also when that screen is shown full screen.
    QMessageBox box(request.critical ? QMessageBox::Critical : QMessageBox::NoIcon,
                    request.title.isEmpty() ? programTitle() : request.title, request.text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    if (request.buttons == Buttons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return Answer::Ok;
}
} // namespace

Answer show(const QString& text, Buttons buttons, const QString& title)
{
    return ask(Request{text, title, buttons, false});
}

void setHandler(Handler handler) { g_handler = std::move(handler); }

void fatal(const QString& text)
{
    std::fputs(qPrintable(text + QLatin1Char('\n')), stderr);
    // No half-drawn screen stays up behind the message.
    for (QWidget* w : QApplication::topLevelWidgets())
        w->hide();
    // The message is on stderr already; a box is shown only where a person
    // can see it and press OK (or where a test answers it).
    if (g_handler || boxesCanBeSeen())
        ask(Request{text, programTitle(), Buttons::Ok, true});
    std::fflush(nullptr);
    // Leave at once: nothing is saved, and no screen may go on drawing
    // without the file it needed.
    std::_Exit(kFatalExitCode);
}

} // namespace MsgBox
