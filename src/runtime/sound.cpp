#include "sound.h"

#include "pictures.h"
#include "soundoutput.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QPluginLoader>

namespace Sound {
namespace {
Player g_player;
bool g_muted = false;
QString g_moduleFile;

// The module's file name, without the system's suffix (.so, .dll).
const QString kModule = QStringLiteral("partitude_sound");

// The audio side, loaded the first time a sound is to be heard: beside the
// program (the build tree, Windows), in its library folder once installed,
// or in the build tree for the tests. Without it the program is silent.
SoundOutput* output()
{
    static SoundOutput* loaded = nullptr;
    static bool tried = false;
    if (tried || !QCoreApplication::instance())
        return loaded;
    tried = true;
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QStringList folders{programFolder.path(),
                              QDir::cleanPath(programFolder.filePath(QStringLiteral(PARTITUDE_RELATIVE_MODULES))),
                              QStringLiteral(PARTITUDE_BUILD_MODULES)};
    QString why;
    for (const QString& folder : folders) {
        QPluginLoader module(QDir(folder).filePath(kModule));
        loaded = qobject_cast<SoundOutput*>(module.instance());
        if (loaded) {
            g_moduleFile = module.fileName();
            return loaded;
        }
        why = module.errorString();
    }
#ifndef NDEBUG
    qInfo().noquote() << QStringLiteral("Partitude plays no sound: its sound module cannot be loaded (%1)").arg(why);
#endif
    return nullptr;
}
} // namespace

void play(const QString& assetPath)
{
    if (g_muted)
        return;
    if (g_player) {
        g_player(assetPath);
        return;
    }
    if (SoundOutput* out = output())
        out->play(Pictures::resolve(assetPath));
}

void preload(const QStringList& assetPaths)
{
    if (g_muted || g_player)
        return; // nothing will reach the audio output
    SoundOutput* out = output();
    if (!out || !out->hasOutput())
        return;
    for (const QString& assetPath : assetPaths)
        out->load(Pictures::resolve(assetPath));
}

bool isLoaded(const QString& assetPath)
{
    const SoundOutput* out = output();
    return out && out->isLoaded(Pictures::resolve(assetPath));
}

bool isPlaying(const QString& assetPath)
{
    const SoundOutput* out = output();
    return out && out->isPlaying(Pictures::resolve(assetPath));
}

QString moduleFile()
{
    output();
    return g_moduleFile;
}

bool hasOutput()
{
    SoundOutput* out = output();
    return out && out->hasOutput();
}

void setPlayer(Player player)
{
    g_player = std::move(player);
}

void setMuted(bool muted)
{
    g_muted = muted;
}

bool muted() { return g_muted; }

} // namespace Sound
