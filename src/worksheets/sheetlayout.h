#pragma once
// Where everything goes on the two pages of a generated worksheet, worked
// out before anything is drawn. All positions and sizes are in twips from
// the sheet's top-left corner; text is measured in the fonts it prints in
// (Arial and Times New Roman), so every text box holds its text, wrapped.
//
// The questions go in two columns of cards, numbered across, unless a
// question or its answer needs more room than half the width; then they go
// in one column with the answer boxes down the right. When the cards do not
// fit the page the type gets smaller, then the pictures.
#include "worksheets/generatedsheet.h"

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

namespace Worksheets::Layout {

enum class Face { Serif, Sans };

// A font whose size is the height of its letters in twips (20 to the point).
QFont font(Face face, double size, bool bold = false);

struct TextBox {
    QRectF box;   // holds the text, wrapped to its width
    QString text;
    QFont font;
    int flags = 0; // Qt::AlignmentFlag | Qt::TextWordWrap
};

struct Heading {
    QRectF frame;   // round the whole sheet
    QRectF tab;     // the year or unit, white on blue; empty without one
    TextBox yearLabel;
    TextBox name;   // "Name" and "Date" with their lines to write on,
    QRectF nameLine; // on the questions page only
    TextBox date;
    QRectF dateLine;
    TextBox title;
    QRectF band;    // the pale band with what to do, or "Answers"
    TextBox instruction;
    TextBox footer;
    double contentTop = 0; // where the cards may start
    double contentBottom = 0; // and end
};

enum class AnswerRoom { Box, Line };

struct QuestionCard {
    QRectF card;
    QRectF disc; // the numbered disc
    TextBox number;
    TextBox question;
    QRectF picture; // empty when the row has no picture
    AnswerRoom room = AnswerRoom::Box;
    QRectF answer;  // the box, or the strip whose bottom edge is the writing line
    TextBox unit;   // empty text when the row has none
};

struct AnswerCard {
    QRectF card;
    QRectF disc;
    TextBox number;
    TextBox answer; // the answer with its unit
};

struct QuestionsPage {
    Heading heading;
    int columns = 2;
    double textSize = 0;    // of the questions
    double pictureScale = 1; // below 1 when the pictures had to shrink
    QVector<QuestionCard> cards;
};

struct AnswersPage {
    Heading heading;
    int columns = 2;
    QVector<AnswerCard> cards;
};

// The page of questions and the page of answers for a sheet of the given
// size. The answers page has as many columns as the questions page.
QuestionsPage questionsPage(const Sheet& sheet, const QString& yearLabel, const QSizeF& size);
AnswersPage answersPage(const Sheet& sheet, const QString& yearLabel, const QSizeF& size, int columns);

// The sheet's colours, shared with the designed worksheets.
QColor screenBlue();
QColor ink();
QColor titleBlue();
QColor cardEdge();
QColor rule();
QColor bandEdge();
QColor bandFill();
QColor footerGrey();

} // namespace Worksheets::Layout
