// The Mixed Numbers and Improper Fractions worksheet: eight improper
// fractions to change to mixed numbers, then eight mixed numbers to change
// to improper fractions, each with boxes for the answer.
#include "worksheetexercises.h"
#include "worksheetpage.h"
#include "worksheets.h"

namespace {

constexpr int kPerSection = 8;
const QColor kInk(30, 30, 40);

// The length of the bar of a written fraction.
int barLength(WorksheetPage &page, int numer, int denom, int size)
{
    page.setFont(WorksheetPage::Sans, size);
    return std::max(page.textWidth(QString::number(numer)), page.textWidth(QString::number(denom)))
           + size / 3;
}

// A fraction written one number over the other, centred on centre, with
// the bar through centre.
void drawFraction(WorksheetPage &page, const QPoint &centre, int numer, int denom, int size)
{
    const int bar = barLength(page, numer, denom, size);
    const int digits = page.digitHeight();
    const int gap = std::max(50, digits / 3);
    const QString top = QString::number(numer), bottom = QString::number(denom);
    page.text(centre.x(), centre.y() - gap, top, Qt::AlignHCenter);
    page.text(centre.x(), centre.y() + gap + digits, bottom, Qt::AlignHCenter);
    page.setPen(kInk, std::max(15, size / 14));
    page.line(centre.x() - bar / 2, centre.y(), centre.x() + bar / 2, centre.y());
}

void answerBox(WorksheetPage &page, const QRect &box)
{
    page.setPen(QColor(60, 60, 70), 20);
    page.setBrush(Qt::white);
    page.roundRect(box, 50);
}

// Two answer boxes one over the other with a bar between, centred on centre.
void drawFractionBoxes(WorksheetPage &page, const QPoint &centre, int width)
{
    const int height = 380, gap = 70;
    answerBox(page, QRect(centre.x() - width / 2, centre.y() - gap - height, width, height));
    answerBox(page, QRect(centre.x() - width / 2, centre.y() + gap, width, height));
    page.setPen(kInk, 25);
    page.line(centre.x() - width / 2 - 40, centre.y(), centre.x() + width / 2 + 40, centre.y());
}

void drawEquals(WorksheetPage &page, const QPoint &centre)
{
    page.setPen(kInk, 25);
    page.line(centre.x() - 110, centre.y() - 55, centre.x() + 110, centre.y() - 55);
    page.line(centre.x() - 110, centre.y() + 55, centre.x() + 110, centre.y() + 55);
}

void drawExercise(WorksheetPage &page, const QRect &box, int number, bool toMixed,
                  const MixedExercise &e)
{
    page.setPen(QColor(150, 180, 220), 15);
    page.setBrush(Qt::white);
    page.roundRect(box, 140);
    const int cy = box.center().y();
    const int x = box.left();
    page.drawExerciseNumber(QPoint(x + 280, cy), number);

    // Given number, "=", answer boxes: one group, centred right of the disc.
    page.setTextColour(kInk);
    const int numer = toMixed ? e.improperNumerator() : e.numer;
    const int bar = barLength(page, numer, e.denom, 360);
    const QString whole = QString::number(e.whole);
    if (!toMixed)
        page.setFont(WorksheetPage::Sans, 500);
    const int wholeWidth = toMixed ? 0 : page.textWidth(whole) + 80;
    const int equalsWidth = 640, wholeBox = 560, gap = 140, fractionBox = 500;
    const int answerWidth = toMixed ? wholeBox + gap + fractionBox + 80 : 700;
    // The given number stands right against the "=", which keeps one place
    // in every box of a section.
    const int givenSlot = toMixed ? 700 : 1100;
    const int groupWidth = givenSlot + equalsWidth + answerWidth;
    int left = x + 560 + (box.width() - 560 - groupWidth) / 2 + givenSlot - wholeWidth - bar;
    if (!toMixed)
        page.text(left, cy + page.digitHeight() / 2, whole);
    left += wholeWidth;
    drawFraction(page, QPoint(left + bar / 2, cy), numer, e.denom, 360);
    left += bar;
    drawEquals(page, QPoint(left + equalsWidth / 2, cy));
    left += equalsWidth;
    if (toMixed) {
        answerBox(page, QRect(left, cy - 330, wholeBox, 660));
        drawFractionBoxes(page, QPoint(left + wholeBox + gap + 40 + fractionBox / 2, cy), fractionBox);
    } else {
        drawFractionBoxes(page, QPoint(left + answerWidth / 2, cy), 600);
    }
}

// A heading band with the task on the left and a worked example on the right.
int drawSection(WorksheetPage &page, int top, const QString &task, bool toMixed)
{
    const QRect band(WorksheetPage::Left, top, WorksheetPage::Right - WorksheetPage::Left, 620);
    page.setNoPen();
    page.setBrush(QColor(226, 237, 252));
    page.roundRect(band, 120);
    page.setTextColour(QColor(20, 60, 130));
    page.setFont(WorksheetPage::Sans, 280, true);
    const int baseline = band.center().y() + page.digitHeight() / 2;
    page.text(band.left() + 200, baseline, task);

    // The example 7/2 = 3 1/2, written the way round this section asks.
    page.setFont(WorksheetPage::Sans, 220);
    page.setTextColour(QColor(90, 90, 100));
    const int cy = band.center().y();
    const QString label = QStringLiteral("For example:");
    int x = band.right() - 200 - (page.textWidth(label) + 200 + 240 + 340 + 420);
    page.text(x, cy + page.digitHeight() / 2, label);
    x += page.textWidth(label) + 200;
    auto improper = [&](int left) {
        drawFraction(page, QPoint(left + 120, cy), 7, 2, 220);
        return left + 240;
    };
    auto mixed = [&](int left) {
        page.setFont(WorksheetPage::Sans, 320);
        page.text(left + 90, cy + page.digitHeight() / 2, QStringLiteral("3"), Qt::AlignHCenter);
        drawFraction(page, QPoint(left + 300, cy), 1, 2, 220);
        return left + 420;
    };
    auto equals = [&](int left) {
        page.setPen(QColor(90, 90, 100), 15);
        page.line(left + 100, cy - 35, left + 240, cy - 35);
        page.line(left + 100, cy + 35, left + 240, cy + 35);
        return left + 340;
    };
    if (toMixed)
        mixed(equals(improper(x)));
    else
        improper(equals(mixed(x)));
    page.setTextColour(kInk);
    return band.bottom() + 1;
}

} // namespace

