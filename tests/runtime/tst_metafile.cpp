// The metafile reader: what it draws, where, and what it refuses. Broken files come in buffers
// of their exact length, so a read past the end is a read past the allocation.
#include "runtime/metafile.h"
#include "pdfsupport.h"
#include "wmfbuilder.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QRandomGenerator>
#include <QtTest>
#include <vector>

struct Probe { int x, y; QRgb rgb; };
using Probes = QVector<Probe>;
Q_DECLARE_METATYPE(Probes)

namespace {

const QRgb kWhite = qRgb(255, 255, 255), kRed = qRgb(255, 0, 0), kBlue = qRgb(0, 0, 255);
const QRgb kBlack = qRgb(0, 0, 0), kGreen = qRgb(0, 160, 0), kYellow = qRgb(255, 255, 0);

// A copy that owns exactly the file's bytes, with nothing after them.
struct Exact {
    std::vector<char> buffer;
    QByteArray bytes;
    explicit Exact(const QByteArray& b) : buffer(b.begin(), b.end()), bytes(QByteArray::fromRawData(buffer.data(), b.size())) {}
};

// The file played onto a white image, filling it unless a target is given; null if refused.
QImage render(const QByteArray& bytes, QSize size = {100, 100}, QRectF target = {}, int dotsPerMetre = 3780)
{
    const auto metafile = Metafile::parse(bytes);
    if (!metafile)
        return QImage();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(dotsPerMetre), image.setDotsPerMeterY(dotsPerMetre); // 96 dots per inch unless told
    image.fill(Qt::white);
    QPainter painter(&image);
    metafile->play(painter, target.isEmpty() ? QRectF(image.rect()) : target);
    painter.end();
    return image;
}

// The box of the image's dark pixels (text is drawn in navy on white).
QRect inked(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                box |= QRect(x, y, 1, 1);
    return box;
}

WmfBuilder textPage(int height = -200)
{
    WmfBuilder w;
    w.font(height, "Arial").select(0).textColour(QColor(0, 0, 128)).bkMode(1);
    return w;
}

} // namespace

class TestMetafile : public QObject {
    Q_OBJECT
private slots:
    void readsTheHeaders()
    {
        WmfBuilder w;
        w.bounds = QRect(-100, 50, 2880, 1440);
        w.unitsPerInch = 576;
        QByteArray bytes = w.windowExt(2880, 1440).record(0x0626, {1, 2, 3}).rectangle(0, 0, 10, 10).bytes();
        const auto m = Metafile::parse(bytes);
        QVERIFY(m);
        QCOMPARE(m->bounds(), QRect(-100, 50, 2880, 1440));
        QCOMPARE(m->sizeInTwips(), QSizeF(7200, 3600));
        QVERIFY(m->recordCount() == 3 && m->skippedRecordCount() == 1);
        QVERIFY(m->checksumMatches());
        bytes[20] = char(bytes[20] ^ 0x55); // a wrong checksum is tolerated
        QVERIFY(!Metafile::parse(bytes)->checksumMatches());
    }

