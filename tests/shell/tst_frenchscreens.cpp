// With French installed, screens (some part way through a question) show no English: every word seen or heard
// is French or the same in both languages.
#include "activitytest.h"
#include "activities/halvesshapes/shapesboard.h"
#include "kit/parts/shapeboard.h"
#include "shell/language.h"
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
        QTest::addColumn<QString>("screen"); // an activity is started, and a hint asked for
        QTest::addColumn<QString>("aFrenchText");
        QTest::newRow("title screen") << "Titlefrm" << QStringLiteral("Sortir");
        QTest::newRow("year menu") << "Year" << QStringLiteral("CE1");
        QTest::newRow("Year 2 menu") << "y2Intro" << QStringLiteral("Demis et quarts 2");
        QTest::newRow("Halves and Quarters 2, one part coloured") << "Y2fractions2" << QStringLiteral("Indice");
        QTest::newRow("mixed numbers") << "y5fract4" << QStringLiteral("Vérifier");
        QTest::newRow("Year 5 review") << "y5fract5" << QStringLiteral("Vérifier");
        QTest::newRow("Year 3 pictures: how many chosen") << "y3fract1" << QStringLiteral("Tu n'en as encore choisi aucune.");
        QTest::newRow("fractions of numbers") << "y5fract1" << QStringLiteral("Indice");
    }
    void screenSpeaksFrench()
    {
        QFETCH(QString, screen);
        QFETCH(QString, aFrenchText);
        Form* form = Activities::forScreen(screen) ? nullptr : Forms::show(screen);
        if (auto* activity = form ? nullptr : ActivityTest::open<ActivityForm>(screen)) {
            activity->cmdstart->click();
            if (auto* shapes = activity->findChild<ShapesBoard*>())
                shapes->Shape1->togglePart(0);
            activity->cmdhint->click();
            form = activity;
        }
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
