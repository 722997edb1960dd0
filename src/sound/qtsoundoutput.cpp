// Sound through Qt Multimedia: one QSoundEffect per file, made on first use
// and kept. Built as a module of its own, loaded by Sound on first use.
#include "runtime/soundoutput.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMediaDevices>
#include <QObject>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

namespace {
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
} // namespace

class QtSoundOutput : public QObject, public SoundOutput {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PARTITUDE_SOUND_OUTPUT_IID)
    Q_INTERFACES(SoundOutput)

public:
    bool hasOutput() override { return !defaultOutput().isNull(); }

    bool load(const QString& file) override { return effect(file, defaultOutput()) != nullptr; }

    void play(const QString& file) override
    {
        const QAudioDevice output = defaultOutput();
        if (output.isNull()) {
            tellOnce(QStringLiteral("there is no audio output"));
            return;
        }
        QSoundEffect* sound = effect(file, output);
        if (!sound)
            return;
        if (sound->status() == QSoundEffect::Error) {
            tellOnce(QStringLiteral("%1 is not a sound that can be played").arg(QDir::toNativeSeparators(file)));
            return;
        }
        // The output may have changed since (headphones plugged in).
        if (sound->audioDevice() != output)
            sound->setAudioDevice(output);
        sound->play();
    }

    bool isLoaded(const QString& file) const override { return m_effects.value(file) != nullptr; }

    bool isPlaying(const QString& file) const override
    {
        const QSoundEffect* sound = m_effects.value(file);
        return sound && sound->isPlaying();
    }

private:
    QAudioDevice defaultOutput()
    {
        if (m_looked)
            return QMediaDevices::defaultAudioOutput();
        m_looked = true;
        g_loudHandler = qInstallMessageHandler(quietHandler);
        const QAudioDevice output = QMediaDevices::defaultAudioOutput();
        qInstallMessageHandler(g_loudHandler);
        return output;
    }

    // The effect of a file, made on first use. Only while there is an output:
    // Qt's effect opens one as soon as its sample is read.
    QSoundEffect* effect(const QString& file, const QAudioDevice& output)
    {
        if (QSoundEffect* known = m_effects.value(file))
            return known;
        if (output.isNull())
            return nullptr;
        if (!QFileInfo(file).isFile()) {
            tellOnce(QStringLiteral("the file %1 is missing").arg(QDir::toNativeSeparators(file)));
            return nullptr;
        }
        if (!isWave(file)) {
            tellOnce(QStringLiteral("the file %1 is not a WAV sound").arg(QDir::toNativeSeparators(file)));
            return nullptr;
        }
        // The sample is read and decoded away from the screens; play() before
        // it is ready starts it once it is.
        auto* sound = new QSoundEffect(output, this);
        sound->setSource(QUrl::fromLocalFile(file));
        m_effects.insert(file, sound);
        return sound;
    }

    bool m_looked = false;
    // Keyed by the file on disk, so that a change of assets folder loads afresh.
    QHash<QString, QPointer<QSoundEffect>> m_effects;
};

#include "qtsoundoutput.moc"
