#include "decimalboard.h"

#include "kit/parts/answerchain.h"
#include "kit/parts/numberline.h"
#include "runtime/twips.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <cmath>

namespace {
constexpr double kBoxPoints = 24;
constexpr int kBoxWidth = 2400; // twips: "19.9995" in large digits
constexpr int kBoxHeight = 720;
constexpr int kGap = 120;
// On a worksheet the line is drawn as a widget of this many pixels, scaled
// to its place.
constexpr QSize kSheetLinePixels{600, 160};
constexpr double kSheetLineHeight = 600; // twips
} // namespace

DecimalBoard::DecimalBoard(int answerLength, QWidget* parent)
    : KitBoard(parent)
    , Line1(new NumberLine(this))
    , m_chain(new AnswerChain(this))
    , m_answerLength(answerLength)
{
    setObjectName(QStringLiteral("Board"));
    Line1->setObjectName(QStringLiteral("Line1"));
    // Decimals are written with a point in every language, so the box takes
    // "." and nothing else between the digits; a comma typed is refused with
    // a short message asking for the point.
    AnswerBox::Options options;
    options.maxLength = answerLength;
    options.decimalPoint = true;
    Text1 = m_chain->addBox(this, QStringLiteral("Text1"), tr("your answer"),
        Twips::font(QStringLiteral("Times New Roman"), kBoxPoints, true), options, true);
    // Installed after the box's own filter, so it sees each key first.
    Text1->installEventFilter(this);
    // A number that cannot be read goes to the check too, which gives its
    // short message (two points, a 0 in front) and keeps the question.
    connect(m_chain, &AnswerChain::complete, this, &KitBoard::answered);
    connect(m_chain, &AnswerChain::refused, this, [this](QLineEdit*, AnswerChain::Reason) {
        emit refused(TypedDecimal::read(QString(), m_answerLength).problem);
    });
}

bool DecimalBoard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Text1 && event->type() == QEvent::KeyPress && !Text1->isReadOnly()
        && static_cast<QKeyEvent*>(event)->text() == QStringLiteral(",")) {
        emit refused(TypedDecimal::commaMessage());
        return true;
    }
    return KitBoard::eventFilter(watched, event);
}

void DecimalBoard::clearAnswer()
{
    m_chain->clear();
    Line1->clearMark();
    Line1->clearMarkToRound();
}

void DecimalBoard::setAnswering(bool on)
{
    Text1->setReadOnly(!on);
}

void DecimalBoard::focusAnswer()
{
    Text1->setFocus();
}

void DecimalBoard::showChecked(const Verdict&)
{
    const TypedDecimal::Reading reading = TypedDecimal::read(Text1->text(), m_answerLength);
    if (reading.ok)
        Line1->mark(reading.written);
}

double DecimalBoard::sheetLineHeight()
{
    return kSheetLineHeight;
}

void DecimalBoard::paintSheetLine(
    QPainter& painter, const QRectF& box, const QString& from, const QString& to, const QString& toRound)
{
    NumberLine line;
    line.resize(kSheetLinePixels);
    line.setEnds(from, to);
    if (!toRound.isEmpty())
        line.markToRound(toRound);
    // Nothing is pinned above the line on paper: only the band from the
    // ticks down to the labels is drawn, as large as the box allows.
    const QRectF labels = line.endLabelRect(0).united(line.toRoundLabelRect());
    const double top = 2 * line.lineY() - labels.top();
    const QRect band(0, int(top), line.width(), int(std::ceil(labels.bottom() - top)));
    const double scale = std::min(box.width() / band.width(), box.height() / band.height());
    painter.save();
    painter.translate(box.center().x() - band.width() * scale / 2, box.center().y() - band.height() * scale / 2);
    painter.scale(scale, scale);
    line.render(&painter, QPoint(), QRegion(band), QWidget::DrawChildren);
    painter.restore();
}

void DecimalBoard::resizeEvent(QResizeEvent*)
{
    const int boxWidth = Twips::toPixels(kBoxWidth);
    const int boxHeight = Twips::toPixels(kBoxHeight);
    const int gap = Twips::toPixels(kGap);
    Line1->setGeometry(0, 0, width(), height() - boxHeight - gap);
    Text1->setGeometry((width() - boxWidth) / 2, height() - boxHeight, boxWidth, boxHeight);
}
