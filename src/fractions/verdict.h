#pragma once
// What an activity's check makes of an answer: right, wrong, or an answer
// that cannot be checked yet (nothing chosen, an empty box, a zero where zero
// is never right, a fraction that can still be cancelled). The statement is
// the worked sentence the child is shown: after the praise phrase when right,
// after "Not quite. " when wrong, and on its own when the question stays.
#include <QString>

struct Verdict {
    enum Kind { Right, Wrong, NotCheckable };
    Kind kind = NotCheckable;
    QString statement;

    static Verdict right(const QString& s) { return {Right, s}; }
    static Verdict wrong(const QString& s) { return {Wrong, s}; }
    static Verdict notCheckable(const QString& s) { return {NotCheckable, s}; }
};
