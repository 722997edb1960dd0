// Checks the six worksheet metafiles drawassets writes: each is a sound
// placeable metafile of the right page size, made only of the records the
// program's picture loading knows, and says what the sheet is for. Also
// checks the metafile writer's own bookkeeping and that the exercises
// follow the activities' rules.
#include "wmfcheck.h"
#include "wmfwriter.h"
#include "worksheetexercises.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <numeric>

namespace {

QByteArray readAsset(const QString &relative)
{
    QFile f(QStringLiteral(PARTITUDE_TEST_ASSETS) + QLatin1Char('/') + relative);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString mismatch(const QString &what, int seed)
{
    return QStringLiteral("seed %1: %2").arg(seed).arg(what);
}

} // namespace

class TestWorksheetFiles : public QObject
{
    Q_OBJECT

private slots:
    void sheets_data();
    void sheets();
    void orderingSheetNumbers_data();
    void orderingSheetNumbers();
    void mixedSheetNumbers_data();
    void mixedSheetNumbers();
    void editionsDiffer();
    void checkFindsFaults_data();
    void checkFindsFaults();
    void writerHeader();
    void writerReusesSlots();
    void writerRefusesMisuse();
    void halvesRules();
    void mixedRules();
    void orderingRules();
};

void TestWorksheetFiles::sheets_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("instruction");
    QTest::addColumn<QString>("pattern");  // a text the exercises repeat
    QTest::addColumn<int>("repeats");      // how often, at least
    QTest::addColumn<int>("exercises");    // numbered 1 upwards

    const QString ring = QStringLiteral("^Ring one (half|quarter) of the (apples|stars|balls|fish|flowers|kites)\\.$");
    const QString ringAll = QStringLiteral("Draw a ring round one half or one quarter of each set, as the box says.");
    QTest::newRow("y2print1") << "wmf/y2print1.wmf" << "Year 2" << "Halves and Quarters" << ringAll << ring << 12 << 12;
    QTest::newRow("u1print1") << "wmf/u1print1.wmf" << "Unit 1" << "Halves and Quarters" << ringAll << ring << 12 << 12;

    const QString change = QStringLiteral("^Change to (a mixed number|an improper fraction)\\.$");
    const QString write = QStringLiteral("Write your answers in the boxes.");
    const QString mixed = QStringLiteral("Mixed Numbers and Improper Fractions");
    QTest::newRow("y5print4") << "wmf/y5print4.wmf" << "Year 5" << mixed << write << change << 2 << 16;
    QTest::newRow("u4print4") << "wmf/u4print4.wmf" << "Unit 4" << mixed << write << change << 2 << 16;

    const QString decimal = QStringLiteral("^[1-5]\\.[1-9]{1,3}$");
    const QString order = QStringLiteral("Write each set of numbers in the boxes in order, smallest first.");
    QTest::newRow("y6print3") << "wmf/y6print3.wmf" << "Year 6" << "Place In Order" << order << decimal << 12 * 5 << 12;
    QTest::newRow("u5print3") << "wmf/u5print3.wmf" << "Unit 5" << "Place In Order" << order << decimal << 12 * 5 << 12;
}

void TestWorksheetFiles::sheets()
{
    QFETCH(QString, file);
    QFETCH(QString, label);
    QFETCH(QString, title);
    QFETCH(QString, instruction);
    QFETCH(QString, pattern);
    QFETCH(int, repeats);
    QFETCH(int, exercises);

    const QByteArray bytes = readAsset(file);
    QVERIFY2(!bytes.isEmpty(), qPrintable(file + QStringLiteral(" is missing")));
    const WmfCheck wmf = checkWmf(bytes);
    QVERIFY2(wmf.problem.isEmpty(), qPrintable(wmf.problem));

    // 6.5 x 9.3 inches: fits A4 (8.27 x 11.69) and Letter (8.5 x 11) with
    // the 1000-twip margin the program prints it at.
    QCOMPARE(wmf.box, QRect(0, 0, 9360, 13390));
    QCOMPARE(wmf.inch, 1440);
    const double right = (1000.0 + wmf.box.width()) / wmf.inch, bottom = (1000.0 + wmf.box.height()) / wmf.inch;
    QVERIFY(right < 8.27 && bottom < 11.0);
    // Pens, brushes and fonts are replaced as the drawing goes, not heaped up.
    QVERIFY2(wmf.objectCount >= 3 && wmf.objectCount <= 6, qPrintable(QString::number(wmf.objectCount)));
    QCOMPARE(wmf.peakObjects, wmf.objectCount);
    QVERIFY(wmf.functionCounts.value(0x0521) > 0 && wmf.functionCounts.value(0x02FB) > 0);

    QVERIFY2(wmf.texts.contains(label), qPrintable(wmf.texts.join(QLatin1Char('|'))));
    QVERIFY(wmf.texts.contains(title));
    QVERIFY(wmf.texts.contains(instruction));
    QVERIFY(wmf.texts.contains(QStringLiteral("Name")) && wmf.texts.contains(QStringLiteral("Date")));
    const QString otherEdition = label.startsWith(QLatin1String("Year")) ? QStringLiteral("Unit") : QStringLiteral("Year");
    for (const QString &text : wmf.texts)
        QVERIFY2(!text.contains(otherEdition), qPrintable(text));

    const QRegularExpression repeated(pattern);
    int matching = 0;
    for (const QString &text : wmf.texts)
        matching += repeated.match(text).hasMatch();
    QVERIFY2(matching >= repeats, qPrintable(QStringLiteral("%1 of %2").arg(matching).arg(repeats)));
    QVERIFY(exercises >= 10);
    for (int n = 1; n <= exercises; ++n)
        QVERIFY2(wmf.texts.contains(QString::number(n)), qPrintable(QStringLiteral("no exercise %1").arg(n)));
}

