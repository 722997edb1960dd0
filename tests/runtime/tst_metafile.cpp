// The metafile reader: what it draws, where, and what it refuses. Files are
// written by WmfBuilder; broken files are handed over in buffers of their
// exact length, so a read past the end is a read past the allocation.
#include "runtime/metafile.h"
#include "wmfbuilder.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>
#include <map>
#include <vector>

struct Probe {
    int x, y;
    QRgb rgb;
};
using Probes = QVector<Probe>;
Q_DECLARE_METATYPE(Probes)

namespace {

const QRgb kWhite = qRgb(255, 255, 255), kRed = qRgb(255, 0, 0), kBlue = qRgb(0, 0, 255);
const QRgb kBlack = qRgb(0, 0, 0), kGreen = qRgb(0, 160, 0);

// A copy that owns exactly the file's bytes, with nothing after them.
struct Exact {
    std::vector<char> buffer;
    QByteArray bytes;
    explicit Exact(const QByteArray& b, qsizetype length = -1)
        : buffer(b.constData(), b.constData() + (length < 0 ? b.size() : length)),
          bytes(QByteArray::fromRawData(buffer.data(), qsizetype(buffer.size())))
    {
    }
};

// Plays the file onto the image; false if the file is refused.
bool paint(QImage& image, const QByteArray& bytes, const QRectF& target)
{
    QString error;
    const auto metafile = Metafile::parse(bytes, &error);
    if (!metafile) {
        qWarning() << error;
        return false;
    }
    QPainter painter(&image);
    metafile->play(painter, target);
    return true;
}

QImage render(const QByteArray& bytes, QSize size = {100, 100}, QRectF target = {})
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return paint(image, bytes, target.isEmpty() ? QRectF(QPointF(0, 0), size) : target) ? image : QImage();
}

bool close(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= 8 && qAbs(qGreen(a) - qGreen(b)) <= 8 && qAbs(qBlue(a) - qBlue(b)) <= 8;
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
    void readsTheHeaders();
    void drawsShapesThroughTheWindow_data();
    void drawsShapesThroughTheWindow();
    void placesTextByItsAlignment_data();
    void placesTextByItsAlignment();
    void keepsSizesOnEveryDevice();
    void extTextOutClipsFillsAndSpaces();
    void textFollowsTheCurrentPosition();
    void turnsTextByItsEscapement();
    void refusesBrokenFiles_data();
    void refusesBrokenFiles();
    void refusesEveryTruncation();
    void survivesMutations();
    void agreesWithLibwmf();
};

void TestMetafile::readsTheHeaders()
{
    WmfBuilder w;
    w.bounds = QRect(-100, 50, 2880, 1440);
    w.unitsPerInch = 576;
    w.rightChecksum = false; // tolerated
    w.windowExt(2880, 1440).record(0x0626, {1, 2, 3}).rectangle(0, 0, 10, 10);
    const auto m = Metafile::parse(w.bytes());
    QVERIFY(m);
    QCOMPARE(m->bounds(), QRect(-100, 50, 2880, 1440));
    QCOMPARE(m->unitsPerInch(), 576);
    QCOMPARE(m->sizeInTwips(), QSizeF(7200, 3600));
    QCOMPARE(m->recordCount(), 3);
    QCOMPARE(m->skippedRecordCount(), 1);
    QVERIFY(!m->checksumMatches());
    w.rightChecksum = true;
    QVERIFY(Metafile::parse(w.bytes())->checksumMatches());
}

