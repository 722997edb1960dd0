#include "betweenboard.h"

#include "kit/parts/numberline.h"

#include <QCoreApplication>
#include <QLineEdit>

BetweenBoard::BetweenBoard(QWidget* parent)
    : DecimalBoard(DecimalsBetween::kAnswerLength, parent)
{
}

void BetweenBoard::pose(Random::Source& rnd)
{
    m_question = DecimalsBetween::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    clearAnswer();
    Line1->setEnds(m_question.from(), m_question.to());
}

QString BetweenBoard::instruction() const
{
    return m_question.instruction();
}

Verdict BetweenBoard::check()
{
    return DecimalsBetween::check(m_question, Text1->text());
}

QString BetweenBoard::hint()
{
    // The line's ends are written as the hint says, with one more place.
    const int longer = m_question.places + 1;
    Line1->setEnds(m_question.low().toFixed(longer), m_question.high().toFixed(longer));
    return DecimalsBetween::hint(m_question);
}

void BetweenBoard::giveRightAnswer()
{
    Text1->setText(m_question.middle().toText());
}

Worksheets::Sheet BetweenBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<DecimalsBetween::Question>(
        QCoreApplication::translate("Activities", "Decimals Between"),
        QCoreApplication::translate("BetweenBoard",
            "Write a decimal that lies between the two "
            "numbers. The number line helps."),
        [&rnd](const DecimalsBetween::Question* last) { return DecimalsBetween::draw(rnd, last); },
        [](const DecimalsBetween::Question& q) {
            Worksheets::Row row;
            row.question = QCoreApplication::translate("BetweenBoard", "Write a decimal between %1 and %2.")
                               .arg(q.from(), q.to());
            row.answer
                = QCoreApplication::translate("BetweenBoard", "%1 (or any number between)").arg(q.middle().toText());
            row.pictureHeight = sheetLineHeight();
            row.picture = [from = q.from(), to = q.to()](
                              QPainter& painter, const QRectF& box) { paintSheetLine(painter, box, from, to); };
            return row;
        });
}
