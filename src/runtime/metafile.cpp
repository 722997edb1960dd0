// Reading a placeable metafile: the 22-byte placeable header, the 18-byte
// metafile header, then records of (size in 16-bit words, function number,
// parameters) up to the end record. Everything is checked here, once, so
// that playing needs no checks: every record lies inside the file, every
// parameter inside its record, every count agrees with the record's size,
// and every object a record names exists in the object table.
//
// Deliberately tolerated: a wrong placeable checksum, a header file size or
// largest-record size that disagrees with the records, bytes after the end
// record, and records the reader does not draw (they are passed over).
#include "metafile.h"

#include "metafilesteps.h"

#include <cstdlib>
#include <set>

using namespace Wmf;

namespace {

constexpr quint32 kPlaceableKey = 0x9AC6CDD7;
constexpr qint64 kPlaceableBytes = 22;
constexpr qint64 kHeaderEnd = kPlaceableBytes + 18;
constexpr qint64 kRecordHeaderBytes = 6;
constexpr int kFaceNameBytes = 32;

// Bytes 0x80 to 0x9F of the Windows Western code page; the rest is Latin-1.
constexpr char16_t kWindows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QString decodeAnsi(const char* data, qint64 length)
{
    QString text;
    for (qint64 i = 0; i < length && data[i] != '\0'; ++i) {
        const uchar c = uchar(data[i]);
        text += (c >= 0x80 && c < 0xA0) ? QChar(kWindows1252[c - 0x80]) : QChar(c);
    }
    return text;
}

QString functionName(quint16 function)
{
    switch (function) {
    case SetWindowOrg: return QStringLiteral("META_SETWINDOWORG");
    case SetWindowExt: return QStringLiteral("META_SETWINDOWEXT");
    case SetMapMode: return QStringLiteral("META_SETMAPMODE");
    case SaveDC: return QStringLiteral("META_SAVEDC");
    case RestoreDC: return QStringLiteral("META_RESTOREDC");
    case CreatePenIndirect: return QStringLiteral("META_CREATEPENINDIRECT");
    case CreateBrushIndirect: return QStringLiteral("META_CREATEBRUSHINDIRECT");
    case CreateFontIndirect: return QStringLiteral("META_CREATEFONTINDIRECT");
    case SelectObject: return QStringLiteral("META_SELECTOBJECT");
    case DeleteObject: return QStringLiteral("META_DELETEOBJECT");
    case MoveTo: return QStringLiteral("META_MOVETO");
    case LineTo: return QStringLiteral("META_LINETO");
    case Rectangle: return QStringLiteral("META_RECTANGLE");
    case RoundRect: return QStringLiteral("META_ROUNDRECT");
    case Ellipse: return QStringLiteral("META_ELLIPSE");
    case Arc: return QStringLiteral("META_ARC");
    case Pie: return QStringLiteral("META_PIE");
    case Chord: return QStringLiteral("META_CHORD");
    case Polygon: return QStringLiteral("META_POLYGON");
    case Polyline: return QStringLiteral("META_POLYLINE");
    case PolyPolygon: return QStringLiteral("META_POLYPOLYGON");
    case TextOut: return QStringLiteral("META_TEXTOUT");
    case ExtTextOut: return QStringLiteral("META_EXTTEXTOUT");
    default: return QStringLiteral("0x%1").arg(function, 4, 16, QLatin1Char('0'));
    }
}

class Parser {
public:
    Parser(const QByteArray& bytes, Picture& picture) : m_bytes(bytes), m_picture(picture) {}

    bool run();
    QString error;

private:
    bool fail(const QString& what)
    {
        error = what;
        return false;
    }
    bool failHere(const QString& what)
    {
        return fail(QStringLiteral("the %1 record at byte %2 %3").arg(functionName(m_function)).arg(m_at).arg(what));
    }

    // Callers make sure the bytes lie inside the file.
    quint16 word(qint64 at) const
    {
        return quint16(uchar(m_bytes[at]) | uchar(m_bytes[at + 1]) << 8);
    }
    quint32 dword(qint64 at) const { return word(at) | quint32(word(at + 2)) << 16; }

