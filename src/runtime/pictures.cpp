#include "pictures.h"

#include "msgbox.h"

#include <QCache>
#include <QDir>
#include <QFile>
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

QPixmap decode(const QString& assetPath)
{
    QImageReader reader(resolve(assetPath));
    const QImage image = reader.read();
    if (image.isNull())
        MsgBox::fatal(missingMessage(assetPath));
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

QIcon icon(const QString& assetPath)
{
    return QIcon(get(assetPath));
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
// The file as the system writes it, under the asset folder: "ico/fraction.ico"
// on Linux, "ico\fraction.ico" on Windows.
QString nativeName(const QString& assetPath)
{
    return QDir::toNativeSeparators(QString(assetPath).replace(QLatin1Char('\\'), QLatin1Char('/')));
}
} // namespace

QString missingMessage(const QString& assetPath)
{
    return QStringLiteral("Partitude cannot go on: the picture file \"%1\" is missing or cannot be read.\n\n"
                          "Partitude looks for its pictures in the folder:\n%2")
        .arg(nativeName(assetPath), QDir::toNativeSeparators(QDir(g_folder).absolutePath()));
}

QString refusedMessage(const QString& assetPath, const QString& reason)
{
    return QStringLiteral("Partitude cannot go on: the picture file \"%1\" cannot be read: %2.\n\n"
                          "Partitude looks for its pictures in the folder:\n%3")
        .arg(nativeName(assetPath), reason, QDir::toNativeSeparators(QDir(g_folder).absolutePath()));
}

} // namespace Pictures
