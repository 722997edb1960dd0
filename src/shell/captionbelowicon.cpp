#include "captionbelowicon.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace {
constexpr int kGap = 2; // pixels between the picture and the caption
}

CaptionBelowIconStyle::CaptionBelowIconStyle(QObject* owner)
{
    setParent(owner);
}

void CaptionBelowIconStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                        const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButtonLabel || !button || button->icon.isNull() || button->text.isEmpty()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const bool enabled = button->state & State_Enabled;
    const QPixmap picture = button->icon.pixmap(button->iconSize, painter->device()->devicePixelRatio(),
                                                enabled ? QIcon::Normal : QIcon::Disabled);
    const QSize pictureSize = button->iconSize;
    const int textHeight = button->fontMetrics.height();
    const QRect area = button->rect;
    const int top = area.top() + (area.height() - pictureSize.height() - kGap - textHeight) / 2;
    painter->drawPixmap(QRect(QPoint(area.center().x() - pictureSize.width() / 2 + 1, top), pictureSize), picture);
    const QRect caption(area.left(), top + pictureSize.height() + kGap, area.width(), textHeight);
    proxy()->drawItemText(painter, caption, Qt::AlignHCenter | Qt::AlignTop | Qt::TextShowMnemonic, button->palette,
                          enabled, button->text, QPalette::ButtonText);
}
