// Every control a child can press, tick or type into has a name in the
// program (its objectName) and a name a screen reader speaks. Each screen is
// shown in turn, and the activity screens once more after Start, when their
// boards are up.
#include "runtime/form.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QtTest>

namespace {

// A control the child works with: a button of any kind, a text box, or
// anything that shows the pointing hand.
bool isControl(const QWidget* w)
{
    return qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QLineEdit*>(w)
        || (w->testAttribute(Qt::WA_SetCursor) && w->cursor().shape() == Qt::PointingHandCursor);
}

QString spokenName(QWidget* w)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
    return face ? face->text(QAccessible::Name).trimmed() : QString();
}

// How an offender is told: its name, or what it shows when it has none.
QString describe(QWidget* w)
{
    if (!w->objectName().isEmpty())
        return w->objectName();
    QString shows = w->toolTip();
    if (auto* b = qobject_cast<QAbstractButton*>(w))
        shows = b->text().trimmed();
    return QStringLiteral("%1 \"%2\" without objectName").arg(QString::fromLatin1(w->metaObject()->className()), shows);
}

// The screen's unnamed controls on one line, or nothing.
QString unnamedControls(const QString& screen, Form* form)
{
    QStringList offenders;
    for (QWidget* w : form->findChildren<QWidget*>()) {
        // A control counts when it is on show, or would be as soon as its
        // panel is (the other direction's answer boxes, a board before Start).
        if (w->isHidden() || !isControl(w))
            continue;
        if (w->objectName().isEmpty() || spokenName(w).isEmpty())
            offenders << describe(w);
    }
    return offenders.isEmpty() ? QString() : screen + QStringLiteral(": ") + offenders.join(QStringLiteral(", "));
}

} // namespace

class TestNames : public QObject {
    Q_OBJECT
private slots:
    void everyControlIsNamed_data();
    void everyControlIsNamed();

private:
    TestSupport::World world;
};

void TestNames::everyControlIsNamed_data()
{
    QTest::addColumn<QString>("edition");
    QTest::newRow("primary") << QStringLiteral("0");
    QTest::newRow("secondary") << QStringLiteral("1");
}

void TestNames::everyControlIsNamed()
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
    offenders.removeAll(QString());
    QVERIFY2(offenders.isEmpty(), qPrintable(QStringLiteral("unnamed:\n") + offenders.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestNames)
#include "tst_names.moc"
