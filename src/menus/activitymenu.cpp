#include "activitymenu.h"

#include "menulook.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>

namespace {
using MenuLook::kBack;
using MenuLook::kYearInk;

constexpr int kTimer1Ms = 1000;
constexpr int kTimer2Ms = 2000;

// Layout, in twips inside the window (9480 x 6510).
constexpr int kInsideWidth = Form::kScreenScaleWidthTwips;
constexpr int kLeftColumn = 360;
constexpr int kRowsTop = 1620;
constexpr int kRowsHeight = 4620;
constexpr int kLargestRowPitch = 1200;
constexpr int kButtonLeft = 3360;
constexpr int kButtonWidth = 840;
constexpr int kButtonHeight = 600;
constexpr int kTitleLeft = 4380;
constexpr int kTitleWidth = kInsideWidth - kTitleLeft - 240;
constexpr int kTitlePoints = 14;
constexpr int kSmallestTitlePoints = 9;

// The largest size, from the design's size down to the smallest allowed,
// at which a word-wrapped label's text fits the label.
void fitTitleFont(QLabel* label)
{
    for (int points = kTitlePoints; points >= kSmallestTitlePoints; --points) {
        label->setFont(Twips::font(QStringLiteral("Times New Roman"), points, true));
        const QRect needed = label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 10000),
                                                               Qt::TextWordWrap, label->text());
        if (needed.height() <= label->height() && needed.width() <= label->width())
            return;
    }
}
} // namespace

ActivityMenu::ActivityMenu(const Menus::Design& design)
    : Form(QString::fromLatin1(design.name))
    , Timer4(addTimer(QStringLiteral("Timer4"), Logo::kIntervalMs))
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Picture2(new PictureBox(this, QStringLiteral("Picture2")))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer2(design.secondStartupTimer ? addTimer(QStringLiteral("Timer2"), kTimer2Ms) : nullptr)
    , Command4(nullptr) // made after the activities: Tab reaches it last
    , Label1(MenuLook::label(this, QStringLiteral("Label1"), QCoreApplication::translate("Year", design.yearLabel),
                        Twips::font(QStringLiteral("Times New Roman"), 20, true), kYearInk))
    , Label4(MenuLook::label(this, QStringLiteral("Label4"), QStringLiteral("Partitude"),
                        Twips::font(QStringLiteral("Times New Roman"), 32, true)))
    , m_design(design)
{
    setWindowTitle(QCoreApplication::translate("Menus", design.caption));
    setDesignSize(kScreenWidthTwips, kScreenHeightTwips);
    setBackColour(kBack);

    Label4->setAlignment(Qt::AlignCenter);
    Twips::place(Label4, 0, 60, kInsideWidth, 900);
    Label1->setAlignment(Qt::AlignCenter);
    Twips::place(Label1, 0, 900, kInsideWidth, 540);

    // Left: the logo; the way back goes under it, made last.
    Picture1->setAutoSize(true);
    Picture1->setAccessibleName(Logo::spokenName());
    Picture1->setBackColour(kBack);
    Picture1->load(Logo::frameFile(design.logo, Module1::logoframe));
    Picture2->setAutoSize(true);
    Picture2->setAccessibleName(Logo::publisherSpokenName());
    Picture2->setBackColour(kBack);
    const bool large = design.logo == Logo::Frames::Large;
    Twips::move(Picture1, large ? kLeftColumn + 600 : kLeftColumn + 900, kRowsTop);
    Twips::move(Picture2, kLeftColumn, large ? 3480 : 3060);

    // Right: one row for each activity.
    const QVector<const Activities::Row*> rows = Activities::onMenu(objectName());
    const int count = rows.size();
    const int pitch = std::min(kLargestRowPitch, kRowsHeight / count);
    const int firstTop = kRowsTop + (kRowsHeight - pitch * count) / 2;
    for (int i = 0; i < count; ++i) {
        const Activities::Row& activity = *rows[i];
        const int top = firstTop + i * pitch;
        auto* button = new QPushButton(this);
        button->setObjectName(QString::fromLatin1(activity.button));
        button->setIconSize(Twips::scaledPixels(QSize(28, 28)));
        // The arrow shows no words; the activity's title is its tip and
        // the name a screen reader speaks.
        button->setToolTip(Activities::titleText(activity));
        button->setAccessibleName(button->toolTip());
        button->setAccessibleDescription(activity.subMenu ? tr("Open more activities")
                                                          : tr("Open this activity"));
        Twips::place(button, kButtonLeft, top + (pitch - kButtonHeight) / 2, kButtonWidth, kButtonHeight);
        connect(button, &QPushButton::clicked, this, [this, &activity] { open(activity); });
        buttons.append(button);

        QLabel* title = MenuLook::label(this, QStringLiteral("Label12(%1)").arg(i), Activities::titleText(activity),
                                   QFont());
        title->setWordWrap(true);
        title->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        Twips::place(title, kTitleLeft, top + 30, kTitleWidth, pitch - 60);
        fitTitleFont(title);
        Label12.append(title);
    }

    // The way back, made last: Tab and a screen reader take the activities
    // top to bottom and then Goodbye, and the first activity has the focus
    // when the menu opens.
    Command4 = new QPushButton(tr("Goodbye"), this);
    Command4->setObjectName(QStringLiteral("Command4"));
    Command4->setFont(Twips::font(QStringLiteral("Arial"), 10, true));
    Command4->setIconSize(Twips::scaledPixels(QSize(32, 32)));
    Command4->setToolTip(tr("Go back"));
    Twips::place(Command4, kLeftColumn, 5340, 2160, 780);

    connect(Command4, &QPushButton::clicked, this, &ActivityMenu::Command4_Click);
    connect(Timer4, &QTimer::timeout, this, &ActivityMenu::Timer4_Timer);
    connect(Timer1, &QTimer::timeout, this, &ActivityMenu::Timer1_Timer);
    if (Timer2)
        connect(Timer2, &QTimer::timeout, this, &ActivityMenu::Timer2_Timer);
}

