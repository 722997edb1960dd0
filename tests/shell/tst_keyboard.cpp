// The keyboard works every screen (Tab as a child reads, Return and Space press, a ring shows the focus); Escape and the close box go back.
#include "activities/activitytable.h"
#include "activities/mixed/y5fract4.h"
#include "menus/activitymenu.h"
#include "runtime/focusring.h"
#include "runtime/form.h"
#include "runtime/keyboard.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QtTest>

namespace {

struct Screen {
    const char* name;
    const char* under = nullptr;  // the screen shown first
    const char* afterEscape = ""; // the screens on show afterwards; nullptr: as before
    const char* tabs = nullptr;   // the controls Tab takes, from the first; nullptr: by reading order
};

const Screen kScreens[] = {
    {"Titlefrm", nullptr, "Titlefrm", "Command1,Command2"},
    {"Form1", nullptr, "Year", "Command1,Check2"},
    {"Year", nullptr, "Titlefrm", "Command5,Command2,Command3,Command6,Command1,Check1,Command4"},
    {"Grey", nullptr, nullptr, ""},
    {"Reward", "Y6fract3", "Y6fract3", ""},
    {"Welldone", "Y6fract3", "Y6fract3", "Text1,Command2,cmdexit"},
    {"orderhelp", "Y6fract3", "Y6fract3", "cmdexit"},
    {"y2fracprint1", nullptr, "", "Command1"},
    {"y5fracprint4", nullptr, "", "Command1"},
    {"y6fracprint3", nullptr, "", "Command1"},
};

// A screen not in the table is a menu or an activity, reached directly.
Screen screenFor(const QString& name, QByteArray& keep)
{
    for (const Screen& s : kScreens)
        if (name == QLatin1String(s.name))
            return s;
    Screen s;
    keep = name.toLatin1();
    s.name = keep.constData();
    if (const Activities::Row* row = Activities::forScreen(name))
        s.afterEscape = row->menu;
    else if (name == QLatin1String("y5Intro2"))
        s.afterEscape = "y5Intro";
    else
        s.afterEscape = name.endsWith(QLatin1String("Intro")) ? "Year" : "<no row for this screen>";
    return s;
}

QRect placeOn(const QWidget* control, const QWidget* form) { return QRect(control->mapTo(form, QPoint(0, 0)), control->size()); }

// b stands before a as a child reads: higher, or level and wholly to the left.
bool readBefore(const QRect& b, const QRect& a)
{
    const auto levelWith = [](const QRect& r, int y) { return r.top() <= y && y <= r.bottom(); };
    const bool level = levelWith(a, b.center().y()) && levelWith(b, a.center().y());
    return b.center().y() < a.top() || (level && b.right() < a.left());
}

// Exclusive option buttons are one Tab stop (the arrows move between them).
QString stop(const QWidget* w)
{
    if (auto* option = qobject_cast<const QRadioButton*>(w); option && option->autoExclusive())
        return QStringLiteral("options in ") + w->parentWidget()->objectName();
    return w->objectName();
}

// Two controls compare by the two different frames (or themselves) that hold them side by side.
std::pair<QRect, QRect> unitsOf(QWidget* a, QWidget* b, const QWidget* form)
{
    const auto line = [form](QWidget* w) {
        QList<QWidget*> l;
        for (; w != form; w = w->parentWidget())
            l.prepend(w);
        return l;
    };
    const QList<QWidget*> aLine = line(a), bLine = line(b);
    int i = 0;
    while (i < aLine.size() - 1 && i < bLine.size() - 1 && aLine[i] == bLine[i])
        ++i;
    return {placeOn(aLine[i], form), placeOn(bLine[i], form)};
}

// An answer box keeps Tab for itself: there the key goes to the screen.
QWidget* tabTarget(QWidget* w, Form* form) { return qobject_cast<QLineEdit*>(w) ? form : w; }

} // namespace

