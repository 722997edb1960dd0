#include "boardlabels.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

NumberLabel::NumberLabel(QWidget* parent, const QString& name)
    : QLabel(parent)
{
    setObjectName(name);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void NumberLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void NumberLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit clicked();
        return;
    default:
        QLabel::keyPressEvent(event);
    }
}

ArrowLabel::ArrowLabel(QWidget* parent, const QString& name, Direction direction, const QColor& colour)
    : QLabel(parent)
    , m_direction(direction)
    , m_colour(colour)
{
    setObjectName(name);
    setAccessibleName(direction == Direction::Down ? tr("an arrow pointing down") : tr("an arrow pointing right"));
}

void ArrowLabel::paintEvent(QPaintEvent*)
{
    // A broad shaft and a wide head, drawn pointing right in a box of unit
    // height, then turned for a downward arrow.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool down = m_direction == Direction::Down;
    const double length = down ? height() : width();
    const double breadth = down ? width() : height();
    const double head = std::min(length * 0.45, breadth * 0.8);
    const double shaft = breadth * 0.3;
    const double mid = breadth / 2;
    QPainterPath arrow;
    arrow.moveTo(1, mid - shaft / 2);
    arrow.lineTo(length - head, mid - shaft / 2);
    arrow.lineTo(length - head, mid - breadth * 0.45);
    arrow.lineTo(length - 1, mid);
    arrow.lineTo(length - head, mid + breadth * 0.45);
    arrow.lineTo(length - head, mid + shaft / 2);
    arrow.lineTo(1, mid + shaft / 2);
    arrow.closeSubpath();
    if (down) {
        // (x, y) -> (breadth - y, x): the right-pointing arrow turned a quarter clockwise.
        painter.translate(breadth, 0);
        painter.rotate(90);
    }
    painter.setPen(QPen(m_colour.darker(160), 1.5));
    painter.setBrush(m_colour);
    painter.drawPath(arrow);
}
