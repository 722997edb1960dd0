#include "module1.h"

#include "activityform.h"
#include "fractions/fraction.h"
#include "fractions/numberset.h"
#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/random.h"
#include "runtime/screenfit.h"
#include "runtime/twips.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Module1 {
namespace {

// The activity screens' layout, in twips.
constexpr int kButtonTop = 280;
constexpr int kPrintLeft = 120;
constexpr int kStartLeft = 2067;
constexpr int kCheckLeft = 4014;
constexpr int kHintLeft = 5961;
constexpr int kExitLeft = 7910;
constexpr int kPanelLeft = 1300;
constexpr int kActivityScaleWidth = Form::kScreenScaleWidthTwips;
constexpr int kActivityScaleHeight = 6510;
constexpr int kDefaultQuestions = 20;

constexpr int kPraiseCount = 12;

QString twoDigits(int n)
{
    return QString::number(n).rightJustified(2, QLatin1Char('0'));
}

} // namespace

void setupform(ActivityForm& form)
{
    form.setBackColour(kActivityBack);
    Twips::move(form.cmdprint, kPrintLeft, kButtonTop);
    Twips::move(form.cmdstart, kStartLeft, kButtonTop);
    Twips::move(form.cmdcheck, kCheckLeft, kButtonTop);
    Twips::move(form.cmdhint, kHintLeft, kButtonTop);
    Twips::move(form.cmdexit, kExitLeft, kButtonTop);
    form.Picture1->move(Twips::toPixels(kPanelLeft), form.Picture1->y());

    form.cmdcheck->setToolTip(QCoreApplication::translate("Module1", "Check Your Answer"));
    form.cmdstart->setToolTip(QCoreApplication::translate("Module1", "Press To Start"));
    form.cmdprint->setToolTip(QCoreApplication::translate("Module1", "Print A Worksheet"));
    form.cmdexit->setToolTip(QCoreApplication::translate("Module1", "Goodbye"));
    form.cmdhint->setToolTip(QCoreApplication::translate("Module1", "Get Some Help"));
    form.cmdprint->setText(QCoreApplication::translate("Module1", "Print A Worksheet"));

    form.setDesignSize(Form::kScreenWidthTwips, Form::kScreenHeightTwips);
    form.setScaleSize(kActivityScaleWidth, kActivityScaleHeight);
    centreform(form);
    questions = kDefaultQuestions;
}

void centreform(Form& form)
{
    const QRect display = Twips::display();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const double displayWidth = display.width();
    const double displayHeight = display.height();
    const double width = form.designWidth() > 0 ? form.designWidth() : Twips::fromPixels(form.frameGeometry().width());
    const double height = form.designHeight() > 0 ? form.designHeight() : Twips::fromPixels(form.frameGeometry().height());
    const int top = static_cast<int>(std::lround(displayHeight / 2 - height / 2));
    const int left = static_cast<int>(std::lround(displayWidth / 2 - width / 2));
    form.moveTo(display.x() + left, display.y() + top);
    // A screen larger than the display keeps its title bar and its top left
    // corner in sight.
    const QSize outer(Twips::toPixels(static_cast<int>(width)), Twips::toPixels(static_cast<int>(height)));
    form.move(ScreenFit::keepInside(form.pos(), outer, ScreenFit::available()));
    QGuiApplication::restoreOverrideCursor();
}

void praise()
{
    Random::Randomize();
    const int n = static_cast<int>(Random::Rnd() * kPraiseCount + 1);
    praisetext = QCoreApplication::translate("Module1", kPraise[n - 1]);
}

void pickpicture(ActivityForm& form)
{
    form.Image2->hide();
    counter = 0;
    if (challenge < 2 || picset.isEmpty()) {
        Random::Randomize();
        int n = static_cast<int>(Random::Rnd() * kRewardSetCount);
        // This screen never gets the sphere set, and the star set twice as often.
        if (form.objectName() == QLatin1String("y3fract3") && n == 3)
            n = 4;
        picset = QString::fromLatin1(kRewardSets[n].name);
        // The tall pictures stand higher on the screen.
        form.Image2->move(form.Image2->x(), Twips::toPixels(kRewardSets[n].top));
    }
    form.Image2->load(rewardFrameFile(picset, 0));
}

void nextpicture(ActivityForm& form)
{
    form.cmdhint->setEnabled(false);
    if (counter < questions) {
        form.setEnabled(false);
        Forms::load<Grey>()->Timer1->setEnabled(true);
    }
    const int frame = questions == 10 ? counter * 2 : counter;
    form.Image2->load(rewardFrameFile(picset, std::min(frame, kLastRewardFrame)));
    form.Image2->show();
}

void showwelldone(const QString&)
{
    Forms::unload(QStringLiteral("Welldone"));
    Forms::show(QStringLiteral("Welldone"));
}

void showreward()
{
    retry = 1;
    Forms::unload(QStringLiteral("Reward"));
    Forms::show(QStringLiteral("Reward"));
}

int hcf(int a, int b)
{
    // Counting down from |b| finds nothing when b is 0.
    return b == 0 ? 0 : Fractions::hcf(a, b);
}

QString randomdecimal(int whole, int places)
{
    return NumberSet::randomDecimal(Random::program(), whole, places);
}

QString rewardFrameFile(const QString& set, int frame)
{
    return QStringLiteral("jpg2\\") + set + twoDigits(frame) + QStringLiteral(".jpg");
}

void reset()
{
    version.clear();
    soundsetting.clear();
    soundoption = 0;
    yearlabel.clear();
    streak = questions = challenge = counter = retry = visits = 0;
    picset.clear();
    praisetext.clear();
    activitytitle.clear();
    logoframe = 0;
    setname.clear();
    starset = starstep = starframe = 0;
}

QString editionOf(const QString& value)
{
    bool ok = false;
    const double number = value.trimmed().toDouble(&ok);
    if (ok && number == 0)
        return kPrimaryEdition;
    if (ok && number == 1)
        return kSecondaryEdition;
    return kNoEdition;
}

bool editionChosen()
{
    return version == kPrimaryEdition || version == kSecondaryEdition;
}

} // namespace Module1
