#pragma once
// Name the fraction a picture shows: a shape cut into equal parts with some
// shaded, a hundred square with some small squares shaded, or a set of
// pictures with some ringed. The child types the top and the bottom number;
// any fraction equal in value is right. The question, its check and its
// hint, free of widgets.
#include "shapekind.h"
#include "verdict.h"

#include <QString>

namespace Random {
class Source;
}

namespace NameFraction {

// Which pictures a run draws from: Year 3 names shaded shapes of 2 to 10
// parts; Year 4 also reads hundred squares and ringed pictures, and cuts
// shapes into as many as 12 parts.
enum class Mode { Year3Shapes, Year4Pictures };

enum class Picture { Shape, HundredSquare, Pictures };

struct Question {
    Picture picture = Picture::Shape;
    ShapeKind kind = ShapeKind::Strip; // for a shape
    int parts = 2;   // all the equal parts: a shape's parts, 100 small squares, the pictures
    int shaded = 1;  // the shaded parts or squares, the ringed pictures: 1..parts-1
    bool wholeColumns = false; // a hundred square shaded in whole columns (tenths)
    int set = 2;     // the picture set (Halves' sets), for pictures

    // "What fraction of the strip is shaded?"
    QString instruction() const;
    // What the sentences talk about: "strip", "square", "ducks".
    QString noun() const;

    friend bool operator==(const Question& a, const Question& b)
    {
        return a.picture == b.picture && a.kind == b.kind && a.parts == b.parts && a.shaded == b.shaded
            && a.wholeColumns == b.wholeColumns;
    }
};

// The cuts Year 3 draws from; Year 4 cuts any shape the kit can cut into
// 2..12 parts.
inline constexpr int kYear3StripParts[] = {2, 3, 4, 5, 6, 8, 10};
inline constexpr int kYear3CircleParts[] = {2, 3, 4, 6, 8};
inline constexpr int kYear3RectangleParts[] = {4, 6, 8, 10};
inline constexpr int kMostYear4Parts = 12;
inline constexpr int kMostYear4Pictures = 12;
inline constexpr int kHundred = 100;
inline constexpr int kTenth = 10; // small squares in a column
// The sets of pictures Year 4 rings (Halves' sets that read as countable things).
inline constexpr int kFirstPictureSet = 2;
inline constexpr int kLastPictureSet = 6;

// Digits each answer box holds: the longest counted answer ("10", "100").
int answerDigits(Mode mode);

// A question unlike the one before (nullptr for the first).
Question draw(Mode mode, Random::Source& rnd, const Question* last);

// The two boxes as typed. An empty box, a bottom of 0 or a top of 0 cannot
// be checked; otherwise right when the value equals shaded/parts.
Verdict check(const Question& q, const QString& top, const QString& bottom);

// "Count all the equal parts: 8. That is the bottom number. Count the
// shaded parts: 3. That is the top number."
QString hint(const Question& q);

// What a screen reader hears of the picture, and the worksheet's answer:
// "3/8", written as counted.
QString counted(const Question& q);

} // namespace NameFraction