    // Parameter word i of the current record; need() has made sure it exists.
    quint16 u(qint64 i) const { return word(m_at + kRecordHeaderBytes + 2 * i); }
    int s(qint64 i) const { return qint16(u(i)); }
    QColor colour(qint64 i) const { return QColor(u(i) & 0xFF, u(i) >> 8, u(i + 1) & 0xFF); }
    const char* paramBytes(qint64 firstWord) const
    {
        return m_bytes.constData() + m_at + kRecordHeaderBytes + 2 * firstWord;
    }
    Box box(qint64 bottomWord) const // bottom, right, top, left, as shapes store them
    {
        return Box{s(bottomWord + 3), s(bottomWord + 2), s(bottomWord + 1), s(bottomWord)};
    }

    bool need(qint64 words)
    {
        if (m_params >= words)
            return true;
        return failHere(QStringLiteral("has %1 parameter words, too few: it needs %2").arg(m_params).arg(words));
    }
    bool count(int n, const char* what)
    {
        return n >= 0 || failHere(QStringLiteral("gives a negative %1 (%2)").arg(QLatin1String(what)).arg(n));
    }

    bool header();
    bool record();
    bool points(Step& step, qint64 firstWord, qint64 n);
    bool create(const Object& object);
    bool objectNamed(int* object);
    void add(const Step& step) { m_picture.steps.push_back(step); }

