#include "shapesboard.h"

#include "kit/parts/shapeboard.h"

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

void ShapesBoard::resizeEvent(QResizeEvent*)
{
    Shape1->setGeometry(rect());
}
