// Every control a child can press, tick or type into has an objectName and a
// name a screen reader speaks, on every screen and after Start.
#include "runtime/form.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QtTest>

namespace {
// The screen's unnamed controls: buttons, text boxes, anything showing the pointing hand.
QStringList unnamedControls(const QString& screen, Form* form)
{
    QStringList offenders;
    for (QWidget* w : form->findChildren<QWidget*>()) {
        // Hidden only with its panel counts too: the other direction's boxes, a board before Start.
        const bool control = qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w)
            || (w->testAttribute(Qt::WA_SetCursor) && w->cursor().shape() == Qt::PointingHandCursor);
        if (w->isHidden() || !control)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        if (w->objectName().isEmpty() || !face || face->text(QAccessible::Name).trimmed().isEmpty())
            offenders << screen + QStringLiteral(": a %1 \"%2\"").arg(w->metaObject()->className(), w->objectName());
    }
    return offenders;
}
} // namespace

class TestNames : public QObject {
    Q_OBJECT
private slots:
    void everyControlIsNamed_data()
    {
        QTest::addColumn<QString>("edition");
        QTest::newRow("primary") << QStringLiteral("0");
        QTest::newRow("secondary") << QStringLiteral("1");
    }

    void everyControlIsNamed()
    {
        QFETCH(QString, edition);
        world.fresh();
        QStringList offenders;
        int checked = 0;
        for (const QString& screen : Forms::registeredNames()) {
            TestSupport::unloadAll();
            // What a screen finds when the child arrives at it from a menu.
            Module1::version = edition;
            Module1::soundsetting = QStringLiteral("0");
            Module1::yearlabel = edition == QLatin1String("1") ? QStringLiteral("Unit 1") : QStringLiteral("Year 2");
            Module1::streak = 10;
            Module1::activitytitle = QStringLiteral("Place In Order");
            Form* form = Forms::show(screen);
            QVERIFY2(form, qPrintable(screen));
            offenders << unnamedControls(screen, form);
            checked += form->findChildren<QAbstractButton*>().size();
            if (auto* start = form->findChild<QAbstractButton*>(QStringLiteral("cmdstart"))) {
                start->click();
                offenders << unnamedControls(screen + QStringLiteral(" after Start"), form);
            }
        }
        TestSupport::unloadAll();
        QVERIFY(checked > 50); // the screens really had their controls
        QVERIFY2(offenders.isEmpty(), qPrintable(QStringLiteral("unnamed:\n") + offenders.join(QLatin1Char('\n'))));
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestNames)
#include "tst_names.moc"
