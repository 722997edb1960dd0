#include "fractionofboard.h"

#include "kit/parts/answerchain.h"
#include "kit/parts/barmodel.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>

namespace {
constexpr double kBoxPoints = 24;
constexpr int kDigitWidth = 400; // twips of answer box for each digit
constexpr int kBoxHeight = 720;  // twips
constexpr int kGap = 120;        // twips between the bar and the box
// On a worksheet: the amount in a band over a bar of equal boxes.
constexpr double kSheetAmount = 320;      // twips
constexpr double kSheetBar = 380;         // twips
constexpr double kSheetBarWidth = 4800;   // twips, at most
constexpr double kSheetAmountPoints = 14; // the amount's size on paper
constexpr double kTwipsPerPoint = 20;
constexpr double kSheetTextFill = 0.8; // of the amount's band
} // namespace

FractionOfBoard::FractionOfBoard(const FractionOf::Ranges& ranges, QWidget* parent)
    : KitBoard(parent)
    , Bar1(new BarModel(this))
    , m_ranges(ranges)
    , m_chain(new AnswerChain(this))
{
    setObjectName(QStringLiteral("FractionOfBoard"));
    Bar1->setObjectName(QStringLiteral("Bar1"));
    AnswerBox::Options digits;
    digits.maxLength = FractionOf::answerDigits(ranges);
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("your answer"),
                            Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true), digits);
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason reason) {
        const QString typed = reason == AnswerChain::Reason::Zero ? QStringLiteral("0") : QString();
        emit refused(FractionOf::check(m_question, typed).statement);
    });
}

void FractionOfBoard::pose(Random::Source& rnd)
{
    m_question = FractionOf::draw(m_ranges, rnd, m_asked ? &m_question : nullptr);
    m_asked = true;
    Bar1->setBar(m_question.amount, m_question.bottom);
    m_chain->clear();
    // The question in words, for a screen reader in the box itself.
    Text1->setAccessibleName(tr("your answer: %1").arg(m_question.spoken()));
}

QString FractionOfBoard::instruction() const
{
    return m_question.instruction();
}

Verdict FractionOfBoard::check()
{
    return FractionOf::check(m_question, Text1->text());
}

QString FractionOfBoard::hint()
{
    Bar1->showWorking(m_question.amount / m_question.bottom, m_question.top);
    return FractionOf::hint(m_question);
}

void FractionOfBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void FractionOfBoard::focusAnswer()
{
    Text1->setFocus();
}

void FractionOfBoard::giveRightAnswer()
{
    Text1->setText(QString::number(m_question.answer()));
}

Worksheets::Sheet FractionOfBoard::year3Sheet(Random::Source& rnd)
{
    return sheet(FractionOf::kYear3, QCoreApplication::translate("Activities", "Halves, Quarters, Thirds and Tenths 3"),
                 rnd);
}

Worksheets::Sheet FractionOfBoard::year5Sheet(Random::Source& rnd)
{
    return sheet(FractionOf::kYear5, QCoreApplication::translate("Activities", "Fractions of Numbers"), rnd);
}

Worksheets::Sheet FractionOfBoard::sheet(const FractionOf::Ranges& ranges, const QString& title, Random::Source& rnd)
{
    return Worksheets::drawSheet<FractionOf::Question>(
        title,
        QCoreApplication::translate("FractionOfBoard",
                                    "Share the number into the equal boxes of the bar."),
        [&rnd, &ranges](const FractionOf::Question* last) { return FractionOf::draw(ranges, rnd, last); },
        [](const FractionOf::Question& q) {
            Worksheets::Row row;
            row.question = q.instruction();
            row.answer = QString::number(q.answer());
            row.pictureHeight = kSheetAmount + kSheetBar;
            row.picture = [q](QPainter& painter, const QRectF& box) {
                // The amount over the bar, in the same shares as asked for,
                // however much room the card gives.
                const double amountHeight = box.height() * kSheetAmount / (kSheetAmount + kSheetBar);
                const double width = std::min(box.width(), kSheetBarWidth);
                const QRectF bar(box.left() + (box.width() - width) / 2, box.top() + amountHeight, width,
                                 box.height() - amountHeight);
                // The painter counts in twips, so the size is given in them.
                QFont font = painter.font();
                font.setPixelSize(int(std::min(kSheetAmountPoints * kTwipsPerPoint, amountHeight * kSheetTextFill)));
                font.setBold(true);
                painter.setFont(font);
                painter.drawText(QRectF(bar.left(), box.top(), width, amountHeight), Qt::AlignCenter,
                                 QString::number(q.amount));
                painter.drawRect(bar);
                for (int i = 1; i < q.bottom; ++i) {
                    const double x = bar.left() + bar.width() * i / q.bottom;
                    painter.drawLine(QPointF(x, bar.top()), QPointF(x, bar.bottom()));
                }
            };
            return row;
        });
}

void FractionOfBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kDigitWidth * FractionOf::answerDigits(m_ranges));
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int gap = Twips::toPixels(kGap);
    Bar1->setGeometry(0, 0, width(), height() - boxHeight - gap);
    Text1->setGeometry((width() - boxWidth) / 2, height() - boxHeight, boxWidth, boxHeight);
}
