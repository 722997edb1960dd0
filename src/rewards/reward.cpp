#include "reward.h"

#include "grey.h"
#include "runtime/formtimer.h"
#include "shell/activityform.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/spoken.h"
#include "runtime/screenfit.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace {
// Where the panel stands inside a centred activity screen, in twips.
constexpr int kOffsetTop = 615 + 435;
constexpr int kOffsetLeft = 3600 + 60;
constexpr int kMiddleFrame = 50;

QLabel* messageLabel(QWidget* parent, const char* name, const QString& text, int top)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(Twips::font(QStringLiteral("Times New Roman"), 16, true));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: white;"));
    Twips::place(label, 240, top, Reward::kWidthTwips - 480, 1500);
    Spoken::markAsMessage(label); // spoken as the panel appears
    return label;
}
} // namespace

Reward::Reward()
    : Form(QStringLiteral("Reward"))
    , Label1(messageLabel(this, "Label1", tr("You have been unsuccessful in the Challenge."), 300))
    , Label2(messageLabel(this, "Label2", tr("The Challenge will begin again."), 2100))
    , Image2(new PictureBox(this, QStringLiteral("Image2")))
    , Timer1(addTimer(QStringLiteral("Timer1"), kStarFrameMs))
    , Timer2(addTimer(QStringLiteral("Timer2"), kRetryMessageMs))
    , Timer3(addTimer(QStringLiteral("Timer3"), kRetryTimer3Ms))
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setScaleSize(kWidthTwips, kHeightTwips);
    Twips::place(Image2, 0, 0, kWidthTwips, kHeightTwips);
    Image2->lower();
    Image2->setAccessibleName(tr("stars"));
    Image2->hide();
    connect(Timer1, &QTimer::timeout, this, &Reward::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Reward::Timer2_Timer);
    connect(Timer3, &QTimer::timeout, this, &Reward::Timer3_Timer);
}

QString Reward::starFile(int series, int k)
{
    return QStringLiteral("reward\\stars%1%2.jpg").arg(series).arg(k, 2, 10, QLatin1Char('0'));
}

void Reward::Form_Load()
{
    using namespace Module1;
    starset = static_cast<int>(Random::Rnd() * kStarSeries);
    starstep = static_cast<int>(Random::Rnd() * 2) * 2 - 1;
    starframe = kMiddleFrame * (starstep + 1) + starstep;

    const QRect display = Twips::display();
    const int top = (display.height() - kScreenHeightTwips) / 2 + kOffsetTop;
    const int left = (display.width() - kScreenWidthTwips) / 2 + kOffsetLeft;
    moveTo(display.x() + left, display.y() + top);
    placeOverTheBoard();
    move(ScreenFit::keepInside(pos(), size(), ScreenFit::available()));
    setBackColour(kActivityBack);

    const bool message = retry == 1;
    Timer1->setEnabled(!message);
    Timer2->setEnabled(message);
    Timer3->setEnabled(message);
    Label1->setVisible(message);
    Label2->setVisible(message);
    if (message)
        Grey::playHarp(Grey::kRetryHarp); // a soft fall of notes, never a buzzer
    retry = 0;
}

void Reward::placeOverTheBoard()
{
    // The activity on screen, if any: the panel stands over its board, below
    // its buttons and inside its window, so the buttons stay whole and the
    // reward picture in sight.
    for (QWidget* w : QApplication::topLevelWidgets()) {
        auto* activity = qobject_cast<ActivityForm*>(w);
        if (!activity || !activity->isVisible())
            continue;
        const QRect board(activity->mapToGlobal(activity->boardArea().topLeft()), activity->boardArea().size());
        const QRect window(activity->mapToGlobal(QPoint(0, 0)), activity->size());
        const int buttonsBottom = activity->cmdstart->mapToGlobal(QPoint(0, activity->cmdstart->height())).y();
        QRect panel(QPoint(0, 0), size());
        panel.moveCenter(board.center());
        panel.moveLeft(std::clamp(panel.left(), window.left(), std::max(window.left(), window.right() - panel.width())));
        panel.moveTop(std::clamp(panel.top(), buttonsBottom + 1, std::max(buttonsBottom + 1, window.bottom() - panel.height())));
        move(panel.topLeft());
        return;
    }
}

void Reward::Timer1_Timer()
{
    using namespace Module1;
    starframe -= starstep;
    if (starframe == kMiddleFrame) {
        Timer1->setEnabled(false);
        Forms::unload(this);
        return;
    }
    Image2->hide();
    Image2->load(starFile(starset, starframe % kFramesPerSeries));
    Image2->show();
}

void Reward::Timer2_Timer()
{
    Forms::unload(this);
    Timer2->setEnabled(false);
}

void Reward::wayBack()
{
    Forms::unload(this);
}

void Reward::Timer3_Timer()
{
    Timer3->setEnabled(false);
}
