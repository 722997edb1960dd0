#pragma once
// The answer boxes of the mixed-numbers activity: small text boxes that take
// only digits. Every key press goes to the screen's handler as a key code
// before Qt acts on it (so Tab arrives there instead of moving the focus);
// the handler sets the code to 0 to drop the key.
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
// Every right answer has at most two digits (99 is the largest). Two digits
// also keep a typed value far inside 16-bit numbers.
constexpr int kMaxDigits = 2;

using KeyPress = std::function<void(int& keyAscii)>;

// The code a key press stands for: 8, 9 or 13 for Backspace, Tab and ENTER,
// the character code of a typed character, and 0 for a key that types none.
int keyAscii(const QKeyEvent& event);
// Only digits and Backspace reach the box.
bool isKept(int keyAscii);
// The box's number: its leading digits, 0 when there are none.
int value(const QString& text);
// A box is accepted on Tab or ENTER when it holds a number other than 0.
bool isAccepted(const QString& text);

// A box named `name`, taking at most kMaxDigits digits (pasted text too),
// whose key presses go to `handler` first.
QLineEdit* make(QWidget* parent, const QString& name, const QFont& font, KeyPress handler);

} // namespace AnswerBox
