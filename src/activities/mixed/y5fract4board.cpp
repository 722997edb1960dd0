// The controls of the mixed-numbers screen and where they stand: the
// question column on the left (instruction, the panel with the fraction,
// the answer boxes), the reward picture on the right, the band for the
// typing instruction and the hint along the bottom, and the opening panel.
#include "y5fract4.h"

#include "kit/parts/answerbox.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/spoken.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
using Module1::kActivityBack;
using Module1::kPanelInk;
using Module1::kPanelPaper;

const QString kSerif = QStringLiteral("Times New Roman");
const QColor kWhite(255, 255, 255);
const QColor kFeedbackInk(255, 236, 120);
const QColor kBoxEdge(48, 133, 214);
const QColor kFocusEdge(255, 150, 0);
const QColor kWaitingEdge(170, 190, 210);

// The screen, in twips inside the window (9480 x 6510).
constexpr int kColumnLeft = 120;
constexpr int kColumnWidth = 3420;
constexpr int kInstructionTop = 1230;
constexpr int kInstructionHeight = 600;
constexpr int kPanelTop = 1890;
constexpr int kPanelHeight = 2880;
// The run's length stays in sight under the question, all run long.
constexpr int kOptionsTop = kPanelTop + kPanelHeight + 60;
constexpr int kOptionsHeight = 540;
// Under the ready message, which stands at Left 4035, Width 4860.
constexpr int kPictureLeft = 4305;
constexpr int kPictureTop = 1200;
constexpr int kBandTop = 5460;
constexpr int kBandWidth = 9240;
constexpr int kBandHeight = 960;
constexpr int kHintWidth = 7200;
constexpr int kProductLeft = 7440;
constexpr int kProductWidth = 1680;
constexpr int kOpeningLeft = 1300;
constexpr int kOpeningTop = 1320;
constexpr int kOpeningWidth = 6880;
constexpr int kOpeningHeight = 3180; // above the run's length

// The numbers in a panel: cells of one or two digits, a fraction being a
// numerator cell over a bar over a denominator cell.
constexpr double kNumberPoints = 32;
constexpr int kCellWidth = 780;
constexpr int kCellHeight = 960;
constexpr int kBarGap = 60;
constexpr int kBarThickness = 60;
constexpr int kEqualsWidth = 360;
constexpr int kFractionHeight = 2 * kCellHeight + 2 * kBarGap + kBarThickness;
constexpr int kNumeratorTop = (kPanelHeight - kFractionHeight) / 2;
constexpr int kBarTop = kNumeratorTop + kCellHeight + kBarGap;
constexpr int kDenominatorTop = kBarTop + kBarThickness + kBarGap;
// A whole number and the "=" stand level with the bar.
constexpr int kBesideTop = kBarTop + kBarThickness / 2 - kCellHeight / 2;
constexpr int kFirstColumn = 150;
// Between the given number, the "=" and the answer; a whole number stands
// closer to its fraction.
constexpr int kColumnGap = 120;
constexpr int kWholeGap = 60;

// Every right answer has at most two digits (99 is the largest). Two digits
// also keep a typed value far inside 16-bit numbers.
constexpr AnswerBox::Options kBoxOptions{AnswerBox::kTwoDigits, false};

void setInk(QWidget* control, const QColor& ink, const QColor& back)
{
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Window, back);
    control->setPalette(palette);
}

QLabel* label(QWidget* parent, const char* name, const QString& text, const QFont& font, const QColor& ink,
              Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter)
{
    auto* l = new QLabel(text, parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setFont(font);
    l->setAlignment(align);
    l->setWordWrap(true);
    setInk(l, ink, kActivityBack);
    return l;
}

// A number on a question panel, in the panel's colours.
QLabel* number(QWidget* panel, const char* name, int left, int top, Qt::Alignment align = Qt::AlignCenter)
{
    QLabel* l = label(panel, name, QString(), Twips::font(kSerif, kNumberPoints, true), kPanelInk, align);
    l->setWordWrap(false);
    setControlBackColour(l, kPanelPaper);
    setInk(l, kPanelInk, kPanelPaper);
    Twips::place(l, left, top, kCellWidth, kCellHeight);
    return l;
}

QFrame* bar(QWidget* panel, const char* name, int left)
{
    auto* line = new QFrame(panel);
    line->setObjectName(QString::fromLatin1(name));
    setControlBackColour(line, kPanelInk);
    Twips::place(line, left, kBarTop, kCellWidth, kBarThickness);
    return line;
}

QFrame* panel(QWidget* parent, const char* name, int left, int top, int width, int height, const QColor& back)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(QString::fromLatin1(name));
    setControlBackColour(frame, back);
    Twips::place(frame, left, top, width, height);
    return frame;
}

