// Checks the files drawassets writes into the build tree: that each one is
// there and readable at the size the program expects, that the picture
// sets really build up step by step, that the loops close without a jump,
// that the certificate's celebrations are exactly the frames the program
// lists, that the sounds are valid and audible, that the logos blend into
// the menus, and that the GIF writer keeps the colours it is given.
#include "gifwriter.h"
#include "rewards/celebrations.h"
#include "runtime/pictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

QString assetPath(const QString &relative)
{
    return QStringLiteral(PARTITUDE_TEST_ASSETS) + QLatin1Char('/') + relative;
}

QImage loadAsset(const QString &relative)
{
    return QImage(assetPath(relative)).convertToFormat(QImage::Format_ARGB32);
}

// Pixels whose colour changed clearly (more than JPEG noise) between a and b.
int changedPixels(const QImage &a, const QImage &b, int threshold = 48)
{
    int changed = 0;
    for (int y = 0; y < a.height(); ++y) {
        const QRgb *ra = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const QRgb *rb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            const int d = std::max({std::abs(qRed(ra[x]) - qRed(rb[x])),
                                    std::abs(qGreen(ra[x]) - qGreen(rb[x])),
                                    std::abs(qBlue(ra[x]) - qBlue(rb[x]))});
            if (d > threshold)
                ++changed;
        }
    }
    return changed;
}

// Average absolute difference per channel, 0..255.
double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const QRgb *ra = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const QRgb *rb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qRed(ra[x]) - qRed(rb[x])) + std::abs(qGreen(ra[x]) - qGreen(rb[x]))
                   + std::abs(qBlue(ra[x]) - qBlue(rb[x]));
    }
    return sum / (3.0 * a.width() * a.height());
}

bool near(QRgb c, const QColor &expected, int tolerance)
{
    return std::abs(qRed(c) - expected.red()) <= tolerance
           && std::abs(qGreen(c) - expected.green()) <= tolerance
           && std::abs(qBlue(c) - expected.blue()) <= tolerance;
}

// Share of the pixels round the edge that show the screen's blue.
double blueBorderShare(const QImage &image)
{
    const QColor blue(48, 133, 214);
    int total = 0, matching = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y : {0, image.height() - 1}) {
            ++total;
            matching += near(image.pixel(x, y), blue, 12);
        }
    }
    for (int y = 0; y < image.height(); ++y) {
        for (int x : {0, image.width() - 1}) {
            ++total;
            matching += near(image.pixel(x, y), blue, 12);
        }
    }
    return double(matching) / total;
}

// Pixels inside `area` whose colour is more than `tolerance` from the screen's blue.
int offBluePixels(const QImage &image, const QRect &area, int tolerance)
{
    int off = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            off += !near(image.pixel(x, y), QColor(48, 133, 214), tolerance);
    return off;
}

// Strongly coloured pixels inside `area`, counted in twelve bands of hue
// 30 degrees wide (band 1 is orange to gold), leaving out the screen's blue.
QVector<int> hueBands(const QImage &image, const QRect &area)
{
    QVector<int> bands(12, 0);
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = QColor::fromRgb(image.pixel(x, y)).toHsv();
            if (c.hsvSaturation() < 110 || c.value() < 120 || c.hsvHue() < 0)
                continue;
            if (c.hsvHue() >= 195 && c.hsvHue() <= 225)
                continue;
            ++bands[c.hsvHue() / 30];
        }
    return bands;
}

QVector<QImage> loadFrames(const QString &pattern, int first, int count, int digits,
                           const QSize &size)
{
    QVector<QImage> frames;
    for (int i = first; i < first + count; ++i) {
        const QString name = pattern.arg(i, digits, 10, QLatin1Char('0'));
        const QImage frame = loadAsset(name);
        if (frame.isNull())
            qWarning("cannot read %s", qPrintable(name));
        else if (frame.size() != size)
            qWarning("%s is %dx%d", qPrintable(name), frame.width(), frame.height());
        if (frame.isNull() || frame.size() != size)
            return {};
        frames.append(frame);
    }
    return frames;
}

struct Wav
{
    quint16 format = 0, channels = 0, bits = 0, blockAlign = 0;
    quint32 rate = 0, byteRate = 0;
    QVector<qint16> samples;
    QString problem;
};

