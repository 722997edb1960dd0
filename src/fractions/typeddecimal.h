#pragma once
// A decimal as a child types it into an answer box: digits and at most one
// point. The program writes and reads decimals with a point in every
// language, so "3,45" is never read as 3.45; it gets a short message asking
// for a point instead. Anything else that cannot be read as one number (two
// points, a lone point, a 0 in front of the whole number, text too long for
// the box) gets its own short message, and the question stays.
#include "decimalvalue.h"

#include <QString>

namespace TypedDecimal {

struct Reading {
    bool ok = false;
    DecimalValue value;
    int places = 0; // digits typed after the point
    QString written; // the number as the child wrote it, without a point at its end
    QString problem; // why it cannot be read, when not ok
};

// Reads `typed`, at most `longest` characters.
Reading read(const QString& typed, int longest);

// The short message for a comma typed where the point belongs.
QString commaMessage();

} // namespace TypedDecimal
