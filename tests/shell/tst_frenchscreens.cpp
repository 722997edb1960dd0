// With French installed, six screens (three part way through a question) show
// no English: every word seen or heard is French or the same in both languages.
#include "activities/fractionof/y5fract1.h"
#include "activities/halvesshapes/shapesboard.h"
#include "activities/halvesshapes/y2fractions2.h"
#include "activities/mixed/y5fract4.h"
#include "activities/partsofset/y3fract1.h"
#include "activities/review/y5fract5.h"
#include "kit/parts/shapeboard.h"
#include "menus/year.h"
#include "shell/language.h"
#include "shell/titlefrm.h"
#include "testsupport.h"
#include "translationfile.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextDocumentFragment>
#include <QtTest>

namespace {
QStringList wordsOf(const QString& text)
{
    static const QRegularExpression notLetters(QStringLiteral("[^\\p{L}]+"));
    QStringList words = text.toLower().split(notLetters, Qt::SkipEmptyParts);
    words.removeIf([](const QString& w) { return w.size() < 2; });
    return words;
}

// Everything a screen shows or says: title, each visible control's words and
// tip, and what a screen reader reads of it and of the parts inside it.
QStringList shownTexts(QWidget* form)
{
    QStringList texts{form->windowTitle()};
    QList<QWidget*> widgets = form->findChildren<QWidget*>();
    widgets.prepend(form);
    for (QWidget* w : std::as_const(widgets)) {
        if (w != form && !w->isVisibleTo(form))
            continue;
        texts << w->toolTip() << w->accessibleName() << w->accessibleDescription();
        if (auto* label = qobject_cast<QLabel*>(w))
            texts << QTextDocumentFragment::fromHtml(label->text()).toPlainText();
        if (auto* button = qobject_cast<QAbstractButton*>(w))
            texts << button->text();
        if (auto* box = qobject_cast<QLineEdit*>(w))
            texts << box->placeholderText();
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(w);
        for (int i = -1; spoken && i < spoken->childCount(); ++i)
            if (QAccessibleInterface* part = i < 0 ? spoken : spoken->child(i))
                texts << part->text(QAccessible::Name) << part->text(QAccessible::Description);
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

// An activity opened from its menu and started.
template <class Screen> Screen* started(const char* menu, const char* button)
{
    Forms::show(QString::fromLatin1(menu))->findChild<QPushButton*>(QString::fromLatin1(button))->click();
    TestSupport::flushUnloads();
    auto* form = Forms::find<Screen>();
    form->cmdstart_Click();
    return form;
}

Form* openScreen(const QString& which)
{
    if (which == QLatin1String("title"))
        return Forms::show<Titlefrm>();
    if (which == QLatin1String("year menu"))
        return Forms::show<Year>();
    if (which == QLatin1String("Year 2 menu"))
        return Forms::show(QStringLiteral("y2Intro"));
    if (which == QLatin1String("Halves and Quarters 2")) { // one part coloured and a hint asked for
        auto* form = started<Y2fractions2>("y2Intro", "Command2");
        static_cast<ShapesBoard*>(form->board())->Shape1->togglePart(0);
        form->cmdhint_Click();
        return form;
    }
    KitScreen* kit = nullptr;
    if (which == QLatin1String("Year 5 review")) // a question of the review
        kit = started<y5fract5>("y5Intro", "Command6");
    else if (which == QLatin1String("Year 3 pictures")) // a hint that counts the pictures chosen
        kit = started<y3fract1>("y3Intro", "Command2");
    else if (which == QLatin1String("fractions of numbers"))
        kit = started<y5fract1>("y5Intro", "Command1");
    if (kit) {
        kit->cmdhint_Click();
        return kit;
    }
    auto* form = started<y5fract4>("y5Intro2", "Command1"); // mixed numbers, a hint asked for
    form->cmdhint_Click();
    return form;
}
} // namespace

class TestFrenchScreens : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QCOMPARE(Language::install(QLocale(QLocale::French, QLocale::France)), QStringLiteral("fr"));
        const QList<TranslationFile::Message> messages = TranslationFile::read(TranslationFile::path(QStringLiteral("fr")));
        QSet<QString> frenchWords;
        for (const TranslationFile::Message& m : messages)
            for (const QString& form : m.forms) {
                for (const QString& w : wordsOf(form))
                    frenchWords << w;
                if (form != m.source)
                    m_englishSources << m.source;
            }
        for (const TranslationFile::Message& m : messages)
            for (const QString& w : wordsOf(m.source))
                if (!frenchWords.contains(w))
                    m_englishWords << w;
        // The words that give English away are there to be found.
        QVERIFY(m_englishWords.contains(QStringLiteral("goodbye")) && m_englishWords.contains(QStringLiteral("quarters")));
    }
    void cleanupTestCase() { Language::remove(); }
    void init() { world.fresh(5); }

    void screenSpeaksFrench_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("aFrenchText");
        QTest::newRow("title screen") << "title" << QStringLiteral("Sortir");
        QTest::newRow("year menu") << "year menu" << QStringLiteral("CE1");
        QTest::newRow("Year 2 menu") << "Year 2 menu" << QStringLiteral("Demis et quarts 2");
        QTest::newRow("Halves and Quarters 2, a hint") << "Halves and Quarters 2" << QStringLiteral("Indice");
        QTest::newRow("mixed numbers, a hint") << "mixed numbers" << QStringLiteral("Vérifier");
        QTest::newRow("Year 5 review, a hint") << "Year 5 review" << QStringLiteral("Vérifier");
        QTest::newRow("Year 3 pictures, a hint") << "Year 3 pictures" << QStringLiteral("Tu n'en as encore choisi aucune.");
        QTest::newRow("fractions of numbers, a hint") << "fractions of numbers" << QStringLiteral("Indice");
    }
    void screenSpeaksFrench()
    {
        QFETCH(QString, screen);
        QFETCH(QString, aFrenchText);
        Form* form = openScreen(screen);
        QVERIFY(form && form->isVisible());
        const QStringList texts = shownTexts(form);
        QVERIFY2(texts.contains(aFrenchText), qPrintable(texts.join(QStringLiteral(" | "))));
        for (const QString& text : texts)
            QVERIFY2(englishIn(text).isEmpty(), qPrintable(QStringLiteral("\"%1\" is English: %2").arg(text, englishIn(text).join(", "))));
    }

private:
    QStringList englishIn(const QString& text) const
    {
        QStringList found;
        if (m_englishSources.contains(text))
            found << text;
        static const QRegularExpression webAddress(QStringLiteral("(https?://|www\\.)\\S+")); // the same in every language
        for (const QString& w : wordsOf(QString(text).remove(webAddress)))
            if (m_englishWords.contains(w))
                found << w;
        return found;
    }

    TestSupport::World world;
    QSet<QString> m_englishWords;   // words of the English texts that no French text has
    QSet<QString> m_englishSources; // English texts whose French differs
};

QTEST_MAIN(TestFrenchScreens)
#include "tst_frenchscreens.moc"
