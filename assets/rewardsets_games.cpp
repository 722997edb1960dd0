// Reward pictures built from game pieces: a peg solitaire board filling with
// marbles, a Tower of Hanoi being stacked and solved, and a star put
// together from twenty triangles.
#include "canvas.h"
#include "rewardsets.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

// --- Peg solitaire -------------------------------------------------------

void drawSolitaireBoard(QPainter &p, const QRectF &area, int step)
{
    const QPointF centre = area.center();
    const double radius = std::min(area.width(), area.height()) / 2 - 1;
    const double spacing = 25.5;

    drawSoftShadow(p, centre + QPointF(3, 5), radius + 4, radius + 4, 60);
    QRadialGradient wood(centre, radius, centre - QPointF(radius * 0.3, radius * 0.35));
    wood.setColorAt(0, QColor(246, 204, 140));
    wood.setColorAt(1, QColor(196, 128, 66));
    p.setBrush(wood);
    p.setPen(QPen(QColor(128, 76, 34), 3));
    p.drawEllipse(centre, radius, radius);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(150, 92, 44, 150), 5));
    p.drawEllipse(centre, radius - 10, radius - 10);

    struct Hole
    {
        QPointF at;
        int row;
    };
    std::vector<Hole> holes;  // row by row, top to bottom, without the middle one
    for (int row = 0; row < 7; ++row) {
        for (int col = 0; col < 7; ++col) {
            const bool onBoard = (row >= 2 && row <= 4) || (col >= 2 && col <= 4);
            if (!onBoard || (row == 3 && col == 3))
                continue;
            holes.push_back({centre + QPointF((col - 3) * spacing, (row - 3) * spacing), row});
        }
    }

    auto drawHole = [&p](const QPointF &at) {
        QRadialGradient hole(at, 7.5, at - QPointF(0, 2.5));
        hole.setColorAt(0, QColor(70, 36, 12));
        hole.setColorAt(1, QColor(140, 84, 38));
        p.setBrush(hole);
        p.setPen(Qt::NoPen);
        p.drawEllipse(at, 7.5, 7.5);
    };
    for (const Hole &h : holes)
        drawHole(h.at);
    drawHole(centre);

    const int marbles = itemsShown(step, int(holes.size()), 1, kRewardSteps - 1);
    for (int i = 0; i < marbles; ++i) {
        drawSoftShadow(p, holes[i].at + QPointF(1.5, 3), 11, 8, 90);
        drawGlassBall(p, holes[i].at, 10.5, brightColour(holes[i].row));
    }
    if (step >= kRewardSteps) {
        // The golden marble goes in the middle last.
        drawSoftShadow(p, centre + QPointF(1.5, 3), 12, 9, 90);
        drawGlassBall(p, centre, 11.5, QColor(255, 196, 0));
        p.setBrush(QColor(255, 255, 255, 230));
        p.setPen(Qt::NoPen);
        p.drawPath(starPath(centre + QPointF(7, -8), 6, 1.8, 4));
    }
}

// --- Tower of Hanoi ------------------------------------------------------

namespace {

constexpr int kDiscs = 4;

void collectMoves(int count, int from, int to, int via, std::vector<std::pair<int, int>> &moves)
{
    if (count == 0)
        return;
    collectMoves(count - 1, from, via, to, moves);
    moves.emplace_back(from, to);
    collectMoves(count - 1, via, to, from, moves);
}

} // namespace

