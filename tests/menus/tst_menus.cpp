#include "menus/activitymenu.h"
#include "menus/year.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "testsupport.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

namespace {

const QString kEither = QStringLiteral(
    "Choose either 10 or 20 questions. Answer this number of questions correctly to gain a certificate.");
const QString kShort = QStringLiteral("Choose 10 or 20 questions. Answer them correctly to gain a certificate.");
const char* kBothWays = "Mixed Numbers To Improper Fractions or Improper Fractions To Mixed Numbers";

// Every activity button: Label12(index) beside it, its title and the screen it opens.
struct Row { const char *menu; int index; const char *button, *title, *screen; bool shortPrompt; };
const Row kRows[] = {
    {"y2Intro", 0, "Command5", "Halves and Quarters 1", "Y2fractions", false},
    {"y2Intro", 1, "Command2", "Halves and Quarters 2", "Y2fractions2", false},
    {"y2Intro", 2, "Command3", "Halves and Quarters 3", "Y2fractions3", true},
    {"y3Intro", 0, "Command2", "Halves, Quarters, Thirds and Tenths 1", "y3fract1", false},
    {"y3Intro", 1, "Command3", "Halves, Quarters, Thirds and Tenths 2", "y3fract2", false},
    {"y3Intro", 2, "Command5", "Halves, Quarters, Thirds and Tenths 3", "y3fract3", false},
    {"y4Intro", 0, "Command1", "Equivalent Fractions 3", "y4fract3", false},
    {"y4Intro", 1, "Command2", "Equivalent Fractions 2", "y4fract2", false},
    {"y4Intro", 2, "Command3", "Write A Fraction", "y4fract4", false},
    {"y4Intro", 3, "Command5", "Equivalent Fractions 1", "y4fract1", false},
    {"y4Intro", 4, "Command6", "More Than, Less Than", "y4fract5", false},
    {"y5Intro", 0, "Command1", "Fractions of Numbers", "y5fract1", false},
    {"y5Intro", 1, "Command3", "Equivalent Fractions", "y5fract2", false},
    {"y5Intro", 2, "Command5", "Cancelling", "y5fract3", false},
    {"y5Intro", 4, "Command6", "Partitude", "y5fract5", false},
    {"y5Intro2", 0, "Command1", kBothWays, "y5fract4", true},
    {"y5Intro2", 1, "Command2", "Mixed Numbers To Improper Fractions", "y5fract6", false},
    {"y5Intro2", 2, "Command5", "Improper Fractions To Mixed Numbers", "y5fract7", false},
    {"y6Intro", 0, "Command2", kBothWays, "y6fract1", false},
    {"y6Intro", 1, "Command3", "Decimals Between", "y6fract2", false},
    {"y6Intro", 2, "Command1", "Place In Order", "Y6fract3", false},
    {"y6Intro", 3, "Command5", "How Many?", "y6fract4", false},
    {"y6Intro", 4, "Command6", "Finding Amounts", "y6fract5", false},
    {"y6Intro", 5, "Command7", "Digits", "y6fract6", false},
    {"y6Intro", 6, "Command8", "Rounding", "y6fract7", false},
};

struct MenuRow { const char *menu, *caption, *year, *unit, *bitmap, *frames; int titles; };
const MenuRow kMenus[] = {
    {"y2Intro", "Welcome", "Year 2", "Unit 1", "bmp\\morvane2.bmp", "bmp\\morv00", 3},
    {"y3Intro", "Welcome", "Year 3", "Unit 2", "bmp\\morvane3.bmp", "bmp\\smmv00", 3},
    {"y4Intro", "Welcome", "Year 4", "Unit 3", "bmp\\morvane2.bmp", "bmp\\morv00", 5},
    {"y5Intro", "Welcome", "Year 5", "Unit 4", "bmp\\morvane2.bmp", "bmp\\morv00", 5},
    {"y5Intro2", "Mixed Numbers and Improper Fractions", "Year 5", "Unit 4", "bmp\\morvane3.bmp", "bmp\\smmv00", 3},
    {"y6Intro", "Welcome", "Year 6", "Unit 5", "bmp\\morvane3.bmp", "bmp\\smmv00", 7},
};

QPushButton* button(const QString& form, const char* name)
{
    Form* f = Forms::find(form);
    return f ? f->findChild<QPushButton*>(QString::fromLatin1(name)) : nullptr;
}

// Clicks a button and expects exactly one screen on show afterwards.
void step(const QString& form, const char* control, const QString& expected)
{
    QPushButton* b = button(form, control);
    QVERIFY2(b, qPrintable(form + QLatin1Char('.') + QLatin1String(control)));
    b->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{expected});
}

// Every row of the table in both editions, named by `name(row)`.
template <typename R, std::size_t N, typename Name> void addEditionRows(const R (&rows)[N], Name name)
{
    QTest::addColumn<QString>("edition");
    QTest::addColumn<int>("row");
    for (const char* edition : {"primary", "secondary"})
        for (std::size_t i = 0; i < N; ++i)
            QTest::addRow("%s %s", edition, qPrintable(name(rows[i]))) << QString::number(edition[0] == 's') << int(i);
}

// The row of the current test data, with its edition set.
template <typename R, std::size_t N> const R& fetchRow(const R (&rows)[N])
{
    QFETCH(QString, edition);
    QFETCH(int, row);
    version = edition;
    return rows[row];
}

} // namespace

