#include "runtime/pictures.h"
#include "testsupport.h"
#include "wmfbuilder.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPictures : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        Pictures::setAssetFolder(PARTITUDE_TEST_ASSETS);
        Pictures::clearCache();
    }

    void pathsResolveAndEachFileIsDecodedOnce()
    {
        QCOMPARE(Pictures::resolve("gif\\sphfra\\sphf0000.jpg"), QString(PARTITUDE_TEST_ASSETS "/gif/sphfra/sphf0000.jpg"));
        const int before = Pictures::decodeCount();
        const QPixmap a = Pictures::get("gif\\sphfra\\sphf0000.jpg");
        const QPixmap b = Pictures::get("gif\\sphfra\\sphf0000.jpg");
        QVERIFY(!a.isNull());
        QCOMPARE(a.toImage(), b.toImage());
        QCOMPARE(Pictures::decodeCount(), before + 1);
        QVERIFY(!Pictures::icon("ico\\fraction.ico").isNull());
        QCOMPARE(Pictures::decodeCount(), before + 2);
    }

    void framesUnderAKeepStayDecodedWhileItLives()
    {
        // The title's 50 frames are more than the cache holds: without a Keep a second turn decodes them again.
        const auto turn = [] {
            for (int n = 0; n < 50; ++n)
                QVERIFY(!Pictures::get(QStringLiteral("gif\\sphfra\\sphf00%1.jpg").arg(n, 2, 10, QLatin1Char('0'))).isNull());
        };
        int before = Pictures::decodeCount();
        turn();
        turn();
        QCOMPARE(Pictures::decodeCount(), before + 100);
        {
            Pictures::Keep frames(QStringLiteral("gif\\sphfra\\"));
            before = Pictures::decodeCount();
            turn();
            turn();
            QCOMPARE(Pictures::decodeCount(), before + 50);
            Pictures::get("jpg2\\solita05.jpg");
            Pictures::get("jpg2\\solita05.jpg");
            QCOMPARE(Pictures::decodeCount(), before + 51); // other folders as before
        }
        before = Pictures::decodeCount();
        Pictures::get("gif\\sphfra\\sphf0000.jpg");
        QCOMPARE(Pictures::decodeCount(), before + 1); // let go with the Keep
    }

    void framesKeptSmallPaintAsQtWouldDrawThem()
    {
        // Every 2-byte colour, unpacked by hand, is the colour Qt makes of it.
        QImage all(256, 256, QImage::Format_RGB16);
        for (int y = 0; y < 256; ++y) {
            auto* line = reinterpret_cast<quint16*>(all.scanLine(y));
            for (int x = 0; x < 256; ++x)
                line[x] = quint16(y * 256 + x);
        }
        all.setDevicePixelRatio(1.25);
        QImage target = Pictures::paintable(all);
        QCOMPARE(target.format(), QImage::Format_RGB32);
        QCOMPARE(target.devicePixelRatio(), 1.25);
        QCOMPARE(target, all.convertToFormat(QImage::Format_RGB32));

        // The next frame of the same size is unpacked into the same pixels.
        const uchar* pixels = target.constBits();
        all.fill(Qt::red);
        Pictures::paintInto(all, &target);
        QCOMPARE(target.constBits(), pixels);
        QCOMPARE(target.pixel(17, 200), qRgb(255, 0, 0));
        // Pictures in other formats are handed on as Qt paints them.
        const QImage clear(8, 8, QImage::Format_ARGB32_Premultiplied);
        Pictures::paintInto(clear, &target);
        QCOMPARE(target.format(), QImage::Format_ARGB32_Premultiplied);
    }

    void eachMetafileIsReadOnce()
    {
        const int before = Pictures::decodeCount();
        QCOMPARE(Pictures::metafile("wmf\\y2print1.wmf").sizeInTwips(), QSizeF(9360, 13390));
        Pictures::metafile("wmf\\y2print1.wmf"); // the second time from memory
        QCOMPARE(Pictures::decodeCount(), before + 1);
        Pictures::clearCache();
        Pictures::metafile("wmf\\y2print1.wmf");
        QCOMPARE(Pictures::decodeCount(), before + 2);
    }

    void aMissingOrBrokenFileIsFatal_data()
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

    void aMissingOrBrokenFileIsFatal()
    {
        QFETCH(QString, asset);
        QFETCH(QByteArray, contents);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        const QString relative = QString(asset).replace('\\', '/');
        if (!contents.isEmpty()) {
            QVERIFY(QDir(dir.path()).mkpath(QFileInfo(relative).path()));
            TestSupport::writeBytes(dir.filePath(relative), contents);
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
        QVERIFY2(out.contains(QDir::toNativeSeparators(relative)), qPrintable(out));
        QVERIFY2(out.contains(QDir(dir.path()).absolutePath()), qPrintable(out));
        QVERIFY2(out.contains(reason), qPrintable(out));
        QVERIFY(!out.contains("loaded"));
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
