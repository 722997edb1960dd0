#include "runtime/form.h"
#include "runtime/forms.h"
#include "runtime/formtimer.h"
#include "runtime/twips.h"
#include "testsupport.h"

#include <QtTest>

// A screen that counts its loads and has a timer, as the real screens do.
class Probe : public Form {
    Q_OBJECT
public:
    Probe()
        : Form(QStringLiteral("Probe"))
        , Timer1(addTimer(QStringLiteral("Timer1"), 1))
    {
        ++built;
    }
    FormTimer* Timer1;
    static inline int built = 0;
    static inline int loads = 0;
public slots:
    void Form_Load() { ++loads; }
};

class Other : public Form {
    Q_OBJECT
public:
    Other() : Form(QStringLiteral("Other")) {}
};

class TestForms : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        TestSupport::unloadAll();
        Forms::registerForm("Probe", [] { return new Probe; });
        Forms::registerForm("Other", [] { return new Other; });
        Probe::built = Probe::loads = 0;
    }

    void loadingRunsTheLoadStepsOnceAndUnloadingStopsAndDeletes()
    {
        QVERIFY(!Forms::isLoaded("Probe"));
        Probe* p = Forms::load<Probe>();
        QCOMPARE(Probe::loads, 1);
        QCOMPARE(Forms::show<Probe>(), p); // already loaded: same screen, no new load
        QVERIFY(p->isVisible());
        QCOMPARE(Probe::loads, 1);
        QPointer<Probe> gone = p;
        p->Timer1->setEnabled(true);
        Forms::unload("Probe");
        QVERIFY(!Forms::isLoaded("Probe"));
        QVERIFY(!p->Timer1->isActive() && !p->isVisible()); // nothing of it runs any more
        TestSupport::flushUnloads();
        QVERIFY(gone.isNull());
        Forms::show("Probe"); // afresh
        QCOMPARE(Probe::built, 2);
        QCOMPARE(Probe::loads, 2);
    }

    void showAndUnloadMovesFromScreenToScreen()
    {
        Probe* p = Forms::show<Probe>();
        Form* o = Forms::showAndUnload("Other", p);
        QCOMPARE(Forms::loadedNames(), QStringList{"Other"});
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), QStringList{"Other"});
        // Showing the screen that is already up never unloads it.
        QCOMPARE(Forms::showAndUnload("Other", o), o);
        QVERIFY(Forms::isLoaded("Other"));
        Forms::endProgram();
        QVERIFY(Forms::loadedNames().isEmpty());
        QVERIFY(Forms::programEnded());
    }

    void timersNeverTickFasterThanTheDisplay()
    {
        FormTimer fast(nullptr, "Timer1", 1);
        QVERIFY(fast.interval() >= 16);
        FormTimer slow(nullptr, "Timer2", 3000);
        QCOMPARE(slow.interval(), 3000);
        slow.setDesignInterval(500);
        QCOMPARE(slow.interval(), 500);
        slow.setEnabled(true);
        slow.setEnabled(false);
        QVERIFY(!slow.isEnabled());
    }

    void twipsBecomePixelsInOnePlace()
    {
        QCOMPARE(Twips::toPixels(9480), 632);
        QCOMPARE(Twips::fromPixels(434), 6510);
        QWidget w;
        Twips::place(&w, 1300, 1200, 1500, 3000);
        QCOMPARE(w.geometry(), QRect(87, 80, 100, 200));
        QCOMPARE(Twips::font("Times New Roman", 12).pixelSize(), 16);
        Twips::setScale(1.5);
        QCOMPARE(Twips::toPixels(1500), 150);
        QCOMPARE(Twips::font("Times New Roman", 12).pixelSize(), 24);
        Twips::setScale(1.0);
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
