#include "y5fract4.h"

#include "kit/parts/answerbox.h"
#include "fractions/fraction.h"
#include "kit/run.h"
#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/spoken.h"
#include "shell/module1.h"

#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

using namespace Module1;

namespace {
bool isTabOrEnter(int keyAscii)
{
    return keyAscii == AnswerBox::kTab || keyAscii == AnswerBox::kEnter;
}

void keepOnlyDigits(int& keyAscii)
{
    if (!AnswerBox::isKept(keyAscii))
        keyAscii = 0;
}

int boxValue(const QLineEdit* box)
{
    return AnswerBox::value(box->text());
}
} // namespace

y5fract4::y5fract4(const MixedMode& mode)
    : ActivityForm(QString::fromLatin1(mode.screen))
    , Timer1(addTimer(QStringLiteral("Timer1"), kTimer1Ms))
    , Timer2(addTimer(QStringLiteral("Timer2"), kTimer2Ms))
    , Timer3(addTimer(QStringLiteral("Timer3"), kTimer3Ms))
    , Timer4(addTimer(QStringLiteral("Timer4"), kTimer4Ms))
    , Timer5(addTimer(QStringLiteral("Timer5"), kTimer5Ms))
    , Timer6(addTimer(QStringLiteral("Timer6"), kTimer6Ms))
    , Timer7(addTimer(QStringLiteral("Timer7"), kTimer7Ms))
    , m_mode(mode)
{
    buildBoard();
    run().setLabels(Label1, Label2, Label80);
    // The certificate's title as this screen passes it; the certificate does not use it.
    run().setCertificateWords(m_mode.certificateWords ? QCoreApplication::translate("Activities", m_mode.certificateWords)
                                                      : Label4->text());
    // A number is written with a blank before it where a minus would stand.
    run().setStreakWithBlank(true);

    connect(cmdstart, &QPushButton::clicked, this, &y5fract4::cmdstart_Click);
    connect(cmdcheck, &QPushButton::clicked, this, &y5fract4::cmdcheck_Click);
    connect(cmdhint, &QPushButton::clicked, this, &y5fract4::cmdhint_Click);
    connect(cmdexit, &QPushButton::clicked, this, &y5fract4::cmdexit_Click);
    connect(cmdprint, &QPushButton::clicked, this, &y5fract4::cmdprint_Click);
    connect(Timer1, &QTimer::timeout, this, &y5fract4::Timer1_Timer);
    connect(Timer3, &QTimer::timeout, this, &y5fract4::Timer3_Timer);
    connect(Timer4, &QTimer::timeout, this, &y5fract4::Timer4_Timer);
    connect(Timer5, &QTimer::timeout, this, &y5fract4::Timer5_Timer);
    connect(Timer6, &QTimer::timeout, this, &y5fract4::Timer6_Timer);
    connect(Timer7, &QTimer::timeout, this, &y5fract4::Timer7_Timer);
}

QList<QWidget*> y5fract4::tabOrder() const
{
    QList<QWidget*> order = ActivityForm::tabOrder();
    if (order.contains(Text1) && order.contains(Text4)) {
        order.removeOne(Text1);
        order.insert(order.indexOf(Text4), Text1);
    }
    return order;
}

void y5fract4::Form_Load()
{
    setupform(*this);
    loadButtonPictures();
    cmdcheck->setEnabled(false);
    cmdhint->setEnabled(false);
    showQuestionsChoice();
    Picture1->show();
    activitytitle = Label4->text();
    visits += 1;
    Forms::load<Grey>()->Timer2->setEnabled(true);
}

void y5fract4::cmdstart_Click()
{
    for (QWidget* w : std::initializer_list<QWidget*>{Picture1, Label18, Label20, Label2, Label80, Label8, Label10})
        w->hide();
    Label5->show();
    Timer5->setEnabled(true);
    counter = 0;
    cmdprint->setEnabled(true);
    cmdexit->setEnabled(true);
    if (challenge == 0)
        cmdhint->setEnabled(true);
    Frame1->show();
    Label1->show();
    Image2->clear();
    Timer1->setEnabled(false);
    Timer2->setEnabled(false);
    Timer3->setEnabled(false);
    for (QWidget* w : std::initializer_list<QWidget*>{Label7, Label9, Text2, Text4, Line1, Line2, Label11})
        w->show();
    newquestion();
    run().begin();
}

