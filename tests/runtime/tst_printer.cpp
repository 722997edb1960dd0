#include "runtime/printer.h"
#include "pdfsupport.h"

#include <QPainter>
#include <QPixmap>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QtTest>

using PdfSupport::Word;

namespace {

// The box round the pixels of one colour, in twips of the printable area.
QRectF twipsBox(const QImage& page, const QColor& colour, int dpi, double margin)
{
    QRect box;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            const QColor c = page.pixelColor(x, y);
            if (qAbs(c.red() - colour.red()) + qAbs(c.green() - colour.green()) + qAbs(c.blue() - colour.blue()) < 40)
                box |= QRect(x, y, 1, 1);
        }
    const double perPixel = 1440.0 / dpi;
    return QRectF(box.x() * perPixel - margin, box.y() * perPixel - margin, box.width() * perPixel,
                  box.height() * perPixel);
}

Word findWord(const QString& pdf, const QString& text)
{
    for (const Word& w : PdfSupport::words(pdf))
        if (w.text == text)
            return w;
    return Word{};
}

} // namespace

class TestPrinter : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    QString onlyFile()
    {
        const QStringList files = PdfSupport::files(m_dir.path());
        return files.size() == 1 ? files.first() : QString();
    }
    double margin() { return (PdfSupport::kPageWidthPt * 20 - printer().scaleWidth()) / 2; }
private slots:
    void init();
    void cleanup();
    void qbColorIsTheClassicPalette_data();
    void qbColorIsTheClassicPalette();
    void theScaleIsTheA4PrintableAreaInTwips();
    void linesPrintInOrderOneLineHeightApart();
    void centredTextIsCentredOnThePage_data();
    void centredTextIsCentredOnThePage();
    void eachDocumentIsAFileOfItsOwn();
    void linesAndTextShowTheirColour_data();
    void linesAndTextShowTheirColour();
    void picturesLandAtTheirPlaceAndSize();
    void anUncreatableFileFailsTheFirstDrawingThenRecovers_data();
    void anUncreatableFileFailsTheFirstDrawingThenRecovers();
    void withoutAPrinterTheFirstDrawingFails();
};

void TestPrinter::init()
{
    const QString tool = PdfSupport::missingTool();
    if (!tool.isEmpty())
        QSKIP(qPrintable(tool + " (poppler-utils) is not installed"));
    QVERIFY(m_dir.isValid());
    for (const QString& f : PdfSupport::files(m_dir.path()))
        QFile::remove(f);
    PrintTarget::setPdfFolder(m_dir.path());
    Printer& p = printer();
    p.FontName = "Times New Roman";
    p.FontSize = 12;
    p.FontBold = false;
    p.ForeColor = Qt::black;
    p.DrawWidth = 1;
}

void TestPrinter::cleanup()
{
    try {
        printer().endDoc();
    } catch (const PrinterError&) {
    }
}

void TestPrinter::qbColorIsTheClassicPalette_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QColor>("colour");
    const int rgb[16][3] = {{0, 0, 0},     {0, 0, 128},     {0, 128, 0},     {0, 128, 128},
                            {128, 0, 0},   {128, 0, 128},   {128, 128, 0},   {192, 192, 192},
                            {128, 128, 128}, {0, 0, 255},   {0, 255, 0},     {0, 255, 255},
                            {255, 0, 0},   {255, 0, 255},   {255, 255, 0},   {255, 255, 255}};
    for (int i = 0; i < 16; ++i)
        QTest::addRow("%d", i) << i << QColor(rgb[i][0], rgb[i][1], rgb[i][2]);
    QTest::newRow("below the palette") << -1 << QColor();
    QTest::newRow("above the palette") << 16 << QColor();
}

void TestPrinter::qbColorIsTheClassicPalette()
{
    QFETCH(int, index);
    QFETCH(QColor, colour);
    if (colour.isValid())
        QCOMPARE(QBColor(index), colour);
    else
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, QBColor(index));
}

void TestPrinter::theScaleIsTheA4PrintableAreaInTwips()
{
    Printer& p = printer();
    // A quarter-inch border all round; Qt rounds the page to whole points.
    QVERIFY(qAbs(p.scaleWidth() - (PdfSupport::kPageWidthPt - 36) * 20) < 10);
    QVERIFY(qAbs(p.scaleHeight() - (PdfSupport::kPageHeightPt - 36) * 20) < 10);
    p.FontSize = 25;
    const double line = p.textHeight();
    QVERIFY2(line > 25 * 20 && line < 25 * 20 * 1.3, qPrintable(QString::number(line)));
    const double wide = p.textWidth("Partitude");
    p.FontSize = 50;
    QVERIFY(qAbs(p.textWidth("Partitude") - 2 * wide) < 5);
    QVERIFY(qAbs(p.textHeight() - 2 * line) < 5);
    p.FontBold = true;
    QVERIFY(p.textWidth("Partitude") > 2 * wide);
    // Turning the paper before anything is drawn turns the page measured.
    const double portraitWidth = p.scaleWidth();
    p.Orientation = Printer::Landscape;
    QVERIFY(qAbs(p.scaleHeight() - portraitWidth) < 10);
    p.Orientation = Printer::Portrait;
    QVERIFY(qAbs(p.scaleWidth() - portraitWidth) < 10);
    p.endDoc(); // measuring alone prints nothing
    QVERIFY(!p.documentOpen());
    QVERIFY(PdfSupport::files(m_dir.path()).isEmpty());
}

