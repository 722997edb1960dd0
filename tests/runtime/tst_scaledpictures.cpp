// Pictures follow the screens' scale, drawn from the large twin when larger than designed; icons are sized for the scale.
#include "runtime/picturebox.h"
#include "runtime/pictures.h"
#include "runtime/twips.h"

#include <QApplication>
#include <QtTest>

namespace {
constexpr int kSameColour = 24; // summed red, green and blue apart below which two pixels match
} // namespace

class TestScaledPictures : public QObject {
    Q_OBJECT
private slots:
    void init() { Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS)); }
    void cleanup()
    {
        Twips::setScale(1.0);
        Pictures::clearCache();
    }

    void twinNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("twin");
        QTest::newRow("icon") << QStringLiteral("ico\\door2.ico") << QStringLiteral("ico\\door2@2x.ico");
        QTest::newRow("dotted folder") << QStringLiteral("a.b\\logo") << QStringLiteral("a.b\\logo@2x");
        QTest::newRow("no folder") << QStringLiteral("print.bmp") << QStringLiteral("print@2x.bmp");
    }

    void twinNames()
    {
        QFETCH(QString, path);
        QFETCH(QString, twin);
        QCOMPARE(Pictures::largeTwin(path), twin);
    }

    void drawnAtTheScale_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QSize>("designed");
        QTest::addColumn<bool>("fromTwin");
        QTest::newRow("icon at 1") << QStringLiteral("ico\\door2.ico") << 1.0 << QSize(32, 32) << false;
        QTest::newRow("icon at 1.5") << QStringLiteral("ico\\door2.ico") << 1.5 << QSize(32, 32) << true;
        QTest::newRow("icon at 2") << QStringLiteral("ico\\door2.ico") << 2.0 << QSize(32, 32) << true;
        QTest::newRow("logo at 1.2") << QStringLiteral("bmp\\morvane2.bmp") << 1.2 << QSize(192, 72) << true;
        QTest::newRow("halves picture at 2") << QStringLiteral("gif\\leaf.gif") << 2.0 << QSize(60, 60) << true;
        QTest::newRow("title frame at 1.5") << QStringLiteral("gif\\sphfra\\sphf0000.jpg") << 1.5 << QSize(256, 256) << true;
        QTest::newRow("certificate star without a twin at 2") << QStringLiteral("gif\\grstel\\grstel00.jpg") << 2.0 << QSize() << false;
        QTest::newRow("reward picture at 1.5") << QStringLiteral("jpg2\\cake00.jpg") << 1.5 << QSize() << true;
    }

    void drawnAtTheScale()
    {
        QFETCH(QString, path);
        QFETCH(double, scale);
        QFETCH(QSize, designed);
        QFETCH(bool, fromTwin);
        Twips::setScale(scale);
        const QPixmap picture = Pictures::get(path);
        designed = designed.isEmpty() ? QImage(Pictures::resolve(path)).size() : designed; // empty: as the file is
        QCOMPARE(picture.deviceIndependentSize().toSize(), designed);
        // A twin is kept at the pixels it is drawn in (up to its own size).
        const qreal kept = std::min<qreal>(scale, Pictures::kLargeTwinFactor);
        QCOMPARE(picture.size(), fromTwin ? (QSizeF(designed) * kept).toSize() : designed);

        PictureBox box(nullptr, QStringLiteral("Picture1"));
        box.setAutoSize(true);
        box.load(path);
        const QSize drawn(qRound(designed.width() * scale), qRound(designed.height() * scale));
        QCOMPARE(box.size(), drawn);
        // The whole picture, stretched to fill the box: an opaque one's middle and right edge are in place.
        const QImage shown = box.grab().toImage();
        const QImage alone = picture.toImage().scaled(drawn, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        for (const QPoint& at : {QPoint(drawn.width() / 2, drawn.height() / 2), QPoint(drawn.width() - 2, drawn.height() / 3)}) {
            const QColor a = shown.pixelColor(at), b = alone.pixelColor(at);
            const int apart = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
            QVERIFY2(picture.hasAlpha() || apart < kSameColour, qPrintable(QStringLiteral("%1 apart").arg(apart)));
        }

        // An icon comes at the size a button shows it, never stretched there.
        const QIcon icon = Pictures::icon(path);
        QCOMPARE(icon.availableSizes().value(0), drawn);
    }
};

QTEST_MAIN(TestScaledPictures)
#include "tst_scaledpictures.moc"
