#include "menus/year.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "shell/titlefrm.h"
#include "testsupport.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QtTest>

using namespace Module1;

// Stands in for the desktop's browser.
class UrlRecorder : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl& url) { opened << url; }
};

class TestYear : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }
    void yearButtonsSetTheYearAndTheRun_data();
    void yearButtonsSetTheYearAndTheRun();
    void labelsFollowTheEdition_data();
    void labelsFollowTheEdition();
    void soundBoxFollowsTheSettings_data();
    void soundBoxFollowsTheSettings();
    void logoCyclesThroughTwentyFrames();
    void doorLeadsToTitleAndBack();
    void webLabelOpensTheSite();

private:
    TestSupport::World world;
    static Year* showYear(const QString& edition)
    {
        version = edition;
        return Forms::show<Year>();
    }
};

void TestYear::yearButtonsSetTheYearAndTheRun_data()
{
    QTest::addColumn<QString>("edition");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("run");
    QTest::addColumn<QString>("menu");
    const struct {
        const char* button;
        const char* year;
        const char* unit;
        int run;
        const char* menu;
    } rows[] = {
        {"Command5", "Year 2", "Unit 1", 10, "y2Intro"},
        {"Command2", "Year 3", "Unit 2", 10, "y3Intro"},
        {"Command3", "Year 4", "Unit 3", 20, "y4Intro"},
        {"Command6", "Year 5", "Unit 4", 20, "y5Intro"},
        {"Command1", "Year 6", "Unit 5", 20, "y6Intro"},
    };
    for (const auto& r : rows) {
        QTest::addRow("primary %s", r.year) << "0" << r.button << r.year << r.run << r.menu;
        QTest::addRow("secondary %s", r.unit) << "1" << r.button << r.unit << r.run << r.menu;
    }
}

void TestYear::yearButtonsSetTheYearAndTheRun()
{
    QFETCH(QString, edition);
    QFETCH(QString, button);
    QFETCH(QString, label);
    QFETCH(int, run);
    QFETCH(QString, menu);

    // A run length left by an earlier choice that differs from this one.
    streak = run == 10 ? 20 : 10;
    Year* year = showYear(edition);
    // The arrow has no words of its own: a screen reader says the year.
    QCOMPARE(year->findChild<QPushButton*>(button)->accessibleName(), label);
    year->findChild<QPushButton*>(button)->click();
    TestSupport::flushUnloads();
    QCOMPARE(yearlabel, label);
    QCOMPARE(streak, run);
    QCOMPARE(TestSupport::visibleForms(), QStringList{menu});

    // Back from the menu, the year menu sets the run from the last choice.
    questions = 0;
    Forms::find(menu)->findChild<QPushButton*>(QStringLiteral("Command4"))->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Year")});
    QCOMPARE(questions, run);
}

void TestYear::labelsFollowTheEdition_data()
{
    QTest::addColumn<QString>("edition");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("primary") << "0" << QStringList{"Year 2", "Year 3", "Year 4", "Year 5", "Year 6"};
    QTest::newRow("secondary keeps two blanks")
        << "1" << QStringList{"Unit  1", "Unit  2", "Unit  3", "Unit  4", "Unit  5"};
    QTest::newRow("not chosen yet") << "-1" << QStringList{"Year 2", "Year 3", "Year 4", "Year 5", "Year 6"};
}

