#pragma once
// "Partitude", the Year 5 review: each question comes from one of the Year 5
// activities, drawn at random, on that activity's own board and with its own
// check and hint; the run and the certificate are this screen's.
#include "kit/kitscreen.h"
#include "reviewboard.h"

class y5fract5 : public KitScreen {
    Q_OBJECT
public:
    y5fract5();

    ReviewBoard* review() const { return static_cast<ReviewBoard*>(board()); }

    // The boards a question may stand on.
    static const QVector<ReviewBoard::Member>& members();
    // 12 questions drawn across the members' worksheets, and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);
};
