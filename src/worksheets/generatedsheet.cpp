#include "generatedsheet.h"

#include "runtime/msgbox.h"
#include "runtime/printer.h"
#include "shell/module1.h"
#include "worksheets/printforms.h"
#include "worksheets/sheetlayout.h"

#include <QCoreApplication>
#include <QPainter>

namespace Worksheets {

namespace {

using namespace Layout;

// The sheet keeps half an inch from the paper's edge, a printer's own
// border included.
constexpr double kSheetMargin = 360;

// Pen widths and corner radii in twips, as on the designed worksheets.
constexpr double kFramePen = 40;
constexpr double kFrameRadius = 220;
constexpr double kTabRadius = 120;
constexpr double kRulePen = 15;
constexpr double kBandPen = 20;
constexpr double kBandRadius = 140;
constexpr double kCardPen = 15;
constexpr double kCardRadius = 160;
constexpr double kBoxPen = 20;
constexpr double kBoxRadius = 50;
constexpr double kWritingLinePen = 20;
constexpr double kPicturePen = 20;

void drawText(QPainter& painter, const TextBox& text, const QColor& colour)
{
    if (text.text.isEmpty())
        return;
    painter.setFont(text.font);
    painter.setPen(colour);
    painter.drawText(text.box, text.flags | Qt::TextDontClip, text.text);
}

void outline(QPainter& painter, const QColor& colour, double width)
{
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawHeading(QPainter& painter, const Heading& h)
{
    outline(painter, screenBlue(), kFramePen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(h.frame, kFrameRadius, kFrameRadius);

    if (!h.tab.isEmpty()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(screenBlue());
        painter.drawRoundedRect(h.tab, kTabRadius, kTabRadius);
        drawText(painter, h.yearLabel, Qt::white);
    }
    if (!h.name.text.isEmpty()) {
        drawText(painter, h.name, ink());
        drawText(painter, h.date, ink());
        outline(painter, rule(), kRulePen);
        painter.drawLine(h.nameLine.topLeft(), h.nameLine.topRight());
        painter.drawLine(h.dateLine.topLeft(), h.dateLine.topRight());
    }
    drawText(painter, h.title, titleBlue());

    outline(painter, bandEdge(), kBandPen);
    painter.setBrush(bandFill());
    painter.drawRoundedRect(h.band, kBandRadius, kBandRadius);
    drawText(painter, h.instruction, ink());
    drawText(painter, h.footer, footerGrey());
}

void drawCard(QPainter& painter, const QRectF& card, const QRectF& disc, const TextBox& number)
{
    outline(painter, cardEdge(), kCardPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card, kCardRadius, kCardRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(screenBlue());
    painter.drawEllipse(disc);
    drawText(painter, number, Qt::white);
}

void drawQuestion(QPainter& painter, const QuestionCard& c, const Row& row)
{
    drawCard(painter, c.card, c.disc, c.number);
    drawText(painter, c.question, ink());
    if (!c.picture.isEmpty() && row.picture) {
        painter.save();
        painter.setClipRect(c.picture, Qt::IntersectClip);
        outline(painter, ink(), kPicturePen);
        painter.setBrush(Qt::NoBrush);
        row.picture(painter, c.picture);
        painter.restore();
    }
    if (c.room == AnswerRoom::Box) {
        outline(painter, ink(), kBoxPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(c.answer, kBoxRadius, kBoxRadius);
    } else {
        outline(painter, rule(), kWritingLinePen);
        painter.drawLine(c.answer.bottomLeft(), c.answer.bottomRight());
    }
    drawText(painter, c.unit, ink());
}

void drawAnswer(QPainter& painter, const AnswerCard& c)
{
    drawCard(painter, c.card, c.disc, c.number);
    drawText(painter, c.answer, titleBlue());
}

// Runs draw with the painter counting in twips from the sheet's corner.
void onSheet(Printer& p, const QRectF& sheet, const std::function<void(QPainter&)>& draw)
{
    p.paintWith(sheet, [&](QPainter& painter, const QRectF& device) {
        painter.translate(device.topLeft());
        painter.scale(device.width() / sheet.width(), device.height() / sheet.height());
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
    });
}

} // namespace

bool printGenerated(const Sheet& sheet, const QString& yearLabel)
{
    return printOrTell([&] {
        Printer& p = printer();
        p.Orientation = Printer::Portrait;
        const QRectF area(kSheetMargin, kSheetMargin, p.scaleWidth() - 2 * kSheetMargin,
                          p.scaleHeight() - 2 * kSheetMargin);
        const QuestionsPage questions = questionsPage(sheet, yearLabel, area.size());
        const AnswersPage answers = answersPage(sheet, yearLabel, area.size(), questions.columns);
        onSheet(p, area, [&](QPainter& painter) {
            drawHeading(painter, questions.heading);
            for (int i = 0; i < questions.cards.size(); ++i)
                drawQuestion(painter, questions.cards[i], sheet.rows[i]);
        });
        p.newPage();
        onSheet(p, area, [&](QPainter& painter) {
            drawHeading(painter, answers.heading);
            for (const AnswerCard& card : answers.cards)
                drawAnswer(painter, card);
        });
        p.endDoc();
    });
}

bool askAndPrintGenerated(const std::function<Sheet()>& make)
{
    if (MsgBox::show(QCoreApplication::translate("Worksheets", "Do you really want to print?"), MsgBox::Buttons::YesNo,
                     Module1::yearlabel)
        != MsgBox::Answer::Yes)
        return false;
    return printGenerated(make(), Module1::yearlabel);
}

} // namespace Worksheets
