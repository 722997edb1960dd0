#pragma once
// What a screen reader hears beyond each control's own name.
//
// Messages: a label that tells the child something as it happens (praise,
// "Incorrect!", the ready-for-the-Challenge text, the retry panel) is an
// alert to a screen reader, spoken when it appears and whenever
// showMessage() shows it again with new words.
//
// Pictures: a picture box is an image to a reader, named by what it shows;
// one that holds other controls (a panel drawn on a picture) stays a panel.
//
// Groups read as one: a fraction written as stacked numbers is a panel of
// loose labels; the panel is read by its own name ("nineteen sevenths
// equals") and its loose labels are left out, while what a child can use
// inside it (answer boxes, the answers typed) stays in reach.
class QLabel;
class QWidget;

namespace Spoken {

// The label is a message to the child: a reader hears it as an alert.
void markAsMessage(QLabel* label);
bool isMessage(const QWidget* widget);
// Shows the message label and has a reader speak it, even when it was on
// the screen already with other words.
void showMessage(QLabel* label);

// The widget is a picture: an image to a reader.
void markAsPicture(QWidget* widget);

// The group is read by its accessible name; its children marked with
// partOfGroupName() are left out of what a reader walks through.
void readAsOne(QWidget* group);
void partOfGroupName(QWidget* child);
bool isPartOfGroupName(const QWidget* widget);

} // namespace Spoken
