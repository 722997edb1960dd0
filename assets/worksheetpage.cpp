#include "worksheetpage.h"

#include "canvas.h"

#include <QFontMetricsF>

#include <cmath>
#include <utility>

namespace {

QString colourKey(const QColor &c)
{
    return c.name();
}

const QColor kInk(30, 30, 40);
const QColor kRule(120, 120, 130);

} // namespace

WorksheetPage::WorksheetPage()
    : m_wmf(Width, Height, 1440)
{
    m_wmf.setBkMode(WmfOut::Transparent);
    setTextColour(kInk);
}

void WorksheetPage::setPen(const QColor &colour, int width, WmfOut::PenStyle style)
{
    const QString key = QStringLiteral("%1/%2/%3").arg(colourKey(colour)).arg(width).arg(style);
    if (key == m_penKey)
        return;
    // Select the new pen before the old one goes: a selected object is
    // never deleted.
    const int pen = m_wmf.createPen(style, width, colour);
    m_wmf.selectObject(pen);
    if (m_pen >= 0)
        m_wmf.deleteObject(m_pen);
    m_pen = pen;
    m_penKey = key;
}

void WorksheetPage::setNoPen()
{
    setPen(Qt::black, 0, WmfOut::PenNull);
}

void WorksheetPage::setBrush(const QColor &colour)
{
    const QString key = colourKey(colour);
    if (key == m_brushKey)
        return;
    const int brush = m_wmf.createBrush(WmfOut::BrushSolid, colour);
    m_wmf.selectObject(brush);
    if (m_brush >= 0)
        m_wmf.deleteObject(m_brush);
    m_brush = brush;
    m_brushKey = key;
}

void WorksheetPage::setNoBrush()
{
    if (m_brushKey == QLatin1String("none"))
        return;
    const int brush = m_wmf.createBrush(WmfOut::BrushNull, Qt::black);
    m_wmf.selectObject(brush);
    if (m_brush >= 0)
        m_wmf.deleteObject(m_brush);
    m_brush = brush;
    m_brushKey = QStringLiteral("none");
}

void WorksheetPage::setFont(Face face, int size, bool bold)
{
    const QString key = QStringLiteral("%1/%2/%3").arg(int(face)).arg(size).arg(bold);
    if (key == m_fontKey)
        return;
    WmfOut::Font font;
    font.face = face == Serif ? QByteArrayLiteral("Times New Roman") : QByteArrayLiteral("Arial");
    font.pitchAndFamily = face == Serif ? 0x12 : 0x22;
    font.height = -size;
    font.weight = bold ? 700 : 400;
    const int slot = m_wmf.createFont(font);
    m_wmf.selectObject(slot);
    if (m_font >= 0)
        m_wmf.deleteObject(m_font);
    m_font = slot;
    m_fontKey = key;
    m_face = face;
    m_size = size;
    m_bold = bold;
}

void WorksheetPage::setTextColour(const QColor &colour)
{
    if (colour == m_textColour)
        return;
    m_wmf.setTextColor(colour);
    m_textColour = colour;
}

QFont WorksheetPage::measuringFont() const
{
    QFont font(m_face == Serif ? QStringLiteral("Liberation Serif") : QStringLiteral("Liberation Sans"));
    font.setPixelSize(m_size);
    font.setBold(m_bold);
    return font;
}

int WorksheetPage::textWidth(const QString &text) const
{
    return int(std::ceil(QFontMetricsF(measuringFont()).horizontalAdvance(text)));
}

int WorksheetPage::digitHeight() const
{
    return int(std::lround(-QFontMetricsF(measuringFont()).tightBoundingRect(QStringLiteral("8")).top()));
}

void WorksheetPage::align(int flags)
{
    if (flags == m_align)
        return;
    m_wmf.setTextAlign(flags);
    m_align = flags;
}

void WorksheetPage::checkInside(const QRectF &r, const QString &what)
{
    const bool inside = r.left() >= 0 && r.top() >= 0 && r.right() <= Width && r.bottom() <= Height;
    if (m_error.isEmpty() && !inside)
        m_error = QStringLiteral("%1 runs off the page").arg(what);
}

void WorksheetPage::place(int x, int baseline, const QString &text, Qt::Alignment how, bool number)
{
    const QFontMetricsF metrics(measuringFont());
    const double advance = metrics.horizontalAdvance(text);
    int flags = WmfOut::AlignBaseline;
    double left = x;
    if (how & Qt::AlignHCenter) {
        flags |= WmfOut::AlignCenter;
        left = x - advance / 2;
    } else if (how & Qt::AlignRight) {
        flags |= WmfOut::AlignRight;
        left = x - advance;
    }
    align(flags);
    const QByteArray latin1 = text.toLatin1();
    if (number)
        m_wmf.extTextOut(x, baseline, latin1);
    else
        m_wmf.textOut(x, baseline, latin1);

    const QRectF ink = metrics.tightBoundingRect(text).translated(left, baseline);
    checkInside(ink, QStringLiteral("\"%1\"").arg(text));
    for (const auto &other : std::as_const(m_texts)) {
        if (m_error.isEmpty() && other.first.intersects(ink))
            m_error = QStringLiteral("\"%1\" runs into \"%2\"").arg(text, other.second);
    }
    m_texts.append({ink, text});
}

