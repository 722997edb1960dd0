#include "pdfsupport.h"
#include "runtime/printer.h"
#include "testsupport.h"
#include "worksheets/generatedsheet.h"
#include "worksheets/sheetlayout.h"

#include <QPainter>
#include <QtTest>

using namespace Worksheets;
using PdfSupport::Word;
using Boxes = QList<QPair<QString, QRectF>>;
// A sheet, the paper it is laid out for, and the columns and picture scale expected.
struct Case { Worksheets::Sheet sheet; QSizeF size; int columns; bool picturesShrink; };
Q_DECLARE_METATYPE(Case)

namespace {
// The sheet's corner on the paper, in points (20 twips each): the page's quarter-inch border and its own half inch.
constexpr double kSheetCornerPt = 36;
constexpr double kTwipsPerPoint = 20;
constexpr int kDpi = 60;
const QColor kShaded(230, 90, 40);

// Shades the left three eighths of its rectangle.
void bar(QPainter& p, const QRectF& r)
{
    p.fillRect(QRectF(r.topLeft(), QSizeF(r.width() * 3 / 8, r.height())), kShaded);
    p.drawRect(r);
}

// Paints far beyond its rectangle, of which only the rectangle may show.
void spill(QPainter& p, const QRectF& r) { p.fillRect(r.adjusted(-20000, -20000, 20000, 20000), kShaded); }

Sheet mixedSheet()
{
    return Sheet{"Fractions of Amounts", "Write your answers in the boxes.",
                 {Row{"What is one half of 54?", "27"}, Row{"What fraction of the bar is shaded?", "3/8", bar, 700},
                  Row{"How much flour is one quarter of 160 g?", "40", {}, 0, "g"},
                  Row{"Sam has 48 marbles. He gives one half to his sister and one third of the rest to a friend. "
                      "How many does he keep?", "16"},
                  Row{"Change 17/6 to a mixed number.", "2 5/6"}, Row{"What is three quarters of 2 kilograms?", "1500", {}, 0, "g"},
                  Row{"How many parts of the bar are not shaded?", "five", bar, 800}, Row{"Write 0.7 as a fraction.", "7/10"},
                  Row{"What is 2/5 of 35?", "14"}, Row{"Which part of the picture is coloured?", "all of it", spill, 600},
                  Row{"A ribbon is 3 m long. How long is one tenth of it?", "0.3", {}, 0, "m"},
                  Row{"Put in order, smallest first: 3.45, 3.5, 3.405", "3.405, 3.45, 3.5"}}};
}

// A sheet of twelve questions made alike.
Sheet twelve(const QString& title, const QString& instruction, const std::function<Row(int)>& row)
{
    Sheet sheet{title, instruction, {}};
    for (int i = 1; i <= 12; ++i)
        sheet.rows << row(i);
    return sheet;
}

QSizeF sheetSize(double pageWidthPt = PdfSupport::kPageWidthPt, double pageHeightPt = PdfSupport::kPageHeightPt)
{
    return QSizeF(pageWidthPt - 2 * kSheetCornerPt, pageHeightPt - 2 * kSheetCornerPt) * kTwipsPerPoint;
}

// Where a rectangle of the sheet, in twips, is on the PDF page, in points.
QRectF onPage(const QRectF& twips)
{
    return QRectF(twips.topLeft() / kTwipsPerPoint + QPointF(kSheetCornerPt, kSheetCornerPt), twips.size() / kTwipsPerPoint);
}

// The words printed in a rectangle of the sheet, in the order printed.
QString wordsIn(const QList<Word>& page, const QRectF& twips)
{
    QStringList found;
    for (const Word& w : page)
        if (onPage(twips).adjusted(-1, -1, 1, 1).contains(w.box.center()))
            found << w.text;
    return found.join(' ');
}

// The first two boxes that run into each other or out of within, by name.
QString clash(const Boxes& boxes, const QRectF& within)
{
    for (int i = 0; i < boxes.size(); ++i) {
        if (!within.contains(boxes[i].second))
            return boxes[i].first + " is outside";
        for (int j = i + 1; j < boxes.size(); ++j)
            if (boxes[i].second.intersects(boxes[j].second))
                return boxes[i].first + " runs into " + boxes[j].first;
    }
    return QString();
}

Boxes headingBoxes(const Layout::Heading& h)
{
    Boxes boxes{{"title", h.title.box}, {"band", h.band}, {"footer", h.footer.box}, {"tab", h.tab}};
    if (!h.nameLine.isNull()) // the lines given some thickness
        boxes << qMakePair(QStringLiteral("Name"), h.name.box) << qMakePair(QStringLiteral("Date"), h.date.box)
              << qMakePair(QStringLiteral("Name line"), h.nameLine.adjusted(0, -1, 0, 1))
              << qMakePair(QStringLiteral("Date line"), h.dateLine.adjusted(0, -1, 0, 1));
    return boxes;
}
} // namespace

