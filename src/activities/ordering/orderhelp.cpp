#include "orderhelp.h"

#include "boardlabels.h"
#include "placevalue.h"
#include "runtime/forms.h"
#include "runtime/twips.h"
#include "shell/activityform.h"
#include "shell/module1.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

// The last example is 4.211 while the explanation calls the biggest 4.41:
// both are the screen's words and stay as they are.
const QStringList orderhelp::kExamples = {QStringLiteral("3.4 7 2"), QStringLiteral("3.4 8 2"),
                                          QStringLiteral("3.4 9"), QStringLiteral("3.5 1 6"),
                                          QStringLiteral("4.2 1 1")};

const std::vector<orderhelp::Line> orderhelp::kExplanation = {
    {QT_TRANSLATE_NOOP("orderhelp", "Reading from the left :"), {}},
    {QT_TRANSLATE_NOOP("orderhelp", "%1 is less than %2"), {{"3.472", 3}, {"3.482", 3}}},
    {QT_TRANSLATE_NOOP("orderhelp", "since the %1 is less than the %2"), {{"7", -1}, {"8", -1}}},
    {QT_TRANSLATE_NOOP("orderhelp", "%1 is less than %2"), {{"3.482", 3}, {"3.49", 3}}},
    {QT_TRANSLATE_NOOP("orderhelp", "since the %1 is less than the %2"), {{"8", -1}, {"9", -1}}},
    {QT_TRANSLATE_NOOP("orderhelp", "%1 is less than %2"), {{"3.49", 2}, {"3.516", 2}}},
    {QT_TRANSLATE_NOOP("orderhelp", "since the %1 is less than the %2"), {{"4", -1}, {"5", -1}}},
    {QT_TRANSLATE_NOOP("orderhelp", "%1 is the biggest"), {{"4.41", 0}}},
    {QT_TRANSLATE_NOOP("orderhelp", "since %1 units is bigger than %2 units"), {{"4", -1}, {"3", -1}}},
};

QString orderhelp::lineHtml(const Line& line, const QString& markColour)
{
    // The sentence is translated whole; its numbers go in afterwards, so the
    // compared digits stand out wherever a language puts them.
    QString html = tr(line.text).toHtmlEscaped();
    for (const Number& number : line.numbers) {
        const QString digits = QString::fromLatin1(number.digits);
        QString marked;
        for (int i = 0; i < digits.size(); ++i) {
            const QString c = digits.mid(i, 1).toHtmlEscaped();
            if (number.compared < 0 || number.compared == i)
                marked += QStringLiteral("<span style=\"color:%1; font-weight:bold; font-size:large;\">%2</span>")
                              .arg(markColour, c);
            else
                marked += c;
        }
        html = html.arg(marked);
    }
    return html;
}

namespace {
const QString kWords = QStringLiteral("Times New Roman");
const QColor kMarked{255, 224, 80};

// Layout, in twips inside the window.
constexpr int kBarHeight = 780;
constexpr int kColumnsLeft = 720;
constexpr int kColumnsWidth = 3840;
constexpr int kHeadsTop = 1560;
constexpr int kHeadsHeight = 900;
constexpr int kFirstExampleTop = 2580;
constexpr int kExamplePitch = 640;
constexpr int kExampleHeight = 600;
constexpr int kExplanationLeft = 4860;

// The explanation as rich text: a gap before each comparison, and the
// compared digits bold, larger and coloured.
QString explanationHtml()
{
    QString html;
    for (std::size_t n = 0; n < orderhelp::kExplanation.size(); ++n) {
        const bool opensPair = n > 0 && n % 2 == 1;
        html += QStringLiteral("<p style=\"margin-top:%1px; margin-bottom:0px;\">").arg(opensPair ? 10 : 0);
        html += orderhelp::lineHtml(orderhelp::kExplanation[n], kMarked.name());
        html += QStringLiteral("</p>");
    }
    return html;
}
} // namespace

orderhelp::orderhelp()
    : Form(QStringLiteral("orderhelp"))
    , Frame1(new QFrame(this))
    , Label1(wordLabel(Frame1, QStringLiteral("Label1"), tr("Happy to help"), 22, Module1::kPanelInk))
    , Label2(wordLabel(this, QStringLiteral("Label2"),
                       tr("The following decimals are in order of size starting with the smallest:"), 14,
                       Qt::white))
    , Image1(new PlaceValueHeads(this, QStringLiteral("Image1")))
    , Image2(wordLabel(this, QStringLiteral("Image2"), explanationHtml(), 12, Qt::white))
    , Image3(new ArrowLabel(this, QStringLiteral("Image3"), ArrowLabel::Direction::Down, kMarked))
    , Frame2(new QFrame(this))
    , cmdexit(new QPushButton(tr("Exit"), Frame2))
{
    setWindowTitle(tr("Year 6 "));
    setDesignSize(kInsideWidth + kBorderWidthTwips, kInsideHeight + kBorderHeightTwips);
    // The activity waits behind until the child leaves.
    setWindowModality(Qt::ApplicationModal);

    Frame1->setObjectName(QStringLiteral("Frame1"));
    setControlBackColour(Frame1, Module1::kPanelPaper);
    Twips::place(Frame1, 0, 0, kInsideWidth, kBarHeight);
    Twips::place(Label1, 0, 0, kInsideWidth, kBarHeight);
    Twips::place(Label2, 360, 900, kInsideWidth - 720, 540);

    Image1->setFont(Twips::font(kWords, 12, true));
    Twips::place(Image1, kColumnsLeft, kHeadsTop, kColumnsWidth, kHeadsHeight);
    for (int i = 0; i < kExamples.size(); ++i) {
        auto* row = new PlaceValueRow(this, QStringLiteral("Label%1").arg(3 + i), kExamples[i]);
        row->setFont(Twips::font(kWords, 24, true));
        QPalette palette = row->palette();
        palette.setColor(QPalette::WindowText, Qt::white);
        row->setPalette(palette);
        Twips::place(row, kColumnsLeft, kFirstExampleTop + i * kExamplePitch, kColumnsWidth, kExampleHeight);
        examples.append(row);
    }
    Twips::place(Image3, 180, kFirstExampleTop + 60, 420, 4 * kExamplePitch + kExampleHeight - 120);

    Image2->setTextFormat(Qt::RichText);
    Image2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Image2->setFont(Twips::font(kWords, 13, false));
    Twips::place(Image2, kExplanationLeft, kHeadsTop, kInsideWidth - kExplanationLeft - 240, 4380);

    Frame2->setObjectName(QStringLiteral("Frame2"));
    setControlBackColour(Frame2, Module1::kPanelPaper);
    Twips::place(Frame2, 0, kInsideHeight - kBarHeight, kInsideWidth, kBarHeight);
    cmdexit->setObjectName(QStringLiteral("cmdexit"));
    cmdexit->setFont(Twips::font(QStringLiteral("Arial"), 11, true));
    cmdexit->setIconSize(Twips::scaledPixels(QSize(28, 28)));
    cmdexit->setToolTip(tr("Goodbye"));
    Twips::place(cmdexit, kInsideWidth - 1455 - 240, 75, 1455, kBarHeight - 150);

    connect(cmdexit, &QPushButton::clicked, this, &orderhelp::cmdexit_Click);
}

void orderhelp::Form_Load()
{
    setBackColour(Module1::kActivityBack);
    Module1::centreform(*this);
    setButtonPicture(cmdexit, QStringLiteral("ico\\door2.ico"));
}

void orderhelp::cmdexit_Click()
{
    Forms::unload(this);
}

void orderhelp::wayBack()
{
    cmdexit_Click();
}