class TestKeyboard : public QObject {
    Q_OBJECT
private slots:
    void readingOrder_data()
    {
        // Each control: name left top width height [hidden]; "frame.x" stands inside frame.
        QTest::addColumn<QStringList>("layout");
        QTest::addColumn<QString>("order");
        QTest::newRow("one row, ragged tops, made right to left")
            << QStringList{"c 120 15 50 40", "b 60 0 50 40", "a 0 10 50 40"} << "a,b,c";
        QTest::newRow("two rows, made bottom up")
            << QStringList{"d 60 60 50 40", "c 0 60 50 40", "b 60 0 50 40", "a 0 0 50 40"} << "a,b,c,d";
        QTest::newRow("a small box level with a big button") << QStringList{"box 0 20 100 20", "button 200 0 60 56"} << "box,button";
        QTest::newRow("a column beside a frame's pair, read together")
            << QStringList{"frame 0 0 100 200", "frame.top 0 0 90 40", "frame.bottom 0 120 90 40", "right 150 60 50 40"}
            << "frame.top,frame.bottom,right";
        QTest::newRow("a frame below the row")
            << QStringList{"frame 0 100 300 50", "frame.left 0 0 90 40", "frame.right 100 0 90 40", "b 150 0 50 40", "a 0 0 50 40"}
            << "a,b,frame.left,frame.right";
        QTest::newRow("hidden controls are left out") << QStringList{"b 60 0 50 40", "a 0 0 50 40 hidden", "c 0 60 50 40"} << "b,c";
    }
    void readingOrder()
    {
        QFETCH(QStringList, layout);
        QFETCH(QString, order);
        QWidget root;
        for (const QString& line : layout) {
            const QStringList f = line.split(QLatin1Char(' '));
            const QString frame = f[0].section(QLatin1Char('.'), 0, -2);
            QWidget* parent = frame.isEmpty() ? &root : root.findChild<QWidget*>(frame);
            QWidget* w = frame.isEmpty() && !layout.filter(f[0] + QLatin1Char('.')).isEmpty()
                ? new QWidget(parent)
                : static_cast<QWidget*>(new QPushButton(parent));
            w->setObjectName(f[0]);
            w->setGeometry(f[1].toInt(), f[2].toInt(), f[3].toInt(), f[4].toInt());
            w->setHidden(f.value(5) == QLatin1String("hidden"));
        }
        QStringList names;
        for (QWidget* w : Keyboard::readingOrder(&root))
            names << w->objectName();
        QCOMPARE(names.join(QLatin1Char(',')), order);
    }

