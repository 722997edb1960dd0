#pragma once
// One question of the mixed-numbers activity, free of widgets: which way it
// asks, its numbers, the worked answer sentence, the exact-answer check and
// the hint sentences. Numbers are 16-bit, as the screen keeps them.
#include "verdict.h"

#include <QList>
#include <QString>
#include <QtGlobal>

namespace Random {
class Source;
}

// The numbers a question is drawn from: which way it asks (0: either way,
// chosen afresh for each question), the largest whole number each way, the
// largest numerator and the largest denominator (the smallest is 2). The
// defaults are Year 5's.
struct MixedRange {
    int direction = 0;
    int largestWholeToMixed = 5;
    int largestWholeToImproper = 9;
    int largestNumer = 9;
    int largestDenom = 10;
    // The largest improper numerator a question of the range can have.
    int largestImproperNumerator() const;
};

struct MixedQuestion {
    // 1: an improper fraction is shown and a mixed number is asked for;
    // 2: a mixed number is shown and an improper fraction is asked for.
    int direction = 0;
    qint16 whole = 0;
    qint16 numer = 0;
    qint16 denom = 0;

    static constexpr int kToMixed = 1;
    static constexpr int kToImproper = 2;

    // Either way, chosen afresh for each question.
    static constexpr int kEitherWay = 0;
    using Range = MixedRange;

    friend bool operator==(const MixedQuestion& a, const MixedQuestion& b)
    {
        return a.direction == b.direction && a.whole == b.whole && a.numer == b.numer && a.denom == b.denom;
    }

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
    // The same from a range of numbers, never `last` again when one is given.
    static MixedQuestion draw(Random::Source& rnd, const Range& range, const MixedQuestion* last);
private:
    static int drawDirection(Random::Source& rnd);

public:
    // Whole 1..5 (Year 5); numerator over denominator a proper fraction in
    // lowest terms; the improper fraction in lowest terms too.
    static MixedQuestion drawImproper(Random::Source& rnd, const Range& range = Range());
    // Whole 1..9 (Year 5); numerator over denominator a proper fraction in
    // lowest terms.
    static MixedQuestion drawMixed(Random::Source& rnd, const Range& range = Range());

    // For the boards that ask in a sentence: "Change eleven quarters to a
    // mixed number." in words, or "Change 11/4 to a mixed number." in figures
    // for a worksheet.
    QString instruction(bool inWords) const;
    // The boards' check of the boxes of the question's own direction, in
    // order (whole, top, bottom of a mixed number; top, bottom of an improper
    // fraction), 0 for an empty box: right or wrong with the answer sentence,
    // or not checkable while a box is empty.
    Verdict check(const QList<int>& typed) const;
    // The numbers of the right answer, box by box in that order.
    QList<int> answerNumbers() const;
};

// The names of the parts: fractionnames(d) is the plural for denominator d
// (2..10), fractionnames(d + 9) the singular. Other indices give "".
QString fractionnames(int index);
