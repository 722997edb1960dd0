#pragma once
// The board of the two "name the fraction" activities: a picture with some
// of its equal parts shaded (a shape, a hundred square) or some pictures
// ringed, and two boxes written as a fraction, the top number over the
// bottom number. Year 3 and Year 4 share it; the mode says which pictures
// a run draws.
#include "fractions/namefraction.h"
#include "kit/kitboard.h"
#include "worksheets/generatedsheet.h"

class AnswerChain;
class HundredSquare;
class PictureRows;
class QLineEdit;
class ShapeBoard;

class NamingBoard : public KitBoard {
    Q_OBJECT
public:
    explicit NamingBoard(NameFraction::Mode mode, QWidget* parent = nullptr);

    ShapeBoard* Shape1;     // a shaded shape
    HundredSquare* Square1; // a shaded hundred square
    PictureRows* Picture2;  // pictures, some ringed
    QLineEdit* Text1;       // the top number
    QLineEdit* Text2;       // the bottom number
    const NameFraction::Question& question() const { return m_question; }

    // 12 fresh questions of each year, each with its picture, and their answers.
    static Worksheets::Sheet year3Worksheet(Random::Source& rnd);
    static Worksheets::Sheet year4Worksheet(Random::Source& rnd);

    void pose(Random::Source& rnd) override;
    QString instruction() const override;
    Verdict check() override;
    QString hint() override;
    void setAnswering(bool on) override;
    void focusAnswer() override;
    void giveRightAnswer() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect fractionBar() const;

    NameFraction::Mode m_mode;
    AnswerChain* m_chain;
    NameFraction::Question m_question;
    bool m_asked = false;
};
