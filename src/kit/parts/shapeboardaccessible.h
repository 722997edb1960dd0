#pragma once
// What a screen reader finds on a shape board: the board, named for its
// shape, with one check box for every part ("part 3 of 4, coloured") that
// can be pressed to colour or uncolour it.
#include <QAccessibleWidget>
#include <QPointer>
#include <QVector>

class ShapeBoard;

class ShapeBoardAccessible : public QAccessibleWidget {
public:
    explicit ShapeBoardAccessible(ShapeBoard* board);
    ~ShapeBoardAccessible() override;

    // Lets Qt build this interface for every shape board (once is enough).
    static void install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    ShapeBoard* board() const;

    // One interface per part, made when first asked for; the cache owns them
    // until this interface goes.
    mutable QVector<QAccessible::Id> m_parts;
};

class ShapePartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ShapePartAccessible(ShapeBoard* board, int index);

    bool isValid() const override;
    QObject* object() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text t, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

    int index() const { return m_index; }

private:
    QPointer<ShapeBoard> m_board;
    int m_index;
};
