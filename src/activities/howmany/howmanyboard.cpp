#include "howmanyboard.h"

#include "kit/parts/answerchain.h"
#include "kit/parts/placevaluetable.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QLineEdit>

namespace {
constexpr double kBoxPoints = 24;
constexpr int kBoxWidth = 1400; // twips: three large digits
constexpr int kBoxHeight = 720;
constexpr int kGap = 120;
} // namespace

HowManyBoard::HowManyBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new PlaceValueTable(this))
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    AnswerBox::Options digits;
    digits.maxLength = HowMany::kAnswerDigits;
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("your answer"),
                            Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true), digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
        const QString typed = reason == AnswerChain::Reason::Zero ? QStringLiteral("0") : QString();
        emit refused(HowMany::check(m_question, typed).statement);
    });
}

void HowManyBoard::pose(Random::Source& rnd)
{
    m_question = HowMany::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    Picture2->setNumber(m_question.number(), Places::kOnes, m_question.counted);
    m_chain->clear();
}

QString HowManyBoard::instruction() const
{
    return m_question.instruction();
}

Verdict HowManyBoard::check()
{
    return HowMany::check(m_question, Text1->text());
}

void HowManyBoard::showColumns()
{
    // Written to the place counted (2.3 as 2.30 in hundredths); the digits
    // from the first that is not 0 down to that place are the count.
    const int places = -m_question.counted;
    Picture2->setNumber(Places::written(m_question.thousandths, places), Places::kOnes, m_question.counted);
    int first = Places::kOnes;
    while (first > m_question.counted && Places::digitAt(m_question.thousandths, first) == 0)
        --first;
    Picture2->setMarked(first, m_question.counted);
    Picture2->setColumnsShown(true);
}

QString HowManyBoard::hint()
{
    showColumns();
    return HowMany::hint(m_question);
}

void HowManyBoard::showChecked(const Verdict&)
{
    showColumns();
}

void HowManyBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void HowManyBoard::focusAnswer()
{
    Text1->setFocus();
}

void HowManyBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.answer()));
}

Worksheets::Sheet HowManyBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<HowMany::Question>(
        QCoreApplication::translate("Activities", "How Many?"),
        QCoreApplication::translate("HowManyBoard", "Write the number in place-value columns to help you count."),
        [&rnd](const HowMany::Question* last) { return HowMany::draw(rnd, last); },
        [](const HowMany::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = QString::number(q.answer());
            return row;
        });
}

void HowManyBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int gap = Twips::toPixels(kGap);
    Picture2->setGeometry(0, 0, width(), height() - boxHeight - gap);
    Text1->setGeometry((width() - boxWidth) / 2, height() - boxHeight, boxWidth, boxHeight);
}
