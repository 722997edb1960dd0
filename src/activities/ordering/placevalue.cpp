#include "placevalue.h"

#include <QPainter>

namespace PlaceValue {

double columnCentre(int column, int rowWidth)
{
    const double pitch = rowWidth / double(kColumns);
    return pitch * (column + 0.5);
}

QStringList columnDigits(const QString& spaced)
{
    const int point = spaced.indexOf(QLatin1Char('.'));
    QStringList digits{point < 0 ? spaced.trimmed() : spaced.left(point).trimmed()};
    if (point >= 0)
        for (QChar c : spaced.mid(point + 1))
            if (!c.isSpace())
                digits << QString(c);
    return digits;
}

} // namespace PlaceValue

// The first head is a word, translated where it is drawn.
const QStringList PlaceValueHeads::kHeads = {QStringLiteral(QT_TRANSLATE_NOOP("PlaceValueHeads", "units")),
                                             QStringLiteral("1/10"), QStringLiteral("1/100"), QStringLiteral("1/1000")};

PlaceValueHeads::PlaceValueHeads(QWidget* parent, const QString& name)
    : QWidget(parent)
{
    setObjectName(name);
    // The heads are stacked fractions: a reader hears them in words.
    setAccessibleName(tr("Column heads: units, tenths, hundredths, thousandths"));
}

void PlaceValueHeads::paintEvent(QPaintEvent*)
{
    // Each head in a rounded box; the fractions stacked, a line between.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double pitch = width() / double(PlaceValue::kColumns);
    for (int c = 0; c < PlaceValue::kColumns; ++c) {
        const QRectF box(c * pitch + 3, 2, pitch - 6, height() - 4);
        painter.setPen(QPen(Qt::white, 1.5));
        painter.setBrush(QColor(255, 255, 255, 40));
        painter.drawRoundedRect(box, 8, 8);
        painter.setFont(font());
        const QStringList parts = kHeads[c].split(QLatin1Char('/'));
        if (parts.size() == 1) {
            painter.drawText(box, Qt::AlignCenter, tr(qPrintable(kHeads[c])));
            continue;
        }
        const QFontMetricsF metrics(font());
        const double barWidth = metrics.horizontalAdvance(parts[1]) + 6;
        const double mid = box.center().y();
        painter.drawText(QRectF(box.left(), mid - metrics.height() - 1, box.width(), metrics.height()),
                         Qt::AlignCenter, parts[0]);
        painter.drawLine(QPointF(box.center().x() - barWidth / 2, mid), QPointF(box.center().x() + barWidth / 2, mid));
        painter.drawText(QRectF(box.left(), mid + 1, box.width(), metrics.height()), Qt::AlignCenter, parts[1]);
    }
}

PlaceValueRow::PlaceValueRow(QWidget* parent, const QString& name, const QString& spaced)
    : QLabel(spaced, parent)
{
    setObjectName(name);
}

void PlaceValueRow::paintEvent(QPaintEvent*)
{
    // The whole part in the units column, the point on the units column's
    // right edge, and each decimal digit in its own column.
    QPainter painter(this);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    const QStringList digits = PlaceValue::columnDigits(text());
    const double pitch = width() / double(PlaceValue::kColumns);
    for (int c = 0; c < digits.size() && c < PlaceValue::kColumns; ++c) {
        const double centre = PlaceValue::columnCentre(c, width());
        painter.drawText(QRectF(centre - pitch / 2, 0, pitch, height()), Qt::AlignCenter, digits[c]);
    }
    if (text().contains(QLatin1Char('.')))
        painter.drawText(QRectF(pitch - pitch / 4, 0, pitch / 2, height()), Qt::AlignCenter, QStringLiteral("."));
}
