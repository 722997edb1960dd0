#include "run.h"

#include "activities/activitytable.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/random.h"
#include "runtime/spoken.h"
#include "shell/activityform.h"
#include "shell/module1.h"
#include "worksheets/printforms.h"

#include <QLabel>
#include <QPushButton>

using namespace Module1;

Run::Run(ActivityForm& form)
    : QObject(&form)
    , m_form(form)
{
}

void Run::setLabels(QLabel* instruction, QLabel* message, QLabel* endOfRun)
{
    m_instruction = instruction;
    m_message = message;
    m_end = endOfRun;
    // Each new question, the praise, "Incorrect!" and the ready text are
    // spoken as they appear.
    Spoken::markAsMessage(instruction);
    Spoken::markAsMessage(message);
    Spoken::markAsMessage(endOfRun);
}

void Run::begin()
{
    pickpicture(m_form);
}

bool Run::hintsAllowed()
{
    return challenge == 0;
}

bool Run::right(const QString& statement, FormTimer* pace)
{
    ++counter;
    nextpicture(m_form);
    if (counter >= questions) {
        endOfRun();
        return false;
    }
    praise();
    showMessage(praisetext + statement);
    if (pace)
        pace->setEnabled(true);
    return true;
}

void Run::endOfRun()
{
    counter = 0;
    m_instruction->setText(QString());
    m_form.clearBoardAtEnd();
    m_form.cmdcheck->setEnabled(false);
    m_form.cmdhint->setEnabled(false);
    if (challenge > 0) {
        m_end->show();
        exit(); // the Challenge is won: back to the menu
    } else {
        // Shown once, with the ready text, so a screen reader says only that.
        const QString run = QString::number(streak);
        ActivityForm::showReadyMessage(m_end, m_streakWithBlank && streak >= 0 ? QStringLiteral(" ") + run : run);
    }
    showwelldone(m_certificateWords);
}

void Run::wrong(const QString& message, FormTimer* pace, FormTimer* rewardDelay)
{
    if (challenge > 0) {
        challenge = 2;
        pickpicture(m_form); // the same picture starts again from nothing
        if (rewardDelay)
            rewardDelay->setEnabled(true);
        else
            showreward();
    }
    showMessage(message);
    if (pace)
        pace->setEnabled(true); // a new question: a wrong one is not asked again
}

void Run::showRetryScreen()
{
    showreward();
}

void Run::keep(const QString& message, FormTimer* back)
{
    showMessage(message);
    if (back)
        back->setEnabled(true);
}

void Run::showMessage(const QString& text)
{
    m_message->setText(text);
    m_instruction->hide();
    Spoken::showMessage(m_message);
}

void Run::showInstruction()
{
    m_message->hide();
    m_instruction->show();
}

QString Run::menu() const
{
    const Activities::Row* row = Activities::forScreen(m_form.objectName());
    return row ? QString::fromLatin1(row->menu) : QStringLiteral("Year");
}

void Run::exit()
{
    Forms::showAndUnload(menu(), &m_form);
}

void Run::print()
{
    const Activities::Row* row = Activities::forScreen(m_form.objectName());
    if (row && row->printForm)
        Worksheets::askAndPrint(QString::fromLatin1(row->printForm));
    else if (row && row->sheet)
        Worksheets::askAndPrintGenerated([row] { return row->sheet(Random::program()); });
}
