// The files drawassets writes into the build tree, and the GIF writer that makes some of them.
#include "assetcheck.h"
#include "gifwriter.h"
#include "menus/menulook.h"
#include "rewards/celebrations.h"
#include "runtime/pictures.h"
#include "shell/module1.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSet>
#include <QtEndian>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace AssetCheck;

namespace {
// The pictures drawn at one size: icons, the publisher's logos and the Halves and Quarters sets;
// colourful: for the sets, the least share of solid pixels in clear colours (none in grey ones).
struct Still { QString name, file; QSize size; double colourful = 0; };

QList<Still> stillPictures()
{
    QList<Still> list;
    for (const char *name : {"fraction", "trffc10a", "quest", "hand", "door2", "arw05rt"})
        list << Still{name, QStringLiteral("ico/%1.ico").arg(QLatin1String(name)), QSize(32, 32)};
    list << Still{"print", "ico/print.bmp", QSize(32, 32)} << Still{"morvane2", "bmp/morvane2.bmp", QSize(192, 72)}
         << Still{"morvane3", "bmp/morvane3.bmp", QSize(150, 56)};
    const struct { const char *name, *file; double colourful; } halves[] = {
        {"holly", "leaf", 0.8},          {"ducks", "wb01747_", 0.5},   {"suns", "wb01330_", 0.9},
        {"dinosaurs", "wb01742_", 0.9}, {"spiders", "wb01299_", 0.0}, {"gorillas", "wb01746_", 0.0}};
    for (const auto &h : halves)
        list << Still{h.name, QStringLiteral("gif/%1.gif").arg(QLatin1String(h.file)), QSize(60, 60), h.colourful};
    return list;
}

// An animation's frames; other: another animation's first frame it must not look like; sides, rim: the
// least share of them in the screen's blue (JPEG frames); digits: of the frame numbers in the names.
struct Animation {
    QStringList files;
    QSize size;
    int minChanged;
    QString other;
    double sides, rim;
    int digits;
    Motion motion;
};
} // namespace

Q_DECLARE_METATYPE(Animation)

