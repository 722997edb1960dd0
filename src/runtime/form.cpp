#include "form.h"

#include "formtimer.h"
#include "forms.h"
#include "pictures.h"
#include "twips.h"

#include <QAbstractButton>
#include <QCloseEvent>

Form::Form(const QString& name, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(name);
}

void Form::setDesignSize(int widthTwips, int heightTwips)
{
    m_designWidth = widthTwips;
    m_designHeight = heightTwips;
    setFixedSize(Twips::toPixels(widthTwips - kBorderWidthTwips),
                 Twips::toPixels(heightTwips - kBorderHeightTwips));
}

void Form::setScaleSize(int scaleWidthTwips, int scaleHeightTwips)
{
    setFixedSize(Twips::toPixels(scaleWidthTwips), Twips::toPixels(scaleHeightTwips));
}

void Form::setBackColour(const QColor& colour)
{
    m_back = colour;
    setControlBackColour(this, colour);
}

void Form::setIconPicture(const QString& assetPath)
{
    m_iconPath = assetPath;
    setWindowIcon(Pictures::icon(assetPath));
}

void Form::moveTo(int leftTwips, int topTwips)
{
    move(Twips::toPixels(leftTwips), Twips::toPixels(topTwips));
}

void Form::closeBoxPressed()
{
    Forms::endProgram();
}

void Form::closeEvent(QCloseEvent* event)
{
    // Forms are unloaded by the program, never by the window system: the
    // close box is one more button of the screen.
    event->ignore();
    if (event->spontaneous())
        closeBoxPressed();
}

FormTimer* Form::addTimer(const QString& name, int intervalMs)
{
    return new FormTimer(this, name, intervalMs);
}

void setButtonPicture(QAbstractButton* button, const QString& assetPath)
{
    button->setIcon(Pictures::icon(assetPath));
    button->setProperty("picturePath", assetPath);
}

void setControlBackColour(QWidget* control, const QColor& colour)
{
    QPalette palette = control->palette();
    palette.setColor(QPalette::Window, colour);
    control->setPalette(palette);
    control->setAutoFillBackground(true);
}
