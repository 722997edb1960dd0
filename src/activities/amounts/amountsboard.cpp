#include "amountsboard.h"

#include "kit/parts/answerchain.h"
#include "kit/parts/barmodel.h"
#include "runtime/twips.h"
#include "shell/activityform.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>

namespace {
constexpr double kBoxPoints = 24;
constexpr int kBoxWidth = 1400; // twips: three large digits
constexpr int kBoxHeight = 720;
constexpr int kUnitWidth = 900;
constexpr int kGap = 120;
const QColor kUnitInk{255, 255, 255};
} // namespace

AmountsBoard::AmountsBoard(QWidget* parent)
    : KitBoard(parent)
    , Picture2(new BarModel(this))
    , Label1(wordLabel(this, QStringLiteral("Label1"), QString(), kBoxPoints, kUnitInk))
    , Label2(wordLabel(this, QStringLiteral("Label2"), QString(), kBoxPoints, kUnitInk))
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("Board"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Label1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Label2->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    AnswerBox::Options digits;
    digits.maxLength = Amounts::kAnswerDigits;
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("your answer"),
                            Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true), digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
        const QString typed = reason == AnswerChain::Reason::Zero ? QStringLiteral("0") : QString();
        emit refused(Amounts::check(m_question, typed).statement);
    });
}

void AmountsBoard::pose(Random::Source& rnd)
{
    m_question = Amounts::draw(rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    Picture2->setBar(m_question.amount, Amounts::bar(m_question).parts);
    Label1->setText(m_question.unitBefore());
    Label2->setText(m_question.unitAfter());
    // The box is read with its unit: "your answer, in kg".
    const QString unit = m_question.unitBefore() + m_question.unitAfter();
    Text1->setAccessibleName(unit.isEmpty() ? tr("your answer") : tr("your answer, in %1").arg(unit));
    m_chain->clear();
}

QString AmountsBoard::instruction() const
{
    return m_question.instruction();
}

Verdict AmountsBoard::check()
{
    return Amounts::check(m_question, Text1->text());
}

void AmountsBoard::showWorking()
{
    const Amounts::Bar bar = Amounts::bar(m_question);
    Picture2->showWorking(bar.perPart, bar.shaded);
}

QString AmountsBoard::hint()
{
    showWorking();
    return Amounts::hint(m_question);
}

void AmountsBoard::showChecked(const Verdict&)
{
    showWorking();
}

void AmountsBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void AmountsBoard::focusAnswer()
{
    Text1->setFocus();
}

void AmountsBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.answer()));
}

Worksheets::Sheet AmountsBoard::worksheet(Random::Source& rnd)
{
    return Worksheets::drawSheet<Amounts::Question>(
        QCoreApplication::translate("Activities", "Finding Amounts"),
        QCoreApplication::translate("AmountsBoard", "Find each amount. 10% is one tenth; 25% is one quarter."),
        [&rnd](const Amounts::Question* last) { return Amounts::draw(rnd, last); },
        [](const Amounts::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            // The unit after the box is printed beside it; one before it goes with the answer.
            row.answer = q.unitBefore() + QString::number(q.answer());
            row.answerUnit = q.unitAfter();
            return row;
        });
}

void AmountsBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int unitWidth = Twips::toPixels(kUnitWidth);
    const int gap = Twips::toPixels(kGap);
    Picture2->setGeometry(0, 0, width(), height() - boxHeight - gap);
    const int boxLeft = (width() - boxWidth) / 2;
    const int top = height() - boxHeight;
    Text1->setGeometry(boxLeft, top, boxWidth, boxHeight);
    Label1->setGeometry(boxLeft - gap - unitWidth, top, unitWidth, boxHeight);
    Label2->setGeometry(boxLeft + boxWidth + gap, top, unitWidth, boxHeight);
}
