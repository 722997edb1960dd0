// The harps play exactly when "Play Sound" is ticked: the greeting, the stars'
// harp and the retry message's; a recorder stands in for the audio output.
#include "menus/year.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "runtime/formtimer.h"
#include "shell/settingsnames.h"
#include "shell/titlefrm.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestHarp : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        world.fresh();
        heard.clear();
        Sound::setMuted(false);
        Sound::setPlayer([this](const QString& file) { heard << file; });
    }

    void harpsSoundExactlyWhenTicked_data()
    {
        QTest::addColumn<QByteArray>("soundSetting"); // sound.inf
        QTest::addColumn<int>("clicks");              // on "Play Sound"
        QTest::addColumn<bool>("ticked");
        QTest::newRow("offered and left ticked") << QByteArray("0") << 0 << true;
        QTest::newRow("unticked") << QByteArray("0") << 1 << false;
        QTest::newRow("unticked and ticked again") << QByteArray("0") << 2 << true;
        QTest::newRow("option removed by sound.inf") << QByteArray("1") << 0 << false;
    }
    void harpsSoundExactlyWhenTicked()
    {
        QFETCH(QByteArray, soundSetting);
        QFETCH(int, clicks);
        QFETCH(bool, ticked);
        TestSupport::writeBytes(world.settingsFile(SettingsNames::kEdition), "0\r\n");
        TestSupport::writeBytes(world.settingsFile(SettingsNames::kSound), soundSetting + "\r\n");

        // Title screen, year menu, the box clicked, Year 2, an activity.
        Forms::show<Titlefrm>()->Command1->click();
        QPointer<Year> year = Forms::find<Year>();
        QCOMPARE(year->Check1->isVisible(), soundSetting == "0");
        for (int i = 0; i < clicks; ++i)
            year->Check1->click();
        QCOMPARE(year->Check1->isChecked(), ticked);
        year->Command5->click();
        TestSupport::flushUnloads();
        QVERIFY(Forms::show(QStringLiteral("Y2fractions")));
        QVERIFY(heard.isEmpty()); // nothing until Grey's timers tick

        Grey* grey = Forms::find<Grey>();
        grey->Timer2_Timer(); // the activity has loaded
        grey->Timer1_Timer(); // a right answer: the stars
        const QString starsHarp = grey->harpFile();
        showreward();         // a wrong Challenge answer: the retry message
        QVERIFY(Forms::find<Reward>()->Label1->isVisible());

        const QStringList expected = ticked
            ? QStringList{Grey::harpName(Grey::kGreetingHarp), starsHarp, Grey::harpName(Grey::kRetryHarp)}
            : QStringList{};
        QCOMPARE(heard, expected);

        // The choice outlives the year menu: back there, the box is as it was left.
        TestSupport::unloadAll();
        QCOMPARE(Forms::show<Year>()->Check1->isChecked(), ticked);
    }

    void onlyTheFirstActivitiesAreGreeted_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("visitsBefore");
        QTest::addColumn<bool>("greeted");
        for (const char* screen : {"Y2fractions", "Y2fractions2", "y5fract4", "Y6fract3"}) {
            QTest::addRow("%s, third activity", screen) << screen << 2 << true;
            QTest::addRow("%s, fourth activity", screen) << screen << 3 << false;
        }
    }
    void onlyTheFirstActivitiesAreGreeted()
    {
        QFETCH(QString, screen);
        QFETCH(int, visitsBefore);
        QFETCH(bool, greeted);
        soundoption = 1;
        visits = visitsBefore;
        QVERIFY(Forms::show(screen));
        Grey* grey = Forms::find<Grey>();
        if (grey && grey->Timer2->isEnabled())
            grey->Timer2_Timer();
        QCOMPARE(heard, greeted ? QStringList{Grey::harpName(Grey::kGreetingHarp)} : QStringList{});
        QVERIFY(!grey || !grey->Timer2->isEnabled()); // one shot
    }

private:
    TestSupport::World world;
    QStringList heard;
};

QTEST_MAIN(TestHarp)
#include "tst_harp.moc"
