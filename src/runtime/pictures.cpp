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

namespace Pictures {
namespace {
QString g_folder = QStringLiteral("assets");
int g_decodes = 0;

// Kilobytes of decoded pictures kept; the title animation (50 frames) and a
// run's reward set fit with room to spare.
constexpr int kCacheKilobytes = 32 * 1024;

QCache<QString, QPixmap>& cache()
{
    static QCache<QString, QPixmap> c(kCacheKilobytes);
    return c;
}

// Only a handful of worksheets, so every metafile read is kept.
QHash<QString, Metafile>& metafiles()
{
    static QHash<QString, Metafile> m;
    return m;
}

qreal deviceRatio() { return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0; }

// Whether pictures are drawn larger than the pixels they were designed in.
bool drawnLarger() { return Twips::scale() * deviceRatio() > 1.0; }

QPixmap decode(const QString& assetPath)
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
        const qreal factor = Twips::scale() * deviceRatio();
        if (factor < kLargeTwinFactor) {
            const QSize drawn = (QSizeF(image.size()) * (factor / kLargeTwinFactor)).toSize();
            image = image.scaled(drawn, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            image.setDevicePixelRatio(factor);
        } else {
            image.setDevicePixelRatio(kLargeTwinFactor);
        }
    }
    ++g_decodes;
    return QPixmap::fromImage(image);
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

QPixmap get(const QString& assetPath)
{
    if (const QPixmap* cached = cache().object(assetPath))
        return *cached;
    const QPixmap pixmap = decode(assetPath);
    const qint64 bytes = qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
    cache().insert(assetPath, new QPixmap(pixmap), int(bytes / 1024) + 1);
    return pixmap;
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
