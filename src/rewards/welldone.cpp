#include "welldone.h"

#include "celebrations.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/msgbox.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
// Outer size of the window, in twips.
constexpr int kWidth = 7680;
constexpr int kHeight = 6420;
constexpr int kInside = kWidth - Form::kBorderWidthTwips;

QLabel* wordLabel(QWidget* parent, const char* name, const QString& text, double points)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(Twips::font(QStringLiteral("Times New Roman"), points, true));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: white;"));
    return label;
}
} // namespace

Welldone::Welldone()
    : Form(QStringLiteral("Welldone"))
    , Label1(wordLabel(this, "Label1", tr("Excellent work you have completed this task successfully"), 16))
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Text1(new QLineEdit(this))
    , Label2(wordLabel(this, "Label2", tr("Enter your name in the box above before printing your certificate"), 11))
    , Command2(new QPushButton(tr("Print Certificate"), this))
    , cmdexit(new QPushButton(this))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer2(addTimer(QStringLiteral("Timer2"), kTimer2Ms))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , Timer4(addTimer(QStringLiteral("Timer4"), kTimer4Ms))
{
    setWindowTitle(tr("Well Done!"));
    setDesignSize(kWidth, kHeight);
    setBackColour(Module1::kActivityBack);
    // The activity waits behind until the child leaves.
    setWindowModality(Qt::ApplicationModal);

    Twips::place(Label1, 240, 120, kInside - 480, 840);
    // Before a Challenge the star stands still.
    Picture1->setAutoSize(true);
    Picture1->setAccessibleName(tr("a picture to celebrate"));
    Picture1->load(celebrationFrameFile(kCelebrations[0], 0));
    Twips::move(Picture1, (kInside - Twips::fromPixels(Picture1->width())) / 2, 1020);

    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(tr("your name"));
    Text1->setFont(Twips::font(QStringLiteral("Times New Roman"), 18, true));
    Text1->setAlignment(Qt::AlignCenter);
    Text1->setMaxLength(40);
    Text1->installEventFilter(this);
    Twips::place(Text1, 1200, 3420, kInside - 2400, 600);
    Twips::place(Label2, 600, 4080, kInside - 1200, 600);

    Command2->setObjectName(QStringLiteral("Command2"));
    Command2->setFont(Twips::font(QStringLiteral("Arial"), 11, true));
    Twips::place(Command2, 1200, 4860, 3000, 720);
    cmdexit->setObjectName(QStringLiteral("cmdexit"));
    cmdexit->setIconSize(Twips::scaledPixels(QSize(32, 32)));
    cmdexit->setToolTip(tr("Goodbye"));
    cmdexit->setAccessibleName(cmdexit->toolTip());
    Twips::place(cmdexit, kInside - 1200 - 1080, 4860, 1080, 720);

    connect(cmdexit, &QPushButton::clicked, this, &Welldone::cmdexit_Click);
    connect(Command2, &QPushButton::clicked, this, &Welldone::Command2_Click);
    connect(Timer1, &QTimer::timeout, this, &Welldone::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Welldone::Timer2_Timer);
    connect(Timer3, &QTimer::timeout, this, &Welldone::Timer3_Timer);
    connect(Timer4, &QTimer::timeout, this, &Welldone::Timer4_Timer);
}

QString Welldone::banner()
{
    return tr("   Well Done      Well Done     Well Done     Well Done    ");
}

void Welldone::Form_Load()
{
    Module1::counter = 0;
    m_frame = 0;
    Module1::questions = Module1::streak;
    Module1::centreform(*this);
    if (Module1::challenge > 0) {
        Label1->setText(tr("Congratulations!!! You have risen to the Challenge."));
        Timer1->setEnabled(true);
    }
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    setButtonPicture(cmdexit, QStringLiteral("ico\\door2.ico"));
    Timer4->setEnabled(true);
    Timer2->setEnabled(true);
}

void Welldone::cmdexit_Click()
{
    Module1::challenge = 1;
    Forms::unload(this);
}

void Welldone::wayBack()
{
    cmdexit_Click();
}

bool Welldone::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Text1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // One certificate a showing: ENTER after printing does nothing.
            if (Command2->isEnabled())
                Command2_Click();
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

void Welldone::Command2_Click()
{
    Command2->setEnabled(false);
    try {
        printcertificate();
    } catch (...) {
        MsgBox::show(tr("Printing has been cancelled."));
    }
}

void Welldone::Timer1_Timer()
{
    // One celebration a showing: it is chosen once and then plays on.
    Timer1->setEnabled(false);
    Random::Randomize();
    const int pick = static_cast<int>(Random::Rnd() * kCelebrationCount);
    m_pick = pick;
    m_frame = 0;
    Timer3->setEnabled(true);
}

QString Welldone::animationBase() const
{
    return QString::fromLatin1(kCelebrations[m_pick].base);
}

int Welldone::animationFrames() const
{
    return kCelebrations[m_pick].frames;
}

void Welldone::Timer2_Timer()
{
    Text1->setFocus();
    Timer2->setEnabled(false);
}

void Welldone::Timer3_Timer()
{
    m_frame += 1;
    if (m_frame >= kCelebrations[m_pick].frames)
        m_frame = 0;
    Picture1->load(celebrationFrameFile(kCelebrations[m_pick], m_frame));
}

void Welldone::Timer4_Timer()
{
    Timer4->setEnabled(false);
}
