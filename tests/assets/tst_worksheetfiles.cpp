// The six worksheet metafiles drawassets writes, read whole by the program's reader, and the rules their exercises follow.
#include "runtime/metafile.h"
#include "worksheetexercises.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>
#include <QtTest>

#include <numeric>

namespace {

QByteArray readAsset(const QString &relative)
{
    QFile f(QStringLiteral(PARTITUDE_TEST_ASSETS) + QLatin1Char('/') + relative);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The strings of a sheet's TEXTOUT and EXTTEXTOUT records in file order, and
// how many fonts it makes; only for a file Metafile::parse has taken.
struct SheetText { QStringList texts; int fonts = 0; };

SheetText sheetText(const QByteArray &bytes)
{
    SheetText sheet;
    const char *d = bytes.constData();
    const auto word = [d](qint64 at) { return int(qFromLittleEndian<quint16>(d + at)); };
    for (qint64 at = 22 + 18; word(at + 4) != 0x0000; at += 2 * qint64(qFromLittleEndian<quint32>(d + at))) {
        const int function = word(at + 4);
        sheet.fonts += function == 0x02FB;
        if (function == 0x0521)  // length, string, y, x
            sheet.texts << QString::fromLatin1(d + at + 8, word(at + 6));
        else if (function == 0x0A32)  // y, x, length, options, a box if the options ask for one, string
            sheet.texts << QString::fromLatin1(d + at + 14 + ((word(at + 12) & 0x6) ? 8 : 0), word(at + 10));
    }
    return sheet;
}

enum Kind { Halves, Mixed, Ordering };

// Halves and Quarters: twelve sets to ring, six halves and six quarters.
QString halvesProblem(const QStringList &texts)
{
    const QRegularExpression ring(QStringLiteral("^Ring one (half|quarter) of the (apples|stars|balls|fish|flowers|kites)\\.$"));
    int halves = 0, quarters = 0;
    for (const QString &text : texts) {
        const QRegularExpressionMatch m = ring.match(text);
        halves += m.hasMatch() && m.captured(1) == QLatin1String("half");
        quarters += m.hasMatch() && m.captured(1) == QLatin1String("quarter");
    }
    return halves == 6 && quarters == 6 ? QString() : QStringLiteral("%1 halves, %2 quarters").arg(halves).arg(quarters);
}

// Each section's heading and worked example, then its exercises' numbers: eight
// improper fractions n/d, then eight mixed numbers w n/d, in lowest terms, with
// a whole part of 1 to 5 (improper) or 1 to 9 (mixed), and none twice.
QString mixedProblem(const QStringList &t)
{
    const QString headings[] = {QStringLiteral("Change to a mixed number."), QStringLiteral("Change to an improper fraction.")};
    const QStringList examples[] = {{"For example:", "7", "2", "3", "1", "2"}, {"For example:", "3", "1", "2", "7", "2"}};
    QSet<QString> seen;
    int at = int(t.indexOf(headings[0]));
    for (int n = 1; n <= 16; ++n) {
        const bool toMixed = n <= 8;
        if (n == 1 || n == 9) {
            if (t.value(at) != headings[!toMixed] || t.mid(at + 1, 6) != examples[!toMixed])
                return QStringLiteral("no heading and example before exercise %1").arg(n);
            at += 7;
        }
        if (t.value(at) != QString::number(n))
            return QStringLiteral("no exercise %1").arg(n);
        const int a = t.value(at + 1).toInt(), b = t.value(at + 2).toInt(), c = t.value(at + 3).toInt();
        const int denom = toMixed ? b : c;
        const int whole = toMixed && denom > 0 ? a / denom : a, numer = toMixed && denom > 0 ? a % denom : b;
        const QString what = t.mid(at + 1, toMixed ? 2 : 3).join(QLatin1Char(' '));
        if (denom < 2 || denom > 10 || numer < 1 || numer >= denom || std::gcd(numer, denom) != 1
            || whole < 1 || whole > (toMixed ? 5 : 9) || seen.contains(what))
            return QStringLiteral("exercise %1 is %2").arg(n).arg(what);
        seen.insert(what);
        at += toMixed ? 3 : 4;
    }
    return QString();
}

// Place In Order: twelve sets of five different decimals of one whole part, with one, two and three decimal places among them.
QString orderingProblem(const QStringList &texts)
{
    const QRegularExpression form(QStringLiteral("^([1-5])\\.[1-9]{1,3}$"));
    QStringList numbers;
    QSet<int> lengths;
    for (const QString &text : texts)
        if (form.match(text).hasMatch()) {
            numbers << text;
            lengths.insert(int(text.size()));
        }
    if (numbers.size() != 60 || lengths != QSet<int>({3, 4, 5}))
        return QStringLiteral("%1 decimals").arg(numbers.size());
    for (int set = 0; set < 12; ++set) {
        const QStringList five = numbers.mid(set * 5, 5);
        QSet<int> values;
        for (const QString &n : five)
            if (n.at(0) == five.first().at(0))
                values.insert(qRound(n.toDouble() * 1000));
        if (values.size() != 5)
            return five.join(QLatin1Char(' '));
    }
    return QString();
}

// One sheet: its file, the edition's label, title, instruction, the other edition's sheet, and which rules its exercises follow.
struct SheetRow { QString file, label, title, instruction, twin; Kind kind; };

} // namespace

Q_DECLARE_METATYPE(SheetRow)

class TestWorksheetFiles : public QObject
{
    Q_OBJECT

private slots:
    void sheets_data()
    {
        QTest::addColumn<SheetRow>("row");
        const QString ring = QStringLiteral("Draw a ring round one half or one quarter of each set, as the box says.");
        const QString write = QStringLiteral("Write your answers in the boxes.");
        const QString mixed = QStringLiteral("Mixed Numbers and Improper Fractions");
        const QString order = QStringLiteral("Write each set of numbers in the boxes in order, smallest first.");
        for (const SheetRow &r : {SheetRow{"y2print1", "Year 2", "Halves and Quarters", ring, "u1print1", Halves},
                                  SheetRow{"u1print1", "Unit 1", "Halves and Quarters", ring, "y2print1", Halves},
                                  SheetRow{"y5print4", "Year 5", mixed, write, "u4print4", Mixed},
                                  SheetRow{"u4print4", "Unit 4", mixed, write, "y5print4", Mixed},
                                  SheetRow{"y6print3", "Year 6", "Place In Order", order, "u5print3", Ordering},
                                  SheetRow{"u5print3", "Unit 5", "Place In Order", order, "y6print3", Ordering}})
            QTest::newRow(qPrintable(r.file)) << r;
    }

