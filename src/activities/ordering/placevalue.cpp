#include "placevalue.h"

#include "kit/parts/placevaluedrawing.h"

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
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStringList heads = kHeads;
    heads[0] = tr(qPrintable(kHeads[0]));
    PlaceValueDrawing::HeadsLook look;
    look.ink = Qt::white;
    look.fill = QColor(255, 255, 255, 40);
    PlaceValueDrawing::paintHeads(painter, QRectF(rect()), heads, font(), look);
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
    PlaceValueDrawing::DigitsLook look;
    look.ink = palette().color(QPalette::WindowText);
    look.columns = PlaceValue::kColumns;
    look.pointAfter = text().contains(QLatin1Char('.')) ? 0 : -1;
    PlaceValueDrawing::paintDigits(painter, QRectF(rect()), PlaceValue::columnDigits(text()), look);
}
