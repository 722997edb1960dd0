// Every screen, at the scale picked for small and large displays and at scales asked for by hand, lies wholly
// on the display with its controls inside it; and every control a child can use has an objectName and a name.
#include "runtime/form.h"
#include "runtime/screenfit.h"
#include "runtime/twips.h"
#include "testsupport.h"
#include "worksheets/printforms.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QtTest>

namespace {

QString describe(const QRect& r) { return QStringLiteral("%1,%2 %3 x %4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()); }

// The visible controls of a screen that stick out of it.
QStringList outside(Form* form)
{
    QStringList offenders;
    for (const QWidget* w : form->findChildren<QWidget*>()) {
        const QRect at(w->mapTo(form, QPoint(0, 0)), w->size());
        if (!w->isWindow() && w->isVisibleTo(form) && !at.isEmpty() && !form->rect().contains(at))
            offenders << QStringLiteral("%1 %2 at %3 in %4").arg(form->objectName(), w->objectName(), describe(at), describe(form->rect()));
    }
    return offenders;
}

// The controls without a name: buttons, text boxes, anything showing the pointing hand, hidden only with their panel.
QStringList unnamed(const QString& screen, Form* form)
{
    QStringList offenders;
    for (QWidget* w : form->findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w)
            || (w->testAttribute(Qt::WA_SetCursor) && w->cursor().shape() == Qt::PointingHandCursor);
        if (w->isHidden() || !control)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        if (w->objectName().isEmpty() || !face || face->text(QAccessible::Name).trimmed().isEmpty())
            offenders << screen + QStringLiteral(": a %1 \"%2\" has no name").arg(w->metaObject()->className(), w->objectName());
    }
    return offenders;
}

} // namespace

class TestScreenSize : public QObject {
    Q_OBJECT
private slots:
    void cleanup()
    {
        TestSupport::unloadAll();
        ScreenFit::pretendAvailable(QRect());
        Twips::setScale(1.0);
    }

    void everyScreenFitsAndIsNamed_data()
    {
        QTest::addColumn<QRect>("available"); // logical pixels, panels taken off
        QTest::addColumn<double>("scale");    // 0: the scale picked for the display
        QTest::addColumn<QString>("edition");
        QTest::newRow("1366 x 768, picked") << QRect(0, 0, 1366, 728) << 0.0 << "0";
        QTest::newRow("1366 x 768 at ratio 2, picked") << QRect(0, 0, 683, 364) << 0.0 << "0";
        QTest::newRow("1366 x 768 with a panel on top, 1.4") << QRect(0, 40, 1366, 728) << 1.4 << "0";
        QTest::newRow("3840 x 2160, picked") << QRect(0, 0, 3840, 2120) << 0.0 << "0";
        QTest::newRow("3840 x 2160 at ratio 2, picked, secondary") << QRect(0, 0, 1920, 1040) << 0.0 << "1";
        QTest::newRow("3840 x 2160, 1") << QRect(0, 0, 3840, 2120) << 1.0 << "0";
        QTest::newRow("3840 x 2160, 1.5") << QRect(0, 0, 3840, 2120) << 1.5 << "0";
        QTest::newRow("3840 x 2160, 2") << QRect(0, 0, 3840, 2120) << 2.0 << "0";
        QTest::newRow("display to the right of another, 2") << QRect(1920, 0, 1920, 1040) << 2.0 << "0";
    }

    void everyScreenFitsAndIsNamed()
    {
        QFETCH(QRect, available);
        QFETCH(double, scale);
        QFETCH(QString, edition);
        world.fresh();
        ScreenFit::pretendAvailable(available);
        Twips::setScale(scale > 0.0 ? scale : ScreenFit::pickScale(available.size()));
        QStringList offenders;
        int screens = 0, buttons = 0;
        for (const QString& name : Forms::registeredNames()) {
            TestSupport::unloadAll();
            world.arrive(edition == QLatin1String("1") ? QStringLiteral("Unit 1") : QStringLiteral("Year 2"));
            Module1::version = edition;
            Module1::activitytitle = QStringLiteral("Place In Order");
            Form* form = Forms::show(name);
            QVERIFY2(form, qPrintable(name));
            offenders << unnamed(name, form);
            buttons += form->findChildren<QAbstractButton*>().size();
            if (name == QLatin1String("Grey") || qobject_cast<WorksheetForm*>(form)) // loaded, never shown
                continue;
            ++screens;
            // The outer rectangle: the designed size where there is one (title bar and border included).
            const QRect outer = form->designWidth() > 0
                ? QRect(form->pos(), QSize(Twips::toPixels(form->designWidth()), Twips::toPixels(form->designHeight())))
                : form->frameGeometry();
            if (!available.contains(outer))
                offenders << name + QStringLiteral(" at ") + describe(outer) + QStringLiteral(" off the display");
            offenders << outside(form);
            // An activity's board and reward picture appear with Start.
            if (auto* start = form->findChild<QAbstractButton*>(QStringLiteral("cmdstart"))) {
                start->click();
                offenders << outside(form) << unnamed(name + QStringLiteral(" after Start"), form);
            }
        }
        QVERIFY(screens > 10 && buttons > 50);
        QVERIFY2(offenders.isEmpty(), qPrintable(offenders.join(QLatin1Char('\n'))));
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestScreenSize)
#include "tst_screensize.moc"
