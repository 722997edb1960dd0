#include "menulook.h"

#include <QLabel>

namespace MenuLook {

QLabel* label(QWidget* parent, const QString& name, const QString& text, const QFont& font, const QColor& ink)
{
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setFont(font);
    QPalette palette = l->palette();
    palette.setColor(QPalette::WindowText, ink);
    l->setPalette(palette);
    return l;
}

} // namespace MenuLook
