// The Halves and Quarters worksheet: twelve boxes, each a set of simple
// pictures of which the child rings one half or one quarter.
#include "worksheetexercises.h"
#include "worksheetpage.h"
#include "worksheets.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

const char *const kPictureNames[] = {"apples", "stars", "balls", "fish", "flowers", "kites"};
constexpr int kPictureKinds = 6;
constexpr int kExercises = 12;

QPoint at(const QPointF &p)
{
    return QPoint(int(std::lround(p.x())), int(std::lround(p.y())));
}

QRect around(const QPointF &c, double rx, double ry)
{
    return QRect(at(c - QPointF(rx, ry)), at(c + QPointF(rx, ry)));
}

// Points round an ellipse, from startDegrees to endDegrees (0 = right, 90 =
// down, as on the page).
QVector<QPoint> arc(const QPointF &c, double rx, double ry, double startDegrees,
                    double endDegrees, int steps)
{
    QVector<QPoint> points;
    for (int i = 0; i <= steps; ++i) {
        const double a = qDegreesToRadians(startDegrees + (endDegrees - startDegrees) * i / steps);
        points.append(at(c + QPointF(rx * std::cos(a), ry * std::sin(a))));
    }
    return points;
}

void drawApple(WorksheetPage &page, const QPointF &c, double r)
{
    page.setPen(QColor(90, 50, 20), std::max(20, int(r / 8)));
    page.line(at(c + QPointF(0, -0.55 * r)), at(c + QPointF(0.12 * r, -0.98 * r)));
    page.setPen(QColor(40, 110, 40), 12);
    page.setBrush(QColor(90, 180, 70));
    page.polygon({at(c + QPointF(0.1 * r, -0.8 * r)), at(c + QPointF(0.35 * r, -1.0 * r)),
                  at(c + QPointF(0.65 * r, -0.95 * r)), at(c + QPointF(0.45 * r, -0.75 * r))});
    page.setPen(QColor(130, 20, 25), 15);
    page.setBrush(QColor(222, 45, 50));
    page.ellipse(around(c + QPointF(0, 0.1 * r), 0.82 * r, 0.72 * r));
    page.setNoPen();
    page.setBrush(QColor(250, 170, 170));
    page.ellipse(around(c + QPointF(-0.38 * r, -0.2 * r), 0.13 * r, 0.2 * r));
}

void drawStar(WorksheetPage &page, const QPointF &c, double r)
{
    QVector<QPoint> points;
    for (int i = 0; i < 10; ++i) {
        const double radius = i % 2 ? 0.42 * r : r;
        const double a = qDegreesToRadians(-90.0 + 36.0 * i);
        points.append(at(c + QPointF(radius * std::cos(a), 0.05 * r + radius * std::sin(a))));
    }
    page.setPen(QColor(200, 120, 0), 15);
    page.setBrush(QColor(255, 205, 40));
    page.polygon(points);
}

void drawBall(WorksheetPage &page, const QPointF &c, double r)
{
    // A beach ball: red, with a white and a blue panel down the middle.
    page.setPen(QColor(110, 20, 20), 15);
    page.setBrush(QColor(225, 50, 45));
    page.ellipse(around(c, 0.85 * r, 0.85 * r));
    page.setPen(QColor(110, 20, 20), 12);
    page.setBrush(Qt::white);
    page.ellipse(around(c, 0.5 * r, 0.85 * r));
    page.setBrush(QColor(50, 110, 220));
    page.ellipse(around(c, 0.18 * r, 0.85 * r));
}

void drawFish(WorksheetPage &page, const QPointF &c, double r)
{
    page.setPen(QColor(170, 70, 0), 15);
    page.setBrush(QColor(255, 140, 30));
    page.polygon({at(c + QPointF(-0.45 * r, 0)), at(c + QPointF(-0.95 * r, -0.45 * r)),
                  at(c + QPointF(-0.95 * r, 0.45 * r))});
    page.polygon({at(c + QPointF(-0.15 * r, -0.35 * r)), at(c + QPointF(0.1 * r, -0.62 * r)),
                  at(c + QPointF(0.3 * r, -0.32 * r))});
    page.ellipse(around(c + QPointF(0.1 * r, 0), 0.72 * r, 0.42 * r));
    page.setPen(QColor(170, 70, 0), 12);
    page.polyline(arc(c + QPointF(0.28 * r, 0), 0.2 * r, 0.3 * r, 120, 240, 6));
    page.setNoPen();
    page.setBrush(Qt::white);
    page.ellipse(around(c + QPointF(0.5 * r, -0.1 * r), 0.11 * r, 0.11 * r));
    page.setBrush(QColor(20, 20, 20));
    page.ellipse(around(c + QPointF(0.53 * r, -0.1 * r), 0.05 * r, 0.05 * r));
}

void drawFlower(WorksheetPage &page, const QPointF &c, double r)
{
    page.setPen(QColor(40, 120, 40), std::max(20, int(r / 9)));
    page.line(at(c), at(c + QPointF(0, 0.98 * r)));
    page.setPen(QColor(150, 40, 110), 12);
    page.setBrush(QColor(240, 120, 190));
    const QPointF head = c + QPointF(0, -0.15 * r);
    for (int i = 0; i < 6; ++i) {
        const double a = qDegreesToRadians(-90.0 + 60.0 * i);
        page.ellipse(around(head + QPointF(0.5 * r * std::cos(a), 0.5 * r * std::sin(a)),
                            0.3 * r, 0.3 * r));
    }
    page.setPen(QColor(190, 120, 0), 12);
    page.setBrush(QColor(255, 210, 50));
    page.ellipse(around(head, 0.27 * r, 0.27 * r));
}