    // Every screen as it opens, and every activity after Start.
    void tabAndEscape_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<bool>("started");
        world.fresh();
        for (const QString& name : Forms::registeredNames())
            QTest::newRow(qPrintable(name)) << name << false;
        for (const Activities::Row& row : Activities::all())
            if (row.make)
                QTest::addRow("%s after Start", row.screen) << QString::fromLatin1(row.screen) << true;
    }
    // Tab reads the screen as a child reads; Escape takes its way back (on the title screen nothing).
    void tabAndEscape()
    {
        QFETCH(QString, screen);
        QFETCH(bool, started);
        Form* form = open(screen, started);
        QVERIFY(form);
        const Screen s = opened;
        const QStringList round = tabRound(form);

        // Every shown control that takes Tab comes once in the round.
        QStringList shown, stops;
        for (QWidget* w : form->findChildren<QWidget*>())
            if (Keyboard::takesTab(w) && w->isVisibleTo(form) && w->isEnabled() && !shown.contains(stop(w)))
                shown << stop(w);
        for (const QString& name : round)
            stops << stop(form->findChild<QWidget*>(name));
        stops.sort();
        shown.sort();
        QCOMPARE(stops, shown);

        if (const auto* menu = qobject_cast<ActivityMenu*>(form)) {
            QStringList expected; // the list top to bottom, then Goodbye
            for (QPushButton* b : menu->buttons)
                expected << b->objectName();
            QCOMPARE(round, expected << menu->Command4->objectName());
        } else if (s.tabs) {
            QCOMPARE(round.join(QLatin1Char(',')), QString::fromLatin1(s.tabs));
        } else {
            // Activities start on Start, and go on as a child reads from Print round to Options.
            if (!started)
                QCOMPARE(round.value(0), QStringLiteral("cmdstart"));
            const int from = round.indexOf(QStringLiteral("cmdprint"));
            QVERIFY(from >= 0);
            const QStringList read = round.mid(from) + round.mid(0, from);
            for (int i = 1; i < read.size(); ++i) {
                const auto [a, b] = unitsOf(form->findChild<QWidget*>(read[i - 1]), form->findChild<QWidget*>(read[i]), form);
                QVERIFY2(!readBefore(b, a), qPrintable(read[i] + QStringLiteral(" after ") + read[i - 1]));
            }
        }
        if (started)
            return;
        const QStringList before = TestSupport::visibleForms();
        QTest::keyPress(form->focusWidget() ? form->focusWidget() : form, Qt::Key_Escape); // the screen may go before the key is up
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), s.afterEscape ? screens(s.afterEscape) : before);
        QVERIFY(!Forms::programEnded());
    }

    // The close box leads where the screen's own way back leads; only the title's ends the program, as its Exit does.
    void closeBoxIsTheWayBack_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<bool>("firstRun"); // no settings files yet
        QTest::addColumn<QString>("after");
        QTest::newRow("title ends the program") << "Titlefrm" << false << "";
        QTest::newRow("title on a first run stays") << "Titlefrm" << true << "Titlefrm";
        for (const char* screen : {"Form1", "Year", "y2Intro", "y5Intro2", "orderhelp", "Welldone", "Reward", "y5fracprint4"})
            QTest::newRow(screen) << screen << false << screenFor(screen, keep).afterEscape;
    }
    void closeBoxIsTheWayBack()
    {
        QFETCH(QString, screen);
        QFETCH(bool, firstRun);
        QFETCH(QString, after);
        Form* form = open(screen, false, firstRun);
        QVERIFY(form && form->isVisible());
        TestSupport::pressCloseBox(form);
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms(), screens(after));
        QCOMPARE(Forms::programEnded(), screen == QLatin1String("Titlefrm") && !firstRun);
        // A close the program makes itself is no press of the close box.
        if (Form* still = Forms::find(screens(after).value(0))) {
            still->close();
            QCOMPARE(TestSupport::visibleForms(), screens(after));
        }
    }

    void returnAndSpacePress_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("tabs"); // Tab presses from the first control
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("shown"); // the screen on show afterwards
        QTest::newRow("title: Return on OK") << "Titlefrm" << 0 << int(Qt::Key_Return) << "Year";
        QTest::newRow("year menu: Enter on Year 3") << "Year" << 1 << int(Qt::Key_Enter) << "y3Intro";
        QTest::newRow("year menu: Space on Year 4") << "Year" << 2 << int(Qt::Key_Space) << "y4Intro";
        QTest::newRow("year menu: Return ticks Play Sound") << "Year" << 5 << int(Qt::Key_Return) << "Year";
        QTest::newRow("menu: Return on the second activity") << "y2Intro" << 1 << int(Qt::Key_Return) << "Y2fractions2";
        QTest::newRow("menu: Return on Goodbye") << "y6Intro" << 7 << int(Qt::Key_Return) << "Year";
        QTest::newRow("menu: Return on a sub-menu") << "y5Intro" << 3 << int(Qt::Key_Return) << "y5Intro2";
    }
    void returnAndSpacePress()
    {
        QFETCH(QString, screen);
        QFETCH(int, tabs);
        QFETCH(int, key);
        QFETCH(QString, shown);
        Form* form = open(screen, false);
        for (int i = 0; i < tabs; ++i)
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        QPointer<QWidget> pressed = form->focusWidget();
        auto* box = qobject_cast<QCheckBox*>(pressed.data());
        const bool ticked = box && box->isChecked();
        if (key == Qt::Key_Space) // Return acts as the key goes down, Space as it comes up
            QTest::keyClick(pressed, Qt::Key_Space);
        else
            QTest::keyPress(pressed, Qt::Key(key));
        TestSupport::flushUnloads();
        QCOMPARE(TestSupport::visibleForms().filter(QRegularExpression(QStringLiteral("^(?!Grey$)"))), QStringList{shown});
        if (box)
            QCOMPARE(box->isChecked(), !ticked);
    }

    // A mixed number is read whole number first, though its numerator stands higher.
    void mixedNumberReadsWholeFirst()
    {
        auto* form = qobject_cast<y5fract4*>(open(QStringLiteral("y5fract4"), true));
        QVERIFY(form);
        for (QWidget* w : {static_cast<QWidget*>(form->Picture2), static_cast<QWidget*>(form->Text1),
                           static_cast<QWidget*>(form->Text4), static_cast<QWidget*>(form->Text2)})
            w->show();
        QVERIFY(form->Text4->mapTo(form, QPoint(0, 0)).y() < form->Text1->mapTo(form, QPoint(0, 0)).y());
        const QList<QWidget*> order = form->tabOrder();
        QVERIFY(order.indexOf(form->Text1) >= 0);
        QCOMPARE(order.indexOf(form->Text4), order.indexOf(form->Text1) + 1);
        QCOMPARE(order.indexOf(form->Text2), order.indexOf(form->Text1) + 2);
    }

    void ringShowsTheFocus_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<bool>("started");
        QTest::addColumn<QString>("control");
        QTest::newRow("picture button") << "Year" << false << "Command3";
        QTest::newRow("check box") << "Year" << false << "Check1";
        QTest::newRow("button with a caption under its picture") << "Y2fractions2" << false << "cmdexit";
        QTest::newRow("option button in a frame") << "Y2fractions2" << false << "Option1";
        QTest::newRow("answer box") << "Y2fractions3" << true << "Text1";
        QTest::newRow("picture of a set") << "Y2fractions" << true << "Image1(0)";
        QTest::newRow("shape to colour") << "Y2fractions2" << true << "Shape1";
        QTest::newRow("number to put in order") << "Y6fract3" << true << "Label10(2)";
    }
    void ringShowsTheFocus()
    {
        QFETCH(QString, screen);
        QFETCH(bool, started);
        QFETCH(QString, control);
        Form* form = open(screen, started);
        QVERIFY(form);
        auto* w = form->findChild<QWidget*>(control);
        QVERIFY(w && w->isVisible());
        w->setFocus(Qt::TabFocusReason);
        auto* ring = form->findChild<FocusRing*>();
        QVERIFY(ring && ring->isVisible());
        QCOMPARE(ring->widget(), w);
        const int width = ring->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
        QVERIFY(width >= 3); // thick enough for a child to see
        // Round the control, above everything near it, and drawn in the ring's yellow.
        QCOMPARE(ring->geometry(), placeOn(w, form).adjusted(-width, -width, width, width));
        QCOMPARE(form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).constLast(), ring);
        const QImage shot = form->grab().toImage();
        const QPoint edge(ring->geometry().center().x(), ring->geometry().top() + width / 2);
        QCOMPARE(shot.pixelColor(edge * shot.devicePixelRatio()), FocusRing::kBand);
        // With the focus on the screen itself, no control has the ring.
        w->clearFocus();
        form->setFocus();
        QVERIFY(!ring->isVisible());
    }

