#include "menus/activitymenu.h"
#include "menus/comingsoon.h"
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

// Every activity button of every menu: the title beside it and the screen
// it opens, as the menus are meant to be.
struct Row {
    const char* menu;
    int index; // Label12(index) beside the button
    const char* button;
    const char* title;
    const char* screen;
    bool shortPrompt;
};
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

struct MenuRow {
    const char* menu;
    const char* caption;
    const char* year;
    const char* unit;
    const char* bitmap;
    const char* frames;
    int titles;
};
const MenuRow kMenus[] = {
    {"y2Intro", "Welcome", "Year 2", "Unit 1", "bmp\\morvane2.bmp", "bmp\\morv00", 3},
    {"y3Intro", "Welcome", "Year 3", "Unit 2", "bmp\\morvane3.bmp", "bmp\\smmv00", 3},
    {"y4Intro", "Welcome", "Year 4", "Unit 3", "bmp\\morvane2.bmp", "bmp\\morv00", 5},
    {"y5Intro", "Welcome", "Year 5", "Unit 4", "bmp\\morvane2.bmp", "bmp\\morv00", 5},
    {"y5Intro2", "Mixed Numbers and Improper Fractions", "Year 5", "Unit 4", "bmp\\morvane3.bmp", "bmp\\smmv00", 3},
    {"y6Intro", "Welcome", "Year 6", "Unit 5", "bmp\\morvane3.bmp", "bmp\\smmv00", 7},
};

QPushButton* button(const QString& form, const QString& name)
{
    Form* f = Forms::find(form);
    return f ? f->findChild<QPushButton*>(name) : nullptr;
}

} // namespace

class TestMenus : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }
    void activityButtons_data();
    void activityButtons();
    void menusFollowTheirDesign_data();
    void menusFollowTheirDesign();
    void subMenuKeepsTheChallengeState();
    void logoCarriesOnFromMenuToMenu();
    void everyPathLeavesOneScreen_data();
    void everyPathLeavesOneScreen();

private:
    TestSupport::World world;
};

void TestMenus::activityButtons_data()
{
    QTest::addColumn<QString>("edition");
    QTest::addColumn<int>("row");
    for (const char* edition : {"0", "1"})
        for (int i = 0; i < int(std::size(kRows)); ++i)
            QTest::addRow("%s %s %s", edition[0] == '1' ? "secondary" : "primary", kRows[i].menu, kRows[i].button)
                << QString::fromLatin1(edition) << i;
}

void TestMenus::activityButtons()
{
    QFETCH(QString, edition);
    QFETCH(int, row);
    const Row& r = kRows[row];
    const QString menu = QString::fromLatin1(r.menu);
    version = edition;

    // While the activity is not built, the button opens the coming-soon
    // screen, which names it and leads back to this menu.
    Forms::unregisterForm(QString::fromLatin1(r.screen));
    challenge = 2;
    const QString label = qobject_cast<ActivityMenu*>(Forms::show(menu))->Label1->text();
    QCOMPARE(Forms::find(menu)->findChild<QLabel*>(QStringLiteral("Label12(%1)").arg(r.index))->text(),
             QString::fromLatin1(r.title));
    QCOMPARE(button(menu, QString::fromLatin1(r.button))->accessibleName(), QString::fromLatin1(r.title));
    button(menu, QString::fromLatin1(r.button))->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Comingsoon")});
    QCOMPARE(challenge, 0);
    auto* soon = Forms::find<Comingsoon>();
    QCOMPARE(soon->Label1->text(), QString::fromLatin1(r.title));
    QCOMPARE(soon->windowTitle(), label);
    soon->cmdexit->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{menu});

    // A built activity gets practice mode, its prompt and the year as title.
    Forms::registerForm(QString::fromLatin1(r.screen), [&r] {
        auto* form = new Form(QString::fromLatin1(r.screen));
        (new QLabel(form))->setObjectName(QStringLiteral("Label6"));
        return form;
    });
    challenge = 1;
    button(menu, QString::fromLatin1(r.button))->click();
    TestSupport::flushUnloads();
    Forms::unregisterForm(QString::fromLatin1(r.screen));
    QCOMPARE(TestSupport::visibleForms(), QStringList{QString::fromLatin1(r.screen)});
    QCOMPARE(challenge, 0);
    Form* activity = Forms::find(QString::fromLatin1(r.screen));
    QCOMPARE(activity->findChild<QLabel*>(QStringLiteral("Label6"))->text(), r.shortPrompt ? kShort : kEither);
    QCOMPARE(activity->windowTitle(), label);
}

