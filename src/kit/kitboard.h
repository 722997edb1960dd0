#pragma once
// The part of an activity screen that is the activity's own: the board the
// question stands on and the way the child answers it. A board draws its
// question from a generator of the fractions library, reads the child's
// answer from its own controls, and hands it to that activity's check; the
// kit's screen runs everything around it.
#include "fractions/verdict.h"

#include <QWidget>

namespace Random {
class Source;
}

class KitBoard : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    // Draws the next question from rnd (never the one just asked) and shows it.
    virtual void pose(Random::Source& rnd) = 0;
    // The question in words, for the instruction line.
    virtual QString instruction() const = 0;
    // Judges what the child has answered.
    virtual Verdict check() = 0;
    // The worked explanation; the board also shows it in its picture.
    virtual QString hint() = 0;
    // Whether the child can answer now (not while a checked answer shows).
    virtual void setAnswering(bool on) = 0;
    // Puts the keyboard where the answer is given.
    virtual void focusAnswer() = 0;
    // After a check: whatever the board shows of the answer (a mark on a
    // number line, the right number of parts).
    virtual void showChecked(const Verdict&) {}
    // Puts the right answer to the question on the board, as the child
    // would give it, without checking it. The random play and the memory
    // test answer through it, so every board must say how it is answered.
    virtual void giveRightAnswer() = 0;

signals:
    // The child finished answering the board's own way (Enter in the last
    // box, a card chosen, Enter on a picture board): the screen checks.
    void answered();
    // A box refused an entry (empty, or a zero where zero is never right),
    // with the short message to show; the question stays.
    void refused(const QString& message);
};
