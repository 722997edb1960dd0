#include "wmfwriter.h"

#include <QtEndian>

#include <algorithm>

namespace {

void put16(QByteArray &out, int value)
{
    char bytes[2];
    qToLittleEndian<std::uint16_t>(std::uint16_t(value), bytes);
    out.append(bytes, 2);
}

void put32(QByteArray &out, std::uint32_t value)
{
    char bytes[4];
    qToLittleEndian<std::uint32_t>(value, bytes);
    out.append(bytes, 4);
}

// COLORREF: red, green, blue, then a zero byte.
void putColour(QByteArray &out, const QColor &colour)
{
    out.append(char(colour.red()));
    out.append(char(colour.green()));
    out.append(char(colour.blue()));
    out.append('\0');
}

bool fits16(int value) { return value >= -32768 && value <= 32767; }

} // namespace

WmfWriter::WmfWriter(int width, int height, int unitsPerInch)
    : m_box(0, 0, width, height), m_unitsPerInch(unitsPerInch)
{
    if (!fits16(width) || !fits16(height) || unitsPerInch <= 0 || unitsPerInch > 65535)
        m_error = QStringLiteral("picture size %1 x %2 at %3 to the inch does not fit")
                      .arg(width).arg(height).arg(unitsPerInch);
    setMapMode(WmfOut::Anisotropic);
    setWindowOrg(0, 0);
    setWindowExt(width, height);
}

int WmfWriter::takeSlot()
{
    const auto free = std::find(m_live.begin(), m_live.end(), false);
    const int slot = int(free - m_live.begin());
    if (free == m_live.end())
        m_live.append(true);
    else
        *free = true;
    m_tableSize = std::max(m_tableSize, int(m_live.size()));
    return slot;
}

bool WmfWriter::isLive(int slot) const
{
    return slot >= 0 && slot < m_live.size() && m_live[slot];
}

void WmfWriter::record(WmfOut::Function function, const QByteArray &params)
{
    if (m_finished) {
        if (m_error.isEmpty())
            m_error = QStringLiteral("record 0x%1 after the end").arg(int(function), 4, 16, QLatin1Char('0'));
        return;
    }
    const int words = 3 + int(params.size()) / 2;
    put32(m_records, std::uint32_t(words));
    put16(m_records, function);
    m_records.append(params);
    m_largestRecord = std::max(m_largestRecord, words);
}

int WmfWriter::createPen(WmfOut::PenStyle style, int width, const QColor &colour)
{
    QByteArray p;
    put16(p, style);
    put16(p, width);  // the pen's width is the x of a point whose y is unused
    put16(p, 0);
    putColour(p, colour);
    record(WmfOut::CreatePenIndirect, p);
    return takeSlot();
}

int WmfWriter::createBrush(WmfOut::BrushStyle style, const QColor &colour)
{
    QByteArray p;
    put16(p, style);
    putColour(p, colour);
    put16(p, 0);  // hatch, unused by solid and hollow brushes
    record(WmfOut::CreateBrushIndirect, p);
    return takeSlot();
}

int WmfWriter::createFont(const WmfOut::Font &font)
{
    QByteArray p;
    put16(p, font.height);
    put16(p, 0);  // width: as the face gives it
    put16(p, 0);  // escapement
    put16(p, 0);  // orientation
    put16(p, font.weight);
    p.append(char(font.italic));
    p.append(char(font.underline));
    p.append('\0');       // strike-out
    p.append('\0');       // ANSI character set
    p.append('\0');       // default output precision
    p.append('\0');       // default clipping precision
    p.append('\2');       // proof quality
    p.append(char(font.pitchAndFamily));
    // The face name, nul-terminated, in a 32-byte field.
    QByteArray face = font.face.left(31);
    face.append(QByteArray(32 - face.size(), '\0'));
    p.append(face);
    record(WmfOut::CreateFontIndirect, p);
    return takeSlot();
}

void WmfWriter::selectObject(int slot)
{
    if (!isLive(slot) && m_error.isEmpty())
        m_error = QStringLiteral("select of empty slot %1").arg(slot);
    QByteArray p;
    put16(p, slot);
    record(WmfOut::SelectObject, p);
}

void WmfWriter::deleteObject(int slot)
{
    if (!isLive(slot)) {
        if (m_error.isEmpty())
            m_error = QStringLiteral("delete of empty slot %1").arg(slot);
    } else {
        m_live[slot] = false;
    }
    QByteArray p;
    put16(p, slot);
    record(WmfOut::DeleteObject, p);
}

void WmfWriter::setMapMode(WmfOut::MapMode mode)
{
    QByteArray p;
    put16(p, mode);
    record(WmfOut::SetMapMode, p);
}

void WmfWriter::setWindowOrg(int x, int y)
{
    QByteArray p;
    put16(p, y);
    put16(p, x);
    record(WmfOut::SetWindowOrg, p);
}

void WmfWriter::setWindowExt(int width, int height)
{
    QByteArray p;
    put16(p, height);
    put16(p, width);
    record(WmfOut::SetWindowExt, p);
}

void WmfWriter::setTextColor(const QColor &colour)
{
    QByteArray p;
    putColour(p, colour);
    record(WmfOut::SetTextColor, p);
}

