#include "canvas.h"
#include "gifwriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QRadialGradient>
#include <QSaveFile>

#include <cmath>

AssetOutput::AssetOutput(const QString &root)
    : m_root(QDir(root).absolutePath())
{
}

QString AssetOutput::prepareFolder(const QString &relativePath)
{
    if (failed())
        return QString();
    const QString path = m_root + QLatin1Char('/') + relativePath;
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        m_error = QStringLiteral("cannot create folder %1").arg(folder);
        return QString();
    }
    return path;
}

void AssetOutput::recordWritten(const QString &path)
{
    ++m_files;
    m_bytes += QFileInfo(path).size();
}

bool AssetOutput::saveImage(const QImage &image, const QString &relativePath,
                            const char *format, int quality)
{
    const QString path = prepareFolder(relativePath);
    if (path.isEmpty())
        return false;
    if (image.isNull()) {
        m_error = QStringLiteral("nothing was drawn for %1").arg(path);
        return false;
    }
    QImageWriter writer(path, format);
    if (quality >= 0)
        writer.setQuality(quality);
    if (!writer.write(image)) {
        m_error = QStringLiteral("cannot write %1: %2").arg(path, writer.errorString());
        return false;
    }
    recordWritten(path);
    return true;
}

bool AssetOutput::saveJpeg(const QImage &image, const QString &relativePath)
{
    return saveImage(image.convertToFormat(QImage::Format_RGB32), relativePath, "jpg", 88);
}

bool AssetOutput::saveBytes(const QByteArray &bytes, const QString &relativePath)
{
    const QString path = prepareFolder(relativePath);
    if (path.isEmpty())
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()
        || !file.commit()) {
        m_error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    recordWritten(path);
    return true;
}

bool AssetOutput::saveGif(const QImage &image, const QString &relativePath)
{
    const QString path = prepareFolder(relativePath);
    if (path.isEmpty())
        return false;
    QString error;
    if (!writeGif(image, path, &error)) {
        m_error = QStringLiteral("%1: %2").arg(path, error);
        return false;
    }
    recordWritten(path);
    return true;
}

static const QColor kBright[] = {
    QColor(233, 54, 64),   // red
    QColor(255, 145, 0),   // orange
    QColor(255, 206, 0),   // yellow
    QColor(67, 176, 71),   // green
    QColor(0, 168, 204),   // sky
    QColor(45, 98, 230),   // blue
    QColor(146, 74, 204),  // purple
    QColor(240, 84, 160),  // pink
};

int brightColourCount() { return int(sizeof kBright / sizeof kBright[0]); }

QColor brightColour(int index)
{
    const int n = brightColourCount();
    return kBright[((index % n) + n) % n];
}

QColor mixColours(const QColor &a, const QColor &b, double t)
{
    const double s = 1.0 - t;
    return QColor::fromRgbF(float(a.redF() * s + b.redF() * t),
                            float(a.greenF() * s + b.greenF() * t),
                            float(a.blueF() * s + b.blueF() * t),
                            float(a.alphaF() * s + b.alphaF() * t));
}

QImage opaqueCanvas(int width, int height, const QColor &fill)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(fill);
    return image;
}

QImage clearCanvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void smoothPainting(QPainter &painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform
                           | QPainter::TextAntialiasing);
}

QFont labelFont(double pixelSize, bool bold)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(qMax(1, int(std::lround(pixelSize))));
    font.setBold(bold);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

QPainterPath starPath(const QPointF &centre, double outerRadius, double innerRadius,
                      int points, double turnDegrees)
{
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const double r = (i % 2 == 0) ? outerRadius : innerRadius;
        const double a = (turnDegrees + i * 180.0 / points) * M_PI / 180.0;
        const QPointF p(centre.x() + r * std::sin(a), centre.y() - r * std::cos(a));
        if (i == 0)
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    path.closeSubpath();
    return path;
}

void drawGlassBall(QPainter &painter, const QPointF &centre, double radius,
                   const QColor &colour)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    QRadialGradient body(centre, radius, centre - QPointF(radius * 0.35, radius * 0.4));
    body.setColorAt(0.0, mixColours(colour, Qt::white, 0.55));
    body.setColorAt(0.45, colour);
    body.setColorAt(1.0, colour.darker(190));
    painter.setBrush(body);
    painter.drawEllipse(centre, radius, radius);
    // The window reflection that makes it look like glass.
    const QPointF spot = centre - QPointF(radius * 0.38, radius * 0.42);
    QRadialGradient shine(spot, radius * 0.38);
    shine.setColorAt(0.0, QColor(255, 255, 255, 235));
    shine.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setBrush(shine);
    painter.drawEllipse(spot, radius * 0.38, radius * 0.38);
    painter.restore();
}

void drawSoftShadow(QPainter &painter, const QPointF &centre, double rx, double ry,
                    int alpha)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    QRadialGradient shadow(centre, rx);
    shadow.setColorAt(0.0, QColor(0, 0, 0, alpha));
    shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
    painter.translate(centre);
    painter.scale(1.0, ry / rx);
    painter.translate(-centre);
    painter.setBrush(shadow);
    painter.drawEllipse(centre, rx, rx);
    painter.restore();
}

void drawGlow(QPainter &painter, const QPointF &at, double radius, const QColor &colour, int alpha)
{
    QRadialGradient glow(at, radius);
    QColor inner = colour;
    inner.setAlpha(alpha);
    QColor outer = colour;
    outer.setAlpha(0);
    glow.setColorAt(0, inner);
    glow.setColorAt(1, outer);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(at, radius, radius);
}
