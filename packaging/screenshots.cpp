// Draws the screenshots the software centres show: the program's own screens,
// built as the program builds them and grabbed to PNG files, under the
// offscreen platform.
//
//   partitude_screenshots ASSET_DIR OUTPUT_DIR
#include "runtime/forms.h"
#include "runtime/form.h"
#include "runtime/pictures.h"
#include "runtime/random.h"
#include "runtime/settingsfile.h"
#include "runtime/sound.h"
#include "shell/module1.h"
#include "shell/screens.h"
#include "shell/settingsnames.h"

#include <QApplication>
#include <QAbstractButton>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>

namespace {

constexpr int kExpectedArguments = 3;
// The same questions on every build, so the screenshots only change with the screens.
constexpr std::uint64_t kSeed = 2;

struct Shot {
    const char* screen;
    const char* file;
    const char* press; // a button pressed before the grab, or nullptr
};

// The title screen, the year menu and a first activity's first question.
constexpr Shot kShots[] = {
    {"Titlefrm", "title.png", nullptr},
    {"Year", "year.png", nullptr},
    {"Y2fractions", "halves.png", "Start"},
};

void press(Form* form, const QString& caption)
{
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>())
        if (button->text() == caption)
            button->click();
}

bool grab(const Shot& shot, const QDir& output)
{
    Form* form = Forms::show(QString::fromLatin1(shot.screen));
    if (!form)
        return false;
    if (shot.press)
        press(form, QString::fromLatin1(shot.press));
    const QString file = output.filePath(QString::fromLatin1(shot.file));
    const bool saved = form->grab().save(file);
    Forms::unload(form);
    if (!saved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    return saved;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != kExpectedArguments) {
        std::fputs("usage: partitude_screenshots ASSET_DIR OUTPUT_DIR\n", stderr);
        return 2;
    }
    QTemporaryDir settings; // a first run's settings, never the user's own
    Pictures::setAssetFolder(args.at(1));
    SettingsFile::setFolder(settings.path());
    Sound::setMuted(true);
    Random::fixSeed(kSeed);
    // The primary edition, with the sound option offered.
    SettingsFile::writeValue(SettingsNames::kEdition, Module1::kPrimaryEdition);
    SettingsFile::writeValue(SettingsNames::kSound, QStringLiteral("0"));
    registerScreens();

    const QDir output(args.at(2));
    QDir().mkpath(output.path());
    for (const Shot& shot : kShots)
        if (!grab(shot, output))
            return 1;
    return 0;
}