void y5fract4::newquestion()
{
    setEnabled(true);
    Random::Randomize();
    showQuestion(MixedQuestion::draw(Random::program(), m_mode.range, m_mode.mayRepeat ? nullptr : &m_question));
}

void y5fract4::showQuestion(const MixedQuestion& question)
{
    m_question = question;
    m_answertext = m_question.answerText();
    if (m_question.direction == MixedQuestion::kToMixed) {
        Label1->setText(tr("Change to a mixed number..."));
        Timer6->setEnabled(true);
        Label5->setText(tr("Type in the correct mixed number and use the ENTER key to move on"));
        Text2->setEnabled(false);
        Text4->setEnabled(false);
        Text1->setEnabled(true);
        for (QLineEdit* box : {Text1, Text2, Text4}) {
            box->clear();
            box->show();
        }
        Picture3->hide();
        Picture2->show();
        Label7->setText(QString::number(m_question.improperNumerator()));
        Label9->setText(QString::number(m_question.denom));
        // A reader hears the stacked numbers as the fraction they make.
        Picture2->setAccessibleName(tr("%1 equals").arg(Fractions::words(m_question.improperNumerator(), m_question.denom)));
        Text1->setFocus();
    } else {
        Label1->setText(tr("Change to an improper fraction..."));
        Timer7->setEnabled(true);
        Label5->setText(tr("Type in the correct fraction and use the ENTER key to move on"));
        Text5->setEnabled(false);
        Text3->setEnabled(true);
        for (QLineEdit* box : {Text3, Text5}) {
            box->clear();
            box->show();
        }
        Picture2->hide();
        Picture3->show();
        Label19->setText(QString::number(m_question.whole));
        Label15->setText(QString::number(m_question.denom));
        Label16->setText(QString::number(m_question.numer));
        Picture3->setAccessibleName(tr("%1 and %2 equals")
                                        .arg(Fractions::numberWord(m_question.whole),
                                             Fractions::words(m_question.numer, m_question.denom)));
        Text3->setFocus();
    }
}

bool y5fract4::enter(QLineEdit* box, QLabel* label)
{
    if (!AnswerBox::isAccepted(box->text())) {
        // An empty box or a 0 is refused without a word.
        box->clear();
        box->setFocus();
        return false;
    }
    label->setText(box->text());
    label->setAccessibleName(tr("%1, %2").arg(box->accessibleName(), box->text())); // "top number, 3"
    label->show();
    box->hide();
    return true;
}

void y5fract4::Text1_KeyPress(int& KeyAscii)
{
    if (isTabOrEnter(KeyAscii) && enter(Text1, Label12)) {
        Text4->setEnabled(true);
        Text4->setFocus();
    }
    keepOnlyDigits(KeyAscii);
}

void y5fract4::Text4_KeyPress(int& KeyAscii)
{
    if (isTabOrEnter(KeyAscii) && enter(Text4, Label8)) {
        Text2->setEnabled(true);
        Text2->setFocus();
    }
    keepOnlyDigits(KeyAscii);
}

void y5fract4::Text2_KeyPress(int& KeyAscii)
{
    if (isTabOrEnter(KeyAscii) && enter(Text2, Label10)) {
        Label18->hide();
        Text2->setEnabled(false);
        cmdcheck_Click();
    }
    keepOnlyDigits(KeyAscii);
}

void y5fract4::Text3_KeyPress(int& KeyAscii)
{
    if (isTabOrEnter(KeyAscii) && enter(Text3, Label17)) {
        Text5->setEnabled(true);
        Text5->setFocus();
    }
    keepOnlyDigits(KeyAscii);
}

void y5fract4::Text5_KeyPress(int& KeyAscii)
{
    if (isTabOrEnter(KeyAscii) && enter(Text5, Label14)) {
        Label18->hide();
        Label20->hide();
        cmdcheck_Click();
    }
    keepOnlyDigits(KeyAscii);
}

