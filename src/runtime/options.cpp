#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifndef PARTITUDE_INSTALLED_ASSETS
#define PARTITUDE_INSTALLED_ASSETS ""
#endif

namespace {

// The help text is translated when the parser is made, after the program's
// translation is installed.
struct Parser {
    QCommandLineParser parser;
    QCommandLineOption assets{QStringLiteral("assets"),
                              QCoreApplication::translate("Options", "Folder holding the program's pictures and sounds (ico, gif, bmp, jpg2, reward, wmf, wav)."),
                              QCoreApplication::translate("Options", "DIR")};
    QCommandLineOption settings{QStringLiteral("settings"),
                                QCoreApplication::translate("Options", "Folder holding primary.inf and sound.inf; point every account at one shared folder to share the choice."),
                                QCoreApplication::translate("Options", "DIR")};
    QCommandLineOption pdf{QStringLiteral("print-to-pdf"),
                           QCoreApplication::translate("Options", "Print every page to a new PDF file in DIR instead of the printer."),
                           QCoreApplication::translate("Options", "DIR")};

    Parser()
    {
        parser.setApplicationDescription(QCoreApplication::translate("Options", "Partitude: fractions practice and Challenges for Years 2 to 6."));
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

} // namespace

StartOptions parseCommandLine(const QCoreApplication& app)
{
    Parser p;
    p.parser.process(app);
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
