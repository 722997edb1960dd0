#pragma once
// The command line: where the assets and settings are, whether printed
// pages go to PDF files instead of the printer, and how large the screens are.
#include <QString>
#include <QStringList>
#include <optional>

class QCoreApplication;

struct StartOptions {
    QString assetFolder;    // the folder holding ico, gif, bmp, jpg2, reward, wmf, wav
    QString settingsFolder; // the folder holding primary.inf and sound.inf
    QString pdfFolder;      // empty: print to the default printer
    double scale = 0.0;     // 0: picked to suit the display
    bool fullScreen = false;
    bool checkTitle = false; // show the title screen, say so and end (install checks)
};

// Reads the number of --scale: a decimal number above 0 and at most
// ScreenFit::kLargestScale. Anything else gives no value and the reason.
std::optional<double> parseScale(const QString& text, QString* reason);

// Parses the application's arguments (--help and --version are answered and
// end the program, as usual). A refused --scale is named on stderr, and an
// unknown option or a stray word is refused with the usage line; both end it
// with kUsageExitCode.
StartOptions parseCommandLine(const QCoreApplication& app);
constexpr int kUsageExitCode = 2;
StartOptions parseArguments(const QStringList& arguments);

// "assets" beside the executable where there is one (the build tree),
// otherwise the installed data folder found from the executable's folder.
QString defaultAssetFolder();
QString defaultSettingsFolder();
