// The controls of the mixed-numbers screen and where they stand: the
// question column on the left (instruction, the panel with the fraction,
// the answer boxes), the reward picture on the right, the band for the
// typing instruction and the hint along the bottom, and the opening panel.
#include "y5fract4.h"

#include "activities/activitytable.h"
#include "kit/parts/answerbox.h"
#include "mixedpanel.h"
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
using namespace MixedPanel;
using Module1::kActivityBack;
using Module1::kPanelInk;
using Module1::kPanelPaper;

const QString kSerif = QStringLiteral("Times New Roman");
const QColor kWhite(255, 255, 255);
const QColor kFeedbackInk(255, 236, 120);

// The screen, in twips inside the window (9480 x 6510).
constexpr int kColumnLeft = 120;
constexpr int kColumnWidth = MixedPanel::kWidth;
constexpr int kInstructionTop = 1230;
constexpr int kInstructionHeight = 600;
constexpr int kPanelTop = 1890;
constexpr int kPanelHeight = MixedPanel::kHeight;
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

// Every right answer of Year 5 has at most two digits (99 is the largest);
// Year 6's improper numerators have three (155). Either way a typed value
// stays far inside 16-bit numbers.
constexpr int kTwoDigits = AnswerBox::kTwoDigits;

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

} // namespace

void y5fract4::buildBoard()
{
    setWindowTitle(QCoreApplication::translate("Year", m_mode.year));
    const QFont words = Twips::font(kSerif, 13, true);
    const QFont numbers = Twips::font(kSerif, kNumberPoints, true);

    // The opening panel, with the title, the run's length and the prompt.
    Picture1->setBackColour(kPanelPaper);
    Twips::place(Picture1, kOpeningLeft, kOpeningTop, kOpeningWidth, kOpeningHeight);
    const int openingInside = kOpeningWidth - 480;
    const Activities::Row* row = Activities::forScreen(objectName());
    Label4 = label(Picture1, "Label4", row ? Activities::titleText(*row) : objectName(), Twips::font(kSerif, 18, true),
                   kPanelInk, Qt::AlignCenter);
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

    // An improper fraction = a mixed number; a mixed number = an improper
    // fraction. The improper numerator's cell is as wide as its figures.
    const int improperFigures = QString::number(m_mode.range.largestImproperNumerator()).size();
    const int improperWidth = improperCellWidth(improperFigures);
    Picture2 = panel(this, "Picture2", kColumnLeft, kPanelTop, kColumnWidth, kPanelHeight, kPanelPaper);
    const Row toMixed = toMixedRow(improperWidth);
    Label7 = number(Picture2, "Label7", toMixed.improper, kNumeratorTop, improperWidth);
    Line1 = bar(Picture2, "Line1", toMixed.improper, improperWidth);
    Label9 = number(Picture2, "Label9", toMixed.improper, kDenominatorTop, improperWidth);
    Label11 = MixedPanel::equals(Picture2, "Label11", toMixed.equals);
    Label12 = number(Picture2, "Label12", toMixed.whole, kBesideTop);
    Label8 = number(Picture2, "Label8", toMixed.fraction, kNumeratorTop);
    Line2 = bar(Picture2, "Line2", toMixed.fraction);
    Label10 = number(Picture2, "Label10", toMixed.fraction, kDenominatorTop);

    Picture3 = panel(this, "Picture3", kColumnLeft, kPanelTop, kColumnWidth, kPanelHeight, kPanelPaper);
    const Row toImproper = toImproperRow(improperWidth);
    Label19 = number(Picture3, "Label19", toImproper.whole, kBesideTop, kCellWidth, Qt::AlignRight | Qt::AlignVCenter);
    Label16 = number(Picture3, "Label16", toImproper.fraction, kNumeratorTop);
    Line3 = bar(Picture3, "Line3", toImproper.fraction);
    Label15 = number(Picture3, "Label15", toImproper.fraction, kDenominatorTop);
    Label13 = MixedPanel::equals(Picture3, "Label13", toImproper.equals);
    Label17 = number(Picture3, "Label17", toImproper.improper, kNumeratorTop, improperWidth);
    Line4 = bar(Picture3, "Line4", toImproper.improper, improperWidth);
    Label14 = number(Picture3, "Label14", toImproper.improper, kDenominatorTop, improperWidth);
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
                   void (y5fract4::*handler)(int&), int digits = kTwoDigits) {
        const AnswerBox::Options options{digits, false};
        QLineEdit* b = AnswerBox::make(parent, QString::fromLatin1(name), spoken, numbers, options,
                                       [this, handler](int& keyAscii) { (this->*handler)(keyAscii); });
        b->setStyleSheet(boxStyle());
        b->setGeometry(under->geometry());
        b->raise();
        return b;
    };
    Text1 = box(Picture2, "Text1", tr("whole number"), Label12, &y5fract4::Text1_KeyPress);
    Text4 = box(Picture2, "Text4", tr("top number"), Label8, &y5fract4::Text4_KeyPress);
    Text2 = box(Picture2, "Text2", tr("bottom number"), Label10, &y5fract4::Text2_KeyPress);
    Text3 = box(Picture3, "Text3", tr("top number"), Label17, &y5fract4::Text3_KeyPress, improperFigures);
    Text5 = box(Picture3, "Text5", tr("bottom number"), Label14, &y5fract4::Text5_KeyPress);

    // The band along the bottom: typing instruction or hint, and the product.
    Frame2 = panel(this, "Frame2", kColumnLeft, kBandTop, kBandWidth, kBandHeight, kActivityBack);
    Label5 = label(Frame2, "Label5", QString(), words, kWhite);
    Twips::place(Label5, 120, 0, kHintWidth, kBandHeight);
    Label5->hide();
    // The band's first words say what is typed; a mode asking only for
    // improper fractions says so.
    const bool fractionsOnly = m_mode.range.direction == MixedQuestion::kToImproper;
    Label18 = label(Frame2, "Label18",
                    fractionsOnly ? tr("Type in the correct fraction and use the ENTER key to move on")
                                  : tr("Type in your mixed number and use the ENTER key to move on"),
                    words, kWhite);
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
