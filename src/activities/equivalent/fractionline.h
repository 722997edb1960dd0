#pragma once
// A line of fractions as a child writes them, each top number over a bar
// over its bottom number, with "=" between them: "2/3 = ?/6 = 6/? = ?/12".
// A number is either given, and drawn, or an answer box the child types
// into, laid over its place. Under each fraction a short note may stand
// ("× 2"), for a hint. Everything is drawn to the line's size, so it stays
// sharp at any scale; the boxes take the drawn numbers' font.
//
// A screen reader hears the line as one phrase, its accessible name, with
// only the answer boxes inside it.
#include <QVector>
#include <QWidget>

class AnswerChain;
class QLineEdit;

class FractionLine : public QWidget {
    Q_OBJECT
public:
    explicit FractionLine(QWidget* parent = nullptr);

    // One number of the line: `value` drawn, or `box` (a child of this line)
    // where the child types it.
    struct Number {
        int value = 0;
        QLineEdit* box = nullptr;
    };
    struct Fraction {
        Number top;
        Number bottom;
    };

    // Makes the next box of `chain` over this line, in the line's font, for
    // a number of up to `digits` digits. A 0 is let through: a top of 0 is a
    // fraction, only a wrong one, and a bottom of 0 the activity's check refuses.
    QLineEdit* addBox(AnswerChain* chain, const QString& name, const QString& accessibleName, int digits);

    // The fractions to show; each box named in them is placed over its number.
    void setFractions(const QVector<Fraction>& fractions);
    // A note under each fraction, in order ("" for none); no list, no notes.
    void setNotes(const QStringList& notes);
    const QStringList& notes() const { return m_notes; }

    // Where a number stands, in this line's pixels (the fraction counted
    // from 0 at the left).
    QRect numberPlace(int fraction, bool bottom) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The size of one number's place, from which everything is measured.
    double cellWidth() const;
    QRectF panel() const;
    QRectF numberRect(int fraction, bool bottom) const;
    QFont numberFont() const;
    void placeBoxes();

    QVector<Fraction> m_fractions;
    QStringList m_notes;
};