private:
    static QStringList screens(const QString& list) { return list.split(QLatin1Char(','), Qt::SkipEmptyParts); }

    // Shows the screen (over the one it stands on) as a child in Year 6 meets it.
    Form* open(const QString& name, bool started, bool firstRun = false)
    {
        opened = screenFor(name, keep);
        world.fresh();
        if (!firstRun)
            world.writeSettings();
        world.arrive(QStringLiteral("Year 6"), 20);
        if (opened.under)
            Forms::show(QString::fromLatin1(opened.under));
        Forms::show(name);
        TestSupport::flushUnloads();
        Form* form = Forms::find(name);
        if (form) {
            QApplication::setActiveWindow(form);
            if (started)
                form->findChild<QAbstractButton*>(QStringLiteral("cmdstart"))->click();
        }
        return form;
    }

    // once round from the focused control
    QStringList tabRound(Form* form)
    {
        QStringList names;
        QWidget* const first = form->focusWidget();
        for (QWidget* at = first; at && (names.isEmpty() || at != first) && names.size() < 100;) {
            names << at->objectName();
            QTest::keyClick(tabTarget(at, form), Qt::Key_Tab);
            QWidget* next = form->focusWidget();
            QTest::keyClick(tabTarget(next, form), Qt::Key_Backtab);
            if (form->focusWidget() != at)
                return names << QStringLiteral("<Backtab from %1 went to %2>").arg(next->objectName(), form->focusWidget()->objectName());
            QTest::keyClick(tabTarget(at, form), Qt::Key_Tab);
            at = next;
        }
        return names;
    }

    TestSupport::World world;
    Screen opened;
    QByteArray keep;
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
