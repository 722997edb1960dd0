// The close box leads where each screen's own way back leads; only the title
// screen's ends the program, as its Exit does.
#include "runtime/form.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QtTest>

namespace {
struct Row {
    const char* tag;
    const char* under;  // the screen shown first, or nullptr
    const char* via;    // its button that opens the screen; nullptr: shown directly
    const char* screen; // whose close box is pressed
    const char* after;  // the screens on show afterwards, comma separated
    bool firstRun = false; // no settings files yet
    bool ends = false;
};

const Row kRows[] = {
    {"title", nullptr, nullptr, "Titlefrm", "", false, true},
    {"title on a first run stays", nullptr, nullptr, "Titlefrm", "Titlefrm", true},
    {"settings go on as OK", nullptr, nullptr, "Form1", "Year"},
    {"year menu goes through its door", nullptr, nullptr, "Year", "Titlefrm"},
    {"activity menu says Goodbye", nullptr, nullptr, "y2Intro", "Year"},
    {"second Year 5 menu says Goodbye", nullptr, nullptr, "y5Intro2", "y5Intro"},
    {"ordering help closes", "Y6fract3", nullptr, "orderhelp", "Y6fract3"},
    {"certificate leaves as its door", "Y6fract3", nullptr, "Welldone", "Y6fract3"},
    {"retry screen closes", "Y6fract3", nullptr, "Reward", "Y6fract3"},
    {"worksheet screen closes", nullptr, nullptr, "y5fracprint4", ""},
};
} // namespace

class TestCloseBox : public QObject {
    Q_OBJECT
private slots:
    void closeBoxIsTheWayBack_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(kRows)); ++i)
            QTest::newRow(kRows[i].tag) << i;
    }

    void closeBoxIsTheWayBack()
    {
        QFETCH(int, row);
        const Row& r = kRows[row];
        world.fresh();
        if (!r.firstRun) {
            TestSupport::writeBytes(world.settingsFile(QStringLiteral("primary.inf")), "0\r\n");
            TestSupport::writeBytes(world.settingsFile(QStringLiteral("sound.inf")), "0\r\n");
            Module1::version = Module1::soundsetting = QStringLiteral("0");
        }
        Module1::yearlabel = QStringLiteral("Year 6");
        Module1::streak = 20;
        if (r.under)
            Forms::show(QString::fromLatin1(r.under));
        if (r.via)
            Forms::find(QString::fromLatin1(r.under))->findChild<QAbstractButton*>(QString::fromLatin1(r.via))->click();
        else
            Forms::show(QString::fromLatin1(r.screen));
        TestSupport::flushUnloads();
        Form* form = Forms::find(QString::fromLatin1(r.screen));
        QVERIFY(form && form->isVisible());
        TestSupport::pressCloseBox(form);
        TestSupport::flushUnloads();
        const QStringList after = QString::fromLatin1(r.after).split(QLatin1Char(','), Qt::SkipEmptyParts);
        QCOMPARE(TestSupport::visibleForms(), after);
        QCOMPARE(Forms::programEnded(), r.ends);

        // A close the program makes itself is no press of the close box.
        if (Form* still = Forms::find(after.value(0))) {
            still->close();
            QCOMPARE(TestSupport::visibleForms(), after);
        }
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestCloseBox)
#include "tst_closebox.moc"
