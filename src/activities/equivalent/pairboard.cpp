#include "pairboard.h"

#include "equationpanel.h"
#include "sheetpictures.h"
#include "fractions/fraction.h"
#include "kit/parts/answerbox.h"
#include "kit/parts/answerchain.h"
#include "kit/parts/fractionwall.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

namespace {
constexpr double kBoxPoints = 24;
constexpr double kBoxDigits = 0.8;       // the typed digits, of the panel's digits
constexpr double kWallPanelShare = 0.42; // of the board's height, the fractions above the wall
constexpr int kGap = 120;                // twips between the fractions and the wall
constexpr double kSheetWallHeight = 900; // twips
} // namespace

PairBoard::PairBoard(Kind kind, QWidget* parent)
    : KitBoard(parent)
    , Picture2(new EquationPanel(this))
    , Picture3(kind == Kind::OnWall ? new FractionWall(this) : nullptr)
    , m_kind(kind)
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    if (Picture3)
        Picture3->setObjectName(QStringLiteral("Picture3"));
    AnswerBox::Options digits;
    digits.maxLength = Equivalent::kAnswerDigits;
    Text1 = m_chain->addBox(Picture2, QStringLiteral("Text1"), tr("the missing number"),
                            Twips::font(QStringLiteral("Arial"), kBoxPoints, true), digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
        const QString typed = reason == AnswerChain::Reason::Zero ? QStringLiteral("0") : QString();
        emit refused(Equivalent::check(m_question, typed).statement);
    });
}

void PairBoard::pose(Random::Source& rnd)
{
    const Equivalent::Pair* last = m_asked ? &m_question : nullptr;
    m_question = m_kind == Kind::OnWall ? Equivalent::drawOnWall(rnd, last) : Equivalent::drawAnywhere(rnd, last);
    m_asked = true;
    Picture2->setPair(m_question);
    m_chain->clear();
    placeBox();
    showWall(0);
}

void PairBoard::showWall(int shadedBelow)
{
    if (Picture3)
        Picture3->setRows({{m_question.bottom, m_question.top}, {m_question.bottom * m_question.factor, shadedBelow}});
}

QString PairBoard::instruction() const
{
    return Fractions::capitalised(m_question.spoken());
}

Verdict PairBoard::check()
{
    return Equivalent::check(m_question, Text1->text());
}

QString PairBoard::hint()
{
    if (m_kind == Kind::Anywhere)
        return Equivalent::hint(m_question);
    showWall(m_question.answer());
    return Equivalent::wallHint(m_question);
}

void PairBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void PairBoard::focusAnswer()
{
    Text1->setFocus();
}

void PairBoard::showChecked(const Verdict& verdict)
{
    // The bricks the child's number stands for, so a wrong answer shows up
    // as a row shaded too far or not far enough.
    if (verdict.kind != Verdict::NotCheckable)
        showWall(AnswerBox::value(Text1->text()));
}

void PairBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.answer()));
}

Worksheets::Sheet PairBoard::wallWorksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Equivalent::Pair>(
        QCoreApplication::translate("Activities", "Equivalent Fractions 1"),
        QCoreApplication::translate("PairBoard", "Find the missing number. Use the fraction wall to help you."),
        [&rnd](const Equivalent::Pair* last) { return Equivalent::drawOnWall(rnd, last); },
        [](const Equivalent::Pair& q) {
            Worksheets::Row row;
            row.question = q.text();
            row.answer = QString::number(q.answer());
            row.pictureHeight = kSheetWallHeight;
            row.picture = [q](QPainter& painter, const QRectF& box) {
                SheetPictures::wall(painter, box, {{q.bottom, q.top}, {q.bottom * q.factor, 0}});
            };
            return row;
        });
}

Worksheets::Sheet PairBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Equivalent::Pair>(
        QCoreApplication::translate("Activities", "Equivalent Fractions 2"),
        QCoreApplication::translate("PairBoard", "Find the missing number in each pair of equal fractions."),
        [&rnd](const Equivalent::Pair* last) { return Equivalent::drawAnywhere(rnd, last); },
        [](const Equivalent::Pair& q) {
            Worksheets::Row row;
            row.question = q.text();
            row.answer = QString::number(q.answer());
            return row;
        });
}

void PairBoard::placeBox()
{
    const QRectF place = Picture2->blankRect();
    Text1->setGeometry(place.toAlignedRect());
    QFont font = Text1->font();
    font.setPixelSize(std::max(1, int(Picture2->digitSize() * kBoxDigits)));
    Text1->setFont(font);
}

void PairBoard::resizeEvent(QResizeEvent*)
{
    if (Picture3) {
        const int panel = int(height() * kWallPanelShare);
        const int gap = Twips::toPixels(kGap);
        Picture2->setGeometry(0, 0, width(), panel);
        Picture3->setGeometry(0, panel + gap, width(), height() - panel - gap);
    } else {
        Picture2->setGeometry(rect());
    }
    placeBox();
}
