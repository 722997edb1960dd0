// The translations: both files complete and carried into the program, the
// language chosen from the locale (English when there is none, silently),
// and the fraction words and sentences in French.
#include "fractions/fraction.h"
#include "fractions/halvesquestion.h"
#include "fractions/halvesshapes.h"
#include "fractions/mixedquestion.h"
#include "shell/language.h"
#include "translationfile.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using TranslationFile::Message;

class TestLanguage : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { Language::remove(); }
    void filesAreComplete_data();
    void filesAreComplete();
    void languageFromLocale_data();
    void languageFromLocale();
    void frenchPhrases_data();
    void frenchPhrases();
};

namespace {
// %1..%9 and %n, each once in the list, in order.
QStringList placeholders(const QString& text)
{
    QStringList found;
    const QRegularExpression marker(QStringLiteral("%[1-9n]"));
    for (auto it = marker.globalMatch(text); it.hasNext();) {
        const QString m = it.next().captured();
        if (!found.contains(m))
            found << m;
    }
    found.sort();
    return found;
}
} // namespace

void TestLanguage::filesAreComplete_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("French") << QStringLiteral("fr");
    QTest::newRow("English (United Kingdom)") << QStringLiteral("en_GB");
}

// Every source text has a finished translation, with every plural form and
// every placeholder of its source; the compiled file built into the program
// gives the same words.
void TestLanguage::filesAreComplete()
{
    QFETCH(QString, language);
    const QList<Message> messages = TranslationFile::read(TranslationFile::path(language));
    QVERIFY2(messages.size() > 300, qPrintable(TranslationFile::path(language)));
    QTranslator compiled;
    QVERIFY(compiled.load(QStringLiteral("partitude_") + language, Language::kFolder));

    constexpr int kPluralForms = 2; // French and English: one, and more than one
    for (const Message& m : messages) {
        const QString where = m.context + QStringLiteral(": ") + m.source;
        QVERIFY2(!m.unfinished, qPrintable(where));
        QCOMPARE(m.forms.size(), m.numerus ? kPluralForms : 1);
        for (const QString& form : m.forms) {
            QVERIFY2(!form.trimmed().isEmpty(), qPrintable(where));
            QVERIFY2(placeholders(form) == placeholders(m.source), qPrintable(where + QStringLiteral(" -> ") + form));
        }
        const QByteArray context = m.context.toUtf8(), source = m.source.toUtf8(), comment = m.comment.toUtf8();
        const char* disambiguation = m.comment.isEmpty() ? nullptr : comment.constData();
        QCOMPARE(compiled.translate(context, source, disambiguation, 1), m.forms.first());
        if (m.numerus)
            QCOMPARE(compiled.translate(context, source, disambiguation, 2), m.forms.last());
        // The source language's file repeats its source texts.
        if (language == QLatin1String("en_GB") && !m.numerus)
            QCOMPARE(m.forms.first(), m.source);
    }
}

void TestLanguage::languageFromLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("filesThere");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("exit");
    QTest::newRow("France") << "fr_FR" << true << "fr" << QStringLiteral("Sortir");
    QTest::newRow("Canada, French") << "fr_CA" << true << "fr" << QStringLiteral("Sortir");
    QTest::newRow("United Kingdom") << "en_GB" << true << "en_GB" << "Exit";
    QTest::newRow("United States: the English there is") << "en_US" << true << "en_GB" << "Exit";
    QTest::newRow("Germany: no German yet") << "de_DE" << true << "en_GB" << "Exit";
    QTest::newRow("translation files missing") << "fr_FR" << false << "" << "Exit";
}

void TestLanguage::languageFromLocale()
{
    QFETCH(QString, locale);
    QFETCH(bool, filesThere);
    QFETCH(QString, language);
    QFETCH(QString, exit);
    QTemporaryDir empty;
    // A missing file is no failure: nothing is said, the program goes on.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QCOMPARE(Language::install(QLocale(locale), filesThere ? Language::kFolder : empty.path()), language);
    QCOMPARE(QCoreApplication::translate("Titlefrm", "Exit"), exit);
    QCOMPARE(Fractions::words(0, 4), language == QLatin1String("fr") ? QStringLiteral("zéro quart") : "zero quarters");
    Language::remove();
    QCOMPARE(QCoreApplication::translate("Titlefrm", "Exit"), QStringLiteral("Exit"));
}

