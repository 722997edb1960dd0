#pragma once
// A board made of other activities' boards, for a review: each question is
// posed by one of its member boards, drawn at random, and only that board
// shows. Everything the screen asks of a board (the instruction, the check,
// the hint, the answer given, the keyboard) goes to the board on show, and
// what that board signals (answered, refused) comes back from it. The
// members are the activities' own boards, unchanged.
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

#include <QVector>

class ReviewBoard : public KitBoard {
    Q_OBJECT
public:
    // One member board: its name in the review (the board's objectName),
    // the board's maker and its worksheet's maker.
    struct Member {
        const char* name;
        KitBoard* (*make)();
        Worksheets::Sheet (*sheet)(Random::Source& rnd);
    };
    // The maker of a board built with no arguments.
    template <class Board> static KitBoard* make() { return new Board; }

    explicit ReviewBoard(const QVector<Member>& members, QWidget* parent = nullptr);

    int count() const { return int(m_boards.size()); }
    KitBoard* member(int index) const { return m_boards.at(index); }
    // The board on show, and its place in the list; -1 and nullptr before
    // the first question.
    int shownIndex() const { return m_shown; }
    KitBoard* shown() const { return m_shown < 0 ? nullptr : m_boards.at(m_shown); }

    // 12 questions, each from the worksheet of a member drawn at random.
    static Worksheets::Sheet worksheet(const QVector<Member>& members, Random::Source& rnd, const QString& title,
                                       const QString& instruction);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void showChecked(const Verdict& verdict) override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QVector<KitBoard*> m_boards;
    int m_shown = -1;
};
