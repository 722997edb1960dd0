// The Place In Order worksheet: twelve cards, each with five decimal
// numbers to write into five boxes from the smallest down to the biggest,
// as the ordering board lays them out on screen.
#include "worksheetexercises.h"
#include "worksheetpage.h"
#include "worksheets.h"

namespace {

constexpr int kColumns = 4;
constexpr int kRows = 3;
const QColor kInk(30, 30, 40);
const QColor kLabel(90, 90, 100);

void drawArrow(WorksheetPage &page, const QRect &r)
{
    const int cy = r.center().y(), shaft = r.height() / 5;
    const int head = r.right() - r.height() / 2;
    page.setNoPen();
    page.setBrush(QColor(48, 133, 214));
    page.polygon({QPoint(r.left(), cy - shaft), QPoint(head, cy - shaft), QPoint(head, r.top()),
                  QPoint(r.right(), cy), QPoint(head, r.bottom()), QPoint(head, cy + shaft),
                  QPoint(r.left(), cy + shaft)});
}

void drawCard(WorksheetPage &page, const QRect &card, int number, const OrderingExercise &e)
{
    page.setPen(QColor(150, 180, 220), 15);
    page.setBrush(Qt::white);
    page.roundRect(card, 160);
    page.drawExerciseNumber(card.topLeft() + QPoint(260, 260), number);

    const int numbersLeft = card.left() + 90, numbersWidth = 760;
    const int answersLeft = card.left() + 1180, answersWidth = card.right() - 90 - answersLeft;
    const int boxHeight = 420;
    const int firstTop = card.top() + 540;
    const int pitch = (card.bottom() - 420 - firstTop - boxHeight) / 4;

    page.setFont(WorksheetPage::Sans, 200);
    page.setTextColour(kLabel);
    const int answersMiddle = answersLeft + answersWidth / 2;
    page.text(answersMiddle, firstTop - 110, QStringLiteral("Smallest"), Qt::AlignHCenter);
    page.text(answersMiddle, firstTop + 4 * pitch + boxHeight + 110 + page.digitHeight(),
              QStringLiteral("Biggest"), Qt::AlignHCenter);

    page.setTextColour(kInk);
    for (int i = 0; i < 5; ++i) {
        const int top = firstTop + i * pitch;
        const QRect given(numbersLeft, top, numbersWidth, boxHeight);
        page.setPen(QColor(215, 165, 60), 15);
        page.setBrush(QColor(255, 241, 196));
        page.roundRect(given, 90);
        page.setFont(WorksheetPage::Sans, 240, true);
        page.numberInBox(given, e.numbers[std::size_t(i)]);

        page.setPen(QColor(60, 60, 70), 20);
        page.setBrush(Qt::white);
        page.roundRect(QRect(answersLeft, top, answersWidth, boxHeight), 50);
    }
    const int middle = firstTop + 2 * pitch;
    drawArrow(page, QRect(numbersLeft + numbersWidth + 50, middle + 40,
                          answersLeft - numbersLeft - numbersWidth - 100, boxHeight - 80));
}

} // namespace

QByteArray orderingWorksheet(const QString &yearLabel, std::uint32_t seed, QString *error)
{
    Random::Source rng(seed);
    const std::vector<OrderingExercise> exercises = makeOrderingExercises(rng, kColumns * kRows);

    WorksheetPage page;
    const int top = page.drawHeading(
        yearLabel, QStringLiteral("Place In Order"),
        QStringLiteral("Write each set of numbers in the boxes in order, smallest first."));

    const int gap = 160;
    const int width = (WorksheetPage::Right - WorksheetPage::Left - (kColumns - 1) * gap) / kColumns;
    const int height = (WorksheetPage::Bottom - top - (kRows - 1) * gap) / kRows;
    for (int i = 0; i < kColumns * kRows; ++i) {
        const QRect card(WorksheetPage::Left + (i % kColumns) * (width + gap),
                         top + (i / kColumns) * (height + gap), width, height);
        drawCard(page, card, i + 1, exercises[std::size_t(i)]);
    }

    const QByteArray bytes = page.finish();
    if (error)
        *error = page.error();
    return bytes;
}
