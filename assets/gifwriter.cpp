#include "gifwriter.h"

#include <QSaveFile>

#include <gif_lib.h>

#include <algorithm>
#include <map>
#include <unordered_map>
#include <vector>

namespace {

constexpr int kMaxColours = 256;

struct Entry
{
    QRgb colour;  // 0xRRGGBB
    qint64 count;
};

int channel(QRgb c, int which) { return which == 0 ? qRed(c) : which == 1 ? qGreen(c) : qBlue(c); }

// Median cut: keep splitting the box with the widest spread of one channel
// at its median pixel until there are enough boxes; each box gives one
// palette colour, the average of the pixels in it.
std::vector<QRgb> medianCut(std::vector<Entry> entries, int wanted)
{
    struct Box
    {
        std::size_t begin, end;
    };
    auto spread = [&entries](const Box &box, int &widest) {
        int best = -1;
        for (int ch = 0; ch < 3; ++ch) {
            int lo = 255, hi = 0;
            for (std::size_t i = box.begin; i < box.end; ++i) {
                lo = std::min(lo, channel(entries[i].colour, ch));
                hi = std::max(hi, channel(entries[i].colour, ch));
            }
            if (hi - lo > best) {
                best = hi - lo;
                widest = ch;
            }
        }
        return best;
    };

    std::vector<Box> boxes{{0, entries.size()}};
    while (int(boxes.size()) < wanted) {
        int pick = -1, pickSpread = 0, pickChannel = 0;
        for (std::size_t b = 0; b < boxes.size(); ++b) {
            if (boxes[b].end - boxes[b].begin < 2)
                continue;
            int ch = 0;
            const int s = spread(boxes[b], ch);
            if (s > pickSpread) {
                pick = int(b);
                pickSpread = s;
                pickChannel = ch;
            }
        }
        if (pick < 0)
            break;
        const Box box = boxes[pick];
        std::sort(entries.begin() + box.begin, entries.begin() + box.end,
                  [pickChannel](const Entry &a, const Entry &b) {
                      const int ca = channel(a.colour, pickChannel);
                      const int cb = channel(b.colour, pickChannel);
                      return ca != cb ? ca < cb : a.colour < b.colour;
                  });
        qint64 total = 0;
        for (std::size_t i = box.begin; i < box.end; ++i)
            total += entries[i].count;
        qint64 running = 0;
        std::size_t cut = box.begin + 1;
        for (std::size_t i = box.begin; i < box.end - 1; ++i) {
            running += entries[i].count;
            cut = i + 1;
            if (running * 2 >= total)
                break;
        }
        boxes[pick] = {box.begin, cut};
        boxes.push_back({cut, box.end});
    }

    std::vector<QRgb> palette;
    for (const Box &box : boxes) {
        double r = 0, g = 0, b = 0, n = 0;
        for (std::size_t i = box.begin; i < box.end; ++i) {
            const double w = double(entries[i].count);
            r += w * qRed(entries[i].colour);
            g += w * qGreen(entries[i].colour);
            b += w * qBlue(entries[i].colour);
            n += w;
        }
        palette.push_back(qRgb(int(r / n + 0.5), int(g / n + 0.5), int(b / n + 0.5)) & 0xffffff);
    }
    std::sort(palette.begin(), palette.end());
    palette.erase(std::unique(palette.begin(), palette.end()), palette.end());
    return palette;
}

int nearest(const std::vector<QRgb> &palette, QRgb colour)
{
    int best = 0;
    long bestDistance = -1;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        const long dr = qRed(palette[i]) - qRed(colour);
        const long dg = qGreen(palette[i]) - qGreen(colour);
        const long db = qBlue(palette[i]) - qBlue(colour);
        const long d = dr * dr + dg * dg + db * db;
        if (bestDistance < 0 || d < bestDistance) {
            bestDistance = d;
            best = int(i);
        }
    }
    return best;
}

int appendToBuffer(GifFileType *gif, const GifByteType *data, int length)
{
    static_cast<QByteArray *>(gif->UserData)->append(reinterpret_cast<const char *>(data), length);
    return length;
}

void setError(QString *error, const QString &message)
{
    if (error)
        *error = message;
}

} // namespace

