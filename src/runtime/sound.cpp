#include "sound.h"

#include "pictures.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMediaDevices>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

namespace Sound {
namespace {
Player g_player;
bool g_muted = false;

// Keyed by the file on disk, so that a change of assets folder loads afresh.
// The effects belong to the application and go with it.
QHash<QString, QPointer<QSoundEffect>>& effects()
{
    static QHash<QString, QPointer<QSoundEffect>> e;
    return e;
}

// Why a sound was not heard, said once, and only in a debug build: the
// child hears nothing and sees nothing.
void tellOnce(const QString& why)
{
#ifndef NDEBUG
    static bool told = false;
    if (!told)
        qInfo().noquote() << QStringLiteral("Partitude plays no sound: %1").arg(why);
    told = true;
#else
    Q_UNUSED(why);
#endif
}

// Qt's audio backends say on stderr when they find no sound server; for this
// program that is no news, so the first look for an output is a quiet one.
QtMessageHandler g_loudHandler = nullptr;

void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if ((type == QtCriticalMsg || type == QtFatalMsg) && g_loudHandler)
        g_loudHandler(type, context, message);
}

QAudioDevice defaultOutput()
{
    static bool looked = false;
    if (looked)
        return QMediaDevices::defaultAudioOutput();
    looked = true;
    g_loudHandler = qInstallMessageHandler(quietHandler);
    const QAudioDevice output = QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(g_loudHandler);
    return output;
}

// A RIFF WAVE file, the only kind QSoundEffect plays.
bool isWave(const QString& file)
{
    constexpr int kHeaderBytes = 12;
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = f.read(kHeaderBytes);
    return header.size() == kHeaderBytes && header.startsWith("RIFF") && header.endsWith("WAVE");
}

// The effect of a file, made on first use. Only while there is an output:
// Qt's effect opens one as soon as its sample is read.
QSoundEffect* load(const QString& assetPath, const QAudioDevice& output)
{
    const QString file = Pictures::resolve(assetPath);
    if (QSoundEffect* known = effects().value(file))
        return known;
    QCoreApplication* app = QCoreApplication::instance();
    if (!app)
        return nullptr;
    if (!QFileInfo(file).isFile()) {
        tellOnce(QStringLiteral("the file %1 is missing").arg(QDir::toNativeSeparators(file)));
        return nullptr;
    }
    if (!isWave(file)) {
        tellOnce(QStringLiteral("the file %1 is not a WAV sound").arg(QDir::toNativeSeparators(file)));
        return nullptr;
    }
    // The sample is read and decoded away from the screens; play() before it
    // is ready starts it once it is.
    auto* effect = new QSoundEffect(output, app);
    effect->setSource(QUrl::fromLocalFile(file));
    effects().insert(file, effect);
    return effect;
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
    const QAudioDevice output = defaultOutput();
    if (output.isNull()) {
        tellOnce(QStringLiteral("there is no audio output"));
        return;
    }
    QSoundEffect* effect = load(assetPath, output);
    if (!effect)
        return;
    if (effect->status() == QSoundEffect::Error) {
        tellOnce(QStringLiteral("%1 is not a sound that can be played").arg(assetPath));
        return;
    }
    // The output may have changed since (headphones plugged in).
    if (effect->audioDevice() != output)
        effect->setAudioDevice(output);
    effect->play();
}

void preload(const QStringList& assetPaths)
{
    if (g_muted || g_player)
        return; // nothing will reach the audio output
    const QAudioDevice output = defaultOutput();
    if (output.isNull())
        return;
    for (const QString& assetPath : assetPaths)
        load(assetPath, output);
}

QSoundEffect* effect(const QString& assetPath)
{
    return effects().value(Pictures::resolve(assetPath));
}

bool hasOutput()
{
    return !defaultOutput().isNull();
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