void WmfWriter::setBkMode(WmfOut::BkMode mode)
{
    QByteArray p;
    put16(p, mode);
    record(WmfOut::SetBkMode, p);
}

void WmfWriter::setTextAlign(int flags)
{
    QByteArray p;
    put16(p, flags);
    record(WmfOut::SetTextAlign, p);
}

void WmfWriter::moveTo(int x, int y)
{
    if ((!fits16(x) || !fits16(y)) && m_error.isEmpty())
        m_error = QStringLiteral("point %1,%2 does not fit").arg(x).arg(y);
    QByteArray p;
    put16(p, y);
    put16(p, x);
    record(WmfOut::MoveTo, p);
}

void WmfWriter::lineTo(int x, int y)
{
    if ((!fits16(x) || !fits16(y)) && m_error.isEmpty())
        m_error = QStringLiteral("point %1,%2 does not fit").arg(x).arg(y);
    QByteArray p;
    put16(p, y);
    put16(p, x);
    record(WmfOut::LineTo, p);
}

// Rectangle-like records list the edges bottom, right, top, left.
static QByteArray edges(const QRect &r)
{
    QByteArray p;
    put16(p, r.y() + r.height());
    put16(p, r.x() + r.width());
    put16(p, r.y());
    put16(p, r.x());
    return p;
}

void WmfWriter::rectangle(const QRect &r)
{
    record(WmfOut::Rectangle, edges(r));
}

void WmfWriter::roundRect(const QRect &r, int cornerWidth, int cornerHeight)
{
    QByteArray p;
    put16(p, cornerHeight);
    put16(p, cornerWidth);
    p.append(edges(r));
    record(WmfOut::RoundRect, p);
}

void WmfWriter::ellipse(const QRect &r)
{
    record(WmfOut::Ellipse, edges(r));
}

void WmfWriter::points(WmfOut::Function function, const QVector<QPoint> &points)
{
    if ((points.size() < 2 || points.size() > 32767) && m_error.isEmpty())
        m_error = QStringLiteral("%1 points").arg(points.size());
    QByteArray p;
    put16(p, int(points.size()));
    for (const QPoint &point : points) {
        if ((!fits16(point.x()) || !fits16(point.y())) && m_error.isEmpty())
            m_error = QStringLiteral("point %1,%2 does not fit").arg(point.x()).arg(point.y());
        put16(p, point.x());
        put16(p, point.y());
    }
    record(function, p);
}

void WmfWriter::polygon(const QVector<QPoint> &pts)
{
    points(WmfOut::Polygon, pts);
}

void WmfWriter::polyline(const QVector<QPoint> &pts)
{
    points(WmfOut::Polyline, pts);
}

void WmfWriter::text(WmfOut::Function function, int x, int y, const QByteArray &text)
{
    QByteArray padded = text;
    if (padded.size() % 2)
        padded.append('\0');
    QByteArray p;
    if (function == WmfOut::TextOut) {
        put16(p, int(text.size()));
        p.append(padded);
        put16(p, y);
        put16(p, x);
    } else {
        // No options, so neither a clipping rectangle nor spacing follows.
        put16(p, y);
        put16(p, x);
        put16(p, int(text.size()));
        put16(p, 0);
        p.append(padded);
    }
    record(function, p);
}

void WmfWriter::textOut(int x, int y, const QByteArray &t)
{
    text(WmfOut::TextOut, x, y, t);
}

void WmfWriter::extTextOut(int x, int y, const QByteArray &t)
{
    text(WmfOut::ExtTextOut, x, y, t);
}

QByteArray WmfWriter::placeableHeader(const QRect &box, int unitsPerInch)
{
    QByteArray h;
    put32(h, WmfOut::PlaceableKey);
    put16(h, 0);  // no window handle
    put16(h, box.x());
    put16(h, box.y());
    put16(h, box.x() + box.width());
    put16(h, box.y() + box.height());
    put16(h, unitsPerInch);
    put32(h, 0);
    put16(h, placeableChecksum(h));
    return h;
}

std::uint16_t WmfWriter::placeableChecksum(const QByteArray &header)
{
    std::uint16_t sum = 0;
    for (int i = 0; i < 10 && 2 * i + 1 < header.size(); ++i)
        sum ^= qFromLittleEndian<std::uint16_t>(header.constData() + 2 * i);
    return sum;
}

QByteArray WmfWriter::finish()
{
    if (m_finished)
        m_error = QStringLiteral("finished twice");
    for (int slot = 0; slot < m_live.size(); ++slot)
        if (m_live[slot])
            deleteObject(slot);
    record(WmfOut::Eof, QByteArray());
    m_finished = true;
    if (!m_error.isEmpty())
        return QByteArray();

    QByteArray file = placeableHeader(m_box, m_unitsPerInch);
    put16(file, 1);       // metafile type 1, as .wmf files carry
    put16(file, WmfOut::HeaderWords);
    put16(file, 0x0300);  // Windows 3.0 and later
    put32(file, std::uint32_t(metafileWords()));
    put16(file, m_tableSize);
    put32(file, std::uint32_t(m_largestRecord));
    put16(file, 0);       // no members
    file.append(m_records);
    return file;
}