Wav readWav(const QByteArray &bytes)
{
    Wav wav;
    auto u32 = [&bytes](int at) { return qFromLittleEndian<quint32>(bytes.constData() + at); };
    auto u16 = [&bytes](int at) { return qFromLittleEndian<quint16>(bytes.constData() + at); };
    if (bytes.size() < 44 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE") {
        wav.problem = QStringLiteral("not a RIFF WAVE file");
        return wav;
    }
    if (u32(4) != quint32(bytes.size() - 8)) {
        wav.problem = QStringLiteral("RIFF size does not match the file");
        return wav;
    }
    bool haveFormat = false;
    for (int at = 12; at + 8 <= bytes.size();) {
        const QByteArray id = bytes.mid(at, 4);
        const quint32 size = u32(at + 4);
        if (at + 8 + qint64(size) > bytes.size()) {
            wav.problem = QStringLiteral("chunk %1 runs past the end").arg(QString::fromLatin1(id));
            return wav;
        }
        if (id == "fmt " && size >= 16) {
            wav.format = u16(at + 8);
            wav.channels = u16(at + 10);
            wav.rate = u32(at + 12);
            wav.byteRate = u32(at + 16);
            wav.blockAlign = u16(at + 20);
            wav.bits = u16(at + 22);
            haveFormat = true;
        } else if (id == "data") {
            for (quint32 i = 0; i + 1 < size; i += 2)
                wav.samples.append(qFromLittleEndian<qint16>(bytes.constData() + at + 8 + i));
        }
        at += 8 + int(size) + int(size % 2);
    }
    if (!haveFormat || wav.samples.isEmpty())
        wav.problem = QStringLiteral("fmt or data chunk missing");
    return wav;
}

QImage patternImage(int colours, bool withHoles)
{
    // Colour i has red 37*i mod 256, which is different for every i < 256.
    QImage image(37, 23, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int i = (x * 7 + y * 13) % colours;
            QRgb c = qRgb((i * 37) % 256, (i * 91 + 5) % 256, (i * 53 + 11) % 256);
            if (withHoles && (x + 2 * y) % 5 == 0)
                c = qRgba(0, 0, 0, 0);
            image.setPixel(x, y, c);
        }
    }
    return image;
}

// The menus' blue, which the logo bitmaps and frames sit on.
const QColor kMenuBlue(49, 130, 212);

// A frame as the menus show it: its clear pixels let the blue through.
QImage onMenuBlue(const QImage &frame)
{
    QImage shown(frame.size(), QImage::Format_ARGB32);
    shown.fill(kMenuBlue);
    QPainter painter(&shown);
    painter.drawImage(0, 0, frame);
    painter.end();
    return shown;
}

// Every mapped colour is one of the palette's, and one input colour always
// comes out as the same output colour, whichever picture it is in.
QString paletteProblem(const QVector<QImage> &originals, const QVector<QImage> &mapped,
                       const QVector<QRgb> &palette, int *worst)
{
    const QSet<QRgb> allowed(palette.begin(), palette.end());
    QHash<QRgb, QRgb> seen;
    *worst = 0;
    for (int i = 0; i < originals.size(); ++i) {
        for (int y = 0; y < originals[i].height(); ++y) {
            for (int x = 0; x < originals[i].width(); ++x) {
                const QRgb in = originals[i].pixel(x, y), got = mapped[i].pixel(x, y);
                if (qAlpha(in) < 128) {
                    if (qAlpha(got) != 0)
                        return QStringLiteral("clear pixel made solid");
                    continue;
                }
                if (!allowed.contains(got))
                    return QStringLiteral("%1 is not in the palette").arg(got, 8, 16);
                if (seen.contains(in) && seen.value(in) != got)
                    return QStringLiteral("%1 mapped two ways").arg(in, 8, 16);
                seen.insert(in, got);
                *worst = std::max({*worst, std::abs(qRed(in) - qRed(got)),
                                   std::abs(qGreen(in) - qGreen(got)),
                                   std::abs(qBlue(in) - qBlue(got))});
            }
        }
    }
    return QString();
}

} // namespace

class TestAssetFiles : public QObject
{
    Q_OBJECT

private slots:
    void icons_data();
    void icons();
    void titleAnimation();
    void rewardSets_data();
    void rewardSets();
    void starSeries_data();
    void starSeries();
    void celebrationFrameNames_data();
    void celebrationFrameNames();
    void celebrations_data();
    void celebrations();
    void celebrationColours_data();
    void celebrationColours();
    void harpSounds_data();
    void harpSounds();
    void harpSoundsAreDifferent();
    void gifKeepsExactColours_data();
    void gifKeepsExactColours();
    void gifReducesManyColours();
    void gifReportsFailures();
    void sharedPaletteForFrames_data();
    void sharedPaletteForFrames();
    void logoBitmaps_data();
    void logoBitmaps();
    void logoAnimation_data();
    void logoAnimation();
};

