#pragma once
// The picture of a "name the fraction" question on a printed worksheet:
// the shape with its shaded parts, the hundred square, or the pictures with
// their rings, drawn with the painter in twips.
#include "fractions/namefraction.h"

class QPainter;
class QRectF;

namespace NamingSheet {

// The twips the question's picture needs on the sheet.
double pictureHeight(const NameFraction::Question& q);
void paintPicture(QPainter& painter, const QRectF& box, const NameFraction::Question& q);

} // namespace NamingSheet
