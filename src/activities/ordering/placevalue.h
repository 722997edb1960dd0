#pragma once
// The help screen's worked example, drawn in place-value columns: the column
// heads (units, tenths, hundredths, thousandths), and the example numbers,
// whose digits each stand under their own head.
#include <QLabel>

namespace PlaceValue {
constexpr int kColumns = 4; // units, 1/10, 1/100, 1/1000
// The centre of each column across a row of that width, in pixels.
double columnCentre(int column, int rowWidth);
// The digits of a number written digit by digit ("3.4 7 2"), one string per
// column from the units on; blanks only space the digits out.
QStringList columnDigits(const QString& spaced);
} // namespace PlaceValue

// The column heads: "units", then the fractions 1/10, 1/100 and 1/1000.
class PlaceValueHeads : public QWidget {
    Q_OBJECT
public:
    PlaceValueHeads(QWidget* parent, const QString& name);
    static const QStringList kHeads;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// One example number; its caption is the number as written ("3.4 7 2").
class PlaceValueRow : public QLabel {
    Q_OBJECT
public:
    PlaceValueRow(QWidget* parent, const QString& name, const QString& spaced);

protected:
    void paintEvent(QPaintEvent* event) override;
};
