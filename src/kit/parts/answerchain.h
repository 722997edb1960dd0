#pragma once
// A row of answer boxes filled one after another: "?/6 = 6/?" or a single
// "your answer". Enter (or Tab) in a box that holds an answer moves the
// focus to the next enabled box; in the last box, when every enabled box
// holds an answer, the chain is complete and the screen checks it. An empty
// box, or a zero where zero is never right, is emptied, keeps the focus and
// is reported, so the screen can say why nothing happened.
#include "kit/parts/answerbox.h"

#include <QList>
#include <QObject>

class QFont;
class QLineEdit;
class QWidget;

class AnswerChain : public QObject {
    Q_OBJECT
public:
    enum class Reason { Empty, Zero };
    Q_ENUM(Reason)

    explicit AnswerChain(QObject* parent = nullptr);

    // Makes the next box of the chain, named `name`, which a screen reader
    // calls `accessibleName` ("top number", "bottom number", "your answer").
    QLineEdit* addBox(QWidget* parent, const QString& name, const QString& accessibleName, const QFont& font,
                      const AnswerBox::Options& options = {}, bool zeroAllowed = false);

    const QList<QLineEdit*>& boxes() const { return m_boxes; }

    // Empties every box.
    void clear();
    // The focus to the first enabled box.
    void focusFirst();
    // Each box's whole number (0 for an empty box), and each box's text as
    // typed, for decimals.
    QList<int> values() const;
    QStringList texts() const;
    // Enables or disables every box.
    void setEnabled(bool on);

signals:
    void complete();
    void refused(QLineEdit* box, AnswerChain::Reason reason);

private:
    void keyPress(int index, int& keyAscii);
    void enter(int index);
    // Whether the box at `index` holds an answer; if not, it is emptied,
    // takes the focus and the refusal is reported.
    bool take(int index);
    static bool isOpen(const QLineEdit* box);

    QList<QLineEdit*> m_boxes;
    QList<bool> m_zeroAllowed;
};