void TestLanguage::frenchPhrases_data()
{
    QTest::addColumn<QString>("phrase");
    QTest::addColumn<QString>("french");
    QCOMPARE(Language::install(QLocale(QLocale::French, QLocale::France)), QStringLiteral("fr"));
    // Fraction words: each its own words, the plural chosen by the count.
    QTest::newRow("1/2") << Fractions::words(1, 2) << QStringLiteral("un demi");
    QTest::newRow("3/2") << Fractions::words(3, 2) << QStringLiteral("trois demis");
    QTest::newRow("1/3") << Fractions::words(1, 3) << QStringLiteral("un tiers");
    QTest::newRow("2/3") << Fractions::words(2, 3) << QStringLiteral("deux tiers");
    QTest::newRow("1/4") << Fractions::words(1, 4) << QStringLiteral("un quart");
    QTest::newRow("3/4") << Fractions::words(3, 4) << QStringLiteral("trois quarts");
    QTest::newRow("0/4") << Fractions::words(0, 4) << QStringLiteral("zéro quart");
    QTest::newRow("7/10") << Fractions::words(7, 10) << QStringLiteral("sept dixièmes");
    QTest::newRow("11/12") << Fractions::words(11, 12) << QStringLiteral("onze douzièmes");
    QTest::newRow("1/100") << Fractions::words(1, 100) << QStringLiteral("un centième");
    QTest::newRow("37/100") << Fractions::words(37, 100) << QStringLiteral("37 centièmes");
    QTest::newRow("1/13") << Fractions::words(1, 13) << QStringLiteral("un 13e");
    QTest::newRow("5/13") << Fractions::words(5, 13) << QStringLiteral("cinq 13es");
    QTest::newRow("17/1") << Fractions::words(17, 1) << QStringLiteral("dix-sept");
    QTest::newRow("2 3/4") << Fractions::mixedWords(2, 3, 4) << QStringLiteral("deux et trois quarts");
    QTest::newRow("5 2/3") << Fractions::mixedWords(5, 2, 3) << QStringLiteral("cinq et deux tiers");
    QTest::newRow("1 1/2") << Fractions::mixedWords(1, 1, 2) << QStringLiteral("un et un demi");
    QTest::newRow("4 0/7") << Fractions::mixedWords(4, 0, 7) << QStringLiteral("quatre");
    QTest::newRow("part name") << Fractions::partsName(8) << QStringLiteral("huitièmes");

    // Whole sentences around them, with French spacing before ! ? :.
    HalvesShapes::Question shape;
    shape.kind = ShapeKind::SquareGrid;
    shape.parts = 4;
    shape.top = 3;
    shape.bottom = 4;
    QTest::newRow("colour") << shape.instruction() << QStringLiteral("Colorie trois quarts du carré.");
    QTest::newRow("coloured one") << HalvesShapes::hint(shape, 1)
                                  << QStringLiteral("Le carré est coupé en 4 parts égales. Trois quarts, c'est 3 de ces "
                                                    "parts. Tu en as colorié 1.");
    QTest::newRow("wrong") << HalvesShapes::check(shape, 1).statement
                           << QStringLiteral("Tu as colorié 1 des 4 parts\u00a0: cela fait un quart. Trois quarts, "
                                             "c'est 3 parts.");
    shape.top = 1;
    shape.bottom = 2;
    shape.parts = 2;
    QTest::newRow("one part") << HalvesShapes::check(shape, 2).statement
                              << QStringLiteral("Tu as colorié 2 des 2 parts\u00a0: cela fait deux demis. Un demi, "
                                                "c'est 1 part.");
    Halves::Question halves;
    halves.parts = 2;
    halves.set = 2;
    QTest::newRow("click") << halves.instruction() << QStringLiteral("Clique sur la moitié des canards");
    QTest::newRow("one picture") << Halves::shouldHaveClicked(1) << QStringLiteral("Il fallait cliquer sur 1 image");
    QTest::newRow("pictures") << Halves::shouldHaveClicked(4) << QStringLiteral("Il fallait cliquer sur 4 images");
    MixedQuestion mixed;
    mixed.direction = MixedQuestion::kToMixed;
    mixed.whole = 1;
    mixed.numer = 1;
    mixed.denom = 4;
    QTest::newRow("to a mixed number") << mixed.hintText()
                                       << QStringLiteral("4 quarts, c'est 1 unité et il reste 1 quart.");
    QTest::newRow("answer") << mixed.answerText() << QStringLiteral("5/4, c'est 1 et 1/4");
    mixed.direction = MixedQuestion::kToImproper;
    mixed.whole = 3;
    mixed.numer = 2;
    mixed.denom = 5;
    QTest::newRow("to an improper fraction")
        << mixed.hintText() << QStringLiteral("Chaque unité vaut 5 cinquièmes. Tu as 3 unités et 2 cinquièmes.");
}

// The phrases are made in the data function, with French installed.
void TestLanguage::frenchPhrases()
{
    QFETCH(QString, phrase);
    QFETCH(QString, french);
    QCOMPARE(phrase, french);
}

QTEST_GUILESS_MAIN(TestLanguage)

#include "tst_language.moc"
