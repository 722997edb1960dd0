// A click lands where the child's pointer is: the window hands it to the
// control on top at that point. Every button of the menus and of the three
// activity screens, before and after Start, must be the control on top at its
// own centre, or a click on it goes to whatever lies over it.
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
    const QPoint centre = control->mapTo(form, control->rect().center());
    QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, centre);
}

// The buttons a child could click now.
QStringList clickableButtons(Form* form)
{
    QStringList names;
    for (QAbstractButton* b : form->findChildren<QAbstractButton*>())
        if (b->isVisible() && b->isEnabled())
            names << b->objectName();
    return names;
}

// What lies on top at a control's centre, for the failure message.
QString onTopAt(Form* form, QWidget* control)
{
    QWidget* top = form->childAt(control->mapTo(form, control->rect().center()));
    return top ? top->objectName() + QLatin1Char(' ') + QString::fromLatin1(top->metaObject()->className())
               : QStringLiteral("nothing");
}

} // namespace

class TestPointer : public QObject {
    Q_OBJECT
private slots:
    void everyButtonTakesAPointerClick_data();
    void everyButtonTakesAPointerClick();

private:
    // A fresh screen, started through its window when asked.
    Form* prepare(const QString& screen, bool started);
    TestSupport::World world;
};

Form* TestPointer::prepare(const QString& screen, bool started)
{
    world.fresh();
    Module1::version = Module1::soundsetting = QStringLiteral("0");
    Module1::yearlabel = QStringLiteral("Year 6");
    Module1::streak = 10;
    Form* form = Forms::show(screen);
    if (started) {
        clickThroughWindow(form, form->findChild<QAbstractButton*>(QStringLiteral("cmdstart")));
        // On the ordering board a number is placed first, so Undo has one to
        // take back.
        if (auto* ordering = qobject_cast<Y6fract3*>(form))
            clickThroughWindow(form, ordering->Label10[2]);
    }
    return form;
}

void TestPointer::everyButtonTakesAPointerClick_data()
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

void TestPointer::everyButtonTakesAPointerClick()
{
    QFETCH(QString, screen);
    QFETCH(bool, started);
    const QStringList names = clickableButtons(prepare(screen, started));
    QVERIFY(names.size() >= 3);
    if (screen == QLatin1String("Y6fract3") && started) {
        QVERIFY(names.contains(QStringLiteral("cmdundo")));
        QVERIFY(!qobject_cast<Y6fract3*>(Forms::find(screen))->Label11[0]->text().isEmpty());
    }

    QStringList missed;
    for (const QString& name : names) {
        // Each button on a screen of its own: a click may lead elsewhere
        // and take the screen away at once.
        QPointer<Form> form = prepare(screen, started);
        auto* button = form->findChild<QAbstractButton*>(name);
        QSignalSpy clicked(button, &QAbstractButton::clicked);
        const QString top = onTopAt(form, button);
        clickThroughWindow(form, button);
        if (clicked.count() != 1) {
            missed << name + QStringLiteral(" under ") + top;
            continue;
        }
        // Undo took the placed number back.
        if (auto* ordering = qobject_cast<Y6fract3*>(form.data()); ordering && name == QLatin1String("cmdundo")) {
            QVERIFY(ordering->Label11[0]->text().isEmpty());
            QVERIFY(ordering->Label10[2]->isEnabled());
        }
    }
    TestSupport::unloadAll();
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(QStringLiteral(", "))));
}

QTEST_MAIN(TestPointer)
#include "tst_pointer.moc"
