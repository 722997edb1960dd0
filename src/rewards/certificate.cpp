// The printed certificate: a landscape page with a banner, the product's
// name, the activity, the headline and the child's name, inside a framed
// border of 32 lines.
#include "welldone.h"

#include "runtime/msgbox.h"
#include "runtime/printer.h"
#include "shell/module1.h"

#include <QDate>
#include <QLineEdit>
#include <QLocale>

namespace {
const QString kTimes = QStringLiteral("Times New Roman");

constexpr double kBannerPoints = 25;
constexpr double kProductPoints = 36;
constexpr double kTitlePoints = 28;
constexpr double kSmallestTitlePoints = 14;
constexpr double kWordsPoints = 28;

// The frame: outer and inner borders, the inset of the ornaments and the
// half lengths of the inner rules.
constexpr double kOuterInset = 270;
constexpr double kInnerInset = 600;
constexpr double kRuleHalfWidth = 7050;
constexpr double kRuleHalfHeight = 3750;
constexpr double kOrnament = 315;

// Palette indexes of the certificate's colours.
constexpr int kBlack = 0;
constexpr int kBlue = 1;
constexpr int kLightBlue = 9;
constexpr int kLightRed = 12;

void useFont(Printer& p, int colour, double points = 0)
{
    p.ForeColor = QBColor(colour);
    p.FontName = kTimes;
    p.FontBold = true;
    if (points > 0)
        p.FontSize = points;
}

void blankLines(Printer& p, int count)
{
    for (int i = 0; i < count; ++i)
        p.print();
}

void centred(Printer& p, const QString& text)
{
    p.CurrentX = (p.scaleWidth() - p.textWidth(text)) / 2;
    p.print(text);
}

// The activity's title prints at 28 points when it fits between the inner
// rules; a longer title steps down until it does.
double titleSize(Printer& p, const QString& title)
{
    const double room = p.scaleWidth() - 2 * (kInnerInset + kOrnament) - 2 * kOrnament;
    const double saved = p.FontSize;
    double points = kTitlePoints;
    for (; points > kSmallestTitlePoints; points -= 2) {
        p.FontSize = points;
        if (p.textWidth(title) <= room)
            break;
    }
    p.FontSize = saved;
    return points;
}

// Two rectangles, four rules between them and an ornament in each corner:
// 32 lines.
void drawFrame(Printer& p)
{
    const double w = p.scaleWidth();
    const double h = p.scaleHeight();
    auto box = [&p](double left, double top, double right, double bottom) {
        p.line(left, top, right, top);
        p.line(right, top, right, bottom);
        p.line(right, bottom, left, bottom);
        p.line(left, bottom, left, top);
    };
    box(kOuterInset, kOuterInset, w - kOuterInset, h - kOuterInset);
    box(kInnerInset, kInnerInset, w - kInnerInset, h - kInnerInset);

    const double rule = kInnerInset + kOrnament;
    const double halfWidth = std::min(kRuleHalfWidth, w / 2 - rule - kOrnament);
    const double halfHeight = std::min(kRuleHalfHeight, h / 2 - rule - kOrnament);
    p.line(w / 2 - halfWidth, rule, w / 2 + halfWidth, rule);
    p.line(w / 2 - halfWidth, h - rule, w / 2 + halfWidth, h - rule);
    p.line(rule, h / 2 - halfHeight, rule, h / 2 + halfHeight);
    p.line(w - rule, h / 2 - halfHeight, w - rule, h / 2 + halfHeight);

    // Each corner: a small square between the borders and a line from the
    // outer corner through it to the inner one.
    for (const auto& [x, y, sx, sy] : {std::tuple{0.0, 0.0, 1, 1}, std::tuple{w, 0.0, -1, 1},
                                       std::tuple{0.0, h, 1, -1}, std::tuple{w, h, -1, -1}}) {
        const double ax = x + sx * kOuterInset;
        const double ay = y + sy * kOuterInset;
        const double bx = x + sx * (kOuterInset + kOrnament);
        const double by = y + sy * (kOuterInset + kOrnament);
        box(std::min(ax, bx), std::min(ay, by), std::max(ax, bx), std::max(ay, by));
        p.line(bx, by, x + sx * kInnerInset, y + sy * kInnerInset);
    }
}
} // namespace

void Welldone::printcertificate()
{
    try {
        const bool practice = Module1::challenge == 0;
        const QString product = QStringLiteral("Partitude");
        const QString headline = practice ? tr("Excellent!") : tr("Congratulations!!!");
        const QString sentence = practice ? tr("you have completed the work successfully")
                                          : tr("you have risen to the Challenge");
        const QString name = Text1->text();
        // The date is written in the language the certificate is printed in.
        //: The locale whose month names and date order the certificate uses.
        const QString when = QLocale(tr("en_GB")).toString(QDate::currentDate(), tr("d MMMM yyyy"));
        const QString underTitle = Module1::yearlabel.isEmpty() ? when : Module1::yearlabel + QStringLiteral("   ") + when;

        Printer& p = printer();
        p.Orientation = Printer::Landscape;
        // The words start inside the frame's inner border.
        p.CurrentX = 0;
        p.CurrentY = kInnerInset;

        useFont(p, kLightBlue, kBannerPoints);
        p.print(QStringLiteral(" "));
        for (int i = 0; i < 2; ++i) {
            p.CurrentX = p.scaleWidth() / 8;
            p.print(banner());
        }
        blankLines(p, 1);

        useFont(p, kLightRed, kProductPoints);
        centred(p, product);
        blankLines(p, 1);

        useFont(p, kLightBlue);
        p.FontSize = titleSize(p, Module1::activitytitle);
        centred(p, Module1::activitytitle);
        p.FontSize = kTitlePoints;
        centred(p, underTitle);
        blankLines(p, 1);

        useFont(p, kBlue, kWordsPoints);
        centred(p, headline);
        blankLines(p, 1);
        centred(p, name);
        centred(p, QString(24, QLatin1Char('_')));
        centred(p, sentence);
        blankLines(p, 1);

        useFont(p, kLightBlue, kBannerPoints);
        blankLines(p, 1);

        p.ForeColor = QBColor(kBlack);
        drawFrame(p);
        p.endDoc();
    } catch (const PrintCancelled&) {
        throw; // the caller says the printing was cancelled
    } catch (...) {
        MsgBox::show(tr("There was a problem printing to your printer."));
    }
}
