#include "startup.h"

#include "language.h"
#include "displayprobe.h"
#include "runtime/forms.h"
#include "runtime/fullscreen.h"
#include "runtime/options.h"
#include "runtime/picturebox.h"
#include "runtime/pictures.h"
#include "runtime/printer.h"
#include "runtime/scaledstyle.h"
#include "runtime/screenfit.h"
#include "runtime/settingsfile.h"
#include "runtime/sound.h"
#include "runtime/twips.h"
#include "screens.h"
#include "titlefrm.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QCoreApplication>
#include <QTimer>
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

// Exit codes of --check-title.
constexpr int kTitleShown = 0;
constexpr int kTitleNotShown = 4;

// The title screen is up when it is shown with its first animation frame
// (missing pictures have ended the program before this, with their message).
int reportTitle()
{
    const Titlefrm* title = Forms::find<Titlefrm>();
    if (!title || !title->isVisible() || title->Picture1->picture().isNull()) {
        std::fputs(qPrintable(QCoreApplication::translate("Startup", "Partitude did not reach its title screen.\n")), stderr);
        return kTitleNotShown;
    }
    std::fputs(qPrintable(QCoreApplication::translate("Startup", "Partitude reached its title screen (%1).\n")
                              .arg(title->objectName())),
               stdout);
    // Sounds come later, from a module of their own: say which one would play them.
    const QString sounds = Sound::moduleFile();
    std::fputs(qPrintable(sounds.isEmpty()
                              ? QCoreApplication::translate("Startup", "Its sound module cannot be loaded: it will be silent.\n")
                              : QCoreApplication::translate("Startup", "Its sounds play through %1.\n")
                                    .arg(QDir::toNativeSeparators(sounds))),
               stdout);
    return kTitleShown;
}

} // namespace

void startProgram(const StartOptions& options)
{
    // The style keeps drawn button faces for reuse; by default up to 10 MiB
    // of them, more than the rest of a screen's pictures together. A face
    // drawn again costs a fraction of a millisecond.
    constexpr int kStyleCacheKilobytes = 1024;
    QPixmapCache::setCacheLimit(kStyleCacheKilobytes);
#ifdef __GLIBC__
    // Pictures come and go with the screens. Each from this size up gets
    // its own mapping, handed back to the system when freed, rather than a
    // place in the heap that a smaller block kept later can pin there.
    constexpr int kOwnMappingBytes = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, kOwnMappingBytes);
#endif
    Pictures::setAssetFolder(options.assetFolder);
    SettingsFile::setFolder(options.settingsFolder);
    PrintTarget::setPdfFolder(options.pdfFolder);
    Twips::setScale(options.scale > 0.0 ? options.scale : ScreenFit::pickScale(ScreenFit::available().size()));
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) && Twips::scale() != 1.0)
        QApplication::setStyle(new ScaledStyle);
    FullScreen::setOn(options.fullScreen);
    FullScreen::installKey();
    registerScreens();
    Forms::show<Titlefrm>();
}

int runProgram(int argc, char* argv[])
{
    if (displayMissing()) {
        // --help and --version need no display.
        QCoreApplication app(argc, argv);
        nameTheProgram();
        Language::install();
        parseCommandLine(app);
        std::fputs(qPrintable(QCoreApplication::translate("Startup", "Partitude needs a display and found none; "
                                                                     "without one, run it under Xvfb: %1\n")
                                  .arg(QStringLiteral("xvfb-run -a partitude"))),
                   stderr);
        return 1;
    }
    QApplication app(argc, argv);
    nameTheProgram();
    Language::install(); // before the command line, so --help is translated too
    QApplication::setQuitOnLastWindowClosed(false); // the screens end the program
    const StartOptions options = parseCommandLine(app);
    if (options.scale > 0.0 && !ScreenFit::fits(options.scale, ScreenFit::available().size())) {
        const QSize area = ScreenFit::available().size();
        std::fputs(qPrintable(QCoreApplication::translate("Options", "--scale %1 is too large for this display (%2 x %3): a screen would not fit on it.")
                                  .arg(options.scale).arg(area.width()).arg(area.height())
                              + QLatin1Char('\n')),
                   stderr);
        return kUsageExitCode;
    }
    startProgram(options);
    if (options.checkTitle)
        QTimer::singleShot(0, &app, [] { QCoreApplication::exit(reportTitle()); });
    return QApplication::exec();
}
