#pragma once
// Halves, Quarters, Thirds and Tenths 1's board: up to 20 pictures of one
// Halves and Quarters set in 4 rows of 5, the same picture cells as Halves
// and Quarters 1. The child chooses a fraction of them by clicking, or with
// the keyboard: the arrows move the cursor from picture to picture, Space
// chooses or leaves one out, Enter checks. The board is one Tab stop; the
// cursor's picture holds it. The hint frames the pictures in equal groups,
// each group in its own colour, the groups asked for in full colour.
#include "fractions/partsofset.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

#include <QVector>

class PictureCell;
class QLabel;

class PartsOfSetBoard : public KitBoard {
    Q_OBJECT
public:
    explicit PartsOfSetBoard(QWidget* parent = nullptr);

    QVector<PictureCell*> Image1; // the 20 cells, in reading order
    QLabel* Label9;               // with a hint: how the pictures chosen compare
    const PartsOfSet::Question& question() const { return m_question; }
    int chosenCount() const;
    int cursor() const { return m_cursor; }

    // 12 fresh questions, each with its pictures, and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void giveRightAnswer() override;
    void showChecked(const Verdict& verdict) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void toggle(int index);
    void moveCursor(int to);
    void showGroups(bool on);
    void layOut();
    void showProgress();

    PartsOfSet::Question m_question;
    bool m_asked = false;
    bool m_answering = false;
    int m_cursor = 0;
};
