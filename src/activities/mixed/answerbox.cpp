#include "answerbox.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace AnswerBox {
namespace {

// Hands a box's key presses to its handler and drops those it zeroes.
class KeyFilter : public QObject {
public:
    KeyFilter(QLineEdit* box, KeyPress handler)
        : QObject(box)
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
        m_handler(code);
        return code == 0;
    }

private:
    KeyPress m_handler;
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

bool isKept(int keyAscii)
{
    return (keyAscii >= '0' && keyAscii <= '9') || keyAscii == kBackspace;
}

int value(const QString& text)
{
    int n = 0;
    for (const QChar c : text) {
        if (!c.isDigit() || n > 9999)
            break;
        n = n * 10 + c.digitValue();
    }
    return n;
}

bool isAccepted(const QString& text)
{
    return !text.isEmpty() && value(text) != 0;
}

QLineEdit* make(QWidget* parent, const QString& name, const QFont& font, KeyPress handler)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setFont(font);
    box->setAlignment(Qt::AlignCenter);
    box->setMaxLength(kMaxDigits);
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), box));
    box->setContextMenuPolicy(Qt::NoContextMenu);
    new KeyFilter(box, std::move(handler));
    return box;
}

} // namespace AnswerBox