void TestMetafile::drawsShapesThroughTheWindow_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QRectF>("target");
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
    QTest::newRow("target placed and clipped")
        << filled(Qt::red).rectangle(-500, -500, 2000, 2000).bytes() << QRectF(20, 20, 50, 50)
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
    QTest::newRow("thin dashed pen")
        << WmfBuilder().pen(1, 0, Qt::black).select(0).moveTo(0, 505).lineTo(1000, 505).bytes() << QRectF()
        << Probes{{8, 50, kBlack}, {21, 50, kWhite}, {30, 50, kBlack}, {8, 40, kWhite}};
    // Slot 0 is freed, so the blue brush takes it and "select 0" picks blue.
    QTest::newRow("a deleted slot is taken again")
        << WmfBuilder().pen(5, 0, Qt::black).brush(0, Qt::red).select(0).select(1).remove(0)
               .brush(0, Qt::blue).select(0).rectangle(0, 0, 1000, 1000).bytes()
        << QRectF() << Probes{{50, 50, kBlue}};
    QTest::newRow("restoring a saved state")
        << filled(Qt::red).brush(0, Qt::blue).saveDC().select(2).restoreDC(-1).rectangle(0, 0, 1000, 1000).bytes()
        << QRectF() << Probes{{50, 50, kRed}};
    QTest::newRow("restoring the first saved state by its number")
        << filled(Qt::red).brush(0, Qt::blue).saveDC().select(2).saveDC().select(0).restoreDC(1).rectangle(0, 0, 1000, 1000).bytes()
        << QRectF() << Probes{{50, 50, kRed}};
    QTest::newRow("clip rectangle")
        << filled(Qt::red).clip(0, 0, 500, 1000).rectangle(0, 0, 1000, 1000).bytes() << QRectF()
        << Probes{{25, 50, kRed}, {75, 50, kWhite}};
}

void TestMetafile::drawsShapesThroughTheWindow()
{
    QFETCH(QByteArray, file);
    QFETCH(QRectF, target);
    QFETCH(Probes, probes);
    const QImage image = render(file, {100, 100}, target);
    QVERIFY(!image.isNull());
    for (const Probe& p : probes)
        QVERIFY2(close(image.pixel(p.x, p.y), p.rgb),
                 qPrintable(QStringLiteral("(%1, %2) is #%3").arg(p.x).arg(p.y).arg(image.pixel(p.x, p.y) & 0xFFFFFF, 6, 16, QLatin1Char('0'))));
}

void TestMetafile::placesTextByItsAlignment_data()
{
    QTest::addColumn<int>("align");
    QTest::newRow("left, top") << 0;
    QTest::newRow("right, top") << 2;
    QTest::newRow("centre, top") << 6;
    QTest::newRow("left, baseline") << 24;
    QTest::newRow("left, bottom") << 8;
}

