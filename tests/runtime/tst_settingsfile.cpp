#include "runtime/settingsfile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestSettingsFile : public QObject {
    Q_OBJECT
private slots:
    void readsTheFirstValueOfTheFirstLine_data()
    {
        QTest::addColumn<QByteArray>("contents"); // "<none>": no file at all
        QTest::addColumn<bool>("readable");
        QTest::addColumn<QString>("value");
        QTest::newRow("written by us") << QByteArray("0\r\n") << true << "0";
        QTest::newRow("no line end") << QByteArray("1") << true << "1";
        QTest::newRow("unix line end") << QByteArray("1\n") << true << "1";
        QTest::newRow("blanks around") << QByteArray("  1  \r\n") << true << "1";
        QTest::newRow("more values") << QByteArray("1,0,7\r\n") << true << "1";
        QTest::newRow("quoted") << QByteArray("\"1\"\r\n") << true << "1";
        QTest::newRow("second line ignored") << QByteArray("0\r\n1\r\n") << true << "0";
        QTest::newRow("garbage is text") << QByteArray("hello\r\n") << true << "hello";
        QTest::newRow("blank first line") << QByteArray("\r\n1\r\n") << true << "";
        QTest::newRow("empty file") << QByteArray("") << false << "";
        QTest::newRow("missing file") << QByteArray("<none>") << false << "";
    }

    void readsTheFirstValueOfTheFirstLine()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, readable);
        QFETCH(QString, value);
        QTemporaryDir dir;
        SettingsFile::setFolder(dir.path());
        if (contents != "<none>") {
            QFile f(dir.filePath("primary.inf"));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(contents);
        }
        const auto read = SettingsFile::readFirstValue("primary.inf");
        QCOMPARE(read.has_value(), readable);
        if (readable)
            QCOMPARE(*read, value);
    }

    void writesOneLineWithCrLfOrReportsFailure()
    {
        QTemporaryDir dir;
        SettingsFile::setFolder(dir.filePath("new/folder")); // made on first write
        QVERIFY(SettingsFile::writeValue("sound.inf", "1"));
        QVERIFY(SettingsFile::writeValue("sound.inf", "0")); // replaced, not appended
        QFile f(SettingsFile::path("sound.inf"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("0\r\n"));
        QCOMPARE(*SettingsFile::readFirstValue("sound.inf"), QString("0"));

        // A folder below a plain file can never be made, even by root: the caller is told.
        SettingsFile::setFolder(f.fileName() + "/settings");
        QVERIFY(!SettingsFile::writeValue("primary.inf", "1"));
        QVERIFY(!SettingsFile::readFirstValue("primary.inf").has_value());
    }
};

QTEST_APPLESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
