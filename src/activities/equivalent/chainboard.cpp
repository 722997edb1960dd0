#include "chainboard.h"

#include "fractionline.h"
#include "kit/parts/answerchain.h"

#include <QCoreApplication>
#include <QLineEdit>

ChainBoard::ChainBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new FractionLine(this))
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    // Each question names its boxes by their places in the chain.
    const QString missing = tr("missing number");
    const int digits = EquivalentChain::kAnswerDigits;
    Text1 = Picture2->addBox(m_chain, QStringLiteral("Text1"), missing, digits);
    Text2 = Picture2->addBox(m_chain, QStringLiteral("Text2"), missing, digits);
    Text3 = Picture2->addBox(m_chain, QStringLiteral("Text3"), missing, digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this,
            [this](QLineEdit*, AnswerChain::Reason) { emit refused(check().statement); });
}

void ChainBoard::pose(Random::Source& rnd)
{
    showQuestion(EquivalentChain::draw(rnd, m_asked ? &m_question : nullptr));
}

void ChainBoard::showQuestion(const EquivalentChain::Question& question)
{
    m_question = question;
    m_asked = true;
    m_chain->clear();
    QVector<FractionLine::Fraction> fractions{{{question.top, nullptr}, {question.bottom, nullptr}}};
    const QList<QLineEdit*>& boxes = m_chain->boxes();
    int next = 0;
    for (int f = 0; f < EquivalentChain::kMade; ++f) {
        FractionLine::Fraction fraction;
        for (const bool bottom : {false, true}) {
            const int index = 2 * f + (bottom ? 1 : 0);
            FractionLine::Number& number = bottom ? fraction.bottom : fraction.top;
            number.value = question.number(index);
            if (question.missing[std::size_t(index)] && next < boxes.size()) {
                number.box = boxes[next++];
                //: an answer box: "top number of fraction 2"
                number.box->setAccessibleName(
                    (bottom ? tr("bottom number of fraction %1") : tr("top number of fraction %1")).arg(f + 2));
            }
        }
        fractions << fraction;
    }
    Picture2->setFractions(fractions);
    Picture2->setNotes({});
    Picture2->setAccessibleName(question.spoken());
}

QString ChainBoard::instruction() const
{
    return m_question.instruction();
}

Verdict ChainBoard::check()
{
    return EquivalentChain::check(m_question, m_chain->texts());
}

QString ChainBoard::hint()
{
    QStringList notes{QString()};
    for (int multiplier : m_question.multipliers)
        notes << QStringLiteral("× %1").arg(multiplier);
    Picture2->setNotes(notes);
    return EquivalentChain::hint(m_question);
}

void ChainBoard::setAnswering(bool on)
{
    for (QLineEdit* box : m_chain->boxes())
        box->setReadOnly(!on);
}

void ChainBoard::focusAnswer()
{
    // The first box still empty, or the last one.
    for (QLineEdit* box : m_chain->boxes()) {
        if (box->text().isEmpty()) {
            box->setFocus();
            return;
        }
    }
    m_chain->boxes().constLast()->setFocus();
}

QList<int> ChainBoard::missingNumbers() const
{
    QList<int> numbers;
    for (int i = 0; i < EquivalentChain::kNumbers; ++i)
        if (m_question.missing[std::size_t(i)])
            numbers << m_question.number(i);
    return numbers;
}

void ChainBoard::giveRightAnswer()
{
    const QList<int> numbers = missingNumbers();
    const QList<QLineEdit*>& boxes = m_chain->boxes();
    for (int i = 0; i < boxes.size() && i < numbers.size(); ++i)
        boxes[i]->setText(QString::number(numbers[i]));
}

Worksheets::Sheet ChainBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<EquivalentChain::Question>(
        QCoreApplication::translate("Activities", "Equivalent Fractions"),
        QCoreApplication::translate("ChainBoard",
                                    "Write the missing numbers so that every fraction in the chain is equal."),
        [&rnd](const EquivalentChain::Question* last) { return EquivalentChain::draw(rnd, last); },
        [](const EquivalentChain::Question& q) {
            Worksheets::Row row;
            row.question = q.text();
            row.answer = q.answerText();
            return row;
        });
}

void ChainBoard::resizeEvent(QResizeEvent*)
{
    Picture2->setGeometry(rect());
}
