#pragma once
// What the year menu and the activity menus share in their look: the blue
// of the screen, the yellow of the year names, and labels in those inks.
#include <QColor>
#include <QString>

class QFont;
class QLabel;
class QWidget;

namespace MenuLook {

inline const QColor kBack{49, 130, 212};
inline const QColor kYearInk{255, 236, 120};

// A label with its name, text, font and ink (white unless told).
QLabel* label(QWidget* parent, const QString& name, const QString& text, const QFont& font,
              const QColor& ink = QColor(255, 255, 255));

} // namespace MenuLook