class TestAssetFiles : public QObject
{
    Q_OBJECT

private slots:
    void stills_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("colourful");
        for (const Still &still : stillPictures())
            QTest::newRow(qPrintable(still.name)) << still.file << still.size << still.colourful;
    }

    void stills()
    {
        QFETCH(QString, file);
        QFETCH(QSize, size);
        QFETCH(double, colourful);
        const QByteArray format = file.section(QLatin1Char('.'), -1).toLatin1();
        QImageReader reader(assetPath(file));
        QCOMPARE(reader.format(), format);
        const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.size(), size);

        const QImage holly = loadImage(assetPath(QStringLiteral("gif/leaf.gif")));
        QSet<QRgb> colours;
        int solid = 0, bright = 0, differs = 0;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x) {
                const QRgb c = image.pixel(x, y);
                colours.insert(c);
                solid += qAlpha(c) == 255;
                bright += qAlpha(c) == 255 && QColor(c).hsvSaturation() > 100;
                differs += format == "gif" && (qAlpha(c) == 0) != (qAlpha(holly.pixel(x, y)) == 0);
            }
        QVERIFY2(colours.size() >= 12, "too few colours for a drawn picture");
        if (format == "ico") {  // drawn on a clear background that shows through round the shape
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            QVERIFY2(solid >= 200 && solid <= 1000, qPrintable(QString::number(solid)));
            return;
        }
        if (format == "gif") {
            // Clear round the picture so the cell's tile shows; many shades, in
            // colour where the subject has colours, an outline of its own.
            QCOMPARE(qAlpha(image.pixel(0, 0)) + qAlpha(image.pixel(59, 59)), 0);
            QVERIFY2(solid > 3600 / 5 && solid < 3600 * 85 / 100, qPrintable(QString::number(solid)));
            QVERIFY2(colours.size() >= 40 && bright >= colourful * solid, qPrintable(QString::number(bright)));
            QVERIFY(file.endsWith(QLatin1String("leaf.gif")) || differs > 300);
            return;
        }
        QCOMPARE(solid, size.width() * size.height());
        if (size.width() == 32)
            return;

        // The publisher's logos: the rim is exactly the menus' blue behind them, so
        // they show no border; the compact one is the large one made smaller.
        QCOMPARE(edgeShare(image, MenuLook::kBack, 0, false), 1.0);
        const QImage large = loadImage(assetPath(QStringLiteral("bmp/morvane2.bmp")))
                                 .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const double fromLarge = compare(large, image).mean, fromPlain = compare(filled(size, MenuLook::kBack), image).mean;
        QVERIFY2(fromLarge < fromPlain / 4, qPrintable(QStringLiteral("%1 against %2").arg(fromLarge).arg(fromPlain)));
    }

    void largeTwins_data()
    {
        QTest::addColumn<QString>("file");
        for (const Still &still : stillPictures())
            QTest::newRow(qPrintable(still.name)) << still.file;
        QTest::newRow("title frame") << QStringLiteral("gif/sphfra/sphf0000.jpg");
        QTest::newRow("last title frame") << QStringLiteral("gif/sphfra/sphf0049.jpg");
        QTest::newRow("reward picture") << QStringLiteral("jpg2/cake05.jpg");
        QTest::newRow("tall reward picture") << QStringLiteral("jpg2/thermo20.jpg");
        QTest::newRow("reward globe") << QStringLiteral("jpg2/earthc20.jpg");
        QTest::newRow("stars") << QStringLiteral("reward/stars105.jpg");
    }

    // A picture's twin, from which screens drawn larger than designed are painted,
    // is the same picture drawn twice the size, not a blown-up copy.
    void largeTwins()
    {
        QFETCH(QString, file);
        const int dot = file.lastIndexOf(QLatin1Char('.'));
        const QImage design = loadImage(assetPath(file)).convertToFormat(QImage::Format_ARGB32);
        const QImage twin = loadImage(assetPath(file.left(dot) + QStringLiteral("@2x") + file.mid(dot)))
                                .convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(twin.size(), design.size() * 2);
        const QImage shrunk = twin.scaled(design.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const Difference same = compare(shrunk, design);
        QVERIFY2(same.changed < design.width() * design.height() / 20, qPrintable(QString::number(same.changed)));
        // Sharper than the design blown up: more detail survives in the twin.
        const QImage blownUp = design.scaled(twin.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QVERIFY(compare(blownUp, twin, 8).changed > 0);
    }

    void animations_data()
    {
        QTest::addColumn<Animation>("animation");
        // The reward pictures, built up step by step on the blue screen.
        const auto reward = [](const char *set, int height) {
            const QString pattern = QStringLiteral("jpg2/%1").arg(QLatin1String(set)) + QStringLiteral("%1.jpg");
            QTest::newRow(set) << Animation{frameFiles(pattern, 21, 2), QSize(288, height), 60, {}, 0.95, 0.95, 2, BuildsUp};
        };
        for (const char *set : {"solita", "neckla", "hanoi", "sphfra", "starfr", "gazebo", "earthc"})
            reward(set, 240);
        for (const char *set : {"thermo", "cake", "greenb"})
            reward(set, 320);

        QTest::newRow("title ball") << Animation{frameFiles(QStringLiteral("gif/sphfra/sphf%1.jpg"), 50, 4), QSize(256, 256), 100, {},
                                                 1.0, 1.0, 4, Turns};
        const auto stars = [](int series, int count) {
            return frameFiles(QStringLiteral("reward/stars%1").arg(series) + QStringLiteral("%1.jpg"), count, 2);
        };
        for (int s = 0; s < 4; ++s)
            QTest::addRow("stars %d", s) << Animation{stars(s, 20), QSize(324, 262), 100, stars((s + 1) % 4, 1).first(),
                                                      0.8, 0.8, 2, Twinkles};
        // The logo's turning mark: GIFs with clear corners, shown on the menus.
        for (const auto &[name, side] : {std::pair("morv", 112), std::pair("smmv", 80)})
            QTest::newRow(name) << Animation{frameFiles(QStringLiteral("bmp/") + QLatin1String(name) + QStringLiteral("%1.gif"), 20, 4),
                                             QSize(side, side), side * side / 40, {}, 0.0, 0.0, 4, Turns};
        // The certificate's celebrations, found where the program looks; balloons and rockets may cross the edges.
        Pictures::setAssetFolder(QStringLiteral(PARTITUDE_TEST_ASSETS));
        for (int i = 0; i < kCelebrationCount; ++i) {
            QStringList files;
            for (int f = 0; f < kCelebrations[i].frames; ++f)
                files << Pictures::resolve(celebrationFrameFile(kCelebrations[i], f));
            const QString next = Pictures::resolve(celebrationFrameFile(kCelebrations[(i + 1) % kCelebrationCount], 0));
            QTest::newRow(kCelebrations[i].base) << Animation{files, QSize(kCelebrationWidth, kCelebrationHeight), 150, next,
                                                              1.0, 0.75, 2, Twinkles};
        }
    }

    void animations()
    {
        QFETCH(Animation, animation);
        const auto &[files, size, minChanged, other, sides, rim, digits, motion] = animation;
        const bool gif = files.first().endsWith(QLatin1String(".gif"));
        const int w = size.width(), h = size.height();

        QVector<QImage> frames, shown;
        QSet<QRgb> colours;  // of the GIF frames, all of them together
        for (const QString &file : files) {
            QImageReader reader(file);
            QCOMPARE(reader.format(), QByteArray(gif ? "gif" : "jpeg"));
            const QImage frame = reader.read().convertToFormat(QImage::Format_ARGB32);
            QVERIFY2(!frame.isNull(), qPrintable(file + QStringLiteral(": ") + reader.errorString()));
            QCOMPARE(frame.size(), size);
            frames.append(frame);
        }
        // The folder holds exactly these frames, no more than the program shows.
        const QFileInfo first(files.first());
        const QString glob = first.completeBaseName().chopped(digits) + QStringLiteral("*.") + first.suffix();
        QStringList inFolder = first.dir().entryList({glob}, QDir::Files);
        inFolder.removeIf([](const QString &name) { return name.contains(QLatin1String("@2x.")); }); // large twins
        QCOMPARE(inFolder.size(), files.size());

        for (int f = 0; f < frames.size(); ++f) {
            const QImage &frame = frames[f];
            const QString where = QStringLiteral("frame %1").arg(f);
            if (!gif) {
                // On the screen's blue with no visible border, and plenty to see.
                const double sideShare = edgeShare(frame, Module1::kActivityBack, 12, true);
                const double rimShare = edgeShare(frame, Module1::kActivityBack, 12, false);
                QVERIFY2(sideShare >= sides && rimShare >= rim,
                         qPrintable(where + QStringLiteral(": sides %1, rim %2 blue").arg(sideShare).arg(rimShare)));
                QVERIFY2(compare(frame, filled(size, Module1::kActivityBack)).changed > w * h / 60, qPrintable(where));
                shown.append(frame);
                continue;
            }
            // Clear corners, the round mark filling much of the square; its soft edge is mixed with the
            // menus' blue already: dark blue, never the grey or pale fringe of one mixed with black or white.
            auto clear = [&frame, w, h](int x, int y) {
                return x >= 0 && y >= 0 && x < w && y < h && qAlpha(frame.pixel(x, y)) == 0;
            };
            for (const QPoint &p : {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1), QPoint(w - 1, h - 1), QPoint(4, 4)})
                QVERIFY(clear(p.x(), p.y()));
            int solid = 0;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    const QRgb c = frame.pixel(x, y);
                    if (clear(x, y))
                        continue;
                    ++solid;
                    colours.insert(c);
                    if ((clear(x - 1, y) || clear(x + 1, y) || clear(x, y - 1) || clear(x, y + 1))
                        && (qRed(c) > 70 || qBlue(c) - qRed(c) < 60))
                        QFAIL(qPrintable(where + QStringLiteral(" (%1,%2) edge colour %3").arg(x).arg(y).arg(c, 8, 16)));
                }
            QVERIFY2(solid > w * h / 2 && solid < w * h * 9 / 10, qPrintable(where + QStringLiteral(": %1 solid").arg(solid)));
            shown.append(onMenuBlue(frame));
        }

        // The GIF frames share one palette, so what stays put does not flicker.
        QVERIFY2(colours.size() <= 255, qPrintable(QString::number(colours.size())));
        const QString problem = motionProblem(shown, minChanged, motion);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        if (!other.isEmpty()) {  // each animation is a picture of its own
            const QImage otherFirst = loadImage(other);
            QCOMPARE(otherFirst.size(), size);
            QVERIFY(compare(frames[0], otherFirst).changed > 2000);
        }

        // Both logo sizes are one animation in step: the menus share the frame number.
        if (gif && w == 80) {
            for (int i : {0, 7, 19}) {
                const QString large = QString(files[i]).replace(QLatin1String("smmv"), QLatin1String("morv"));
                const QImage smaller = onMenuBlue(loadImage(large)).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                QVERIFY2(compare(smaller, shown[i]).mean * 2 < compare(smaller, shown[(i + 10) % 20]).mean,
                         qPrintable(QStringLiteral("frame %1").arg(i)));
            }
        }
    }

    void harpSounds_data()
    {
        QTest::addColumn<int>("harp");
        for (int i = 1; i <= 5; ++i)
            QTest::addRow("harp%d", i) << i;
    }

    void harpSounds()
    {
        QFETCH(int, harp);
        QVector<qint16> sounds[2];
        for (int i = 0; i < 2; ++i) {
            QFile f(assetPath(QStringLiteral("wav/harp%1.wav").arg((harp - 1 + i) % 5 + 1)));
            QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(f.errorString()));
            QString problem;
            sounds[i] = readWav(f.readAll(), &problem);
            QVERIFY2(problem.isEmpty(), qPrintable(problem));
        }
        const QVector<qint16> &wav = sounds[0];
        const double seconds = wav.size() / 22050.0;
        QVERIFY2(seconds >= 0.8 && seconds <= 2.0, qPrintable(QString::number(seconds)));
        int peak = 0;
        double early = 0;
        for (int i = 0; i < wav.size(); ++i) {
            peak = std::max(peak, std::abs(int(wav[i])));
            if (i < 11025)
                early += double(wav[i]) * wav[i];
        }
        QVERIFY2(peak >= 8000 && peak < 32767, qPrintable(QString::number(peak)));  // loud, not clipped
        // The first half second is clearly audible, and there is no click at either end.
        QVERIFY(std::sqrt(early / 11025) > 1000 && std::abs(wav.first()) < 300 && std::abs(wav.last()) < 300);
        double late = 0;  // the last tenth of a second
        for (int i = wav.size() - 2205; i < wav.size(); ++i)
            late += double(wav[i]) * wav[i];
        // The notes die away rather than stop: the end is far below the start.
        QVERIFY2(std::sqrt(late / 2205) < std::sqrt(early / 11025) / 10, qPrintable(QString::number(std::sqrt(late / 2205))));
        QVERIFY2(wav.mid(0, 11025) != sounds[1].mid(0, 11025), "sounds like the next harp");
    }

    void gifKeepsExactColours_data()
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

    void gifKeepsExactColours()
    {
        QFETCH(int, colours);
        QFETCH(bool, holes);
        const QImage original = patternImage(colours, holes);
        QString error;
        const QByteArray gif = encodeGif(original, &error);
        QVERIFY2(gif.startsWith("GIF8"), qPrintable(error));
        const QImage back = QImage::fromData(gif, "gif").convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(back.size(), original.size());
        for (int y = 0; y < original.height(); ++y)
            for (int x = 0; x < original.width(); ++x) {
                const QRgb want = original.pixel(x, y), got = back.pixel(x, y);
                if (qAlpha(want) == 0 ? qAlpha(got) != 0 : got != want)
                    QFAIL(qPrintable(QStringLiteral("(%1,%2): %3 for %4").arg(x).arg(y).arg(got, 8, 16).arg(want, 8, 16)));
            }
    }

    void sharedPaletteForFrames()
    {
        // Frames with holes, alike on the left, each its own gradient on the right: one colour maps alike
        // in every frame, or what stays put would flicker.
        QVector<QImage> frames;
        for (int f = 0; f < 3; ++f) {
            QImage frame = patternImage(120, true);
            for (int y = 0; y < frame.height(); ++y)
                for (int x = frame.width() / 2; x < frame.width(); ++x)
                    if (qAlpha(frame.pixel(x, y)) != 0)
                        frame.setPixel(x, y, qRgb(x * 6, y * 10, 40 + f * 60));
            frames.append(frame);
        }
        const QVector<QRgb> palette = sharedPalette(frames, 255);
        QVERIFY2(palette.size() > 128 && palette.size() <= 255, qPrintable(QString::number(palette.size())));
        const QSet<QRgb> allowed(palette.begin(), palette.end());
        QHash<QRgb, QRgb> seen;
        int worst = 0;
        for (const QImage &frame : frames) {
            const QImage mapped = mapToPalette(frame, palette);
            for (int y = 0; y < frame.height(); ++y)
                for (int x = 0; x < frame.width(); ++x) {
                    const QRgb in = frame.pixel(x, y), got = mapped.pixel(x, y);
                    if (qAlpha(in) < 128) {
                        QCOMPARE(qAlpha(got), 0);
                        continue;
                    }
                    QVERIFY2(allowed.contains(got), qPrintable(QString::number(got, 16)));
                    QVERIFY2(seen.value(in, got) == got, qPrintable(QString::number(in, 16)));
                    seen.insert(in, got);
                    worst = std::max(worst, distance(in, got));
                }
        }
        QVERIFY2(worst <= 24, qPrintable(QString::number(worst)));
    }
};

QTEST_GUILESS_MAIN(TestAssetFiles)
#include "tst_assetfiles.moc"