    void sheets()
    {
        QFETCH(SheetRow, row);
        const auto &[file, label, title, instruction, twin, kind] = row;

        const QByteArray bytes = readAsset(QStringLiteral("wmf/%1.wmf").arg(file));
        QVERIFY2(!bytes.isEmpty(), qPrintable(file + QStringLiteral(" is missing")));
        QString error;
        const std::optional<Metafile> wmf = Metafile::parse(bytes, &error);
        QVERIFY2(wmf, qPrintable(error));
        QVERIFY(wmf->checksumMatches());
        QCOMPARE(wmf->skippedRecordCount(), 0);  // nothing in it that the program does not draw
        // Printed at its own size 1000 twips in from the corner: it fits A4
        // (11906 x 16838) and Letter (12240 x 15840), and fills most of them.
        const QSizeF twips = wmf->sizeInTwips();
        QVERIFY2(twips.width() <= 11906 - 2000 && twips.height() <= 15840 - 2000 && twips.width() > 9000 && twips.height() > 12000,
                 qPrintable(QStringLiteral("%1 x %2 twips").arg(twips.width()).arg(twips.height())));

        const SheetText sheet = sheetText(bytes);
        QVERIFY(sheet.fonts > 0);  // the text is not left in the player's default font
        const QStringList &texts = sheet.texts;
        for (const QString &text : {label, title, instruction, QStringLiteral("Name"), QStringLiteral("Date")})
            QVERIFY2(texts.contains(text), qPrintable(text + QStringLiteral(" not in ") + texts.join(QLatin1Char('|'))));
        const QString otherEdition = QLatin1String(label.startsWith(QLatin1String("Year")) ? "Unit" : "Year");
        for (const QString &text : texts)
            QVERIFY2(!text.contains(otherEdition), qPrintable(text));
        for (int n = 1; n <= (kind == Mixed ? 16 : 12); ++n)
            QVERIFY2(texts.contains(QString::number(n)), qPrintable(QStringLiteral("no exercise %1").arg(n)));

        const QString problem = kind == Halves ? halvesProblem(texts) : kind == Mixed ? mixedProblem(texts) : orderingProblem(texts);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));

        // The other edition's sheet sets exercises of its own.
        const QByteArray twinBytes = readAsset(QStringLiteral("wmf/%1.wmf").arg(twin));
        QVERIFY(Metafile::parse(twinBytes));
        QStringList mine = texts, theirs = sheetText(twinBytes).texts;
        mine.removeAll(label);
        theirs.removeAll(QStringLiteral("%1 %2").arg(otherEdition).arg(twin.at(1)));
        QVERIFY(!theirs.isEmpty() && mine != theirs);
    }

    // The sheet shows no counts as text, so the generator is checked: halves of an
    // even count, quarters of a multiple of four, as many halves as quarters (one
    // more when the number is odd), no picture and no count twice in a row.
    void halvesRules()
    {
        for (int seed = 1; seed <= 100; ++seed) {
            Random::Source rng(seed);
            const int count = 10 + seed % 5;
            const std::vector<HalvesExercise> sheet = makeHalvesExercises(rng, count, 6);
            QCOMPARE(int(sheet.size()), count);
            int halves = 0;
            for (std::size_t i = 0; i < sheet.size(); ++i) {
                const HalvesExercise &e = sheet[i];
                const QString what = QStringLiteral("seed %1: one in %2 of %3 pictures %4")
                                         .arg(seed).arg(e.parts).arg(e.count).arg(e.picture);
                QVERIFY2((e.parts == 2 || e.parts == 4) && e.count >= 2 && e.count <= 16 && e.count % e.parts == 0,
                         qPrintable(what));
                QVERIFY2(i == 0 || (e.picture != sheet[i - 1].picture && e.count != sheet[i - 1].count), qPrintable(what));
                halves += e.parts == 2;
            }
            QCOMPARE(halves, (count + 1) / 2);
        }
    }
};

QTEST_GUILESS_MAIN(TestWorksheetFiles)
#include "tst_worksheetfiles.moc"
