// The ordering screen's board and its places: the five numbers, the answer
// column with its arrows, the opening panel and the lines around them.
#include "y6fract3.h"

#include "boardlabels.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Module1;

const QColor Y6fract3::kHighlight{255, 224, 80};

namespace {
const QString kWords = QStringLiteral("Times New Roman");

// The number and answer cards: the same size in both columns, the numbers'
// card kept to the right of its place, clear of the reward picture. A
// placed number greys; the answers keep their colours.
QString cardStyle(const char* type, int leftMargin, int rightMargin, bool greys)
{
    QString style = QStringLiteral("%1 { background: rgb(255, 251, 238); color: rgb(0, 58, 140);"
                                   " border: 2px solid rgb(0, 58, 140); border-radius: 8px;"
                                   " margin-left: %2px; margin-right: %3px; }")
                        .arg(QLatin1String(type))
                        .arg(leftMargin)
                        .arg(rightMargin);
    if (greys)
        style += QStringLiteral("%1:disabled { background: rgb(186, 205, 228); color: rgb(112, 128, 150);"
                                " border-color: rgb(140, 160, 188); }"
                                "%1:focus { border: 3px solid rgb(255, 200, 0); }")
                     .arg(QLatin1String(type));
    return style;
}

// Layout, in twips. The board's places are inside Frame1.
constexpr int kFrameTop = 1140;
constexpr int kSlotTops[NumberSet::kCount] = {720, 1530, 2340, 3150, 3960};
constexpr int kCardWidth = 1575;
constexpr int kCardHeight = 795;
constexpr int kNumbersLeft = 3885;
constexpr int kSlotsLeft = 7860;
constexpr int kNumberCardInset = 28; // pixels
constexpr int kSlotCardInset = 14;   // pixels
constexpr int kPointerWidth = 1305;
constexpr int kPointerHeight = 555;
constexpr int kArrowLeft = 6960;
constexpr int kArrowWidth = 960;
constexpr int kLeftColumn = 120;
// The message lines stand right of the widest reward picture (4320 twips).
constexpr int kMessageLeft = 4380;
constexpr int kMessageWidth = Form::kScreenScaleWidthTwips - kMessageLeft - 60;
constexpr int kLeftColumnWidth = 3600;
constexpr int kOptionsLeft = 5580;
} // namespace

void Y6fract3::layOut()
{
    // Around the board: the title under the reward picture, the instruction
    // of a new run above where the picture will stand, the message lines
    // over the two columns.
    Twips::place(Label4, kLeftColumn, 5520, kLeftColumnWidth, 840);
    Twips::place(Label9, kLeftColumn, 1320, kLeftColumnWidth, 1500);
    Label9->hide();
    Twips::place(Label1, kMessageLeft, kFrameTop + 30, kMessageWidth, 690);
    // The feedback stands over the title, in the left column: the stars of a
    // right answer play over the right of the screen.
    Twips::place(Label2, kLeftColumn, 5400, kLeftColumnWidth + 120, 1020);
    setControlBackColour(Label2, kActivityBack);
    Label2->raise();
    Label2->hide();
    Twips::place(Label8, kNumbersLeft, 2400, 5400, 1800);
    // The ready message's place reaches under the reward picture's edge;
    // its words keep clear of it.
    constexpr int kClearOfPicture = 24; // pixels
    Label8->setContentsMargins(kClearOfPicture, 0, kClearOfPicture, 0);
    Label8->hide();
    cmdundo->setObjectName(QStringLiteral("cmdundo"));
    cmdundo->setFont(Twips::font(QStringLiteral("Arial"), 11, true));
    Twips::place(cmdundo, kNumbersLeft + Twips::fromPixels(kNumberCardInset), kFrameTop + 4845,
                 kCardWidth - Twips::fromPixels(kNumberCardInset), 450);
    cmdundo->hide();
    // The reward picture stands in the left column, over the board's frame.
    Twips::move(Image2, 0, 1200);
    Image2->raise();
    raiseButtons();
    cmdundo->raise(); // the board's frame, made after it, would cover it
}