QByteArray encodeGif(const QImage &source, QString *error)
{
    if (source.isNull() || source.width() > 65535 || source.height() > 65535) {
        setError(error, QStringLiteral("no picture, or too large for GIF"));
        return QByteArray();
    }
    const QImage image = source.convertToFormat(QImage::Format_ARGB32);
    const int width = image.width(), height = image.height();

    // Count the colours; transparent pixels are left out of the palette.
    std::map<QRgb, qint64> counts;
    bool anyTransparent = false;
    for (int y = 0; y < height; ++y) {
        const QRgb *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            if (qAlpha(row[x]) < 128)
                anyTransparent = true;
            else
                ++counts[row[x] & 0xffffff];
        }
    }
    const int room = kMaxColours - (anyTransparent ? 1 : 0);
    std::vector<QRgb> palette;
    if (int(counts.size()) <= room) {
        for (const auto &entry : counts)
            palette.push_back(entry.first);
    } else {
        std::vector<Entry> entries;
        entries.reserve(counts.size());
        for (const auto &entry : counts)
            entries.push_back({entry.first, entry.second});
        palette = medianCut(std::move(entries), room);
    }
    std::unordered_map<QRgb, int> index;
    for (const auto &entry : counts)
        index[entry.first] = nearest(palette, entry.first);
    const int transparentIndex = int(palette.size());

    int tableSize = 2;
    while (tableSize < int(palette.size()) + (anyTransparent ? 1 : 0))
        tableSize *= 2;
    std::vector<GifColorType> colours(tableSize, GifColorType{0, 0, 0});
    for (std::size_t i = 0; i < palette.size(); ++i)
        colours[i] = {GifByteType(qRed(palette[i])), GifByteType(qGreen(palette[i])),
                      GifByteType(qBlue(palette[i]))};
    ColorMapObject *map = GifMakeMapObject(tableSize, colours.data());
    if (!map) {
        setError(error, QStringLiteral("giflib could not make a colour table"));
        return QByteArray();
    }

    QByteArray bytes;
    int code = 0;
    GifFileType *gif = EGifOpen(&bytes, appendToBuffer, &code);
    if (!gif) {
        GifFreeMapObject(map);
        setError(error, QStringLiteral("giflib: %1").arg(QString::fromUtf8(GifErrorString(code))));
        return QByteArray();
    }
    EGifSetGifVersion(gif, anyTransparent);
    bool ok = EGifPutScreenDesc(gif, width, height, map->BitsPerPixel, 0, map) == GIF_OK;
    if (ok && anyTransparent) {
        GraphicsControlBlock control{};
        control.DisposalMode = DISPOSAL_UNSPECIFIED;
        control.UserInputFlag = false;
        control.DelayTime = 0;
        control.TransparentColor = transparentIndex;
        GifByteType extension[4];
        const size_t length = EGifGCBToExtension(&control, extension);
        ok = EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, int(length), extension) == GIF_OK;
    }
    ok = ok && EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) == GIF_OK;
    std::vector<GifPixelType> line(width);
    for (int y = 0; ok && y < height; ++y) {
        const QRgb *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = GifPixelType(qAlpha(row[x]) < 128 ? transparentIndex
                                                         : index[row[x] & 0xffffff]);
        ok = EGifPutLine(gif, line.data(), width) == GIF_OK;
    }
    if (!ok)
        code = gif->Error;
    int closeCode = 0;
    if (EGifCloseFile(gif, &closeCode) != GIF_OK && ok) {
        ok = false;
        code = closeCode;
    }
    GifFreeMapObject(map);
    if (!ok) {
        setError(error, QStringLiteral("giflib: %1").arg(QString::fromUtf8(GifErrorString(code))));
        return QByteArray();
    }
    return bytes;
}

bool writeGif(const QImage &image, const QString &path, QString *error)
{
    const QByteArray bytes = encodeGif(image, error);
    if (bytes.isEmpty())
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        setError(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
        return false;
    }
    return true;
}

QVector<QRgb> sharedPalette(const QVector<QImage> &images, int colours)
{
    std::map<QRgb, qint64> counts;
    for (const QImage &source : images) {
        const QImage image = source.convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            const QRgb *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(row[x]) >= 128)
                    ++counts[row[x] & 0xffffff];
        }
    }
    QVector<QRgb> palette;
    if (int(counts.size()) <= colours) {
        for (const auto &entry : counts)
            palette.append(entry.first | 0xff000000);
        return palette;
    }
    std::vector<Entry> entries;
    entries.reserve(counts.size());
    for (const auto &entry : counts)
        entries.push_back({entry.first, entry.second});
    for (QRgb colour : medianCut(std::move(entries), std::max(1, colours)))
        palette.append(colour | 0xff000000);
    return palette;
}

QImage mapToPalette(const QImage &source, const QVector<QRgb> &palette)
{
    QImage image = source.convertToFormat(QImage::Format_ARGB32);
    if (palette.isEmpty())
        return image;
    const std::vector<QRgb> choices(palette.begin(), palette.end());
    std::unordered_map<QRgb, QRgb> chosen;
    for (int y = 0; y < image.height(); ++y) {
        QRgb *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(row[x]) < 128) {
                row[x] = qRgba(0, 0, 0, 0);
                continue;
            }
            const QRgb colour = row[x] & 0xffffff;
            auto found = chosen.find(colour);
            if (found == chosen.end())
                found = chosen.emplace(colour, choices[nearest(choices, colour)] | 0xff000000).first;
            row[x] = found->second;
        }
    }
    return image;
}