QString rgb(const QColor& c)
{
    return QStringLiteral("rgb(%1, %2, %3)").arg(c.red()).arg(c.green()).arg(c.blue());
}

// The answer boxes look like the numbers they stand for, inside a coloured
// edge: orange where the child types next, faint while still to come.
QString boxStyle()
{
    return QStringLiteral("QLineEdit { background: %1; color: %2; border: 3px solid %3; border-radius: 6px;"
                          " padding: 0px; }"
                          " QLineEdit:focus { border-color: %4; }"
                          " QLineEdit:disabled { border: 3px dashed %5; }")
        .arg(rgb(kPanelPaper), rgb(kPanelInk), rgb(kBoxEdge), rgb(kFocusEdge), rgb(kWaitingEdge));
}

} // namespace

void y5fract4::buildBoard()
{
    setWindowTitle(QCoreApplication::translate("Year", "Year 5"));
    const QFont words = Twips::font(kSerif, 13, true);
    const QFont numbers = Twips::font(kSerif, kNumberPoints, true);

    // The opening panel, with the title, the run's length and the prompt.
    Picture1->setBackColour(kPanelPaper);
    Twips::place(Picture1, kOpeningLeft, kOpeningTop, kOpeningWidth, kOpeningHeight);
    const int openingInside = kOpeningWidth - 480;
    Label4 = label(Picture1, "Label4",
                   QCoreApplication::translate(
                       "Activities", "Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers"),
                   Twips::font(kSerif, 18, true), kPanelInk, Qt::AlignCenter);
    Twips::place(Label4, 240, 180, openingInside, 1200);
    Label6 = label(Picture1, "Label6", tr("Aim to get 10 or 20 questions correct to gain a certifcate."),
                   Twips::font(kSerif, 13, false), kPanelInk, Qt::AlignCenter);
    Twips::place(Label6, 240, 1440, openingInside, 720);
    Frame1 = panel(this, "Frame1", kColumnLeft, kOptionsTop, kColumnWidth, kOptionsHeight, kPanelPaper);
    for (QRadioButton* option : {Option1, Option2}) {
        option->setParent(Frame1);
        option->setFont(Twips::font(QStringLiteral("Arial"), 10, true));
        setInk(option, kPanelInk, kPanelPaper);
        setControlBackColour(option, kPanelPaper);
    }
    Twips::place(Option1, 120, 90, 1620, 360);
    Twips::place(Option2, 1800, 90, 1620, 360);
    Label3 = label(Picture1, "Label3", tr("Good Luck."), Twips::font(kSerif, 16, true), kPanelInk, Qt::AlignCenter);
    Twips::place(Label3, 240, 2340, openingInside, 540);
    for (QLabel* l : {Label4, Label6, Label3})
        setInk(l, kPanelInk, kPanelPaper);

    // The question's instruction, and the feedback that takes its place.
    Label1 = label(this, "Label1", QString(), words, kWhite);
    Twips::place(Label1, kColumnLeft, kInstructionTop, kColumnWidth, kInstructionHeight);
    Label2 = label(this, "Label2", QString(), words, kFeedbackInk);
    Twips::place(Label2, kColumnLeft, kInstructionTop, kColumnWidth, kInstructionHeight);
    Label2->hide();

    // An improper fraction = a mixed number.
    Picture2 = panel(this, "Picture2", kColumnLeft, kPanelTop, kColumnWidth, kPanelHeight, kPanelPaper);
    const int given = kFirstColumn;
    const int equals = given + kCellWidth + kColumnGap;
    const int wholeBox = equals + kEqualsWidth + kColumnGap;
    const int fractionBox = wholeBox + kCellWidth + kWholeGap;
    Label7 = number(Picture2, "Label7", given, kNumeratorTop);
    Line1 = bar(Picture2, "Line1", given);
    Label9 = number(Picture2, "Label9", given, kDenominatorTop);
    Label11 = number(Picture2, "Label11", equals, kBesideTop);
    Label11->setText(QStringLiteral("="));
    Label11->resize(Twips::toPixels(kEqualsWidth), Label11->height());
    Label12 = number(Picture2, "Label12", wholeBox, kBesideTop);
    Label8 = number(Picture2, "Label8", fractionBox, kNumeratorTop);
    Line2 = bar(Picture2, "Line2", fractionBox);
    Label10 = number(Picture2, "Label10", fractionBox, kDenominatorTop);

    // A mixed number = an improper fraction.
    Picture3 = panel(this, "Picture3", kColumnLeft, kPanelTop, kColumnWidth, kPanelHeight, kPanelPaper);
    const int wholeLabel = kFirstColumn;
    const int givenFraction = wholeLabel + kCellWidth + kWholeGap;
    const int equals3 = givenFraction + kCellWidth + kColumnGap;
    const int answer = equals3 + kEqualsWidth + kColumnGap;
    Label19 = number(Picture3, "Label19", wholeLabel, kBesideTop, Qt::AlignRight | Qt::AlignVCenter);
    Label16 = number(Picture3, "Label16", givenFraction, kNumeratorTop);
    Line3 = bar(Picture3, "Line3", givenFraction);
    Label15 = number(Picture3, "Label15", givenFraction, kDenominatorTop);
    Label13 = number(Picture3, "Label13", equals3, kBesideTop);
    Label13->setText(QStringLiteral("="));
    Label13->resize(Twips::toPixels(kEqualsWidth), Label13->height());
    Label17 = number(Picture3, "Label17", answer, kNumeratorTop);
    Line4 = bar(Picture3, "Line4", answer);
    Label14 = number(Picture3, "Label14", answer, kDenominatorTop);
    Picture2->hide();
    Picture3->hide();
    // Each panel is read as one sentence in words, named with each question;
    // its loose numbers and bars are left out, its boxes and answers kept in.
    for (QFrame* p : {Picture2, Picture3})
        Spoken::readAsOne(p);
    for (QWidget* w : std::initializer_list<QWidget*>{Label7, Line1, Label9, Label11, Line2, Label19, Label16, Line3,
                                                        Label15, Label13, Line4})
        Spoken::partOfGroupName(w);

    // Each answer box lies over the label that replaces it.
    // Each is named for the number it holds, as a screen reader says it.
    auto box = [&](QWidget* parent, const char* name, const QString& spoken, QLabel* under,
                   void (y5fract4::*handler)(int&)) {
        QLineEdit* b = AnswerBox::make(parent, QString::fromLatin1(name), spoken, numbers, kBoxOptions,
                                       [this, handler](int& keyAscii) { (this->*handler)(keyAscii); });
        b->setStyleSheet(boxStyle());
        b->setGeometry(under->geometry());
        b->raise();
        return b;
    };
    Text1 = box(Picture2, "Text1", tr("whole number"), Label12, &y5fract4::Text1_KeyPress);
    Text4 = box(Picture2, "Text4", tr("top number"), Label8, &y5fract4::Text4_KeyPress);
    Text2 = box(Picture2, "Text2", tr("bottom number"), Label10, &y5fract4::Text2_KeyPress);
    Text3 = box(Picture3, "Text3", tr("top number"), Label17, &y5fract4::Text3_KeyPress);
    Text5 = box(Picture3, "Text5", tr("bottom number"), Label14, &y5fract4::Text5_KeyPress);

    // The band along the bottom: typing instruction or hint, and the product.
    Frame2 = panel(this, "Frame2", kColumnLeft, kBandTop, kBandWidth, kBandHeight, kActivityBack);
    Label5 = label(Frame2, "Label5", QString(), words, kWhite);
    Twips::place(Label5, 120, 0, kHintWidth, kBandHeight);
    Label5->hide();
    Label18 = label(Frame2, "Label18", tr("Type in your mixed number and use the ENTER key to move on"), words, kWhite);
    Twips::place(Label18, 120, 0, kHintWidth, kBandHeight);
    Label20 = label(Frame2, "Label20", QString(), Twips::font(kSerif, 16, true), kFeedbackInk, Qt::AlignCenter);
    Twips::place(Label20, kProductLeft, 0, kProductWidth, kBandHeight);
    Label20->hide();
    // The typing instruction, the hint and its product are spoken as they appear.
    Spoken::markAsMessage(Label5);
    Spoken::markAsMessage(Label18);
    Spoken::markAsMessage(Label20);

    // The end of a run; the ready message moves it over the picture.
    Label80 = label(this, "Label80", tr("Click Start to have another go... or click Exit"),
                    Twips::font(kSerif, 16, true), kPanelInk, Qt::AlignCenter);
    // A card in the panels' colours, over the finished picture.
    Label80->setStyleSheet(QStringLiteral("QLabel { background: %1; color: %2; border: 3px solid %3;"
                                          " border-radius: 10px; padding: 12px; }")
                               .arg(rgb(kPanelPaper), rgb(kPanelInk), rgb(kWhite)));
    Twips::place(Label80, kColumnLeft, kPanelTop, kColumnWidth, kPanelHeight);
    Label80->hide();

    Twips::move(Image2, kPictureLeft, kPictureTop);
    raiseButtons();
    Picture1->raise();
}
