#include "answerbox.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

namespace AnswerBox {
namespace {

bool isDigitCode(int keyAscii)
{
    return keyAscii >= '0' && keyAscii <= '9';
}

// Hands a box's key presses to its handler, then drops those it zeroed and
// those the box may not hold.
class KeyFilter : public QObject {
public:
    KeyFilter(QLineEdit* box, const Options& options, KeyPress handler)
        : QObject(box)
        , m_options(options)
        , m_handler(std::move(handler))
    {
        box->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        int code = keyAscii(*static_cast<QKeyEvent*>(event));
        if (m_handler)
            m_handler(code);
        return code == 0 || !isKept(code, m_options);
    }

private:
    Options m_options;
    KeyPress m_handler;
};

// Whatever reaches the text (keys, a paste, a drop, an input method) is
// taken whole or not at all.
class Guard : public QValidator {
public:
    Guard(const Options& options, QObject* parent)
        : QValidator(parent)
        , m_options(options)
    {
    }

    State validate(QString& input, int&) const override
    {
        return fits(input, m_options) ? Acceptable : Invalid;
    }

private:
    Options m_options;
};

} // namespace

int keyAscii(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        return kBackspace;
    case Qt::Key_Tab:
        return kTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return kEnter;
    default:
        break;
    }
    // A shortcut (Ctrl+V, Alt+...) types nothing into the box.
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    const QString text = event.text();
    return text.size() == 1 ? text.at(0).unicode() : 0;
}

bool isKept(int keyAscii, const Options& options)
{
    return isDigitCode(keyAscii) || keyAscii == kBackspace || (options.decimalPoint && keyAscii == kPoint);
}

bool fits(const QString& text, const Options& options)
{
    if (text.size() > options.maxLength)
        return false;
    bool pointSeen = false;
    for (const QChar c : text) {
        if (c == kPoint && options.decimalPoint && !pointSeen)
            pointSeen = true;
        else if (!isDigitCode(c.unicode()))
            return false;
    }
    return true;
}

int value(const QString& text)
{
    // Stops well inside 16-bit numbers, whatever the box's length.
    constexpr int kLargestBeforeDigit = 9999;
    int n = 0;
    for (const QChar c : text) {
        if (!isDigitCode(c.unicode()) || n > kLargestBeforeDigit)
            break;
        n = n * 10 + c.digitValue();
    }
    return n;
}

DecimalValue decimal(const QString& text)
{
    return DecimalValue::fromText(text);
}

Entry entry(const QString& text)
{
    Entry found = Entry::Empty;
    for (const QChar c : text) {
        if (!isDigitCode(c.unicode()))
            continue;
        if (c != u'0')
            return Entry::Number;
        found = Entry::Zero;
    }
    return found;
}

bool isAccepted(const QString& text)
{
    return entry(text) == Entry::Number;
}

QLineEdit* make(QWidget* parent, const QString& name, const QString& accessibleName, const QFont& font,
                const Options& options, KeyPress handler)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setFont(font);
    box->setAlignment(Qt::AlignCenter);
    box->setValidator(new Guard(options, box));
    box->setInputMethodHints(options.decimalPoint ? Qt::ImhFormattedNumbersOnly : Qt::ImhDigitsOnly);
    box->setContextMenuPolicy(Qt::NoContextMenu);
    new KeyFilter(box, options, std::move(handler));
    return box;
}

} // namespace AnswerBox
