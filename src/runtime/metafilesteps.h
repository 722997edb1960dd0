#pragma once
// A metafile decoded into plain drawing steps: what the parser produces and
// the player draws. Coordinates are the file's logical units; every object
// (pen, brush, font) is numbered in order of creation, so selecting one needs
// no object table at play time.
#include <QColor>
#include <QPoint>
#include <QPolygon>
#include <QRect>
#include <QString>
#include <QVector>
#include <vector>

namespace Wmf {

// Record function numbers, as the format defines them.
enum Function : quint16 {
    EndOfFile = 0x0000,
    SaveDC = 0x001E,
    CreatePalette = 0x00F7,
    SetBkMode = 0x0102,
    SetMapMode = 0x0103,
    SetPolyFillMode = 0x0106,
    RestoreDC = 0x0127,
    SelectObject = 0x012D,
    SetTextAlign = 0x012E,
    DibCreatePatternBrush = 0x0142,
    DeleteObject = 0x01F0,
    CreatePatternBrush = 0x01F9,
    SetBkColor = 0x0201,
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
    IntersectClipRect = 0x0416,
    Ellipse = 0x0418,
    Rectangle = 0x041B,
    SetPixel = 0x041F,
    TextOut = 0x0521,
    PolyPolygon = 0x0538,
    RoundRect = 0x061C,
    CreateRegion = 0x06FF,
    Arc = 0x0817,
    Pie = 0x081A,
    Chord = 0x0830,
    ExtTextOut = 0x0A32,
};

// Flags of ExtTextOut.
enum TextOptions : int { Opaque = 0x0002, Clipped = 0x0004, PairedDx = 0x2000 };

// SetTextAlign: horizontal and vertical parts, and update-current-position.
enum TextAlign : int {
    UpdateCurrentPosition = 0x0001,
    HorizontalMask = 0x0006, AlignRight = 0x0002, AlignCentre = 0x0006,
    VerticalMask = 0x0018, AlignBottom = 0x0008, AlignBaseline = 0x0018,
};

enum PenStyle : int { PenSolid = 0, PenDash, PenDot, PenDashDot, PenDashDotDot, PenNull, PenInsideFrame };
enum BrushStyle : int { BrushSolid = 0, BrushNull = 1, BrushHatched = 2 };
enum MapMode : int { MapIsotropic = 7 };
enum BkMode : int { BkTransparent = 1, BkOpaque = 2 };
enum PolyFillMode : int { FillAlternate = 1, FillWinding = 2 };

struct Pen {
    int style = PenSolid; // style in the low four bits, end cap and join above
    int width = 0;        // logical units; 0 is one device pixel
    QColor colour = Qt::black;
};

struct Brush {
    int style = BrushSolid;
    QColor colour = Qt::white;
    int hatch = 0;
};

struct Font {
    int height = 0; // > 0 cell height, < 0 character height, 0 a default size
    int escapement = 0; // tenths of a degree, anticlockwise
    int weight = 0;     // 0 is normal, 400 normal, 700 bold
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    QString face;
};

struct Object {
    enum Kind { PenObject, BrushObject, FontObject, Unsupported } kind = Unsupported;
    Pen pen;
    Brush brush;
    Font font;
};

// Left, top, right and bottom as the file gives them.
struct Box {
    int left = 0, top = 0, right = 0, bottom = 0;
};

enum class Op : quint8 {
    SetWindowOrg, SetWindowExt, SetMapMode, SaveDC, RestoreDC, Select,
    SetTextColor, SetBkColor, SetBkMode, SetTextAlign, SetPolyFillMode,
    IntersectClip, MoveTo, LineTo, Rectangle, RoundRect, Ellipse, Arc, Pie,
    Chord, Polygon, Polyline, PolyPolygon, SetPixel, Text,
};

struct Step {
    Op op = Op::MoveTo;
    int value = 0;    // a mode, alignment, object number or saved-state number
    QColor colour;
    QPoint point;     // a position, window origin or extent, corner size
    Box box;          // a shape's rectangle, a text's clip or opaque rectangle
    QPoint arcStart, arcEnd;
    QPolygon points;
    QVector<int> counts; // points in each polygon of a poly-polygon
    QString text;
    QVector<int> dx;  // distances between character origins, if given
    int options = 0;  // ExtTextOut flags; text out uses none
    bool hasBox = false;
};

struct Picture {
    QRect bounds;
    int unitsPerInch = 1440;
    int records = 0;
    int skipped = 0;
    bool checksumMatches = true;
    std::vector<Object> objects;
    std::vector<Step> steps;
};

} // namespace Wmf
