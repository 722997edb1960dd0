// The sound layer: what it is asked to play reaches the player in place of
// the audio output, muting silences everything, bad input is silent and
// prompt, and every harp the program plays loads into a QSoundEffect.
#include "runtime/pictures.h"
#include "runtime/sound.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSoundEffect>
#include <QTemporaryDir>
#include <QtTest>

namespace {
// Longer than any honest return from play(); far shorter than a wait on a
// device or a decode would be.
constexpr qint64 kPromptMs = 1000;
// What loading a short sample may take on a busy machine.
constexpr int kLoadTimeoutMs = 5000;
} // namespace

class TestSound : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void thePlayerHearsWhatIsAsked_data();
    void thePlayerHearsWhatIsAsked();
    void badInputIsSilentAndPrompt_data();
    void badInputIsSilentAndPrompt();
    void everyHarpLoads_data();
    void everyHarpLoads();
};

void TestSound::init()
{
    Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
    Sound::setMuted(false);
    Sound::setPlayer({});
}

void TestSound::cleanup()
{
    Sound::setMuted(true);
    Sound::setPlayer({});
}

void TestSound::thePlayerHearsWhatIsAsked_data()
{
    QTest::addColumn<bool>("muted");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("heard");
    const QStringList two{QStringLiteral("wav\\harp2.wav"), QStringLiteral("wav\\harp5.wav")};
    QTest::newRow("two harps, in order") << false << two << two;
    QTest::newRow("the same harp twice") << false << QStringList{two[0], two[0]} << QStringList{two[0], two[0]};
    QTest::newRow("muted") << true << two << QStringList{};
}

void TestSound::thePlayerHearsWhatIsAsked()
{
    QFETCH(bool, muted);
    QFETCH(QStringList, asked);
    QFETCH(QStringList, heard);
    QStringList recorded;
    Sound::setPlayer([&recorded](const QString& file) { recorded << file; });
    Sound::setMuted(muted);
    QCOMPARE(Sound::muted(), muted);
    for (const QString& file : asked)
        Sound::play(file);
    QCOMPARE(recorded, heard);
    // The player stands in for the output, so nothing was loaded for it.
    for (const QString& file : asked)
        QVERIFY(!Sound::effect(file));

    // An empty player gives the audio output back: the recorder hears no more.
    Sound::setPlayer({});
    Sound::play(QStringLiteral("wav\\not-there.wav"));
    QCOMPARE(recorded, heard);
}

void TestSound::badInputIsSilentAndPrompt_data()
{
    QTest::addColumn<QString>("file");       // as the program names it
    QTest::addColumn<QByteArray>("content"); // written there first; null: no file
    QTest::addColumn<bool>("withoutOutput"); // the case needs a machine with no audio output
    QTest::newRow("missing file") << "wav\\harp9.wav" << QByteArray() << false;
    QTest::newRow("missing folder") << "nowhere\\harp1.wav" << QByteArray() << false;
    QTest::newRow("not a sound") << "wav\\notes.wav" << QByteArray("a shopping list, not a sound") << false;
    QTest::newRow("no audio output") << "wav\\harp1.wav" << QByteArray("copy") << true;
}

void TestSound::badInputIsSilentAndPrompt()
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
    if (content == "copy") {
        QVERIFY(QFile::copy(QStringLiteral(PARTITUDE_TEST_ASSETS "/wav/harp1.wav"), onDisk));
    } else if (!content.isNull()) {
        QFile f(onDisk);
        QVERIFY(f.open(QIODevice::WriteOnly));
        QCOMPARE(f.write(content), qint64(content.size()));
    }

    QElapsedTimer clock;
    clock.start();
    Sound::preload({file});
    Sound::play(file);
    Sound::play(file); // and again, as the next right answer would
    QVERIFY2(clock.elapsed() < kPromptMs, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!Sound::effect(file)); // nothing loaded, nothing started
}

void TestSound::everyHarpLoads_data()
{
    QTest::addColumn<int>("harp");
    for (int n = 1; n <= 5; ++n)
        QTest::addRow("harp%d", n) << n;
}

void TestSound::everyHarpLoads()
{
    QFETCH(int, harp);
    // Named as the program names it, with a backslash; found in the assets.
    const QString file = QStringLiteral("wav\\harp%1.wav").arg(harp);
    const QUrl source = QUrl::fromLocalFile(QStringLiteral(PARTITUDE_TEST_ASSETS "/wav/harp%1.wav").arg(harp));
    QCOMPARE(QUrl::fromLocalFile(Pictures::resolve(file)), source);

    // Qt's own effect reads and decodes it, with or without an audio output.
    QSoundEffect probe;
    probe.setSource(source);
    QTRY_COMPARE_WITH_TIMEOUT(probe.status(), QSoundEffect::Ready, kLoadTimeoutMs);
    QCOMPARE(probe.loopCount(), 1);

    // The program's layer makes one effect per file, and only with an output.
    Sound::preload({file});
    QSoundEffect* effect = Sound::effect(file);
    if (!Sound::hasOutput()) {
        QVERIFY(!effect);
        return;
    }
    QVERIFY(effect);
    QCOMPARE(effect->source(), source);
    QVERIFY(!effect->isPlaying()); // loading never starts it
    Sound::preload({file});
    QCOMPARE(Sound::effect(file), effect);
}

QTEST_MAIN(TestSound)
#include "tst_sound.moc"
