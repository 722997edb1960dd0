#pragma once
// The command line: where the assets and settings are, and whether printed
// pages go to PDF files instead of the printer.
#include <QString>
#include <QStringList>

class QCoreApplication;

struct StartOptions {
    QString assetFolder;    // the folder holding ico, gif, bmp, jpg2, reward, wmf, wav
    QString settingsFolder; // the folder holding primary.inf and sound.inf
    QString pdfFolder;      // empty: print to the default printer
};

// Parses the application's arguments (--help and --version are answered and
// end the program, as usual). An unknown option or a stray word ends it with
// the usage line and kUsageExitCode.
StartOptions parseCommandLine(const QCoreApplication& app);
constexpr int kUsageExitCode = 2;
StartOptions parseArguments(const QStringList& arguments);

// The first of: beside the executable, the installed data folder.
QString defaultAssetFolder();
QString defaultSettingsFolder();
