#include "shapeboardaccessible.h"

#include "shapeboard.h"

#include <QWindow>

namespace {

QAccessibleInterface* shapeBoardFactory(const QString& className, QObject* object)
{
    auto* board = qobject_cast<ShapeBoard*>(object);
    if (board && className == QLatin1String(ShapeBoard::staticMetaObject.className()))
        return new ShapeBoardAccessible(board);
    return nullptr;
}

} // namespace

ShapeBoardAccessible::ShapeBoardAccessible(ShapeBoard* board)
    : QAccessibleWidget(board, QAccessible::Grouping)
{
}

ShapeBoardAccessible::~ShapeBoardAccessible()
{
    for (QAccessible::Id id : std::as_const(m_parts))
        if (QAccessible::accessibleInterface(id))
            QAccessible::deleteAccessibleInterface(id);
}

void ShapeBoardAccessible::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(shapeBoardFactory);
        return true;
    }();
    Q_UNUSED(installed);
}

ShapeBoard* ShapeBoardAccessible::board() const
{
    return static_cast<ShapeBoard*>(widget());
}

int ShapeBoardAccessible::childCount() const
{
    return board()->partCount();
}

QAccessibleInterface* ShapeBoardAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_parts.size() <= index) {
        auto* part = new ShapePartAccessible(board(), int(m_parts.size()));
        m_parts << QAccessible::registerAccessibleInterface(part);
    }
    return QAccessible::accessibleInterface(m_parts.at(index));
}

int ShapeBoardAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* part = dynamic_cast<const ShapePartAccessible*>(child);
    if (!part || part->index() >= childCount() || this->child(part->index()) != child)
        return -1;
    return part->index();
}

QAccessibleInterface* ShapeBoardAccessible::childAt(int x, int y) const
{
    return child(board()->partAt(board()->mapFromGlobal(QPointF(x, y))));
}

QAccessibleInterface* ShapeBoardAccessible::focusChild() const
{
    return board()->hasFocus() ? child(board()->cursorPart()) : nullptr;
}

ShapePartAccessible::ShapePartAccessible(ShapeBoard* board, int index)
    : m_board(board)
    , m_index(index)
{
}

bool ShapePartAccessible::isValid() const
{
    return m_board && m_index < m_board->partCount();
}

QObject* ShapePartAccessible::object() const
{
    return nullptr;
}

QWindow* ShapePartAccessible::window() const
{
    return m_board ? m_board->window()->windowHandle() : nullptr;
}

QAccessibleInterface* ShapePartAccessible::parent() const
{
    return m_board ? QAccessible::queryAccessibleInterface(m_board) : nullptr;
}

QAccessibleInterface* ShapePartAccessible::child(int) const
{
    return nullptr;
}

int ShapePartAccessible::childCount() const
{
    return 0;
}

int ShapePartAccessible::indexOfChild(const QAccessibleInterface*) const
{
    return -1;
}

QAccessibleInterface* ShapePartAccessible::childAt(int, int) const
{
    return nullptr;
}

QString ShapePartAccessible::text(QAccessible::Text t) const
{
    if (!isValid() || t != QAccessible::Name)
        return {};
    return m_board->partName(m_index);
}

void ShapePartAccessible::setText(QAccessible::Text, const QString&)
{
}

QRect ShapePartAccessible::rect() const
{
    if (!isValid())
        return {};
    const QRect local = m_board->partPath(m_index).boundingRect().toAlignedRect();
    return QRect(m_board->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::Role ShapePartAccessible::role() const
{
    return QAccessible::CheckBox;
}

QAccessible::State ShapePartAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.checkable = true;
    state.checked = m_board->isColoured(m_index);
    state.invisible = !m_board->isVisible();
    state.readOnly = !m_board->isInteractive();
    state.focusable = m_board->isInteractive();
    state.focused = m_board->hasFocus() && m_board->cursorPart() == m_index;
    return state;
}

void* ShapePartAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QStringList ShapePartAccessible::actionNames() const
{
    if (!isValid() || !m_board->isInteractive())
        return {};
    return {pressAction(), toggleAction()};
}

void ShapePartAccessible::doAction(const QString& actionName)
{
    if (actionNames().contains(actionName))
        m_board->togglePart(m_index);
}

QStringList ShapePartAccessible::keyBindingsForAction(const QString& actionName) const
{
    if (actionNames().contains(actionName))
        return {QStringLiteral("Space")};
    return {};
}
