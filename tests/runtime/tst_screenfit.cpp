// The scale picked for a display, windows kept on it, and the --scale values refused.
#include "runtime/options.h"
#include "runtime/screenfit.h"

#include <QtTest>

class TestScreenFit : public QObject {
    Q_OBJECT
private slots:
    void pickScale_data()
    {
        // Available areas in logical pixels: the display less its panels, halved at ratio 2.
        QTest::addColumn<QSize>("available");
        QTest::addColumn<double>("scale");
        QTest::newRow("1366 x 768 laptop") << QSize(1366, 728) << 1.2;
        QTest::newRow("1366 x 768 at ratio 2: largest that fits") << QSize(683, 364) << 0.7;
        QTest::newRow("1920 x 1080, or 3840 x 2160 at ratio 2") << QSize(1920, 1040) << 1.7;
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
        QVERIFY(available.isEmpty() || ScreenFit::fits(picked, available));
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
        QTest::newRow("larger than the area keeps its top left") << QPoint(-50, -50) << QSize(1200, 900) << QPoint(0, 30);
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
        const struct { const char* text; double value; } rows[] = {
            {"1.5", 1.5}, {"2", 2.0}, {"8", 8.0}, {"0.5", 0.5}, {"0", 0.0}, {"-1", 0.0}, {"9", 0.0},
            {"1e400", 0.0}, {"inf", 0.0}, {"nan", 0.0}, {"big", 0.0}, {"1,5", 0.0}, {"", 0.0}};
        for (const auto& row : rows)
            QTest::addRow("\"%s\"", row.text) << QString::fromLatin1(row.text) << row.value;
    }

    void scaleValues()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QString reason;
        const std::optional<double> parsed = parseScale(text, &reason);
        QCOMPARE(parsed.value_or(0.0), value);
        QVERIFY2(value > 0.0 ? reason.isEmpty() : reason.contains(QLatin1String("--scale")), qPrintable(reason));
    }
};

QTEST_MAIN(TestScreenFit)
#include "tst_screenfit.moc"
