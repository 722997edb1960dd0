// The pictures that build up step by step while a child answers questions.
// Each subject is one function drawing the picture as it stands after `step`
// of kRewardSteps steps inside `area`: step 0 is the empty base, the last
// step the finished picture, and every step adds something you can see.
#pragma once

#include <QRectF>

class QPainter;

constexpr int kRewardSteps = 20;

// How many of `total` items are in place at `step` when they are spread
// evenly over the steps first..last.
inline int itemsShown(int step, int total, int first, int last)
{
    if (step < first)
        return 0;
    if (step >= last)
        return total;
    const int steps = last - first + 1;
    return (total * (step - first + 1) + steps / 2) / steps;
}

void drawSolitaireBoard(QPainter &p, const QRectF &area, int step);
void drawTowerOfHanoi(QPainter &p, const QRectF &area, int step);
void drawStarOfPieces(QPainter &p, const QRectF &area, int step);
void drawNecklace(QPainter &p, const QRectF &area, int step);
void drawGazebo(QPainter &p, const QRectF &area, int step);
void drawSlicedSphere(QPainter &p, const QRectF &area, int step);
void drawEarth(QPainter &p, const QRectF &area, int step);
void drawThermometer(QPainter &p, const QRectF &area, int step);
void drawBirthdayCake(QPainter &p, const QRectF &area, int step);
void drawJarOfMarbles(QPainter &p, const QRectF &area, int step);
