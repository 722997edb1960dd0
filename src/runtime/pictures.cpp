#include "pictures.h"

#include "msgbox.h"
#include "twips.h"

#include <QCache>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QImageReader>

#include <algorithm>

namespace Pictures {
namespace {
QString g_folder = QStringLiteral("assets");
int g_decodes = 0;

// Kilobytes of decoded pictures kept, at the size they were designed in;
// drawn larger they take more, by the square of the factor. Enough for a
// screen's pictures and a menu's turning logo; an animation of more frames
// than fit (the reward stars) reads its frames again as it plays.
constexpr int kCacheKilobytes = 2 * 1024;

// Opaque pictures are kept as 3 bytes a pixel, not the screen's 4: nothing
// is lost, and Qt turns them back into the screen's format cheaply each
// time one is handed out.
constexpr QImage::Format kOpaqueCached = QImage::Format_RGB888;
// Frames kept by a Keep, a whole animation at once, take 2 bytes a pixel:
// each is on screen for a sixtieth of a second, too briefly for the
// coarser shades to show.
constexpr QImage::Format kOpaqueKept = QImage::Format_RGB16;

qreal deviceRatio() { return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0; }

// How many times larger than designed pictures are drawn, in pixels.
qreal drawnFactor() { return Twips::scale() * deviceRatio(); }

QCache<QString, QImage>& cache()
{
    static QCache<QString, QImage> c;
    const qreal factor = std::max<qreal>(1.0, drawnFactor());
    const int budget = int(kCacheKilobytes * factor * factor);
    if (c.maxCost() != budget)
        c.setMaxCost(budget);
    return c;
}

// Pictures under the folders a Keep names, kept outside the cache's budget
// while it lives.
QHash<QString, int>& keptFolders()
{
    static QHash<QString, int> folders;
    return folders;
}

QHash<QString, QImage>& kept()
{
    static QHash<QString, QImage> pictures;
    return pictures;
}

bool isKept(const QString& assetPath)
{
    for (auto it = keptFolders().cbegin(); it != keptFolders().cend(); ++it) {
        if (assetPath.startsWith(it.key()))
            return true;
    }
    return false;
}

// Only a handful of worksheets, so every metafile read is kept.
QHash<QString, Metafile>& metafiles()
{
    static QHash<QString, Metafile> m;
    return m;
}

// Whether pictures are drawn larger than the pixels they were designed in.
bool drawnLarger() { return drawnFactor() > 1.0; }

QImage decode(const QString& assetPath, QImage::Format opaqueFormat)
{
    // A picture drawn larger than designed comes from its large twin where
    // the asset tool drew one; it keeps its designed size (deviceIndependentSize).
    const QString twin = resolve(largeTwin(assetPath));
    const bool large = drawnLarger() && QFileInfo::exists(twin);
    QImageReader reader(large ? twin : resolve(assetPath));
    QImage image = reader.read();
    if (image.isNull())
        MsgBox::fatal(missingMessage(assetPath));
    if (large) {
        // Kept at the pixels it is drawn in, not the twin's: smaller in
        // memory below twice the size, and painted without resampling.
        const qreal factor = drawnFactor();
        if (factor < kLargeTwinFactor) {
            const QSize drawn = (QSizeF(image.size()) * (factor / kLargeTwinFactor)).toSize();
            image = image.scaled(drawn, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            image.setDevicePixelRatio(factor);
        } else {
            image.setDevicePixelRatio(kLargeTwinFactor);
        }
    }
    ++g_decodes;
    if (!image.hasAlphaChannel())
        return image.convertToFormat(opaqueFormat);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// The picture as decoded and kept, decoding it on first use.
QImage stored(const QString& assetPath)
{
    if (isKept(assetPath)) {
        const auto found = kept().constFind(assetPath);
        if (found != kept().constEnd())
            return *found;
        const QImage image = decode(assetPath, kOpaqueKept);
        kept().insert(assetPath, image);
        return image;
    }
    if (const QImage* cached = cache().object(assetPath))
        return *cached;
    const QImage image = decode(assetPath, kOpaqueCached);
    cache().insert(assetPath, new QImage(image), int(image.sizeInBytes() / 1024) + 1);
    return image;
}
} // namespace

void setAssetFolder(const QString& folder)
{
    if (folder != g_folder)
        clearCache();
    g_folder = folder;
}

QString assetFolder() { return g_folder; }

QString resolve(const QString& assetPath)
{
    QString relative = assetPath;
    relative.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QDir(g_folder).filePath(relative);
}

void paintInto(const QImage& picture, QImage* target)
{
    if (picture.format() != QImage::Format_RGB16) {
        *target = picture.hasAlphaChannel() ? picture : picture.convertToFormat(QImage::Format_RGB32);
        return;
    }
    if (target->size() != picture.size() || target->format() != QImage::Format_RGB32 || !target->isDetached())
        *target = QImage(picture.size(), QImage::Format_RGB32);
    target->setDevicePixelRatio(picture.devicePixelRatio());
    // Qt's own conversion from 2 bytes a pixel takes four times as long as
    // this, which the title pays sixty times a second.
    const int width = picture.width();
    const int height = picture.height();
    const qsizetype inStride = picture.bytesPerLine();
    const qsizetype outStride = target->bytesPerLine();
    const uchar* inBits = picture.constBits();
    uchar* outBits = target->bits();
    for (int y = 0; y < height; ++y) {
        const auto* in = reinterpret_cast<const quint16*>(inBits + y * inStride);
        auto* line = reinterpret_cast<QRgb*>(outBits + y * outStride);
        for (int x = 0; x < width; ++x) {
            const uint v = in[x];
            const uint r = (v >> 11) & 0x1f;
            const uint g = (v >> 5) & 0x3f;
            const uint b = v & 0x1f;
            // Each field widened by repeating its top bits, as Qt does.
            line[x] = 0xff000000u | (((r << 3) | (r >> 2)) << 16) | (((g << 2) | (g >> 4)) << 8) | ((b << 3) | (b >> 2));
        }
    }
}

QImage paintable(const QImage& picture)
{
    QImage target;
    paintInto(picture, &target);
    return target;
}

void getInto(const QString& assetPath, QImage* target)
{
    paintInto(stored(assetPath), target);
}

QPixmap get(const QString& assetPath)
{
    return QPixmap::fromImage(paintable(stored(assetPath)));
}

Keep::Keep(const QString& folder)
    : m_folder(folder)
{
    keptFolders()[m_folder] += 1;
}

Keep::~Keep()
{
    auto folder = keptFolders().find(m_folder);
    if (--*folder > 0)
        return;
    keptFolders().erase(folder);
    kept().removeIf([](const auto& picture) { return !isKept(picture.key()); });
}

QString largeTwin(const QString& assetPath)
{
    const int dot = assetPath.lastIndexOf(QLatin1Char('.'));
    const int cut = dot > assetPath.lastIndexOf(QLatin1Char('\\')) ? dot : assetPath.size();
    return assetPath.left(cut) + kLargeTwinSuffix + assetPath.mid(cut);
}

QIcon icon(const QString& assetPath)
{
    // Sized once for the scale, smoothly, so a button never stretches it.
    const QPixmap picture = get(assetPath);
    const qreal ratio = deviceRatio();
    QPixmap sized = picture.scaled(Twips::scaledPixels(picture.deviceIndependentSize()) * ratio,
                                   Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    sized.setDevicePixelRatio(ratio);
    return QIcon(sized);
}

Metafile metafile(const QString& assetPath)
{
    const auto cached = metafiles().constFind(assetPath);
    if (cached != metafiles().constEnd())
        return *cached;
    QFile file(resolve(assetPath));
    if (!file.open(QIODevice::ReadOnly))
        MsgBox::fatal(missingMessage(assetPath));
    QString reason;
    const std::optional<Metafile> parsed = Metafile::parse(file.readAll(), &reason);
    if (!parsed)
        MsgBox::fatal(refusedMessage(assetPath, reason));
    ++g_decodes;
    metafiles().insert(assetPath, *parsed);
    return *parsed;
}

int decodeCount() { return g_decodes; }

void clearCache()
{
    cache().clear();
    kept().clear();
    metafiles().clear();
}

namespace {
// The command-line option that names another asset folder.
const QString kAssetsOption = QStringLiteral("--assets");

// The file as the system writes it, under the asset folder: "ico/fraction.ico"
// on Linux, "ico\fraction.ico" on Windows.
QString nativeName(const QString& assetPath)
{
    return QDir::toNativeSeparators(QString(assetPath).replace(QLatin1Char('\\'), QLatin1Char('/')));
}
} // namespace

QString missingMessage(const QString& assetPath)
{
    return QCoreApplication::translate("Pictures",
                                       "Partitude cannot go on: the picture file \"%1\" is missing or cannot be read.\n\n"
                                       "Partitude looks for its pictures in the folder:\n%2\n\n"
                                       "To use pictures in another folder, start Partitude with %3 and that folder.")
        .arg(nativeName(assetPath), QDir::toNativeSeparators(QDir(g_folder).absolutePath()), kAssetsOption);
}

QString refusedMessage(const QString& assetPath, const QString& reason)
{
    // The reason names bytes and records of the file, for whoever mends it.
    return QCoreApplication::translate("Pictures",
                                       "Partitude cannot go on: the picture file \"%1\" cannot be read: %2.\n\n"
                                       "Partitude looks for its pictures in the folder:\n%3\n\n"
                                       "To use pictures in another folder, start Partitude with %4 and that folder.")
        .arg(nativeName(assetPath), reason, QDir::toNativeSeparators(QDir(g_folder).absolutePath()), kAssetsOption);
}

} // namespace Pictures
