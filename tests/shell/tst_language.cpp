// The translations: both files complete and carried into the program, the
// language chosen from the locale, and the fraction words and sentences in French.
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

namespace {
// The distinct placeholders %1..%9 and %n, sorted.
QStringList placeholders(const QString& text)
{
    QStringList found;
    for (auto it = QRegularExpression(QStringLiteral("%[1-9n]")).globalMatch(text); it.hasNext();)
        found << it.next().captured();
    found.removeDuplicates();
    found.sort();
    return found;
}
} // namespace

class TestLanguage : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { Language::remove(); }

    void filesAreComplete_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("French") << QStringLiteral("fr");
        QTest::newRow("English (United Kingdom)") << QStringLiteral("en_GB");
    }
    // Every source text has a finished translation with its plural forms and
    // placeholders, and the compiled file in the program gives the same words.
    void filesAreComplete()
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
            for (const QString& form : m.forms)
                QVERIFY2(!form.trimmed().isEmpty() && placeholders(form) == placeholders(m.source), qPrintable(where + " -> " + form));
            const QByteArray context = m.context.toUtf8(), source = m.source.toUtf8(), comment = m.comment.toUtf8();
            const char* disambiguation = m.comment.isEmpty() ? nullptr : comment.constData();
            QCOMPARE(compiled.translate(context, source, disambiguation, 1), m.forms.first());
            if (m.numerus)
                QCOMPARE(compiled.translate(context, source, disambiguation, 2), m.forms.last());
            if (language == QLatin1String("en_GB") && !m.numerus) // the source language repeats its texts
                QCOMPARE(m.forms.first(), m.source);
        }
    }

    void languageFromLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("filesThere");
        QTest::addColumn<QString>("language");
        QTest::newRow("France") << "fr_FR" << true << "fr";
        QTest::newRow("Canada, French") << "fr_CA" << true << "fr";
        QTest::newRow("United Kingdom") << "en_GB" << true << "en_GB";
        QTest::newRow("United States: the English there is") << "en_US" << true << "en_GB";
        QTest::newRow("Germany: no German yet") << "de_DE" << true << "en_GB";
        QTest::newRow("translation files missing") << "fr_FR" << false << "";
    }
    void languageFromLocale()
    {
        QFETCH(QString, locale);
        QFETCH(bool, filesThere);
        QFETCH(QString, language);
        QTemporaryDir empty;
        const bool french = language == QLatin1String("fr");
        // A missing file is no failure: nothing is said, the program goes on.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(Language::install(QLocale(locale), filesThere ? Language::kFolder : empty.path()), language);
        QCOMPARE(QCoreApplication::translate("Titlefrm", "Exit"), french ? QStringLiteral("Sortir") : "Exit");
        QCOMPARE(Fractions::words(0, 4), french ? QStringLiteral("zéro quart") : "zero quarters");
        Language::remove();
        QCOMPARE(QCoreApplication::translate("Titlefrm", "Exit"), QStringLiteral("Exit"));
    }

    // The phrases are made here, with French installed; the test body compares.
    void frenchPhrases_data()
    {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QString>("french");
        QCOMPARE(Language::install(QLocale(QLocale::French, QLocale::France)), QStringLiteral("fr"));
        // Fraction words: each its own words, the plural chosen by the count.
        const struct { int top, bottom; const char* words; } fractions[] = {
            {1, 2, "un demi"}, {3, 2, "trois demis"}, {1, 3, "un tiers"}, {2, 3, "deux tiers"},
            {1, 4, "un quart"}, {3, 4, "trois quarts"}, {0, 4, "zéro quart"}, {7, 10, "sept dixièmes"},
            {11, 12, "onze douzièmes"}, {1, 100, "un centième"}, {37, 100, "37 centièmes"}, {1, 13, "un 13e"},
            {5, 13, "cinq 13es"}, {17, 1, "dix-sept"}};
        for (const auto& f : fractions)
            QTest::addRow("%d/%d", f.top, f.bottom) << Fractions::words(f.top, f.bottom) << QString::fromUtf8(f.words);
        QTest::newRow("2 3/4") << Fractions::mixedWords(2, 3, 4) << QStringLiteral("deux et trois quarts");
        QTest::newRow("1 1/2") << Fractions::mixedWords(1, 1, 2) << QStringLiteral("un et un demi");
        QTest::newRow("4 0/7") << Fractions::mixedWords(4, 0, 7) << QStringLiteral("quatre");
        QTest::newRow("part name") << Fractions::partsName(8) << QStringLiteral("huitièmes");

        // Whole sentences around them, with French spacing before ! ? :.
        HalvesShapes::Question shape;
        shape.kind = ShapeKind::SquareGrid;
        shape.parts = shape.bottom = 4;
        shape.top = 3;
        QTest::newRow("colour") << shape.instruction() << QStringLiteral("Colorie trois quarts du carré.");
        QTest::newRow("coloured one") << HalvesShapes::hint(shape, 1)
                                      << QStringLiteral("Le carré est coupé en 4 parts égales. Trois quarts, c'est 3 de ces "
                                                        "parts. Tu en as colorié 1.");
        QTest::newRow("wrong") << HalvesShapes::check(shape, 1).statement
                               << QStringLiteral("Tu as colorié 1 des 4 parts\u00a0: cela fait un quart. Trois quarts, c'est 3 parts.");
        shape.top = 1;
        shape.bottom = shape.parts = 2;
        QTest::newRow("one part") << HalvesShapes::check(shape, 2).statement
                                  << QStringLiteral("Tu as colorié 2 des 2 parts\u00a0: cela fait deux demis. Un demi, c'est 1 part.");
        Halves::Question halves;
        halves.parts = halves.set = 2;
        QTest::newRow("click") << halves.instruction() << QStringLiteral("Clique sur la moitié des canards");
        QTest::newRow("one picture") << Halves::shouldHaveClicked(1) << QStringLiteral("Il fallait cliquer sur 1 image");
        QTest::newRow("pictures") << Halves::shouldHaveClicked(4) << QStringLiteral("Il fallait cliquer sur 4 images");
        const MixedQuestion toMixed{MixedQuestion::kToMixed, 1, 1, 4};
        QTest::newRow("to a mixed number") << toMixed.hintText() << QStringLiteral("4 quarts, c'est 1 unité et il reste 1 quart.");
        QTest::newRow("answer") << toMixed.answerText() << QStringLiteral("5/4, c'est 1 et 1/4");
        QTest::newRow("to an improper fraction") << MixedQuestion{MixedQuestion::kToImproper, 3, 2, 5}.hintText()
                                                 << QStringLiteral("Chaque unité vaut 5 cinquièmes. Tu as 3 unités et 2 cinquièmes.");
    }
    void frenchPhrases()
    {
        QFETCH(QString, phrase);
        QFETCH(QString, french);
        QCOMPARE(phrase, french);
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
