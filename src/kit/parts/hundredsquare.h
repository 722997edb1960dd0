#pragma once
// A hundred square: 10 columns of 10 small squares, some shaded, for the
// child to read as hundredths (or, in whole columns, as tenths). Shading
// fills column by column from the left, each column from the top, so a
// tenth is always one whole column; the lines between columns are drawn a
// little heavier than the lines between small squares, so columns can be
// counted.
#include <QWidget>

class HundredSquare : public QWidget {
    Q_OBJECT
public:
    static constexpr int kSide = 10;
    static constexpr int kSquares = kSide * kSide;

    explicit HundredSquare(QWidget* parent = nullptr);

    // Shades count small squares (0..100), or with wholeColumns count whole
    // columns (0..10). Counts out of range are brought into it.
    void setShaded(int count, bool wholeColumns);
    int shadedCount() const { return m_shaded; }
    bool isShaded(int column, int row) const;

    // "a hundred square with 37 small squares shaded"
    QString description() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF squareBox() const;
    double lineWeight(double share, double thinnest) const;

    int m_shaded = 0;
};
