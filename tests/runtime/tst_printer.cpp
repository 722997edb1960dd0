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
    // Whether a word's box starts at a point of the printable area, in twips; the box reaches from a
    // little above the letters' tops.
    bool startsAt(const Word& w, double x, double y)
    {
        return qAbs(w.box.left() * 20 - margin() - x) < 40 && qAbs(w.box.top() * 20 - margin() - y) < 60;
    }
private slots:
    void init()
    {
        if (const QString tool = PdfSupport::missingTool(); !tool.isEmpty())
            QSKIP(qPrintable(tool + " (poppler-utils) is not installed"));
        for (const QString& f : PdfSupport::files(m_dir.path()))
            QFile::remove(f);
        PrintTarget::setPdfFolder(m_dir.path());
        Printer& p = printer();
        p.FontName = "Times New Roman", p.FontSize = 12, p.FontBold = false;
        p.ForeColor = Qt::black, p.DrawWidth = 1, p.Orientation = Printer::Portrait;
    }

    void cleanup()
    {
        try { printer().endDoc(); } catch (const PrinterError&) {}
    }

    void qbColorIsTheClassicPalette()
    {
        const QRgb palette[16] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
                                  0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
        for (int i = 0; i < 16; ++i)
            QCOMPARE(QBColor(i), QColor(palette[i]));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, QBColor(-1));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, QBColor(16));
    }

    void thePageIsA4InsideItsBorderAndTurnsWithThePaper()
    {
        Printer& p = printer();
        // A quarter-inch border all round; Qt rounds the page to whole points.
        const double portraitWidth = p.scaleWidth();
        QVERIFY(qAbs(portraitWidth - (PdfSupport::kPageWidthPt - 36) * 20) < 10
                && qAbs(p.scaleHeight() - (PdfSupport::kPageHeightPt - 36) * 20) < 10);
        // Turning the paper before anything is drawn turns the page measured.
        p.Orientation = Printer::Landscape;
        QVERIFY(qAbs(p.scaleHeight() - portraitWidth) < 10);
        p.Orientation = Printer::Portrait;
        QVERIFY(qAbs(p.scaleWidth() - portraitWidth) < 10);
        p.endDoc(); // measuring alone prints nothing
        QVERIFY(PdfSupport::files(m_dir.path()).isEmpty());
    }

    void linesPrintInOrderAndEachDocumentIsAFileOfItsOwn()
    {
        Printer& p = printer();
        const QStringList texts = {"Partitude", "Halves", "", "Excellent!", "Sam"};
        p.FontSize = 25;
        QVERIFY2(p.textHeight() > 25 * 20 && p.textHeight() < 25 * 20 * 1.3, qPrintable(QString::number(p.textHeight())));
        p.CurrentY = 600;
        QList<double> tops;
        for (const QString& text : texts) {
            p.CurrentX = 2000;
            tops << p.CurrentY;
            p.print(text);
            QCOMPARE(QPointF(p.CurrentX, p.CurrentY), QPointF(0, tops.last() + p.textHeight()));
        }
        p.endDoc();
        p.print(); // an empty line is enough to start the next document, at the top of its page
        QVERIFY(p.documentOpen());
        p.print("Second");
        p.endDoc();
        const QStringList files = PdfSupport::files(m_dir.path());
        QCOMPARE(files.size(), 2);
        QCOMPARE(PdfSupport::lines(files[0]), QStringList({"Partitude", "Halves", "Excellent!", "Sam"}));
        QCOMPARE(PdfSupport::lines(files[1]), QStringList{"Second"});
        for (int i : {0, 1, 3, 4})
            QVERIFY2(startsAt(findWord(files[0], texts[i]), 2000, tops[i]), qPrintable(texts[i]));
        QVERIFY(startsAt(findWord(files[1], "Second"), 0, p.textHeight())); // on the line below the empty one
    }

    void centredTextIsCentredOnThePage_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<QString>("text");
        QTest::newRow("title") << QFont("Times New Roman", 25) << "Partitude";
        QTest::newRow("headline") << QFont("Times New Roman", 28, QFont::Bold) << "Congratulations!!!";
        QTest::newRow("sentence") << QFont("Arial", 14) << "you have risen to the Challenge";
    }

    void centredTextIsCentredOnThePage()
    {
        QFETCH(QFont, font);
        QFETCH(QString, text);
        Printer& p = printer();
        p.FontName = font.family(), p.FontSize = font.pointSizeF(), p.FontBold = font.bold();
        const double width = p.textWidth(text);
        p.CurrentX = (p.scaleWidth() - width) / 2, p.CurrentY = 3000;
        p.print(text);
        p.endDoc();
        QRectF line;
        for (const Word& w : PdfSupport::words(onlyFile()))
            line |= w.box;
        QVERIFY2(qAbs(line.center().x() - PdfSupport::kPageWidthPt / 2) < 1.5, qPrintable(QString::number(line.center().x())));
        QVERIFY2(qAbs(line.width() * 20 - width) < 40, qPrintable(QString::number(line.width() * 20)));
    }

    void drawingsLandAtTheirPlaceSizeAndColour()
    {
        Printer& p = printer();
        const auto filled = [](auto picture, int colour) { return picture.fill(QBColor(colour)), picture; };
        p.paintPicture(filled(QImage(60, 40, QImage::Format_RGB32), 2), 1000, 1000); // at its own size, a pixel 15 twips
        p.paintPicture(filled(QPixmap(10, 10), 9), 5000, 1000, 3000, 1500);
        p.paintPicture(filled(QImage(60, 40, QImage::Format_RGB32), 14), p.scaleWidth() - 450, 14000); // half beyond the page
        p.paintWith(QRectF(1000, 4000, 2400, 1200), [](QPainter& painter, const QRectF& r) {
            painter.fillRect(r, QBColor(13));
            painter.translate(r.width() * 3, 0); // undone after the drawing
            painter.scale(2, 2);
            painter.setOpacity(0.1);
        });
        p.ForeColor = QBColor(12), p.DrawWidth = 8; // 120 twips, with round ends
        p.line(1000, 11000, 8000, 11000);
        QCOMPARE(QPointF(p.CurrentX, p.CurrentY), QPointF(8000, 11000));
        p.ForeColor = QBColor(1), p.FontSize = 40, p.CurrentX = 1000, p.CurrentY = 8000;
        p.print("After");
        p.endDoc();
        const QString pdf = onlyFile();
        const QImage page = PdfSupport::render(pdf, 48); // a pixel is 30 twips
        const auto near = [&](const QColor& colour, const QRectF& expected) {
            const QRectF a = twipsBox(page, colour, 48, margin());
            return qAbs(a.left() - expected.left()) < 45 && qAbs(a.top() - expected.top()) < 45 &&
                   qAbs(a.width() - expected.width()) < 60 && qAbs(a.height() - expected.height()) < 60;
        };
        QVERIFY(near(QBColor(2), QRectF(1000, 1000, 900, 600)) && near(QBColor(9), QRectF(5000, 1000, 3000, 1500)));
        QVERIFY(near(QBColor(14), QRectF(p.scaleWidth() - 450, 14000, 450, 600)));
        QVERIFY(near(QBColor(13), QRectF(1000, 4000, 2400, 1200)) && near(QBColor(12), QRectF(940, 10940, 7120, 120)));
        QVERIFY(startsAt(findWord(pdf, "After"), 1000, 8000));
        // The text is in its colour and at full strength, whatever the drawing above did.
        QVERIFY(qAbs(twipsBox(page, QBColor(1), 48, margin()).left() - 1000) < 90);
    }

    void newPageGoesOnInTheSameDocument_data()
    {
        QTest::addColumn<QStringList>("before"); // what the first page prints
        QTest::addColumn<QList<QStringList>>("pages");
        QTest::newRow("two pages") << QStringList{"Questions"} << QList<QStringList>{{"Questions"}, {"Answers"}};
        QTest::newRow("nothing yet: a blank page first") << QStringList{} << QList<QStringList>{{}, {"Answers"}};
    }

    void newPageGoesOnInTheSameDocument()
    {
        QFETCH(QStringList, before);
        QFETCH(QList<QStringList>, pages);
        Printer& p = printer();
        for (const QString& text : before)
            p.CurrentY = 5000, p.print(text);
        p.CurrentX = 3000;
        p.newPage();
        QCOMPARE(QPointF(p.CurrentX, p.CurrentY), QPointF(0, 0));
        p.print("Answers");
        p.endDoc();
        const QString pdf = onlyFile();
        QCOMPARE(PdfSupport::pages(pdf), pages);
        // The second page starts at its own top-left corner.
        const QList<Word> second = PdfSupport::words(pdf, 2);
        QCOMPARE(second.size(), 1);
        QVERIFY(startsAt(second[0], 0, 0));
    }

    void aPageThatCannotBeOpenedFailsTheDrawingThenRecovers()
    {
        QTemporaryFile plain;
        QVERIFY(plain.open());
        PrintTarget::setPdfFolder(plain.fileName() + "/inside"); // a folder inside a file
        Printer& p = printer();
        p.CurrentY = 1000;
        QVERIFY(p.scaleWidth() > 0); // measuring needs no file
        QVERIFY_THROWS_EXCEPTION(PrinterError, p.print("Lost"));
        QVERIFY(!p.documentOpen() && p.CurrentY == 0);
        QVERIFY_THROWS_EXCEPTION(PrinterError, p.line(0, 0, 100, 100)); // tries again, fails again
        if (QPrinterInfo::availablePrinters().isEmpty()) { // without a PDF folder it is the printer, and there is none
            PrintTarget::setPdfFolder(QString());
            p.CurrentY = 1000;
            QVERIFY_THROWS_EXCEPTION(PrinterError, p.print());
            QVERIFY(!p.documentOpen() && p.CurrentY == 0);
        }
        const QString fresh = m_dir.filePath("made/on/demand");
        PrintTarget::setPdfFolder(fresh);
        p.print("Found");
        p.endDoc();
        const QStringList files = PdfSupport::files(fresh);
        QCOMPARE(files.size(), 1);
        QCOMPARE(PdfSupport::lines(files[0]), QStringList{"Found"});
    }
};

QTEST_MAIN(TestPrinter)
#include "tst_printer.moc"
