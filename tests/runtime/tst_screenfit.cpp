// The scale picked for a display, the windows kept on it, and the --scale
// values the program refuses.
#include "runtime/options.h"
#include "runtime/screenfit.h"

#include <QProcess>
#include <QtTest>

class TestScreenFit : public QObject {
    Q_OBJECT
private slots:
    void pickScale_data()
    {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<double>("scale");
        // Available areas in logical pixels: the display less its panels, and
        // halved where the device pixel ratio is 2.
        QTest::newRow("1366 x 768 laptop") << QSize(1366, 728) << 1.2;
        QTest::newRow("1366 x 768 at ratio 2: largest that fits") << QSize(683, 364) << 0.7;
        QTest::newRow("1920 x 1080 classroom") << QSize(1920, 1040) << 1.7;
        QTest::newRow("3840 x 2160 at ratio 2") << QSize(1920, 1040) << 1.7;
        QTest::newRow("3840 x 2160") << QSize(3840, 2120) << 3.5;
        QTest::newRow("just the designed size") << QSize(640, 500) << 1.0;
        QTest::newRow("just too low for the ordering help") << QSize(640, 480) << 0.95;
        QTest::newRow("800 x 600 keeps the designed size") << QSize(800, 600) << 1.0;
        QTest::newRow("wide and low") << QSize(3000, 600) << 1.0;
        QTest::newRow("tall and narrow: the width decides") << QSize(700, 2000) << 1.05;
        QTest::newRow("too narrow for the designed size") << QSize(600, 1000) << 0.9;
        QTest::newRow("no display") << QSize(0, 0) << 1.0;
    }

    void pickScale()
    {
        QFETCH(QSize, available);
        QFETCH(double, scale);
        const double picked = ScreenFit::pickScale(available);
        QCOMPARE(picked, scale);
        if (!available.isEmpty())
            QVERIFY2(ScreenFit::fits(picked, available), "a picked scale always fits");
    }

    void keepInside_data()
    {
        QTest::addColumn<QPoint>("wanted");
        QTest::addColumn<QSize>("outer");
        QTest::addColumn<QPoint>("placed");
        const QSize window(400, 300);
        QTest::newRow("inside stays") << QPoint(100, 100) << window << QPoint(100, 100);
        QTest::newRow("above the panel comes down") << QPoint(100, -96) << window << QPoint(100, 30);
        QTest::newRow("past the right edge comes back") << QPoint(900, 100) << window << QPoint(600, 100);
        QTest::newRow("past the bottom comes up") << QPoint(100, 700) << window << QPoint(100, 430);
        QTest::newRow("larger than the area keeps its top left") << QPoint(-50, -50) << QSize(1200, 900)
                                                                  << QPoint(0, 30);
    }

    void keepInside()
    {
        QFETCH(QPoint, wanted);
        QFETCH(QSize, outer);
        QFETCH(QPoint, placed);
        const QRect area(0, 30, 1000, 700); // a panel of 30 pixels on top
        QCOMPARE(ScreenFit::keepInside(wanted, outer, area), placed);
    }

    void scaleValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // 0: refused
        QTest::newRow("one and a half") << QStringLiteral("1.5") << 1.5;
        QTest::newRow("two") << QStringLiteral("2") << 2.0;
        QTest::newRow("the largest") << QStringLiteral("8") << 8.0;
        QTest::newRow("small but above 0") << QStringLiteral("0.5") << 0.5;
        QTest::newRow("zero") << QStringLiteral("0") << 0.0;
        QTest::newRow("negative") << QStringLiteral("-1") << 0.0;
        QTest::newRow("huge") << QStringLiteral("9") << 0.0;
        QTest::newRow("too many digits") << QStringLiteral("1e400") << 0.0;
        QTest::newRow("infinite") << QStringLiteral("inf") << 0.0;
        QTest::newRow("not a number") << QStringLiteral("nan") << 0.0;
        QTest::newRow("words") << QStringLiteral("big") << 0.0;
        QTest::newRow("a decimal comma") << QStringLiteral("1,5") << 0.0;
        QTest::newRow("empty") << QString() << 0.0;
    }

    void scaleValues()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QString reason;
        const std::optional<double> parsed = parseScale(text, &reason);
        if (value > 0.0) {
            QVERIFY(parsed.has_value());
            QCOMPARE(*parsed, value);
            QVERIFY(reason.isEmpty());
        } else {
            QVERIFY(!parsed.has_value());
            QVERIFY2(reason.contains(QLatin1String("--scale")), qPrintable(reason));
        }
    }

    void refusedScaleEndsTheProgram_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("says");
        QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("above 0");
        QTest::newRow("negative") << QStringLiteral("-2") << QStringLiteral("above 0");
        QTest::newRow("above the largest") << QStringLiteral("100") << QStringLiteral("too large");
        QTest::newRow("too large for the display") << QStringLiteral("7") << QStringLiteral("would not fit");
        QTest::newRow("not a number") << QStringLiteral("twice") << QStringLiteral("needs a number");
    }

    void refusedScaleEndsTheProgram()
    {
        QFETCH(QString, value);
        QFETCH(QString, says);
        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        program.setProcessEnvironment(env);
        program.start(QStringLiteral(PARTITUDE_BINARY_DIR "/partitude"),
                      {QStringLiteral("--settings"), QDir::tempPath(), QStringLiteral("--scale"), value});
        QVERIFY(program.waitForFinished(30000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 2);
        const QString error = QString::fromLocal8Bit(program.readAllStandardError());
        QVERIFY2(error.contains(says), qPrintable(error));
    }
};

QTEST_MAIN(TestScreenFit)
#include "tst_screenfit.moc"