void TestMetafile::placesTextByItsAlignment()
{
    // "HEH" at (500, 500) of 1000, characters 200 high: on 400 pixels the
    // reference point is (200, 200) and an em is 80 pixels.
    QFETCH(int, align);
    const QImage image = render(textPage().textAlign(align).textOut(500, 500, "HEH").bytes(), {400, 400});
    const QRect ink = inked(image);
    const int em = 80;
    QVERIFY(!ink.isEmpty());
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

void TestMetafile::keepsSizesOnEveryDevice()
{
    const QByteArray chars = textPage(-200).textOut(100, 100, "H").bytes();
    const int small = inked(render(chars, {200, 200})).height();
    const int large = inked(render(chars, {600, 600})).height();
    QVERIFY2(qAbs(large - 3 * small) <= 4, qPrintable(QStringLiteral("%1 then %2").arg(small).arg(large)));

    // Dots per inch do not change a size given in the picture's own units;
    // thin pens' dashes keep their length in inches.
    const QByteArray dashes = WmfBuilder().pen(1, 0, Qt::black).select(0).moveTo(0, 505).lineTo(1000, 505).bytes();
    QImage fine(600, 600, QImage::Format_ARGB32_Premultiplied);
    for (const int dotsPerMetre : {3780, 7560, 47244}) { // 96, 192 and 1200 dpi
        fine.setDotsPerMeterX(dotsPerMetre);
        fine.setDotsPerMeterY(dotsPerMetre);
        fine.fill(Qt::white);
        QVERIFY(paint(fine, chars, QRectF(0, 0, 600, 600)));
        QCOMPARE(inked(fine), inked(render(chars, {600, 600})));
        fine.fill(Qt::white);
        QVERIFY(paint(fine, dashes, QRectF(0, 0, 600, 600)));
        const double perPixel = dotsPerMetre / 3780.0; // 18 on, 6 off
        QVERIFY(qGray(fine.pixel(int(9 * perPixel), 303)) < 128);
        QCOMPARE(fine.pixel(int(21 * perPixel), 303), kWhite);
    }

    // A positive height is the whole cell's, so the letters come out smaller.
    const int cell = inked(render(textPage(200).textOut(100, 100, "H").bytes(), {600, 600})).height();
    QVERIFY2(cell < 0.95 * large && cell > 0.8 * large, qPrintable(QString::number(cell)));

    // On a PDF page the words sit where the window puts them, at their size.
    const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
    if (pdftotext.isEmpty())
        QSKIP("pdftotext is not installed");
    QTemporaryDir dir;
    QPdfWriter pdf(dir.filePath("text.pdf"));
    pdf.setResolution(1200);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter page(&pdf);
    // The picture's 1000 units become 4 inches, one inch from the page's corner.
    Metafile::parse(textPage(-200).textOut(500, 500, "Halves").bytes())->play(page, QRectF(1200, 1200, 4800, 4800));
    page.end();
    QProcess tool;
    tool.start(pdftotext, {"-bbox", dir.filePath("text.pdf"), "-"});
    QVERIFY(tool.waitForFinished(30000));
    const QString html = QString::fromUtf8(tool.readAllStandardOutput());
    const QRegularExpression word("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" yMax=\"([\\d.]+)\">Halves<");
    const QRegularExpressionMatch m = word.match(html);
    QVERIFY2(m.hasMatch(), qPrintable(html));
    // In points: the text starts 72 + 144 from the left, its top edge 216
    // from the top, and its characters are 0.8 inch (57.6 points) high.
    QVERIFY2(qAbs(m.captured(1).toDouble() - 216) < 6, qPrintable(m.captured(0)));
    QVERIFY2(qAbs(m.captured(2).toDouble() - 216) < 6, qPrintable(m.captured(0)));
    const double height = m.captured(3).toDouble() - m.captured(2).toDouble();
    QVERIFY2(height > 57.6 && height < 57.6 * 1.3, qPrintable(m.captured(0)));
}

void TestMetafile::extTextOutClipsFillsAndSpaces()
{
    const QSize size(400, 400);
    // A clip box that holds the whole text changes nothing: the string is
    // read after the box, not from it.
    const QImage plain = render(textPage().textOut(100, 500, "Quarter").bytes(), size);
    QCOMPARE(render(textPage().extTextOut(100, 500, 4, {0, 0, 1000, 1000}, "Quarter").bytes(), size), plain);
    QCOMPARE(render(textPage().extTextOut(100, 500, 0, {}, "Quarter").bytes(), size), plain);

    // A clip box over the left part keeps the ink on its side.
    const QRect clipped = inked(render(textPage().extTextOut(100, 500, 4, {0, 0, 300, 1000}, "Quarter").bytes(), size));
    QVERIFY(!clipped.isEmpty());
    QVERIFY(clipped.right() < 120);
    QVERIFY(inked(plain).right() > 200);

    // An opaque box is filled with the background colour, text or not.
    WmfBuilder opaque = textPage();
    opaque.bkColour(Qt::yellow).extTextOut(100, 500, 2, {100, 100, 500, 300}, "");
    const QImage filled = render(opaque.bytes(), size);
    QCOMPARE(filled.pixel(80, 80), qRgb(255, 255, 0));
    QCOMPARE(filled.pixel(30, 80), kWhite);

    // Opaque background mode fills the text's cell: one character's width.
    WmfBuilder cell;
    cell.font(-200, "Arial").select(0).bkColour(Qt::yellow).textOut(500, 500, "I");
    const QImage celled = render(cell.bytes(), size);
    QCOMPARE(celled.pixel(201, 230), qRgb(255, 255, 0));
    QCOMPARE(celled.pixel(240, 230), kWhite);

    // Distances between characters: "II" 500 units apart is ink in two places.
    const QImage spaced = render(textPage().extTextOut(100, 500, 0, {}, "II", {500, 0}).bytes(), size);
    const QRect both = inked(spaced);
    QVERIFY(both.left() >= 40 && both.left() < 50);
    QVERIFY(both.right() > 240 && both.right() < 260);
    QVERIFY(inked(spaced.copy(60, 0, 170, 400)).isEmpty());
}

void TestMetafile::textFollowsTheCurrentPosition()
{
    // With update-current-position, two "H"s in a row are "HH"; the points
    // the records give are not used.
    WmfBuilder moving = textPage();
    moving.textAlign(1).moveTo(100, 500).textOut(900, 900, "H").textOut(900, 900, "H");
    const QImage two = render(moving.bytes(), {400, 400});
    const QImage once = render(textPage().textOut(100, 500, "HH").bytes(), {400, 400});
    QCOMPARE(inked(two), inked(once));
    QVERIFY(inked(two).width() > 100);
}

void TestMetafile::turnsTextByItsEscapement()
{
    // A quarter turn anticlockwise: the line runs up from (200, 200), and
    // with top alignment the letters hang to the right of it.
    WmfBuilder turned;
    turned.font(-200, "Arial", 400, 900).select(0).bkMode(1).textOut(500, 500, "HEH");
    const QRect ink = inked(render(turned.bytes(), {400, 400}));
    QVERIFY(ink.bottom() < 200 && ink.bottom() > 190);
    QVERIFY(ink.left() >= 200 && ink.right() < 280);
    QVERIFY(ink.height() > 2 * ink.width());
}

void TestMetafile::refusesBrokenFiles_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error"); // empty: the file is read
    const QByteArray valid = WmfBuilder().rectangle(0, 0, 10, 10).bytes();
    QTest::newRow("empty") << QByteArray() << "ends at byte 0, inside the 22-byte placeable header";
    QTest::newRow("wrong key") << QByteArray("GIF89a").append(valid.mid(6)) << "key at byte 0 is 0x38464947";
    QTest::newRow("placeable header only") << valid.left(22) << "ends at byte 22, inside the metafile header";
    QTest::newRow("no records") << valid.left(40) << "ends at byte 40 without an end record";
    WmfBuilder noEnd;
    noEnd.endRecord = false;
    noEnd.rectangle(0, 0, 10, 10);
    QTest::newRow("no end record") << noEnd.bytes() << "ends at byte 54 without an end record";
    WmfBuilder empty;
    empty.bounds = QRect(0, 0, 0, 100);
    QTest::newRow("empty bounding box") << empty.bytes() << "bounding box at byte 6 (0, 0 to 0, 100) has no area";
    for (int words : {0, 1, 2}) {
        QByteArray r;
        WmfBuilder::put32(r, quint32(words));
        QTest::newRow(qPrintable(QStringLiteral("record size %1").arg(words)))
            << WmfBuilder().raw(r + QByteArray(4, '\0')).bytes()
            << QStringLiteral("record at byte 40 gives its size as %1 words").arg(words);
    }
    QByteArray runsOn;
    WmfBuilder::put32(runsOn, 100);
    WmfBuilder::put16(runsOn, 0x041B);
    QTest::newRow("record runs past the end") << WmfBuilder().raw(runsOn).bytes()
                                              << "record at byte 40 is 200 bytes long, but only 12 bytes";
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
    WmfBuilder outOfRange;
    outOfRange.brush(0, Qt::red).select(8);
    QTest::newRow("object out of range") << outOfRange.bytes() << "META_SELECTOBJECT record at byte 54 names object 8, but the header allows only 8 objects";
    WmfBuilder deleted;
    deleted.brush(0, Qt::red).remove(0).select(0);
    QTest::newRow("selecting a deleted object") << deleted.bytes() << "META_SELECTOBJECT record at byte 62 names object 0, which has not been created";
    WmfBuilder full;
    full.objects = 1;
    full.brush(0, Qt::red).brush(0, Qt::blue);
    QTest::newRow("object table full") << full.bytes() << "META_CREATEBRUSHINDIRECT record at byte 54 creates an object, but all 1 object slots";
    WmfBuilder huge;
    huge.objects = 65535;
    huge.brush(0, Qt::red).select(0).rectangle(0, 0, 10, 10);
    QTest::newRow("65535 objects allowed") << huge.bytes() << "";
    QByteArray badHeader = valid;
    badHeader[24] = 8;
    QTest::newRow("header size") << badHeader << "metafile header size at byte 24 is 8 words, not 9";
}

