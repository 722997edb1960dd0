#include "options.h"

#include "screenfit.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <cmath>
#include <cstdio>
#include <cstdlib>

// The installed data folder, relative to the installed executable's folder
// ("../share/partitude/assets"), so an installed tree works under any prefix,
// staged or moved.
#ifndef PARTITUDE_RELATIVE_ASSETS
#define PARTITUDE_RELATIVE_ASSETS "../share/partitude/assets"
#endif

namespace {

// The help text is translated when the parser is made, after the program's
// translation is installed.
struct Parser {
    QCommandLineParser parser;
    QCommandLineOption assets{QStringLiteral("assets"),
                              QCoreApplication::translate("Options", "Folder holding the program's pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav)."),
                              QCoreApplication::translate("Options", "DIR")};
    QCommandLineOption scale{QStringLiteral("scale"),
                             QCoreApplication::translate("Options", "Draw every screen F times its designed size (for example 1.5); without it the screens fill most of the display."),
                             QStringLiteral("F")};
    QCommandLineOption fullScreen{QStringLiteral("fullscreen"),
                                  QCoreApplication::translate("Options", "Show every screen full screen (F11 on any screen turns it on and off).")};
    QCommandLineOption settings{QStringLiteral("settings"),
                                QCoreApplication::translate("Options", "Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice."),
                                QCoreApplication::translate("Options", "DIR")};
    QCommandLineOption pdf{QStringLiteral("print-to-pdf"),
                           QCoreApplication::translate("Options", "Print every page to a new PDF file in DIR instead of the printer."),
                           QCoreApplication::translate("Options", "DIR")};

    // For checking an installed program where no one watches: it starts,
    // shows the title screen, says so on stdout and ends. Not in the help.
    QCommandLineOption checkTitle{QStringLiteral("check-title"), QString()};

    Parser()
    {
        checkTitle.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.setApplicationDescription(QCoreApplication::translate("Options", "Partitude: fractions practice and Challenges for Years 2 to 6."));
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOption(assets);
        parser.addOption(settings);
        parser.addOption(pdf);
        parser.addOption(scale);
        parser.addOption(fullScreen);
        parser.addOption(checkTitle);
    }

    // The scale asked for, 0 when none was; a refused one ends the program.
    double scaleOrExit() const
    {
        if (!parser.isSet(scale))
            return 0.0;
        QString reason;
        const std::optional<double> value = parseScale(parser.value(scale), &reason);
        if (!value) {
            std::fputs(qPrintable(reason + QLatin1Char('\n')), stderr);
            std::exit(kUsageExitCode);
        }
        return *value;
    }

    StartOptions result() const
    {
        StartOptions o;
        o.assetFolder = parser.isSet(assets) ? parser.value(assets) : defaultAssetFolder();
        o.settingsFolder = parser.isSet(settings) ? parser.value(settings) : defaultSettingsFolder();
        o.pdfFolder = parser.value(pdf);
        o.fullScreen = parser.isSet(fullScreen);
        o.checkTitle = parser.isSet(checkTitle);
        return o;
    }
};

// Says what is wrong with the command line, then the usage line, and ends
// the program.
[[noreturn]] void refuse(const QCommandLineParser& parser, const QString& what)
{
    const QString usage = parser.helpText().section(QLatin1Char('\n'), 0, 0);
    std::fputs(qPrintable(QStringLiteral("%1: %2\n%3\n").arg(QCoreApplication::applicationName(), what, usage)), stderr);
    std::exit(kUsageExitCode);
}

} // namespace

StartOptions parseCommandLine(const QCoreApplication& app)
{
    Parser p;
    if (!p.parser.parse(app.arguments()))
        refuse(p.parser, p.parser.errorText());
    // The program takes no file names or other words of its own.
    if (!p.parser.positionalArguments().isEmpty())
        refuse(p.parser, QCoreApplication::translate("Options", "unexpected word on the command line: %1")
                             .arg(p.parser.positionalArguments().constFirst()));
    p.parser.process(app); // answers --help and --version
    StartOptions o = p.result();
    o.scale = p.scaleOrExit();
    return o;
}

StartOptions parseArguments(const QStringList& arguments)
{
    Parser p;
    p.parser.parse(arguments);
    StartOptions o = p.result();
    if (p.parser.isSet(p.scale))
        o.scale = parseScale(p.parser.value(p.scale), nullptr).value_or(0.0);
    return o;
}

std::optional<double> parseScale(const QString& text, QString* reason)
{
    bool number = false;
    const double value = text.trimmed().toDouble(&number);
    QString why;
    if (!number || !std::isfinite(value))
        why = QCoreApplication::translate("Options", "--scale needs a number such as 1.5, not \"%1\".").arg(text);
    else if (value <= 0.0)
        why = QCoreApplication::translate("Options", "--scale needs a number above 0, not %1.").arg(text);
    else if (value > ScreenFit::kLargestScale)
        why = QCoreApplication::translate("Options", "--scale %1 is too large: the largest is %2.").arg(text).arg(ScreenFit::kLargestScale);
    if (why.isEmpty())
        return value;
    if (reason)
        *reason = why;
    return std::nullopt;
}

QString defaultAssetFolder()
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString beside = programFolder.filePath(QStringLiteral("assets"));
    if (QFileInfo(beside).isDir())
        return beside; // the build tree
    return QDir::cleanPath(programFolder.filePath(QStringLiteral(PARTITUDE_RELATIVE_ASSETS)));
}

QString defaultSettingsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}