void TestPrinter::linesPrintInOrderOneLineHeightApart()
{
    Printer& p = printer();
    const QStringList texts = {"Partitude", "Halves", "", "Excellent!", "Sam"};
    p.FontSize = 25;
    p.CurrentY = 600;
    QList<double> tops;
    for (const QString& text : texts) {
        p.CurrentX = 2000;
        const double before = p.CurrentY;
        tops << before;
        p.print(text);
        QVERIFY(p.documentOpen());
        QCOMPARE(p.CurrentX, 0.0);
        QCOMPARE(p.CurrentY, before + p.textHeight());
    }
    p.endDoc();
    const QString pdf = onlyFile();
    QCOMPARE(PdfSupport::lines(pdf), QStringList({"Partitude", "Halves", "Excellent!", "Sam"}));
    for (int i : {0, 1, 3, 4}) {
        const Word w = findWord(pdf, texts[i]);
        QVERIFY2(qAbs(w.box.left() * 20 - margin() - 2000) < 40, qPrintable(texts[i]));
        // The word's box reaches from a little above the letters' tops to the descent.
        QVERIFY2(qAbs(w.box.top() * 20 - margin() - tops[i]) < 60, qPrintable(texts[i]));
    }
}

void TestPrinter::centredTextIsCentredOnThePage_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<double>("size");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<QString>("text");
    QTest::newRow("title") << "Times New Roman" << 25.0 << false << "Partitude";
    QTest::newRow("headline") << "Times New Roman" << 28.0 << true << "Congratulations!!!";
    QTest::newRow("sentence") << "Arial" << 14.0 << false << "you have risen to the Challenge";
}

void TestPrinter::centredTextIsCentredOnThePage()
{
    QFETCH(QString, font);
    QFETCH(double, size);
    QFETCH(bool, bold);
    QFETCH(QString, text);
    Printer& p = printer();
    p.FontName = font;
    p.FontSize = size;
    p.FontBold = bold;
    const double width = p.textWidth(text);
    p.CurrentX = (p.scaleWidth() - width) / 2;
    p.CurrentY = 3000;
    p.print(text);
    p.endDoc();
    QRectF line;
    for (const Word& w : PdfSupport::words(onlyFile()))
        line |= w.box;
    QVERIFY2(qAbs(line.center().x() - PdfSupport::kPageWidthPt / 2) < 1.5, qPrintable(QString::number(line.center().x())));
    QVERIFY2(qAbs(line.width() * 20 - width) < 40, qPrintable(QString::number(line.width() * 20)));
}

void TestPrinter::eachDocumentIsAFileOfItsOwn()
{
    Printer& p = printer();
    p.print("First");
    p.endDoc();
    QVERIFY(!p.documentOpen());
    p.print(); // an empty line is enough to start the next document
    p.print("Second");
    p.endDoc();
    const QStringList files = PdfSupport::files(m_dir.path());
    QCOMPARE(files.size(), 2);
    QCOMPARE(PdfSupport::lines(files[0]), QStringList{"First"});
    QCOMPARE(PdfSupport::lines(files[1]), QStringList{"Second"});
    // The second document started again at the top of its page.
    QVERIFY(qAbs(findWord(files[1], "Second").box.top() - findWord(files[0], "First").box.top() -
                 p.textHeight() / 20) < 1);
}

void TestPrinter::linesAndTextShowTheirColour_data()
{
    QTest::addColumn<int>("index");
    for (int index : {0, 1, 4, 9, 12})
        QTest::addRow("QBColor(%d)", index) << index;
}

void TestPrinter::linesAndTextShowTheirColour()
{
    QFETCH(int, index);
    Printer& p = printer();
    p.ForeColor = QBColor(index);
    p.DrawWidth = 8;
    p.line(1000, 2000, 8000, 2000);
    QCOMPARE(p.CurrentX, 8000.0);
    QCOMPARE(p.CurrentY, 2000.0);
    p.ForeColor = QBColor(index == 12 ? 9 : 12); // text in another colour
    p.FontSize = 60;
    p.FontBold = true;
    p.CurrentX = 1000;
    p.CurrentY = 4000;
    p.print("HH");
    p.endDoc();
    const QImage page = PdfSupport::render(onlyFile(), 50);
    QVERIFY(!page.isNull());
    const QRectF drawn = twipsBox(page, QBColor(index), 50, margin());
    QVERIFY2(qAbs(drawn.left() - 1000) < 100 && qAbs(drawn.right() - 8000) < 100, qPrintable(QString::number(drawn.left())));
    QVERIFY2(qAbs(drawn.center().y() - 2000) < 40 && qAbs(drawn.height() - 120) < 60, qPrintable(QString::number(drawn.height())));
    const QRectF text = twipsBox(page, p.ForeColor, 50, margin());
    QVERIFY2(text.top() > 4000 && text.bottom() < 4000 + p.textHeight(), qPrintable(QString::number(text.top())));
    QVERIFY(qAbs(text.left() - 1000) < 200 && text.width() > 1000);
}

