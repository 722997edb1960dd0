#include "shapekind.h"

#include <QCoreApplication>

QString shapeNoun(ShapeKind kind)
{
    switch (kind) {
    case ShapeKind::Circle:
        return QCoreApplication::translate("ShapeKind", "circle");
    case ShapeKind::Strip:
        return QCoreApplication::translate("ShapeKind", "strip");
    case ShapeKind::TwoRowRectangle:
        return QCoreApplication::translate("ShapeKind", "rectangle");
    default:
        return QCoreApplication::translate("ShapeKind", "square");
    }
}
