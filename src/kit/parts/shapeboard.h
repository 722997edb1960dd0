#pragma once
// One shape cut into equal parts, drawn large. The child colours a part by
// clicking it, or with the keyboard: the arrows move a dashed cursor from
// part to part, Space colours or uncolours, Enter asks the screen to check.
// A board that is not interactive only shows a shaded shape to be read.
// Screen readers hear the shape and every part as a check box of its own.
#include "shapes.h"

#include <QPainterPath>
#include <QVector>
#include <QWidget>

class ShapeBoard : public QWidget {
    Q_OBJECT
public:
    explicit ShapeBoard(QWidget* parent = nullptr);

    // A new shape with no part coloured; the cursor on the first part. A
    // count the kind cannot be cut into leaves the board as it was.
    void setShape(ShapeKind kind, int parts);
    ShapeKind kind() const { return m_kind; }
    int partCount() const { return int(m_coloured.size()); }

    // Colours the parts as given (missing entries are blank), as a screen
    // does for a question or a hint; changed() is only for the child's own.
    void setColoured(const QVector<bool>& coloured);
    QVector<bool> coloured() const { return m_coloured; }
    int colouredCount() const;
    bool isColoured(int index) const;

    // Whether the words say "shaded" instead of "coloured", for a shape the
    // child only reads a fraction from.
    void setShadedWords(bool on);
    // Writes each part's number (1, 2, ...) in it, so a hint can count the
    // parts aloud in the picture.
    void setNumbered(bool on);
    bool isNumbered() const { return m_numbered; }

    // Whether clicks and keys colour parts.
    void setInteractive(bool on);
    bool isInteractive() const { return m_interactive; }

    // Colours or uncolours one part as a click does, and emits changed().
    void togglePart(int index);
    int cursorPart() const { return m_cursor; }

    // A part's edge in the board's own coordinates, and the part a point is
    // in (-1 outside the shape).
    QPainterPath partPath(int index) const;
    int partAt(const QPointF& point) const;

    // What a screen reader says: "a square cut into 4 equal parts, 1 coloured"
    // and "part 3 of 4, coloured" (parts counted from 1).
    QString description() const;
    QString partName(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void changed();
    void enterPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRectF shapeBox() const;
    double lineWeight(double share, double thinnest) const;
    void recut();
    void moveCursor(int step);
    void announcePart(int index);
    void announceCursor();
    void drawCursor(QPainter& painter) const;
    void drawNumbers(QPainter& painter) const;

    ShapeKind m_kind = ShapeKind::Circle;
    QVector<QPainterPath> m_paths;
    QVector<bool> m_coloured;
    int m_cursor = 0;
    bool m_interactive = true;
    bool m_shadedWords = false;
    bool m_numbered = false;
};