QByteArray mixedNumbersWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error)
{
    Random::Source rng(seed);
    const std::vector<MixedExercise> toMixed = makeMixedExercises(rng, true, kPerSection);
    const std::vector<MixedExercise> toImproper = makeMixedExercises(rng, false, kPerSection);

    WorksheetPage page;
    int y = page.drawHeading(yearLabel, QStringLiteral("Mixed Numbers and Improper Fractions"),
                             QStringLiteral("Write your answers in the boxes."));

    const int sectionGap = 200, gap = 100, rows = kPerSection / 2;
    const int boxWidth = (WorksheetPage::Right - WorksheetPage::Left - gap) / 2;
    const int boxHeight = (WorksheetPage::Bottom - y - 2 * 620 - sectionGap - 2 * rows * gap) / (2 * rows);
    int number = 1;
    for (bool mixed : {true, false}) {
        y = drawSection(page, y,
                        mixed ? QStringLiteral("Change to a mixed number.")
                              : QStringLiteral("Change to an improper fraction."),
                        mixed);
        const std::vector<MixedExercise> &exercises = mixed ? toMixed : toImproper;
        for (int i = 0; i < kPerSection; ++i) {
            const QRect box(WorksheetPage::Left + (i % 2) * (boxWidth + gap),
                            y + gap + (i / 2) * (boxHeight + gap), boxWidth, boxHeight);
            drawExercise(page, box, number++, mixed, exercises[i]);
        }
        y += rows * (boxHeight + gap) + sectionGap;
    }

    const QByteArray bytes = page.finish();
    if (error)
        *error = page.error();
    return bytes;
}
