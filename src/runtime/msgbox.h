#pragma once
// Message boxes: the only way the program tells anyone about a failure.
// Tests install a handler that answers instead of a person, so nothing modal
// ever waits in a headless run.
#include <QString>
#include <functional>

namespace MsgBox {

enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

struct Request {
    QString text;
    QString title;
    Buttons buttons = Buttons::Ok;
    bool critical = false;
};

using Handler = std::function<Answer(const Request&)>;

// Shows a modal box and returns the button chosen.
Answer show(const QString& text, Buttons buttons = Buttons::Ok, const QString& title = QString());

// Replaces the boxes (tests); an empty handler brings the real boxes back.
void setHandler(Handler handler);

// A failure the program cannot go on from: tells the person once, then ends
// the program with a non-zero exit code. Never returns.
[[noreturn]] void fatal(const QString& text);

constexpr int kFatalExitCode = 3;

} // namespace MsgBox
