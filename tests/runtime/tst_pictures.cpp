#include "runtime/pictures.h"
#include "wmfbuilder.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPictures : public QObject {
    Q_OBJECT
private slots:
    void pathsResolveAndEachFileIsDecodedOnce();
    void eachMetafileIsReadOnce();
    void aMissingOrBrokenFileIsFatal_data();
    void aMissingOrBrokenFileIsFatal();
};

void TestPictures::pathsResolveAndEachFileIsDecodedOnce()
{
    Pictures::setAssetFolder(PARTITUDE_TEST_ASSETS);
    QCOMPARE(Pictures::resolve("gif\\sphfra\\sphf0000.jpg"), QString(PARTITUDE_TEST_ASSETS "/gif/sphfra/sphf0000.jpg"));
    Pictures::clearCache();
    const int before = Pictures::decodeCount();
    const QPixmap a = Pictures::get("gif\\sphfra\\sphf0000.jpg");
    const QPixmap b = Pictures::get("gif\\sphfra\\sphf0000.jpg");
    QVERIFY(!a.isNull());
    QCOMPARE(a.cacheKey(), b.cacheKey());
    QCOMPARE(Pictures::decodeCount(), before + 1);
    QVERIFY(!Pictures::icon("ico\\fraction.ico").isNull());
    QCOMPARE(Pictures::decodeCount(), before + 2);
}

void TestPictures::eachMetafileIsReadOnce()
{
    Pictures::setAssetFolder(PARTITUDE_TEST_ASSETS);
    Pictures::clearCache();
    const int before = Pictures::decodeCount();
    QCOMPARE(Pictures::metafile("wmf\\y2print1.wmf").sizeInTwips(), QSizeF(9360, 13390));
    Pictures::metafile("wmf\\y2print1.wmf"); // the second time from memory
    QCOMPARE(Pictures::decodeCount(), before + 1);
    Pictures::clearCache();
    Pictures::metafile("wmf\\y2print1.wmf");
    QCOMPARE(Pictures::decodeCount(), before + 2);
}

void TestPictures::aMissingOrBrokenFileIsFatal_data()
{
    QTest::addColumn<QString>("asset");
    QTest::addColumn<QByteArray>("contents"); // empty: the file is not there
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "jpg2\\solita05.jpg" << QByteArray() << "";
    QTest::newRow("not a picture") << "jpg2\\solita05.jpg" << QByteArray("this is not a jpeg") << "";
    QTest::newRow("cut short") << "gif\\leaf.gif" << QByteArray("GIF89a\x10\x00", 8) << "";
    QTest::newRow("metafile missing") << "wmf\\y2print1.wmf" << QByteArray() << "";
    QTest::newRow("metafile cut short") << "wmf\\u1print1.wmf" << WmfBuilder().rectangle(0, 0, 9, 9).bytes().left(50)
                                        << "cannot be read: the record at byte 40 is 14 bytes long, but only 10 bytes";
}

void TestPictures::aMissingOrBrokenFileIsFatal()
{
    QFETCH(QString, asset);
    QFETCH(QByteArray, contents);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    if (!contents.isEmpty()) {
        QString relative = asset;
        relative.replace('\\', '/');
        QVERIFY(QDir(dir.path()).mkpath(QFileInfo(relative).path()));
        QFile f(dir.filePath(relative));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(contents);
    }
    QProcess probe;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    probe.setProcessEnvironment(env);
    probe.start(PROBE_PATH, {dir.path(), asset});
    QVERIFY(probe.waitForFinished(30000));
    const QString out = QString::fromLocal8Bit(probe.readAllStandardOutput());
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit); // no crash
    QVERIFY(probe.exitCode() != 0);
    QVERIFY2(out.startsWith("critical\n"), qPrintable(out));
    // The file is named as the system writes it, under the folder.
    QVERIFY2(out.contains(QDir::toNativeSeparators(QString(asset).replace('\\', '/'))), qPrintable(out));
    QVERIFY2(out.contains(QDir(dir.path()).absolutePath()), qPrintable(out));
    QVERIFY2(out.contains(reason), qPrintable(out));
    QVERIFY(!out.contains("loaded"));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
