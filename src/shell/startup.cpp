#include "startup.h"

#include "displayprobe.h"
#include "runtime/forms.h"
#include "runtime/options.h"
#include "runtime/pictures.h"
#include "runtime/printer.h"
#include "runtime/settingsfile.h"
#include "screens.h"
#include "titlefrm.h"

#include <QApplication>
#include <QCoreApplication>
#include <cstdio>

#ifndef PARTITUDE_VERSION
#define PARTITUDE_VERSION "1.0.0"
#endif

namespace {

void nameTheProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("Partitude"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PARTITUDE_VERSION));
}

// On Linux a window needs an X or Wayland display that answers, unless a
// platform was chosen by hand (QT_QPA_PLATFORM, as the tests do).
bool displayMissing()
{
    return DisplayProbe::probe() == DisplayProbe::Result::Missing;
}

} // namespace

void startProgram(const StartOptions& options)
{
    Pictures::setAssetFolder(options.assetFolder);
    SettingsFile::setFolder(options.settingsFolder);
    PrintTarget::setPdfFolder(options.pdfFolder);
    registerScreens();
    Forms::show<Titlefrm>();
}

int runProgram(int argc, char* argv[])
{
    if (displayMissing()) {
        // --help and --version need no display.
        QCoreApplication app(argc, argv);
        nameTheProgram();
        parseCommandLine(app);
        std::fputs("Partitude needs a display and found none; without one, run it under Xvfb: "
                   "xvfb-run -a partitude\n", stderr);
        return 1;
    }
    QApplication app(argc, argv);
    nameTheProgram();
    QApplication::setQuitOnLastWindowClosed(false); // the screens end the program
    startProgram(parseCommandLine(app));
    return QApplication::exec();
}