void TestMenus::menusFollowTheirDesign_data()
{
    QTest::addColumn<QString>("edition");
    QTest::addColumn<int>("row");
    for (const char* edition : {"0", "1"})
        for (int i = 0; i < int(std::size(kMenus)); ++i)
            QTest::addRow("%s %s", edition[0] == '1' ? "secondary" : "primary", kMenus[i].menu)
                << QString::fromLatin1(edition) << i;
}

void TestMenus::menusFollowTheirDesign()
{
    QFETCH(QString, edition);
    QFETCH(int, row);
    const MenuRow& m = kMenus[row];
    version = edition;
    auto* form = qobject_cast<ActivityMenu*>(Forms::show(QString::fromLatin1(m.menu)));
    QVERIFY(form);
    QCOMPARE(form->windowTitle(), QString::fromLatin1(m.caption));
    QCOMPARE(form->Label1->text(), QString::fromLatin1(edition == QLatin1String("1") ? m.unit : m.year));
    QCOMPARE(form->Label4->text(), QStringLiteral("Partitude"));
    QCOMPARE(form->Label12.size(), m.titles);
    QCOMPARE(form->Picture2->picturePath(), QString::fromLatin1(m.bitmap));
    QCOMPARE(form->iconPath(), QStringLiteral("ico\\fraction.ico"));
    QCOMPARE(form->Command4->text(), QStringLiteral("Goodbye"));
    QCOMPARE(form->Command4->property("picturePath").toString(), QStringLiteral("ico\\door2.ico"));
    for (QPushButton* b : form->buttons)
        QCOMPARE(b->property("picturePath").toString(), QStringLiteral("ico\\arw05rt.ico"));

    // Tab takes the activities top to bottom, the first one first, then Goodbye.
    QList<QWidget*> expected(form->buttons.cbegin(), form->buttons.cend());
    expected << form->Command4;
    QList<QWidget*> tabbed;
    QWidget* w = form;
    for (int step = 0; step < 60 && tabbed.size() < expected.size(); ++step) {
        w = w->nextInFocusChain();
        if (w->focusPolicy() & Qt::TabFocus)
            tabbed << w;
    }
    QCOMPARE(tabbed, expected);

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

void TestMenus::subMenuKeepsTheChallengeState()
{
    version = QStringLiteral("0");
    challenge = 1;
    Forms::show(QStringLiteral("y5Intro"));
    QCOMPARE(Forms::find(QStringLiteral("y5Intro"))->findChild<QLabel*>(QStringLiteral("Label12(3)"))->text(),
             QStringLiteral("Mixed Numbers and Improper Fractions"));
    button(QStringLiteral("y5Intro"), QStringLiteral("Command2"))->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("y5Intro2")});
    QCOMPARE(challenge, 1);
}

void TestMenus::logoCarriesOnFromMenuToMenu()
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

void TestMenus::everyPathLeavesOneScreen_data()
{
    QTest::addColumn<QString>("edition");
    QTest::newRow("primary") << "0";
    QTest::newRow("secondary") << "1";
}

// Walks every year, menu and activity, the real screens where they are
// built, and back by their exits and Goodbye. After every step exactly one
// screen is on show.
void TestMenus::everyPathLeavesOneScreen()
{
    QFETCH(QString, edition);
    version = edition;
    auto step = [](const QString& form, const QString& control, const QString& expected) {
        QPushButton* b = button(form, control);
        QVERIFY2(b, qPrintable(form + QLatin1Char('.') + control));
        b->click();
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{expected});
    };
    const QString year = QStringLiteral("Year"), door = QStringLiteral("Command4");
    Forms::show(year);
    for (const Year::Choice& choice : Year::kChoices) {
        const QString menu = QString::fromLatin1(choice.menu);
        step(year, QString::fromLatin1(choice.button), menu);
        for (const Row& r : kRows) {
            const QString owner = QString::fromLatin1(r.menu);
            const bool sub = owner != menu;
            if (sub && (owner != QLatin1String("y5Intro2") || menu != QLatin1String("y5Intro")))
                continue;
            if (sub)
                step(menu, QStringLiteral("Command2"), owner);
            const QString screen = Forms::isRegistered(QString::fromLatin1(r.screen)) ? QString::fromLatin1(r.screen)
                                                                                      : QStringLiteral("Comingsoon");
            step(owner, QString::fromLatin1(r.button), screen);
            QCOMPARE(Forms::find(screen)->windowTitle(), yearlabel);
            step(screen, QStringLiteral("cmdexit"), owner);
            if (sub)
                step(owner, door, menu);
        }
        step(menu, door, year);
    }
}

QTEST_MAIN(TestMenus)
#include "tst_menus.moc"
