#include "activityform.h"

#include "runtime/picturebox.h"
#include "captionbelowicon.h"
#include "kit/run.h"
#include "module1.h"
#include "runtime/spoken.h"
#include "runtime/twips.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {
QPushButton* commonButton(QWidget* parent, const char* name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->resize(Twips::toPixels(ActivityForm::kButtonWidth), Twips::toPixels(ActivityForm::kButtonHeight));
    button->setIconSize(Twips::scaledPixels(QSize(32, 32)));
    button->setFont(Twips::font(QStringLiteral("Arial"), 8));
    button->setAutoDefault(true); // Enter presses the button that has the focus
    return button;
}

QRadioButton* questionsOption(QWidget* parent, const char* name, const QString& caption, int length)
{
    auto* option = new QRadioButton(caption, parent);
    option->setObjectName(QString::fromLatin1(name));
    // A radio button fills with the Button colour; these take the back
    // colour their screen gives them.
    option->setBackgroundRole(QPalette::Window);
    QObject::connect(option, &QRadioButton::clicked, option, [option, length] {
        // A run already past the shorter length keeps its own: its count of
        // right answers never stands above the run's length.
        if (Module1::counter > length) {
            if (auto* form = qobject_cast<ActivityForm*>(option->window()))
                form->showQuestionsChoice();
            return;
        }
        Module1::questions = length;
    });
    return option;
}

// Where the end-of-run label stands when it says the child is ready, in twips.
constexpr int kReadyLeft = 4035;
constexpr int kReadyTop = 1200;
constexpr int kReadyWidth = 4860;
constexpr int kReadyHeight = 3930;
constexpr int kShortRun = 10;

// The opening panel of the board activities, and their options under the
// reward picture (twips inside the window).
constexpr int kPanelLeft = 1300;
constexpr int kPanelTop = 1320;
constexpr int kPanelWidth = Form::kScreenScaleWidthTwips - 2 * kPanelLeft;
constexpr int kPanelHeight = 3900;
constexpr int kOptionsLeft = 120;
constexpr int kOptionsTop = 5520;
constexpr int kOptionsWidth = 4320;
constexpr int kOptionsHeight = 840;
constexpr int kLongRun = 20;
} // namespace

ActivityForm::ActivityForm(const QString& name, QWidget* parent)
    : Form(name, parent)
    , cmdprint(commonButton(this, "cmdprint"))
    , cmdstart(commonButton(this, "cmdstart"))
    , cmdcheck(commonButton(this, "cmdcheck"))
    , cmdhint(commonButton(this, "cmdhint"))
    , cmdexit(commonButton(this, "cmdexit"))
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Image2(new PictureBox(this, QStringLiteral("Image2")))
    , Option1(questionsOption(this, "Option1", tr("10 Questions"), kShortRun))
    , Option2(questionsOption(this, "Option2", tr("20 Questions"), kLongRun))
    , m_run(new Run(*this))
{
    Image2->setAutoSize(true);
    Image2->setAccessibleName(tr("your reward picture"));
    Image2->hide();
    // The design captions; setupform renames the print button.
    cmdprint->setText(tr("Print WorkSheet"));
    cmdstart->setText(tr("Start"));
    cmdcheck->setText(tr("Check Answers"));
    cmdhint->setText(tr("Hint"));
    cmdexit->setText(tr("Exit"));
    // Each caption under its picture, as the buttons are designed.
    auto* buttonLook = new CaptionBelowIconStyle(this);
    for (QPushButton* b : {cmdprint, cmdstart, cmdcheck, cmdhint, cmdexit})
        b->setStyle(buttonLook);
    raiseButtons();
}

QWidget* ActivityForm::firstControl() const
{
    return cmdstart;
}

void ActivityForm::wayBack()
{
    m_run->exit();
}

void ActivityForm::raiseButtons()
{
    for (QPushButton* b : {cmdprint, cmdstart, cmdcheck, cmdhint, cmdexit})
        b->raise();
}

void ActivityForm::loadButtonPictures()
{
    setButtonPicture(cmdexit, QStringLiteral("ico\\door2.ico"));
    setButtonPicture(cmdstart, QStringLiteral("ico\\trffc10a.ico"));
    setButtonPicture(cmdprint, QStringLiteral("ico\\print.bmp"));
    setButtonPicture(cmdcheck, QStringLiteral("ico\\quest.ico"));
    setButtonPicture(cmdhint, QStringLiteral("ico\\hand.ico"));
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
}

void ActivityForm::layOutOpeningPanel(QLabel* title, QLabel* goodLuck, QLabel* prompt)
{
    Twips::place(Picture1, 0, kPanelTop, kPanelWidth, kPanelHeight);
    Twips::place(title, 0, 360, kPanelWidth, 900);
    Twips::place(goodLuck, 0, 1380, kPanelWidth, 600);
    Twips::place(prompt, 600, 2160, kPanelWidth - 1200, 1200);
}

void ActivityForm::layOutOptions(QFrame* frame, const QColor& ink)
{
    Twips::place(frame, kOptionsLeft, kOptionsTop, kOptionsWidth, kOptionsHeight);
    frame->setStyleSheet(
        QStringLiteral("QFrame#%1 { border: 2px solid rgba(255, 255, 255, 150); border-radius: 10px; }")
            .arg(frame->objectName()));
    for (QRadioButton* option : {Option1, Option2}) {
        option->setParent(frame);
        option->setFont(Twips::font(QStringLiteral("Times New Roman"), 12, true));
        QPalette palette = option->palette();
        palette.setColor(QPalette::WindowText, ink);
        option->setPalette(palette);
    }
    Twips::place(Option1, 240, 180, 1920, 480);
    Twips::place(Option2, 2280, 180, 1920, 480);
}

void ActivityForm::loadAsABoardActivity()
{
    loadButtonPictures();
    Module1::setupform(*this);
    setControlBackColour(Picture1, Module1::kActivityBack);
    setControlBackColour(Option1, Module1::kActivityBack);
    setControlBackColour(Option2, Module1::kActivityBack);
    Picture1->show();
}

void ActivityForm::showQuestionsChoice()
{
    Option1->setChecked(Module1::questions == kShortRun);
    Option2->setChecked(Module1::questions == kLongRun);
}

QString ActivityForm::readyText(const QString& streakText)
{
    return tr("  You are now ready for the Challenge.  %1 correct answers on the run, with no hints. "
              "Click Start to take the Challenge.")
        .arg(streakText);
}

void ActivityForm::showReadyMessage(QLabel* label, const QString& streakText)
{
    label->hide();
    Twips::place(label, kReadyLeft, kReadyTop, kReadyWidth, kReadyHeight);
    label->setText(readyText(streakText));
    Spoken::showMessage(label);
}

QLabel* wordLabel(QWidget* parent, const QString& name, const QString& text, double points, const QColor& ink)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setFont(Twips::font(QStringLiteral("Times New Roman"), points, true));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    QPalette palette = label->palette();
    palette.setColor(QPalette::All, QPalette::WindowText, ink);
    label->setPalette(palette);
    return label;
}
