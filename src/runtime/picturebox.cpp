#include "picturebox.h"

#include "pictures.h"
#include "spoken.h"
#include "twips.h"

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
    Pictures::getInto(assetPath, &m_picture);
    if (m_autoSize)
        resize(drawnSize());
    // A picture that covers the box repaints only itself, never its parent.
    const QSize drawn = drawnSize();
    setAttribute(Qt::WA_OpaquePaintEvent, drawn.width() >= width() && drawn.height() >= height() && !m_picture.hasAlphaChannel());
    update();
}

void PictureBox::clear()
{
    m_path.clear();
    m_picture = QImage();
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
    if (!m_picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(QPoint(0, 0), drawnSize()), m_picture);
    }
}

QSize PictureBox::drawnSize() const
{
    return Twips::scaledPixels(m_picture.deviceIndependentSize());
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}
