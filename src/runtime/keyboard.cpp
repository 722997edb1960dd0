#include "keyboard.h"

#include <QWidget>
#include <algorithm>

namespace Keyboard {
namespace {

struct Item {
    QWidget* widget;
    QRect place; // in the root's coordinates
};

bool holdsControls(const QWidget* widget)
{
    const auto children = widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    return std::any_of(children.cbegin(), children.cend(), [](const QWidget* child) {
        return !child->isWindow() && !child->isHidden() && (takesTab(child) || holdsControls(child));
    });
}

bool sameRow(const Item& first, const Item& item)
{
    const int tolerance = std::min(first.place.height(), item.place.height()) / 2;
    return std::abs(item.place.center().y() - first.place.center().y()) <= tolerance;
}

// Rows from top to bottom, each row from left to right.
void sortAsRead(QList<Item>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const Item& a, const Item& b) {
        return a.place.center().y() < b.place.center().y();
    });
    auto rowStart = items.begin();
    while (rowStart != items.end()) {
        auto rowEnd = std::find_if(rowStart, items.end(), [&](const Item& item) { return !sameRow(*rowStart, item); });
        std::stable_sort(rowStart, rowEnd, [](const Item& a, const Item& b) { return a.place.left() < b.place.left(); });
        rowStart = rowEnd;
    }
}

void collect(const QWidget* container, const QWidget* root, QList<QWidget*>& order)
{
    QList<Item> items;
    for (QWidget* child : container->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isWindow() || child->isHidden())
            continue;
        if (takesTab(child) || holdsControls(child))
            items.append({child, QRect(child->mapTo(root, QPoint(0, 0)), child->size())});
    }
    sortAsRead(items);
    for (const Item& item : items) {
        if (takesTab(item.widget))
            order.append(item.widget);
        else
            collect(item.widget, root, order);
    }
}

} // namespace

bool takesTab(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
}

QList<QWidget*> readingOrder(const QWidget* root)
{
    QList<QWidget*> order;
    collect(root, root, order);
    return order;
}

void chain(const QList<QWidget*>& order)
{
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

} // namespace Keyboard
