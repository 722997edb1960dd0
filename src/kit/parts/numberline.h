#pragma once
// A number line between two decimals, cut into ten equal steps, its two ends
// labelled. A value can be marked on it with a pin and its label; a value
// beyond an end is pinned just outside that end, with an arrow pointing on.
// A second pin, in another colour, can show the number being rounded.
// Every value is read and placed exactly as a decimal, whatever language
// the desktop uses: "3.45" on 3.4 to 3.5 is exactly half way.
#include <QWidget>

class NumberLine : public QWidget {
    Q_OBJECT
public:
    explicit NumberLine(QWidget* parent = nullptr);

    static constexpr int kSteps = 10;

    // The ends as written ("3.4", "3.5"); the smaller comes first. Marks stay.
    void setEnds(const QString& from, const QString& to);
    // The value marked, labelled as written.
    void mark(const QString& value);
    void clearMark();
    // The number to round, in its own colour below the line.
    void markToRound(const QString& value);
    void clearMarkToRound();

    QString from() const { return m_from; }
    QString to() const { return m_to; }
    QString marked() const { return m_mark; }
    QString toRound() const { return m_toRound; }

    // Across the widget at its present size: each tick (0 is the `from` end,
    // 10 the `to` end), and where a value's pin points, held just outside
    // the ends when the value lies beyond them.
    double tickX(int tick) const;
    double positionOf(const QString& value) const;
    double lineY() const;
    // The labels: an end's (0 or 1), the mark's and the number to round's.
    QRectF endLabelRect(int end) const;
    QRectF markLabelRect() const;
    QRectF toRoundLabelRect() const;
    // The pins' colours.
    static QColor markColour();
    static QColor toRoundColour();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layout {
        double left = 0;
        double right = 0;
        double line = 0;  // the line's height on the widget
        double digits = 0; // the digits' pixel size
        QRectF area;
    };
    Layout layout() const;
    QRectF labelRect(const Layout& l, const QString& text, double x, double top) const;
    void paintPin(QPainter& painter, const Layout& l, const QString& value, bool above) const;
    void describe();

    QString m_from;
    QString m_to;
    QString m_mark;
    QString m_toRound;
};
