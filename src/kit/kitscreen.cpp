#include "kitscreen.h"

#include "activities/activitytable.h"
#include "kitboard.h"
#include "rewards/grey.h"
#include "run.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

// Layout inside the window (9480 x 6510 twips): the reward picture on the
// left under the buttons with the run's length below it; on the right the
// question line and under it the board.
constexpr int kMargin = 120;
constexpr int kRightLeft = 4560;
constexpr int kRightWidth = Form::kScreenScaleWidthTwips - kMargin - kRightLeft;
constexpr int kLineTop = 1200;
constexpr int kLineHeight = 1140;
constexpr int kBoardTop = kLineTop + kLineHeight + 60;
constexpr int kBoardHeight = 6420 - kBoardTop;
constexpr int kEndMargin = 30; // pixels between the end-of-run text and its edge

const QColor kInstructionInk{255, 255, 255};
const QColor kMessageInk{255, 236, 120};

QString titleOf(const QString& screen)
{
    const Activities::Row* row = Activities::forScreen(screen);
    return row ? Activities::titleText(*row) : screen;
}

} // namespace

KitScreen::KitScreen(const QString& name, KitBoard* board)
    : ActivityForm(name)
    , Label1(wordLabel(this, QStringLiteral("Label1"), QString(), 14, kInstructionInk))
    , Label2(wordLabel(this, QStringLiteral("Label2"), QString(), 14, kMessageInk))
    , Label8(wordLabel(this, QStringLiteral("Label8"), tr("Click Start to have another go... or click Exit"), 16,
                       kInstructionInk))
    , Label3(wordLabel(Picture1, QStringLiteral("Label3"), tr("Good Luck."), 18, kMessageInk))
    , Label4(wordLabel(Picture1, QStringLiteral("Label4"), titleOf(name), 26, kInstructionInk))
    , Label6(wordLabel(Picture1, QStringLiteral("Label6"),
                       tr("Aim to get 10 or 20 questions correct to gain a certificate."), 14, kInstructionInk))
    , Frame1(new QFrame(this))
    , Frame2(new QFrame(this))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , m_board(board)
{
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame2->setObjectName(QStringLiteral("Frame2"));
    m_board->setParent(Frame2);
    layOut();
    raiseButtons();

    // Until Start there is no question to check or hint at.
    cmdcheck->setEnabled(false);
    cmdhint->setEnabled(false);
    Label1->hide();
    Label2->hide();
    Label8->hide();
    Frame2->hide();
    m_board->setAnswering(false);

    run().setLabels(Label1, Label2, Label8);
    run().setCertificateWords(titleOf(name));

    connect(cmdcheck, &QPushButton::clicked, this, &KitScreen::cmdcheck_Click);
    connect(cmdhint, &QPushButton::clicked, this, &KitScreen::cmdhint_Click);
    connect(cmdstart, &QPushButton::clicked, this, &KitScreen::cmdstart_Click);
    connect(cmdprint, &QPushButton::clicked, this, &KitScreen::cmdprint_Click);
    connect(cmdexit, &QPushButton::clicked, this, &KitScreen::cmdexit_Click);
    connect(Timer1, &QTimer::timeout, this, &KitScreen::Timer1_Timer);
    connect(Timer3, &QTimer::timeout, this, &KitScreen::Timer3_Timer);
    connect(m_board, &KitBoard::answered, this, &KitScreen::cmdcheck_Click);
    connect(m_board, &KitBoard::refused, this, &KitScreen::boardRefused);

    // Enter or a click on the board moves on at once while a checked answer
    // waits for the next question.
    m_board->installEventFilter(this);
    for (QWidget* child : m_board->findChildren<QWidget*>())
        child->installEventFilter(this);
    installEventFilter(this);
}

