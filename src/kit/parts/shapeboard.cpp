#include "shapeboard.h"

#include "drawingstyle.h"
#include "partstyle.h"
#include "shapeboardaccessible.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace {

// How large the board asks to be, and how small it may go.
constexpr double kHintLongSide = 360.0;
constexpr int kSmallestSide = 120;
constexpr int kFirstShapeParts = 2;

// The cursor's dashes, in widths of its own pen: long dashes, short gaps.
constexpr double kDashLength = 1.0;
constexpr double kDashSpace = 0.7;
// On a narrow part the cursor's band keeps to a share of the part's width,
// so the part's colour still shows through.
constexpr double kCursorPartShare = 0.15;
// A part's number fills at most this share of the part's bounding box.
constexpr double kNumberShare = 0.5;
constexpr double kLargestNumber = 48.0; // pixels
// In a circle's sector the number stands this share of the radius out from
// the centre, in a square this share of the sector's width there.
constexpr double kSectorNumberReach = 0.62;
constexpr double kSectorNumberWidth = 1.1;
constexpr double kFullTurn = 360.0;

} // namespace

ShapeBoard::ShapeBoard(QWidget* parent)
    : QWidget(parent)
{
    ShapeBoardAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setShape(ShapeKind::Circle, kFirstShapeParts);
}

void ShapeBoard::setShape(ShapeKind kind, int parts)
{
    if (!shapeAllows(kind, parts))
        return;
    m_kind = kind;
    m_coloured = QVector<bool>(parts, false);
    m_cursor = 0;
    recut();
    updateGeometry();
    update();
    QAccessibleEvent reordered(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&reordered);
    setAccessibleName(description());
}

void ShapeBoard::setColoured(const QVector<bool>& coloured)
{
    for (int i = 0; i < partCount(); ++i) {
        const bool on = i < coloured.size() && coloured.at(i);
        if (m_coloured.at(i) != on) {
            m_coloured[i] = on;
            announcePart(i);
        }
    }
    update();
}

int ShapeBoard::colouredCount() const
{
    return int(std::count(m_coloured.cbegin(), m_coloured.cend(), true));
}

bool ShapeBoard::isColoured(int index) const
{
    return index >= 0 && index < partCount() && m_coloured.at(index);
}

void ShapeBoard::setShadedWords(bool on)
{
    m_shadedWords = on;
    setAccessibleName(description());
}

void ShapeBoard::setNumbered(bool on)
{
    m_numbered = on;
    update();
}

void ShapeBoard::setInteractive(bool on)
{
    m_interactive = on;
    setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (!on && hasFocus())
        clearFocus();
    update();
}

void ShapeBoard::togglePart(int index)
{
    if (!m_interactive || index < 0 || index >= partCount())
        return;
    m_coloured[index] = !m_coloured.at(index);
    update();
    announcePart(index);
    emit changed();
}

QPainterPath ShapeBoard::partPath(int index) const
{
    return index >= 0 && index < m_paths.size() ? m_paths.at(index) : QPainterPath();
}

int ShapeBoard::partAt(const QPointF& point) const
{
    for (int i = 0; i < m_paths.size(); ++i)
        if (m_paths.at(i).contains(point))
            return i;
    return -1;
}

QString ShapeBoard::description() const
{
    // The count also chooses a translation's plural form ("1 coloriée").
    if (m_shadedWords)
        return tr("a %1 cut into %2 equal parts, %n shaded", nullptr, colouredCount())
            .arg(shapeNoun(m_kind))
            .arg(partCount());
    return tr("a %1 cut into %2 equal parts, %n coloured", nullptr, colouredCount())
        .arg(shapeNoun(m_kind))
        .arg(partCount());
}

QString ShapeBoard::partName(int index) const
{
    return tr("part %1 of %2, %3")
        .arg(index + 1)
        .arg(partCount())
        .arg(m_shadedWords ? (isColoured(index) ? tr("shaded") : tr("not shaded"))
                           : (isColoured(index) ? tr("coloured") : tr("not coloured")));
}

QSize ShapeBoard::sizeHint() const
{
    // The shape's own proportions, its longer side large.
    const QRectF roomy(0, 0, kHintLongSide, kHintLongSide);
    const QSizeF shape = shapeOutline(m_kind, partCount(), roomy).boundingRect().size();
    return shape.toSize().expandedTo(QSize(kSmallestSide, kSmallestSide));
}

QSize ShapeBoard::minimumSizeHint() const
{
    return {kSmallestSide, kSmallestSide};
}

