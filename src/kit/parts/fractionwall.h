#pragma once
// Rows of the same length, each cut into its own number of equal bricks with
// the first few shaded: a fraction wall (1/2 over 8 eighths), or two
// fractions drawn as bars of the same length to compare. Each brick carries
// its fraction when the digits fit on it; otherwise the fraction stands once
// at the row's left.
#include <QVector>
#include <QWidget>

class FractionWall : public QWidget {
    Q_OBJECT
public:
    explicit FractionWall(QWidget* parent = nullptr);

    static constexpr int kMostBricks = 24;

    struct Row {
        int bottom; // bricks in the row, held to 1..24
        int shaded; // shaded from the left, held to 0..bottom
    };
    void setRows(const QVector<Row>& rows);
    QVector<Row> rows() const { return m_rows; }

    // Where each brick lies at the widget's present size, and where a row's
    // fraction is written when the bricks are too narrow for it (empty
    // while the bricks carry their own).
    QRectF brickRect(int row, int brick) const;
    QRectF rowLabelRect(int row) const;
    bool labelsOnBricks() const;
    // The colour of a row's shaded bricks.
    static QColor rowColour(int row);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layout {
        QVector<QRectF> rows;   // each row's whole length
        QVector<QRectF> labels; // empty rectangles when the bricks carry them
        double labelSize = 0;   // the digits' pixel size
    };
    Layout layout() const;
    void describe();

    QVector<Row> m_rows;
};
