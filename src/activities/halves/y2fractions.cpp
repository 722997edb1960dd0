#include "y2fractions.h"

#include "kit/run.h"
#include "picturecell.h"
#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

// Layout inside the window (9480 x 6510 twips). The reward picture stands on
// the left under the first buttons; the board and its instruction on the
// right; the question options below the picture.
constexpr int kMargin = 120;
constexpr int kPictureLeft = kMargin;
constexpr int kBoardLeft = 4560;
constexpr int kBoardWidth = Form::kScreenScaleWidthTwips - kMargin - kBoardLeft;
// The board stands right under the buttons and the instruction under the
// board, so a message stays in sight while the stars play over the board.
constexpr int kBoardTop = 1200;
constexpr int kBoardHeight = 5460 - kBoardTop;
constexpr int kLabelTop = kBoardTop + kBoardHeight + 60;
constexpr int kLabelHeight = 900;
constexpr int kColumns = 4;
constexpr int kCellGap = 90;
constexpr int kEndMargin = 30; // pixels between the end-of-run text and the reward picture

const QColor kInstructionInk{255, 255, 255};
const QColor kMessageInk{255, 236, 120};

} // namespace

Y2fractions::Y2fractions()
    : ActivityForm(QStringLiteral("Y2fractions"))
    , Label1(wordLabel(this, QStringLiteral("Label1"), QString(), 14, kInstructionInk))
    , Label2(wordLabel(this, QStringLiteral("Label2"), QStringLiteral("dhshsdhsdhdfgh"), 14, kMessageInk))
    , Label8(wordLabel(this, QStringLiteral("Label8"), tr("Click Start to have another go... or click Exit"), 16,
                       kInstructionInk))
    , Label3(wordLabel(Picture1, QStringLiteral("Label3"), tr("Good Luck."), 18, kMessageInk))
    , Label4(wordLabel(Picture1, QStringLiteral("Label4"),
                       QCoreApplication::translate("Activities", "Halves and Quarters 1"), 26, kInstructionInk))
    , Label6(wordLabel(Picture1, QStringLiteral("Label6"),
                       tr("Aim to get 10 or 20 questions correct to gain a certificate."), 14, kInstructionInk))
    , Frame1(new QFrame(this))
    , Frame2(new QFrame(this))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer2(addTimer(QStringLiteral("Timer2"), kTimer2Ms))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , Timer4(addTimer(QStringLiteral("Timer4"), kTimer4Ms))
    , Timer5(addTimer(QStringLiteral("Timer5"), kTimer5Ms))
    , Timer6(addTimer(QStringLiteral("Timer6"), kTimer6Ms))
{
    Image2->setObjectName(QStringLiteral("Image2(0)"));
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame2->setObjectName(QStringLiteral("Frame2"));
    for (int i = 0; i < Halves::kMostPictures; ++i) {
        auto* cell = new PictureCell(Frame2, i);
        connect(cell, &QAbstractButton::clicked, this, [this, i] { Image1_Click(i); });
        Image1.append(cell);
    }
    layOut();

    // Until Start there is no question to check or hint at.
    cmdcheck->setEnabled(false);
    cmdhint->setEnabled(false);
    Label1->hide();
    Label2->hide();
    Label8->hide();
    resetpics();

    run().setLabels(Label1, Label2, Label8);
    run().setCertificateWords(QCoreApplication::translate("Activities", "Halves and Quarters 2"));

    connect(cmdcheck, &QPushButton::clicked, this, &Y2fractions::cmdcheck_Click);
    connect(cmdhint, &QPushButton::clicked, this, &Y2fractions::cmdhint_Click);
    connect(cmdstart, &QPushButton::clicked, this, &Y2fractions::cmdstart_Click);
    connect(cmdprint, &QPushButton::clicked, this, &Y2fractions::cmdprint_Click);
    connect(cmdexit, &QPushButton::clicked, this, &Y2fractions::cmdexit_Click);
    connect(Timer1, &QTimer::timeout, this, &Y2fractions::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Y2fractions::Timer2_Timer);
    connect(Timer3, &QTimer::timeout, this, &Y2fractions::Timer3_Timer);
    connect(Timer4, &QTimer::timeout, this, &Y2fractions::Timer4_Timer);
    connect(Timer5, &QTimer::timeout, this, &Y2fractions::Timer5_Timer);
    connect(Timer6, &QTimer::timeout, this, &Y2fractions::Timer6_Timer);
}

void Y2fractions::layOut()
{
    Twips::move(Image2, kPictureLeft, Module1::kRewardSets[0].top);

    Twips::place(Label1, kBoardLeft, kLabelTop, kBoardWidth, kLabelHeight);
    Twips::place(Label2, kBoardLeft, kLabelTop, kBoardWidth, kLabelHeight);
    Twips::place(Frame2, kBoardLeft, kBoardTop, kBoardWidth, kBoardHeight);
    const int pitchX = kBoardWidth / kColumns;
    const int pitchY = kBoardHeight / (Halves::kMostPictures / kColumns);
    for (PictureCell* cell : Image1)
        Twips::place(cell, (cell->index() % kColumns) * pitchX, (cell->index() / kColumns) * pitchY,
                     pitchX - kCellGap, pitchY - kCellGap);
    Label8->setMargin(kEndMargin);

    layOutOpeningPanel(Label4, Label3, Label6);
    layOutOptions(Frame1, kInstructionInk);
}

