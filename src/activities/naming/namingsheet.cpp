#include "namingsheet.h"

#include "fractions/halvesquestion.h"
#include "kit/parts/partstyle.h"
#include "kit/parts/shapes.h"
#include "runtime/pictures.h"

#include <QPainter>
#include <algorithm>

namespace NamingSheet {

namespace {
// Twips on the sheet.
constexpr double kShapeHeight = 1100;
constexpr double kSquareSide = 1200;
constexpr double kPicture = 900;
constexpr double kInset = 30; // so an outline is never clipped
constexpr double kRingWidth = 30;
constexpr double kPictureFill = 0.75; // of its place: room for the ring
constexpr double kRingFill = 0.95;
constexpr int kSide = 10; // a hundred square's columns and rows

void paintShape(QPainter& painter, const QRectF& box, const NameFraction::Question& q)
{
    const QVector<QPainterPath> parts = shapeParts(q.kind, q.parts, box);
    for (int i = 0; i < parts.size(); ++i) {
        painter.setBrush(i < q.shaded ? PartStyle::kColoured : PartStyle::kBlank);
        painter.drawPath(parts.at(i));
    }
}

void paintHundredSquare(QPainter& painter, const QRectF& box, int shaded)
{
    const double side = std::min(box.width(), box.height());
    const double step = side / kSide;
    const QPointF corner(box.left() + (box.width() - side) / 2, box.top());
    // Column by column from the left, each from the top, as on the screen.
    for (int column = 0; column < kSide; ++column)
        for (int row = 0; row < kSide; ++row) {
            painter.setBrush(column * kSide + row < shaded ? PartStyle::kColoured : PartStyle::kBlank);
            painter.drawRect(QRectF(corner + QPointF(column * step, row * step), QSizeF(step, step)));
        }
}

void paintPictures(QPainter& painter, const QRectF& box, const NameFraction::Question& q)
{
    const QPixmap picture = Pictures::get(QString::fromLatin1(Halves::kPictureSets[q.set - 1].file));
    // One row, as large as the box allows, centred.
    const double size = std::min(box.height(), box.width() / q.parts);
    const double left = box.center().x() - size * q.parts / 2;
    for (int n = 0; n < q.parts; ++n) {
        const QRectF place(left + n * size, box.top(), size, size);
        QRectF inside(0, 0, size * kPictureFill, size * kPictureFill);
        inside.moveCenter(place.center());
        painter.drawPixmap(inside, picture, QRectF(picture.rect()));
        if (n < q.shaded) {
            painter.save();
            painter.setPen(QPen(PartStyle::kOutline, kRingWidth));
            painter.setBrush(Qt::NoBrush);
            const double inset = size * (1 - kRingFill) / 2;
            painter.drawEllipse(place.adjusted(inset, inset, -inset, -inset));
            painter.restore();
        }
    }
}
} // namespace

double pictureHeight(const NameFraction::Question& q)
{
    switch (q.picture) {
    case NameFraction::Picture::HundredSquare:
        return kSquareSide;
    case NameFraction::Picture::Pictures:
        return kPicture;
    case NameFraction::Picture::Shape:
        break;
    }
    return kShapeHeight;
}

void paintPicture(QPainter& painter, const QRectF& box, const NameFraction::Question& q)
{
    const QRectF inside = box.adjusted(kInset, kInset, -kInset, -kInset);
    switch (q.picture) {
    case NameFraction::Picture::Shape:
        paintShape(painter, inside, q);
        break;
    case NameFraction::Picture::HundredSquare:
        paintHundredSquare(painter, inside, q.shaded);
        break;
    case NameFraction::Picture::Pictures:
        paintPictures(painter, inside, q);
        break;
    }
}

} // namespace NamingSheet