QRectF ShapeBoard::shapeBox() const
{
    // Room for the outer half of the outline and its antialiased edge.
    const double margin = lineWeight(PartStyle::kOutlineShare, PartStyle::kThinnestOutline) / 2 + 1;
    return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

double ShapeBoard::lineWeight(double share, double thinnest) const
{
    return std::max(thinnest, share * std::min(width(), height()));
}

void ShapeBoard::recut()
{
    m_paths = shapeParts(m_kind, partCount(), shapeBox());
}

void ShapeBoard::moveCursor(int step)
{
    if (partCount() == 0)
        return;
    m_cursor = (m_cursor + step + partCount()) % partCount();
    update();
    announceCursor();
}

void ShapeBoard::announcePart(int index)
{
    QAccessible::State checked;
    checked.checked = true;
    QAccessibleStateChangeEvent flipped(this, checked);
    flipped.setChild(index);
    QAccessible::updateAccessibility(&flipped);
    QAccessibleValueChangeEvent counted(this, colouredCount());
    QAccessible::updateAccessibility(&counted);
    setAccessibleName(description());
}

void ShapeBoard::announceCursor()
{
    if (!hasFocus())
        return;
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(m_cursor);
    QAccessible::updateAccessibility(&focused);
}

void ShapeBoard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    for (int i = 0; i < m_paths.size(); ++i)
        painter.fillPath(m_paths.at(i), m_coloured.at(i) ? PartStyle::kColoured : PartStyle::kBlank);

    QPen cut(PartStyle::kOutline, lineWeight(PartStyle::kCutShare, PartStyle::kThinnestCut));
    cut.setJoinStyle(Qt::RoundJoin);
    for (const QPainterPath& part : std::as_const(m_paths))
        painter.strokePath(part, cut);

    QPen outline(PartStyle::kOutline, lineWeight(PartStyle::kOutlineShare, PartStyle::kThinnestOutline));
    outline.setJoinStyle(Qt::MiterJoin);
    painter.strokePath(shapeOutline(m_kind, partCount(), shapeBox()), outline);

    if (m_numbered)
        drawNumbers(painter);
    if (m_interactive && hasFocus())
        drawCursor(painter);
}

void ShapeBoard::drawNumbers(QPainter& painter) const
{
    painter.setPen(PartStyle::kOutline);
    const QRectF whole = shapeOutline(m_kind, partCount(), shapeBox()).boundingRect();
    const double radius = whole.width() / 2;
    for (int i = 0; i < m_paths.size(); ++i) {
        const QRectF bounds = m_paths.at(i).boundingRect();
        QRectF box(0, 0, bounds.width() * kNumberShare, bounds.height() * kNumberShare);
        QPointF middle = bounds.center();
        if (m_kind == ShapeKind::Circle) {
            // Out along the line through the sector's middle, in a square that
            // narrows as the sectors do.
            const double sweep = qDegreesToRadians(kFullTurn / partCount());
            const double angle = (i + 0.5) * sweep; // clockwise from twelve o'clock
            middle = whole.center() + QPointF(std::sin(angle), -std::cos(angle)) * radius * kSectorNumberReach;
            const double side = radius * std::min(kNumberShare, kSectorNumberWidth * std::sin(sweep / 2));
            box = QRectF(0, 0, side, side);
        }
        box.moveCenter(middle);
        const QString number = QString::number(i + 1);
        painter.setFont(DrawingStyle::digitFont(DrawingStyle::fittingSize({number}, box.size(), kLargestNumber)));
        painter.drawText(box, Qt::AlignCenter, number);
    }
}

void ShapeBoard::drawCursor(QPainter& painter) const
{
    const QPainterPath part = partPath(m_cursor);
    if (part.isEmpty())
        return;
    // Stroked twice as wide and clipped to the part, so the whole band lies
    // inside the part the cursor is on.
    painter.save();
    painter.setClipPath(part);
    const QSizeF size = part.boundingRect().size();
    const double narrow = kCursorPartShare * std::min(size.width(), size.height());
    const double weight = lineWeight(PartStyle::kCursorShare, PartStyle::kThinnestCursor);
    const double band = 2 * std::max(PartStyle::kThinnestCursor, std::min(weight, narrow));
    QPen gaps(PartStyle::kCursorGap, band);
    painter.strokePath(part, gaps);
    QPen dashes(PartStyle::kCursor, band);
    dashes.setCapStyle(Qt::FlatCap);
    dashes.setDashPattern({kDashLength, kDashSpace});
    painter.strokePath(part, dashes);
    painter.restore();
}

void ShapeBoard::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    recut();
}

void ShapeBoard::mousePressEvent(QMouseEvent* event)
{
    const int part = partAt(event->position());
    if (!m_interactive || event->button() != Qt::LeftButton || part < 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_cursor = part;
    togglePart(part);
    announceCursor();
}

void ShapeBoard::keyPressEvent(QKeyEvent* event)
{
    if (!m_interactive) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        moveCursor(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        moveCursor(1);
        break;
    case Qt::Key_Space:
        togglePart(m_cursor);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit enterPressed();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ShapeBoard::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
    announceCursor();
}

void ShapeBoard::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}
