#pragma once
// The ordering board's own kinds of label: a number the child clicks (or
// reaches with Tab and picks with Space or Enter), and an arrow drawn in
// the label's colour, so it needs no symbol font.
#include <QLabel>

class NumberLabel : public QLabel {
    Q_OBJECT
public:
    NumberLabel(QWidget* parent, const QString& name);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

class ArrowLabel : public QLabel {
    Q_OBJECT
public:
    enum class Direction { Right, Down };
    ArrowLabel(QWidget* parent, const QString& name, Direction direction, const QColor& colour);

    Direction direction() const { return m_direction; }
    QColor colour() const { return m_colour; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Direction m_direction;
    QColor m_colour;
};
