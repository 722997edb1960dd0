#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "shell/form1.h"
#include "shell/titlefrm.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <tuple>

using namespace Module1;
using TestSupport::fileBytes;
using TestSupport::writeBytes;

class TestStartup : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }

    void settingsDecideTheWayOn_data()
    {
        QTest::addColumn<QByteArray>("edition");
        QTest::addColumn<QByteArray>("sound");
        QTest::addColumn<QString>("version");
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("exitEnabled");
        QTest::addColumn<QString>("next");
        QTest::newRow("first run") << QByteArray("<none>") << QByteArray("<none>") << "-1" << 0 << false << "Form1";
        QTest::newRow("primary, sound") << QByteArray("0\r\n") << QByteArray("0\r\n") << "0" << 1 << true << "Year";
        QTest::newRow("secondary, no sound") << QByteArray("1\r\n") << QByteArray("1\r\n") << "1" << 0 << true << "Year";
        QTest::newRow("sound 2 is offered") << QByteArray("1\r\n") << QByteArray("2\r\n") << "1" << 1 << true << "Year";
        QTest::newRow("sound file missing") << QByteArray("1\r\n") << QByteArray("<none>") << "-1" << 0 << false << "Form1";
        QTest::newRow("edition garbage") << QByteArray("primary\r\n") << QByteArray("0\r\n") << "-1" << 0 << false << "Form1";
        QTest::newRow("sound garbage") << QByteArray("0\r\n") << QByteArray("\xff\xfe loud") << "-1" << 0 << false << "Form1";
        QTest::newRow("empty edition") << QByteArray("") << QByteArray("0\r\n") << "-1" << 0 << false << "Form1";
        QTest::newRow("-1 in the file") << QByteArray("-1\r\n") << QByteArray("0\r\n") << "-1" << 1 << false << "Form1";
        QTest::newRow("-1.0 in the file") << QByteArray("-1.0\r\n") << QByteArray("0\r\n") << "-1" << 1 << false << "Form1";
        QTest::newRow("1.0 is the secondary edition") << QByteArray("1.0\r\n") << QByteArray("1\r\n") << "1" << 0 << true << "Year";
        QTest::newRow("2 is no edition") << QByteArray("2\r\n") << QByteArray("1\r\n") << "-1" << 0 << false << "Form1";
        for (const char* value : {"-1e0", " -1 ", "0.5", "nan", "1e9"})
            QTest::addRow("%s is no edition", value) << QByteArray(value).append("\r\n") << QByteArray("1\r\n") << "-1" << 0 << false << "Form1";
    }

    void settingsDecideTheWayOn()
    {
        QFETCH(QByteArray, edition);
        QFETCH(QByteArray, sound);
        QFETCH(QString, version);
        QFETCH(int, option);
        QFETCH(bool, exitEnabled);
        QFETCH(QString, next);
        Titlefrm* title = startTitle(edition, sound);
        QCOMPARE(Module1::version, version);
        QCOMPARE(soundoption, option);
        QCOMPARE(title->Command2->isEnabled(), exitEnabled);
        QCOMPARE(title->Picture1->picturePath(), QString("gif\\sphfra\\sphf0000.jpg"));
        QVERIFY(Forms::isLoaded("Grey"));
        QVERIFY(world.messages.isEmpty()); // bad files are never reported

        QTest::mouseClick(title->Command1, Qt::LeftButton);
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{next});
        QVERIFY(!Forms::isLoaded("Titlefrm"));
        if (next != QLatin1String("Form1"))
            return;
        // No edition yet: the choice is offered; once made, the next start is not locked and OK leads on.
        Form1* settings = Forms::find<Form1>();
        QVERIFY(settings->Frame1->isVisible() && settings->Option1->isChecked());
        QCOMPARE(fileBytes(world.settingsFile("primary.inf")), QByteArray("0\r\n"));
        QTest::mouseClick(settings->Option2, Qt::LeftButton);
        QTest::mouseClick(settings->Command1, Qt::LeftButton);
        QVERIFY(Forms::isLoaded("Year"));
        TestSupport::unloadAll();
        Module1::reset();
        title = Forms::show<Titlefrm>();
        QVERIFY(Module1::version == QLatin1String("1") && title->Command2->isEnabled());
        QTest::mouseClick(title->Command1, Qt::LeftButton);
        QVERIFY(Forms::isLoaded("Year") && world.messages.isEmpty());
    }

    void firstRunWritesTheDefaults()
    {
        Titlefrm* title = startTitle("<none>", "<none>");
        QTest::mouseClick(title->Command1, Qt::LeftButton);
        Form1* settings = Forms::find<Form1>();
        QVERIFY(settings && settings->Frame1->isVisible());
        QCOMPARE(fileBytes(world.settingsFile("primary.inf")), QByteArray("0\r\n"));
        QCOMPARE(fileBytes(world.settingsFile("sound.inf")), QByteArray("0\r\n"));
        QCOMPARE(QString("%1 %2 %3").arg(Module1::version, soundsetting).arg(soundoption), QString("0 0 1"));
        QVERIFY(settings->Option1->isChecked());
        QVERIFY(!settings->Check2->isChecked());

        QTest::mouseClick(settings->Command1, Qt::LeftButton); // OK at once
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{"Year"});
        QCOMPARE(fileBytes(world.settingsFile("primary.inf")), QByteArray("0\r\n"));
    }

    void choicesAreWrittenWhenClicked()
    {
        Module1::version = "-1";
        Form1* settings = Forms::show<Form1>();
        // Each click writes its file at once; the state is version, soundsetting, soundoption.
        const QList<std::tuple<QAbstractButton*, QString, QByteArray, QString>> clicks = {
            {settings->Option2, "primary.inf", "1\r\n", "1 0 1"}, {settings->Option1, "primary.inf", "0\r\n", "0 0 1"},
            {settings->Check2, "sound.inf", "1\r\n", "0 1 0"}, {settings->Check2, "sound.inf", "0\r\n", "0 0 1"},
            {settings->Option2, "primary.inf", "1\r\n", "1 0 1"}};
        for (const auto& [button, file, bytes, state] : clicks) {
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(fileBytes(world.settingsFile(file)), bytes);
            QCOMPARE(QString("%1 %2 %3").arg(Module1::version, soundsetting).arg(soundoption), state);
        }
        // The next start reads what was chosen last.
        Forms::unload(settings);
        Module1::reset();
        Titlefrm* title = Forms::show<Titlefrm>();
        QCOMPARE(Module1::version, QString("1"));
        QCOMPARE(soundoption, 1);
        QVERIFY(title->Command2->isEnabled());
    }

    void theSphereTurnsAndWraps()
    {
        Titlefrm* title = startTitle("0", "0");
        QVERIFY(title->Timer1->isEnabled()); // it turns from the start
        for (int tick = 1; tick <= 51; ++tick) {
            title->Timer1_Timer();
            QCOMPARE(title->Picture1->picturePath(), QString::asprintf("gif\\sphfra\\sphf%04d.jpg", tick % 50));
        }
    }

private:
    // Writes the two files ("<none>" leaves one out) and loads the title screen.
    Titlefrm* startTitle(const QByteArray& edition, const QByteArray& sound)
    {
        if (edition != "<none>")
            writeBytes(world.settingsFile("primary.inf"), edition);
        if (sound != "<none>")
            writeBytes(world.settingsFile("sound.inf"), sound);
        return Forms::show<Titlefrm>();
    }
    TestSupport::World world;
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
