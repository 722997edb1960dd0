#pragma once
// The board both Year 6 decimal activities stand on: a number line with ten
// steps above one answer box that takes digits and one point. After Check
// the typed number is pinned on the line. A subclass says which question is
// asked and how it is judged.
#include "fractions/typeddecimal.h"
#include "kit/kitboard.h"

class AnswerChain;
class NumberLine;
class QLineEdit;
class QPainter;
class QRectF;

class DecimalBoard : public KitBoard {
    Q_OBJECT
public:
    // A box holding at most `answerLength` characters.
    DecimalBoard(int answerLength, QWidget* parent = nullptr);

    NumberLine* Line1; // the number line
    QLineEdit* Text1; // the answer

    void setAnswering(bool on) override;
    void focusAnswer() override;
    void showChecked(const Verdict& verdict) override;

    // A number line for a worksheet, drawn into `box` of a painter that
    // counts in twips: the ends and, when given, the number to round.
    static void paintSheetLine(QPainter& painter, const QRectF& box, const QString& from, const QString& to,
        const QString& toRound = QString());
    // The twips a worksheet's number line needs.
    static double sheetLineHeight();

protected:
    // A fresh question: the box emptied, the line's pins gone.
    void clearAnswer();
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AnswerChain* m_chain;
    int m_answerLength;
};