void Y6fract3::buildBoard()
{
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Twips::place(Frame1, 0, kFrameTop, Form::kScreenScaleWidthTwips, 5370);
    Frame1->hide();

    Shape1 = new QFrame(Frame1);
    Shape1->setObjectName(QStringLiteral("Shape1"));
    Shape1->setStyleSheet(QStringLiteral("#Shape1 { border: 2px solid white; border-radius: 12px; }"));
    Twips::place(Shape1, kSlotsLeft + Twips::fromPixels(kSlotCardInset) - 90, kSlotTops[0] - 60,
                 kCardWidth - 2 * Twips::fromPixels(kSlotCardInset) + 180,
                 kSlotTops[NumberSet::kCount - 1] + kCardHeight - kSlotTops[0] + 120);

    const QFont numberFont = Twips::font(kWords, 20, true);
    for (int i = 0; i < NumberSet::kCount; ++i) {
        auto* number = new NumberLabel(Frame1, QStringLiteral("Label10(%1)").arg(i));
        number->setText(QStringLiteral("9.999"));
        number->setFont(numberFont);
        number->setStyleSheet(cardStyle("NumberLabel", kNumberCardInset, 0, true));
        Twips::place(number, kNumbersLeft, kSlotTops[i], kCardWidth, kCardHeight);
        connect(number, &NumberLabel::clicked, this, [this, i] { Label10_Click(i); });
        Label10.append(number);

        auto* slot = new QLabel(Frame1);
        slot->setObjectName(QStringLiteral("Label11(%1)").arg(i));
        slot->setFont(numberFont);
        slot->setAlignment(Qt::AlignCenter);
        slot->setStyleSheet(cardStyle("QLabel", kSlotCardInset, kSlotCardInset, false));
        Twips::place(slot, kSlotsLeft, kSlotTops[i], kCardWidth, kCardHeight);
        Label11.append(slot);
    }

    Label12[5] = wordLabel(Frame1, QStringLiteral("Label12(5)"), tr("Smallest"), 14, Y6fract3::kHighlight);
    Twips::place(Label12[5], 5595, 840, kPointerWidth, kPointerHeight);
    Label12[0] = wordLabel(Frame1, QStringLiteral("Label12(0)"), tr("Biggest"), 14, Y6fract3::kHighlight);
    Twips::place(Label12[0], 5580, 4080, kPointerWidth, kPointerHeight);
    Label5 = new ArrowLabel(Frame1, QStringLiteral("Label5"), ArrowLabel::Direction::Right, Y6fract3::kHighlight);
    Twips::place(Label5, kArrowLeft, 840, kArrowWidth, kPointerHeight);
    Label13 = new ArrowLabel(Frame1, QStringLiteral("Label13"), ArrowLabel::Direction::Right, Y6fract3::kHighlight);
    Twips::place(Label13, kArrowLeft, 4080, kArrowWidth, kPointerHeight);
}

void Y6fract3::buildOpeningPanel()
{
    constexpr int kPanelWidth = 6880;
    Twips::place(Picture1, 1300, 1320, kPanelWidth, 3960);
    Label3 = wordLabel(Picture1, QStringLiteral("Label3"), tr("Good Luck."), 26, Qt::white);
    Twips::place(Label3, 0, 240, kPanelWidth, 780);
    Label6 = wordLabel(Picture1, QStringLiteral("Label6"),
                       tr("Aim to get 10 or 20 questions correct to gain a certificate."), 14, Qt::white);
    Twips::place(Label6, 480, 1140, kPanelWidth - 960, 1260);

    // The run's length stays in sight all run long, under the answer column.
    Frame2 = new QFrame(this);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    Twips::place(Frame2, kOptionsLeft, kFrameTop + 4800, 3840, 540);
    for (QRadioButton* option : {Option1, Option2}) {
        option->setParent(Frame2);
        option->setFont(Twips::font(kWords, 12, true));
        QPalette palette = option->palette();
        palette.setColor(QPalette::WindowText, Qt::white);
        option->setPalette(palette);
    }
    Twips::place(Option1, 60, 30, 1860, 480);
    Twips::place(Option2, 1920, 30, 1860, 480);
}
