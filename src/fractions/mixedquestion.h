#pragma once
// One question of the mixed-numbers activity, free of widgets: which way it
// asks, its numbers, the worked answer sentence, the exact-answer check and
// the hint sentences. Numbers are 16-bit, as the screen keeps them.
#include <QString>
#include <QtGlobal>

namespace Random {
class Source;
}

struct MixedQuestion {
    // 1: an improper fraction is shown and a mixed number is asked for;
    // 2: a mixed number is shown and an improper fraction is asked for.
    int direction = 0;
    qint16 whole = 0;
    qint16 numer = 0;
    qint16 denom = 0;

    static constexpr int kToMixed = 1;
    static constexpr int kToImproper = 2;

    // denom x whole + numer: at most 10 x 9 + 9 = 99 with the draws below.
    qint16 improperNumerator() const;

    // "11/4 is 2 and 3/4" or "2 and 3/4 is 11/4".
    QString answerText() const;

    // What the child typed, one value per answer box (0 for an empty box):
    // the mixed number's whole, numerator and denominator (boxes 1, 4, 2) and
    // the improper fraction's numerator and denominator (boxes 3, 5). Only the
    // exact numbers of the question count: 22/8 for 11/4 is wrong.
    struct Entries {
        int t1 = 0, t2 = 0, t3 = 0, t4 = 0, t5 = 0;
    };
    bool isAnswer(const Entries& typed) const;

    // The hint sentence, and for a mixed number shown the worked product
    // ("2 x 4 = 8"); the product is empty for the other direction.
    QString hintText() const;
    QString productText() const;

    // Draws from rnd: first the direction, then the numbers of that
    // direction (the caller re-seeds before each question).
    static MixedQuestion draw(Random::Source& rnd);
private:
    static int drawDirection(Random::Source& rnd);

public:
    // Whole 1..5; numerator over denominator a proper fraction in lowest
    // terms; the improper fraction in lowest terms too.
    static MixedQuestion drawImproper(Random::Source& rnd);
    // Whole 1..9; numerator over denominator a proper fraction in lowest terms.
    static MixedQuestion drawMixed(Random::Source& rnd);
};

// The names of the parts: fractionnames(d) is the plural for denominator d
// (2..10), fractionnames(d + 9) the singular. Other indices give "".
QString fractionnames(int index);
