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

namespace {
// The year buttons top to bottom: the year or unit each chooses, its run length and menu.
struct YearRow { const char *button, *year, *unit; int run; const char* menu; };
const YearRow kYears[] = {
    {"Command5", "Year 2", "Unit 1", 10, "y2Intro"},
    {"Command2", "Year 3", "Unit 2", 10, "y3Intro"},
    {"Command3", "Year 4", "Unit 3", 20, "y4Intro"},
    {"Command6", "Year 5", "Unit 4", 20, "y5Intro"},
    {"Command1", "Year 6", "Unit 5", 20, "y6Intro"},
};

struct SoundBox { QString setting; int option; bool shown, ticked; };

Year* showYear(const QString& edition)
{
    version = edition;
    return Forms::show<Year>();
}
} // namespace
Q_DECLARE_METATYPE(SoundBox)

class TestYear : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(); }

    void yearButtonsSetTheYearAndTheRun_data()
    {
        QTest::addColumn<QString>("edition");
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(kYears)); ++i) {
            QTest::addRow("primary %s", kYears[i].year) << "0" << i;
            QTest::addRow("secondary %s", kYears[i].unit) << "1" << i;
        }
    }

    void yearButtonsSetTheYearAndTheRun()
    {
        QFETCH(QString, edition);
        QFETCH(int, row);
        const YearRow& r = kYears[row];
        const QString label = QString::fromLatin1(edition == QLatin1String("1") ? r.unit : r.year);
        const QString menu = QString::fromLatin1(r.menu);
        streak = r.run == 10 ? 20 : 10; // left by an earlier choice
        auto* button = showYear(edition)->findChild<QPushButton*>(QString::fromLatin1(r.button));
        QCOMPARE(button->accessibleName(), label); // the arrow has no words of its own
        button->click();
        TestSupport::flushUnloads();
        QCOMPARE(yearlabel, label);
        QCOMPARE(streak, r.run);
        QCOMPARE(TestSupport::visibleForms(), QStringList{menu});

        // Back from the menu, the year menu sets the run from the last choice.
        questions = 0;
        Forms::find(menu)->findChild<QPushButton*>(QStringLiteral("Command4"))->click();
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Year")});
        QCOMPARE(questions, r.run);
    }

    void labelsFollowTheEdition_data()
    {
        QTest::addColumn<QString>("edition");
        QTest::newRow("primary") << "0";
        QTest::newRow("secondary keeps two blanks") << "1";
        QTest::newRow("not chosen yet") << "-1";
    }

    void labelsFollowTheEdition()
    {
        QFETCH(QString, edition);
        Year* year = showYear(edition);
        QStringList inOrder; // what a screen reader says: the years top to bottom, then the door
        for (int i = 0; i < int(std::size(kYears)); ++i) {
            const QString name = QString::fromLatin1(edition == QLatin1String("1") ? kYears[i].unit : kYears[i].year);
            auto* label = year->findChild<QLabel*>(QStringLiteral("Label12(%1)").arg(i));
            QVERIFY(label);
            QCOMPARE(label->text(), edition == QLatin1String("1") ? QStringLiteral("Unit  %1").arg(i + 1) : name);
            // The name sits beside the button that chooses it.
            auto* button = year->findChild<QPushButton*>(QString::fromLatin1(kYears[i].button));
            QVERIFY(qAbs(label->mapTo(year, label->rect().center()).y() - button->geometry().center().y()) < 8);
            QCOMPARE(button->property("picturePath").toString(), QStringLiteral("ico\\arw05rt.ico"));
            inOrder << name;
        }
        QCOMPARE(year->Command4->property("picturePath").toString(), QStringLiteral("ico\\door2.ico"));
        QCOMPARE(year->Picture2->picturePath(), QStringLiteral("bmp\\morvane2.bmp"));

        inOrder << QStringLiteral("Back to the start");
        QStringList read;
        QAccessibleInterface* screen = QAccessible::queryAccessibleInterface(year);
        for (int i = 0; i < screen->childCount(); ++i)
            if (screen->child(i)->role() == QAccessible::Button)
                read << screen->child(i)->text(QAccessible::Name);
        QCOMPARE(read, inOrder);
    }

    void soundBoxFollowsTheSettings_data()
    {
        QTest::addColumn<SoundBox>("c");
        QTest::newRow("offered and on") << SoundBox{"0", 1, true, true};
        QTest::newRow("offered, off") << SoundBox{"0", 0, true, false};
        QTest::newRow("removed") << SoundBox{"1", 0, false, false};
        QTest::newRow("sound 2 offered") << SoundBox{"2", 1, true, true};
    }

    void soundBoxFollowsTheSettings()
    {
        QFETCH(SoundBox, c);
        soundsetting = c.setting;
        soundoption = c.option;
        Year* year = showYear(QStringLiteral("0"));
        QCOMPARE(year->Check1->isVisible(), c.shown);
        QCOMPARE(year->Check1->isChecked(), c.ticked);
        QCOMPARE(year->Check1->text(), QStringLiteral("  Play Sound"));
        QCOMPARE(year->Check1->accessibleName(), QStringLiteral("Play Sound"));
    }

    // Twenty ticks go round all twenty frames, the last to the first, and back.
    void logoCyclesThroughTwentyFrames()
    {
        Year* year = showYear(QStringLiteral("0"));
        QVERIFY(year->Timer4->isEnabled());
        logoframe = 19;
        QStringList seen, expected;
        for (int i = 0; i < 20; ++i) {
            year->Timer4_Timer();
            seen << year->Picture1->picturePath();
            expected << QStringLiteral("bmp\\morv%1.gif").arg(i, 4, 10, QLatin1Char('0'));
        }
        QCOMPARE(seen, expected);
        QCOMPARE(logoframe, 19);
    }

    // The door leads to the title screen, Cancel back, and Exit from there ends the program.
    void doorLeadsToTitleAndBack()
    {
        world.writeSettings("1\r\n");
        showYear(QStringLiteral("1"));
        for (const bool cancel : {true, false}) {
            Forms::find<Year>()->Command4->click();
            TestSupport::flushUnloads();
            QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Titlefrm")});
            auto* title = Forms::find<Titlefrm>();
            QVERIFY(title->Command1->text() == QStringLiteral("Cancel") && title->Command2->isEnabled());
            (cancel ? title->Command1 : title->Command2)->click();
            TestSupport::flushUnloads();
            QCOMPARE(TestSupport::visibleForms(), cancel ? QStringList{QStringLiteral("Year")} : QStringList());
            if (cancel)
                QCOMPARE(Forms::find<Year>()->Label12[0]->text(), QStringLiteral("Unit  1"));
        }
        QVERIFY(Forms::programEnded() && Forms::loadedNames().isEmpty());
    }

    void webLabelOpensTheSite()
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
};

QTEST_MAIN(TestYear)
#include "tst_year.moc"
