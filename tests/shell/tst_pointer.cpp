// Every button of the menus and activities, before and after Start, is on top at its centre, so a click reaches it.
#include "activities/ordering/boardlabels.h"
#include "activities/ordering/y6fract3.h"
#include "runtime/form.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QWindow>
#include <QtTest>

namespace {
// Clicks the screen's window at a control's centre, as the pointer does.
void clickThroughWindow(Form* form, QWidget* control)
{
    QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, control->mapTo(form, control->rect().center()));
}
} // namespace

class TestPointer : public QObject {
    Q_OBJECT
private slots:
    void everyButtonTakesAPointerClick_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<bool>("started");
        for (const char* menu : {"Year", "y2Intro", "y3Intro", "y4Intro", "y5Intro", "y5Intro2", "y6Intro"})
            QTest::newRow(menu) << QString::fromLatin1(menu) << false;
        for (const char* activity : {"Y2fractions", "y5fract4", "Y6fract3"}) {
            QTest::addRow("%s opening", activity) << QString::fromLatin1(activity) << false;
            QTest::addRow("%s started", activity) << QString::fromLatin1(activity) << true;
        }
    }

    void everyButtonTakesAPointerClick()
    {
        QFETCH(QString, screen);
        QFETCH(bool, started);
        QStringList names;
        for (QAbstractButton* b : prepare(screen, started)->findChildren<QAbstractButton*>())
            if (b->isVisible() && b->isEnabled())
                names << b->objectName();
        QVERIFY(names.size() >= 3);
        QCOMPARE(names.contains(QStringLiteral("cmdundo")), screen == QLatin1String("Y6fract3") && started);

        QStringList missed;
        for (const QString& name : std::as_const(names)) {
            // Each button on a screen of its own: a click may take the screen away.
            QPointer<Form> form = prepare(screen, started);
            auto* button = form->findChild<QAbstractButton*>(name);
            QSignalSpy clicked(button, &QAbstractButton::clicked);
            QWidget* top = form->childAt(button->mapTo(form, button->rect().center()));
            clickThroughWindow(form, button);
            if (clicked.count() != 1)
                missed << name + QStringLiteral(" under ") + (top ? top->objectName() : QStringLiteral("nothing"));
            // Undo took the placed number back.
            if (auto* ordering = qobject_cast<Y6fract3*>(form.data()); ordering && name == QLatin1String("cmdundo"))
                QVERIFY(ordering->Label11[0]->text().isEmpty() && ordering->Label10[2]->isEnabled());
        }
        TestSupport::unloadAll();
        QVERIFY2(missed.isEmpty(), qPrintable(missed.join(QStringLiteral(", "))));
    }

private:
    // On the ordering board a number is placed, so Undo has one to take back.
    Form* prepare(const QString& screen, bool started)
    {
        world.fresh();
        world.arrive(QStringLiteral("Year 6"));
        Form* form = Forms::show(screen);
        if (started) {
            clickThroughWindow(form, form->findChild<QAbstractButton*>(QStringLiteral("cmdstart")));
            if (auto* ordering = qobject_cast<Y6fract3*>(form))
                clickThroughWindow(form, ordering->Label10[2]);
        }
        return form;
    }
    TestSupport::World world;
};

QTEST_MAIN(TestPointer)
#include "tst_pointer.moc"
