#pragma once
// Worksheets made when they are printed: an activity draws 12 fresh
// questions from its own generator and prints them as a sheet of the same
// family as the designed worksheets (the year or unit on a blue tab, a Name
// and a Date line, the title, what to do on a pale band, numbered cards),
// followed by a second page with the answers for the teacher.
#include <QString>
#include <QVector>
#include <functional>

class QPainter;
class QRectF;

namespace Worksheets {

// A generated sheet holds this many questions.
inline constexpr int kQuestions = 12;

struct Row {
    QString question; // "What is one half of 12?"
    QString answer;   // "6"
    // An optional picture beside or under the question (a shape, a bar,
    // pictures). The painter counts in twips (a line 20 units wide is one
    // point), starts with a dark pen and no brush, and keeps to the rectangle
    // it is given: the picture should fill it or centre itself in it.
    std::function<void(QPainter&, const QRectF&)> picture;
    double pictureHeight = 0; // the twips the picture needs; 0: no picture
    QString answerUnit;       // printed after the answer box, e.g. "kg"; may be empty
};

struct Sheet {
    QString title;       // the activity's title
    QString instruction; // what to do, for every question
    QVector<Row> rows;   // 12 of them
};

// A sheet of kQuestions questions drawn one after another, each by
// draw(last) with the one before it (nullptr for the first), so none comes
// twice in a row; toRow turns each into its row.
template <class Question, class Draw, class ToRow>
Sheet drawSheet(const QString& title, const QString& instruction, Draw draw, ToRow toRow)
{
    Sheet sheet{title, instruction, {}};
    Question question{};
    for (int i = 0; i < kQuestions; ++i) {
        question = draw(i ? &question : nullptr);
        sheet.rows.append(toRow(question));
    }
    return sheet;
}

// Prints the two pages, the questions and then the answers, through the
// program's printer. Returns whether it printed; a failure has been told to
// the child with the same messages as the designed worksheets.
bool printGenerated(const Sheet& sheet, const QString& yearLabel);

// What an activity's print button does: "Do you really want to print?"
// (Yes or No, with the year as the title); on Yes a sheet is made and
// printed. Returns whether it printed.
bool askAndPrintGenerated(const std::function<Sheet()>& make);

} // namespace Worksheets