void TestWorksheetFiles::orderingSheetNumbers_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("y6print3") << "wmf/y6print3.wmf";
    QTest::newRow("u5print3") << "wmf/u5print3.wmf";
}

void TestWorksheetFiles::orderingSheetNumbers()
{
    QFETCH(QString, file);
    const WmfCheck wmf = checkWmf(readAsset(file));
    QVERIFY2(wmf.problem.isEmpty(), qPrintable(wmf.problem));
    QStringList numbers;
    for (const QString &text : wmf.texts)
        if (text.contains(QLatin1Char('.')) && text.size() <= 5 && text.at(0).isDigit())
            numbers << text;
    QCOMPARE(numbers.size(), 60);
    // Five at a time, in the order the cards are drawn.
    for (int set = 0; set < 12; ++set) {
        const QStringList five = numbers.mid(set * 5, 5);
        QSet<int> values;
        for (const QString &n : five) {
            QVERIFY2(QRegularExpression(QStringLiteral("^[1-5]\\.[1-9]{1,3}$")).match(n).hasMatch(), qPrintable(n));
            QCOMPARE(n.at(0), five.first().at(0));
            values.insert(qRound(n.toDouble() * 1000));
        }
        QVERIFY2(values.size() == 5, qPrintable(five.join(QLatin1Char(' '))));
    }
}

void TestWorksheetFiles::mixedSheetNumbers_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("y5print4") << "wmf/y5print4.wmf";
    QTest::newRow("u4print4") << "wmf/u4print4.wmf";
}

void TestWorksheetFiles::mixedSheetNumbers()
{
    // The texts come as the sheet is drawn: a section heading, its worked
    // example 7/2 = 3 1/2, then each exercise's number and its numbers.
    QFETCH(QString, file);
    const WmfCheck wmf = checkWmf(readAsset(file));
    QVERIFY2(wmf.problem.isEmpty(), qPrintable(wmf.problem));
    const QStringList &t = wmf.texts;
    int at = int(t.indexOf(QStringLiteral("Change to a mixed number.")));
    QVERIFY(at > 0);
    QCOMPARE(t.mid(at + 1, 6), QStringList({"For example:", "7", "2", "3", "1", "2"}));
    at += 7;
    int exercise = 1;
    QSet<QString> seen;
    for (; exercise <= 8; ++exercise, at += 3) {
        QCOMPARE(t.value(at), QString::number(exercise));
        const int numer = t.value(at + 1).toInt(), denom = t.value(at + 2).toInt();
        const QString what = QStringLiteral("%1/%2").arg(numer).arg(denom);
        // Improper, in lowest terms, with a whole part of 1 to 5.
        QVERIFY2(denom >= 2 && denom <= 10 && numer > denom && numer % denom != 0, qPrintable(what));
        QVERIFY2(std::gcd(numer, denom) == 1 && numer / denom <= 5, qPrintable(what));
        QVERIFY2(!seen.contains(what), qPrintable(what));
        seen.insert(what);
    }
    QCOMPARE(t.value(at), QStringLiteral("Change to an improper fraction."));
    QCOMPARE(t.mid(at + 1, 6), QStringList({"For example:", "3", "1", "2", "7", "2"}));
    at += 7;
    for (; exercise <= 16; ++exercise, at += 4) {
        QCOMPARE(t.value(at), QString::number(exercise));
        const int whole = t.value(at + 1).toInt(), numer = t.value(at + 2).toInt(),
                  denom = t.value(at + 3).toInt();
        const QString what = QStringLiteral("%1 %2/%3").arg(whole).arg(numer).arg(denom);
        QVERIFY2(whole >= 1 && whole <= 9 && denom >= 2 && denom <= 10, qPrintable(what));
        QVERIFY2(numer >= 1 && numer < denom && std::gcd(numer, denom) == 1, qPrintable(what));
        QVERIFY2(!seen.contains(what), qPrintable(what));
        seen.insert(what);
    }
}

