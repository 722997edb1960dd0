#include "form1.h"

#include "module1.h"
#include "runtime/forms.h"
#include "runtime/msgbox.h"
#include "runtime/settingsfile.h"
#include "runtime/twips.h"
#include "settingsnames.h"

#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {
constexpr int kWidth = 7320;
constexpr int kHeight = 5760;
const QColor kBack(49, 130, 212);
const QColor kPanel(255, 251, 238);
const QString& kPrimary = Module1::kPrimaryEdition;
const QString& kSecondary = Module1::kSecondaryEdition;
const QString kSoundOffered = QStringLiteral("0");
const QString kSoundRemoved = QStringLiteral("1");

template <class W> W* named(W* widget, const char* name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}
} // namespace

Form1::Form1()
    : Form(QStringLiteral("Form1"))
    , Command1(named(new QPushButton(tr("OK"), this), "Command1"))
    , Frame1(named(new QGroupBox(this), "Frame1"))
    , Option2(named(new QRadioButton(tr("  Secondary School version"), Frame1), "Option2"))
    , Option1(named(new QRadioButton(tr("  Primary School version"), Frame1), "Option1"))
    , Check2(named(new QCheckBox(tr("  Remove option to play sound"), this), "Check2"))
    , Label3(named(new QLabel(tr("Please choose the version of Partitude that you require"), this), "Label3"))
    , Frame2(named(new QFrame(this), "Frame2"))
{
    setWindowTitle(QStringLiteral("Partitude"));
    setDesignSize(kWidth, kHeight);
    const QFont text = Twips::font(QStringLiteral("Times New Roman"), 14, true);

    Frame2->setFrameShape(QFrame::StyledPanel);
    setControlBackColour(Frame2, kPanel);
    Twips::place(Frame2, 240, 240, kWidth - Form::kBorderWidthTwips - 480, 3900);
    Frame2->lower();

    Label3->setFont(text);
    Label3->setWordWrap(true);
    Label3->setAlignment(Qt::AlignCenter);
    Twips::place(Label3, 480, 420, 6240, 900);

    Twips::place(Frame1, 960, 1380, 5280, 1500);
    for (QRadioButton* option : {Option1, Option2})
        option->setFont(text);
    Twips::place(Option1, 360, 240, 4560, 480);
    Twips::place(Option2, 360, 840, 4560, 480);
    Frame1->hide();

    Check2->setFont(text);
    // The captions start with blanks, which a screen reader need not hear.
    for (QAbstractButton* choice : std::initializer_list<QAbstractButton*>{Option1, Option2, Check2})
        choice->setAccessibleName(choice->text().trimmed());
    Command1->setAccessibleDescription(tr("Keep these choices and go on to choose your year"));
    Twips::place(Check2, 1320, 3240, 4800, 480);

    Command1->setFont(Twips::font(QStringLiteral("Liberation Sans"), 12, true));
    Command1->setDefault(true);
    Twips::place(Command1, 2820, 4320, 1560, 600);

    connect(Option1, &QRadioButton::clicked, this, &Form1::Option1_Click);
    connect(Option2, &QRadioButton::clicked, this, &Form1::Option2_Click);
    connect(Check2, &QCheckBox::clicked, this, &Form1::Check2_Click);
    connect(Command1, &QPushButton::clicked, this, &Form1::Command1_Click);
}

void Form1::Form_Load()
{
    setBackColour(kBack);
    Module1::centreform(*this);
    // The boxes show what is chosen now: the edition and sound files say "0"
    // (primary, sound offered) after the first-run defaults below. They are
    // offered even when the files cannot be written: the choice then holds
    // for this run.
    if (!Module1::editionChosen()) {
        save(SettingsNames::kEdition, kPrimary);
        Frame1->show();
        Module1::version = kPrimary;
        save(SettingsNames::kSound, kSoundOffered);
        Module1::soundsetting = kSoundOffered;
        Module1::soundoption = 1;
    }
    Option1->setChecked(Module1::version != kSecondary);
    Option2->setChecked(Module1::version == kSecondary);
    Check2->setChecked(Module1::soundsetting == kSoundRemoved);
}

void Form1::save(const QString& fileName, const QString& value)
{
    if (SettingsFile::writeValue(fileName, value) || m_toldUnwritable)
        return;
    // Once per showing: every later choice fails for the same reason.
    m_toldUnwritable = true;
    MsgBox::show(tr("Partitude cannot save your choices in the folder:\n%1\n\n"
                    "They will hold until Partitude is closed. To keep them, start Partitude "
                    "with --settings DIR to choose a folder it can write to.")
                     .arg(QDir::toNativeSeparators(QDir(SettingsFile::folder()).absolutePath())));
}

void Form1::chooseEdition(const QString& value)
{
    // The choice holds for this run even when it cannot be saved.
    save(SettingsNames::kEdition, value);
    Module1::version = value;
}

void Form1::Option1_Click() { chooseEdition(kPrimary); }

void Form1::Option2_Click() { chooseEdition(kSecondary); }

void Form1::Check2_Click()
{
    const bool removed = Check2->isChecked();
    save(SettingsNames::kSound, removed ? kSoundRemoved : kSoundOffered);
    Module1::soundsetting = removed ? kSoundRemoved : kSoundOffered;
    Module1::soundoption = removed ? 0 : 1;
}

void Form1::Command1_Click()
{
    Forms::showAndUnload(QStringLiteral("Year"), this);
}

QWidget* Form1::firstControl() const
{
    return Command1;
}

void Form1::wayBack()
{
    Command1_Click();
}