void y5fract4::cmdcheck_Click()
{
    MixedQuestion::Entries typed;
    typed.t1 = boxValue(Text1);
    typed.t2 = boxValue(Text2);
    typed.t3 = boxValue(Text3);
    typed.t4 = boxValue(Text4);
    typed.t5 = boxValue(Text5);

    if (m_question.isAnswer(typed))
        run().right(QStringLiteral(" ") + m_answertext, Timer1);
    else
        run().wrong(tr("Incorrect! %1").arg(m_answertext), Timer3);
}

QRect y5fract4::boardArea() const
{
    return Picture2->geometry().united(Frame1->geometry());
}

void y5fract4::clearBoardAtEnd()
{
    Label5->hide();
    Picture2->hide();
    Picture3->hide();
}

bool y5fract4::giveRightAnswer()
{
    const bool toMixed = m_question.direction == MixedQuestion::kToMixed;
    const QList<QLineEdit*> boxes = toMixed ? QList<QLineEdit*>{Text1, Text4, Text2} : QList<QLineEdit*>{Text3, Text5};
    const QList<int> values = toMixed ? QList<int>{m_question.whole, m_question.numer, m_question.denom}
                                      : QList<int>{m_question.improperNumerator(), m_question.denom};
    const bool asked = isEnabled() && !Picture1->isVisible() && (toMixed ? Picture2 : Picture3)->isVisible();
    if (!asked || std::none_of(boxes.cbegin(), boxes.cend(), [](const QLineEdit* box) { return box->isVisible(); }))
        return false;
    // Each box still open gets its number and ENTER, the last one checks.
    for (int i = 0; i < boxes.size(); ++i) {
        QLineEdit* box = boxes[i];
        if (!box->isVisible() || !box->isEnabled())
            continue;
        box->setText(QString::number(values[i]));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QCoreApplication::sendEvent(box, &enter);
    }
    return true;
}

void y5fract4::cmdhint_Click()
{
    if (Label5->isVisible()) {
        Timer5->setEnabled(false);
        Label5->hide();
    }
    if (m_question.direction == MixedQuestion::kToMixed) {
        if (Text1->isVisible())
            Text1->setFocus();
        Label18->setText(m_question.hintText());
        Spoken::showMessage(Label18);
    } else {
        if (Text3->isVisible())
            Text3->setFocus();
        Label18->setText(m_question.hintText());
        Spoken::showMessage(Label18);
        Label20->setText(m_question.productText());
        // "2 x 4 = 8" read out as a child says it.
        Label20->setAccessibleName(tr("%1 times %2 is %3")
                                       .arg(m_question.whole)
                                       .arg(m_question.denom)
                                       .arg(m_question.whole * m_question.denom));
        Spoken::showMessage(Label20);
    }
}

void y5fract4::Timer1_Timer()
{
    Timer1->setEnabled(false);
    Timer1->setDesignInterval(kTimer1Ms);
    run().showInstruction();
    newquestion();
    if (challenge == 0)
        cmdhint->setEnabled(true);
    setEnabled(true);
}

void y5fract4::Timer3_Timer()
{
    Timer3->setEnabled(false);
    run().showInstruction();
    // A wrong answer is followed by a new question, not the same one again.
    newquestion();
    if (challenge == 0)
        cmdhint->setEnabled(true);
}

void y5fract4::Timer4_Timer()
{
    Timer4->setEnabled(false);
    Timer1->setDesignInterval(kTimer1QuickMs);
    cmdcheck_Click();
}

void y5fract4::Timer5_Timer()
{
    Timer5->setEnabled(false);
    Label5->hide();
}

void y5fract4::Timer6_Timer()
{
    Timer6->setEnabled(false);
}

void y5fract4::Timer7_Timer()
{
    Timer7->setEnabled(false);
}

void y5fract4::cmdexit_Click()
{
    run().exit();
}

void y5fract4::cmdprint_Click()
{
    run().print();
}