void TestMetafile::refusesBrokenFiles()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, error);
    const Exact exact(file);
    QString said = "not set";
    const auto m = Metafile::parse(exact.bytes, &said);
    QCOMPARE(m.has_value(), error.isEmpty());
    QVERIFY2(said.contains(error), qPrintable(said));
    if (m) {
        QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        m->play(painter, QRectF(0, 0, 20, 20));
    }
}

void TestMetafile::refusesEveryTruncation()
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
        const Exact cut(file, n);
        QString error;
        QVERIFY2(!Metafile::parse(cut.bytes, &error), qPrintable(QString::number(n)));
        QVERIFY2(error.contains(" byte "), qPrintable(error));
    }
}

void TestMetafile::survivesMutations()
{
    WmfBuilder w = textPage();
    w.pen(0, 2, Qt::red).brush(0, Qt::blue).select(1).select(2).polygon({{1, 2}, {300, 4}, {5, 600}})
        .pie(0, 0, 100, 100, {0, 50}, {50, 0}).extTextOut(5, 5, 6, {0, 0, 50, 50}, "1/2", {100, 100, 100})
        .textOut(500, 500, "3/4").remove(2).ellipse(10, 10, 900, 900).polyPolygon({QPolygon({{1, 1}, {2, 2}, {1, 3}})});
    const QByteArray file = w.bytes();
    QRandomGenerator random(20240607);
    const int extremes[] = {0x0000, 0x0001, 0x7FFF, 0x8000, 0xFFFF};
    int accepted = 0, refused = 0;
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes = file;
        for (int change = random.bounded(1, 5); change > 0; --change) {
            const int at = random.bounded(int(bytes.size()));
            switch (random.bounded(10)) {
            case 0:
            case 1:
            case 2: bytes[at] = char(bytes[at] ^ (1 << random.bounded(8))); break;
            case 3:
            case 4: bytes[at] = char(random.bounded(256)); break;
            case 5: bytes.truncate(at); break;
            case 6: bytes.insert(at, char(random.bounded(256))); break;
            default: // a word set to an extreme: counts, sizes, coordinates
                bytes[at] = char(extremes[random.bounded(5)]);
                if (at + 1 < bytes.size())
                    bytes[at + 1] = char(extremes[random.bounded(5)] >> 8);
            }
            if (bytes.isEmpty())
                break;
        }
        const Exact exact(bytes);
        const auto m = Metafile::parse(exact.bytes);
        if (!m) {
            ++refused;
            continue;
        }
        ++accepted;
        image.fill(Qt::white);
        QPainter painter(&image);
        m->play(painter, QRectF(0, 0, 32, 32));
    }
    QVERIFY2(accepted > 1000 && refused > 1000, qPrintable(QStringLiteral("%1 read, %2 refused").arg(accepted).arg(refused)));
}

