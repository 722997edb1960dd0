#include "y6fract3.h"

#include "boardlabels.h"
#include "fractions/decimalvalue.h"
#include "kit/run.h"
#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

using namespace Module1;

QString Y6fract3::startInstruction()
{
    return tr("Click the numbers, in order, starting with the smallest....");
}

QString Y6fract3::rightOrder()
{
    return tr(" The numbers are in the correct order");
}

QString Y6fract3::wrongOrder()
{
    return tr("Unlucky! The correct order is:");
}

namespace {
constexpr int kFewerThanVisits = 4;
constexpr int kVisitsAfterGreeting = 3;

// Key codes that keyfilter knows.
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr int kBackspace = 8;

} // namespace

Y6fract3::Y6fract3()
    : ActivityForm(QStringLiteral("Y6fract3"))
    , Label1(wordLabel(this, QStringLiteral("Label1"), QString(), 13, Qt::white))
    , Label2(wordLabel(this, QStringLiteral("Label2"), tr("Incorrect!"), 14, Y6fract3::kHighlight))
    , Label3(nullptr)
    , Label4(wordLabel(this, QStringLiteral("Label4"), tr("Place In Order"), 22, Qt::white))
    , Label6(nullptr)
    , Label8(wordLabel(this, QStringLiteral("Label8"), tr("Click Start to have another go... or click Exit"),
                       16, Qt::white))
    , Label9(wordLabel(this, QStringLiteral("Label9"), tr("Click each number starting with the smallest."),
                       14, Y6fract3::kHighlight))
    , cmdundo(new QPushButton(tr("Undo"), this))
    , Frame1(new QFrame(this))
    , Frame2(nullptr)
    , Shape1(nullptr)
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer2(addTimer(QStringLiteral("Timer2"), kTimer2Ms))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , Timer4(addTimer(QStringLiteral("Timer4"), kTimer4Ms))
    , Timer5(addTimer(QStringLiteral("Timer5"), kTimer5Ms))
    , Timer6(addTimer(QStringLiteral("Timer6"), kTimer6Ms))
    , Timer7(addTimer(QStringLiteral("Timer7"), kTimer7Ms))
{
    setWindowTitle(QCoreApplication::translate("orderhelp", "Year 6 "));
    Image2->setObjectName(QStringLiteral("Image2(0)"));
    buildBoard();
    buildOpeningPanel();

    layOut();
    // Nothing is checked before Start: the check follows the fifth click.
    cmdcheck->setEnabled(false);

    run().setLabels(Label1, Label2, Label8);
    // The words handed to the certificate routine, which does not use them.
    run().setCertificateWords(QCoreApplication::translate("Activities", "How Many?"));

    connect(cmdstart, &QPushButton::clicked, this, &Y6fract3::cmdstart_Click);
    connect(cmdcheck, &QPushButton::clicked, this, &Y6fract3::cmdcheck_Click);
    connect(cmdhint, &QPushButton::clicked, this, &Y6fract3::cmdhint_Click);
    connect(cmdprint, &QPushButton::clicked, this, &Y6fract3::cmdprint_Click);
    connect(cmdexit, &QPushButton::clicked, this, &Y6fract3::cmdexit_Click);
    connect(cmdundo, &QPushButton::clicked, this, &Y6fract3::cmdundo_Click);
    connect(Timer1, &QTimer::timeout, this, &Y6fract3::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &Y6fract3::Timer2_Timer);
    connect(Timer3, &QTimer::timeout, this, &Y6fract3::Timer3_Timer);
    connect(Timer4, &QTimer::timeout, this, &Y6fract3::Timer4_Timer);
    connect(Timer5, &QTimer::timeout, this, &Y6fract3::Timer5_Timer);
    connect(Timer6, &QTimer::timeout, this, &Y6fract3::Timer6_Timer);
    connect(Timer7, &QTimer::timeout, this, &Y6fract3::Timer7_Timer);
    // The one timer that runs from the start.
    Timer1->setEnabled(true);
}

NumberSet::Texts Y6fract3::numbers() const
{
    NumberSet::Texts texts;
    for (int i = 0; i < NumberSet::kCount; ++i)
        texts[i] = Label10[i]->text();
    return texts;
}