class TestMenus : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(); }

    void activityButtons_data()
    {
        addEditionRows(kRows, [](const Row& r) { return QString::fromLatin1(r.menu) + QLatin1Char(' ') + r.button; });
    }

    void activityButtons()
    {
        const Row& r = fetchRow(kRows);
        const QString menu = QString::fromLatin1(r.menu), screen = QString::fromLatin1(r.screen);
        const QString title = QString::fromLatin1(r.title);

        const QString label = qobject_cast<ActivityMenu*>(Forms::show(menu))->Label1->text();
        QCOMPARE(Forms::find(menu)->findChild<QLabel*>(QStringLiteral("Label12(%1)").arg(r.index))->text(), title);
        QCOMPARE(button(menu, r.button)->accessibleName(), title);

        // The activity gets practice mode, its prompt and the year as title.
        Forms::unregisterForm(screen);
        Forms::registerForm(screen, [screen] {
            auto* form = new Form(screen);
            (new QLabel(form))->setObjectName(QStringLiteral("Label6"));
            return form;
        });
        challenge = 1;
        step(menu, r.button, screen);
        Forms::unregisterForm(screen);
        QCOMPARE(challenge, 0);
        Form* activity = Forms::find(screen);
        QCOMPARE(activity->findChild<QLabel*>(QStringLiteral("Label6"))->text(), r.shortPrompt ? kShort : kEither);
        QCOMPARE(activity->windowTitle(), label);
    }

    void menusFollowTheirDesign_data() { addEditionRows(kMenus, [](const MenuRow& m) { return QString(m.menu); }); }

    void menusFollowTheirDesign()
    {
        const MenuRow& m = fetchRow(kMenus);
        auto* form = qobject_cast<ActivityMenu*>(Forms::show(QString::fromLatin1(m.menu)));
        QVERIFY(form);
        QCOMPARE(form->windowTitle(), QString::fromLatin1(m.caption));
        QCOMPARE(form->Label1->text(), QString::fromLatin1(version == QLatin1String("1") ? m.unit : m.year));
        QCOMPARE(form->Label4->text(), QStringLiteral("Partitude"));
        QCOMPARE(form->Label12.size(), m.titles);
        QCOMPARE(form->Picture2->picturePath(), QString::fromLatin1(m.bitmap));
        QCOMPARE(form->iconPath(), QStringLiteral("ico\\fraction.ico"));
        QCOMPARE(form->Command4->text(), QStringLiteral("Goodbye"));
        QCOMPARE(form->Command4->property("picturePath").toString(), QStringLiteral("ico\\door2.ico"));
        for (QPushButton* b : form->buttons)
            QCOMPARE(b->property("picturePath").toString(), QStringLiteral("ico\\arw05rt.ico"));

        // Every title fits its place and sits beside its own button.
        for (int i = 0; i < form->Label12.size(); ++i) {
            QLabel* title = form->Label12[i];
            const QRect needed = title->fontMetrics().boundingRect(QRect(0, 0, title->width(), 10000),
                                                                   Qt::TextWordWrap, title->text());
            QVERIFY2(needed.height() <= title->height(), qPrintable(title->text()));
            QVERIFY(qAbs(title->geometry().center().y() - form->buttons[i]->geometry().center().y()) < 8);
        }

        // The logo's frames, round from the last to the first.
        logoframe = 19;
        form->Timer4_Timer();
        QCOMPARE(form->Picture1->picturePath(), QString::fromLatin1(m.frames) + QStringLiteral("00.gif"));
        QVERIFY(form->Timer4->isEnabled());
    }

    void subMenuKeepsTheChallengeState()
    {
        version = QStringLiteral("0");
        challenge = 1;
        Forms::show(QStringLiteral("y5Intro"));
        QCOMPARE(Forms::find(QStringLiteral("y5Intro"))->findChild<QLabel*>(QStringLiteral("Label12(3)"))->text(),
                 QStringLiteral("Mixed Numbers and Improper Fractions"));
        step(QStringLiteral("y5Intro"), "Command2", QStringLiteral("y5Intro2"));
        QCOMPARE(challenge, 1);
    }

    void logoCarriesOnFromMenuToMenu()
    {
        version = QStringLiteral("0");
        auto* year = Forms::show<Year>();
        logoframe = 4;
        year->Timer4_Timer();
        year->Command5->click();
        auto* menu = Forms::find<y2Intro>();
        QCOMPARE(menu->Picture1->picturePath(), QStringLiteral("bmp\\morv0005.gif"));
        menu->Timer4_Timer();
        QCOMPARE(menu->Picture1->picturePath(), QStringLiteral("bmp\\morv0006.gif"));
    }

    void everyPathLeavesOneScreen_data()
    {
        QTest::addColumn<QString>("edition");
        QTest::newRow("primary") << "0";
        QTest::newRow("secondary") << "1";
    }

    // Every year, menu and activity (the real screen where built), and back by the exits.
    void everyPathLeavesOneScreen()
    {
        QFETCH(QString, edition);
        version = edition;
        const QString year = QStringLiteral("Year");
        Forms::show(year);
        for (const Year::Choice& choice : Year::kChoices) {
            const QString menu = QString::fromLatin1(choice.menu);
            step(year, choice.button, menu);
            for (const Row& r : kRows) {
                const QString owner = QString::fromLatin1(r.menu);
                const bool sub = owner != menu;
                if (sub && (owner != QLatin1String("y5Intro2") || menu != QLatin1String("y5Intro")))
                    continue;
                if (sub)
                    step(menu, "Command2", owner);
                const QString screen = QString::fromLatin1(r.screen);
                QVERIFY2(Forms::isRegistered(screen), r.screen); // every button opens a built activity
                step(owner, r.button, screen);
                QCOMPARE(Forms::find(screen)->windowTitle(), yearlabel);
                step(screen, "cmdexit", owner);
                if (sub)
                    step(owner, "Command4", menu);
            }
            step(menu, "Command4", year);
        }
    }
};

QTEST_MAIN(TestMenus)
#include "tst_menus.moc"
