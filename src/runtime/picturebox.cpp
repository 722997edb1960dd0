#include "picturebox.h"

#include "pictures.h"
#include "spoken.h"

#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(QWidget* parent, const QString& name)
    : QWidget(parent)
{
    setObjectName(name);
    Spoken::markAsPicture(this);
}

void PictureBox::load(const QString& assetPath)
{
    if (assetPath.isEmpty()) {
        clear();
        return;
    }
    if (assetPath == m_path)
        return;
    m_path = assetPath;
    m_picture = Pictures::get(assetPath);
    if (m_autoSize)
        resize(m_picture.deviceIndependentSize().toSize());
    // A picture that covers the box repaints only itself, never its parent.
    setAttribute(Qt::WA_OpaquePaintEvent,
                 m_picture.width() >= width() && m_picture.height() >= height() && !m_picture.hasAlpha());
    update();
}

void PictureBox::clear()
{
    m_path.clear();
    m_picture = QPixmap();
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    update();
}

void PictureBox::setBackColour(const QColor& colour)
{
    m_back = colour;
    update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_back.isValid())
        painter.fillRect(rect(), m_back);
    if (!m_picture.isNull())
        painter.drawPixmap(0, 0, m_picture);
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}