    void drawsThroughTheWindow_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QRectF>("target"); // empty: the whole 100 by 100 image
        QTest::addColumn<Probes>("probes");
        auto filled = [](QColor c) {
            WmfBuilder w;
            w.pen(5, 0, Qt::black).brush(0, c).select(0).select(1);
            return w;
        };
        QTest::newRow("rectangle") << filled(Qt::red).rectangle(200, 100, 600, 300).bytes() << QRectF()
                                   << Probes{{40, 20, kRed}, {10, 10, kWhite}, {70, 20, kWhite}, {40, 40, kWhite}};
        QTest::newRow("window origin and extent")
            << filled(Qt::red).windowOrg(-1000, -1000).windowExt(4000, 2000).rectangle(0, 0, 1000, 500).bytes() << QRectF()
            << Probes{{37, 62, kRed}, {20, 62, kWhite}, {37, 45, kWhite}, {55, 62, kWhite}, {37, 80, kWhite}};
        QTest::newRow("upside-down window")
            << filled(Qt::red).windowOrg(0, 1000).windowExt(1000, -1000).rectangle(0, 0, 500, 250).bytes() << QRectF()
            << Probes{{25, 90, kRed}, {25, 60, kWhite}, {75, 90, kWhite}};
        QTest::newRow("isotropic window")
            << filled(Qt::red).mapMode(7).windowExt(2000, 1000).rectangle(0, 0, 2000, 1000).bytes() << QRectF()
            << Probes{{50, 25, kRed}, {95, 45, kRed}, {50, 75, kWhite}};
        QTest::newRow("target placed and clipped") << filled(Qt::red).rectangle(-500, -500, 2000, 2000).bytes() << QRectF(20, 20, 50, 50)
            << Probes{{45, 45, kRed}, {21, 68, kRed}, {10, 10, kWhite}, {80, 80, kWhite}};
        QTest::newRow("ellipse") << filled(Qt::blue).ellipse(0, 0, 1000, 1000).bytes() << QRectF()
                                 << Probes{{50, 50, kBlue}, {50, 3, kBlue}, {5, 5, kWhite}, {95, 95, kWhite}};
        QTest::newRow("round rectangle") << filled(Qt::blue).roundRect(0, 0, 1000, 1000, 400, 400).bytes() << QRectF()
                                         << Probes{{50, 50, kBlue}, {50, 2, kBlue}, {2, 2, kWhite}, {97, 97, kWhite}};
        QTest::newRow("polygon") << filled(Qt::red).polygon({{0, 0}, {1000, 0}, {0, 1000}}).bytes() << QRectF()
                                 << Probes{{20, 20, kRed}, {80, 80, kWhite}};
        QTest::newRow("pie, anticlockwise from three to twelve o'clock")
            << filled(Qt::red).pie(0, 0, 1000, 1000, {1000, 500}, {500, 0}).bytes() << QRectF()
            << Probes{{70, 30, kRed}, {30, 30, kWhite}, {70, 70, kWhite}, {30, 70, kWhite}};
        QTest::newRow("poly-polygon with a hole")
            << filled(Qt::red).polyPolygon({QRect(0, 0, 1000, 1000), QRect(250, 250, 500, 500)}).bytes() << QRectF()
            << Probes{{10, 10, kRed}, {50, 50, kWhite}};
        QTest::newRow("wide pen, hollow brush")
            << WmfBuilder().pen(0, 30, QColor(kGreen)).brush(1, Qt::red).select(0).select(1).rectangle(200, 200, 800, 800).bytes()
            << QRectF() << Probes{{20, 50, kGreen}, {50, 20, kGreen}, {50, 50, kWhite}};
        QTest::newRow("line and polyline")
            << WmfBuilder().pen(0, 40, Qt::black).select(0).moveTo(500, 100).lineTo(500, 900).polyline({{100, 500}, {900, 500}}).bytes()
            << QRectF() << Probes{{50, 20, kBlack}, {20, 50, kBlack}, {20, 20, kWhite}, {50, 95, kWhite}};
        // Slots 0 and 1 are freed, so the blue brush takes the lowest and "select 0" picks blue.
        QTest::newRow("the lowest deleted slot is taken again")
            << WmfBuilder().pen(5, 0, Qt::black).brush(0, Qt::red).select(0).select(1).remove(0).remove(1)
                   .brush(0, Qt::blue).select(0).rectangle(0, 0, 1000, 1000).bytes() << QRectF() << Probes{{50, 50, kBlue}};
        QTest::newRow("restoring a saved state")
            << filled(Qt::red).brush(0, Qt::blue).saveDC().select(2).restoreDC(-1).rectangle(0, 0, 1000, 1000).bytes()
            << QRectF() << Probes{{50, 50, kRed}};
        QTest::newRow("restoring the first saved state by its number")
            << filled(Qt::red).brush(0, Qt::blue).saveDC().select(2).saveDC().select(0).restoreDC(1).rectangle(0, 0, 1000, 1000).bytes()
            << QRectF() << Probes{{50, 50, kRed}};
        QTest::newRow("clip rectangle") << filled(Qt::red).clip(0, 0, 500, 1000).rectangle(0, 0, 1000, 1000).bytes() << QRectF()
            << Probes{{25, 50, kRed}, {75, 50, kWhite}};
        // Text's opaque box is filled with the background colour, text or not...
        QTest::newRow("opaque text box") << textPage().bkColour(Qt::yellow).extTextOut(100, 500, 2, {100, 100, 500, 300}, "").bytes()
                                         << QRectF() << Probes{{30, 20, kYellow}, {5, 20, kWhite}, {30, 35, kWhite}};
        // ...and opaque background mode fills the text's cell: one character wide.
        QTest::newRow("opaque text cell") << WmfBuilder().font(-200, "Arial").select(0).bkColour(Qt::yellow).textOut(500, 500, "I").bytes()
                                          << QRectF() << Probes{{50, 51, kYellow}, {60, 51, kWhite}, {50, 45, kWhite}};
    }

    void drawsThroughTheWindow()
    {
        QFETCH(QByteArray, file);
        QFETCH(QRectF, target);
        QFETCH(Probes, probes);
        const QImage image = render(file, {100, 100}, target);
        QVERIFY(!image.isNull());
        for (const Probe& p : probes) {
            const QRgb got = image.pixel(p.x, p.y);
            QVERIFY2(qAbs(qRed(got) - qRed(p.rgb)) <= 8 && qAbs(qGreen(got) - qGreen(p.rgb)) <= 8 && qAbs(qBlue(got) - qBlue(p.rgb)) <= 8,
                     qPrintable(QStringLiteral("(%1, %2) is #%3").arg(p.x).arg(p.y).arg(got & 0xFFFFFF, 6, 16, QLatin1Char('0'))));
        }
    }

    void placesTextByItsAlignment_data()
    {
        QTest::addColumn<int>("align");
        for (int align : {0, 2, 6, 24, 8}) // left, right and centre at the top; left on the baseline and at the bottom
            QTest::addRow("%d", align) << align;
    }

    void placesTextByItsAlignment()
    {
        // "HEH" at (500, 500) of 1000, 200 high: on 400 pixels the point is (200, 200), an em 80 pixels.
        QFETCH(int, align);
        const QImage image = render(textPage().textAlign(align).textOut(500, 500, "HEH").bytes(), {400, 400});
        const QRect ink = inked(image);
        const int em = 80;
        QVERIFY2(ink.height() > 0.6 * em && ink.height() < 0.8 * em, qPrintable(QString::number(ink.height())));
        const QRgb darkest = image.pixel(ink.center().x(), ink.top() + 2);
        QVERIFY(qBlue(darkest) > qRed(darkest));
        switch (align & 6) {
        case 0: QVERIFY(ink.left() >= 200 && ink.left() < 200 + 0.15 * em); break;
        case 2: QVERIFY(ink.right() < 200 && ink.right() > 200 - 0.15 * em); break;
        default: QVERIFY(qAbs(ink.center().x() - 200) <= 2);
        }
        switch (align & 24) {
        case 0: QVERIFY(ink.top() >= 200 && ink.top() < 200 + 0.3 * em); break;
        case 24: QVERIFY(qAbs(ink.bottom() - 199) <= 1); break;
        default: QVERIFY(ink.bottom() < 200 - 0.15 * em && ink.bottom() > 200 - 0.3 * em);
        }
    }

    void keepsSizesOnEveryDevice()
    {
        const QByteArray chars = textPage().textOut(100, 100, "H").bytes();
        const QRect large = inked(render(chars, {600, 600}));
        const int small = inked(render(chars, {200, 200})).height();
        QVERIFY2(qAbs(large.height() - 3 * small) <= 4, qPrintable(QStringLiteral("%1 then %2").arg(small).arg(large.height())));

        // Dots per inch change no size in the picture's units; thin dashes keep their inches (18 on, 6 off at 96 dpi).
        const QByteArray dashes = WmfBuilder().pen(1, 0, Qt::black).select(0).moveTo(0, 505).lineTo(1000, 505).bytes();
        for (const int dotsPerMetre : {3780, 7560, 47244}) { // 96, 192 and 1200 dpi
            QCOMPARE(inked(render(chars, {600, 600}, {}, dotsPerMetre)), large);
            const QImage dashed = render(dashes, {600, 600}, {}, dotsPerMetre);
            const double perPixel = dotsPerMetre / 3780.0;
            QVERIFY(qGray(dashed.pixel(int(9 * perPixel), 303)) < 128 && dashed.pixel(int(21 * perPixel), 303) == kWhite);
        }

        // A positive height is the whole cell's, so the letters come out smaller.
        const int cell = inked(render(textPage(200).textOut(100, 100, "H").bytes(), {600, 600})).height();
        QVERIFY2(cell < 0.95 * large.height() && cell > 0.8 * large.height(), qPrintable(QString::number(cell)));

        // On a PDF page the words sit where the window puts them, at their size.
        if (!PdfSupport::missingTool().isEmpty())
            QSKIP("poppler-utils is not installed");
        QTemporaryDir dir;
        {
            QPdfWriter pdf(dir.filePath("text.pdf"));
            pdf.setResolution(1200);
            pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
            QPainter page(&pdf);
            // The picture's 1000 units become 4 inches, one inch from the page's corner.
            Metafile::parse(textPage().textOut(500, 500, "Halves").bytes())->play(page, QRectF(1200, 1200, 4800, 4800));
        }
        const QList<PdfSupport::Word> words = PdfSupport::words(dir.filePath("text.pdf"));
        QCOMPARE(words.size(), 1);
        // In points: the text starts 72 + 144 from the left and the top, 0.8 inch (57.6 points) high.
        const QRectF box = words[0].box;
        QVERIFY2(qAbs(box.left() - 216) < 6 && qAbs(box.top() - 216) < 6 && box.height() > 57.6 && box.height() < 57.6 * 1.3,
                 qPrintable(QStringLiteral("%1, %2, %3 high").arg(box.left()).arg(box.top()).arg(box.height())));
    }

    void textIsClippedSpacedMovedAndTurned()
    {
        const auto draw = [](const WmfBuilder& w) { return render(w.bytes(), {400, 400}); };
        // A clip box holding the whole text changes nothing: the string is read after the box, not from it.
        const QImage plain = draw(textPage().textOut(100, 500, "Quarter"));
        QCOMPARE(draw(textPage().extTextOut(100, 500, 4, {0, 0, 1000, 1000}, "Quarter")), plain);
        QCOMPARE(draw(textPage().extTextOut(100, 500, 0, {}, "Quarter")), plain);

        // A clip box over the left part keeps the ink on its side.
        const QRect clipped = inked(draw(textPage().extTextOut(100, 500, 4, {0, 0, 300, 1000}, "Quarter")));
        QVERIFY(!clipped.isEmpty() && clipped.right() < 120 && inked(plain).right() > 200);

        // Distances between characters: "II" 500 units apart is ink in two places.
        const QImage spaced = draw(textPage().extTextOut(100, 500, 0, {}, "II", {500, 0}));
        const QRect both = inked(spaced);
        QVERIFY(both.left() >= 40 && both.left() < 50 && both.right() > 240 && both.right() < 260);
        QVERIFY(inked(spaced.copy(60, 0, 170, 400)).isEmpty());

        // With update-current-position two "H"s in a row are "HH"; the records' own points are not used.
        const QRect two = inked(draw(textPage().textAlign(1).moveTo(100, 500).textOut(900, 900, "H").textOut(900, 900, "H")));
        QCOMPARE(two, inked(draw(textPage().textOut(100, 500, "HH"))));

        // A quarter turn anticlockwise: the line runs up from (200, 200), the letters hanging to its right.
        const QRect turned = inked(draw(WmfBuilder().font(-200, "Arial", 900).select(0).bkMode(1).textOut(500, 500, "HEH")));
        QVERIFY(turned.bottom() < 200 && turned.bottom() > 190 && turned.left() >= 200 && turned.right() < 280
                && turned.height() > 2 * turned.width());
    }

    void refusesBrokenFiles_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("error"); // empty: the file is read
        // Files cut short are refusesEveryTruncation's; these say things that are not so.
        const QByteArray valid = WmfBuilder().rectangle(0, 0, 10, 10).bytes(), header = valid.left(40);
        QTest::newRow("wrong key") << QByteArray("GIF89a").append(valid.mid(6)) << "key at byte 0 is 0x38464947";
        QTest::newRow("header size") << valid.left(24).append('\x08').append(valid.mid(25))
                                     << "metafile header size at byte 24 is 8 words, not 9";
        QTest::newRow("no end record") << valid.chopped(6) << "ends at byte 54 without an end record";
        WmfBuilder empty, full, huge;
        empty.bounds = QRect(0, 0, 0, 100);
        QTest::newRow("empty bounding box") << empty.bytes() << "bounding box at byte 6 (0, 0 to 0, 100) has no area";
        for (int words : {0, 1, 2}) // less than the record's own header
            QTest::addRow("record size %d", words) << header + char(words) + QByteArray(7, '\0')
                                                   << QStringLiteral("record at byte 40 gives its size as %1 words").arg(words);
        QTest::newRow("record runs past the end") << header + QByteArray("\x64\0\0\0\x1B\x04", 6)
                                                  << "record at byte 40 is 200 bytes long, but only 6 bytes";
        QTest::newRow("too few parameters") << WmfBuilder().record(0x041B, {1, 2, 3}).bytes()
                                            << "META_RECTANGLE record at byte 40 has 3 parameter words, too few: it needs 4";
        QTest::newRow("polygon of 65535 points") << WmfBuilder().record(0x0324, {65535, 1, 2}).bytes()
                                                 << "META_POLYGON record at byte 40 gives a negative point count";
        QTest::newRow("polygon of 32767 points") << WmfBuilder().record(0x0324, {32767, 1, 2}).bytes()
                                                 << "META_POLYGON record at byte 40 has 3 parameter words, too few: it needs 65535";
        QTest::newRow("poly-polygon counts past the record") << WmfBuilder().record(0x0538, {2, 65535, 65535, 0}).bytes()
                                                             << "META_POLYPOLYGON record at byte 40 has 4 parameter words, too few: it needs 262143";
        QTest::newRow("string past the record") << WmfBuilder().record(0x0521, {200, 0, 0}).bytes()
                                                << "META_TEXTOUT record at byte 40 has 3 parameter words, too few: it needs 103";
        QTest::newRow("clip box flag without the box") << WmfBuilder().record(0x0A32, {0, 0, 0, 4, 0, 0}).bytes()
                                                       << "META_EXTTEXTOUT record at byte 40 has 6 parameter words, too few: it needs 8";
        QTest::newRow("object out of range") << WmfBuilder().brush(0, Qt::red).select(8).bytes()
                                             << "META_SELECTOBJECT record at byte 54 names object 8, but the header allows only 8 objects";
        QTest::newRow("selecting a deleted object") << WmfBuilder().brush(0, Qt::red).remove(0).select(0).bytes()
                                                    << "META_SELECTOBJECT record at byte 62 names object 0, which has not been created";
        full.objects = 1;
        QTest::newRow("object table full") << full.brush(0, Qt::red).brush(0, Qt::blue).bytes()
                                           << "META_CREATEBRUSHINDIRECT record at byte 54 creates an object, but all 1 object slots";
        huge.objects = 65535;
        QTest::newRow("65535 objects allowed") << huge.brush(0, Qt::red).select(0).rectangle(0, 0, 10, 10).bytes() << "";
    }

    void refusesBrokenFiles()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, error);
        const Exact exact(file);
        QString said = "not set";
        const auto m = Metafile::parse(exact.bytes, &said);
        QCOMPARE(m.has_value(), error.isEmpty());
        QVERIFY2(said.contains(error), qPrintable(said));
        if (m)
            QVERIFY(!render(exact.bytes, {20, 20}).isNull());
    }

    void refusesEveryTruncation()
    {
        WmfBuilder w = textPage();
        w.pen(1, 3, Qt::red).brush(2, Qt::blue, 3).select(1).select(2).windowOrg(10, 10).windowExt(900, 900)
            .moveTo(0, 0).lineTo(100, 100).rectangle(1, 2, 3, 4).roundRect(1, 2, 300, 400, 5, 6).ellipse(1, 2, 300, 400)
            .pie(0, 0, 100, 100, {0, 50}, {50, 0}).polygon({{1, 2}, {3, 4}, {5, 6}}).polyline({{1, 2}, {3, 4}})
            .polyPolygon({QPolygon({{1, 1}, {2, 2}, {1, 3}})}).textAlign(24).textOut(5, 5, "abc")
            .extTextOut(5, 5, 6, {0, 0, 50, 50}, "abcd", {1, 2, 3, 4}).remove(1).saveDC().restoreDC(1);
        const QByteArray file = w.bytes();
        QVERIFY(Metafile::parse(file));
        for (qsizetype n = 0; n < file.size(); ++n) {
            const Exact cut(file.left(n));
            QString error;
            QVERIFY2(!Metafile::parse(cut.bytes, &error), qPrintable(QString::number(n)));
            QVERIFY2(error.contains(" byte "), qPrintable(error));
        }
    }

    void survivesMutations()
    {
        WmfBuilder w = textPage();
        w.pen(0, 2, Qt::red).brush(0, Qt::blue).select(1).select(2).polygon({{1, 2}, {300, 4}, {5, 600}})
            .pie(0, 0, 100, 100, {0, 50}, {50, 0}).extTextOut(5, 5, 6, {0, 0, 50, 50}, "1/2", {100, 100, 100})
            .textOut(500, 500, "3/4").remove(2).ellipse(10, 10, 900, 900).polyPolygon({QPolygon({{1, 1}, {2, 2}, {1, 3}})});
        const QByteArray file = w.bytes();
        QRandomGenerator random(20240607);
        const int extremes[] = {0x0000, 0x0001, 0x7FFF, 0x8000, 0xFFFF};
        int accepted = 0;
        for (int round = 0; round < 2000; ++round) {
            QByteArray bytes = file;
            for (int change = random.bounded(1, 5); change > 0 && !bytes.isEmpty(); --change) {
                const int at = random.bounded(int(bytes.size()));
                switch (random.bounded(10)) {
                case 0: case 1: case 2: bytes[at] = char(bytes[at] ^ (1 << random.bounded(8))); break;
                case 3: case 4: bytes[at] = char(random.bounded(256)); break;
                case 5: bytes.truncate(at); break;
                case 6: bytes.insert(at, char(random.bounded(256))); break;
                default: // a word set to an extreme: counts, sizes, coordinates
                    bytes[at] = char(extremes[random.bounded(5)]);
                    if (at + 1 < bytes.size())
                        bytes[at + 1] = char(extremes[random.bounded(5)] >> 8);
                }
            }
            accepted += !render(Exact(bytes).bytes, {32, 32}).isNull(); // played, if read
        }
        QVERIFY2(accepted > 400 && accepted < 1600, qPrintable(QStringLiteral("%1 of 2000 read").arg(accepted)));
    }

};

QTEST_MAIN(TestMetafile)
#include "tst_metafile.moc"
