// The sound layer: what is asked reaches the player, muting silences it, bad
// input is silent and prompt, and every harp loads through the sound module.
#include "runtime/pictures.h"
#include "runtime/sound.h"
#include "testsupport.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSoundEffect>
#include <QTemporaryDir>
#include <QtTest>

namespace {
constexpr qint64 kPromptMs = 1000;   // far shorter than a wait on a device or a decode
constexpr int kLoadTimeoutMs = 5000; // loading a short sample on a busy machine
} // namespace

class TestSound : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
        Sound::setMuted(false);
        Sound::setPlayer({});
    }
    void cleanup()
    {
        Sound::setMuted(true);
        Sound::setPlayer({});
    }

    void theSoundModuleLoads()
    {
        // Without it every sound would be silently lost.
        QVERIFY2(QFileInfo(Sound::moduleFile()).isFile(), "the sound module was not found");
    }

    void thePlayerHearsWhatIsAsked_data()
    {
        QTest::addColumn<bool>("muted");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("heard");
        const QStringList two{QStringLiteral("wav\\harp2.wav"), QStringLiteral("wav\\harp5.wav")};
        QTest::newRow("two harps, in order") << false << two << two;
        QTest::newRow("the same harp twice") << false << QStringList{two[0], two[0]} << QStringList{two[0], two[0]};
        QTest::newRow("muted") << true << two << QStringList{};
    }
    void thePlayerHearsWhatIsAsked()
    {
        QFETCH(bool, muted);
        QFETCH(QStringList, asked);
        QFETCH(QStringList, heard);
        QStringList recorded;
        Sound::setPlayer([&recorded](const QString& file) { recorded << file; });
        Sound::setMuted(muted);
        for (const QString& file : asked)
            Sound::play(file);
        QCOMPARE(recorded, heard);
        for (const QString& file : asked) // the player stands in for the output: nothing loaded
            QVERIFY(!Sound::isLoaded(file));
        // An empty player gives the audio output back: the recorder hears no more.
        Sound::setPlayer({});
        Sound::play(QStringLiteral("wav\\not-there.wav"));
        QCOMPARE(recorded, heard);
    }

    void badInputIsSilentAndPrompt_data()
    {
        QTest::addColumn<QString>("file");       // as the program names it
        QTest::addColumn<QByteArray>("content"); // written there first; null: no file
        QTest::addColumn<bool>("withoutOutput"); // the case needs a machine with no audio output
        QTest::newRow("missing file") << "wav\\harp9.wav" << QByteArray() << false;
        QTest::newRow("missing folder") << "nowhere\\harp1.wav" << QByteArray() << false;
        QTest::newRow("not a sound") << "wav\\notes.wav" << QByteArray("a shopping list, not a sound") << false;
        QTest::newRow("no audio output") << "wav\\harp1.wav" << QByteArray("copy") << true;
    }
    void badInputIsSilentAndPrompt()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(bool, withoutOutput);
        if (withoutOutput && Sound::hasOutput())
            QSKIP("this machine has an audio output");
        QTemporaryDir assets;
        QVERIFY(QDir(assets.path()).mkdir(QStringLiteral("wav")));
        Pictures::setAssetFolder(assets.path());
        const QString onDisk = Pictures::resolve(file);
        if (content == "copy")
            QVERIFY(QFile::copy(QStringLiteral(PARTITUDE_TEST_ASSETS "/wav/harp1.wav"), onDisk));
        else if (!content.isNull())
            TestSupport::writeBytes(onDisk, content);

        QElapsedTimer clock;
        clock.start();
        Sound::preload({file});
        Sound::play(file);
        Sound::play(file); // and again, as the next right answer would
        QVERIFY2(clock.elapsed() < kPromptMs, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(!Sound::isLoaded(file)); // nothing loaded, nothing started
        QVERIFY(!Sound::isPlaying(file));
    }

    void everyHarpLoads_data()
    {
        QTest::addColumn<int>("harp");
        for (int n = 1; n <= 5; ++n)
            QTest::addRow("harp%d", n) << n;
    }
    void everyHarpLoads()
    {
        QFETCH(int, harp);
        // Named as the program names it, with a backslash; found in the assets.
        const QString file = QStringLiteral("wav\\harp%1.wav").arg(harp);
        const QUrl source = QUrl::fromLocalFile(QStringLiteral(PARTITUDE_TEST_ASSETS "/wav/harp%1.wav").arg(harp));
        QCOMPARE(QUrl::fromLocalFile(Pictures::resolve(file)), source);
        // Qt's own effect decodes the file, with or without an audio output.
        QSoundEffect probe;
        probe.setSource(source);
        QTRY_COMPARE_WITH_TIMEOUT(probe.status(), QSoundEffect::Ready, kLoadTimeoutMs);

        // The program's layer loads each file only with an output, and never starts it by loading.
        Sound::preload({file});
        QCOMPARE(Sound::isLoaded(file), Sound::hasOutput());
        QVERIFY(!Sound::isPlaying(file));
        Sound::preload({file});
        QCOMPARE(Sound::isLoaded(file), Sound::hasOutput());
    }
};

QTEST_MAIN(TestSound)
#include "tst_sound.moc"