NumberSet::Texts Y6fract3::answers() const
{
    NumberSet::Texts texts;
    for (int i = 0; i < NumberSet::kCount; ++i)
        texts[i] = Label11[i]->text();
    return texts;
}

void Y6fract3::Form_Load()
{
    loadButtonPictures();
    setupform(*this);
    showQuestionsChoice();
    for (QWidget* control : {static_cast<QWidget*>(Option1), static_cast<QWidget*>(Option2),
                             static_cast<QWidget*>(Label8)})
        setControlBackColour(control, kActivityBack);
    Picture1->setBackColour(kActivityBack);
    Picture1->show();
    counter = 0;
    activitytitle = Label4->text();
    visits += 1;
    if (visits < kFewerThanVisits) {
        Forms::load<Grey>()->Timer2->setEnabled(true);
        visits = kVisitsAfterGreeting;
    }
}

void Y6fract3::showPointers(bool on)
{
    Label13->setVisible(on);
    Label12[5]->setVisible(on);
    Label12[0]->setVisible(on);
    Label5->setVisible(on);
}

void Y6fract3::newnumbers()
{
    Timer6->setEnabled(true);
    Timer7->setEnabled(true);
    if (challenge == 0)
        cmdhint->setEnabled(true);
    Label2->hide();
    showPointers(true);
    Random::Randomize();
    numberkind = NumberSet::kSharedWholePart;
    if (const auto question = NumberSet::newnumbers(Random::program(), numberkind)) {
        wholepart = question->wholepart;
        for (int i = 0; i < NumberSet::kCount; ++i)
            Label10[i]->setText(question->numbers[i]);
    }
    for (int i = 0; i < NumberSet::kCount; ++i) {
        Label10[i]->setEnabled(true);
        Label11[i]->show();
        order[i] = 0;
        Label11[i]->clear();
    }
}

int Y6fract3::check_order()
{
    return NumberSet::hasRepeats(numbers()) ? 1 : 0;
}

void Y6fract3::Label10_Click(int Index)
{
    if (!Label2->isHidden())
        return;
    showPointers(false);
    const int slot = NumberSet::firstFreeSlot(answers());
    if (slot >= 0) {
        Label11[slot]->setText(Label10[Index]->text());
        order[slot] = Index;
        Label10[Index]->setEnabled(false);
    }
    if (!valueOf(Label11[NumberSet::kCount - 1]->text()).isZero()) {
        Label12[5]->show();
        Label12[0]->show();
        cmdcheck_Click();
    }
}

void Y6fract3::cmdundo_Click()
{
    const int slot = NumberSet::undoSlot(answers());
    if (slot < 0)
        return;
    const int number = NumberSet::numberWithValue(numbers(), Label11[slot]->text());
    if (number >= 0)
        Label10[number]->setEnabled(true);
    Label11[slot]->clear();
}

void Y6fract3::resetform()
{
    Image2->hide();
    Label8->hide();
}

void Y6fract3::keyfilter(int& KeyAscii)
{
    if ((KeyAscii == kTab || KeyAscii == kEnter) && Label2->isHidden()) {
        if (keyentry && !keyentry->text().isEmpty()) {
            keyentry->setReadOnly(true);
            cmdcheck_Click();
        }
    }
    const bool letter = (KeyAscii >= 'A' && KeyAscii <= 'Z') || (KeyAscii >= 'a' && KeyAscii <= 'z');
    const bool wanted = KeyAscii == '-' || KeyAscii == kBackspace || KeyAscii == '.'
        || (KeyAscii >= '0' && KeyAscii <= '9');
    if (letter || !wanted)
        KeyAscii = 0;
}

void Y6fract3::cmdstart_Click()
{
    Picture1->hide();
    resetform();
    for (NumberLabel* number : Label10)
        number->setEnabled(true);
    Label1->setText(startInstruction());
    cmdcheck->setEnabled(false);
    cmdprint->setEnabled(true);
    cmdexit->setEnabled(true);
    cmdundo->show();
    if (challenge == 0)
        cmdhint->setEnabled(true);
    Frame1->show();
    Shape1->show();
    counter = 0;
    Label9->show();
    Timer1->setEnabled(true);
    Timer2->setEnabled(false);
    Timer4->setEnabled(false);
    for (NumberLabel* number : Label10)
        number->show();
    newnumbers();
    run().begin();
}

