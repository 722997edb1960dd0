// Full screen: each screen centred over a window of its colour covering the display; F11 toggles; the window follows.
#include "runtime/form.h"
#include "runtime/fullscreen.h"
#include "runtime/options.h"
#include "runtime/screenfit.h"
#include "runtime/twips.h"
#include "shell/startup.h"
#include "testsupport.h"

#include <QDialog>
#include <QScreen>
#include <QtTest>

class TestFullScreen : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { FullScreen::installKey(); }

    void init() { world.fresh(); world.arrive(); }

    void cleanup()
    {
        ScreenFit::pretendAvailable(QRect());
        FullScreen::setOn(false);
        TestSupport::unloadAll();
        Twips::setScale(1.0);
    }

    void screenCentredOverItsColour_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<double>("scale");
        QTest::newRow("title") << QStringLiteral("Titlefrm") << 1.0;
        QTest::newRow("year menu, larger") << QStringLiteral("Year") << 1.2;
        QTest::newRow("activity menu") << QStringLiteral("y2Intro") << 1.0;
        QTest::newRow("activity, larger") << QStringLiteral("Y2fractions") << 1.2;
        QTest::newRow("certificate") << QStringLiteral("Welldone") << 1.0;
    }

    void screenCentredOverItsColour()
    {
        QFETCH(QString, screen);
        QFETCH(double, scale);
        Twips::setScale(scale);
        FullScreen::setOn(true);
        Form* form = Forms::show(screen);
        QWidget* host = FullScreen::hostOf(form);
        QVERIFY(host && host->isVisible() && host->autoFillBackground());
        const QRect display = QGuiApplication::primaryScreen()->geometry();
        QCOMPARE(host->geometry(), display);
        QCOMPARE(host->palette().color(QPalette::Window), form->backColour());
        QVERIFY(form->isVisible() && form->windowFlags().testFlag(Qt::FramelessWindowHint));
        const QPoint off = form->geometry().center() - display.center();
        QVERIFY2(off.manhattanLength() <= 1, qPrintable(QStringLiteral("%1,%2").arg(off.x()).arg(off.y())));
        // The screen keeps its own size.
        const QSize framed = form->size();
        FullScreen::setOn(false);
        QCOMPARE(form->size(), framed);
        QVERIFY(!FullScreen::hostOf(form));
    }

    void f11Toggles()
    {
        Form* year = Forms::show(QStringLiteral("Year"));
        {
            QDialog message; // not while a message box waits for an answer
            message.setModal(true);
            message.show();
            QTest::keyClick(year, Qt::Key_F11);
            QVERIFY(!FullScreen::isOn());
        }
        QTest::keyClick(year, Qt::Key_F11);
        QVERIFY(FullScreen::isOn());
        QWidget* host = FullScreen::hostOf(year);
        QVERIFY(host && host->isVisible() && year->isVisible());
        // The next screen comes up full screen too; F11 there ends it.
        Form* title = Forms::showAndUnload(QStringLiteral("Titlefrm"), year);
        TestSupport::flushUnloads();
        QVERIFY(FullScreen::hostOf(title));
        QTest::keyClick(title, Qt::Key_F11);
        QVERIFY(!FullScreen::isOn());
        QVERIFY(!FullScreen::hostOf(title));
        QVERIFY(!title->windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(TestSupport::visibleForms(), QStringList{QStringLiteral("Titlefrm")});
    }

    void hostFollowsItsScreen()
    {
        FullScreen::setOn(true);
        Form* menu = Forms::show(QStringLiteral("y2Intro"));
        QPointer<QWidget> host = FullScreen::hostOf(menu);
        QVERIFY(host);
        menu->hide();
        QVERIFY(!host->isVisible());
        menu->show();
        QVERIFY(host->isVisible());
        // The close box of the window behind is the screen's: Goodbye, back to the year menu.
        TestSupport::pressCloseBox(host);
        TestSupport::flushUnloads(); // the screen goes,
        TestSupport::flushUnloads(); // and then the window behind it
        QVERIFY(!Forms::isLoaded(QStringLiteral("y2Intro")) && host.isNull());
        Form* year = Forms::find(QStringLiteral("Year"));
        QVERIFY(year && FullScreen::hostOf(year));
    }

    void panelsStayFramed()
    {
        FullScreen::setOn(true);
        Form* retry = Forms::show(QStringLiteral("Reward"));
        QVERIFY(!FullScreen::hostOf(retry));
        FullScreen::setOn(false);
        QVERIFY(retry->windowFlags().testFlag(Qt::FramelessWindowHint));
    }

    // Start-up takes the scale asked for, or picks one, and goes full screen when asked.
    void startUp_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<double>("scale");
        QTest::addColumn<bool>("full");
        QTest::newRow("picked") << QStringList() << 1.7 << false;
        QTest::newRow("asked for") << QStringList{QStringLiteral("--scale"), QStringLiteral("1.25")} << 1.25 << false;
        QTest::newRow("full screen") << QStringList{QStringLiteral("--fullscreen")} << 1.7 << true;
    }

    void startUp()
    {
        QFETCH(QStringList, arguments);
        QFETCH(double, scale);
        QFETCH(bool, full);
        ScreenFit::pretendAvailable(QRect(0, 0, 1920, 1040));
        StartOptions options = parseArguments(QStringList{QStringLiteral("partitude")} + arguments);
        options.assetFolder = QStringLiteral(PARTITUDE_TEST_ASSETS);
        options.settingsFolder = world.settings->path();
        startProgram(options);
        QCOMPARE(Twips::scale(), scale);
        Form* title = Forms::find(QStringLiteral("Titlefrm"));
        QVERIFY(title && title->isVisible());
        QCOMPARE(FullScreen::isOn(), full);
        QCOMPARE(FullScreen::hostOf(title) != nullptr, full);
        QCOMPARE(title->width(), Twips::toPixels(Form::kScreenWidthTwips - Form::kBorderWidthTwips));
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestFullScreen)
#include "tst_fullscreen.moc"