void ActivityMenu::Form_Load()
{
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    for (QPushButton* button : buttons)
        setButtonPicture(button, QStringLiteral("ico\\arw05rt.ico"));
    setButtonPicture(Command4, QStringLiteral("ico\\door2.ico"));
    Picture2->load(Logo::bitmapFile(m_design.logo));
    if (Module1::version == QLatin1String("1"))
        Label1->setText(QCoreApplication::translate("Year", m_design.unitLabel));
    Module1::centreform(*this);
    Timer4->setEnabled(true);
    Timer1->setEnabled(true);
}

void ActivityMenu::open(const Activities::Row& activity)
{
    if (activity.subMenu) {
        Forms::showAndUnload(QString::fromLatin1(activity.screen), this);
        return;
    }
    Module1::challenge = 0;
    const QString screen = QString::fromLatin1(activity.screen);
    Form* target = Forms::load(screen);
    if (auto* prompt = target->findChild<QLabel*>(QStringLiteral("Label6")))
        prompt->setText(Activities::promptText(activity.prompt));
    target->setWindowTitle(Label1->text());
    Forms::show(target->objectName());
    Forms::unload(this);
}

void ActivityMenu::Command4_Click()
{
    Forms::showAndUnload(QString::fromLatin1(m_design.goodbye), this);
}

QList<QWidget*> ActivityMenu::tabOrder() const
{
    QList<QWidget*> order = Form::tabOrder();
    order.removeOne(Command4);
    order.append(Command4);
    return order;
}

void ActivityMenu::wayBack()
{
    Command4_Click();
}

void ActivityMenu::Timer4_Timer()
{
    Picture1->load(Logo::advance(m_design.logo));
}

void ActivityMenu::Timer1_Timer()
{
    Timer1->setEnabled(false);
    if (Timer2)
        Timer2->setEnabled(true);
}

void ActivityMenu::Timer2_Timer()
{
    Timer2->setEnabled(false);
}
