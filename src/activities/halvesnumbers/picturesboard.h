#pragma once
// Halves and Quarters 3's board: the amount as rows of pictures from the
// Halves and Quarters sets, and one box for the answer. The hint regroups
// the pictures into equal groups, each in its own colour.
#include "fractions/halvesofnumbers.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class PictureRows;
class QLineEdit;

class PicturesBoard : public KitBoard {
    Q_OBJECT
public:
    explicit PicturesBoard(QWidget* parent = nullptr);

    PictureRows* Picture2; // the amount, as pictures
    QLineEdit* Text1;      // the answer
    const HalvesOfNumbers::Question& question() const { return m_question; }

    // 12 fresh questions, each with its pictures, and their answers.
    static Worksheets::Sheet worksheet(Random::Source& rnd);
    // A worksheet row's picture: `count` copies of a set's picture in rows
    // of ten, and the twips it needs.
    static Worksheets::Row withPictures(Worksheets::Row row, int set, int count);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString picname() const;

    AnswerChain* m_chain;
    HalvesOfNumbers::Question m_question;
    bool m_asked = false;
};