void TestAssetFiles::icons_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("format");
    for (const char *name : {"fraction", "trffc10a", "quest", "hand", "door2", "arw05rt"})
        QTest::newRow(name) << QStringLiteral("ico/%1.ico").arg(QLatin1String(name))
                            << QByteArray("ico");
    QTest::newRow("print") << QStringLiteral("ico/print.bmp") << QByteArray("bmp");
}

void TestAssetFiles::icons()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, format);
    QImageReader reader(assetPath(file));
    QCOMPARE(reader.format(), format);
    const QImage icon = reader.read().convertToFormat(QImage::Format_ARGB32);
    QVERIFY2(!icon.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(icon.size(), QSize(32, 32));

    QSet<QRgb> colours;
    int solid = 0;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            colours.insert(icon.pixel(x, y));
            solid += qAlpha(icon.pixel(x, y)) == 255;
        }
    QVERIFY2(colours.size() >= 12, "too few colours for a drawn icon");
    if (format == "ico") {
        // Drawn on a clear background that shows through round the shape.
        QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
        QVERIFY2(solid >= 200 && solid <= 1000, qPrintable(QString::number(solid)));
    } else {
        QCOMPARE(solid, 32 * 32);
    }
}

void TestAssetFiles::titleAnimation()
{
    const QVector<QImage> frames =
        loadFrames(QStringLiteral("gif/sphfra/sphf%1.jpg"), 0, 50, 4, QSize(256, 256));
    QCOMPARE(frames.size(), 50);

    const QColor blue(48, 133, 214);
    QVERIFY(near(frames[0].pixel(2, 2), blue, 6));
    QVERIFY(near(frames[0].pixel(253, 253), blue, 6));

    // Shown round and round: every step, 49 to 0 included, is a visible turn
    // of about the same size; a repeated frame would stutter, a bigger
    // change would jump.
    double smallestStep = 1e9, largestStep = 0;
    for (int i = 0; i < frames.size(); ++i) {
        const QImage &a = frames[i];
        const QImage &b = frames[(i + 1) % frames.size()];
        QVERIFY2(changedPixels(a, b, 20) > 100,
                 qPrintable(QStringLiteral("frame %1 and the next are the same").arg(i)));
        if (i + 1 < frames.size()) {
            smallestStep = std::min(smallestStep, meanDifference(a, b));
            largestStep = std::max(largestStep, meanDifference(a, b));
        }
    }
    const double wrap = meanDifference(frames[49], frames[0]);
    QVERIFY2(wrap <= largestStep * 1.3 && wrap >= smallestStep * 0.7,
             qPrintable(QStringLiteral("wrap %1, steps %2..%3")
                            .arg(wrap)
                            .arg(smallestStep)
                            .arg(largestStep)));
    // The whole loop turns the ball much further than one step.
    QVERIFY2(meanDifference(frames[0], frames[25]) > wrap * 4,
             qPrintable(QStringLiteral("half way %1, wrap %2")
                            .arg(meanDifference(frames[0], frames[25]))
                            .arg(wrap)));
}

void TestAssetFiles::rewardSets_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<int>("height");
    for (const char *name : {"solita", "neckla", "hanoi", "sphfra", "starfr", "gazebo", "earthc"})
        QTest::newRow(name) << QString::fromLatin1(name) << 240;
    for (const char *name : {"thermo", "cake", "greenb"})
        QTest::newRow(name) << QString::fromLatin1(name) << 320;
}

void TestAssetFiles::rewardSets()
{
    QFETCH(QString, set);
    QFETCH(int, height);
    const QVector<QImage> frames = loadFrames(QStringLiteral("jpg2/") + set + QStringLiteral("%1.jpg"),
                                              0, 21, 2, QSize(288, height));
    QCOMPARE(frames.size(), 21);

    // The picture sits on the blue screen: its corners are that blue, give
    // or take the JPEG fringe of the panel's white rim nearby.
    for (const QImage &frame : {frames[0], frames[20]})
        for (const QPoint &corner : {QPoint(0, 0), QPoint(287, height - 1)})
            QVERIFY(near(frame.pixel(corner), QColor(48, 133, 214), 20));

    // The finished picture is far from the empty one, and every step adds
    // something a child can see.
    const int pixels = 288 * height;
    const int whole = changedPixels(frames[0], frames[20]);
    QVERIFY2(whole > pixels / 20, qPrintable(QStringLiteral("only %1 pixels").arg(whole)));
    for (int step = 1; step <= 20; ++step) {
        const int changed = changedPixels(frames[step - 1], frames[step]);
        QVERIFY2(changed >= 60, qPrintable(QStringLiteral("step %1 changes only %2 pixels")
                                               .arg(step)
                                               .arg(changed)));
    }
}

