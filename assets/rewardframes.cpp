// Writes the ten reward picture sets: every frame is the set's panel with its
// subject drawn at that step.
#include "canvas.h"
#include "drawing.h"
#include "rewardsets.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

struct RewardSet
{
    const char *name;
    bool tall;
    QColor panelTop;
    QColor panelBottom;
    void (*draw)(QPainter &, const QRectF &, int);
};

const QColor kCream(255, 251, 236);
const QColor kWarm(255, 236, 200);

const RewardSet kSets[] = {
    {"solita", false, kCream, kWarm, drawSolitaireBoard},
    {"neckla", false, QColor(255, 240, 248), QColor(246, 214, 236), drawNecklace},
    {"hanoi", false, QColor(236, 248, 255), QColor(205, 230, 248), drawTowerOfHanoi},
    {"sphfra", false, QColor(240, 250, 255), QColor(214, 236, 250), drawSlicedSphere},
    {"starfr", false, QColor(70, 60, 150), QColor(30, 30, 90), drawStarOfPieces},
    {"gazebo", false, QColor(170, 220, 255), QColor(228, 246, 255), drawGazebo},
    {"thermo", true, QColor(238, 248, 255), QColor(255, 236, 220), drawThermometer},
    {"cake", true, QColor(255, 244, 250), QColor(255, 222, 236), drawBirthdayCake},
    {"greenb", true, QColor(242, 255, 240), QColor(214, 242, 210), drawJarOfMarbles},
    {"earthc", false, QColor(18, 26, 66), QColor(36, 44, 104), drawEarth},
};

constexpr int kWidth = 288;
constexpr int kHeight = 240;
constexpr int kTallHeight = 320;
constexpr int kLargeTwin = 2;

// One frame, drawn `enlarge` times the designed size.
QImage rewardFrame(const RewardSet &set, int step, int enlarge)
{
    const int height = set.tall ? kTallHeight : kHeight;
    QImage image = opaqueCanvas(kWidth * enlarge, height * enlarge, screenBlue());
    QPainter painter(&image);
    smoothPainting(painter);
    painter.scale(enlarge, enlarge);

    // A rounded panel with a white rim, standing out from the blue screen.
    const QRectF panel = QRectF(0, 0, kWidth, height).adjusted(4, 4, -4, -4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 70, 130, 90));
    painter.drawRoundedRect(panel.translated(1.5, 2.5), 16, 16);
    QLinearGradient fill(panel.topLeft(), panel.bottomLeft());
    fill.setColorAt(0, set.panelTop);
    fill.setColorAt(1, set.panelBottom);
    painter.setBrush(fill);
    painter.setPen(QPen(QColor(255, 255, 255), 3));
    painter.drawRoundedRect(panel, 16, 16);

    const QRectF area = panel.adjusted(9, 9, -9, -9);
    painter.save();
    QPainterPath inside;
    inside.addRoundedRect(panel.adjusted(1.5, 1.5, -1.5, -1.5), 14.5, 14.5);
    painter.setClipPath(inside);
    set.draw(painter, area, step);
    painter.restore();
    return image;
}

} // namespace

void drawRewardSets(AssetOutput &out)
{
    for (const RewardSet &set : kSets) {
        for (int step = 0; step <= kRewardSteps; ++step) {
            const QString name = QStringLiteral("jpg2/%1%2").arg(QLatin1String(set.name)).arg(step, 2, 10, QLatin1Char('0'));
            out.saveJpeg(rewardFrame(set, step, 1), name + QStringLiteral(".jpg"));
            // The twin twice the size, for screens drawn larger than designed.
            out.saveJpeg(rewardFrame(set, step, kLargeTwin), name + QStringLiteral("@2x.jpg"));
        }
    }
}
