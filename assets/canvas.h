// Shared drawing helpers for the asset tool: where files go, how they are
// saved, the colours the program uses, and a few shapes several pictures need.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QString>

#include <cstdint>
#include <random>

class QPainter;

// The output folder. Every file goes through here so the tool can count what
// it wrote and stop with the first failure. After a failure further saves do
// nothing and report false.
class AssetOutput
{
public:
    explicit AssetOutput(const QString &root);

    bool saveImage(const QImage &image, const QString &relativePath,
                   const char *format, int quality = -1);
    bool saveJpeg(const QImage &image, const QString &relativePath);
    bool saveBytes(const QByteArray &bytes, const QString &relativePath);
    bool saveGif(const QImage &image, const QString &relativePath);
    // Stops the output with a drawing's own failure.
    void fail(const QString &message) { if (!failed()) m_error = message; }

    bool failed() const { return !m_error.isEmpty(); }
    QString error() const { return m_error; }
    int fileCount() const { return m_files; }
    qint64 byteCount() const { return m_bytes; }

private:
    QString prepareFolder(const QString &relativePath);
    void recordWritten(const QString &path);

    QString m_root;
    QString m_error;
    int m_files = 0;
    qint64 m_bytes = 0;
};

// The blue of the title and activity screens; pictures shown straight on
// them use it as their background.
inline QColor screenBlue() { return QColor(48, 133, 214); }

// Bright colours children pick out easily, in an order where neighbours differ.
QColor brightColour(int index);
int brightColourCount();

QColor mixColours(const QColor &a, const QColor &b, double t);

// Opaque canvas for JPEG pictures, transparent canvas for icons.
QImage opaqueCanvas(int width, int height, const QColor &fill);
QImage clearCanvas(int width, int height);

void smoothPainting(QPainter &painter);
QFont labelFont(double pixelSize, bool bold = true);

// A star with the given number of points, the first point straight up
// when turnDegrees is 0.
QPainterPath starPath(const QPointF &centre, double outerRadius,
                      double innerRadius, int points, double turnDegrees = 0);

// A shiny glass ball (marbles, beads): lit from the upper left.
void drawGlassBall(QPainter &painter, const QPointF &centre, double radius,
                   const QColor &colour);

// A round glow of light fading out from its centre.
void drawGlow(QPainter &painter, const QPointF &at, double radius, const QColor &colour, int alpha);

// A soft shadow ellipse under an object standing on something.
void drawSoftShadow(QPainter &painter, const QPointF &centre, double rx,
                    double ry, int alpha = 70);

// Deterministic random numbers: the same seed gives the same pictures on
// every machine (the standard distributions are not portable, so the
// mapping from raw numbers is done here).
class Rng
{
public:
    explicit Rng(std::uint32_t seed) : m_engine(seed) {}
    double unit() { return (m_engine() >> 8) * (1.0 / 16777216.0); }
    double range(double low, double high) { return low + (high - low) * unit(); }
    int below(int count) { return int(unit() * count) % count; }

private:
    std::mt19937 m_engine;
};