void WorksheetPage::text(int x, int baseline, const QString &t, Qt::Alignment how)
{
    place(x, baseline, t, how, false);
}

void WorksheetPage::numberInBox(const QRect &box, const QString &number)
{
    const int baseline = box.center().y() + (digitHeight() + 1) / 2;
    place(box.center().x(), baseline, number, Qt::AlignHCenter, true);
}

void WorksheetPage::line(int x1, int y1, int x2, int y2)
{
    checkInside(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(), QStringLiteral("a line"));
    m_wmf.moveTo(x1, y1);
    m_wmf.lineTo(x2, y2);
}

void WorksheetPage::rect(const QRect &r)
{
    checkInside(r, QStringLiteral("a box"));
    m_wmf.rectangle(r);
}

void WorksheetPage::roundRect(const QRect &r, int radius)
{
    checkInside(r, QStringLiteral("a box"));
    m_wmf.roundRect(r, 2 * radius, 2 * radius);
}

void WorksheetPage::ellipse(const QRect &r)
{
    checkInside(r, QStringLiteral("a circle"));
    m_wmf.ellipse(r);
}

void WorksheetPage::polygon(const QVector<QPoint> &points)
{
    checkInside(QPolygon(points).boundingRect(), QStringLiteral("a shape"));
    m_wmf.polygon(points);
}

void WorksheetPage::polyline(const QVector<QPoint> &points)
{
    checkInside(QPolygon(points).boundingRect(), QStringLiteral("a line"));
    m_wmf.polyline(points);
}

int WorksheetPage::drawHeading(const QString &yearLabel, const QString &title,
                               const QString &instruction)
{
    // A frame round the whole sheet.
    setPen(screenBlue(), 40);
    setNoBrush();
    roundRect(QRect(40, 40, Width - 80, Height - 80), 220);

    // The year or unit on a blue tab, then name and date to write in.
    setFont(Sans, 300, true);
    const int tabWidth = textWidth(yearLabel) + 360;
    const QRect tab(Left + 80, 300, tabWidth, 500);
    setNoPen();
    setBrush(screenBlue());
    roundRect(tab, 120);
    setTextColour(Qt::white);
    numberInBox(tab, yearLabel);

    setTextColour(kInk);
    setFont(Sans, 240);
    const int nameX = tab.right() + 300;
    const int dateX = 6500;
    const int baseline = tab.bottom() - 120;
    text(nameX, baseline, QStringLiteral("Name"));
    text(dateX, baseline, QStringLiteral("Date"));
    setPen(kRule, 15);
    line(nameX + textWidth(QStringLiteral("Name")) + 100, baseline + 40, dateX - 240, baseline + 40);
    line(dateX + textWidth(QStringLiteral("Date")) + 100, baseline + 40, Right - 80, baseline + 40);

    // The title, as large as fits the width.
    int size = 560;
    setFont(Serif, size, true);
    while (textWidth(title) > Right - Left - 400 && size > 300) {
        size -= 20;
        setFont(Serif, size, true);
    }
    setTextColour(QColor(20, 60, 130));
    text(Width / 2, 1500, title, Qt::AlignHCenter);

    // What to do, on a pale band.
    const QRect band(Left, 1740, Right - Left, 520);
    setPen(QColor(224, 180, 70), 20);
    setBrush(QColor(255, 247, 214));
    roundRect(band, 140);
    setTextColour(kInk);
    setFont(Sans, 260);
    const int instructionBaseline = band.center().y() + (digitHeight() + 1) / 2;
    text(Width / 2, instructionBaseline, instruction, Qt::AlignHCenter);

    // A quiet footer.
    setFont(Sans, 160);
    setTextColour(QColor(130, 130, 140));
    text(Width / 2, Height - 150, QStringLiteral("Partitude - fractions for ages 6 to 11"), Qt::AlignHCenter);
    setTextColour(kInk);
    return band.bottom() + 200;
}

void WorksheetPage::drawExerciseNumber(const QPoint &centre, int number)
{
    const QRect disc(centre.x() - 170, centre.y() - 170, 340, 340);
    setNoPen();
    setBrush(screenBlue());
    ellipse(disc);
    setFont(Sans, 220, true);
    setTextColour(Qt::white);
    numberInBox(disc, QString::number(number));
    setTextColour(kInk);
}

QByteArray WorksheetPage::finish()
{
    const QByteArray bytes = m_wmf.finish();
    if (m_error.isEmpty() && bytes.isEmpty())
        m_error = m_wmf.error();
    return m_error.isEmpty() ? bytes : QByteArray();
}

QString WorksheetPage::error() const
{
    return m_error;
}
