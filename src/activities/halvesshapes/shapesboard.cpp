#include "shapesboard.h"

#include "kit/parts/shapeboard.h"
#include "kit/parts/shapes.h"

#include <QCoreApplication>
#include <QPainter>

namespace {
constexpr double kSheetShapeHeight = 1100; // twips
constexpr double kSheetInset = 30;         // twips, so the outline is never clipped
}

ShapesBoard::ShapesBoard(QWidget* parent)
    : KitBoard(parent)
    , Shape1(new ShapeBoard(this))
{
    setObjectName(QStringLiteral("Board"));
    Shape1->setObjectName(QStringLiteral("Shape1"));
    connect(Shape1, &ShapeBoard::enterPressed, this, &KitBoard::answered);
}

void ShapesBoard::pose(Random::Source& rnd)
{
    m_question = HalvesShapes::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    Shape1->setShape(m_question.kind, m_question.parts);
}

QString ShapesBoard::instruction() const
{
    return m_question.instruction();
}

Verdict ShapesBoard::check()
{
    return HalvesShapes::check(m_question, Shape1->colouredCount());
}

QString ShapesBoard::hint()
{
    return HalvesShapes::hint(m_question, Shape1->colouredCount());
}

void ShapesBoard::setAnswering(bool on)
{
    Shape1->setInteractive(on);
}

void ShapesBoard::focusAnswer()
{
    Shape1->setFocus();
}

void ShapesBoard::giveRightAnswer()
{
    // The first parts coloured, as many as the question asks for.
    QVector<bool> coloured(Shape1->partCount(), false);
    for (int part = 0; part < m_question.partsToColour() && part < coloured.size(); ++part)
        coloured[part] = true;
    Shape1->setColoured(coloured);
}

Worksheets::Sheet ShapesBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<HalvesShapes::Question>(
        QCoreApplication::translate("Activities", "Halves and Quarters 2"),
        QCoreApplication::translate("ShapesBoard", "Colour the part of each shape that the question asks for."),
        [&rnd](const HalvesShapes::Question* last) { return HalvesShapes::draw(rnd, last); },
        [](const HalvesShapes::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = QCoreApplication::translate("ShapesBoard", "%1 of the %2 parts").arg(q.partsToColour()).arg(q.parts);
            row.pictureHeight = kSheetShapeHeight;
            row.picture = [q](QPainter& painter, const QRectF& box) {
                painter.setBrush(Qt::white);
                const QRectF inside = box.adjusted(kSheetInset, kSheetInset, -kSheetInset, -kSheetInset);
                for (const QPainterPath& part : shapeParts(q.kind, q.parts, inside))
                    painter.drawPath(part);
            };
            return row;
        });
}

void ShapesBoard::resizeEvent(QResizeEvent*)
{
    Shape1->setGeometry(rect());
}