void TestPrinter::picturesLandAtTheirPlaceAndSize()
{
    Printer& p = printer();
    QImage green(60, 40, QImage::Format_RGB32);
    green.fill(QBColor(2));
    QPixmap blue(10, 10);
    blue.fill(QBColor(9));
    p.paintPicture(green, 1000, 1000);
    p.paintPicture(blue, 5000, 1000, 3000, 1500);
    QImage yellow(60, 40, QImage::Format_RGB32);
    yellow.fill(QBColor(14));
    p.paintPicture(yellow, p.scaleWidth() - 450, 14000); // half of it beyond the printable area
    QRectF given;
    p.paintWith(QRectF(1000, 4000, 2400, 1200), [&](QPainter& painter, const QRectF& r) {
        given = r;
        painter.fillRect(r, QBColor(13));
        painter.translate(r.width() * 3, 0); // undone after the drawing
        painter.scale(2, 2);
        painter.setOpacity(0.1);
    });
    QVERIFY(given.width() > 0 && qAbs(given.width() / given.height() - 2) < 1e-9);
    p.FontSize = 40;
    p.CurrentX = 1000;
    p.CurrentY = 8000;
    p.print("After");
    p.endDoc();
    const QString pdf = onlyFile();
    const QImage page = PdfSupport::render(pdf, 48); // a pixel is 30 twips
    const auto near = [](const QRectF& a, const QRectF& b) {
        return qAbs(a.left() - b.left()) < 45 && qAbs(a.top() - b.top()) < 45 && qAbs(a.width() - b.width()) < 60 &&
               qAbs(a.height() - b.height()) < 60;
    };
    QVERIFY(near(twipsBox(page, QBColor(2), 48, margin()), QRectF(1000, 1000, 900, 600)));
    QVERIFY(near(twipsBox(page, QBColor(14), 48, margin()), QRectF(p.scaleWidth() - 450, 14000, 450, 600)));
    QVERIFY(near(twipsBox(page, QBColor(9), 48, margin()), QRectF(5000, 1000, 3000, 1500)));
    QVERIFY(near(twipsBox(page, QBColor(13), 48, margin()), QRectF(1000, 4000, 2400, 1200)));
    const Word after = findWord(pdf, "After");
    QVERIFY(qAbs(after.box.left() * 20 - margin() - 1000) < 40);
    QVERIFY(qAbs(after.box.top() * 20 - margin() - 8000) < 60);
    QVERIFY(qAbs(twipsBox(page, Qt::black, 48, margin()).left() - 1000) < 90); // drawn at full strength
}

void TestPrinter::anUncreatableFileFailsTheFirstDrawingThenRecovers_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("the folder is a file") << "plain";
    QTest::newRow("the folder is inside a file") << "plain/inside";
}

void TestPrinter::anUncreatableFileFailsTheFirstDrawingThenRecovers()
{
    QFETCH(QString, folder);
    QTemporaryDir dir;
    QFile plain(dir.filePath("plain"));
    QVERIFY(plain.open(QIODevice::WriteOnly));
    plain.close();
    PrintTarget::setPdfFolder(dir.filePath(folder));
    Printer& p = printer();
    p.CurrentY = 1000;
    QVERIFY(p.scaleWidth() > 0); // measuring needs no file
    QVERIFY_THROWS_EXCEPTION(PrinterError, p.print("Lost"));
    QVERIFY(!p.documentOpen());
    QCOMPARE(p.CurrentY, 0.0);
    QVERIFY_THROWS_EXCEPTION(PrinterError, p.line(0, 0, 100, 100)); // tries again, fails again

    const QString fresh = dir.filePath("made/on/demand");
    PrintTarget::setPdfFolder(fresh);
    p.print("Found");
    p.endDoc();
    const QStringList files = PdfSupport::files(fresh);
    QCOMPARE(files.size(), 1);
    QCOMPARE(PdfSupport::lines(files[0]), QStringList{"Found"});
}

void TestPrinter::withoutAPrinterTheFirstDrawingFails()
{
    if (!QPrinterInfo::availablePrinters().isEmpty())
        QSKIP("A printer is installed: this would print a page on it");
    PrintTarget::setPdfFolder(QString());
    QVERIFY_THROWS_EXCEPTION(PrinterError, printer().print());
    QVERIFY(!printer().documentOpen());
    PrintTarget::setPdfFolder(m_dir.path());
    printer().print("Recovered");
    printer().endDoc();
    QCOMPARE(PdfSupport::lines(onlyFile()), QStringList{"Recovered"});
}

QTEST_MAIN(TestPrinter)
#include "tst_printer.moc"
