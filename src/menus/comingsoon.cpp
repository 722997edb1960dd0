#include "comingsoon.h"

#include "logo.h"

#include "runtime/forms.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QLabel>
#include <QPushButton>

namespace {
constexpr int kInsideWidth = Form::kScreenScaleWidthTwips;
} // namespace

Comingsoon::Comingsoon()
    : Form(QStringLiteral("Comingsoon"))
    , Picture1(new PictureBox(this, QStringLiteral("Picture1")))
    , Label1(new QLabel(this))
    , Label2(new QLabel(tr("This activity is still being made.\n"
                               "Click Goodbye and choose another one for now."),
                        this))
    , cmdexit(new QPushButton(tr("Goodbye"), this))
{
    setDesignSize(kScreenWidthTwips, kScreenHeightTwips);
    setBackColour(Module1::kActivityBack);

    Picture1->setAutoSize(true);
    Picture1->setAccessibleName(Logo::spokenName());
    Picture1->setBackColour(Module1::kActivityBack);
    Picture1->load(Logo::frameFile(Logo::Frames::Large, 0));
    Twips::move(Picture1, (kInsideWidth - Twips::fromPixels(Picture1->width())) / 2, 240);

    for (QLabel* label : {Label1, Label2}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        label->setAutoFillBackground(true);
        QPalette palette = label->palette();
        palette.setColor(QPalette::Window, Module1::kPanelPaper);
        palette.setColor(QPalette::WindowText, Module1::kPanelInk);
        label->setPalette(palette);
    }
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setFont(Twips::font(QStringLiteral("Times New Roman"), 20, true));
    Twips::place(Label1, 960, 2100, kInsideWidth - 1920, 1260);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setFont(Twips::font(QStringLiteral("Times New Roman"), 14, false));
    Twips::place(Label2, 960, 3360, kInsideWidth - 1920, 1020);

    cmdexit->setObjectName(QStringLiteral("cmdexit"));
    cmdexit->setFont(Twips::font(QStringLiteral("Arial"), 10, true));
    cmdexit->setIconSize(Twips::scaledPixels(QSize(32, 32)));
    Twips::place(cmdexit, (kInsideWidth - 2160) / 2, 4920, 2160, 840);
    connect(cmdexit, &QPushButton::clicked, this, &Comingsoon::cmdexit_Click);
}

void Comingsoon::setActivity(const QString& title, const QString& menu)
{
    Label1->setText(title);
    m_menu = menu;
}

void Comingsoon::Form_Load()
{
    setIconPicture(QStringLiteral("ico\\fraction.ico"));
    setButtonPicture(cmdexit, QStringLiteral("ico\\door2.ico"));
    Module1::centreform(*this);
}

void Comingsoon::cmdexit_Click()
{
    Forms::showAndUnload(m_menu, this);
}

void Comingsoon::wayBack()
{
    cmdexit_Click();
}