void TestWorksheetFiles::editionsDiffer()
{
    // The secondary edition's sheets have their own exercises.
    for (const auto &pair : {qMakePair("y2print1", "u1print1"), qMakePair("y5print4", "u4print4"),
                             qMakePair("y6print3", "u5print3")}) {
        QStringList primary = checkWmf(readAsset(QStringLiteral("wmf/%1.wmf").arg(QLatin1String(pair.first)))).texts;
        QStringList secondary = checkWmf(readAsset(QStringLiteral("wmf/%1.wmf").arg(QLatin1String(pair.second)))).texts;
        QVERIFY(!primary.isEmpty());
        primary.removeAll(QStringLiteral("Year %1").arg(pair.first[1]));
        secondary.removeAll(QStringLiteral("Unit %1").arg(pair.second[1]));
        QVERIFY2(primary != secondary, pair.first);
    }
}

void TestWorksheetFiles::checkFindsFaults_data()
{
    // Each row spoils one thing in a sound sheet; the check must say so.
    QTest::addColumn<int>("fault");
    QTest::addColumn<QString>("expected");
    QTest::newRow("checksum") << 0 << "checksum";
    QTest::newRow("object count") << 1 << "object table";
    QTest::newRow("largest record") << 2 << "largest record";
    QTest::newRow("file size") << 3 << "words";
    QTest::newRow("no end") << 4 << "META_EOF";
    QTest::newRow("select of an empty slot") << 5 << "holds no object";
    QTest::newRow("unknown record") << 6 << "may use";
    QTest::newRow("ellipse off the picture") << 7 << "off the picture";
    QTest::newRow("pen record size") << 8 << "9 words";
}

void TestWorksheetFiles::checkFindsFaults()
{
    QFETCH(int, fault);
    QFETCH(QString, expected);
    QByteArray b = readAsset(QStringLiteral("wmf/y2print1.wmf"));
    QVERIFY(checkWmf(b).problem.isEmpty());
    auto first = [&b](int function) {
        for (int at = 40; at + 6 <= b.size();) {
            if (qFromLittleEndian<quint16>(b.constData() + at + 4) == function)
                return at;
            at += 2 * int(qFromLittleEndian<quint32>(b.constData() + at));
        }
        return -1;
    };
    const int header = 22;
    switch (fault) {
    case 0: b[20] = char(b[20] ^ 1); break;
    case 1: b[header + 10] = char(b[header + 10] - 1); break;
    case 2: b[header + 12] = char(b[header + 12] + 1); break;
    case 3: b[header + 6] = char(b[header + 6] + 1); break;
    case 4: b.chop(6); b[header + 6] = char(b[header + 6] - 3); break;
    case 5: b[first(0x012D) + 6] = 9; break;
    case 6: b[first(0x0418) + 5] = 0x06; break;  // ELLIPSE becomes an unlisted 0x0618
    case 7: b[first(0x0418) + 7] = 0x7f; break;
    case 8: b[first(0x02FA)] = char(b[first(0x02FA)] + 1); break;
    }
    const QString problem = checkWmf(b).problem;
    QVERIFY2(problem.contains(expected), qPrintable(problem));
}

