#pragma once
// A number drawn large on the cream board, with some of its digits marked in
// colour; or the same number in place-value columns under their heads
// ("tens", "ones", 1/10, 1/100, 1/1000), each digit in its own column and
// the point on the edge between the ones and the tenths. The head of the
// last marked column is filled, so the child sees which place is meant.
// The number is taken as written ("2.30"), with "." whatever the language.
#include <QWidget>

class PlaceValueTable : public QWidget {
    Q_OBJECT
public:
    explicit PlaceValueTable(QWidget* parent = nullptr);

    // Places are powers of ten: tens 1, ones 0, tenths -1 ... thousandths -3.
    static constexpr int kHighest = 1;
    static constexpr int kLowest = -3;

    // The number as written; the columns shown reach from `highest` down to
    // `lowest` (held to tens ... thousandths, and wide enough for the
    // number). No digit is marked and the plain number shows.
    void setNumber(const QString& written, int highest, int lowest);
    // The digits from place `from` down to place `to` drawn in colour.
    void setMarked(int from, int to);
    // The number in its columns under their heads, or plainly.
    void setColumnsShown(bool on);

    QString number() const { return m_number; }
    bool columnsShown() const { return m_columns; }
    int markedFrom() const { return m_from; }
    int markedTo() const { return m_to; }
    int highest() const { return m_highest; }
    int lowest() const { return m_lowest; }
    // The digit shown at a place in the columns ("" for an empty column).
    QString digitAt(int place) const;

    // Where the heads and the digits stand, at the widget's present size.
    QRectF headsRect() const;
    QRectF digitsRect() const;
    static QColor markColour();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPlain(QPainter& painter) const;
    void paintColumns(QPainter& painter) const;
    void describe();

    QString m_number;
    int m_highest = 0;
    int m_lowest = 0;
    int m_from = 1;
    int m_to = 2; // from below to: nothing marked
    bool m_columns = false;
};