    const QByteArray& m_bytes;
    Picture& m_picture;
    std::vector<int> m_slots; // object number held by each slot, -1 if free
    std::set<int> m_freed;    // free slots below m_fresh; every slot from m_fresh on is free
    int m_fresh = 0;
    qint64 m_at = 0;
    qint64 m_params = 0;
    quint16 m_function = 0;
};

bool Parser::run()
{
    if (!header())
        return false;
    const qint64 size = m_bytes.size();
    m_at = kHeaderEnd;
    for (;;) {
        if (m_at == size)
            return fail(QStringLiteral("the file ends at byte %1 without an end record").arg(size));
        if (size - m_at < kRecordHeaderBytes)
            return fail(QStringLiteral("the record at byte %1 is cut short: the file ends %2 bytes into its 6-byte header")
                            .arg(m_at).arg(size - m_at));
        const quint32 words = dword(m_at);
        m_function = word(m_at + 4);
        if (words < 3)
            return fail(QStringLiteral("the record at byte %1 gives its size as %2 words, less than its own 3-word header")
                            .arg(m_at).arg(words));
        if (qint64(words) * 2 > size - m_at)
            return fail(QStringLiteral("the record at byte %1 is %2 bytes long, but only %3 bytes of the file are left")
                            .arg(m_at).arg(qint64(words) * 2).arg(size - m_at));
        if (m_function == EndOfFile)
            return true;
        m_params = qint64(words) - 3;
        ++m_picture.records;
        if (!record())
            return false;
        m_at += qint64(words) * 2;
    }
}

bool Parser::header()
{
    const qint64 size = m_bytes.size();
    if (size < kPlaceableBytes)
        return fail(QStringLiteral("the file ends at byte %1, inside the 22-byte placeable header").arg(size));
    if (dword(0) != kPlaceableKey)
        return fail(QStringLiteral("the file is not a placeable metafile: the key at byte 0 is 0x%1, not 0x9AC6CDD7")
                        .arg(dword(0), 8, 16, QLatin1Char('0')));
    const int left = qint16(word(6)), top = qint16(word(8)), right = qint16(word(10)), bottom = qint16(word(12));
    if (right <= left || bottom <= top)
        return fail(QStringLiteral("the bounding box at byte 6 (%1, %2 to %3, %4) has no area").arg(left).arg(top).arg(right).arg(bottom));
    m_picture.bounds = QRect(left, top, right - left, bottom - top);
    m_picture.unitsPerInch = word(14);
    if (m_picture.unitsPerInch == 0)
        return fail(QStringLiteral("the units per inch at byte 14 are 0"));
    quint16 sum = 0;
    for (int i = 0; i < 10; ++i)
        sum ^= word(2 * i);
    m_picture.checksumMatches = sum == word(20);

    if (size < kHeaderEnd)
        return fail(QStringLiteral("the file ends at byte %1, inside the metafile header (bytes 22 to 39)").arg(size));
    if (word(22) != 1 && word(22) != 2)
        return fail(QStringLiteral("the metafile type at byte 22 is %1, not 1 or 2").arg(word(22)));
    if (word(24) != 9)
        return fail(QStringLiteral("the metafile header size at byte 24 is %1 words, not 9").arg(word(24)));
    if (word(26) != 0x0100 && word(26) != 0x0300)
        return fail(QStringLiteral("the metafile version at byte 26 is 0x%1, not 0x0100 or 0x0300").arg(word(26), 4, 16, QLatin1Char('0')));
    m_slots.assign(word(32), -1);
    return true;
}

bool Parser::record()
{
    Step step;
    switch (m_function) {
    case SetWindowOrg:
    case SetWindowExt:
    case MoveTo:
    case LineTo:
        if (!need(2))
            return false;
        step.op = m_function == SetWindowOrg ? Op::SetWindowOrg
            : m_function == SetWindowExt     ? Op::SetWindowExt
            : m_function == MoveTo           ? Op::MoveTo
                                             : Op::LineTo;
        step.point = QPoint(s(1), s(0));
        break;
    case SetMapMode:
    case SetBkMode:
    case SetPolyFillMode:
    case SetTextAlign:
        if (!need(1))
            return false;
        step.op = m_function == SetMapMode ? Op::SetMapMode
            : m_function == SetBkMode      ? Op::SetBkMode
            : m_function == SetPolyFillMode ? Op::SetPolyFillMode
                                            : Op::SetTextAlign;
        step.value = u(0);
        break;
    case SaveDC:
        step.op = Op::SaveDC;
        break;
    case RestoreDC:
        if (!need(1))
            return false;
        step.op = Op::RestoreDC;
        step.value = s(0);
        break;
    case SetTextColor:
    case SetBkColor:
        if (!need(2))
            return false;
        step.op = m_function == SetTextColor ? Op::SetTextColor : Op::SetBkColor;
        step.colour = colour(0);
        break;
    case SelectObject:
        step.op = Op::Select;
        if (!need(1) || !objectNamed(&step.value))
            return false;
        break;
    case DeleteObject: {
        int object = 0;
        if (!need(1) || !objectNamed(&object))
            return false;
        m_slots[u(0)] = -1;
        m_freed.insert(u(0));
        return true; // the object stays in use until something else is selected
    }
    case CreatePenIndirect: {
        if (!need(5))
            return false;
        Object pen{Object::PenObject, {}, {}, {}};
        pen.pen = Pen{u(0), std::abs(s(1)), colour(3)};
        return create(pen);
    }
    case CreateBrushIndirect: {
        if (!need(4))
            return false;
        Object brush{Object::BrushObject, {}, {}, {}};
        brush.brush = Brush{u(0), colour(1), u(3)};
        return create(brush);
    }
    case CreateFontIndirect: {
        if (!need(9))
            return false;
        Object font{Object::FontObject, {}, {}, {}};
        const char* b = paramBytes(0);
        font.font.height = s(0);
        font.font.escapement = s(2);
        font.font.weight = s(4);
        font.font.italic = b[10] != 0;
        font.font.underline = b[11] != 0;
        font.font.strikeOut = b[12] != 0;
        font.font.face = decodeAnsi(b + 18, qMin<qint64>(kFaceNameBytes, m_params * 2 - 18));
        return create(font);
    }
    case CreatePalette:
    case CreatePatternBrush:
    case DibCreatePatternBrush:
    case CreateRegion:
        // Not drawn, but each takes an object slot, which later records count on.
        return create(Object{});
    case Rectangle:
    case Ellipse:
    case IntersectClipRect:
        if (!need(4))
            return false;
        step.op = m_function == Rectangle ? Op::Rectangle : m_function == Ellipse ? Op::Ellipse : Op::IntersectClip;
        step.box = box(0);
        break;
    case RoundRect:
        if (!need(6))
            return false;
        step.op = Op::RoundRect;
        step.point = QPoint(s(1), s(0));
        step.box = box(2);
        break;
    case Arc:
    case Pie:
    case Chord:
        if (!need(8))
            return false;
        step.op = m_function == Arc ? Op::Arc : m_function == Pie ? Op::Pie : Op::Chord;
        step.arcEnd = QPoint(s(1), s(0));
        step.arcStart = QPoint(s(3), s(2));
        step.box = box(4);
        break;
    case SetPixel:
        if (!need(4))
            return false;
        step.op = Op::SetPixel;
        step.colour = colour(0);
        step.point = QPoint(s(3), s(2));
        break;
    case Polygon:
    case Polyline:
        step.op = m_function == Polygon ? Op::Polygon : Op::Polyline;
        if (!need(1) || !count(s(0), "point count") || !points(step, 1, s(0)))
            return false;
        break;
    case PolyPolygon: {
        step.op = Op::PolyPolygon;
        if (!need(1) || !need(1 + qint64(u(0))))
            return false;
        qint64 total = 0;
        for (int i = 0; i < u(0); ++i) {
            step.counts << u(1 + i);
            total += u(1 + i);
        }
        if (!points(step, 1 + u(0), total))
            return false;
        break;
    }
    case TextOut: {
        step.op = Op::Text;
        if (!need(1) || !count(s(0), "string length"))
            return false;
        const qint64 words = (qint64(s(0)) + 1) / 2;
        if (!need(1 + words + 2))
            return false;
        step.text = decodeAnsi(paramBytes(1), s(0));
        step.point = QPoint(s(1 + words + 1), s(1 + words));
        break;
    }
    case ExtTextOut: {
        step.op = Op::Text;
        if (!need(4) || !count(s(2), "string length"))
            return false;
        step.point = QPoint(s(1), s(0));
        step.options = u(3);
        qint64 at = 4;
        if (step.options & (Opaque | Clipped)) {
            if (!need(at + 4))
                return false;
            step.hasBox = true;
            step.box = Box{s(4), s(5), s(6), s(7)};
            at += 4;
        }
        const int length = s(2);
        if (!need(at + (length + 1) / 2))
            return false;
        step.text = decodeAnsi(paramBytes(at), length);
        at += (length + 1) / 2;
        const qint64 left = m_params - at;
        const bool paired = (step.options & PairedDx) && left >= 2 * qint64(length);
        if (paired || left >= length) {
            for (int i = 0; i < step.text.size(); ++i)
                step.dx << s(at + (paired ? 2 * i : i));
        }
        break;
    }
    default:
        ++m_picture.skipped;
        return true;
    }
    add(step);
    return true;
}

bool Parser::points(Step& step, qint64 firstWord, qint64 n)
{
    if (!need(firstWord + 2 * n))
        return false;
    step.points.reserve(int(n));
    for (qint64 i = 0; i < n; ++i)
        step.points << QPoint(s(firstWord + 2 * i), s(firstWord + 2 * i + 1));
    return true;
}

bool Parser::create(const Object& object)
{
    // An object takes the lowest free slot.
    int slot = m_fresh;
    if (!m_freed.empty()) {
        slot = *m_freed.begin();
        m_freed.erase(m_freed.begin());
    } else if (m_fresh < int(m_slots.size())) {
        ++m_fresh;
    } else {
        return failHere(QStringLiteral("creates an object, but all %1 object slots that the header allows are taken")
                            .arg(m_slots.size()));
    }
    m_slots[slot] = int(m_picture.objects.size());
    m_picture.objects.push_back(object);
    return true;
}

bool Parser::objectNamed(int* object)
{
    const int slot = u(0);
    if (slot >= int(m_slots.size()))
        return failHere(QStringLiteral("names object %1, but the header allows only %2 objects").arg(slot).arg(m_slots.size()));
    if (m_slots[slot] < 0)
        return failHere(QStringLiteral("names object %1, which has not been created or has been deleted").arg(slot));
    *object = m_slots[slot];
    return true;
}

} // namespace

Metafile::Metafile(std::shared_ptr<const Picture> picture) : d(std::move(picture)) {}

std::optional<Metafile> Metafile::parse(const QByteArray& bytes, QString* error)
{
    auto picture = std::make_shared<Picture>();
    Parser parser(bytes, *picture);
    if (!parser.run()) {
        if (error)
            *error = parser.error;
        return std::nullopt;
    }
    if (error)
        error->clear();
    return Metafile(std::move(picture));
}

QRect Metafile::bounds() const { return d->bounds; }
int Metafile::unitsPerInch() const { return d->unitsPerInch; }
int Metafile::recordCount() const { return d->records; }
int Metafile::skippedRecordCount() const { return d->skipped; }
bool Metafile::checksumMatches() const { return d->checksumMatches; }

QSizeF Metafile::sizeInTwips() const
{
    const double twipsPerUnit = 1440.0 / d->unitsPerInch;
    return QSizeF(d->bounds.width() * twipsPerUnit, d->bounds.height() * twipsPerUnit);
}
