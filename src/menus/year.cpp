#include "year.h"

#include "logo.h"
#include "menulook.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/module1.h"
#include "shell/publisher.h"
#include "shell/titlefrm.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

const Year::Choice Year::kChoices[5] = {
    {"Command5", QT_TRANSLATE_NOOP("Year", "Year 2"), QT_TRANSLATE_NOOP("Year", "Unit 1"), 10, "y2Intro"},
    {"Command2", QT_TRANSLATE_NOOP("Year", "Year 3"), QT_TRANSLATE_NOOP("Year", "Unit 2"), 10, "y3Intro"},
    {"Command3", QT_TRANSLATE_NOOP("Year", "Year 4"), QT_TRANSLATE_NOOP("Year", "Unit 3"), 20, "y4Intro"},
    {"Command6", QT_TRANSLATE_NOOP("Year", "Year 5"), QT_TRANSLATE_NOOP("Year", "Unit 4"), 20, "y5Intro"},
    {"Command1", QT_TRANSLATE_NOOP("Year", "Year 6"), QT_TRANSLATE_NOOP("Year", "Unit 5"), 20, "y6Intro"},
};

namespace {
using MenuLook::kBack;
using MenuLook::kYearInk;

// The start-up chain's intervals.
constexpr int kTimer1Ms = 1000;
constexpr int kTimer2Ms = 3000;
constexpr int kTimer3Ms = 1000;

// Layout, in twips inside the window (9480 x 6510).
constexpr int kLeftColumn = 360;
constexpr int kRowTop = 1560;
constexpr int kRowPitch = 900;
constexpr int kYearButtonLeft = 4320;
constexpr int kYearButtonWidth = 900;
constexpr int kYearButtonHeight = 720;
constexpr int kFrameLeft = 5400;
constexpr int kFrameWidth = 2400;

// What a year button stands for in the edition in use: "Year 2" or "Unit 1".
QString editionLabel(const Year::Choice& choice)
{
    return Year::tr(Module1::version == QLatin1String("1") ? choice.unitLabel : choice.yearLabel);
}

QPushButton* arrowButton(QWidget* parent, const char* name)
{
    auto* b = new QPushButton(parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setIconSize(Twips::scaledPixels(QSize(32, 32)));
    return b;
}

} // namespace

Year::Year()
    : Form(QStringLiteral("Year"))
    , Timer4(addTimer(QStringLiteral("Timer4"), Logo::kIntervalMs))
    , Picture2(new PictureBox(this, QStringLiteral("Picture2")))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , Timer2(addTimer(QStringLiteral("Timer2"), kTimer2Ms))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Check1(nullptr) // made after the buttons: Tab reaches it last
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Command6(arrowButton(this, "Command6"))
    , Command1(arrowButton(this, "Command1"))
    , Command3(arrowButton(this, "Command3"))
    , Command5(arrowButton(this, "Command5"))
    , Command2(arrowButton(this, "Command2"))
    , Command4(arrowButton(this, "Command4"))
    , Frame1(new QFrame(this))
    , Label3(MenuLook::label(this, QStringLiteral("Label3"), QString(), Twips::font(QStringLiteral("Arial"), 9, false)))
    , Label2(MenuLook::label(this, QStringLiteral("Label2"), tr("Fractions made friendly"),
                   Twips::font(QStringLiteral("Arial"), 9, true)))
    , Label4(MenuLook::label(this, QStringLiteral("Label4"), QStringLiteral("Partitude"),
                   Twips::font(QStringLiteral("Times New Roman"), 40, true)))
{
    setWindowTitle(QStringLiteral("Partitude"));
    setDesignSize(kScreenWidthTwips, kScreenHeightTwips);

    Label4->setAlignment(Qt::AlignCenter);
    Twips::place(Label4, 0, 120, kScreenScaleWidthTwips, 1200);

    // Left: the logo and the publisher.
    Picture1->setAutoSize(true);
    Picture1->setAccessibleName(Logo::spokenName());
    Picture1->load(Logo::frameFile(Logo::Frames::Large, Module1::logoframe));
    Twips::move(Picture1, kLeftColumn + 600, kRowTop);
    Picture2->setAutoSize(true);
    Picture2->setAccessibleName(Logo::publisherSpokenName());
    Twips::move(Picture2, kLeftColumn, 3480);
    Label2->setWordWrap(true);
    Twips::place(Label2, kLeftColumn, 4620, 3000, 300);
    Label3->setText(QStringLiteral("<a href=\"%1\" style=\"color: white;\">%2</a>")
                        .arg(Publisher::kWebAddress,
                             QUrl(Publisher::kWebAddress).host()));
    Label3->setCursor(Qt::PointingHandCursor);
    Label3->setToolTip(tr("Visit our web site"));
    Twips::place(Label3, kLeftColumn, 4920, 3000, 300);

    // Right: a year button beside each year's name. The buttons are made in
    // the design's order; a screen reader takes them top to bottom, Tab reads
    // the screen (the years, then Play Sound and the door), and Year 2, the
    // first, has the focus when the menu opens.
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame1->setFrameShape(QFrame::Box);
    Frame1->setStyleSheet(QStringLiteral("QFrame#Frame1 { border: 2px solid rgba(255, 255, 255, 150); border-radius: 10px; }"));
    Twips::place(Frame1, kFrameLeft, kRowTop - 120, kFrameWidth, 5 * kRowPitch + 60);
    for (int i = 0; i < 5; ++i) {
        const int top = kRowTop + i * kRowPitch;
        QPushButton* button = findChild<QPushButton*>(QString::fromLatin1(kChoices[i].button));
        Twips::place(button, kYearButtonLeft, top, kYearButtonWidth, kYearButtonHeight);
        const Choice& choice = kChoices[i];
        connect(button, &QPushButton::clicked, this, [this, &choice] { choose(choice); });
        button->raise();

        QLabel* year = MenuLook::label(Frame1, QStringLiteral("Label12(%1)").arg(i),
                             tr(kChoices[i].yearLabel),
                             Twips::font(QStringLiteral("Times New Roman"), 22, true), kYearInk);
        Twips::place(year, 360, top - (kRowTop - 120), kFrameWidth - 480, kYearButtonHeight);
        year->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        Label12.append(year);
    }

    Command4->setToolTip(tr("Back to the start"));
    Command4->setAccessibleName(Command4->toolTip());
    Command4->setAccessibleDescription(tr("Go back to the first screen"));
    Twips::place(Command4, 8160, 5520, 1080, 840);
    Command4->raise();

    // The sound switch, under the publisher's lines.
    Check1 = new QCheckBox(tr("  Play Sound"), this);
    Check1->setObjectName(QStringLiteral("Check1"));
    Check1->setAccessibleName(Check1->text().trimmed());
    Check1->setChecked(true);
    Check1->setFont(Twips::font(QStringLiteral("Arial"), 10, true));
    Check1->setStyleSheet(QStringLiteral("color: white;"));
    Twips::place(Check1, kLeftColumn, 5640, 2400, 360);

    connect(Command4, &QPushButton::clicked, this, &Year::Command4_Click);
    connect(Timer4, &QTimer::timeout, this, &Year::Timer4_Timer);
    connect(Timer1, &QTimer::timeout, this, &Year::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Year::Timer2_Timer);
    connect(Timer3, &QTimer::timeout, this, &Year::Timer3_Timer);
    connect(Label3, &QLabel::linkActivated, this, &Year::Label3_Click);
    connect(Check1, &QCheckBox::clicked, this, &Year::Check1_Click);
}

void Year::Form_Load()
{
    Module1::questions = Module1::streak;
    setBackColour(kBack);
    Picture1->setBackColour(kBack);
    Picture2->setBackColour(kBack);
    setControlBackColour(Frame1, kBack);
    Module1::centreform(*this);
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    if (Module1::soundsetting == QLatin1String("1"))
        Check1->hide();
    if (Module1::version == QLatin1String("1")) {
        // The labels keep the number's leading blank: "Unit  1".
        for (int i = 0; i < 5; ++i)
            Label12[i]->setText(tr("Unit  %1").arg(i + 1));
    }
    if (Module1::soundoption == 0)
        Check1->setChecked(false);
    for (const Choice& choice : kChoices) {
        // The arrow shows no words: its tip and its spoken name say which
        // year (or unit) it opens.
        QPushButton* button = findChild<QPushButton*>(QString::fromLatin1(choice.button));
        button->setToolTip(editionLabel(choice));
        button->setAccessibleName(editionLabel(choice));
        button->setAccessibleDescription(tr("Open the activities of %1").arg(editionLabel(choice)));
        setButtonPicture(button, QStringLiteral("ico\\arw05rt.ico"));
    }
    setButtonPicture(Command4, QStringLiteral("ico\\door2.ico"));
    Picture2->load(Logo::bitmapFile(Logo::Frames::Large));
    Timer4->setEnabled(true);
    Timer1->setEnabled(true);
}

void Year::choose(const Choice& choice)
{
    Module1::yearlabel = editionLabel(choice);
    Module1::streak = choice.streak;
    Forms::showAndUnload(QString::fromLatin1(choice.menu), this);
}

void Year::Command4_Click()
{
    // Touching the title screen loads it afresh; it now leads back here.
    Forms::load<Titlefrm>()->Command1->setText(tr("Cancel"));
    Forms::unload(this);
    Forms::show<Titlefrm>()->Command2->setEnabled(true);
}

void Year::wayBack()
{
    Command4_Click();
}

void Year::Timer4_Timer()
{
    Picture1->load(Logo::advance(Logo::Frames::Large));
}

void Year::Timer1_Timer()
{
    Timer1->setEnabled(false);
    Timer2->setEnabled(true);
}

void Year::Timer2_Timer()
{
    Timer2->setEnabled(false);
    Timer3->setEnabled(true);
}

void Year::Timer3_Timer()
{
    Timer3->setEnabled(false);
}

void Year::Check1_Click()
{
    // The choice holds for the rest of the session (each load of the menu
    // unticks the box when soundoption is 0); it is not saved.
    Module1::soundoption = Check1->isChecked() ? 1 : 0;
}

void Year::Label3_Click()
{
    // A desktop without a browser simply does nothing.
    QDesktopServices::openUrl(QUrl(Publisher::kWebAddress));
}
