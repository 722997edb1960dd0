#include "choiceboard.h"

#include "sheetpictures.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/fractionwall.h"
#include "runtime/twips.h"

#include <QCoreApplication>

namespace {
constexpr double kCardsShare = 0.5;        // of the board's height, the cards above the bars
constexpr int kGap = 120;                  // twips between the cards and the bars
constexpr double kSheetChoiceHeight = 700; // twips
} // namespace

ChoiceBoard::ChoiceBoard(QWidget* parent)
    : KitBoard(parent)
    , Cards(new ChoiceCards(this))
    , Picture3(new FractionWall(this))
{
    setObjectName(QStringLiteral("Board"));
    Cards->setObjectName(QStringLiteral("Cards"));
    Picture3->setObjectName(QStringLiteral("Picture3"));
    connect(Cards, &ChoiceCards::chosen, this, [this](int index) {
        m_chosen = index;
        emit answered();
    });
}

void ChoiceBoard::pose(Random::Source& rnd)
{
    m_question = Equivalent::drawChoice(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    m_chosen = -1;
    QStringList texts;
    for (const Equivalent::Card& card : m_question.cards)
        texts << card.text();
    Cards->setCards(texts);
    Picture3->setRows({});
    Picture3->hide();
}

QString ChoiceBoard::instruction() const
{
    return m_question.instruction();
}

Verdict ChoiceBoard::check()
{
    return Equivalent::checkChoice(m_question, m_chosen);
}

void ChoiceBoard::showBars(int card)
{
    const Equivalent::Card& c = m_question.cards[std::size_t(card)];
    Picture3->setRows({{m_question.bottom, m_question.top}, {c.bottom, c.top}});
    Picture3->show();
}

QString ChoiceBoard::hint()
{
    showBars(m_question.right);
    return Equivalent::choiceHint(m_question);
}

void ChoiceBoard::setAnswering(bool on)
{
    Cards->setChoosable(on);
}

void ChoiceBoard::focusAnswer()
{
    if (ChoiceCard* first = Cards->card(0))
        first->setFocus();
}

void ChoiceBoard::showChecked(const Verdict& verdict)
{
    if (verdict.kind == Verdict::NotCheckable)
        return;
    Cards->markRight(m_question.right);
    if (verdict.kind == Verdict::Wrong)
        Cards->markWrong(m_chosen);
    showBars(m_chosen);
}

void ChoiceBoard::giveRightAnswer()
{
    m_chosen = m_question.right;
}

Worksheets::Sheet ChoiceBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Equivalent::Choice>(
        QCoreApplication::translate("Activities", "Equivalent Fractions 3"),
        QCoreApplication::translate("ChoiceBoard", "Ring the fraction that is equal to the one in the question."),
        [&rnd](const Equivalent::Choice* last) { return Equivalent::drawChoice(rnd, last); },
        [](const Equivalent::Choice& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = q.cards[std::size_t(q.right)].text();
            QVector<SheetPictures::Fraction> fractions;
            for (const Equivalent::Card& card : q.cards)
                fractions.append({card.top, card.bottom});
            row.pictureHeight = kSheetChoiceHeight;
            row.picture = [fractions](QPainter& painter, const QRectF& box) {
                SheetPictures::choices(painter, box, fractions);
            };
            return row;
        });
}

void ChoiceBoard::resizeEvent(QResizeEvent*)
{
    const int cards = int(height() * kCardsShare);
    const int gap = Twips::toPixels(kGap);
    Cards->setGeometry(0, 0, width(), cards);
    Picture3->setGeometry(0, cards + gap, width(), height() - cards - gap);
}
