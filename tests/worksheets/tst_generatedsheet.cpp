#include "pdfsupport.h"
#include "runtime/printer.h"
#include "testsupport.h"
#include "worksheets/generatedsheet.h"
#include "worksheets/sheetlayout.h"

#include <QPainter>
#include <QtTest>

using namespace Worksheets;
using PdfSupport::Word;
Q_DECLARE_METATYPE(Worksheets::Sheet)

namespace {

// The sheet's corner on the paper, in points: the PDF page's quarter-inch
// border and the sheet's own half inch.
constexpr double kSheetCornerPt = 36;
const QColor kShaded(230, 90, 40);
using Picture = std::function<void(QPainter&, const QRectF&)>;

Row row(const QString& question, const QString& answer, const QString& unit = {}, double height = 0,
        Picture picture = {})
{
    return Row{question, answer, std::move(picture), height, unit};
}

// A bar of eight parts with three shaded, in the middle of its rectangle.
void bar(QPainter& p, const QRectF& r)
{
    const QRectF whole(r.center().x() - 1800, r.top() + 100, 3600, r.height() - 200);
    p.fillRect(QRectF(whole.topLeft(), QSizeF(whole.width() * 3 / 8, whole.height())), kShaded);
    for (int i = 1; i < 8; ++i)
        p.drawLine(QPointF(whole.left() + whole.width() * i / 8, whole.top()),
                   QPointF(whole.left() + whole.width() * i / 8, whole.bottom()));
    p.drawRect(whole);
}

// Paints far beyond its rectangle, of which only the rectangle may show.
void spill(QPainter& p, const QRectF& r)
{
    p.fillRect(r.adjusted(-20000, -20000, 20000, 20000), kShaded);
}

Sheet mixedSheet()
{
    return Sheet{"Fractions of Amounts", "Write your answers in the boxes.",
                 {row("What is one half of 54?", "27"),
                  row("What fraction of the bar is shaded?", "3/8", {}, 700, bar),
                  row("How much flour is one quarter of 160 g?", "40", "g"),
                  row("Sam has 48 marbles. He gives one half to his sister and one third of the rest to a friend. "
                      "How many does he keep?", "16"),
                  row("Change 17/6 to a mixed number.", "2 5/6"),
                  row("What is three quarters of 2 kilograms?", "1500", "g"),
                  row("How many parts of the bar are not shaded?", "five", {}, 800, bar),
                  row("Write 0.7 as a fraction.", "7/10"),
                  row("What is 2/5 of 35?", "14"),
                  row("Which part of the picture is coloured?", "all of it", {}, 600, spill),
                  row("A ribbon is 3 m long. How long is one tenth of it?", "0.3", "m"),
                  row("Put in order, smallest first: 3.45, 3.5, 3.405", "3.405, 3.45, 3.5")}};
}

// Stories too long for half the page's width.
Sheet wordySheet()
{
    Sheet sheet{"Fraction Stories", "Read each story and write the answer.", {}};
    for (int i = 13; i <= 24; ++i)
        sheet.rows << row(QStringLiteral("A baker made %1 buns for the school fair and sold one quarter of them "
                                         "before lunch. How many buns were sold before lunch?").arg(i * 4),
                          QString::number(i), "buns");
    return sheet;
}

Sheet crowdedSheet()
{
    Sheet sheet{"Shapes Everywhere", "Look at each shape.", {}};
    for (int i = 1; i <= 12; ++i)
        sheet.rows << row(QStringLiteral("What fraction of shape %1 is shaded?").arg(i), "3/8", {}, 2000, bar);
    return sheet;
}

Sheet orderingSheet()
{
    Sheet sheet{"Ordering Decimal Numbers and Putting Them in Order of Their Size",
                "Write the numbers in order, smallest first. Take care with the numbers that have two or three "
                "decimal places, and check your answers when you have finished.", {}};
    for (int i = 1; i <= 12; ++i)
        sheet.rows << row(QStringLiteral("4.%1, 4.05, 4.501, 4.5").arg(i), QStringLiteral("4.05, 4.5, 4.501, 4.%1").arg(i));
    return sheet;
}

QSizeF sheetSize(double pageWidthPt = PdfSupport::kPageWidthPt, double pageHeightPt = PdfSupport::kPageHeightPt)
{
    return QSizeF(pageWidthPt - 2 * kSheetCornerPt, pageHeightPt - 2 * kSheetCornerPt) * 20;
}

// Whether the answer stands in the text as a whole, not inside a longer number.
bool holds(const QString& text, const QString& answer)
{
    return text.contains(QRegularExpression(
        QStringLiteral("(?<![\\w./])%1(?![\\w/]|\\.\\d)").arg(QRegularExpression::escape(answer))));
}

// The words of text as they stand on the page, or none: one after the other
// on a line, wrapped lines starting under the first word. The card beside
// puts its words between them in reading order.
QList<Word> find(const QList<Word>& words, const QString& text)
{
    const QStringList wanted = text.split(QLatin1Char(' '));
    for (int start = 0; start < words.size(); ++start) {
        QList<Word> found;
        for (int k = start; k < words.size() && found.size() < wanted.size(); ++k) {
            const QRectF w = words[k].box, last = found.isEmpty() ? w : found.last().box;
            const bool next = qAbs(w.top() - last.top()) < 1 && w.left() > last.right() - 1
                              && w.left() - last.right() < last.height();
            const bool below = w.top() > last.top() + 1 && w.top() < last.bottom() + last.height()
                               && qAbs(w.left() - found.first().box.left()) < 1;
            if (!found.isEmpty() && !next && !below)
                continue;
            if (words[k].text != wanted[found.size()])
                break;
            found << words[k];
        }
        if (found.size() == wanted.size())
            return found;
    }
    return {};
}

// The number in the disc left of a word, on its line.
QString numberBefore(const QList<Word>& words, const Word& word)
{
    const Word* nearest = nullptr;
    for (const Word& w : words)
        if (qAbs(w.box.center().y() - word.box.center().y()) < word.box.height() / 2 && w.box.right() < word.box.left()
            && (!nearest || w.box.right() > nearest->box.right()))
            nearest = &w;
    return nearest ? nearest->text : QString();
}

// The first two boxes that run into each other or out of within, by name.
QString clash(const QList<QPair<QString, QRectF>>& boxes, const QRectF& within)
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

QList<QPair<QString, QRectF>> headingBoxes(const Layout::Heading& h)
{
    QList<QPair<QString, QRectF>> boxes{{"title", h.title.box}, {"band", h.band}, {"footer", h.footer.box}};
    if (!h.tab.isNull())
        boxes << qMakePair(QStringLiteral("tab"), h.tab);
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
    void init();
    void cleanup() { PrintTarget::setPdfFolder(QString()); }
    void printsQuestionsThenAnswers_data();
    void printsQuestionsThenAnswers();
    void everythingStaysInsideAndApart_data();
    void everythingStaysInsideAndApart();
    void picturesKeepToTheirPlace();
    void printsOnlyWhenTheAnswerIsYes_data();
    void printsOnlyWhenTheAnswerIsYes();
    void aFailingPrinterIsTold();

private:
    TestSupport::World world;
    std::unique_ptr<QTemporaryDir> pdfs;
};

void TestGeneratedSheet::init()
{
    if (!PdfSupport::missingTool().isEmpty())
        QSKIP("poppler-utils is not installed");
    world.fresh();
    pdfs = std::make_unique<QTemporaryDir>();
    PrintTarget::setPdfFolder(pdfs->path());
}

void TestGeneratedSheet::printsQuestionsThenAnswers_data()
{
    QTest::addColumn<Sheet>("sheet");
    QTest::addColumn<QString>("yearLabel");
    QTest::newRow("short questions, pictures, units: two columns") << mixedSheet() << "Year 4";
    QTest::newRow("long stories: one column") << wordySheet() << "Unit 3";
}

void TestGeneratedSheet::printsQuestionsThenAnswers()
{
    QFETCH(Sheet, sheet);
    QFETCH(QString, yearLabel);
    QVERIFY(printGenerated(sheet, yearLabel));
    QVERIFY(world.messages.isEmpty());
    const QStringList files = PdfSupport::files(pdfs->path());
    QCOMPARE(files.size(), 1);
    const QList<QStringList> pages = PdfSupport::pages(files[0]);
    QCOMPARE(pages.size(), 2);
    const QString questions = pages[0].join(' '), answers = pages[1].join(' ');
    for (const QString& text : {sheet.title, yearLabel, QStringLiteral("Name"), QStringLiteral("Date"), sheet.instruction})
        QVERIFY2(questions.contains(text), qPrintable(text));
    for (const QString& text : {sheet.title, yearLabel, QStringLiteral("Answers")})
        QVERIFY2(answers.contains(text), qPrintable(text));
    QVERIFY(!questions.contains("Answers") && !answers.contains("Name"));

    // Each question and each answer under its own number.
    const QList<Word> front = PdfSupport::words(files[0], 1), back = PdfSupport::words(files[0], 2);
    QList<QList<Word>> asked;
    for (int i = 0; i < sheet.rows.size(); ++i) {
        const Row& r = sheet.rows[i];
        asked << find(front, r.question);
        QVERIFY2(!asked.last().isEmpty(), qPrintable(r.question));
        QCOMPARE(numberBefore(front, asked.last().first()), QString::number(i + 1));
        QVERIFY2(!holds(questions, r.answer), qPrintable(r.answer));
        QVERIFY(r.answerUnit.isEmpty() || holds(questions, r.answerUnit)); // after the answer box
        const QList<Word> given = find(back, QStringList{r.answer, r.answerUnit}.join(' ').trimmed());
        QVERIFY2(!given.isEmpty(), qPrintable(r.answer));
        QCOMPARE(numberBefore(back, given.first()), QString::number(i + 1));
    }
    // The longest question wraps.
    const auto longest = std::max_element(asked.begin(), asked.end(), [](auto& a, auto& b) { return a.size() < b.size(); });
    QVERIFY(longest->last().box.top() > longest->first().box.bottom());

    // Every word is on the sheet, and no two words run into each other.
    const QRectF onSheet(QPointF(kSheetCornerPt, kSheetCornerPt), sheetSize() / 20);
    for (const QList<Word>& page : {front, back})
        for (int i = 0; i < page.size(); ++i) {
            QVERIFY2(onSheet.contains(page[i].box), qPrintable(page[i].text));
            for (int j = i + 1; j < page.size(); ++j) {
                const QRectF both = page[i].box.intersected(page[j].box);
                QVERIFY2(both.width() < 0.5 || both.height() < 0.5, qPrintable(page[i].text + " / " + page[j].text));
            }
        }
}

void TestGeneratedSheet::everythingStaysInsideAndApart_data()
{
    QTest::addColumn<Sheet>("sheet");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("picturesShrink");
    const QSizeF a4 = sheetSize(), letter = sheetSize(612, 792);
    QTest::newRow("short questions, A4") << mixedSheet() << a4 << 2 << false;
    QTest::newRow("short questions, Letter: shorter paper") << mixedSheet() << letter << 2 << true;
    QTest::newRow("long stories, Letter") << wordySheet() << letter << 1 << false;
    QTest::newRow("tall pictures") << crowdedSheet() << a4 << 2 << true;
    QTest::newRow("long answers, long title and instruction") << orderingSheet() << a4 << 1 << false;
}

void TestGeneratedSheet::everythingStaysInsideAndApart()
{
    QFETCH(Sheet, sheet);
    QFETCH(QSizeF, size);
    QFETCH(int, columns);
    QFETCH(bool, picturesShrink);
    const Layout::QuestionsPage questions = Layout::questionsPage(sheet, "Year 6", size);
    QCOMPARE(questions.columns, columns);
    QCOMPARE(questions.pictureScale < 1, picturesShrink);
    const Layout::AnswersPage answers = Layout::answersPage(sheet, "Year 6", size, columns);
    QCOMPARE(questions.cards.size(), sheet.rows.size());
    QCOMPARE(answers.cards.size(), sheet.rows.size());
    QVERIFY(questions.heading.band.contains(questions.heading.instruction.box));

    const QRectF inFrame = questions.heading.frame.adjusted(1, 1, -1, -1);
    constexpr double kRounding = 0.5; // twips lost adding up the cards' heights
    const QRectF content(inFrame.left(), questions.heading.contentTop - kRounding, inFrame.width(),
                         questions.heading.contentBottom - questions.heading.contentTop + 2 * kRounding);
    auto front = headingBoxes(questions.heading), back = headingBoxes(answers.heading);
    for (int i = 0; i < sheet.rows.size(); ++i) {
        const Layout::QuestionCard& c = questions.cards[i];
        const QString name = QStringLiteral("card %1").arg(i + 1);
        QVERIFY2(content.contains(c.card), qPrintable(name));
        front << qMakePair(name, c.card);
        QList<QPair<QString, QRectF>> parts{{"disc", c.disc}, {"question", c.question.box}, {"answer", c.answer}};
        if (sheet.rows[i].picture)
            parts << qMakePair(QStringLiteral("picture"), c.picture);
        if (!sheet.rows[i].answerUnit.isEmpty())
            parts << qMakePair(QStringLiteral("unit"), c.unit.box);
        QString problem = clash(parts, c.card);
        QVERIFY2(problem.isEmpty(), qPrintable(name + ": " + problem));
        QCOMPARE(c.picture.height(), sheet.rows[i].pictureHeight * questions.pictureScale);

        const Layout::AnswerCard& a = answers.cards[i];
        back << qMakePair("answer " + name, a.card);
        problem = clash({{"disc", a.disc}, {"answer", a.answer.box}}, a.card);
        QVERIFY2(problem.isEmpty(), qPrintable("answer " + name + ": " + problem));
    }
    QString problem = clash(front, inFrame);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = clash(back, inFrame);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestGeneratedSheet::picturesKeepToTheirPlace()
{
    const Sheet sheet = mixedSheet();
    QVERIFY(printGenerated(sheet, "Year 4"));
    constexpr int kDpi = 60;
    const QImage page = PdfSupport::render(PdfSupport::files(pdfs->path()).value(0), kDpi);
    QVERIFY(!page.isNull());
    // Where the layout put the pictures, on the rendered page, a pixel spare all round.
    const auto plan = Layout::questionsPage(sheet, "Year 4", sheetSize());
    QList<QRectF> places;
    for (const Layout::QuestionCard& c : plan.cards)
        if (!c.picture.isNull())
            places << QRectF((c.picture.topLeft() / 20 + QPointF(kSheetCornerPt, kSheetCornerPt)) * kDpi / 72,
                             c.picture.size() / 20 * kDpi / 72).adjusted(-1, -1, 1, 1);
    QCOMPARE(places.size(), 3);
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            const QColor c = page.pixelColor(x, y);
            if (qAbs(c.red() - kShaded.red()) + qAbs(c.green() - kShaded.green()) + qAbs(c.blue() - kShaded.blue()) < 30)
                QVERIFY2(std::any_of(places.begin(), places.end(),
                                     [&](const QRectF& r) { return r.contains(x + 0.5, y + 0.5); }),
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
        }
    // The picture that paints everywhere fills its own place.
    const QRectF spilled = places[2].adjusted(2, 2, -2, -2);
    for (const QPointF& p : {spilled.topLeft(), spilled.center(), spilled.bottomRight()})
        QCOMPARE(page.pixelColor(p.toPoint()), kShaded);
}

void TestGeneratedSheet::printsOnlyWhenTheAnswerIsYes_data()
{
    QTest::addColumn<bool>("yes");
    QTest::addColumn<QString>("yearLabel");
    QTest::newRow("yes") << true << "Year 3";
    QTest::newRow("yes, secondary edition") << true << "Unit 2";
    QTest::newRow("no") << false << "Year 3";
}

void TestGeneratedSheet::printsOnlyWhenTheAnswerIsYes()
{
    QFETCH(bool, yes);
    QFETCH(QString, yearLabel);
    Module1::yearlabel = yearLabel;
    world.answer = yes ? MsgBox::Answer::Yes : MsgBox::Answer::No;
    int made = 0;
    QCOMPARE(askAndPrintGenerated([&made] { return ++made, mixedSheet(); }), yes);
    QCOMPARE(made, yes ? 1 : 0); // no questions are drawn for a sheet that is not printed
    QCOMPARE(world.messages.size(), 1);
    QCOMPARE(world.messages[0].text, QStringLiteral("Do you really want to print?"));
    QCOMPARE(world.messages[0].title, yearLabel);
    QCOMPARE(world.messages[0].buttons, MsgBox::Buttons::YesNo);
    const QStringList files = PdfSupport::files(pdfs->path());
    QCOMPARE(files.size(), yes ? 1 : 0);
    if (yes)
        QCOMPARE(PdfSupport::pages(files[0]).value(1).value(0), yearLabel);
}

void TestGeneratedSheet::aFailingPrinterIsTold()
{
    const QString blocked = pdfs->filePath("blocked");
    TestSupport::writeBytes(blocked, "not a folder");
    PrintTarget::setPdfFolder(blocked);
    world.answer = MsgBox::Answer::Yes;
    QVERIFY(!askAndPrintGenerated(mixedSheet));
    QCOMPARE(world.messages.size(), 2);
    QCOMPARE(world.messages[1].text, QStringLiteral("There was a problem printing to your printer."));
    QCOMPARE(world.messages[1].buttons, MsgBox::Buttons::Ok);
    // Once the printer is back the next sheet prints.
    PrintTarget::setPdfFolder(pdfs->path());
    QVERIFY(printGenerated(mixedSheet(), "Year 5"));
    QCOMPARE(PdfSupport::pages(PdfSupport::files(pdfs->path()).value(0)).size(), 2);
}

QTEST_MAIN(TestGeneratedSheet)
#include "tst_generatedsheet.moc"
