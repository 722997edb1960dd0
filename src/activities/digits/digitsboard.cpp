#include "digitsboard.h"

#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/placevaluetable.h"
#include "runtime/twips.h"

#include <QCoreApplication>

namespace {
constexpr int kCardsHeight = 2400; // twips: two rows of cards, each with two lines of words
constexpr int kCardColumns = 2;
constexpr int kGap = 120;
} // namespace

DigitsBoard::DigitsBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new PlaceValueTable(this))
    , Cards1(new ChoiceCards(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Cards1->setObjectName(QStringLiteral("Cards1"));
    Cards1->setColumns(kCardColumns);
    connect(Cards1, &ChoiceCards::chosen, this, [this](int index) {
        m_chosen = index;
        emit answered();
    });
}

void DigitsBoard::pose(Random::Source& rnd)
{
    m_question = Digits::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    m_chosen = -1;
    // Always the five columns from the tens to the thousandths.
    Picture2->setNumber(m_question.number(), Places::kTens, Places::kThousandths);
    Picture2->setMarked(m_question.marked, m_question.marked);
    Cards1->setCards(m_question.cardTexts(), {}, m_question.spokenCards());
}

QString DigitsBoard::instruction() const
{
    return m_question.instruction();
}

Verdict DigitsBoard::check()
{
    return Digits::check(m_question, m_chosen);
}

QString DigitsBoard::hint()
{
    Picture2->setColumnsShown(true);
    return Digits::hint(m_question);
}

void DigitsBoard::setAnswering(bool on)
{
    Cards1->setChoosable(on);
}

void DigitsBoard::focusAnswer()
{
    if (ChoiceCard* card = Cards1->card(m_chosen >= 0 ? m_chosen : 0))
        card->setFocus();
}

void DigitsBoard::showChecked(const Verdict& verdict)
{
    Picture2->setColumnsShown(true);
    Cards1->markRight(m_question.right);
    if (verdict.kind == Verdict::Wrong)
        Cards1->markWrong(m_chosen);
}

void DigitsBoard::giveRightAnswer()
{
    m_chosen = m_question.right;
}

Worksheets::Sheet DigitsBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Digits::Question>(
        QCoreApplication::translate("Activities", "Digits"),
        QCoreApplication::translate("DigitsBoard", "Write the value of the digit: 3 tenths (0.3)."),
        [&rnd](const Digits::Question* last) { return Digits::draw(rnd, last); },
        [](const Digits::Question& q) {
            Worksheets::Row row;
            row.question = QCoreApplication::translate("DigitsBoard", "What is the value of the %1 in %2?")
                               .arg(q.digit())
                               .arg(q.number());
            row.answer = Digits::valueText(q.digit(), q.marked);
            return row;
        });
}

void DigitsBoard::resizeEvent(QResizeEvent*)
{
    const int cardsHeight = Twips::toPixels(kCardsHeight);
    const int gap = Twips::toPixels(kGap);
    Picture2->setGeometry(0, 0, width(), height() - cardsHeight - gap);
    Cards1->setGeometry(0, height() - cardsHeight, width(), cardsHeight);
}
