#include "answerchain.h"

#include <QLineEdit>

AnswerChain::AnswerChain(QObject* parent)
    : QObject(parent)
{
}

QLineEdit* AnswerChain::addBox(QWidget* parent, const QString& name, const QString& accessibleName,
                               const QFont& font, const AnswerBox::Options& options, bool zeroAllowed)
{
    const int index = int(m_boxes.size());
    QLineEdit* box = AnswerBox::make(parent, name, accessibleName, font, options,
                                     [this, index](int& keyAscii) { keyPress(index, keyAscii); });
    m_boxes << box;
    m_zeroAllowed << zeroAllowed;
    return box;
}

void AnswerChain::clear()
{
    for (QLineEdit* box : std::as_const(m_boxes))
        box->clear();
}

void AnswerChain::focusFirst()
{
    for (QLineEdit* box : std::as_const(m_boxes)) {
        if (isOpen(box)) {
            box->setFocus();
            return;
        }
    }
}

QList<int> AnswerChain::values() const
{
    QList<int> numbers;
    for (const QLineEdit* box : m_boxes)
        numbers << AnswerBox::value(box->text());
    return numbers;
}

QStringList AnswerChain::texts() const
{
    QStringList all;
    for (const QLineEdit* box : m_boxes)
        all << box->text();
    return all;
}

void AnswerChain::setEnabled(bool on)
{
    for (QLineEdit* box : std::as_const(m_boxes))
        box->setEnabled(on);
}

void AnswerChain::keyPress(int index, int& keyAscii)
{
    if (keyAscii != AnswerBox::kTab && keyAscii != AnswerBox::kEnter)
        return;
    // The chain moves the focus itself; the key goes no further.
    keyAscii = 0;
    enter(index);
}

void AnswerChain::enter(int index)
{
    if (!take(index))
        return;
    for (int next = index + 1; next < m_boxes.size(); ++next) {
        if (isOpen(m_boxes[next])) {
            m_boxes[next]->setFocus();
            return;
        }
    }
    // The last box: a box skipped on the way (a click can jump past it)
    // is the one to fill before the answer is checked.
    for (int i = 0; i < index; ++i) {
        if (isOpen(m_boxes[i]) && !take(i))
            return;
    }
    emit complete();
}

bool AnswerChain::take(int index)
{
    QLineEdit* box = m_boxes[index];
    const AnswerBox::Entry held = AnswerBox::entry(box->text());
    if (held == AnswerBox::Entry::Number || (held == AnswerBox::Entry::Zero && m_zeroAllowed[index]))
        return true;
    box->clear();
    box->setFocus();
    emit refused(box, held == AnswerBox::Entry::Zero ? Reason::Zero : Reason::Empty);
    return false;
}

bool AnswerChain::isOpen(const QLineEdit* box)
{
    return box->isEnabled() && !box->isHidden();
}
