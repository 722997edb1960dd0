#include "compareboard.h"

#include "fractionpair.h"
#include "kit/parts/choicecard.h"
#include "kit/parts/choicecards.h"
#include "kit/parts/drawingstyle.h"
#include "kit/parts/fractionwall.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QPainter>

namespace {
// The board from the top: the pair, the hint's bars, the cards (twips).
constexpr int kPairHeight = 1200;
constexpr int kWallHeight = 1140;
constexpr int kCardsHeight = 1500;
constexpr int kGap = 90;
// On a worksheet: the two fractions with a box between them for the sign.
constexpr double kSheetHeight = 1000;
constexpr double kSheetFractionWidth = 0.9; // of the picture's height
constexpr double kSheetBoxSide = 0.6;
} // namespace

CompareBoard::CompareBoard(QWidget* parent)
    : KitBoard(parent)
    , Fractions1(new FractionPair(this))
    , Wall1(new FractionWall(this))
    , Cards1(new ChoiceCards(this))
{
    setObjectName(QStringLiteral("Board"));
    Fractions1->setObjectName(QStringLiteral("Fractions1"));
    Wall1->setObjectName(QStringLiteral("Wall1"));
    Cards1->setObjectName(QStringLiteral("Cards1"));
    Wall1->hide();
    connect(Cards1, &ChoiceCards::chosen, this, [this](int index) {
        m_chosen = index;
        emit answered();
    });
}

void CompareBoard::pose(Random::Source& rnd)
{
    m_question = CompareFractions::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    m_chosen = -1;
    const CompareFractions::Question& q = m_question;
    Fractions1->setPair(q.leftTop, q.leftBottom, q.rightTop, q.rightBottom, CompareFractions::spokenPair(q));
    using CompareFractions::Relation;
    Cards1->setCards({CompareFractions::relationWords(Relation::Less), CompareFractions::relationWords(Relation::Equal),
                      CompareFractions::relationWords(Relation::More)},
                     {QStringLiteral("<"), QStringLiteral("="), QStringLiteral(">")});
    Wall1->hide();
}

QString CompareBoard::instruction() const
{
    return m_question.instruction();
}

Verdict CompareBoard::check()
{
    return CompareFractions::check(m_question, m_chosen);
}

QString CompareBoard::hint()
{
    const CompareFractions::Question& q = m_question;
    Wall1->setRows({{q.leftBottom, q.leftTop}, {q.rightBottom, q.rightTop}});
    Wall1->show();
    return CompareFractions::hint(q);
}

void CompareBoard::setAnswering(bool on)
{
    Cards1->setChoosable(on);
}

void CompareBoard::focusAnswer()
{
    if (ChoiceCard* card = Cards1->card(m_chosen >= 0 ? m_chosen : 0))
        card->setFocus();
}

void CompareBoard::showChecked(const Verdict& verdict)
{
    Cards1->markRight(int(m_question.relation()));
    if (verdict.kind == Verdict::Wrong && m_chosen >= 0)
        Cards1->markWrong(m_chosen);
}

void CompareBoard::giveRightAnswer()
{
    m_chosen = int(m_question.relation());
}

Worksheets::Sheet CompareBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<CompareFractions::Question>(
        QCoreApplication::translate("Activities", "More Than, Less Than"),
        QCoreApplication::translate("CompareBoard", "Write <, = or > in the box between the two fractions."),
        [&rnd](const CompareFractions::Question* last) { return CompareFractions::draw(rnd, last); },
        [](const CompareFractions::Question& q) {
            Worksheets::Row row;
            row.question = QCoreApplication::translate("CompareBoard", "Compare %1 and %2.")
                               .arg(QStringLiteral("%1/%2").arg(q.leftTop).arg(q.leftBottom),
                                    QStringLiteral("%1/%2").arg(q.rightTop).arg(q.rightBottom));
            row.answer = q.statement();
            row.pictureHeight = kSheetHeight;
            row.picture = [q](QPainter& painter, const QRectF& box) {
                // Measured from the height the sheet gives, which may be less than asked.
                const double fractionWidth = box.height() * kSheetFractionWidth;
                const double side = box.height() * kSheetBoxSide;
                const QRectF leftFraction(box.center().x() - side / 2 - fractionWidth, box.top(), fractionWidth, box.height());
                const QRectF rightFraction(box.center().x() + side / 2, box.top(), fractionWidth, box.height());
                const double size = std::min(DrawingStyle::fractionSize(leftFraction.size(), q.leftTop, q.leftBottom),
                                             DrawingStyle::fractionSize(rightFraction.size(), q.rightTop, q.rightBottom));
                DrawingStyle::paintFraction(painter, leftFraction, q.leftTop, q.leftBottom, size);
                DrawingStyle::paintFraction(painter, rightFraction, q.rightTop, q.rightBottom, size);
                QRectF sign(0, 0, side, side);
                sign.moveCenter(box.center());
                painter.drawRect(sign);
            };
            return row;
        });
}

void CompareBoard::resizeEvent(QResizeEvent*)
{
    const int gap = Twips::toPixels(kGap);
    const int cards = Twips::toPixels(kCardsHeight);
    const int wall = Twips::toPixels(kWallHeight);
    const int pair = std::min(Twips::toPixels(kPairHeight), height() - cards - wall - 2 * gap);
    Fractions1->setGeometry(0, 0, width(), pair);
    Wall1->setGeometry(0, pair + gap, width(), wall);
    Cards1->setGeometry(0, height() - cards, width(), cards);
}
