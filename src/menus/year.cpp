#include "year.h"

#include "runtime/forms.h"
#include "runtime/twips.h"
#include "shell/module1.h"
#include "shell/titlefrm.h"

#include <QLabel>
#include <QPushButton>

namespace {
const QColor kBack(49, 130, 212);
} // namespace

Year::Year()
    : Form(QStringLiteral("Year"))
    , Command4(new QPushButton(this))
    , Label4(new QLabel(QStringLiteral("Partitude"), this))
{
    setWindowTitle(QStringLiteral("Partitude"));
    setDesignSize(kScreenWidthTwips, kScreenHeightTwips);
    Command4->setObjectName(QStringLiteral("Command4"));
    Command4->setIconSize(QSize(32, 32));
    Twips::place(Command4, 8160, 5520, 1080, 840);
    Label4->setObjectName(QStringLiteral("Label4"));
    Label4->setFont(Twips::font(QStringLiteral("Times New Roman"), 40, true));
    Label4->setStyleSheet(QStringLiteral("color: white;"));
    Label4->setAlignment(Qt::AlignCenter);
    Twips::place(Label4, 0, 240, kScreenWidthTwips - kBorderWidthTwips, 1200);
    connect(Command4, &QPushButton::clicked, this, &Year::Command4_Click);
}

void Year::Form_Load()
{
    setBackColour(kBack);
    Module1::centreform(*this);
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    setButtonPicture(Command4, QStringLiteral("ico\\door2.ico"));
}

void Year::Command4_Click()
{
    // Touching the title screen loads it afresh; it now leads back here.
    Forms::load<Titlefrm>()->Command1->setText(QStringLiteral("Cancel"));
    Forms::unload(this);
    Forms::show<Titlefrm>()->Command2->setEnabled(true);
}