void TestAssetFiles::starSeries_data()
{
    QTest::addColumn<int>("series");
    for (int s = 0; s < 4; ++s)
        QTest::addRow("series %d", s) << s;
}

void TestAssetFiles::starSeries()
{
    QFETCH(int, series);
    const QString pattern = QStringLiteral("reward/stars%1").arg(series) + QStringLiteral("%1.jpg");
    const QVector<QImage> frames = loadFrames(pattern, 0, 20, 2, QSize(324, 262));
    QCOMPARE(frames.size(), 20);
    QVERIFY(blueBorderShare(frames[0]) > 0.8);

    // Played forwards or backwards round and round: every step, including
    // 19 to 0, is a visible change of about the same size.
    double smallest = 1e9, largest = 0;
    for (int i = 0; i < 20; ++i) {
        const QImage &a = frames[i];
        const QImage &b = frames[(i + 1) % 20];
        QVERIFY2(changedPixels(a, b, 30) > 100,
                 qPrintable(QStringLiteral("frame %1 to the next hardly changes").arg(i)));
        const double d = meanDifference(a, b);
        if (i < 19) {
            smallest = std::min(smallest, d);
            largest = std::max(largest, d);
        }
    }
    const double wrap = meanDifference(frames[19], frames[0]);
    QVERIFY2(wrap <= largest * 1.3 && wrap >= smallest * 0.7,
             qPrintable(QStringLiteral("wrap %1, steps %2..%3").arg(wrap).arg(smallest).arg(largest)));

    // Each series is its own animation.
    const QImage other = loadAsset(QStringLiteral("reward/stars%1%2.jpg").arg((series + 1) % 4).arg(0, 2, 10, QLatin1Char('0')));
    QVERIFY(changedPixels(frames[0], other) > 2000);
}

void TestAssetFiles::celebrationFrameNames_data()
{
    QTest::addColumn<int>("celebration");
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("file");
    QTest::newRow("first") << 0 << 0 << QStringLiteral("gif\\grstel\\grstel00.jpg");
    QTest::newRow("last one-digit") << 0 << 9 << QStringLiteral("gif\\grstel\\grstel09.jpg");
    QTest::newRow("first two-digit") << 1 << 10 << QStringLiteral("gif\\firewk\\firewk10.jpg");
    QTest::newRow("last") << 1 << 23 << QStringLiteral("gif\\firewk\\firewk23.jpg");
    QTest::newRow("balloon") << 2 << 7 << QStringLiteral("gif\\balloon\\balloon07.jpg");
    QTest::newRow("trophy") << 3 << 15 << QStringLiteral("gif\\trophy\\trophy15.jpg");
}

void TestAssetFiles::celebrationFrameNames()
{
    QFETCH(int, celebration);
    QFETCH(int, frame);
    QFETCH(QString, file);
    QCOMPARE(celebrationFrameFile(kCelebrations[celebration], frame), file);
}

void TestAssetFiles::celebrations_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kCelebrationCount; ++i)
        QTest::newRow(kCelebrations[i].base) << i;
}