void TestWorksheetFiles::writerHeader()
{
    const QByteArray header = WmfWriter::placeableHeader(QRect(0, 0, 9360, 13390), 1440);
    QCOMPARE(header.size(), 22);
    quint16 words[10];
    for (int i = 0; i < 10; ++i)
        words[i] = qFromLittleEndian<quint16>(header.constData() + 2 * i);
    QCOMPARE(words[0], quint16(0xCDD7));
    QCOMPARE(words[1], quint16(0x9AC6));
    QCOMPARE(words[5], quint16(9360));
    QCOMPARE(words[6], quint16(13390));
    QCOMPARE(words[7], quint16(1440));
    // 0xCDD7 ^ 0x9AC6 ^ 9360 (0x2490) ^ 13390 (0x344E) ^ 1440 (0x05A0)
    QCOMPARE(WmfWriter::placeableChecksum(header), quint16(0x426F));
    QCOMPARE(qFromLittleEndian<quint16>(header.constData() + 20), quint16(0x426F));

    // Known record sizes: the window set-up (4 + 5 + 5 words), a three-letter
    // TEXTOUT (3 + 1 + 2 + 2), a font (3 + 9 + 16), its delete (4) and EOF (3).
    WmfWriter w(100, 50, 1440);
    const int font = w.createFont(Wmf::Font());
    w.selectObject(font);
    w.textOut(10, 20, "abc");
    const QByteArray file = w.finish();
    QVERIFY2(!file.isEmpty(), qPrintable(w.error()));
    const WmfCheck c = checkWmf(file);
    QVERIFY2(c.problem.isEmpty(), qPrintable(c.problem));
    QCOMPARE(c.texts, QStringList{QStringLiteral("abc")});
    const int words14 = 4 + 5 + 5, body = words14 + 28 + 4 + 8 + 4 + 3;
    QCOMPARE(qFromLittleEndian<quint32>(file.constData() + 22 + 6), quint32(9 + body));
    QCOMPARE(file.size(), 22 + 2 * (9 + body));
    QCOMPARE(qFromLittleEndian<quint32>(file.constData() + 22 + 12), quint32(28));
    QCOMPARE(w.objectTableSize(), 1);
}

void TestWorksheetFiles::writerReusesSlots()
{
    WmfWriter w(1000, 1000);
    const int pen = w.createPen(Wmf::PenSolid, 15, Qt::black);
    const int brush = w.createBrush(Wmf::BrushSolid, Qt::red);
    const int font = w.createFont(Wmf::Font());
    QCOMPARE(QList<int>({pen, brush, font}), QList<int>({0, 1, 2}));
    w.deleteObject(brush);
    QVERIFY(!w.isLive(brush));
    QCOMPARE(w.createBrush(Wmf::BrushNull, Qt::white), 1);  // the lowest free slot
    w.deleteObject(pen);
    w.deleteObject(1);
    QCOMPARE(w.createPen(Wmf::PenDash, 10, Qt::blue), 0);
    QCOMPARE(w.createPen(Wmf::PenDot, 10, Qt::blue), 1);
    QCOMPARE(w.createPen(Wmf::PenNull, 0, Qt::blue), 3);
    QCOMPARE(w.objectTableSize(), 4);
    w.selectObject(3);
    w.rectangle(QRect(10, 10, 100, 100));
    w.polygon({QPoint(0, 0), QPoint(999, 0), QPoint(500, 999)});

    const QByteArray file = w.finish();
    const WmfCheck c = checkWmf(file);
    QVERIFY2(c.problem.isEmpty(), qPrintable(c.problem));  // also: every object deleted at the end
    QCOMPARE(c.objectCount, 4);
    QCOMPARE(c.peakObjects, 4);
    QCOMPARE(c.functionCounts.value(0x01F0), 3 + 4);
}

void TestWorksheetFiles::writerRefusesMisuse()
{
    WmfWriter unused(100, 100);
    unused.selectObject(0);
    QVERIFY(unused.finish().isEmpty());
    QVERIFY(!unused.error().isEmpty());

    WmfWriter twice(100, 100);
    twice.deleteObject(twice.createPen(Wmf::PenSolid, 1, Qt::black));
    twice.deleteObject(0);
    QVERIFY(twice.finish().isEmpty());

    WmfWriter far(100, 100);
    far.lineTo(40000, 5);
    QVERIFY(far.finish().isEmpty());

    WmfWriter late(100, 100);
    QVERIFY(!late.finish().isEmpty());
    late.ellipse(QRect(0, 0, 5, 5));
    QVERIFY(!late.error().isEmpty());
}

