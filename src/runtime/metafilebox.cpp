#include "metafilebox.h"

#include "pictures.h"
#include "spoken.h"

#include <QPainter>

MetafileBox::MetafileBox(QWidget* parent, const QString& name)
    : QWidget(parent)
{
    setObjectName(name);
    Spoken::markAsPicture(this);
}

void MetafileBox::load(const QString& assetPath)
{
    m_picture = Pictures::metafile(assetPath);
    m_path = assetPath;
    update();
}

void MetafileBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!m_picture)
        return;
    QSizeF size = m_picture->sizeInTwips();
    size.scale(QSizeF(width(), height()), Qt::KeepAspectRatio);
    const QRectF target(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    painter.setRenderHint(QPainter::Antialiasing);
    m_picture->play(painter, target);
}
