#pragma once
// What the asset file tests measure: images compared pixel by pixel, the
// rims that must blend into a screen, how a series of frames moves, the
// samples of a WAVE file, and a pattern that tells colours apart.
#include "menus/menulook.h"

#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QVector>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace AssetCheck {

inline QString assetPath(const QString &relative)
{
    return QStringLiteral(PARTITUDE_TEST_ASSETS) + QLatin1Char('/') + relative;
}

inline QImage loadImage(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

inline QImage filled(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

// The largest difference of the two colours in any one channel.
inline int distance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

struct Difference
{
    int changed = 0;  // pixels that differ by more than the threshold (JPEG noise)
    double mean = 0;  // average absolute difference per channel, 0..255
};

inline Difference compare(const QImage &a, const QImage &b, int threshold = 48)
{
    Difference d;
    for (int y = 0; y < a.height(); ++y) {
        const QRgb *ra = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const QRgb *rb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            d.changed += distance(ra[x], rb[x]) > threshold;
            d.mean += std::abs(qRed(ra[x]) - qRed(rb[x])) + std::abs(qGreen(ra[x]) - qGreen(rb[x]))
                      + std::abs(qBlue(ra[x]) - qBlue(rb[x]));
        }
    }
    d.mean /= 3.0 * a.width() * a.height();
    return d;
}

// Share of the pixels down the left and right sides, or round the whole rim, that are within `tolerance` of `colour`.
inline double edgeShare(const QImage &image, const QColor &colour, int tolerance, bool sidesOnly)
{
    const int w = image.width(), h = image.height();
    int total = 0, matching = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            if (x == 0 || x == w - 1 || (!sidesOnly && (y == 0 || y == h - 1))) {
                ++total;
                matching += distance(image.pixel(x, y), colour.rgb()) <= tolerance;
            }
    return double(matching) / total;
}

// How a set of frames moves: a reward picture builds up from empty to
// finished; the other animations are shown round and round, twinkling in
// place or turning.
enum Motion { BuildsUp, Twinkles, Turns };

// Every step (a loop's last to first included) clearly changes at least
// `minChanged` pixels. A picture that builds up ends far from where it
// began. A loop's step from last to first is about the size of the others,
// so it neither jumps nor stutters; and when it turns, half a loop away it
// has moved further than any one step.
inline QString motionProblem(const QVector<QImage> &frames, int minChanged, Motion motion)
{
    const int n = int(frames.size());
    double smallest = 1e9, largest = 0, wrap = 0;
    for (int i = 0; i < (motion == BuildsUp ? n - 1 : n); ++i) {
        const Difference d = compare(frames[i], frames[(i + 1) % n], 30);
        if (d.changed < minChanged)
            return QStringLiteral("frame %1 to the next changes only %2 pixels").arg(i).arg(d.changed);
        if (i + 1 == n)
            wrap = d.mean;
        else
            smallest = std::min(smallest, d.mean), largest = std::max(largest, d.mean);
    }
    if (motion == BuildsUp) {
        const int whole = compare(frames[0], frames[n - 1]).changed;
        if (whole <= frames[0].width() * frames[0].height() / 20)
            return QStringLiteral("the finished picture differs in only %1 pixels").arg(whole);
        return QString();
    }
    if (wrap > largest * 1.3 || wrap < smallest * 0.7)
        return QStringLiteral("last to first %1, other steps %2..%3").arg(wrap).arg(smallest).arg(largest);
    const double half = compare(frames[0], frames[n / 2]).mean;
    if (motion == Turns && half < largest * 1.5)
        return QStringLiteral("half a loop %1, one step up to %2").arg(half).arg(largest);
    return QString();
}

inline QStringList frameFiles(const QString &pattern, int count, int digits)
{
    QStringList files;
    for (int i = 0; i < count; ++i)
        files << assetPath(pattern.arg(i, digits, 10, QLatin1Char('0')));
    return files;
}

// A frame as the menus show it: its clear pixels let the blue through.
inline QImage onMenuBlue(const QImage &frame)
{
    QImage shown = filled(frame.size(), MenuLook::kBack);
    QPainter painter(&shown);
    painter.drawImage(0, 0, frame);
    return shown;
}

// The samples of a WAVE file as the program's sounds are: 16-bit mono PCM
// at 22050 a second. Empty, with *problem set, when the file is anything
// else or its chunks do not add up to its size.
inline QVector<qint16> readWav(const QByteArray &bytes, QString *problem)
{
    auto u32 = [&bytes](int at) { return qFromLittleEndian<quint32>(bytes.constData() + at); };
    auto u16 = [&bytes](int at) { return qFromLittleEndian<quint16>(bytes.constData() + at); };
    if (bytes.size() < 44 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE"
        || u32(4) != quint32(bytes.size() - 8))
        return *problem = QStringLiteral("not a RIFF WAVE file of its size"), QVector<qint16>();
    QVector<qint16> samples;
    bool pcm = false;
    for (int at = 12; at + 8 <= bytes.size();) {
        const QByteArray id = bytes.mid(at, 4);
        const quint32 size = u32(at + 4);
        if (at + 8 + qint64(size) > bytes.size())
            return *problem = QStringLiteral("chunk %1 runs past the end").arg(QLatin1String(id)), QVector<qint16>();
        if (id == "fmt ")  // format, channels, rate, bytes a second, bytes a sample, bits
            pcm = size >= 16 && u16(at + 8) == 1 && u16(at + 10) == 1 && u32(at + 12) == 22050
                  && u32(at + 16) == 44100 && u16(at + 20) == 2 && u16(at + 22) == 16;
        else if (id == "data")
            for (quint32 i = 0; i + 1 < size; i += 2)
                samples.append(qFromLittleEndian<qint16>(bytes.constData() + at + 8 + i));
        at += 8 + int(size) + int(size % 2);
    }
    if (!pcm || samples.isEmpty())
        *problem = QStringLiteral("no 16-bit mono PCM format at 22050 Hz, or no data");
    return pcm ? samples : QVector<qint16>();
}

inline QImage patternImage(int colours, bool withHoles)
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

} // namespace AssetCheck