void TestAssetFiles::celebrations()
{
    QFETCH(int, index);
    const Celebration &celebration = kCelebrations[index];
    const int count = celebration.frames;
    Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));

    // Every listed frame is where the program looks for it, and nothing more:
    // the folder holds exactly the listed frames.
    QVector<QImage> frames;
    for (int f = 0; f < count; ++f) {
        const QString file = Pictures::resolve(celebrationFrameFile(celebration, f));
        QImageReader reader(file);
        QCOMPARE(reader.format(), QByteArray("jpeg"));
        const QImage frame = reader.read().convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(!frame.isNull(), qPrintable(file + QStringLiteral(": ") + reader.errorString()));
        QCOMPARE(frame.size(), QSize(kCelebrationWidth, kCelebrationHeight));
        frames.append(frame);
    }
    const QFileInfo first(Pictures::resolve(celebrationFrameFile(celebration, 0)));
    const QString name = first.fileName().chopped(6);  // "grstel" of "grstel00.jpg"
    const QStringList inFolder =
        first.dir().entryList({name + QStringLiteral("*")}, QDir::Files);
    QCOMPARE(inFolder.size(), count);

    // Shown on the certificate's blue with no frame round it: the sides and
    // corners are that blue (balloons and rockets may cross the top and
    // bottom), and there is plenty to see inside.
    const int w = kCelebrationWidth, h = kCelebrationHeight;
    int leastDrawn = w * h;
    for (int f = 0; f < count; ++f) {
        const QImage &frame = frames[f];
        const double edge = blueBorderShare(frame);
        QVERIFY2(edge > 0.75, qPrintable(QStringLiteral("frame %1: edge %2 blue").arg(f).arg(edge)));
        for (const QRect &side : {QRect(0, 0, 1, h), QRect(w - 1, 0, 1, h)})
            QVERIFY2(offBluePixels(frame, side, 12) == 0,
                     qPrintable(QStringLiteral("frame %1: side at x=%2 is not the blue").arg(f).arg(side.x())));
        for (const QPoint &corner : {QPoint(0, 0), QPoint(w - 4, 0), QPoint(0, h - 4), QPoint(w - 4, h - 4)})
            QVERIFY2(offBluePixels(frame, QRect(corner, QSize(4, 4)), 8) == 0,
                     qPrintable(QStringLiteral("frame %1: corner %2,%3 is not the blue")
                                    .arg(f).arg(corner.x()).arg(corner.y())));
        leastDrawn = std::min(leastDrawn, offBluePixels(frame, frame.rect(), 48));
    }
    QVERIFY2(leastDrawn > w * h / 20,
             qPrintable(QStringLiteral("a frame shows only %1 pixels").arg(leastDrawn)));

    // Played round and round: every step, last to first included, is a
    // visible change of about the same size.
    double smallest = 1e9, largest = 0;
    for (int f = 0; f < count; ++f) {
        const QImage &a = frames[f];
        const QImage &b = frames[(f + 1) % count];
        const int changed = changedPixels(a, b, 30);
        QVERIFY2(changed > 150,
                 qPrintable(QStringLiteral("frame %1 to the next changes %2 pixels").arg(f).arg(changed)));
        if (f + 1 < count) {
            smallest = std::min(smallest, meanDifference(a, b));
            largest = std::max(largest, meanDifference(a, b));
        }
    }
    const double wrap = meanDifference(frames[count - 1], frames[0]);
    QVERIFY2(wrap <= largest * 1.3 && wrap >= smallest * 0.7,
             qPrintable(QStringLiteral("wrap %1, steps %2..%3").arg(wrap).arg(smallest).arg(largest)));

    // Each animation is a picture of its own.
    const Celebration &next = kCelebrations[(index + 1) % kCelebrationCount];
    const QImage other(Pictures::resolve(celebrationFrameFile(next, 0)));
    QVERIFY(changedPixels(frames[0], other.convertToFormat(QImage::Format_ARGB32)) > 3000);
}

void TestAssetFiles::celebrationColours_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QRect>("middle");
    QTest::addColumn<int>("goldPercent");
    QTest::addColumn<int>("colours");
    // The star's and the cup's middles are gold; the fireworks and the
    // balloons come in many colours.
    QTest::newRow("great star") << 0 << QRect(80, 60, 40, 40) << 60 << 1;
    QTest::newRow("fireworks") << 1 << QRect(0, 0, 200, 150) << 0 << 3;
    QTest::newRow("balloons") << 2 << QRect(0, 0, 200, 150) << 0 << 6;
    QTest::newRow("trophy, with its red star") << 3 << QRect(76, 40, 48, 36) << 45 << 2;
}

void TestAssetFiles::celebrationColours()
{
    QFETCH(int, index);
    QFETCH(QRect, middle);
    QFETCH(int, goldPercent);
    QFETCH(int, colours);
    const Celebration &celebration = kCelebrations[index];
    Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
    for (int f = 0; f < celebration.frames; ++f) {
        const QImage frame(Pictures::resolve(celebrationFrameFile(celebration, f)));
        QVERIFY(!frame.isNull());
        const QVector<int> bands = hueBands(frame, middle);
        const int gold = bands[1];
        const int area = middle.width() * middle.height();
        const int seen = int(std::count_if(bands.begin(), bands.end(), [](int n) { return n >= 40; }));
        QVERIFY2(gold * 100 >= goldPercent * area,
                 qPrintable(QStringLiteral("frame %1: %2 gold pixels of %3").arg(f).arg(gold).arg(area)));
        QVERIFY2(seen >= colours,
                 qPrintable(QStringLiteral("frame %1 shows %2 colours").arg(f).arg(seen)));
    }
}

void TestAssetFiles::harpSounds_data()
{
    QTest::addColumn<QString>("file");
    for (int i = 1; i <= 5; ++i)
        QTest::addRow("harp%d", i) << QStringLiteral("wav/harp%1.wav").arg(i);
}

