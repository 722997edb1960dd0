#pragma once
// How the shape boards and the hundred square look: the same colours and
// line weights on every board, so a coloured part always looks coloured.
#include <QColor>

namespace PartStyle {

// A part nobody has coloured.
inline const QColor kBlank{255, 255, 255};
// A coloured (or shaded) part: a warm orange that stands out on the blue screens.
inline const QColor kColoured{255, 148, 28};
// The shape's edge and the cuts between its parts.
inline const QColor kOutline{24, 32, 72};
// The keyboard cursor: purple dashes over white gaps, seen on either fill.
inline const QColor kCursor{150, 0, 160};
inline const QColor kCursorGap{255, 255, 255};

// Line weights as a share of the board's smaller side, never thinner than
// the smallest weight in pixels.
constexpr double kOutlineShare = 0.028;
constexpr double kCutShare = 0.014;
constexpr double kCursorShare = 0.03;
constexpr double kThinnestOutline = 3.0;
constexpr double kThinnestCut = 1.5;
constexpr double kThinnestCursor = 3.0;

} // namespace PartStyle
