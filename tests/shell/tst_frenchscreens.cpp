// With the French translation installed, the title screen, the year menu, a
// menu of activities and two activities part way through a question show no
// English: every word a child sees or hears is French (or the same in both
// languages, as "Partitude", "OK" or the numbers).
#include "activities/halvesshapes/shapesboard.h"
#include "activities/halvesshapes/y2fractions2.h"
#include "activities/mixed/y5fract4.h"
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

class TestFrenchScreens : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { Language::remove(); }
    void init() { world.fresh(5); }
    void screenSpeaksFrench_data();
    void screenSpeaksFrench();

private:
    QStringList englishIn(const QString& text) const;

    TestSupport::World world;
    QSet<QString> m_englishWords;   // words of the English texts that no French text has
    QSet<QString> m_englishSources; // English texts whose French differs
};

namespace {
QStringList wordsOf(const QString& text)
{
    static const QRegularExpression notLetters(QStringLiteral("[^\\p{L}]+"));
    QStringList words;
    for (const QString& w : text.toLower().split(notLetters, Qt::SkipEmptyParts))
        if (w.size() > 1)
            words << w;
    return words;
}

// Everything a screen shows or says: its title, each visible control's
// words, tip, and the names and descriptions a screen reader reads (of the
// control and of the parts inside it).
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
        if (QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(w)) {
            texts << spoken->text(QAccessible::Name) << spoken->text(QAccessible::Description);
            for (int i = 0; i < spoken->childCount(); ++i)
                if (QAccessibleInterface* part = spoken->child(i))
                    texts << part->text(QAccessible::Name) << part->text(QAccessible::Description);
        }
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

Form* openScreen(const QString& which)
{
    if (which == QLatin1String("title"))
        return Forms::show<Titlefrm>();
    if (which == QLatin1String("year menu"))
        return Forms::show<Year>();
    if (which == QLatin1String("Year 2 menu"))
        return Forms::show(QStringLiteral("y2Intro"));
    if (which == QLatin1String("Halves and Quarters 2")) {
        // From its menu, started, one part coloured and a hint asked for.
        Forms::show(QStringLiteral("y2Intro"))->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
        TestSupport::flushUnloads();
        auto* form = Forms::find<Y2fractions2>();
        form->cmdstart_Click();
        static_cast<ShapesBoard*>(form->board())->Shape1->togglePart(0);
        form->cmdhint_Click();
        return form;
    }
    // Mixed numbers, from its menu, started and a hint asked for.
    Forms::show(QStringLiteral("y5Intro2"))->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    TestSupport::flushUnloads();
    auto* form = Forms::find<y5fract4>();
    form->cmdstart_Click();
    form->cmdhint_Click();
    return form;
}
} // namespace

void TestFrenchScreens::initTestCase()
{
    QCOMPARE(Language::install(QLocale(QLocale::French, QLocale::France)), QStringLiteral("fr"));
    const QList<TranslationFile::Message> messages = TranslationFile::read(TranslationFile::path(QStringLiteral("fr")));
    QVERIFY(!messages.isEmpty());
    QSet<QString> frenchWords;
    for (const TranslationFile::Message& m : messages) {
        for (const QString& form : m.forms) {
            for (const QString& w : wordsOf(form))
                frenchWords << w;
            if (form != m.source)
                m_englishSources << m.source;
        }
    }
    for (const TranslationFile::Message& m : messages)
        for (const QString& w : wordsOf(m.source))
            if (!frenchWords.contains(w))
                m_englishWords << w;
    // The words that give English away are there to be found.
    QVERIFY(m_englishWords.contains(QStringLiteral("goodbye")) && m_englishWords.contains(QStringLiteral("quarters")));
}

QStringList TestFrenchScreens::englishIn(const QString& text) const
{
    QStringList found;
    if (m_englishSources.contains(text))
        found << text;
    // A web address is an address in every language.
    static const QRegularExpression webAddress(QStringLiteral("(https?://|www\\.)\\S+"));
    for (const QString& w : wordsOf(QString(text).remove(webAddress)))
        if (m_englishWords.contains(w))
            found << w;
    return found;
}

void TestFrenchScreens::screenSpeaksFrench_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("aFrenchText");
    QTest::newRow("title screen") << "title" << QStringLiteral("Sortir");
    QTest::newRow("year menu") << "year menu" << QStringLiteral("CE1");
    QTest::newRow("Year 2 menu") << "Year 2 menu" << QStringLiteral("Demis et quarts 2");
    QTest::newRow("Halves and Quarters 2, a hint") << "Halves and Quarters 2" << QStringLiteral("Indice");
    QTest::newRow("mixed numbers, a hint") << "mixed numbers" << QStringLiteral("Vérifier");
}

void TestFrenchScreens::screenSpeaksFrench()
{
    QFETCH(QString, screen);
    QFETCH(QString, aFrenchText);
    Form* form = openScreen(screen);
    QVERIFY(form && form->isVisible());
    const QStringList texts = shownTexts(form);
    QVERIFY2(texts.contains(aFrenchText), qPrintable(texts.join(QStringLiteral(" | "))));
    for (const QString& text : texts)
        QVERIFY2(englishIn(text).isEmpty(),
                 qPrintable(QStringLiteral("\"%1\" is English: %2").arg(text, englishIn(text).join(QStringLiteral(", ")))));
}

QTEST_MAIN(TestFrenchScreens)
#include "tst_frenchscreens.moc"