void TestAssetFiles::harpSounds()
{
    QFETCH(QString, file);
    QFile f(assetPath(file));
    QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(f.errorString()));
    const Wav wav = readWav(f.readAll());
    QVERIFY2(wav.problem.isEmpty(), qPrintable(wav.problem));
    QCOMPARE(wav.format, quint16(1));
    QCOMPARE(wav.channels, quint16(1));
    QCOMPARE(wav.rate, quint32(22050));
    QCOMPARE(wav.bits, quint16(16));
    QCOMPARE(wav.blockAlign, quint16(2));
    QCOMPARE(wav.byteRate, quint32(44100));

    const double seconds = wav.samples.size() / 22050.0;
    QVERIFY2(seconds >= 0.8 && seconds <= 2.0, qPrintable(QString::number(seconds)));
    int peak = 0;
    double early = 0;
    for (int i = 0; i < wav.samples.size(); ++i) {
        peak = std::max(peak, std::abs(int(wav.samples[i])));
        if (i < 11025)
            early += double(wav.samples[i]) * wav.samples[i];
    }
    QVERIFY2(peak >= 8000 && peak < 32767, qPrintable(QString::number(peak)));  // loud, not clipped
    QVERIFY(std::sqrt(early / 11025) > 1000);  // the first half second is clearly audible
    QVERIFY(std::abs(wav.samples.first()) < 300);  // no click at either end
    QVERIFY(std::abs(wav.samples.last()) < 300);
}

void TestAssetFiles::harpSoundsAreDifferent()
{
    QVector<QByteArray> sounds;
    for (int i = 1; i <= 5; ++i) {
        QFile f(assetPath(QStringLiteral("wav/harp%1.wav").arg(i)));
        QVERIFY(f.open(QIODevice::ReadOnly));
        sounds.append(f.readAll().mid(44, 22050));
    }
    for (int i = 0; i < sounds.size(); ++i)
        for (int j = i + 1; j < sounds.size(); ++j)
            QVERIFY2(sounds[i] != sounds[j], qPrintable(QStringLiteral("harp%1 = harp%2").arg(i + 1).arg(j + 1)));
}

void TestAssetFiles::gifKeepsExactColours_data()
{
    QTest::addColumn<int>("colours");
    QTest::addColumn<bool>("holes");
    QTest::newRow("two colours") << 2 << false;
    QTest::newRow("five colours") << 5 << false;
    QTest::newRow("two hundred colours") << 200 << false;
    QTest::newRow("full palette") << 256 << false;
    QTest::newRow("see-through holes") << 100 << true;
    QTest::newRow("full palette less the see-through one") << 255 << true;
}

void TestAssetFiles::gifKeepsExactColours()
{
    QFETCH(int, colours);
    QFETCH(bool, holes);
    const QImage original = patternImage(colours, holes);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("pattern.gif"));
    QString error;
    QVERIFY2(writeGif(original, path, &error), qPrintable(error));

    QImageReader reader(path);
    QCOMPARE(reader.format(), QByteArray("gif"));
    const QImage back = reader.read().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(back.size(), original.size());
    for (int y = 0; y < original.height(); ++y) {
        for (int x = 0; x < original.width(); ++x) {
            const QRgb want = original.pixel(x, y), got = back.pixel(x, y);
            if (qAlpha(want) == 0)
                QVERIFY2(qAlpha(got) == 0, qPrintable(QStringLiteral("(%1,%2) not clear").arg(x).arg(y)));
            else
                QVERIFY2(got == want, qPrintable(QStringLiteral("(%1,%2): %3 instead of %4")
                                                     .arg(x).arg(y).arg(got, 8, 16).arg(want, 8, 16)));
        }
    }
}

void TestAssetFiles::gifReducesManyColours()
{
    // 4096 colours must come down to 256, close to the originals, and the
    // same file every time.
    QImage original(64, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            original.setPixel(x, y, qRgb(x * 4, y * 4, (x + y) * 2));
    QString error;
    const QByteArray gif = encodeGif(original, &error);
    QVERIFY2(!gif.isEmpty(), qPrintable(error));
    QCOMPARE(encodeGif(original), gif);

    const QImage back = QImage::fromData(gif, "gif").convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(back.size(), original.size());
    QSet<QRgb> used;
    int worst = 0;
    double total = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            const QRgb a = original.pixel(x, y), b = back.pixel(x, y);
            used.insert(b);
            const int d = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                    std::abs(qBlue(a) - qBlue(b))});
            worst = std::max(worst, d);
            total += d;
        }
    QVERIFY(used.size() <= 256);
    QVERIFY(used.size() > 128);
    QVERIFY2(worst <= 24, qPrintable(QString::number(worst)));
    QVERIFY2(total / 4096 <= 8, qPrintable(QString::number(total / 4096)));
}

