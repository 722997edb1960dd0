// Playing a decoded metafile onto a QPainter, as a Windows device context
// would: a pen, a brush and a font selected at a time, text colour,
// background colour and mode, text alignment and a current position, all
// saved and restored by SaveDC and RestoreDC.
//
// Logical coordinates map from the window (origin and extent; by default the
// placeable bounding box) onto the target rectangle. Every map mode is played
// as anisotropic except the isotropic one, which keeps one scale for both
// axes: a placeable file is always fitted to the place it is drawn in.
#include "metafile.h"

#include "metafilesteps.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <cmath>

using namespace Wmf;

namespace {

// Text is laid out in a font of this many pixels and scaled to the size the
// file asks for, so fractional sizes come out right on every device.
constexpr int kLayoutPixels = 256;

// Saved states kept at most; a file that nests deeper saves no more, so a
// run of SaveDC records cannot pile up painter states without end.
constexpr std::size_t kMaxSavedStates = 64;

QRectF rectOf(const Box& b)
{
    return QRectF(QPointF(b.left, b.top), QPointF(b.right, b.bottom)).normalized();
}

// Thin pens' dashes are measured in pixels of a 96-dot-per-inch screen, so
// they keep their length on a printer; perInchScale is the device's
// resolution over 96.
QPen makePen(const Pen& d, qreal devicePixelsPerUnit, qreal perInchScale)
{
    const int style = d.style & 0x0F;
    if (style == PenNull)
        return QPen(Qt::NoPen);
    QPen pen(d.colour);
    // A pen never draws thinner than one device pixel.
    const bool thin = d.width * devicePixelsPerUnit <= 1.0;
    pen.setWidthF(thin ? 0.0 : d.width);
    pen.setCosmetic(thin);
    pen.setCapStyle((d.style & 0x0F00) == 0x0100 ? Qt::SquareCap : (d.style & 0x0F00) == 0x0200 ? Qt::FlatCap : Qt::RoundCap);
    pen.setJoinStyle((d.style & 0xF000) == 0x1000 ? Qt::BevelJoin : (d.style & 0xF000) == 0x2000 ? Qt::MiterJoin : Qt::RoundJoin);
    // Thin pens get Windows' own dash lengths; wide ones scale with their width.
    struct Dashes {
        Qt::PenStyle wide;
        QVector<qreal> thin;
    };
    static const Dashes dashes[] = {{Qt::DashLine, {18, 6}}, {Qt::DotLine, {3, 3}},
                                    {Qt::DashDotLine, {9, 6, 3, 6}}, {Qt::DashDotDotLine, {9, 3, 3, 3, 3, 3}}};
    if (style >= PenDash && style <= PenDashDotDot) {
        const Dashes& dash = dashes[style - PenDash];
        if (!thin) {
            pen.setStyle(dash.wide);
        } else {
            QVector<qreal> pattern = dash.thin;
            for (qreal& length : pattern)
                length *= perInchScale;
            pen.setDashPattern(pattern);
        }
    }
    return pen;
}

QBrush makeBrush(const Brush& d)
{
    static const Qt::BrushStyle hatches[] = {Qt::HorPattern, Qt::VerPattern, Qt::FDiagPattern,
                                             Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    if (d.style == BrushNull)
        return Qt::NoBrush;
    if (d.style == BrushHatched) // hatch lines are 8 device pixels apart, as on Windows
        return QBrush(d.colour, d.hatch >= 0 && d.hatch < 6 ? hatches[d.hatch] : Qt::SolidPattern);
    return QBrush(d.colour); // bitmap patterns are drawn in their brush's colour
}

QFont makeFont(const Font& d)
{
    QFont font(d.face.isEmpty() ? QStringLiteral("Arial") : d.face);
    font.setPixelSize(kLayoutPixels);
    font.setWeight(QFont::Weight(qBound(1, d.weight > 0 ? d.weight : 400, 1000)));
    font.setItalic(d.italic);
    font.setUnderline(d.underline);
    font.setStrikeOut(d.strikeOut);
    return font;
}

// The angle of a point on the ellipse's radius through p, as QPainterPath
// measures arcs: degrees anticlockwise from three o'clock.
qreal arcAngle(const QRectF& r, const QPoint& p)
{
    const qreal dx = (p.x() - r.center().x()) / qMax<qreal>(r.width(), 1e-9);
    const qreal dy = (p.y() - r.center().y()) / qMax<qreal>(r.height(), 1e-9);
    return qRadiansToDegrees(std::atan2(-dy, dx));
}

struct State {
    int pen = -1, brush = -1, font = -1; // object numbers; -1 is the default object
    QColor textColour = Qt::black;
    QColor bkColour = Qt::white;
    int bkMode = BkOpaque;
    int textAlign = 0;
    int polyFillMode = FillAlternate;
    int mapMode = 1;
    QPointF windowOrg, windowExt;
    QPointF position;
};

class Player {
public:
    Player(const Picture& picture, QPainter& painter, const QRectF& target)
        : m_picture(picture), p(painter), m_target(target), m_base(painter.worldTransform()),
          m_perInch(qMax(1.0, painter.device()->logicalDpiY() / 96.0))
    {
        m_state.windowOrg = picture.bounds.topLeft();
        m_state.windowExt = QPointF(picture.bounds.width(), picture.bounds.height());
    }

    void play()
    {
        for (const Step& step : m_picture.steps)
            run(step);
        for (std::size_t i = 0; i < m_saved.size(); ++i)
            p.restore();
    }

private:
    const Pen& pen() const { return m_state.pen < 0 ? m_defaultPen : m_picture.objects[m_state.pen].pen; }
    const Brush& brush() const { return m_state.brush < 0 ? m_defaultBrush : m_picture.objects[m_state.brush].brush; }
    const Font& font() const { return m_state.font < 0 ? m_defaultFont : m_picture.objects[m_state.font].font; }

    QTransform logical() const
    {
        qreal sx = m_target.width() / m_state.windowExt.x();
        qreal sy = m_target.height() / m_state.windowExt.y();
        if (m_state.mapMode == MapIsotropic) {
            const qreal s = qMin(qAbs(sx), qAbs(sy));
            sx = std::copysign(s, sx);
            sy = std::copysign(s, sy);
        }
        QTransform t;
        t.translate(m_target.left(), m_target.top());
        t.scale(sx, sy);
        t.translate(-m_state.windowOrg.x(), -m_state.windowOrg.y());
        return t;
    }

    // Sets the painter up to draw in logical units with the selected pen and brush.
    void shapes()
    {
        const QTransform t = logical() * m_base;
        p.setWorldTransform(t);
        p.setPen(makePen(pen(), QLineF(t.map(QPointF(0, 0)), t.map(QPointF(1, 0))).length(), m_perInch));
        p.setBrush(makeBrush(brush()));
        p.setBackground(m_state.bkColour);
        p.setBackgroundMode(m_state.bkMode == BkOpaque ? Qt::OpaqueMode : Qt::TransparentMode);
    }

    void select(int object)
    {
        switch (m_picture.objects[object].kind) {
        case Object::PenObject: m_state.pen = object; break;
        case Object::BrushObject: m_state.brush = object; break;
        case Object::FontObject: m_state.font = object; break;
        case Object::Unsupported: break;
        }
    }

    void restore(int saved)
    {
        // A positive number names a saved state (the first SaveDC is 1); a
        // negative one counts back from the latest.
        const int depth = int(m_saved.size());
        const int pops = saved < 0 ? -saved : depth - saved + 1;
        if (saved == 0 || pops < 1 || pops > depth)
            return;
        for (int i = 0; i < pops; ++i) {
            m_state = m_saved.back();
            m_saved.pop_back();
            p.restore();
        }
    }

    void arc(const Step& s)
    {
        const QRectF r = rectOf(s.box);
        const qreal start = arcAngle(r, s.arcStart);
        qreal sweep = arcAngle(r, s.arcEnd) - start;
        while (sweep <= 0)
            sweep += 360; // anticlockwise from start to end; the same point is a whole turn
        QPainterPath path;
        if (s.op == Op::Pie)
            path.moveTo(r.center());
        else
            path.arcMoveTo(r, start);
        path.arcTo(r, start, sweep);
        if (s.op == Op::Arc) {
            p.strokePath(path, p.pen());
        } else {
            path.closeSubpath();
            p.drawPath(path);
        }
    }

    void polyPolygon(const Step& s)
    {
        QPainterPath path;
        path.setFillRule(m_state.polyFillMode == FillWinding ? Qt::WindingFill : Qt::OddEvenFill);
        int first = 0;
        for (int n : s.counts) {
            path.addPolygon(QPolygonF(s.points.mid(first, n)));
            path.closeSubpath();
            first += n;
        }
        p.drawPath(path);
    }

    void text(const Step& s);
    void run(const Step& s);

    const Picture& m_picture;
    QPainter& p;
    const QRectF m_target;
    const QTransform m_base;
    const qreal m_perInch;
    State m_state;
    std::vector<State> m_saved;
    const Pen m_defaultPen;
    const Brush m_defaultBrush;
    const Font m_defaultFont;
};

void Player::run(const Step& s)
{
    switch (s.op) {
    case Op::SetWindowOrg: m_state.windowOrg = s.point; break;
    case Op::SetWindowExt:
        if (s.point.x() != 0 && s.point.y() != 0) // an empty window maps nowhere
            m_state.windowExt = s.point;
        break;
    case Op::SetMapMode: m_state.mapMode = s.value; break;
    case Op::SaveDC:
        if (m_saved.size() < kMaxSavedStates) {
            m_saved.push_back(m_state);
            p.save();
        }
        break;
    case Op::RestoreDC: restore(s.value); break;
    case Op::Select: select(s.value); break;
    case Op::SetTextColor: m_state.textColour = s.colour; break;
    case Op::SetBkColor: m_state.bkColour = s.colour; break;
    case Op::SetBkMode: m_state.bkMode = s.value; break;
    case Op::SetTextAlign: m_state.textAlign = s.value; break;
    case Op::SetPolyFillMode: m_state.polyFillMode = s.value; break;
    case Op::IntersectClip:
        p.setWorldTransform(logical() * m_base);
        p.setClipRect(rectOf(s.box), Qt::IntersectClip);
        break;
    case Op::MoveTo: m_state.position = s.point; break;
    case Op::LineTo:
        shapes();
        p.drawLine(m_state.position, QPointF(s.point));
        m_state.position = s.point;
        break;
    case Op::Rectangle: shapes(); p.drawRect(rectOf(s.box)); break;
    case Op::RoundRect:
        shapes();
        p.drawRoundedRect(rectOf(s.box), qAbs(s.point.x()) / 2.0, qAbs(s.point.y()) / 2.0);
        break;
    case Op::Ellipse: shapes(); p.drawEllipse(rectOf(s.box)); break;
    case Op::Arc:
    case Op::Pie:
    case Op::Chord: shapes(); arc(s); break;
    case Op::Polygon:
        shapes();
        p.drawPolygon(s.points, m_state.polyFillMode == FillWinding ? Qt::WindingFill : Qt::OddEvenFill);
        break;
    case Op::Polyline: shapes(); p.drawPolyline(s.points); break;
    case Op::PolyPolygon: shapes(); polyPolygon(s); break;
    case Op::SetPixel:
        p.setWorldTransform(m_base);
        p.fillRect(QRectF(logical().map(QPointF(s.point)), QSizeF(1, 1)), s.colour);
        break;
    case Op::Text: text(s); break;
    }
}

void Player::text(const Step& s)
{
    const Font& fd = font();
    const QFont f = makeFont(fd);
    const QFontMetricsF fm(f, p.device());
    const QTransform toTarget = logical();
    const qreal sx = toTarget.m11(), sy = qAbs(toTarget.m22());

    // A negative height is the characters' own height, a positive one the
    // whole cell's, leading included.
    qreal em = fd.height < 0 ? -fd.height
        : fd.height > 0      ? fd.height * kLayoutPixels / qMax<qreal>(fm.ascent() + fm.descent(), 1)
                             : m_picture.unitsPerInch / 6.0; // 12 points
    const qreal k = em * sy / kLayoutPixels; // target units per layout pixel
    if (!(k > 0))
        return;

    p.setWorldTransform(toTarget * m_base);
    if (s.hasBox && (s.options & Opaque))
        p.fillRect(rectOf(s.box), m_state.bkColour);
    if (s.hasBox && (s.options & Clipped)) {
        p.save();
        p.setClipRect(rectOf(s.box), Qt::IntersectClip);
    }

    QVector<qreal> advances;
    qreal width = 0;
    if (!s.dx.isEmpty()) {
        for (int dx : s.dx) {
            advances << qAbs(sx) * dx / k;
            width += advances.last();
        }
    } else {
        width = fm.horizontalAdvance(s.text);
    }
    const int horizontal = m_state.textAlign & HorizontalMask;
    const int vertical = m_state.textAlign & VerticalMask;
    const qreal x = horizontal == AlignCentre ? -width / 2 : horizontal == AlignRight ? -width : 0;
    const qreal y = vertical == AlignBaseline ? 0 : vertical == AlignBottom ? -fm.descent() : fm.ascent();

    const bool fromPosition = m_state.textAlign & UpdateCurrentPosition;
    const QPointF at = toTarget.map(fromPosition ? m_state.position : QPointF(s.point));
    QTransform t;
    t.translate(at.x(), at.y());
    t.rotate(-fd.escapement / 10.0);
    t.scale(k, k);
    p.setWorldTransform(t * m_base);
    if (m_state.bkMode == BkOpaque && !s.text.isEmpty())
        p.fillRect(QRectF(x, y - fm.ascent(), width, fm.ascent() + fm.descent()), m_state.bkColour);
    p.setFont(f);
    p.setPen(m_state.textColour);
    p.setBackgroundMode(Qt::TransparentMode);
    if (advances.isEmpty()) {
        p.drawText(QPointF(x, y), s.text);
    } else {
        qreal cx = x;
        for (int i = 0; i < s.text.size(); ++i) {
            p.drawText(QPointF(cx, y), QString(s.text[i]));
            cx += advances[i];
        }
    }
    if (s.hasBox && (s.options & Clipped))
        p.restore();

    if (fromPosition && horizontal != AlignCentre)
        m_state.position.rx() += (horizontal == AlignRight ? -width : width) * k / sx;
}

} // namespace

void Metafile::play(QPainter& painter, const QRectF& target) const
{
    if (target.isEmpty() || !painter.isActive())
        return;
    painter.save();
    painter.setClipRect(target, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    Player(*d, painter, target).play();
    painter.restore();
}
