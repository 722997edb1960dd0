#include "reviewboard.h"

#include "runtime/random.h"

ReviewBoard::ReviewBoard(const QVector<Member>& members, QWidget* parent)
    : KitBoard(parent)
{
    setObjectName(QStringLiteral("Board"));
    for (const Member& m : members) {
        KitBoard* board = m.make();
        board->setParent(this);
        board->setObjectName(QString::fromLatin1(m.name));
        board->hide();
        m_boards << board;
        // Only the board on show is answered; the others are hidden.
        connect(board, &KitBoard::answered, this, [this, board] {
            if (board == shown())
                emit answered();
        });
        connect(board, &KitBoard::refused, this, [this, board](const QString& message) {
            if (board == shown())
                emit refused(message);
        });
    }
}

void ReviewBoard::pose(Random::Source& rnd)
{
    // Each board never asks its own last question again, and two boards
    // never ask the same one: no question comes twice in a row.
    const int next = int(count() * rnd.rnd());
    if (KitBoard* before = shown(); before && m_shown != next)
        before->hide();
    m_shown = next;
    KitBoard* board = shown();
    board->pose(rnd);
    board->setGeometry(rect());
    board->show();
}

QString ReviewBoard::instruction() const
{
    return shown() ? shown()->instruction() : QString();
}

Verdict ReviewBoard::check()
{
    return shown() ? shown()->check() : Verdict();
}

QString ReviewBoard::hint()
{
    return shown() ? shown()->hint() : QString();
}

void ReviewBoard::setAnswering(bool on)
{
    if (shown())
        shown()->setAnswering(on);
}

void ReviewBoard::focusAnswer()
{
    if (shown())
        shown()->focusAnswer();
}

void ReviewBoard::showChecked(const Verdict& verdict)
{
    if (shown())
        shown()->showChecked(verdict);
}

void ReviewBoard::giveRightAnswer()
{
    if (shown())
        shown()->giveRightAnswer();
}

Worksheets::Sheet ReviewBoard::worksheet(const QVector<Member>& members, Random::Source& rnd, const QString& title,
                                         const QString& instruction)
{
    // Each member's sheet is drawn when its first row is wanted, and its
    // rows are taken in order, so no question comes twice.
    QVector<Worksheets::Sheet> sheets(members.size());
    QVector<int> taken(members.size(), 0);
    Worksheets::Sheet sheet{title, instruction, {}};
    while (sheet.rows.size() < Worksheets::kQuestions) {
        const int m = int(members.size() * rnd.rnd());
        if (sheets[m].rows.isEmpty())
            sheets[m] = members[m].sheet(rnd);
        sheet.rows.append(sheets[m].rows.at(taken[m]++));
    }
    return sheet;
}

void ReviewBoard::resizeEvent(QResizeEvent*)
{
    for (KitBoard* board : std::as_const(m_boards))
        board->setGeometry(rect());
}
