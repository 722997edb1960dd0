#pragma once
// The mixed-numbers screen's modes, each a row of data handed to the one
// screen (y5fract4): the Year 5 activity that asks both ways, the two that
// ask one way only, and Year 6's with larger numbers. The activity table
// makes each mode's screen and worksheet from here.
#include "fractions/mixedquestion.h"
#include "worksheets/generatedsheet.h"

class Form;

namespace Random {
class Source;
}

struct MixedMode {
    const char* screen; // the screen's name: "y5fract6"
    const char* year;   // its year, for the window title: "Year 5"
    MixedQuestion::Range range;
    // The words handed to the certificate; nullptr: the activity's title.
    const char* certificateWords = nullptr;
    // The both-ways Year 5 activity may ask the same question twice in a
    // row; the other modes never do.
    bool mayRepeat = false;
};

namespace MixedModes {

enum Id { kBothWays, kToImproper, kToMixed, kYearSix };
const MixedMode& mode(Id id);

// The screen of a mode, and 12 of its questions with their answers.
Form* makeScreen(const MixedMode& mode);
Worksheets::Sheet worksheet(const MixedMode& mode, Random::Source& rnd);

template <Id N> Form* make()
{
    return makeScreen(mode(N));
}
template <Id N> Worksheets::Sheet sheet(Random::Source& rnd)
{
    return worksheet(mode(N), rnd);
}

} // namespace MixedModes
