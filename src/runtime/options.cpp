#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>

#ifndef PARTITUDE_INSTALLED_ASSETS
#define PARTITUDE_INSTALLED_ASSETS ""
#endif

namespace {

struct Parser {
    QCommandLineParser parser;
    QCommandLineOption assets{QStringLiteral("assets"),
                              QStringLiteral("Folder holding the program's pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav)."),
                              QStringLiteral("DIR")};
    QCommandLineOption settings{QStringLiteral("settings"),
                                QStringLiteral("Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice."),
                                QStringLiteral("DIR")};
    QCommandLineOption pdf{QStringLiteral("print-to-pdf"),
                           QStringLiteral("Print every page to a new PDF file in DIR instead of the printer."),
                           QStringLiteral("DIR")};

    Parser()
    {
        parser.setApplicationDescription(QStringLiteral("Partitude: fractions practice and Challenges for Years 2 to 6."));
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOption(assets);
        parser.addOption(settings);
        parser.addOption(pdf);
    }

    StartOptions result() const
    {
        StartOptions o;
        o.assetFolder = parser.isSet(assets) ? parser.value(assets) : defaultAssetFolder();
        o.settingsFolder = parser.isSet(settings) ? parser.value(settings) : defaultSettingsFolder();
        o.pdfFolder = parser.value(pdf);
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
    return p.result();
}

StartOptions parseArguments(const QStringList& arguments)
{
    Parser p;
    p.parser.parse(arguments);
    return p.result();
}

QString defaultAssetFolder()
{
    const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("assets"));
    const QString installed = QString::fromUtf8(PARTITUDE_INSTALLED_ASSETS);
    if (QFileInfo(beside).isDir() || installed.isEmpty() || !QFileInfo(installed).isDir())
        return beside;
    return installed;
}

QString defaultSettingsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}
