#include "fractionline.h"

#include "kit/parts/answerchain.h"
#include "runtime/spoken.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QLineEdit>
#include <QPainter>
#include <algorithm>

namespace {
// Every length is a share of one number's place, the cell width.
constexpr double kCellHeight = 0.8;   // a number's place is a little less tall than wide
constexpr double kBarGap = 0.08;      // between a number and the bar
constexpr double kBar = 0.07;         // the bar's thickness
constexpr double kEquals = 0.6;       // the "=" between two fractions
constexpr double kPadding = 0.2;      // round the line, inside its panel
constexpr double kNoteHeight = 0.5;   // the row of notes under the fractions
constexpr double kDigits = 0.75;      // a number's height in its place
constexpr double kNoteDigits = 0.34;  // a note's height, as a share of the cell width
constexpr double kCorner = 0.15;      // the panel's rounded corners
constexpr double kBoxEdge = 0.055;    // an answer box's edge
constexpr double kBoxCorner = 0.1;
constexpr double kBoxPoints = 24; // until the line sizes the boxes to its numbers
// A line of two fractions need not fill the board: its cells stay this wide.
constexpr int kLargestCellTwips = 1080;

const QString kSerif = QStringLiteral("Times New Roman");
const QColor kBoxEdgeColour(48, 133, 214);
const QColor kFocusEdge(255, 150, 0);
const QColor kNoteInk(190, 70, 0);

// The fraction's height, from the top number's top to the bottom number's foot.
constexpr double kFractionHeight = 2 * kCellHeight + 2 * kBarGap + kBar;

QString rgb(const QColor& c)
{
    return QStringLiteral("rgb(%1, %2, %3)").arg(c.red()).arg(c.green()).arg(c.blue());
}
} // namespace

FractionLine::FractionLine(QWidget* parent)
    : QWidget(parent)
{
    Spoken::readAsOne(this);
}

QLineEdit* FractionLine::addBox(AnswerChain* chain, const QString& name, const QString& accessibleName, int digits)
{
    AnswerBox::Options options;
    options.maxLength = digits;
    const bool zeroAllowed = true;
    return chain->addBox(this, name, accessibleName, Twips::font(kSerif, kBoxPoints, true), options, zeroAllowed);
}

void FractionLine::setFractions(const QVector<Fraction>& fractions)
{
    m_fractions = fractions;
    placeBoxes();
    update();
}

void FractionLine::setNotes(const QStringList& notes)
{
    m_notes = notes;
    update();
}

double FractionLine::cellWidth() const
{
    const int n = std::max(1, int(m_fractions.size()));
    const double across = n + (n - 1) * kEquals + 2 * kPadding;
    const double down = kFractionHeight + kNoteHeight + 2 * kPadding;
    return std::min({width() / across, height() / down, double(Twips::toPixels(kLargestCellTwips))});
}

QRectF FractionLine::panel() const
{
    const double cell = cellWidth();
    const int n = int(m_fractions.size());
    const QSizeF size(cell * (n + (n - 1) * kEquals + 2 * kPadding),
                      cell * (kFractionHeight + kNoteHeight + 2 * kPadding));
    // Centred, with room for the notes under the fractions.
    return QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
}

QRectF FractionLine::numberRect(int fraction, bool bottom) const
{
    const double cell = cellWidth();
    const QRectF p = panel();
    const double left = p.left() + cell * (kPadding + fraction * (1 + kEquals));
    const double top = p.top() + cell * (kPadding + (bottom ? kCellHeight + 2 * kBarGap + kBar : 0));
    return QRectF(left, top, cell, cell * kCellHeight);
}

QRect FractionLine::numberPlace(int fraction, bool bottom) const
{
    return numberRect(fraction, bottom).toAlignedRect();
}

QFont FractionLine::numberFont() const
{
    QFont font(kSerif);
    font.setBold(true);
    font.setPixelSize(std::max(1, int(cellWidth() * kCellHeight * kDigits)));
    return font;
}

void FractionLine::placeBoxes()
{
    const QFont font = numberFont();
    const int edge = std::max(1, int(cellWidth() * kBoxEdge));
    const QString style = QStringLiteral("QLineEdit { background: %1; color: %2; border: %3px solid %4;"
                                         " border-radius: %5px; padding: 0px; }"
                                         " QLineEdit:focus { border-color: %6; }")
                              .arg(rgb(Module1::kPanelPaper), rgb(Module1::kPanelInk))
                              .arg(edge)
                              .arg(rgb(kBoxEdgeColour))
                              .arg(int(cellWidth() * kBoxCorner))
                              .arg(rgb(kFocusEdge));
    for (int f = 0; f < m_fractions.size(); ++f) {
        for (const bool bottom : {false, true}) {
            QLineEdit* box = bottom ? m_fractions[f].bottom.box : m_fractions[f].top.box;
            if (!box)
                continue;
            box->setGeometry(numberPlace(f, bottom));
            box->setFont(font);
            box->setAlignment(Qt::AlignCenter);
            if (box->styleSheet() != style)
                box->setStyleSheet(style);
        }
    }
}

void FractionLine::resizeEvent(QResizeEvent*)
{
    placeBoxes();
}

void FractionLine::paintEvent(QPaintEvent*)
{
    if (m_fractions.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double cell = cellWidth();
    const QRectF p = panel();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Module1::kPanelPaper);
    painter.drawRoundedRect(p, cell * kCorner, cell * kCorner);

    painter.setFont(numberFont());
    for (int f = 0; f < m_fractions.size(); ++f) {
        const Fraction& fraction = m_fractions[f];
        painter.setPen(Module1::kPanelInk);
        for (const bool bottom : {false, true}) {
            const Number& number = bottom ? fraction.bottom : fraction.top;
            if (!number.box)
                painter.drawText(numberRect(f, bottom), Qt::AlignCenter, QString::number(number.value));
        }
        const QRectF top = numberRect(f, false);
        const QRectF bar(top.left(), top.bottom() + cell * kBarGap, cell, cell * kBar);
        painter.fillRect(bar, Module1::kPanelInk);
        if (f + 1 < m_fractions.size()) {
            const QRectF equals(top.right(), bar.center().y() - cell * kCellHeight / 2, cell * kEquals,
                                cell * kCellHeight);
            painter.drawText(equals, Qt::AlignCenter, QStringLiteral("="));
        }
    }

    QFont noteFont(kSerif);
    noteFont.setBold(true);
    noteFont.setPixelSize(std::max(1, int(cell * kNoteDigits)));
    painter.setFont(noteFont);
    painter.setPen(kNoteInk);
    for (int f = 0; f < m_notes.size() && f < m_fractions.size(); ++f) {
        const QRectF under(numberRect(f, false).left() - cell * kEquals / 2,
                           p.top() + cell * (kPadding + kFractionHeight), cell * (1 + kEquals), cell * kNoteHeight);
        painter.drawText(under, Qt::AlignCenter, m_notes[f]);
    }
}