void TestAssetFiles::gifReportsFailures()
{
    QString error;
    QVERIFY(encodeGif(QImage(), &error).isEmpty());
    QVERIFY(!error.isEmpty());

    QTemporaryDir dir;
    error.clear();
    QVERIFY(!writeGif(patternImage(4, false), dir.filePath(QStringLiteral("missing/folder/x.gif")),
                      &error));
    QVERIFY(!error.isEmpty());
}

void TestAssetFiles::sharedPaletteForFrames_data()
{
    QTest::addColumn<bool>("manyColours");
    QTest::newRow("few colours, kept exactly") << false;
    QTest::newRow("thousands of colours, one palette") << true;
}

void TestAssetFiles::sharedPaletteForFrames()
{
    // Three frames with see-through holes; in the first row the frames
    // share 120 colours, in the second each has its own gradient and
    // together they have about 2,500.
    QFETCH(bool, manyColours);
    QVector<QImage> frames;
    for (int f = 0; f < 3; ++f) {
        QImage frame = patternImage(120, true);
        if (manyColours)
            for (int y = 0; y < frame.height(); ++y)
                for (int x = 0; x < frame.width(); ++x)
                    if (qAlpha(frame.pixel(x, y)) != 0)
                        frame.setPixel(x, y, qRgb(x * 6, y * 10, 40 + f * 60));
        frames.append(frame);
    }
    const QVector<QRgb> palette = sharedPalette(frames, 255);
    QVERIFY(palette.size() <= 255);
    QVector<QImage> mapped;
    for (const QImage &frame : frames)
        mapped.append(mapToPalette(frame, palette));

    int worst = 0;
    const QString problem = paletteProblem(frames, mapped, palette, &worst);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    if (manyColours) {
        QVERIFY(palette.size() > 128);
        QVERIFY2(worst <= 24, qPrintable(QString::number(worst)));
    } else {
        QCOMPARE(palette.size(), 120);
        QCOMPARE(worst, 0);
    }
    // Each mapped frame goes through the GIF writer without further loss.
    const QImage back = QImage::fromData(encodeGif(mapped[2]), "gif").convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(back.size(), mapped[2].size());
    for (int y = 0; y < back.height(); ++y)
        for (int x = 0; x < back.width(); ++x)
            if (qAlpha(mapped[2].pixel(x, y)) != 0)
                QCOMPARE(back.pixel(x, y), mapped[2].pixel(x, y));
}

void TestAssetFiles::logoBitmaps_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::newRow("morvane2") << QStringLiteral("bmp/morvane2.bmp") << QSize(192, 72);
    QTest::newRow("morvane3") << QStringLiteral("bmp/morvane3.bmp") << QSize(150, 56);
}

void TestAssetFiles::logoBitmaps()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QFile raw(assetPath(file));
    QVERIFY2(raw.open(QIODevice::ReadOnly), qPrintable(raw.errorString()));
    const QByteArray header = raw.read(30);
    QVERIFY(header.startsWith("BM"));
    QCOMPARE(qFromLittleEndian<quint16>(header.constData() + 28), quint16(24));  // bits a pixel

    QImageReader reader(assetPath(file));
    QCOMPARE(reader.format(), QByteArray("bmp"));
    const QImage logo = reader.read().convertToFormat(QImage::Format_ARGB32);
    QVERIFY2(!logo.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(logo.size(), size);

    // Every pixel round the edge is exactly the menus' blue, so the
    // bitmap has no visible border on them.
    for (int x = 0; x < size.width(); ++x)
        for (int y : {0, size.height() - 1})
            QVERIFY2(logo.pixel(x, y) == kMenuBlue.rgb(), qPrintable(QStringLiteral("(%1,%2)").arg(x).arg(y)));
    for (int y = 0; y < size.height(); ++y)
        for (int x : {0, size.width() - 1})
            QVERIFY2(logo.pixel(x, y) == kMenuBlue.rgb(), qPrintable(QStringLiteral("(%1,%2)").arg(x).arg(y)));

    // Inside, a white card carries the coloured mark and the dark words.
    int white = 0, dark = 0, bright = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const QColor c = QColor::fromRgb(logo.pixel(x, y));
            white += c.red() > 245 && c.green() > 245 && c.blue() > 245;
            dark += c.value() < 120;
            bright += c.saturation() > 150 && c.value() > 180 && !near(c.rgb(), kMenuBlue, 30);
        }
    const int area = size.width() * size.height();
    QVERIFY2(white > area / 4, qPrintable(QString::number(white)));
    QVERIFY2(dark > area / 120, qPrintable(QString::number(dark)));
    QVERIFY2(bright > area / 20, qPrintable(QString::number(bright)));

    // The compact logo is the same picture as the large one, only smaller.
    const QImage large = loadAsset(QStringLiteral("bmp/morvane2.bmp"))
                             .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage plain(size, QImage::Format_ARGB32);
    plain.fill(kMenuBlue);
    QVERIFY2(meanDifference(large, logo) < meanDifference(plain, logo) / 4,
             qPrintable(QStringLiteral("%1 against %2").arg(meanDifference(large, logo))
                            .arg(meanDifference(plain, logo))));
}

