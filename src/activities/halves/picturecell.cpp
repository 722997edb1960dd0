#include "picturecell.h"

#include "runtime/pictures.h"
#include "runtime/twips.h"

#include <QPainter>
#include <algorithm>

const QColor PictureCell::kTile{255, 251, 238};

namespace {
constexpr int kBevel = 4;
const QColor kChosenTile{255, 236, 150};
const QColor kLight{255, 255, 255};
const QColor kShadow{110, 80, 20};
const QColor kFocus{0, 58, 140};
// A group's frame, as a share of the cell's smaller side: an asked group's,
// and the others'.
constexpr double kGroupFrameShare = 0.09;
constexpr double kOtherGroupFrameShare = 0.035;
} // namespace

PictureCell::PictureCell(QWidget* parent, int index)
    : QAbstractButton(parent)
    , m_index(index)
{
    setObjectName(QStringLiteral("Image1(%1)").arg(index));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::toggled, this, &PictureCell::nameForReader);
    setAccessibleDescription(tr("Click to choose this picture; click again to leave it out"));
}

void PictureCell::setPicture(const QString& assetPath, const QString& name, int shown)
{
    m_name = name;
    m_shown = shown;
    if (assetPath != m_path) {
        m_path = assetPath;
        m_picture = assetPath.isEmpty() ? QPixmap() : Pictures::get(assetPath);
    }
    setToolTip(name);
    nameForReader();
    update();
}

void PictureCell::nameForReader()
{
    setAccessibleName(isChecked() ? tr("%1 %2 of %3, chosen").arg(m_name).arg(m_index + 1).arg(m_shown)
                                  : tr("%1 %2 of %3, not chosen").arg(m_name).arg(m_index + 1).arg(m_shown));
}

void PictureCell::setGroupColour(const QColor& colour, bool asked)
{
    m_group = colour;
    m_groupAsked = asked;
    update();
}

QSize PictureCell::sizeHint() const
{
    return Twips::scaledPixels(m_picture.deviceIndependentSize()) + Twips::scaledPixels(QSize(2 * kBevel, 2 * kBevel));
}

void PictureCell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect whole = rect();
    painter.fillRect(whole, isChecked() ? kChosenTile : kTile);

    if (!m_picture.isNull()) {
        const int bevel = Twips::scaledPixels(QSize(kBevel, kBevel)).width();
        const QRect inside = whole.adjusted(bevel, bevel, -bevel, -bevel);
        QSize size = Twips::scaledPixels(m_picture.deviceIndependentSize());
        if (size.width() > inside.width() || size.height() > inside.height())
            size.scale(inside.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(0, 0), size);
        target.moveCenter(inside.center());
        painter.drawPixmap(target, m_picture);
    }

    if (m_group.isValid()) {
        const double frame
            = std::min(whole.width(), whole.height()) * (m_groupAsked ? kGroupFrameShare : kOtherGroupFrameShare);
        painter.setPen(QPen(m_group, frame));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(whole).adjusted(frame / 2, frame / 2, -frame / 2, -frame / 2));
    }

    if (isChecked()) {
        // Raised: light along the top and left, shadow along the bottom and right.
        for (int i = 0; i < kBevel; ++i) {
            const QRect r = whole.adjusted(i, i, -i - 1, -i - 1);
            painter.setPen(kLight);
            painter.drawLine(r.topLeft(), r.topRight());
            painter.drawLine(r.topLeft(), r.bottomLeft());
            painter.setPen(kShadow);
            painter.drawLine(r.bottomLeft(), r.bottomRight());
            painter.drawLine(r.topRight(), r.bottomRight());
        }
    }

    if (hasFocus()) {
        // The keyboard's place, plain to see.
        painter.setPen(QPen(kFocus, 2, Qt::DashLine));
        painter.drawRect(whole.adjusted(kBevel + 1, kBevel + 1, -kBevel - 2, -kBevel - 2));
    }
}