// Where libwmf's wmf2svg, an independent reader, puts the same three shapes.
// It fits the drawing's own extent to its page, so both readers' shapes are
// compared as parts of the box around all three.
void TestMetafile::agreesWithLibwmf()
{
    const QString wmf2svg = QStandardPaths::findExecutable("wmf2svg");
    if (wmf2svg.isEmpty())
        QSKIP("wmf2svg (libwmf-bin) is not installed");
    WmfBuilder w;
    w.bounds = QRect(0, 0, 2000, 1000);
    w.pen(5, 0, Qt::black).select(0).brush(0, Qt::red).select(1).rectangle(100, 100, 500, 400)
        .brush(0, Qt::blue).select(2).ellipse(600, 200, 1400, 900)
        .brush(0, QColor(0, 128, 0)).select(3).polygon({{1500, 100}, {1900, 500}, {1500, 900}});
    QTemporaryDir dir;
    QFile file(dir.filePath("shapes.wmf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(w.bytes());
    file.close();
    QProcess tool;
    tool.start(wmf2svg, {"-o", dir.filePath("shapes.svg"), file.fileName()});
    QVERIFY(tool.waitForFinished(30000));
    QFile svgFile(dir.filePath("shapes.svg"));
    QVERIFY(svgFile.open(QIODevice::ReadOnly));

    std::map<QString, QRectF> theirs;
    QXmlStreamReader svg(&svgFile);
    while (!svg.atEnd()) {
        if (svg.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes a = svg.attributes();
        auto number = [&](const char* name) { return a.value(QLatin1String(name)).toDouble(); };
        const QString fill = a.value("style").toString().section("fill:", 1).section(';', 0, 0);
        if (svg.name() == QLatin1String("rect"))
            theirs[fill] = QRectF(number("x"), number("y"), number("width"), number("height"));
        if (svg.name() == QLatin1String("ellipse"))
            theirs[fill] = QRectF(number("cx") - number("rx"), number("cy") - number("ry"), 2 * number("rx"), 2 * number("ry"));
        if (svg.name() == QLatin1String("polygon")) {
            QPolygonF points;
            for (const QString& xy : a.value("points").toString().simplified().split(' ', Qt::SkipEmptyParts))
                points << QPointF(xy.section(',', 0, 0).toDouble(), xy.section(',', 1, 1).toDouble());
            theirs[fill] = points.boundingRect();
        }
    }
    QCOMPARE(theirs.size(), std::size_t(3));

    const QImage image = render(w.bytes(), {800, 400});
    std::map<QString, QRectF> ours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y);
            const QString name = qRed(c) > 200 && qGreen(c) < 50 ? "red" : qBlue(c) > 200 && qRed(c) < 50 ? "blue"
                : qGreen(c) > 100 && qRed(c) < 50 && qBlue(c) < 50                                       ? "green"
                                                                                                          : "";
            if (!name.isEmpty())
                ours[name] |= QRectF(x, y, 1, 1);
        }
    QCOMPARE(ours.size(), std::size_t(3));

    auto within = [](const std::map<QString, QRectF>& shapes, const QString& name) {
        QRectF all;
        for (const auto& shape : shapes)
            all |= shape.second;
        const QRectF r = shapes.at(name);
        return QRectF((r.left() - all.left()) / all.width(), (r.top() - all.top()) / all.height(),
                      r.width() / all.width(), r.height() / all.height());
    };
    for (const QString name : {"red", "blue", "green"}) {
        const QRectF a = within(ours, name), b = within(theirs, name);
        QVERIFY2(qAbs(a.left() - b.left()) < 0.02 && qAbs(a.top() - b.top()) < 0.02 && qAbs(a.width() - b.width()) < 0.02
                     && qAbs(a.height() - b.height()) < 0.02,
                 qPrintable(QStringLiteral("%1: ours (%2, %3, %4, %5), libwmf's (%6, %7, %8, %9)").arg(name)
                                .arg(a.left()).arg(a.top()).arg(a.width()).arg(a.height())
                                .arg(b.left()).arg(b.top()).arg(b.width()).arg(b.height())));
    }
}

QTEST_MAIN(TestMetafile)
#include "tst_metafile.moc"