void TestYear::labelsFollowTheEdition()
{
    QFETCH(QString, edition);
    QFETCH(QStringList, labels);
    Year* year = showYear(edition);
    for (int i = 0; i < 5; ++i) {
        auto* label = year->findChild<QLabel*>(QStringLiteral("Label12(%1)").arg(i));
        QVERIFY(label);
        QCOMPARE(label->text(), labels[i]);
        // The name sits beside the button that chooses it.
        const char* buttons[] = {"Command5", "Command2", "Command3", "Command6", "Command1"};
        auto* button = year->findChild<QPushButton*>(QString::fromLatin1(buttons[i]));
        const int labelMiddle = label->mapTo(year, label->rect().center()).y();
        QVERIFY(qAbs(labelMiddle - button->geometry().center().y()) < 8);
        QCOMPARE(button->property("picturePath").toString(), QStringLiteral("ico\\arw05rt.ico"));
    }
    QCOMPARE(year->Command4->property("picturePath").toString(), QStringLiteral("ico\\door2.ico"));
    QCOMPARE(year->Picture2->picturePath(), QStringLiteral("bmp\\morvane2.bmp"));

    // A screen reader takes the years top to bottom, then the door; Tab reads
    // the screen: the years, then the sound box and the door on the bottom row.
    QStringList inOrder;
    for (const QString& label : labels)
        inOrder << label.simplified();
    const QStringList tabOrder = inOrder + QStringList{QStringLiteral("Play Sound"), QStringLiteral("Back to the start")};
    inOrder << QStringLiteral("Back to the start");
    QStringList tabbed;
    QWidget* w = year;
    for (int step = 0; step < 40 && tabbed.size() < tabOrder.size(); ++step) {
        w = w->nextInFocusChain();
        if (w->focusPolicy() & Qt::TabFocus)
            tabbed << w->accessibleName();
    }
    QCOMPARE(tabbed, tabOrder);
    QStringList read;
    QAccessibleInterface* screen = QAccessible::queryAccessibleInterface(year);
    for (int i = 0; i < screen->childCount(); ++i)
        if (screen->child(i)->role() == QAccessible::Button)
            read << screen->child(i)->text(QAccessible::Name);
    QCOMPARE(read, inOrder);
}

void TestYear::soundBoxFollowsTheSettings_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("ticked");
    QTest::newRow("offered and on") << "0" << 1 << true << true;
    QTest::newRow("offered, off") << "0" << 0 << true << false;
    QTest::newRow("removed") << "1" << 0 << false << false;
    QTest::newRow("sound 2 offered") << "2" << 1 << true << true;
}

void TestYear::soundBoxFollowsTheSettings()
{
    QFETCH(QString, setting);
    QFETCH(int, option);
    QFETCH(bool, shown);
    QFETCH(bool, ticked);
    soundsetting = setting;
    soundoption = option;
    Year* year = showYear(QStringLiteral("0"));
    QCOMPARE(year->Check1->isVisible(), shown);
    QCOMPARE(year->Check1->isChecked(), ticked);
    QCOMPARE(year->Check1->text(), QStringLiteral("  Play Sound"));
}

void TestYear::logoCyclesThroughTwentyFrames()
{
    Year* year = showYear(QStringLiteral("0"));
    QVERIFY(year->Timer4->isEnabled());
    logoframe = 18;
    year->Timer4_Timer();
    QCOMPARE(year->Picture1->picturePath(), QStringLiteral("bmp\\morv0019.gif"));
    // Twenty ticks go round all twenty frames, the last to the first, and back.
    QStringList seen, expected;
    for (int i = 0; i < 20; ++i) {
        year->Timer4_Timer();
        seen << year->Picture1->picturePath();
        expected << QStringLiteral("bmp\\morv%1.gif").arg(i, 4, 10, QLatin1Char('0'));
    }
    QCOMPARE(seen, expected);
    QCOMPARE(logoframe, 19);
}

void TestYear::doorLeadsToTitleAndBack()
{
    TestSupport::writeBytes(world.settingsFile("primary.inf"), "1\r\n");
    TestSupport::writeBytes(world.settingsFile("sound.inf"), "0\r\n");
    Year* year = showYear(QStringLiteral("1"));
    year->Command4->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Titlefrm")});
    auto* title = Forms::find<Titlefrm>();
    QCOMPARE(title->Command1->text(), QStringLiteral("Cancel"));

    title->Command1->click();
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Year")});
    QCOMPARE(Forms::find<Year>()->Label12[0]->text(), QStringLiteral("Unit  1"));

    // And Exit from there ends the program.
    Forms::find<Year>()->Command4->click();
    Forms::find<Titlefrm>()->Command2->click();
    QVERIFY(Forms::programEnded());
}

void TestYear::webLabelOpensTheSite()
{
    UrlRecorder browser;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "open");
    Year* year = showYear(QStringLiteral("0"));
    QVERIFY(year->Label3->text().contains(QStringLiteral("partitude")));
    emit year->Label3->linkActivated(QStringLiteral("ignored"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QCOMPARE(browser.opened.size(), 1);
    QVERIFY(browser.opened[0].host().contains(QStringLiteral("partitude")));
}

QTEST_MAIN(TestYear)
#include "tst_year.moc"
