#include "titlefrm.h"

#include "module1.h"
#include "publisher.h"
#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/settingsfile.h"
#include "runtime/twips.h"
#include "settingsnames.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace {
// The side of the animation frames, in pixels (they are drawn at that size).
constexpr int kFrameSidePx = 256;


QLabel* panelLabel(QWidget* parent, const char* name, const QString& text, const QFont& font)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

QPushButton* button(QWidget* parent, const char* name, const QString& caption)
{
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setFont(Twips::font(QStringLiteral("Liberation Sans"), 12, true));
    return b;
}

// The text of a settings value read as a number, as the start-up reads it.
bool asNumber(const QString& text, double* value)
{
    bool ok = false;
    *value = text.trimmed().toDouble(&ok);
    return ok;
}
} // namespace

Titlefrm::Titlefrm()
    : Form(QStringLiteral("Titlefrm"))
    , Frame1(new QFrame(this))
    , Timer1(addTimer(QStringLiteral("Timer1"), kAnimationIntervalMs))
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Command2(button(this, "Command2", tr("Exit")))
    , Command1(button(this, "Command1", tr("OK")))
    , Label3(panelLabel(Frame1, "Label3", tr("Made by the Partitude team"),
                        Twips::font(QStringLiteral("Times New Roman"), 12, false)))
    , Label2(panelLabel(Frame1, "Label2", Publisher::kName,
                        Twips::font(QStringLiteral("Times New Roman"), 11, false)))
    , Label4(panelLabel(Frame1, "Label4", QStringLiteral("Partitude"),
                        Twips::font(QStringLiteral("Times New Roman"), 40, true)))
{
    setWindowTitle(QStringLiteral("Partitude"));
    setDesignSize(kScreenWidthTwips, kScreenHeightTwips);

    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame1->setFrameShape(QFrame::StyledPanel);
    setControlBackColour(Frame1, Module1::kPanelPaper);
    Twips::place(Frame1, 4560, 840, 4500, 3960);
    Twips::place(Label4, 120, 480, 4260, 1200);
    Twips::place(Label3, 240, 2160, 4020, 720);
    Twips::place(Label2, 240, 2940, 4020, 720);
    QPalette ink = Label4->palette();
    ink.setColor(QPalette::WindowText, Module1::kPanelInk);
    Label4->setPalette(ink);

    Picture1->setAccessibleName(tr("Partitude title picture"));
    Twips::place(Picture1, 480, 840, kFrameSidePx * Twips::kPerPixel, kFrameSidePx * Twips::kPerPixel);
    Twips::place(Command1, 4800, 5280, 1860, 660);
    Twips::place(Command2, 6960, 5280, 1860, 660);
    Command1->setDefault(true);
    // Their words say little about where they lead; a screen reader adds it.
    Command1->setAccessibleDescription(tr("Go on to choose your year"));
    Command2->setAccessibleDescription(tr("Close Partitude"));

    connect(Timer1, &QTimer::timeout, this, &Titlefrm::Timer1_Timer);
    connect(Command1, &QPushButton::clicked, this, &Titlefrm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &Titlefrm::Command2_Click);
}

QString Titlefrm::frameFile(int n)
{
    return (n < 10 ? QStringLiteral("gif\\sphfra\\sphf000") : QStringLiteral("gif\\sphfra\\sphf00"))
        + QString::number(n) + QStringLiteral(".jpg");
}

void Titlefrm::Form_Load()
{
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    Module1::counter = 0;
    Forms::load<Grey>(); // the hidden timer screen; never shown
    Module1::centreform(*this);
    setBackColour(Module1::kActivityBack);
    Frame1->raise();
    Picture1->load(frameFile(0));

    if (!readSettings())
        Module1::version = Module1::kNoEdition; // as on a first run: OK leads to the settings screen

    // Until an edition is chosen the child cannot leave from here, only go on.
    if (!Module1::editionChosen() && Command1->text() == tr("OK"))
        Command2->setEnabled(false);

    // The sphere turns from the start.
    Timer1->setEnabled(true);
}

bool Titlefrm::readSettings()
{
    const auto version = SettingsFile::readFirstValue(SettingsNames::kEdition);
    const auto sound = SettingsFile::readFirstValue(SettingsNames::kSound);
    double number = 0;
    double soundNumber = 0;
    if (!version || !sound || !asNumber(*version, &number) || !asNumber(*sound, &soundNumber))
        return false;
    // A number that names no edition ("-1.0", 2) counts as not chosen yet.
    Module1::version = Module1::editionOf(*version);
    Module1::soundsetting = *sound;
    Module1::soundoption = soundNumber == 1 ? 0 : 1;
    return true;
}

void Titlefrm::Timer1_Timer()
{
    Module1::counter += 1;
    if (Module1::counter == kFrameCount)
        Module1::counter = 0;
    Picture1->load(frameFile(Module1::counter));
}

void Titlefrm::Command1_Click()
{
    Module1::counter = 0;
    Forms::showAndUnload(Module1::editionChosen() ? QStringLiteral("Year") : QStringLiteral("Form1"), this);
}

void Titlefrm::Command2_Click()
{
    Forms::endProgram();
}

void Titlefrm::closeBoxPressed()
{
    // The close box leaves only when Exit may: on a first run the child goes
    // on to choose an edition.
    if (Command2->isEnabled())
        Command2_Click();
}