void KitScreen::layOut()
{
    Twips::move(Image2, kMargin, Module1::kRewardSets[0].top);
    Twips::place(Label1, kRightLeft, kLineTop, kRightWidth, kLineHeight);
    Twips::place(Label2, kRightLeft, kLineTop, kRightWidth, kLineHeight);
    Twips::place(Frame2, kRightLeft, kBoardTop, kRightWidth, kBoardHeight);
    m_board->setGeometry(Frame2->rect());
    Label8->setMargin(kEndMargin);

    layOutOpeningPanel(Label4, Label3, Label6);
    layOutOptions(Frame1, kInstructionInk);
}

void KitScreen::Form_Load()
{
    loadAsABoardActivity();

    Module1::counter = 0;
    Module1::activitytitle = Label4->text();
    showQuestionsChoice();
    ++Module1::visits;
    Forms::load<Grey>()->Timer2->setEnabled(true);
}

void KitScreen::cmdstart_Click()
{
    Picture1->hide();
    Image2->hide();
    Label8->hide();
    Frame1->show();
    Frame2->show();
    showQuestionsChoice(); // the certificate may have set the run's length
    cmdprint->setEnabled(true);
    cmdexit->setEnabled(true);
    newquestion();
    run().begin();
}

void KitScreen::newquestion()
{
    Timer1->setEnabled(false);
    Timer3->setEnabled(false);
    run().showInstruction();
    m_board->pose(Random::program());
    Label1->setText(m_board->instruction());
    m_board->setAnswering(true);
    cmdcheck->setEnabled(true);
    cmdhint->setEnabled(Run::hintsAllowed());
    m_board->focusAnswer();
}

void KitScreen::cmdcheck_Click()
{
    if (!cmdcheck->isEnabled())
        return; // a checked answer is showing
    Timer1->setEnabled(false);
    const Verdict verdict = m_board->check();
    if (verdict.kind == Verdict::NotCheckable) {
        run().keep(verdict.statement, Timer1);
        return;
    }
    m_board->setAnswering(false);
    // The keyboard stays on the board, where Enter moves on, and never
    // drifts onto Start while the answer shows.
    m_board->focusAnswer();
    cmdcheck->setEnabled(false);
    cmdhint->setEnabled(false);
    m_board->showChecked(verdict);
    if (verdict.kind == Verdict::Right)
        run().right(verdict.statement, Timer3);
    else
        run().wrong(tr("Not quite. %1").arg(verdict.statement), Timer3);
}

bool KitScreen::giveRightAnswer()
{
    // A question waits while Check is on and the stars do not hold the screen.
    if (!isEnabled() || !Frame2->isVisible() || !cmdcheck->isEnabled())
        return false;
    m_board->giveRightAnswer();
    cmdcheck_Click();
    return true;
}

void KitScreen::boardRefused(const QString& message)
{
    if (cmdcheck->isEnabled())
        run().keep(message, Timer1);
}

void KitScreen::cmdhint_Click()
{
    if (!Run::hintsAllowed())
        return;
    Timer1->setEnabled(false);
    // The worked explanation stays until the answer is checked.
    run().keep(m_board->hint(), nullptr);
    m_board->focusAnswer();
}

void KitScreen::cmdprint_Click()
{
    run().print();
    (cmdcheck->isEnabled() ? static_cast<QWidget*>(m_board) : cmdstart)->setFocus();
}

void KitScreen::cmdexit_Click()
{
    run().exit();
}

QRect KitScreen::boardArea() const
{
    return Frame2->geometry();
}

void KitScreen::clearBoardAtEnd()
{
    Frame2->hide();
}

void KitScreen::Timer1_Timer()
{
    Timer1->setEnabled(false);
    run().showInstruction();
    m_board->focusAnswer();
}

void KitScreen::Timer3_Timer()
{
    Timer3->setEnabled(false);
    newquestion();
    setEnabled(true); // the reward picture's stars had the screen to themselves
    m_board->focusAnswer();
}

bool KitScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (Timer3->isActive() && isEnabled()) {
        const bool enter = event->type() == QEvent::KeyPress
            && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return
                || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
        const bool boardClick = event->type() == QEvent::MouseButtonPress && watched != this;
        if (enter || boardClick) {
            Timer3_Timer();
            return true;
        }
    }
    return ActivityForm::eventFilter(watched, event);
}
