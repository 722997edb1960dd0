#include "spoken.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QTextDocumentFragment>

namespace {
// The marks are properties on the widgets, read when a reader first asks
// for a widget's accessible interface: mark a widget as it is made.
const char* const kMessageMark = "spokenMessage";
const char* const kGroupMark = "spokenAsOne";
const char* const kPartMark = "spokenByItsGroup";
const char* const kPictureMark = "spokenAsPicture";

bool marked(const QObject* object, const char* mark)
{
    return object && object->property(mark).toBool();
}

// A message label: an alert whose name is the words it shows.
class MessageAccessible : public QAccessibleWidget {
public:
    explicit MessageAccessible(QLabel* label)
        : QAccessibleWidget(label, QAccessible::AlertMessage)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        if (t != QAccessible::Name)
            return QAccessibleWidget::text(t);
        if (!widget()->accessibleName().isEmpty())
            return widget()->accessibleName();
        const QString shown = static_cast<const QLabel*>(widget())->text();
        const QString plain = Qt::mightBeRichText(shown) ? QTextDocumentFragment::fromHtml(shown).toPlainText() : shown;
        return plain.simplified();
    }
};

// A picture: an image, or a panel while it holds controls.
class PictureAccessible : public QAccessibleWidget {
public:
    explicit PictureAccessible(QWidget* picture)
        : QAccessibleWidget(picture, QAccessible::Graphic)
    {
    }

    QAccessible::Role role() const override
    {
        return childCount() > 0 ? QAccessible::Pane : QAccessible::Graphic;
    }
};

// A group read by its name: only the children not spoken in that name,
// and no blank label.
class GroupAccessible : public QAccessibleWidget {
public:
    explicit GroupAccessible(QWidget* group)
        : QAccessibleWidget(group, QAccessible::Grouping)
    {
    }

    int childCount() const override { return parts().size(); }

    QAccessibleInterface* child(int index) const override
    {
        const QList<QWidget*> own = parts();
        return index >= 0 && index < own.size() ? QAccessible::queryAccessibleInterface(own[index]) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? int(parts().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
    }

private:
    QList<QWidget*> parts() const
    {
        QList<QWidget*> own;
        for (QObject* o : widget()->children()) {
            auto* w = qobject_cast<QWidget*>(o);
            auto* label = qobject_cast<QLabel*>(w);
            const bool blank = label && label->text().isEmpty(); // an answer not given yet
            if (w && !w->isWindow() && !marked(w, kPartMark) && !blank)
                own << w;
        }
        return own;
    }
};

QAccessibleInterface* spokenFactory(const QString&, QObject* object)
{
    if (marked(object, kMessageMark))
        if (auto* label = qobject_cast<QLabel*>(object))
            return new MessageAccessible(label);
    if (marked(object, kPictureMark))
        if (auto* picture = qobject_cast<QWidget*>(object))
            return new PictureAccessible(picture);
    if (marked(object, kGroupMark))
        if (auto* group = qobject_cast<QWidget*>(object))
            return new GroupAccessible(group);
    return nullptr;
}

// Marks the widget and makes sure a reader gets the marked kind: with a
// reader listening, Qt may have made the widget's plain interface already
// (a label's first text is news to a reader), so that one is dropped.
template <class Kind> void mark(QWidget* widget, const char* what)
{
    static const bool installed = [] {
        QAccessible::installFactory(spokenFactory);
        return true;
    }();
    Q_UNUSED(installed);
    widget->setProperty(what, true);
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    if (face && !dynamic_cast<Kind*>(face))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(face));
}
} // namespace

namespace Spoken {

void markAsMessage(QLabel* label)
{
    mark<MessageAccessible>(label, kMessageMark);
}

bool isMessage(const QWidget* widget)
{
    return marked(widget, kMessageMark);
}

void showMessage(QLabel* label)
{
    // A reader speaks an alert as it shows: showing a hidden label says so
    // by itself; a label on the screen already is shown anew.
    if (!label->isHidden()) {
        QAccessibleEvent shown(label, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    } else {
        label->show();
    }
    // The same news for readers that listen for alerts.
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void markAsPicture(QWidget* widget)
{
    mark<PictureAccessible>(widget, kPictureMark);
}

void readAsOne(QWidget* group)
{
    mark<GroupAccessible>(group, kGroupMark);
}

void partOfGroupName(QWidget* child)
{
    child->setProperty(kPartMark, true);
}

bool isPartOfGroupName(const QWidget* widget)
{
    return marked(widget, kPartMark);
}

} // namespace Spoken
