// Writes a placeable Windows metafile (WMF) record by record: the 22-byte
// placeable header, the metafile header, the drawing records and META_EOF.
// Coordinates are logical units; with the window set to the bounding box
// (the constructor does that) one unit is 1/unitsPerInch of an inch.
//
// Graphics objects (pens, brushes, fonts) live in the metafile's object
// table: a new object takes the lowest free slot, and the header's object
// count is the size of table the file needs.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>

#include <cstdint>

namespace WmfOut {

// Record functions (the low byte numbers the function, the high byte is the
// parameter count Windows gave it).
enum Function : std::uint16_t {
    Eof = 0x0000,
    SetBkMode = 0x0102,
    SetMapMode = 0x0103,
    SetTextAlign = 0x012E,
    SelectObject = 0x012D,
    DeleteObject = 0x01F0,
    SetTextColor = 0x0209,
    SetWindowOrg = 0x020B,
    SetWindowExt = 0x020C,
    LineTo = 0x0213,
    MoveTo = 0x0214,
    CreatePenIndirect = 0x02FA,
    CreateFontIndirect = 0x02FB,
    CreateBrushIndirect = 0x02FC,
    Polygon = 0x0324,
    Polyline = 0x0325,
    Ellipse = 0x0418,
    Rectangle = 0x041B,
    TextOut = 0x0521,
    RoundRect = 0x061C,
    ExtTextOut = 0x0A32,
};

enum PenStyle : std::uint16_t { PenSolid = 0, PenDash = 1, PenDot = 2, PenNull = 5 };
enum BrushStyle : std::uint16_t { BrushSolid = 0, BrushNull = 1 };
enum BkMode : std::uint16_t { Transparent = 1, Opaque = 2 };
enum MapMode : std::uint16_t { Anisotropic = 8 };
// Text alignment flags; combine one horizontal with one vertical.
enum TextAlign : std::uint16_t {
    AlignLeft = 0, AlignRight = 2, AlignCenter = 6,
    AlignTop = 0, AlignBottom = 8, AlignBaseline = 24,
};

constexpr std::uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr int PlaceableBytes = 22;
constexpr int HeaderWords = 9;

// The logical font of CREATEFONTINDIRECT. A negative height is the size of
// the letters (the em) in logical units, as a point size would give.
struct Font
{
    QByteArray face = "Arial";
    int height = -240;
    int weight = 400;  // 400 normal, 700 bold
    bool italic = false;
    bool underline = false;
    // Variable pitch with the family: 0x12 roman (serif), 0x22 swiss (sans).
    std::uint8_t pitchAndFamily = 0x22;
};

} // namespace WmfOut

class WmfWriter
{
public:
    // A picture of width x height logical units, unitsPerInch to the inch.
    WmfWriter(int width, int height, int unitsPerInch = 1440);

    // Object table. Each create returns the slot the new object took.
    int createPen(WmfOut::PenStyle style, int width, const QColor &colour);
    int createBrush(WmfOut::BrushStyle style, const QColor &colour);
    int createFont(const WmfOut::Font &font);
    void selectObject(int slot);
    void deleteObject(int slot);
    bool isLive(int slot) const;

    // Device context state.
    void setMapMode(WmfOut::MapMode mode);
    void setWindowOrg(int x, int y);
    void setWindowExt(int width, int height);
    void setTextColor(const QColor &colour);
    void setBkMode(WmfOut::BkMode mode);
    void setTextAlign(int flags);

    // Drawing. Rectangles and ellipses are drawn from left/top to
    // right/bottom as given by the QRect's edges (x, y, x + w, y + h).
    void moveTo(int x, int y);
    void lineTo(int x, int y);
    void rectangle(const QRect &r);
    void roundRect(const QRect &r, int cornerWidth, int cornerHeight);
    void ellipse(const QRect &r);
    void polygon(const QVector<QPoint> &points);
    void polyline(const QVector<QPoint> &points);
    // Text in the 8-bit (Latin-1) characters of the selected font.
    void textOut(int x, int y, const QByteArray &text);
    void extTextOut(int x, int y, const QByteArray &text);

    // Deletes every object still in the table, ends the records with
    // META_EOF and returns the whole file. Nothing may be added afterwards.
    // Returns nothing when a record was wrong (see error()).
    QByteArray finish();
    // The first misuse: a slot that holds no object, a coordinate or count
    // that does not fit 16 bits, a record after finish().
    QString error() const { return m_error; }

    // What the headers will say (valid at any time; final after finish()).
    int objectTableSize() const { return m_tableSize; }
    int largestRecordWords() const { return m_largestRecord; }
    int metafileWords() const { return WmfOut::HeaderWords + m_records.size() / 2; }

    static QByteArray placeableHeader(const QRect &box, int unitsPerInch);
    // XOR of the first ten 16-bit words of a placeable header.
    static std::uint16_t placeableChecksum(const QByteArray &header);

private:
    int takeSlot();
    // params: the record's parameters, little-endian, an even number of bytes.
    void record(WmfOut::Function function, const QByteArray &params);
    void points(WmfOut::Function function, const QVector<QPoint> &points);
    void text(WmfOut::Function function, int x, int y, const QByteArray &text);

    QRect m_box;
    int m_unitsPerInch;
    QByteArray m_records;
    QVector<bool> m_live;
    int m_tableSize = 0;
    int m_largestRecord = 3;  // META_EOF
    bool m_finished = false;
    QString m_error;
};
