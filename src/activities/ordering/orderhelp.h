#pragma once
// The help screen of Place In Order: a worked example of five decimals in
// order, in place-value columns, and how to read them from the left. It
// changes nothing; the activity waits behind it until Exit.
#include "runtime/form.h"

#include <QVector>
#include <vector>

class ArrowLabel;
class PlaceValueHeads;
class QFrame;
class QLabel;
class QPushButton;

class orderhelp : public Form {
    Q_OBJECT
public:
    orderhelp();

    QFrame* Frame1;
    QLabel* Label1; // "Happy to help"
    QLabel* Label2;
    QVector<QLabel*> examples; // Label3..Label7
    PlaceValueHeads* Image1;
    QLabel* Image2; // the explanation
    ArrowLabel* Image3;
    QFrame* Frame2;
    QPushButton* cmdexit;

    // A number in the explanation and the place of its digit that is
    // compared, which stands out from the rest (-1: the whole number does).
    struct Number {
        const char* digits;
        int compared;
    };
    // One line of the explanation: its sentence (translated where shown),
    // with %1 and %2 standing for its numbers.
    struct Line {
        const char* text;
        std::vector<Number> numbers;
    };
    // The line as rich text, the compared digits set off.
    static QString lineHtml(const Line& line, const QString& markColour);
    static const std::vector<Line> kExplanation;
    static const QStringList kExamples;

    static constexpr int kInsideWidth = 9480;
    static constexpr int kInsideHeight = 6795;

public slots:
    void Form_Load();
    void cmdexit_Click();

protected:
    // Escape and the close box close the help, as its Exit does.
    void wayBack() override;
};
