#pragma once
// The answer boxes every activity types into: small text boxes that take
// digits only, or digits and at most one "." where the answer is a decimal
// (always ".", never ",", whatever language the desktop uses).
//
// Every key press goes to the screen's handler as a key code before Qt acts
// on it (so Tab arrives there instead of moving the focus); the handler sets
// the code to 0 to drop the key. A key the box may not hold is dropped after
// the handler has seen it. Pasted or dropped text is held to the same rule
// as a whole: text with anything the box refuses, or too long for it, never
// reaches the box.
#include "fractions/decimalvalue.h"

#include <QString>
#include <functional>

class QFont;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace AnswerBox {

constexpr int kBackspace = 8;
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr char16_t kPoint = u'.';
// Most typed answers are below 100.
constexpr int kTwoDigits = 2;

struct Options {
    // Characters the box holds, the point included.
    int maxLength = kTwoDigits;
    // Whether the box takes one ".".
    bool decimalPoint = false;
};

using KeyPress = std::function<void(int& keyAscii)>;

// The code a key press stands for: 8, 9 or 13 for Backspace, Tab and ENTER,
// the character code of a typed character, and 0 for a key that types none.
int keyAscii(const QKeyEvent& event);
// Digits and Backspace reach a box, and "." one that takes a point.
bool isKept(int keyAscii, const Options& options = {});
// Whether the box could hold this text: digits and at most one point where
// the options allow it, no longer than the box.
bool fits(const QString& text, const Options& options);

// The box's whole number: its leading digits, 0 when there are none.
int value(const QString& text);
// The box's decimal, exactly as typed ("3." is 3, ".5" is 0.5).
DecimalValue decimal(const QString& text);

// What a box holds when the child presses Tab or ENTER: nothing to read (no
// digit at all), a zero (every digit 0: "0", "00", "0.0"), or a number.
enum class Entry { Empty, Zero, Number };
Entry entry(const QString& text);
// The mixed-numbers boxes accept a number other than 0.
bool isAccepted(const QString& text);

// A box named `name` that a screen reader calls `accessibleName`, holding
// what `options` allow, whose key presses go to `handler` first (when there
// is one).
QLineEdit* make(QWidget* parent, const QString& name, const QString& accessibleName, const QFont& font,
                const Options& options, KeyPress handler = {});

} // namespace AnswerBox