void drawTowerOfHanoi(QPainter &p, const QRectF &area, int step)
{
    // Steps 1-4 stack the discs on the left peg, steps 5-19 are the fifteen
    // moves that carry the tower to the right peg, step 20 crowns it.
    std::array<std::vector<int>, 3> pegs;
    for (int disc = 0; disc < std::min(step, kDiscs); ++disc)
        pegs[0].push_back(disc);
    std::vector<std::pair<int, int>> moves;
    collectMoves(kDiscs, 0, 2, 1, moves);
    const int made = std::clamp(step - kDiscs, 0, int(moves.size()));
    for (int m = 0; m < made; ++m) {
        pegs[moves[m].second].push_back(pegs[moves[m].first].back());
        pegs[moves[m].first].pop_back();
    }

    const double baseTop = area.bottom() - 30;
    const QRectF base(area.left() + 4, baseTop, area.width() - 8, 18);
    drawSoftShadow(p, QPointF(base.center().x(), base.bottom() + 2), base.width() / 2, 7, 70);
    QLinearGradient plank(base.topLeft(), base.bottomLeft());
    plank.setColorAt(0, QColor(214, 150, 84));
    plank.setColorAt(1, QColor(150, 90, 40));
    p.setBrush(plank);
    p.setPen(QPen(QColor(110, 64, 26), 1.5));
    p.drawRoundedRect(base, 5, 5);

    const double discHeight = 22;
    const double widths[kDiscs] = {84, 67, 50, 34};
    const QColor colours[kDiscs] = {brightColour(0), brightColour(2), brightColour(3),
                                    brightColour(5)};
    for (int peg = 0; peg < 3; ++peg) {
        const double x = area.left() + area.width() * (1 + 2 * peg) / 6.0;
        QLinearGradient rod(QPointF(x - 4, 0), QPointF(x + 4, 0));
        rod.setColorAt(0, QColor(196, 134, 74));
        rod.setColorAt(1, QColor(126, 74, 32));
        p.setBrush(rod);
        p.setPen(QPen(QColor(100, 58, 22), 1));
        p.drawRoundedRect(QRectF(x - 4, baseTop - 122, 8, 124), 4, 4);

        for (std::size_t level = 0; level < pegs[peg].size(); ++level) {
            const int disc = pegs[peg][level];
            const double w = widths[disc];
            const QRectF r(x - w / 2, baseTop - (level + 1) * discHeight, w, discHeight - 1);
            QLinearGradient body(r.topLeft(), r.bottomLeft());
            body.setColorAt(0, colours[disc].lighter(140));
            body.setColorAt(0.5, colours[disc]);
            body.setColorAt(1, colours[disc].darker(140));
            p.setBrush(body);
            p.setPen(QPen(colours[disc].darker(170), 1.2));
            p.drawRoundedRect(r, 10, 10);
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(255, 255, 255, 110));
            p.drawRoundedRect(QRectF(r.left() + 8, r.top() + 3, w - 16, 4), 2, 2);
        }
    }

    if (step >= kRewardSteps) {
        const double x = area.left() + area.width() * 5 / 6.0;
        const QPointF top(x, baseTop - kDiscs * discHeight - 28);
        p.setBrush(QColor(255, 204, 0));
        p.setPen(QPen(QColor(200, 120, 0), 1.5));
        p.drawPath(starPath(top, 22, 9.5, 5));
    }
}

// --- Star of twenty triangles ------------------------------------------------

void drawStarOfPieces(QPainter &p, const QRectF &area, int step)
{
    // A few small stars in the night sky behind.
    Rng rng(1207);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 26; ++i) {
        const QPointF at(area.left() + rng.range(0, area.width()),
                         area.top() + rng.range(0, area.height()));
        p.setBrush(QColor(255, 255, 220, int(rng.range(120, 230))));
        p.drawPath(starPath(at, rng.range(2, 4), 1, 4));
    }

    const QPointF centre = area.center() + QPointF(0, 8);
    const double outer = 104, inner = 46;
    auto corner = [&](int index, bool tip) {
        const double a = (index * 72.0 + (tip ? 0 : 36)) * M_PI / 180.0;
        const double r = tip ? outer : inner;
        return centre + QPointF(r * std::sin(a), -r * std::cos(a));
    };

    // Each point is two halves, each half an inner and an outer triangle of
    // equal area: twenty pieces, each a twentieth of the star.
    struct Piece
    {
        QPolygonF shape;
        QColor colour;
    };
    std::vector<Piece> innerPieces, outerPieces;
    for (int i = 0; i < 5; ++i) {
        const QPointF tip = corner(i, true);
        const QPointF mid = (centre + tip) / 2;
        const QPointF left = corner(i + 4, false);
        const QPointF right = corner(i, false);
        innerPieces.push_back({QPolygonF({centre, left, mid}), QColor(255, 214, 64)});
        outerPieces.push_back({QPolygonF({mid, left, tip}), QColor(255, 234, 130)});
        innerPieces.push_back({QPolygonF({centre, mid, right}), QColor(240, 150, 20)});
        outerPieces.push_back({QPolygonF({mid, tip, right}), QColor(250, 182, 40)});
    }
    std::vector<Piece> order = innerPieces;
    order.insert(order.end(), outerPieces.begin(), outerPieces.end());

    QPainterPath outline;
    for (int i = 0; i < 10; ++i) {
        const QPointF c = corner(i / 2, i % 2 == 0);
        if (i == 0)
            outline.moveTo(c);
        else
            outline.lineTo(c);
    }
    outline.closeSubpath();

    if (step >= kRewardSteps) {
        QRadialGradient glow(centre, outer * 1.25);
        glow.setColorAt(0.3, QColor(255, 240, 150, 150));
        glow.setColorAt(1, QColor(255, 240, 150, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(centre, outer * 1.25, outer * 1.25);
    }

    // The empty outline with its piece lines, waiting to be filled.
    QPen guide(QColor(255, 240, 180, 150), 1.5, Qt::DashLine);
    p.setPen(guide);
    p.setBrush(QColor(255, 255, 255, 18));
    p.drawPath(outline);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 240, 180, 70), 1, Qt::DashLine));
    for (const Piece &piece : order)
        p.drawPolygon(piece.shape);

    for (int i = 0; i < std::min(step, int(order.size())); ++i) {
        p.setBrush(order[i].colour);
        p.setPen(QPen(QColor(190, 110, 10), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPolygon(order[i].shape);
    }

    if (step >= kRewardSteps) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, 235));
        p.drawPath(starPath(corner(0, true) + QPointF(0, 22), 9, 2, 4));
        p.drawPath(starPath(corner(4, true) + QPointF(18, 4), 6, 1.6, 4));
    }
}
