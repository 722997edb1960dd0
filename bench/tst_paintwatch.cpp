// The tour's paint watch: a screen shown or changed is seen drawn, and only
// that screen; an action that does nothing is not timed; a screen that never
// draws is reported as never drawn, not as fast.
#include "paintwatch.h"

#include <QLabel>
#include <QtTest>
#include <cmath>

namespace {
constexpr int kShortLimitMs = 300;
const QString kScreen = QStringLiteral("Screen");
}

class TestPaintWatch : public QObject {
    Q_OBJECT
private slots:
    void aShownScreenIsDrawn();
    void aChangedScreenIsDrawn();
    void nothingDoneIsNotTimed();
    void anotherScreenDrawnDoesNotCount();
};

void TestPaintWatch::aShownScreenIsDrawn()
{
    PaintWatch watch;
    QLabel screen(QStringLiteral("shown"));
    screen.setObjectName(kScreen);
    const std::optional<double> ms = watch.time([&] {
        screen.show();
        return kScreen;
    });
    QVERIFY(ms.has_value());
    QVERIFY2(std::isfinite(*ms), "a shown screen was never seen drawn");
}

void TestPaintWatch::aChangedScreenIsDrawn()
{
    PaintWatch watch;
    QLabel screen(QStringLiteral("before"));
    screen.setObjectName(kScreen);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    QCoreApplication::processEvents();
    const std::optional<double> ms = watch.time([&] {
        screen.setText(QStringLiteral("after"));
        return kScreen;
    });
    QVERIFY(ms.has_value());
    QVERIFY2(std::isfinite(*ms), "a changed screen was never seen drawn");
}

void TestPaintWatch::nothingDoneIsNotTimed()
{
    PaintWatch watch;
    QVERIFY(!watch.time([] { return QString(); }).has_value());
}

void TestPaintWatch::anotherScreenDrawnDoesNotCount()
{
    PaintWatch watch;
    watch.setLimitMs(kShortLimitMs);
    QLabel other(QStringLiteral("other"));
    other.setObjectName(QStringLiteral("Other"));
    const std::optional<double> ms = watch.time([&] {
        other.show();
        return kScreen; // named, but never shown
    });
    QVERIFY(ms.has_value());
    QVERIFY2(std::isinf(*ms), "a screen that was never shown counted as drawn");
}

QTEST_MAIN(TestPaintWatch)
#include "tst_paintwatch.moc"