void Y2fractions::Form_Load()
{
    loadAsABoardActivity();

    Module1::counter = 0;
    Module1::activitytitle = QCoreApplication::translate("Activities", "Halves and Quarters 1");
    Module1::questions = 10; // this activity's run is 10 unless the child chooses 20
    showQuestionsChoice();
    ++Module1::visits;
    Forms::load<Grey>()->Timer2->setEnabled(true);
}

void Y2fractions::resetpics()
{
    for (PictureCell* cell : Image1) {
        cell->hide();
        cell->setSelected(false);
    }
}

void Y2fractions::resetform()
{
    Image2->hide();
    Label8->hide();
}

void Y2fractions::switchon()
{
    for (PictureCell* cell : Image1)
        cell->setEnabled(true);
    cmdcheck->setEnabled(true);
    cmdhint->setEnabled(Module1::challenge == 0);
}

void Y2fractions::switchoff()
{
    for (PictureCell* cell : Image1)
        cell->setEnabled(false);
    cmdcheck->setEnabled(false);
    cmdhint->setEnabled(false);
}

int Y2fractions::selectedCount() const
{
    int count = 0;
    for (const PictureCell* cell : Image1)
        count += cell->appearance() == 1;
    return count;
}

void Y2fractions::newquestion()
{
    resetpics();
    Picture1->hide();
    Timer1->setEnabled(false);
    run().showInstruction();

    question = Halves::drawQuestion(Random::program(), lastset, question.howmany);
    lastset = question.set;
    Module1::setname = question.picname();
    Label1->setText(question.instruction());
    (question.parts == 2 ? Timer5 : Timer6)->setEnabled(true);

    for (int i = 0; i < question.howmany; ++i) {
        Image1[i]->setPicture(question.pictureFile(), question.onePictureName(), question.howmany);
        Image1[i]->show();
    }
    switchon();
}

void Y2fractions::Image1_Click(int index)
{
    Timer4->setEnabled(false);
    PictureCell* cell = Image1[index];
    cell->setSelected(cell->borderStyle() == 0);
    Label2->setText(QString());
}

void Y2fractions::cmdcheck_Click()
{
    switchoff();
    for (FormTimer* timer : {Timer1, Timer3, Timer4, Timer5, Timer6})
        timer->setEnabled(false);
    const int count = selectedCount();

    if (count == question.target)
        run().right(question.rightAnswer(), Timer3);
    else if (count == 0)
        run().keep(tr("You must choose some pictures!"), Timer1); // the child's marks are kept
    else
        run().wrong(Halves::shouldHaveClicked(question.target), Timer3);
}

QRect Y2fractions::boardArea() const
{
    return Frame2->geometry();
}

void Y2fractions::clearBoardAtEnd()
{
    for (PictureCell* cell : Image1)
        cell->hide();
}

bool Y2fractions::giveRightAnswer()
{
    if (!isEnabled() || !cmdcheck->isEnabled() || !Frame2->isVisible())
        return false;
    // The first pictures picked, as many as the question asks for; the
    // child's other picks taken back.
    for (PictureCell* cell : Image1)
        if (cell->isEnabled() && cell->isSelected() != (cell->index() < question.target))
            Image1_Click(cell->index());
    cmdcheck_Click();
    return true;
}

void Y2fractions::cmdhint_Click()
{
    switchoff();
    const int count = selectedCount();
    if (count < question.target) {
        run().showMessage(tr("You have not chosen enough!"));
        Timer1->setEnabled(true);
    } else if (count == question.target) {
        run().showMessage(tr("You don't need a hint, you have the right answer!"));
        cmdcheck->setEnabled(true);
        cmdcheck->setFocus();
    } else {
        run().showMessage(tr("You have chosen too many!"));
        Timer1->setEnabled(true);
    }
}

void Y2fractions::cmdstart_Click()
{
    Timer4->setEnabled(false);
    resetform();
    cmdhint->setEnabled(Module1::challenge == 0);
    cmdcheck->setEnabled(true);
    cmdprint->setEnabled(true);
    cmdexit->setEnabled(true);
    Frame1->show();
    showQuestionsChoice(); // the certificate may have set the run's length
    Timer3->setEnabled(false);
    newquestion();
    cmdcheck->setFocus();
    run().begin();
}

void Y2fractions::cmdprint_Click()
{
    run().print();
    cmdcheck->setFocus();
}

void Y2fractions::cmdexit_Click()
{
    run().exit();
}

void Y2fractions::Timer1_Timer()
{
    run().showInstruction();
    Timer1->setEnabled(false);
    switchon(); // Hint only in practice
    cmdcheck->setFocus();
}

void Y2fractions::Timer2_Timer()
{
    Timer2->setEnabled(false);
    Timer3->setDesignInterval(kQuickTimer3Ms);
    switchon();
    cmdcheck_Click();
    cmdcheck->setFocus();
}

void Y2fractions::Timer3_Timer()
{
    run().showInstruction();
    Timer3->setEnabled(false);
    Timer3->setDesignInterval(kTimer3Ms);
    newquestion(); // Hint only in practice
    setEnabled(true); // the reward picture's stars had the screen to themselves
    cmdcheck->setFocus();
}

void Y2fractions::Timer4_Timer()
{
    // One hook for each picture set, where a set could greet the child
    // before the first click; none of them does anything yet.
    Timer4->setEnabled(false);
}

void Y2fractions::Timer5_Timer()
{
    Timer5->setEnabled(false);
    Timer4->setEnabled(true);
}

void Y2fractions::Timer6_Timer()
{
    Timer6->setEnabled(false);
    Timer4->setEnabled(true);
}