void Y6fract3::cmdcheck_Click()
{
    Label9->hide();
    cmdhint->setEnabled(false);
    if (NumberSet::inOrder(answers())) {
        run().right(rightOrder(), Timer3);
        return;
    }
    // In the Challenge the retry screen waits while the right order is shown.
    run().wrong(wrongOrder(), nullptr, Timer5);
    showorder();
}

QRect Y6fract3::boardArea() const
{
    // The numbers, the arrows and the answer column.
    return Label10.first()->geometry().united(Label11.last()->geometry()).translated(Frame1->pos());
}

void Y6fract3::clearBoardAtEnd()
{
    for (int i = 0; i < NumberSet::kCount; ++i) {
        Label10[i]->hide();
        Label11[i]->hide();
    }
    cmdundo->hide();
    Shape1->hide();
    showPointers(false);
    Label2->clear();
}

void Y6fract3::showorder()
{
    for (QLabel* slot : Label11)
        slot->hide();
    const NumberSet::Texts sorted = NumberSet::sortedOrder(answers());
    for (int i = 0; i < NumberSet::kCount; ++i)
        Label11[i]->setText(sorted[i]);
    Timer4->setEnabled(true);
}

bool Y6fract3::giveRightAnswer()
{
    const bool asked = isEnabled() && !Picture1->isVisible() && Label2->isHidden()
        && std::any_of(Label10.cbegin(), Label10.cend(), [](const NumberLabel* n) { return n->isVisible() && n->isEnabled(); });
    if (!asked)
        return false;
    // The child's picks taken back, then every number clicked, smallest first.
    for (int step = 0; step < NumberSet::kCount && NumberSet::firstFreeSlot(answers()) != 0; ++step)
        cmdundo_Click();
    for (const QString& caption : NumberSet::sortedOrder(numbers()))
        if (const int number = NumberSet::numberWithValue(numbers(), caption); number >= 0)
            Label10_Click(number);
    return true;
}

void Y6fract3::cmdhint_Click()
{
    // The help screen is application-modal: this screen waits behind it.
    Forms::show(QStringLiteral("orderhelp"));
}

QPushButton* Y6fract3::focusAfterPrint() const
{
    // Along the row from Hint: Hint, Exit, then round to Print, Start, Check.
    for (QPushButton* button : {cmdhint, cmdexit, cmdprint, cmdstart, cmdcheck})
        if (button->isEnabled())
            return button;
    return cmdhint;
}

void Y6fract3::cmdprint_Click()
{
    run().print();
    focusAfterPrint()->setFocus();
}

void Y6fract3::cmdexit_Click()
{
    run().exit();
}

void Y6fract3::nextQuestion()
{
    Label2->hide();
    newnumbers();
    if (challenge == 0)
        cmdhint->setEnabled(true);
    setEnabled(true);
}

void Y6fract3::Timer1_Timer()
{
    Label9->hide();
    Timer1->setEnabled(false);
}

void Y6fract3::Timer2_Timer()
{
    Timer2->setEnabled(false);
    nextQuestion();
}

void Y6fract3::Timer3_Timer()
{
    Timer3->setEnabled(false);
    nextQuestion();
}

void Y6fract3::Timer4_Timer()
{
    for (QLabel* slot : Label11)
        if (slot->isHidden()) {
            slot->show();
            break;
        }
    if (!Label11[NumberSet::kCount - 1]->isHidden()) {
        Timer2->setEnabled(true);
        Timer4->setEnabled(false);
    }
}

void Y6fract3::Timer5_Timer()
{
    run().showRetryScreen();
    Timer5->setEnabled(false);
}

void Y6fract3::Timer6_Timer()
{
    Label1->show();
    Timer6->setEnabled(false);
}

void Y6fract3::Timer7_Timer()
{
    Label1->show();
    Timer7->setEnabled(false);
}
