#include "form.h"

#include "focusring.h"
#include "formtimer.h"
#include "forms.h"
#include "keyboard.h"
#include "pictures.h"
#include "twips.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

Form::Form(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_focusRing(new FocusRing(this))
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
    wayBack();
}

void Form::closeEvent(QCloseEvent* event)
{
    // Forms are unloaded by the program, never by the window system: the
    // close box is one more button of the screen.
    event->ignore();
    if (event->spontaneous())
        closeBoxPressed();
}

QList<QWidget*> Form::tabOrder() const
{
    return Keyboard::readingOrder(this);
}

QWidget* Form::firstControl() const
{
    for (QWidget* control : tabOrder())
        if (control->isEnabled())
            return control;
    return nullptr;
}

void Form::prepareKeyboard()
{
    Keyboard::chain(tabOrder());
    if (!focusWidget())
        if (QWidget* first = firstControl())
            first->setFocus(Qt::TabFocusReason);
}

void Form::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        wayBack();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Outside a dialog a push button leaves Return to its window, and a
        // check box or an option button always does. Pictures and cards on a
        // board keep Return for themselves.
        if (auto* button = qobject_cast<QAbstractButton*>(focusWidget());
            button && button->isEnabled()
            && (qobject_cast<QPushButton*>(button) || qobject_cast<QCheckBox*>(button)
                || qobject_cast<QRadioButton*>(button))) {
            button->click();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

bool Form::focusNextPrevChild(bool next)
{
    // Controls come and go as a screen moves on (a board after Start, the
    // Undo button): the order is taken afresh at each press.
    Keyboard::chain(tabOrder());
    return QWidget::focusNextPrevChild(next);
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
