// Bad input from outside (settings folder, display, asset folder, command line); what ends the process runs as a child.
#include "shell/displayprobe.h"
#include "shell/form1.h"
#include "shell/titlefrm.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using TestSupport::fileBytes;
using TestSupport::writeBytes;

namespace {
constexpr int kChildTimeoutMs = 20000; // the program ends at once or hangs
constexpr int kNeedsDisplayExit = 1;
constexpr int kUsageExit = 2;
constexpr int kFatalExit = 3;
} // namespace

class TestBadInput : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }

    void anUnwritableSettingsFolderIsToldOnce_data()
    {
        QTest::addColumn<QString>("blocker"); // a file made where a folder should be, or the reverse
        QTest::addColumn<QString>("folder");  // the settings folder, under the test's own
        QTest::addColumn<bool>("readOnly");
        QTest::newRow("a file in the folder's place") << "blocker" << "blocker/settings" << false;
        QTest::newRow("a folder in the file's place") << "primary.inf/" << "" << false;
        QTest::newRow("a read-only folder") << "" << "locked" << true;
        QTest::newRow("a folder no one may make") << "" << "/proc/partitude-settings" << false;
    }
    void anUnwritableSettingsFolderIsToldOnce()
    {
        QFETCH(QString, blocker);
        QFETCH(QString, folder);
        QFETCH(bool, readOnly);
        if (readOnly && ::geteuid() == 0)
            QSKIP("the superuser writes into read-only folders");
        const QDir base(world.settings->path());
        if (blocker.endsWith('/'))
            QVERIFY(base.mkpath(blocker));
        else if (!blocker.isEmpty())
            writeBytes(base.filePath(blocker), "in the way");
        const QString settingsFolder = base.filePath(folder);
        if (readOnly) {
            QVERIFY(base.mkpath(folder));
            QVERIFY(QFile::setPermissions(settingsFolder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        }
        SettingsFile::setFolder(settingsFolder);

        QTest::mouseClick(Forms::show<Titlefrm>()->Command1, Qt::LeftButton);
        Form1* settings = Forms::find<Form1>();
        QVERIFY(settings && settings->Frame1->isVisible()); // the choices are still offered
        QCOMPARE(world.messages.size(), 1);
        const QString message = world.messages.first().text;
        QVERIFY2(message.contains(QDir::toNativeSeparators(QDir(settingsFolder).absolutePath())), qPrintable(message));
        QVERIFY2(message.contains("--settings DIR"), qPrintable(message));

        // Later choices hold for this run, and are not told again.
        QTest::mouseClick(settings->Option2, Qt::LeftButton);
        QTest::mouseClick(settings->Check2, Qt::LeftButton);
        QCOMPARE(QString("%1 %2 %3").arg(Module1::version, Module1::soundsetting).arg(Module1::soundoption), QString("1 1 0"));
        QTest::mouseClick(settings->Command1, Qt::LeftButton);
        QVERIFY(Forms::isLoaded("Year"));
        QCOMPARE(world.messages.size(), 1);
        if (readOnly)
            QFile::setPermissions(settingsFolder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    // A Wayland socket file with no server behind it, as a dead server leaves it.
    void aDeadWaylandSocketIsNoDisplay()
    {
        struct Saved { // the environment as it was, put back whatever happens below
            const char* name;
            bool set = qEnvironmentVariableIsSet(name);
            QByteArray value = qgetenv(name);
            ~Saved() { set ? qputenv(name, value) : qunsetenv(name); }
        } saved[] = {{"QT_QPA_PLATFORM"}, {"DISPLAY"}, {"WAYLAND_DISPLAY"}};
        qunsetenv("QT_QPA_PLATFORM");
        qunsetenv("DISPLAY");
        const QByteArray path = QFile::encodeName(world.settings->filePath("wayland-0"));
        const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        QCOMPARE(::bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        ::listen(server, 1);
        qputenv("WAYLAND_DISPLAY", path);
        QCOMPARE(DisplayProbe::probe(), DisplayProbe::Result::Reachable);
        QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")); // Qt chooses
        ::close(server); // the file stays, with nothing behind it
        QCOMPARE(DisplayProbe::probe(), DisplayProbe::Result::Missing);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QCOMPARE(DisplayProbe::probe(), DisplayProbe::Result::ChosenByHand);
    }

    void theProgramEndsWithItsOwnWords_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("environment"); // NAME=value sets, NAME alone unsets
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("said"); // on stderr
        const QStringList offscreen{"QT_QPA_PLATFORM=offscreen"};
        const QStringList noDisplay{"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
        const QStringList needs{"Partitude needs a display"};
        QTest::newRow("X display not there") << QStringList() << noDisplay + QStringList{"DISPLAY=:7731"} << kNeedsDisplayExit << needs;
        QTest::newRow("X display over the network, nobody listening")
            << QStringList() << noDisplay + QStringList{"DISPLAY=127.0.0.1:7731.0"} << kNeedsDisplayExit << needs;
        QTest::newRow("Wayland display with nothing behind it")
            << QStringList() << noDisplay + QStringList{"WAYLAND_DISPLAY=wayland-7731", "XDG_RUNTIME_DIR=" + QDir::tempPath()}
            << kNeedsDisplayExit << needs;
        const QStringList missingAssets{"--assets", "/nonexistent", "--settings", "<settings>"};
        const QStringList saysWhatIsMissing{QDir::toNativeSeparators("ico/fraction.ico"), QDir::toNativeSeparators("/nonexistent")};
        QTest::newRow("assets missing, offscreen") << missingAssets << offscreen << kFatalExit << saysWhatIsMissing;
        QTest::newRow("assets missing, minimal")
            << missingAssets << QStringList{"QT_QPA_PLATFORM=minimal"} << kFatalExit << saysWhatIsMissing;
        QTest::newRow("a stray word") << QStringList{"--settings", "<settings>", "fractions"} << offscreen << kUsageExit
                                      << QStringList{"fractions", "Usage:"};
        const std::pair<const char*, const char*> scales[]
            = {{"0", "above 0"}, {"-2", "above 0"}, {"100", "too large"}, {"7", "would not fit"}, {"twice", "needs a number"}};
        for (const auto& [value, says] : scales)
            QTest::addRow("--scale %s", value)
                << QStringList{"--settings", "<settings>", "--scale", value} << offscreen << kUsageExit << QStringList{says};
        QTest::newRow("an unknown option") << QStringList{"--colour", "red"} << offscreen << kUsageExit << QStringList{"colour", "Usage:"};
    }
    void theProgramEndsWithItsOwnWords()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, environment);
        QFETCH(int, exitCode);
        QFETCH(QStringList, said);
        arguments.replaceInStrings("<settings>", world.settings->path());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString& entry : environment)
            entry.contains('=') ? env.insert(entry.section('=', 0, 0), entry.section('=', 1)) : env.remove(entry);
        QProcess program;
        program.setProcessEnvironment(env);
        program.start(PROGRAM_PATH, arguments);
        const bool ended = program.waitForFinished(kChildTimeoutMs);
        if (!ended)
            program.kill();
        QVERIFY2(ended, "the program waited instead of ending");
        const QString err = QString::fromLocal8Bit(program.readAllStandardError());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit); // no abort, no crash
        QVERIFY2(program.exitCode() == exitCode, qPrintable(QString("exit %1: %2").arg(program.exitCode()).arg(err)));
        for (const QString& words : said)
            QVERIFY2(err.contains(words), qPrintable(err));
        QVERIFY2(!err.contains("ico\\fraction.ico") || QDir::separator() == '\\', qPrintable(err));
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestBadInput)
#include "tst_badinput.moc"
