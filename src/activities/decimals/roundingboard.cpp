#include "roundingboard.h"

#include "kit/parts/numberline.h"

#include <QCoreApplication>
#include <QLineEdit>

RoundingBoard::RoundingBoard(QWidget* parent)
    : DecimalBoard(Rounding::kAnswerLength, parent)
{
}

void RoundingBoard::pose(Random::Source& rnd)
{
    m_question = Rounding::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    clearAnswer();
    Line1->setEnds(m_question.below(), m_question.above());
    Line1->markToRound(m_question.written());
}

QString RoundingBoard::instruction() const
{
    return m_question.instruction();
}

Verdict RoundingBoard::check()
{
    return Rounding::check(m_question, Text1->text());
}

QString RoundingBoard::hint()
{
    return Rounding::hint(m_question);
}

void RoundingBoard::giveRightAnswer()
{
    Text1->setText(m_question.answerText());
}

Worksheets::Sheet RoundingBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Rounding::Question>(
        QCoreApplication::translate("Activities", "Rounding"),
        QCoreApplication::translate(
            "RoundingBoard", "Round each number as it asks. The number line shows the two numbers it lies between."),
        [&rnd](const Rounding::Question* last) { return Rounding::draw(rnd, last); },
        [](const Rounding::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = q.answerText();
            row.pictureHeight = sheetLineHeight();
            row.picture = [from = q.below(), to = q.above(), number = q.written()](
                              QPainter& painter, const QRectF& box) { paintSheetLine(painter, box, from, to, number); };
            return row;
        });
}
