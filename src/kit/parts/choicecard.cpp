#include "choicecard.h"

#include "runtime/twips.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <algorithm>

const QColor ChoiceCard::kPaper(255, 251, 238);
const QColor ChoiceCard::kInk(0, 58, 140);
const QColor ChoiceCard::kEdge(48, 133, 214);
const QColor ChoiceCard::kFocusEdge(255, 150, 0);
const QColor ChoiceCard::kRightPaper(216, 244, 208);
const QColor ChoiceCard::kRightEdge(38, 140, 58);
const QColor ChoiceCard::kWrongPaper(252, 222, 216);
const QColor ChoiceCard::kWrongEdge(200, 48, 36);

namespace {
const QString kSerif = QStringLiteral("Times New Roman");

// A card's size, in twips: fraction cards stand upright, word cards lie wide.
constexpr int kFractionCardWidth = 1560;
constexpr int kFractionCardHeight = 1920;
constexpr int kWordCardWidth = 3000;
constexpr int kWordCardHeight = 1200;

// Lines are measured in units of the card's shorter side.
constexpr qreal kUnitsAcross = 32;
constexpr qreal kFocusWidth = 2;
constexpr qreal kEdgeWidth = 1.25;
constexpr qreal kHoverEdgeWidth = 2.5;
// The card's body stands inside the room the focus frame needs.
constexpr qreal kBodyInset = 3.5;
constexpr qreal kCornerRadius = 4;
constexpr qreal kPadding = 2;
// The key name and the mark: a square corner of this share of the body's
// shorter side; larger on a wide card, whose shorter side is small.
constexpr qreal kCornerShare = 0.22;
constexpr qreal kWideCornerShare = 0.34;
// A card this many times as wide as it is high has its text between the
// corners; a narrower one has it under them.
constexpr qreal kWideCard = 2;
constexpr qreal kKeyNameShare = 0.8;
constexpr qreal kMarkLineShare = 0.16;
// A fraction's digits: their size as a share of the area's height, at most
// this share of its width, the bar's thickness and gaps as shares of the
// digits' size, and the bar reaching a little past the wider number.
constexpr qreal kDigitsShare = 0.46;
constexpr qreal kDigitsWidthShare = 0.9;
constexpr qreal kBarShare = 0.09;
constexpr qreal kBarGapShare = 0.14;
constexpr qreal kBarOverhang = 0.3;
// Words stand at most this share of the area's height high, on one line
// when they can keep this share of that size there, else wrapped on two
// lines at most and shrunk until they fit; a little room is kept at the
// sides.
constexpr qreal kWordsShare = 0.42;
constexpr qreal kOneLineShare = 0.6;
constexpr qreal kWordsWidthShare = 0.96;
constexpr int kSmallestWords = 6;
constexpr int kMostLines = 2;
constexpr int kWordFlags = Qt::AlignCenter | Qt::TextWordWrap;
// The tick and the cross, in shares of their corner square.
const QPointF kTick[] = {{0.1, 0.55}, {0.4, 0.85}, {0.95, 0.15}};
const QLineF kCross[] = {{0.15, 0.15, 0.85, 0.85}, {0.85, 0.15, 0.15, 0.85}};

QFont cardFont(qreal pixels)
{
    QFont font(kSerif);
    font.setBold(true);
    font.setPixelSize(std::max(1, qRound(pixels)));
    return font;
}

// The largest size, up to `most` pixels, at which `text` fits `area`.
int wordsPixels(const QString& text, const QRectF& area, int most)
{
    const qreal line = QFontMetricsF(cardFont(most)).horizontalAdvance(text);
    const qreal oneLine = line > 0 ? most * area.width() * kWordsWidthShare / line : most;
    if (oneLine >= most * kOneLineShare)
        return std::min(most, int(oneLine));
    for (int pixels = most; pixels > kSmallestWords; --pixels) {
        const QFontMetricsF metrics(cardFont(pixels));
        const QRectF needed = metrics.boundingRect(area, kWordFlags, text);
        const qreal tallest = std::min(area.height(), kMostLines * metrics.lineSpacing());
        if (needed.width() <= area.width() && needed.height() <= tallest)
            return pixels;
    }
    return kSmallestWords;
}
} // namespace

ChoiceCard::ChoiceCard(QWidget* parent, int index)
    : QAbstractButton(parent)
    , m_index(index)
{
    setObjectName(QStringLiteral("card%1").arg(index + 1));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::PointingHandCursor);
}

void ChoiceCard::setContent(const QString& text, const QString& keyName)
{
    setText(text);
    m_keyName = keyName;
    updateGeometry();
    update();
}

void ChoiceCard::setMark(Mark mark)
{
    m_mark = mark;
    update();
}

