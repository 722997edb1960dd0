#include "sheetlayout.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

namespace Worksheets::Layout {

namespace {

// The heading, placed as on the designed worksheets.
constexpr double kFrameInset = 40;
constexpr double kSide = 240; // between the sheet's edge and the cards
constexpr double kTabLeft = kSide + 80;
constexpr double kTabTop = 300;
constexpr double kTabHeight = 500;
constexpr double kTabPadding = 180;
constexpr double kTabTextSize = 300;
constexpr double kLabelSize = 240;
constexpr double kLabelRaise = 120; // the labels' baseline above the tab's foot
constexpr double kLabelGap = 300;   // between the tab and "Name"
constexpr double kLineGap = 100;    // between a label and its line
constexpr double kLineDrop = 40;    // the line below the baseline
constexpr double kDateFromRight = 2860;
constexpr double kNameLineEnd = 240; // the Name line stops short of "Date"
constexpr double kTitleSize = 560;
constexpr double kSmallestTitle = 300;
constexpr double kTitleStep = 20;
constexpr double kTitleRoom = 400; // kept free beside a one-line title
constexpr double kTitleGap = 150;  // under the tab
constexpr double kBandGap = 100;   // under the title
constexpr double kBandHeight = 520;
constexpr double kBandPadding = 130;
constexpr double kBandSide = 200;
constexpr double kInstructionSize = 260;
constexpr double kBandHeadingSize = 320; // "Answers"
constexpr double kContentGap = 160;
constexpr double kFooterSize = 160;
constexpr double kFooterBaseline = 150; // above the sheet's foot
constexpr double kContentBottomRoom = 400;

// The cards.
constexpr double kCardGap = 140;
constexpr double kOneColumnGap = 100;
constexpr double kCardPadding = 140;
constexpr double kDiscCentre = 280; // in from the card's corner
constexpr double kDiscDiameter = 340;
constexpr double kNumberSize = 220;
constexpr double kTextLeft = 560;
constexpr double kGap = 120; // between the parts of a card
constexpr double kAnswerHeight = 520;
constexpr double kSmallestBox = 1000;
constexpr double kHandwriting = 300; // a child's written character
constexpr double kBoxSlack = 300;
constexpr double kUnitGap = 120;
constexpr double kOneColumnAnswerShare = 0.45;
constexpr int kMostLinesInTwoColumns = 3;
// The sizes tried, in turn, until the cards fit: the type shrinks a little,
// then the pictures and the type by turns.
struct Try {
    double textSize;
    double pictureScale;
};
constexpr std::array<Try, 10> kTries = {{{280, 1}, {260, 1}, {260, 0.9}, {260, 0.8}, {240, 0.8}, {240, 0.7},
                                         {220, 0.7}, {220, 0.6}, {220, 0.5}, {220, 0.4}}};

// The answers.
constexpr std::array<double, 3> kAnswerSizes = {320, 280, 240};
constexpr double kAnswerCardHeight = 1100; // answer cards grow no taller


constexpr int kWrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

TextBox wrapped(const QString& text, const QFont& f, double left, double top, double width, int flags = kWrapped)
{
    const QFontMetricsF metrics(f);
    QRectF used = metrics.boundingRect(QRectF(left, top, width, 0), flags, text);
    if (used.width() > width) { // a word longer than the line is broken where it must be
        flags |= Qt::TextWrapAnywhere;
        used = metrics.boundingRect(QRectF(left, top, width, 0), flags, text);
    }
    return TextBox{QRectF(left, top, width, used.height()), text, f, flags};
}

// One line of text with its top-left corner at (left, top), exactly as wide as it prints.
TextBox oneLine(const QString& text, const QFont& f, double left, double top)
{
    const QFontMetricsF metrics(f);
    return TextBox{QRectF(left, top, metrics.horizontalAdvance(text), metrics.height()), text, f,
                   Qt::AlignLeft | Qt::AlignTop};
}

int lineCount(const TextBox& text)
{
    return int(std::lround(text.box.height() / QFontMetricsF(text.font).lineSpacing()));
}

Heading heading(const QString& yearLabel, const QString& title, const QString& band, bool withName,
                const QSizeF& size)
{
    Heading h;
    const double width = size.width();
    const double right = width - kSide;
    h.frame = QRectF(kFrameInset, kFrameInset, width - 2 * kFrameInset, size.height() - 2 * kFrameInset);

    double tabRight = kTabLeft;
    if (!yearLabel.isEmpty()) {
        const QFont f = font(Face::Sans, kTabTextSize, true);
        h.tab = QRectF(kTabLeft, kTabTop, QFontMetricsF(f).horizontalAdvance(yearLabel) + 2 * kTabPadding, kTabHeight);
        h.yearLabel = TextBox{h.tab, yearLabel, f, Qt::AlignCenter};
        tabRight = h.tab.right() + kLabelGap;
    }
    if (withName) {
        const QFont f = font(Face::Sans, kLabelSize);
        const double baseline = kTabTop + kTabHeight - kLabelRaise;
        const double top = baseline - QFontMetricsF(f).ascent();
        const double lineY = baseline + kLineDrop;
        const double dateX = width - kDateFromRight;
        h.name = oneLine(QCoreApplication::translate("Worksheets", "Name"), f, tabRight, top);
        h.date = oneLine(QCoreApplication::translate("Worksheets", "Date"), f, dateX, top);
        h.nameLine = QRectF(QPointF(h.name.box.right() + kLineGap, lineY), QPointF(dateX - kNameLineEnd, lineY));
        h.dateLine = QRectF(QPointF(h.date.box.right() + kLineGap, lineY), QPointF(right - kLineGap, lineY));
    }

    // The title as large as fits one line; a title too long even then wraps.
    double titleSize = kTitleSize;
    while (titleSize > kSmallestTitle
           && QFontMetricsF(font(Face::Serif, titleSize, true)).horizontalAdvance(title) > right - kSide - kTitleRoom)
        titleSize -= kTitleStep;
    h.title = wrapped(title, font(Face::Serif, titleSize, true), kSide, kTabTop + kTabHeight + kTitleGap,
                      right - kSide, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap);

    const bool isHeading = !withName;
    const QFont bandFont = font(Face::Sans, isHeading ? kBandHeadingSize : kInstructionSize, isHeading);
    const double bandTop = h.title.box.bottom() + kBandGap;
    h.instruction = wrapped(band, bandFont, kSide + kBandSide, bandTop + kBandPadding, right - kSide - 2 * kBandSide,
                            Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap);
    const double bandHeight = std::max(kBandHeight, h.instruction.box.height() + 2 * kBandPadding);
    h.band = QRectF(kSide, bandTop, right - kSide, bandHeight);
    h.instruction.box.moveTop(bandTop + (bandHeight - h.instruction.box.height()) / 2);

    const QFont footerFont = font(Face::Sans, kFooterSize);
    const QString footer = QCoreApplication::translate("Worksheets", "Partitude - fractions for ages 6 to 11");
    const double footerWidth = QFontMetricsF(footerFont).horizontalAdvance(footer);
    h.footer = oneLine(footer, footerFont, (width - footerWidth) / 2,
                       size.height() - kFooterBaseline - QFontMetricsF(footerFont).ascent());
    h.contentTop = h.band.bottom() + kContentGap;
    h.contentBottom = size.height() - kContentBottomRoom;
    return h;
}

QRectF discAt(const QPointF& centre)
{
    return QRectF(centre.x() - kDiscDiameter / 2, centre.y() - kDiscDiameter / 2, kDiscDiameter, kDiscDiameter);
}

TextBox numberIn(const QRectF& disc, int number)
{
    return TextBox{disc, QString::number(number), font(Face::Sans, kNumberSize, true), Qt::AlignCenter};
}

// How wide a box a child needs to write the answer in.
double boxWidth(const Row& row)
{
    return std::max(kSmallestBox, row.answer.size() * kHandwriting + kBoxSlack);
}

struct Style {
    int columns = 2;
    double textSize = kTries.front().textSize;
    double pictureScale = 1;
    double answerColumn = 0; // one column: the width of the answers down the right
};

double unitRoom(const Row& row, const QFont& f)
{
    return row.answerUnit.isEmpty() ? 0 : QFontMetricsF(f).horizontalAdvance(row.answerUnit) + kUnitGap;
}

// Lays a question out in card; *need is the least height its card can have.
QuestionCard questionCard(const Row& row, int number, const QRectF& card, const Style& style, double* need)
{
    QuestionCard c;
    c.card = card;
    c.disc = discAt(card.topLeft() + QPointF(kDiscCentre, kDiscCentre));
    c.number = numberIn(c.disc, number);
    const QFont f = font(Face::Sans, style.textSize);
    const QFontMetricsF metrics(f);
    const double units = unitRoom(row, f);
    const double textLeft = card.left() + kTextLeft;
    const double inner = card.width() - 2 * kCardPadding;
    const double answerLeft = card.right() - kCardPadding - style.answerColumn;
    const double textRight = style.columns == 1 ? answerLeft - kGap : card.right() - kCardPadding;
    c.question = wrapped(row.question, f, textLeft, c.disc.center().y() - metrics.lineSpacing() / 2, textRight - textLeft);
    const double pictureHeight = row.picture && row.pictureHeight > 0 ? row.pictureHeight * style.pictureScale : 0;
    const double picturePart = pictureHeight > 0 ? kGap + pictureHeight : 0;
    const double top = std::max(c.question.box.bottom(), c.disc.bottom());

    const double room = (style.columns == 1 ? style.answerColumn : inner) - units;
    c.room = boxWidth(row) <= room ? AnswerRoom::Box : AnswerRoom::Line;
    const double width = c.room == AnswerRoom::Box ? boxWidth(row) : room;
    double pictureLeft = card.left() + kCardPadding;
    double pictureTop = top + kGap;
    double pictureWidth = inner;
    if (style.columns == 1) {
        *need = std::max(top - card.top() + picturePart + kCardPadding, kAnswerHeight + 2 * kCardPadding);
        c.answer = QRectF(answerLeft, card.center().y() - kAnswerHeight / 2, width, kAnswerHeight);
        pictureLeft = textLeft;
        pictureWidth = textRight - textLeft;
        pictureTop += (card.bottom() - kCardPadding - top - picturePart) / 2;
    } else {
        *need = top - card.top() + picturePart + kGap + kAnswerHeight + kCardPadding;
        c.answer = QRectF(card.right() - kCardPadding - units - width, card.bottom() - kCardPadding - kAnswerHeight,
                          width, kAnswerHeight);
        pictureTop += (c.answer.top() - kGap - top - picturePart) / 2;
    }
    if (pictureHeight > 0)
        c.picture = QRectF(pictureLeft, pictureTop, pictureWidth, pictureHeight);
    if (!row.answerUnit.isEmpty()) {
        // Beside the box, or standing on the writing line.
        const double middle = c.room == AnswerRoom::Box ? c.answer.center().y() : c.answer.bottom() - metrics.height() / 2;
        c.unit = oneLine(row.answerUnit, f, c.answer.right() + kUnitGap, middle - metrics.height() / 2);
    }
    return c;
}

// The height of each line of cards (one card a line in one column, two in
// two columns): the most any card of the line needs.
QVector<double> lineNeeds(const QVector<double>& needs, int columns)
{
    QVector<double> lines;
    for (int i = 0; i < needs.size(); i += columns)
        lines << *std::max_element(needs.begin() + i, needs.begin() + std::min<int>(i + columns, needs.size()));
    return lines;
}

double total(const QVector<double>& lines, double gap)
{
    double used = lines.isEmpty() ? 0 : gap * (lines.size() - 1);
    for (double h : lines)
        used += h;
    return used;
}

// Cards of the given line heights, from top down.
template <typename Card, typename Make>
QVector<Card> placeCards(int count, int columns, double cardWidth, double top, const QVector<double>& lines,
                         double gap, const Make& make)
{
    QVector<Card> cards;
    for (int i = 0; i < count; ++i) {
        const int line = i / columns, column = i % columns;
        if (column == 0 && line > 0)
            top += lines[line - 1] + gap;
        cards << make(i, QRectF(kSide + column * (cardWidth + kCardGap), top, cardWidth, lines[line]));
    }
    return cards;
}

struct Attempt {
    QVector<QuestionCard> cards;
    bool fits = false;
    bool roomy = true; // no question needs many lines, no answer a writing line
};

Attempt attempt(const Sheet& sheet, const Heading& h, double width, Style style)
{
    const double columnsWidth = width - 2 * kSide;
    const double cardWidth = style.columns == 2 ? (columnsWidth - kCardGap) / 2 : columnsWidth;
    const double gap = style.columns == 2 ? kCardGap : kOneColumnGap;
    if (style.columns == 1) {
        const QFont f = font(Face::Sans, style.textSize);
        const double most = kOneColumnAnswerShare * (cardWidth - 2 * kCardPadding);
        for (const Row& row : sheet.rows)
            style.answerColumn = std::max(style.answerColumn, std::min(most, boxWidth(row) + unitRoom(row, f)));
    }
    Attempt a;
    QVector<double> needs;
    for (int i = 0; i < sheet.rows.size(); ++i) {
        double need = 0;
        const QuestionCard c = questionCard(sheet.rows[i], i + 1, QRectF(0, 0, cardWidth, 0), style, &need);
        needs << need;
        a.roomy = a.roomy && lineCount(c.question) <= kMostLinesInTwoColumns && c.room == AnswerRoom::Box;
    }
    QVector<double> lines = lineNeeds(needs, style.columns);
    const double room = h.contentBottom - h.contentTop;
    const double used = total(lines, gap);
    a.fits = used <= room;
    // What is left over is shared out, so the cards fill the page; past the
    // last try the same sharing squeezes them in.
    for (double& line : lines)
        line = std::max(0.0, line + (room - used) / lines.size());
    a.cards = placeCards<QuestionCard>(sheet.rows.size(), style.columns, cardWidth, h.contentTop, lines, gap,
                                       [&](int i, const QRectF& card) {
                                           double need = 0;
                                           return questionCard(sheet.rows[i], i + 1, card, style, &need);
                                       });
    return a;
}

} // namespace

QFont font(Face face, double size, bool bold)
{
    QFont f(face == Face::Serif ? QStringLiteral("Times New Roman") : QStringLiteral("Arial"));
    f.setPixelSize(std::max(1, int(std::lround(size))));
    f.setBold(bold);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

QuestionsPage questionsPage(const Sheet& sheet, const QString& yearLabel, const QSizeF& size)
{
    QuestionsPage page;
    page.heading = heading(yearLabel, sheet.title, sheet.instruction, true, size);
    const auto use = [&](const Attempt& a, const Style& style) {
        page.columns = style.columns;
        page.cards = a.cards;
        page.textSize = style.textSize;
        page.pictureScale = style.pictureScale;
    };
    Attempt squeezed;
    for (const Try& t : kTries) {
        const Style two{2, t.textSize, t.pictureScale, 0};
        const Style one{1, t.textSize, t.pictureScale, 0};
        // Two columns when the questions sit well in them, else one column,
        // else two columns that are cramped: any of them before smaller type.
        squeezed = attempt(sheet, page.heading, size.width(), two);
        if (squeezed.fits && squeezed.roomy) {
            use(squeezed, two);
            return page;
        }
        const Attempt single = attempt(sheet, page.heading, size.width(), one);
        if (single.fits || squeezed.fits) {
            single.fits ? use(single, one) : use(squeezed, two);
            return page;
        }
    }
    // Nothing fits even so: the smallest two columns are squeezed into the page.
    use(squeezed, Style{2, kTries.back().textSize, kTries.back().pictureScale, 0});
    return page;
}

AnswersPage answersPage(const Sheet& sheet, const QString& yearLabel, const QSizeF& size, int columns)
{
    AnswersPage page;
    page.columns = columns;
    page.heading = heading(yearLabel, sheet.title, QCoreApplication::translate("Worksheets", "Answers"), false, size);
    const double cardWidth = columns == 2 ? (size.width() - 2 * kSide - kCardGap) / 2 : size.width() - 2 * kSide;
    const double gap = columns == 2 ? kCardGap : kOneColumnGap;
    const double room = page.heading.contentBottom - page.heading.contentTop;
    const int lines = (sheet.rows.size() + columns - 1) / columns;
    const double evenShare = (room - gap * (lines - 1)) / lines;
    for (double textSize : kAnswerSizes) {
        const QFont f = font(Face::Sans, textSize, true);
        const double lineSpacing = QFontMetricsF(f).lineSpacing();
        QVector<TextBox> texts;
        QVector<double> needs;
        for (const Row& row : sheet.rows) {
            const QString answer = row.answerUnit.isEmpty() ? row.answer : row.answer + QLatin1Char(' ') + row.answerUnit;
            texts << wrapped(answer, f, kTextLeft, 0, cardWidth - kTextLeft - kCardPadding);
            // Short answers get roomy cards, but the page ends where the answers do.
            const double block = std::max(texts.last().box.height(), kDiscDiameter);
            needs << std::max(block + 2 * kCardPadding, std::min(kAnswerCardHeight, evenShare));
        }
        const QVector<double> heights = lineNeeds(needs, columns);
        if (total(heights, gap) > room && textSize != kAnswerSizes.back())
            continue;
        page.cards = placeCards<AnswerCard>(sheet.rows.size(), columns, cardWidth, page.heading.contentTop, heights,
                                            gap, [&](int i, const QRectF& card) {
                                                AnswerCard c;
                                                c.card = card;
                                                c.answer = texts[i];
                                                c.answer.box.moveTo(card.left() + kTextLeft,
                                                                    card.center().y() - c.answer.box.height() / 2);
                                                c.disc = discAt(QPointF(card.left() + kDiscCentre,
                                                                        c.answer.box.top() + lineSpacing / 2));
                                                c.number = numberIn(c.disc, i + 1);
                                                return c;
                                            });
        break;
    }
    return page;
}

QColor screenBlue() { return QColor(48, 133, 214); }
QColor ink() { return QColor(30, 30, 40); }
QColor titleBlue() { return QColor(20, 60, 130); }
QColor cardEdge() { return QColor(150, 180, 220); }
QColor rule() { return QColor(120, 120, 130); }
QColor bandEdge() { return QColor(224, 180, 70); }
QColor bandFill() { return QColor(255, 247, 214); }
QColor footerGrey() { return QColor(130, 130, 140); }

} // namespace Worksheets::Layout