class TestGeneratedSheet : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        if (!PdfSupport::missingTool().isEmpty())
            QSKIP("poppler-utils is not installed");
        world.fresh();
        pdfs = world.printToPdf();
    }

    void cleanup() { PrintTarget::setPdfFolder(QString()); }

    void laidOutAndPrinted_data()
    {
        QTest::addColumn<Case>("layout");
        const QSizeF a4 = sheetSize(), letter = sheetSize(612, 792);
        QTest::newRow("short questions, pictures, units") << Case{mixedSheet(), a4, 2, false};
        QTest::newRow("short questions, Letter: shorter paper") << Case{mixedSheet(), letter, 2, true};
        QTest::newRow("long stories: one column") << Case{twelve("Fraction Stories", "Read each story and write the answer.",
            [](int i) { return Row{QStringLiteral("A baker made %1 buns for the school fair and sold one quarter of "
                                                  "them before lunch. How many buns were sold before lunch?").arg((i + 12) * 4),
                                   QString::number(i + 12), {}, 0, "buns"}; }), a4, 1, false};
        QTest::newRow("tall pictures") << Case{twelve("Shapes Everywhere", "Look at each shape.", [](int i) {
            return Row{QStringLiteral("What fraction of shape %1 is shaded?").arg(i), "3/8", bar, 2000};
        }), a4, 2, true};
        QTest::newRow("long answers, long title and instruction")
            << Case{twelve("Ordering Decimal Numbers and Putting Them in Order of Their Size",
                           "Write the numbers in order, smallest first. Take care with the numbers that have two or three "
                           "decimal places, and check your answers when you have finished.",
                           [](int i) { return Row{QStringLiteral("4.%1, 4.05, 4.501, 4.5").arg(i),
                                                  QStringLiteral("4.05, 4.5, 4.501, 4.%1").arg(i)}; }), a4, 1, false};
    }

    // On A4, the printer's paper, every text is also printed in its place.
    void laidOutAndPrinted()
    {
        QFETCH(Case, layout);
        const auto& [sheet, size, columns, picturesShrink] = layout;
        const QString yearLabel = QStringLiteral("Year 4");
        const Layout::QuestionsPage questions = Layout::questionsPage(sheet, yearLabel, size);
        const Layout::AnswersPage answers = Layout::answersPage(sheet, yearLabel, size, columns);
        QVERIFY(questions.columns == columns && (questions.pictureScale < 1) == picturesShrink);
        QVERIFY(questions.cards.size() == sheet.rows.size() && answers.cards.size() == sheet.rows.size());
        QVERIFY(questions.heading.band.contains(questions.heading.instruction.box));
        const QRectF inFrame = questions.heading.frame.adjusted(1, 1, -1, -1);
        constexpr double kRounding = 0.5; // twips lost adding up the cards' heights
        const QRectF content(inFrame.left(), questions.heading.contentTop - kRounding, inFrame.width(),
                             questions.heading.contentBottom - questions.heading.contentTop + 2 * kRounding);
        Boxes onFront = headingBoxes(questions.heading), onBack = headingBoxes(answers.heading);
        for (int i = 0; i < sheet.rows.size(); ++i) {
            const Layout::QuestionCard& c = questions.cards[i];
            const Layout::AnswerCard& a = answers.cards[i];
            const QString name = QStringLiteral("card %1").arg(i + 1);
            QVERIFY2(content.contains(c.card), qPrintable(name));
            Boxes parts{{"disc", c.disc}, {"question", c.question.box}, {"answer", c.answer}};
            if (sheet.rows[i].picture)
                parts << qMakePair(QStringLiteral("picture"), c.picture);
            if (!sheet.rows[i].answerUnit.isEmpty())
                parts << qMakePair(QStringLiteral("unit"), c.unit.box);
            const QString problem = clash(parts, c.card) + clash({{"disc", a.disc}, {"answer", a.answer.box}}, a.card);
            QVERIFY2(problem.isEmpty(), qPrintable(name + ": " + problem));
            QCOMPARE(c.picture.height(), sheet.rows[i].pictureHeight * questions.pictureScale);
            onFront << qMakePair(name, c.card);
            onBack << qMakePair(name, a.card);
        }
        const QString problem = clash(onFront, inFrame) + clash(onBack, inFrame);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        if (size != sheetSize())
            return;

        QVERIFY(printGenerated(sheet, yearLabel) && world.messages.isEmpty());
        const QStringList files = PdfSupport::files(pdfs);
        QCOMPARE(files.size(), 1);
        const QList<QStringList> pages = PdfSupport::pages(files[0]);
        QCOMPARE(pages.size(), 2);
        const QList<Word> front = PdfSupport::words(files[0], 1), back = PdfSupport::words(files[0], 2);
        for (const auto& [words, h] : {std::pair(front, questions.heading), std::pair(back, answers.heading)}) {
            QCOMPARE(wordsIn(words, h.title.box), sheet.title);
            QCOMPARE(wordsIn(words, h.tab), yearLabel);
            QCOMPARE(wordsIn(words, h.footer.box), QStringLiteral("Partitude - fractions for ages 6 to 11"));
        }
        const Layout::Heading& h = questions.heading;
        QCOMPARE(wordsIn(front, h.name.box) + wordsIn(front, h.date.box), QStringLiteral("NameDate"));
        QCOMPARE(wordsIn(front, h.instruction.box) + '|' + wordsIn(back, answers.heading.instruction.box), sheet.instruction + "|Answers");
        QVERIFY(!pages[1].join(' ').contains("Name"));
        const QImage page = PdfSupport::render(files[0], kDpi);
        QList<QRectF> places; // the pictures' on the rendered page, a pixel spare all round
        for (int i = 0; i < sheet.rows.size(); ++i) {
            const Row& r = sheet.rows[i];
            const Layout::QuestionCard& c = questions.cards[i];
            const QString n = QString::number(i + 1), given = r.answerUnit.isEmpty() ? r.answer : r.answer + ' ' + r.answerUnit;
            QCOMPARE(QStringList({wordsIn(front, c.disc), wordsIn(front, c.question.box), wordsIn(front, c.unit.box),
                                  wordsIn(back, answers.cards[i].disc), wordsIn(back, answers.cards[i].answer.box)}),
                     QStringList({n, r.question, r.answerUnit, n, given}));
            // No answer among the questions, as a whole and not inside a longer number.
            const QRegularExpression answer(QStringLiteral("(?<![\\w./])") + QRegularExpression::escape(r.answer)
                                            + QStringLiteral("(?![\\w/]|\\.\\d)"));
            QVERIFY2(!pages[0].join(' ').contains(answer), qPrintable(r.answer));
            if (r.picture) {
                const QRectF place = onPage(c.picture);
                places << QRectF(place.topLeft() * kDpi / 72, place.size() * kDpi / 72).adjusted(-1, -1, 1, 1);
                // Every picture here paints its left side.
                const QPointF left(place.left() + place.width() / 8, place.center().y());
                QCOMPARE(page.pixelColor((left * kDpi / 72).toPoint()), kShaded);
            }
        }
        // The pictures' colour only in their places, however far they paint.
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x) {
                const QColor c = page.pixelColor(x, y);
                const int off = qAbs(c.red() - kShaded.red()) + qAbs(c.green() - kShaded.green()) + qAbs(c.blue() - kShaded.blue());
                const auto in = [&](const QRectF& r) { return r.contains(x + 0.5, y + 0.5); };
                QVERIFY2(off >= 30 || std::any_of(places.begin(), places.end(), in),
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
    }

    void printsOnlyWhenAskedAndTells_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("printerWorks");
        QTest::newRow("yes") << true << true;
        QTest::newRow("no") << false << true;
        QTest::newRow("yes, the printer fails") << true << false;
    }

    // No questions are drawn for a sheet not printed; a failing printer is told, the next sheet prints once it is back.
    void printsOnlyWhenAskedAndTells()
    {
        QFETCH(bool, yes);
        QFETCH(bool, printerWorks);
        Module1::yearlabel = QStringLiteral("Unit 2");
        world.answer = yes ? MsgBox::Answer::Yes : MsgBox::Answer::No;
        if (!printerWorks)
            world.printToPdf(true);
        int made = 0;
        QCOMPARE(askAndPrintGenerated([&made] { return ++made, mixedSheet(); }), yes && printerWorks);
        QCOMPARE(made, yes ? 1 : 0);
        QStringList told;
        for (const MsgBox::Request& m : std::as_const(world.messages))
            told << m.text + (m.buttons == MsgBox::Buttons::YesNo ? " (Yes, No: " + m.title + ")" : QString());
        QStringList expected{"Do you really want to print? (Yes, No: Unit 2)"};
        if (!printerWorks) {
            expected << "There was a problem printing to your printer.";
            PrintTarget::setPdfFolder(pdfs);
            QVERIFY(printGenerated(mixedSheet(), Module1::yearlabel));
        }
        QCOMPARE(told, expected);
        const QStringList files = PdfSupport::files(pdfs);
        QCOMPARE(files.size(), yes ? 1 : 0);
        if (yes)
            QCOMPARE(PdfSupport::pages(files[0]).value(1).value(0), Module1::yearlabel);
    }

private:
    TestSupport::World world;
    QString pdfs;
};

QTEST_MAIN(TestGeneratedSheet)
#include "tst_generatedsheet.moc"