void ChoiceCard::setInteractive(bool on)
{
    m_interactive = on;
    setAttribute(Qt::WA_TransparentForMouseEvents, !on);
    setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

bool ChoiceCard::readFraction(const QString& text, int* top, int* bottom)
{
    static const QRegularExpression fraction(QStringLiteral("^\\s*(\\d{1,4})\\s*/\\s*(\\d{1,4})\\s*$"));
    const QRegularExpressionMatch m = fraction.match(text);
    if (!m.hasMatch())
        return false;
    if (top)
        *top = m.captured(1).toInt();
    if (bottom)
        *bottom = m.captured(2).toInt();
    return true;
}

QSize ChoiceCard::sizeHint() const
{
    if (readFraction(text(), nullptr, nullptr))
        return {Twips::toPixels(kFractionCardWidth), Twips::toPixels(kFractionCardHeight)};
    return {Twips::toPixels(kWordCardWidth), Twips::toPixels(kWordCardHeight)};
}

void ChoiceCard::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool chooses = key == Qt::Key_Space || key == Qt::Key_Select || key == Qt::Key_Return
        || key == Qt::Key_Enter;
    if (chooses && !m_interactive) {
        event->ignore();
        return;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

ChoiceCard::Layout ChoiceCard::layout() const
{
    Layout l;
    l.unit = std::min(width(), height()) / kUnitsAcross;
    const qreal inset = kBodyInset * l.unit;
    l.body = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    const qreal pad = kPadding * l.unit;
    const bool wide = l.body.width() > kWideCard * l.body.height();
    const qreal corner = std::min(l.body.width(), l.body.height()) * (wide ? kWideCornerShare : kCornerShare);
    l.keyArea = QRectF(l.body.left() + pad, l.body.top() + pad, corner, corner);
    l.markArea = QRectF(l.body.right() - pad - corner, l.body.top() + pad, corner, corner);
    if (wide) {
        // A wide card: the text stands between the corners.
        l.content = l.body.adjusted(2 * pad + corner, pad, -(2 * pad + corner), -pad);
    } else {
        // An upright card: the text stands under the corners.
        l.content = l.body.adjusted(pad, pad + corner, -pad, -pad);
    }
    return l;
}

int ChoiceCard::ownWordsPixels() const
{
    const QRectF area = layout().content;
    return wordsPixels(text(), area, int(area.height() * kWordsShare));
}

void ChoiceCard::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const Layout l = layout();
    const qreal radius = kCornerRadius * l.unit;

    QColor paper = kPaper;
    QColor edge = kEdge;
    if (m_mark == Mark::Right) {
        paper = kRightPaper;
        edge = kRightEdge;
    } else if (m_mark == Mark::Wrong) {
        paper = kWrongPaper;
        edge = kWrongEdge;
    }
    const bool lifted = m_interactive && (underMouse() || isDown());
    p.setPen(QPen(edge, (lifted ? kHoverEdgeWidth : kEdgeWidth) * l.unit));
    p.setBrush(paper);
    p.drawRoundedRect(l.body, radius, radius);
    if (hasFocus()) {
        const qreal half = kFocusWidth * l.unit / 2;
        p.setPen(QPen(kFocusEdge, kFocusWidth * l.unit));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), radius + half, radius + half);
    }

    p.setFont(cardFont(l.keyArea.height() * kKeyNameShare));
    p.setPen(edge);
    p.drawText(l.keyArea, Qt::AlignCenter, m_keyName);
    drawMark(p, l.markArea);

    int top = 0;
    int bottom = 0;
    if (readFraction(text(), &top, &bottom))
        drawFraction(p, l.content, top, bottom);
    else
        drawWords(p, l.content);
}

void ChoiceCard::drawFraction(QPainter& p, const QRectF& area, int top, int bottom) const
{
    const QString upper = QString::number(top);
    const QString lower = QString::number(bottom);
    qreal size = area.height() * kDigitsShare;
    QFont font = cardFont(size);
    qreal widest = std::max(QFontMetricsF(font).horizontalAdvance(upper), QFontMetricsF(font).horizontalAdvance(lower));
    const qreal room = area.width() * kDigitsWidthShare;
    if (widest > room) {
        size *= room / widest;
        font = cardFont(size);
        widest = std::max(QFontMetricsF(font).horizontalAdvance(upper), QFontMetricsF(font).horizontalAdvance(lower));
    }
    const QFontMetricsF metrics(font);
    const qreal digits = metrics.capHeight();
    const qreal bar = std::max<qreal>(1, size * kBarShare);
    const qreal gap = size * kBarGapShare;
    const qreal barTop = area.center().y() - bar / 2;
    const qreal middle = area.center().x();

    p.setFont(font);
    p.setPen(kInk);
    p.drawText(QPointF(middle - metrics.horizontalAdvance(upper) / 2, barTop - gap), upper);
    p.drawText(QPointF(middle - metrics.horizontalAdvance(lower) / 2, barTop + bar + gap + digits), lower);
    const qreal barWidth = widest + size * kBarOverhang;
    p.fillRect(QRectF(middle - barWidth / 2, barTop, barWidth, bar), kInk);
}

void ChoiceCard::drawWords(QPainter& p, const QRectF& area) const
{
    // Every word card in the row is drawn at the size that fits them all.
    int pixels = ownWordsPixels();
    const QList<ChoiceCard*> row =
        parentWidget() ? parentWidget()->findChildren<ChoiceCard*>(Qt::FindDirectChildrenOnly) : QList<ChoiceCard*>{};
    for (const ChoiceCard* other : row) {
        if (other != this && other->isVisible() && !readFraction(other->text(), nullptr, nullptr))
            pixels = std::min(pixels, other->ownWordsPixels());
    }
    p.setFont(cardFont(pixels));
    p.setPen(kInk);
    p.drawText(area, kWordFlags, text());
}

void ChoiceCard::drawMark(QPainter& p, const QRectF& corner) const
{
    if (m_mark == Mark::None)
        return;
    const qreal w = corner.width();
    auto at = [&](const QPointF& share) { return corner.topLeft() + share * w; };
    QPainterPath path;
    if (m_mark == Mark::Right) {
        path.moveTo(at(kTick[0]));
        path.lineTo(at(kTick[1]));
        path.lineTo(at(kTick[2]));
    } else {
        for (const QLineF& stroke : kCross) {
            path.moveTo(at(stroke.p1()));
            path.lineTo(at(stroke.p2()));
        }
    }
    p.setPen(QPen(m_mark == Mark::Right ? kRightEdge : kWrongEdge, w * kMarkLineShare, Qt::SolidLine, Qt::RoundCap,
                  Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
}