void drawKite(WorksheetPage &page, const QPointF &c, double r)
{
    const QPointF top = c + QPointF(-0.2 * r, -1.0 * r);
    const QPointF left = c + QPointF(-0.85 * r, -0.3 * r);
    const QPointF right = c + QPointF(0.45 * r, -0.3 * r);
    const QPointF tail = c + QPointF(-0.2 * r, 0.45 * r);
    page.setPen(QColor(20, 90, 80), 15);
    page.setBrush(QColor(40, 175, 160));
    page.polygon({at(top), at(right), at(tail), at(left)});
    page.setPen(QColor(20, 90, 80), 12);
    page.line(at(top), at(tail));
    page.line(at(left), at(right));
    // A string tail with bows.
    const QVector<QPointF> string = {tail, c + QPointF(0.1 * r, 0.65 * r), c + QPointF(0.35 * r, 0.6 * r),
                                     c + QPointF(0.6 * r, 0.85 * r), c + QPointF(0.85 * r, 0.8 * r)};
    QVector<QPoint> line;
    for (const QPointF &p : string)
        line.append(at(p));
    page.setPen(QColor(80, 80, 80), 12);
    page.polyline(line);
    page.setPen(QColor(170, 30, 60), 10);
    page.setBrush(QColor(230, 60, 90));
    for (int i = 1; i <= 3; i += 2) {
        const QPointF b = string[i];
        page.polygon({at(b), at(b + QPointF(-0.1 * r, -0.1 * r)), at(b + QPointF(-0.1 * r, 0.1 * r))});
        page.polygon({at(b), at(b + QPointF(0.1 * r, -0.1 * r)), at(b + QPointF(0.1 * r, 0.1 * r))});
    }
}

void drawPicture(WorksheetPage &page, int kind, const QRect &cell)
{
    const QPointF c = QRectF(cell).center();
    const double r = 0.42 * std::min(cell.width(), cell.height());
    switch (kind) {
    case 0: drawApple(page, c, r); break;
    case 1: drawStar(page, c, r); break;
    case 2: drawBall(page, c, r); break;
    case 3: drawFish(page, c, r); break;
    case 4: drawFlower(page, c, r); break;
    default: drawKite(page, c, r); break;
    }
}

void drawExercise(WorksheetPage &page, const QRect &box, int number, const HalvesExercise &e)
{
    page.setPen(QColor(150, 180, 220), 15);
    page.setBrush(Qt::white);
    page.roundRect(box, 160);
    page.drawExerciseNumber(box.topLeft() + QPoint(280, 280), number);

    page.setFont(WorksheetPage::Sans, 250, false);
    const QString instruction = QStringLiteral("Ring one %1 of the %2.")
                                    .arg(QLatin1String(e.parts == 2 ? "half" : "quarter"),
                                         QLatin1String(kPictureNames[e.picture]));
    page.text(box.left() + 560, box.top() + 280 + page.digitHeight() / 2, instruction);

    // The pictures, in one row or two, centred in the rest of the box.
    const QRect area(box.left() + 120, box.top() + 540, box.width() - 240, box.height() - 620);
    const int rows = e.count <= 6 ? 1 : 2;
    const int perRow = (e.count + rows - 1) / rows;
    const int cell = std::min({720, area.width() / perRow, area.height() / rows});
    const int top = area.top() + (area.height() - rows * cell) / 2;
    for (int i = 0; i < e.count; ++i) {
        const int row = i / perRow;
        const int inRow = std::min(perRow, e.count - row * perRow);
        const int left = area.left() + (area.width() - inRow * cell) / 2;
        drawPicture(page, e.picture, QRect(left + (i % perRow) * cell, top + row * cell, cell, cell));
    }
}

} // namespace

QByteArray halvesWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error)
{
    Random::Source rng(seed);
    const std::vector<HalvesExercise> exercises = makeHalvesExercises(rng, kExercises, kPictureKinds);

    WorksheetPage page;
    const int top = page.drawHeading(
        yearLabel, QStringLiteral("Halves and Quarters"),
        QStringLiteral("Draw a ring round one half or one quarter of each set, as the box says."));

    const int gap = 140;
    const int rows = kExercises / 2;
    const int boxWidth = (WorksheetPage::Right - WorksheetPage::Left - gap) / 2;
    const int boxHeight = (WorksheetPage::Bottom - top - (rows - 1) * gap) / rows;
    for (int i = 0; i < kExercises; ++i) {
        const int column = i % 2, row = i / 2;
        const QRect box(WorksheetPage::Left + column * (boxWidth + gap), top + row * (boxHeight + gap),
                        boxWidth, boxHeight);
        drawExercise(page, box, i + 1, exercises[i]);
    }

    const QByteArray bytes = page.finish();
    if (error)
        *error = page.error();
    return bytes;
}
