#pragma once
// Two equal fractions written large, "1/2 = ?/8", each top over a bar over
// its bottom, on the cream board. The missing number's place is left empty
// for an answer box laid over it (blankRect()); everything is measured from
// the panel's size, so it is as sharp at any scale. A screen reader hears
// the panel as one sentence ("one half equals how many eighths?") with the
// answer box inside it.
#include "fractions/equivalentfractions.h"

#include <QWidget>

class EquationPanel : public QWidget {
    Q_OBJECT
public:
    explicit EquationPanel(QWidget* parent = nullptr);

    void setPair(const Equivalent::Pair& pair);
    const Equivalent::Pair& pair() const { return m_pair; }

    // Where the missing number goes, and the digits' pixel size, at the
    // panel's present size.
    QRectF blankRect() const;
    double digitSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The pair drawn on any painter inside box, the blank as an empty
    // square: the worksheets use it too.
    static void paint(QPainter& painter, const QRectF& box, const Equivalent::Pair& pair, bool blankAsSquare);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layout {
        double digits = 0;
        QRectF numbers[4]; // first top, first bottom, second top, second bottom
        QRectF equals;
        QRectF bars[2];
    };
    static Layout layout(const QRectF& box);

    Equivalent::Pair m_pair;
};