void TestWorksheetFiles::halvesRules()
{
    for (int seed = 1; seed <= 300; ++seed) {
        Rng rng(seed);
        const int count = 10 + seed % 5;
        const std::vector<HalvesExercise> sheet = makeHalvesExercises(rng, count, 6);
        QCOMPARE(int(sheet.size()), count);
        int halves = 0;
        QVector<int> uses(6, 0);
        for (std::size_t i = 0; i < sheet.size(); ++i) {
            const HalvesExercise &e = sheet[i];
            QVERIFY2(e.parts == 2 || e.parts == 4, qPrintable(mismatch(QString::number(e.parts), seed)));
            QVERIFY2(e.count >= 2 && e.count <= 16 && e.count % e.parts == 0,
                     qPrintable(mismatch(QStringLiteral("%1 of %2").arg(e.parts).arg(e.count), seed)));
            QVERIFY(e.target() >= 1 && e.target() <= 8);
            QVERIFY(e.picture >= 0 && e.picture < 6);
            if (i > 0) {
                QVERIFY2(e.picture != sheet[i - 1].picture, qPrintable(mismatch(QStringLiteral("same picture"), seed)));
                QVERIFY2(e.count != sheet[i - 1].count, qPrintable(mismatch(QStringLiteral("same count"), seed)));
            }
            halves += e.parts == 2;
            ++uses[e.picture];
        }
        QCOMPARE(halves, (count + 1) / 2);
        const auto [fewest, most] = std::minmax_element(uses.begin(), uses.end());
        QVERIFY2(*most - *fewest <= 1, qPrintable(mismatch(QStringLiteral("pictures unevenly used"), seed)));
    }
    Rng a(7), b(7);
    const auto first = makeHalvesExercises(a, 12, 6), second = makeHalvesExercises(b, 12, 6);
    for (std::size_t i = 0; i < first.size(); ++i)
        QVERIFY(first[i].count == second[i].count && first[i].picture == second[i].picture);
}

void TestWorksheetFiles::mixedRules()
{
    for (int seed = 1; seed <= 300; ++seed) {
        for (bool toMixed : {true, false}) {
            Rng rng(seed);
            const std::vector<MixedExercise> sheet = makeMixedExercises(rng, toMixed, 8);
            QCOMPARE(int(sheet.size()), 8);
            for (std::size_t i = 0; i < sheet.size(); ++i) {
                const MixedExercise &e = sheet[i];
                const QString what = QStringLiteral("%1 %2/%3").arg(e.whole).arg(e.numer).arg(e.denom);
                QVERIFY2(e.whole >= 1 && e.whole <= (toMixed ? 5 : 9), qPrintable(mismatch(what, seed)));
                QVERIFY2(e.denom >= 2 && e.denom <= 10, qPrintable(mismatch(what, seed)));
                QVERIFY2(e.numer >= 1 && e.numer < e.denom, qPrintable(mismatch(what, seed)));
                QVERIFY2(std::gcd(e.numer, e.denom) == 1, qPrintable(mismatch(what, seed)));
                QVERIFY2(std::gcd(e.improperNumerator(), e.denom) == 1, qPrintable(mismatch(what, seed)));
                QCOMPARE(e.improperNumerator(), e.whole * e.denom + e.numer);
                for (std::size_t j = 0; j < i; ++j)
                    QVERIFY2(!(sheet[j] == e), qPrintable(mismatch(what + QStringLiteral(" twice"), seed)));
            }
        }
    }
    QCOMPARE(highestCommonFactor(12, 18), 6);
    QCOMPARE(highestCommonFactor(7, 10), 1);
    QCOMPARE(highestCommonFactor(5, 0), 5);
}

void TestWorksheetFiles::orderingRules()
{
    const QRegularExpression form(QStringLiteral("^([1-5])\\.[1-9]{1,3}$"));
    QSet<int> lengths;
    for (int seed = 1; seed <= 300; ++seed) {
        Rng rng(seed);
        const std::vector<OrderingExercise> sheet = makeOrderingExercises(rng, 12);
        QCOMPARE(int(sheet.size()), 12);
        for (const OrderingExercise &e : sheet) {
            QSet<int> values;
            for (const QString &n : e.numbers) {
                const QRegularExpressionMatch m = form.match(n);
                QVERIFY2(m.hasMatch(), qPrintable(mismatch(n, seed)));
                QCOMPARE(m.captured(1).toInt(), e.whole);
                values.insert(qRound(n.toDouble() * 1000));
                lengths.insert(int(n.size()));
            }
            QVERIFY2(values.size() == 5, qPrintable(mismatch(QStringList(e.numbers.begin(), e.numbers.end()).join(' '), seed)));
        }
    }
    QCOMPARE(lengths, QSet<int>({3, 4, 5}));  // one, two and three decimal places all come up
}

QTEST_GUILESS_MAIN(TestWorksheetFiles)
#include "tst_worksheetfiles.moc"