void TestAssetFiles::logoAnimation_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("side");
    QTest::newRow("morv") << QStringLiteral("bmp/morv%1.gif") << 112;
    QTest::newRow("smmv") << QStringLiteral("bmp/smmv%1.gif") << 80;
}

void TestAssetFiles::logoAnimation()
{
    QFETCH(QString, pattern);
    QFETCH(int, side);
    const QVector<QImage> frames = loadFrames(pattern, 0, 20, 4, QSize(side, side));
    QCOMPARE(frames.size(), 20);
    QVERIFY(QImageReader(assetPath(pattern.arg(0, 4, 10, QLatin1Char('0')))).format() == "gif");

    QVector<QImage> shown;
    for (int i = 0; i < frames.size(); ++i) {
        const QImage &frame = frames[i];
        // The corners are clear; the round mark fills much of the square.
        for (const QPoint &corner : {QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1),
                                     QPoint(side - 1, side - 1), QPoint(4, 4)})
            QCOMPARE(qAlpha(frame.pixel(corner)), 0);
        int solid = 0;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                const QRgb c = frame.pixel(x, y);
                if (qAlpha(c) == 0)
                    continue;
                ++solid;
                // A solid pixel beside a clear one is the mark's soft edge,
                // already mixed with the menus' blue: dark blue, never the
                // grey or pale fringe of an edge mixed with black or white.
                const bool edge = (x > 0 && qAlpha(frame.pixel(x - 1, y)) == 0)
                                  || (x + 1 < side && qAlpha(frame.pixel(x + 1, y)) == 0)
                                  || (y > 0 && qAlpha(frame.pixel(x, y - 1)) == 0)
                                  || (y + 1 < side && qAlpha(frame.pixel(x, y + 1)) == 0);
                if (edge && (qRed(c) > 70 || qBlue(c) - qRed(c) < 60))
                    QFAIL(qPrintable(QStringLiteral("frame %1 (%2,%3) edge colour %4")
                                         .arg(i).arg(x).arg(y).arg(c, 8, 16)));
            }
        const int area = side * side;
        QVERIFY2(solid > area / 2 && solid < area * 9 / 10,
                 qPrintable(QStringLiteral("frame %1: %2 solid pixels").arg(i).arg(solid)));
        shown.append(onMenuBlue(frame));
    }

    // It turns: every step, 19 to 0 included, is a visible change of about
    // the same size, and half a loop away the picture is far more changed.
    double smallest = 1e9, largest = 0;
    for (int i = 0; i < 20; ++i) {
        const QImage &a = shown[i];
        const QImage &b = shown[(i + 1) % 20];
        QVERIFY2(changedPixels(a, b, 30) > side * side / 40,
                 qPrintable(QStringLiteral("frame %1 to the next hardly changes").arg(i)));
        if (i < 19) {
            smallest = std::min(smallest, meanDifference(a, b));
            largest = std::max(largest, meanDifference(a, b));
        }
    }
    const double wrap = meanDifference(shown[19], shown[0]);
    QVERIFY2(wrap <= largest * 1.3 && wrap >= smallest * 0.7,
             qPrintable(QStringLiteral("wrap %1, steps %2..%3").arg(wrap).arg(smallest).arg(largest)));
    QVERIFY2(meanDifference(shown[0], shown[10]) > largest * 2,
             qPrintable(QStringLiteral("half a loop %1, step %2")
                            .arg(meanDifference(shown[0], shown[10])).arg(largest)));

    // Both sizes are one animation in step: the menus share the frame number.
    if (side == 80) {
        const QVector<QImage> large =
            loadFrames(QStringLiteral("bmp/morv%1.gif"), 0, 20, 4, QSize(112, 112));
        QCOMPARE(large.size(), 20);
        for (int i : {0, 7, 19}) {
            const QImage smaller = onMenuBlue(large[i]).scaled(80, 80, Qt::IgnoreAspectRatio,
                                                               Qt::SmoothTransformation);
            QVERIFY2(meanDifference(smaller, shown[i]) * 2 < meanDifference(smaller, shown[(i + 10) % 20]),
                     qPrintable(QStringLiteral("frame %1").arg(i)));
        }
    }
}

QTEST_GUILESS_MAIN(TestAssetFiles)
#include "tst_assetfiles.moc"
