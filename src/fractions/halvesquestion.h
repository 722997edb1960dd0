#pragma once
// One question of Halves and Quarters: a board of identical pictures of
// which the child picks one half or one quarter. Widget-free, so the draws
// can be run many times with a fixed random seed.
#include "runtime/random.h"

#include <QString>
#include <QtGlobal>

namespace Halves {

// The six picture sets, numbered 1..6 as the draw numbers them.
struct PictureSet {
    const char* name; // plural, as the instruction says it: "ducks" (translated where shown: setName)
    const char* file; // asset path: "gif\wb01747_.gif"
};
inline constexpr PictureSet kPictureSets[] = {
    {QT_TRANSLATE_NOOP("Halves", "holly"), "gif\\leaf.gif"},
    {QT_TRANSLATE_NOOP("Halves", "ducks"), "gif\\wb01747_.gif"},
    {QT_TRANSLATE_NOOP("Halves", "suns"), "gif\\wb01330_.gif"},
    {QT_TRANSLATE_NOOP("Halves", "dinosaurs"), "gif\\wb01742_.gif"},
    {QT_TRANSLATE_NOOP("Halves", "spiders"), "gif\\wb01299_.gif"},
    {QT_TRANSLATE_NOOP("Halves", "gorillas"), "gif\\wb01746_.gif"},
};
inline constexpr int kSetCount = 6;

// The set's name in the reader's language, "ducks"; empty outside 1..6.
QString setName(int set);

// A fraction as Year 2 asks for it, written as asked: two quarters stays
// two quarters.
struct Asked {
    int top;
    int bottom;
};
// The fractions of Halves and Quarters 2 and 3: one half, and one, two and
// three quarters.
inline constexpr Asked kHalvesAndQuarters[] = {{1, 2}, {1, 4}, {2, 4}, {3, 4}};
inline constexpr int kMostPictures = 16;

struct Question {
    int parts = 0;   // 2: one half is asked for; 4: one quarter
    int set = 0;     // picture set, 1..6
    int howmany = 0; // pictures on the board, 2..16, a multiple of parts
    int target = 0;  // pictures to pick: howmany / parts, 1..8

    QString picname() const;
    // One picture of the set, as a screen reader names it: "duck".
    QString onePictureName() const;
    QString pictureFile() const;
    // "Click on one half of the ducks"
    QString instruction() const;
    // "You chose one quarter of the suns", after the praise phrase.
    QString rightAnswer() const;
};

// Draws the next question from rnd: never the set or the number of
// pictures of the previous one (lastset and lasthowmany; 0 before the first).
Question drawQuestion(Random::Source& rnd, int lastset, int lasthowmany);

// "You should have clicked on 1 picture" / "... on 3 pictures".
QString shouldHaveClicked(int target);

} // namespace Halves
