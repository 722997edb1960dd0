#include "mixedpanel.h"

#include "runtime/form.h"
#include "runtime/twips.h"
#include "shell/module1.h"

#include <QFrame>
#include <QLabel>
#include <algorithm>

namespace MixedPanel {

namespace {
const QString kSerif = QStringLiteral("Times New Roman");
const QColor kBoxEdge(48, 133, 214);
const QColor kFocusEdge(255, 150, 0);
const QColor kWaitingEdge(170, 190, 210);
constexpr int kTwoFigures = 2;

constexpr int kFirstColumn = 150;
// Between the given number, the "=" and the answer; a whole number stands
// closer to its fraction.
constexpr int kColumnGap = 120;
constexpr int kWholeGap = 60;

// The row starts where the designed one does, or further left when a wide
// cell would not fit.
int firstColumn(int improperWidth)
{
    const int row = improperWidth + 2 * kColumnGap + kEqualsWidth + 2 * kCellWidth + kWholeGap;
    return std::min(kFirstColumn, (kWidth - row) / 2);
}
} // namespace

QString rgb(const QColor& c)
{
    return QStringLiteral("rgb(%1, %2, %3)").arg(c.red()).arg(c.green()).arg(c.blue());
}

int improperCellWidth(int figures)
{
    return figures > kTwoFigures ? kWideCellWidth : kCellWidth;
}

Row toMixedRow(int improperWidth)
{
    Row r;
    r.improper = firstColumn(improperWidth);
    r.equals = r.improper + improperWidth + kColumnGap;
    r.whole = r.equals + kEqualsWidth + kColumnGap;
    r.fraction = r.whole + kCellWidth + kWholeGap;
    return r;
}

Row toImproperRow(int improperWidth)
{
    Row r;
    r.whole = firstColumn(improperWidth);
    r.fraction = r.whole + kCellWidth + kWholeGap;
    r.equals = r.fraction + kCellWidth + kColumnGap;
    r.improper = r.equals + kEqualsWidth + kColumnGap;
    return r;
}

QFrame* panel(QWidget* parent, const char* name, int left, int top, int width, int height, const QColor& back)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(QString::fromLatin1(name));
    setControlBackColour(frame, back);
    Twips::place(frame, left, top, width, height);
    return frame;
}

QLabel* number(QWidget* panel, const char* name, int left, int top, int width, Qt::Alignment align)
{
    auto* l = new QLabel(panel);
    l->setObjectName(QString::fromLatin1(name));
    l->setFont(Twips::font(kSerif, kNumberPoints, true));
    l->setAlignment(align);
    setControlBackColour(l, Module1::kPanelPaper);
    QPalette palette = l->palette();
    palette.setColor(QPalette::WindowText, Module1::kPanelInk);
    palette.setColor(QPalette::Window, Module1::kPanelPaper);
    l->setPalette(palette);
    Twips::place(l, left, top, width, kCellHeight);
    return l;
}

QLabel* equals(QWidget* panel, const char* name, int left)
{
    QLabel* l = number(panel, name, left, kBesideTop, kEqualsWidth);
    l->setText(QStringLiteral("="));
    return l;
}

QFrame* bar(QWidget* panel, const char* name, int left, int width)
{
    auto* line = new QFrame(panel);
    line->setObjectName(QString::fromLatin1(name));
    setControlBackColour(line, Module1::kPanelInk);
    Twips::place(line, left, kBarTop, width, kBarThickness);
    return line;
}

QString boxStyle()
{
    return QStringLiteral("QLineEdit { background: %1; color: %2; border: 3px solid %3; border-radius: 6px;"
                          " padding: 0px; }"
                          " QLineEdit:focus { border-color: %4; }"
                          " QLineEdit:disabled { border: 3px dashed %5; }")
        .arg(rgb(Module1::kPanelPaper), rgb(Module1::kPanelInk), rgb(kBoxEdge), rgb(kFocusEdge), rgb(kWaitingEdge));
}

} // namespace MixedPanel
