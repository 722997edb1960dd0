#include "activityform.h"

#include "runtime/picturebox.h"
#include "runtime/twips.h"

#include <QPushButton>

namespace {
QPushButton* commonButton(QWidget* parent, const char* name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->resize(Twips::toPixels(ActivityForm::kButtonWidth), Twips::toPixels(ActivityForm::kButtonHeight));
    button->setIconSize(QSize(32, 32));
    return button;
}
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
{
    Image2->setAutoSize(true);
    Image2->hide();
}
