// The keyboard alone works every screen: Tab reads the screen (rows top to
// bottom, each left to right), Return and Space press the focused button,
// Escape takes the screen's way back (on the title screen nothing), the
// keyboard starts on the screen's first control, and a ring shows where it is.
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

// How to reach a screen, where Escape leads from it, and (where the design
// fixes it) the order Tab takes; otherwise the order is checked against the
// rule of reading.
struct Screen {
    const char* name;
    const char* under = nullptr; // the screen shown first
    const char* via = nullptr;   // its button that opens this one
    const char* afterEscape = "";     // the screens on show afterwards; nullptr: as before
    const char* tabs = nullptr;  // the controls Tab takes, from the first
};

const Screen kScreens[] = {
    {"Titlefrm", nullptr, nullptr, "Titlefrm", "Command1,Command2"},
    {"Form1", nullptr, nullptr, "Year", "Command1,Check2"},
    {"Year", nullptr, nullptr, "Titlefrm", "Command5,Command2,Command3,Command6,Command1,Check1,Command4"},
    {"Comingsoon", "y6Intro", "Command3", "y6Intro", "cmdexit"},
    {"Grey", nullptr, nullptr, nullptr, ""},
    {"Reward", "Y6fract3", nullptr, "Y6fract3", ""},
    {"Welldone", "Y6fract3", nullptr, "Y6fract3", "Text1,Command2,cmdexit"},
    {"orderhelp", "Y6fract3", nullptr, "Y6fract3", "cmdexit"},
    {"y2fracprint1", nullptr, nullptr, "", "Command1"},
    {"y5fracprint4", nullptr, nullptr, "", "Command1"},
    {"y6fracprint3", nullptr, nullptr, "", "Command1"},
};

// A screen not in the table above is a menu or an activity, reached directly.
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
    else if (name.endsWith(QLatin1String("Intro")))
        s.afterEscape = "Year";
    else
        s.afterEscape = "<no row for this screen>";
    return s;
}

QRect placeOn(const QWidget* control, const QWidget* form)
{
    return QRect(control->mapTo(form, QPoint(0, 0)), control->size());
}

// b stands before a as a child reads: its middle higher than a's top, or
// each level with the other's middle and b wholly to the left.
bool readBefore(const QRect& b, const QRect& a)
{
    const auto levelWith = [](const QRect& r, int y) { return r.top() <= y && y <= r.bottom(); };
    const bool level = levelWith(a, b.center().y()) && levelWith(b, a.center().y());
    return b.center().y() < a.top() || (level && b.right() < a.left());
}

// Option buttons that exclude each other are one stop for Tab (the arrow
// keys move between them): each group counts once, by its frame.
QString stop(const QWidget* w)
{
    if (auto* option = qobject_cast<const QRadioButton*>(w); option && option->autoExclusive())
        return QStringLiteral("options in ") + w->parentWidget()->objectName();
    return w->objectName();
}

// A frame's controls are read together, where the frame stands: two controls
// are compared by the two different frames (or the controls themselves) that
// hold them side by side.
std::pair<QRect, QRect> unitsOf(QWidget* a, QWidget* b, const QWidget* form)
{
    QList<QWidget*> aLine;
    for (QWidget* w = a; w != form; w = w->parentWidget())
        aLine.prepend(w);
    QList<QWidget*> bLine;
    for (QWidget* w = b; w != form; w = w->parentWidget())
        bLine.prepend(w);
    int i = 0;
    while (i < aLine.size() - 1 && i < bLine.size() - 1 && aLine[i] == bLine[i])
        ++i;
    return {placeOn(aLine[i], form), placeOn(bLine[i], form)};
}

bool answerBox(const QWidget* w) { return qobject_cast<const QLineEdit*>(w) != nullptr; }

} // namespace

class TestKeyboard : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { world.fresh(); }

    void readingOrder_data();
    void readingOrder();
    void tabReadsEveryScreen_data();
    void tabReadsEveryScreen();
    void escapeTakesTheWayBack_data() { everyScreen(); }
    void escapeTakesTheWayBack();
    void returnAndSpacePress_data();
    void returnAndSpacePress();
    void mixedNumberReadsWholeFirst();
    void ringShowsTheFocus_data();
    void ringShowsTheFocus();

private:
    void everyScreen(bool started = false);
    Form* open(const Screen& s, bool started);
    // The controls Tab takes, once round from the focused one.
    QStringList tabRound(Form* form);

    TestSupport::World world;
};

void TestKeyboard::everyScreen(bool started)
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<bool>("started");
    world.fresh();
    for (const QString& name : Forms::registeredNames())
        QTest::newRow(qPrintable(name)) << name << false;
    if (started)
        for (const Activities::Row& row : Activities::all())
            if (row.make)
                QTest::addRow("%s after Start", row.screen) << QString::fromLatin1(row.screen) << true;
}

Form* TestKeyboard::open(const Screen& s, bool started)
{
    world.fresh();
    TestSupport::writeBytes(world.settingsFile(QStringLiteral("primary.inf")), "0\r\n");
    TestSupport::writeBytes(world.settingsFile(QStringLiteral("sound.inf")), "0\r\n");
    Module1::version = Module1::soundsetting = QStringLiteral("0");
    Module1::yearlabel = QStringLiteral("Year 6");
    Module1::streak = 20;
    if (s.under)
        Forms::show(QString::fromLatin1(s.under));
    if (s.via)
        Forms::find(QString::fromLatin1(s.under))->findChild<QAbstractButton*>(QString::fromLatin1(s.via))->click();
    else
        Forms::show(QString::fromLatin1(s.name));
    TestSupport::flushUnloads();
    Form* form = Forms::find(QString::fromLatin1(s.name));
    if (form) {
        QApplication::setActiveWindow(form);
        if (started)
            form->findChild<QAbstractButton*>(QStringLiteral("cmdstart"))->click();
    }
    return form;
}

QStringList TestKeyboard::tabRound(Form* form)
{
    QStringList names;
    QWidget* first = form->focusWidget();
    if (!first)
        return names;
    QWidget* at = first;
    do {
        names << at->objectName();
        // An answer box keeps Tab for its own use: there the key is given
        // to the screen, as a box passes on the keys it does not keep.
        QWidget* target = answerBox(at) ? static_cast<QWidget*>(form) : at;
        QTest::keyClick(target, Qt::Key_Tab);
        QWidget* next = form->focusWidget();
        QTest::keyClick(answerBox(next) ? static_cast<QWidget*>(form) : next, Qt::Key_Backtab);
        if (form->focusWidget() != at)
            return names << QStringLiteral("<Backtab from %1 went to %2>")
                                .arg(next->objectName(), form->focusWidget()->objectName());
        QTest::keyClick(target, Qt::Key_Tab);
        at = next;
    } while (at != first && names.size() < 100);
    return names;
}

void TestKeyboard::readingOrder_data()
{
    // Each control: name, then left, top, width, height; a name with a dot
    // stands in the frame named before the dot (placed inside that frame).
    QTest::addColumn<QStringList>("layout");
    QTest::addColumn<QString>("order");
    QTest::newRow("one row, ragged tops, made right to left")
        << QStringList{"c 120 15 50 40", "b 60 0 50 40", "a 0 10 50 40"} << "a,b,c";
    QTest::newRow("two rows, made bottom up")
        << QStringList{"d 60 60 50 40", "c 0 60 50 40", "b 60 0 50 40", "a 0 0 50 40"} << "a,b,c,d";
    QTest::newRow("a small box level with a big button")
        << QStringList{"box 0 20 100 20", "button 200 0 60 56"} << "box,button";
    QTest::newRow("a column beside a frame's pair, read together")
        << QStringList{"frame 0 0 100 200", "frame.top 0 0 90 40", "frame.bottom 0 120 90 40", "right 150 60 50 40"}
        << "frame.top,frame.bottom,right";
    QTest::newRow("a frame below the row")
        << QStringList{"frame 0 100 300 50", "frame.left 0 0 90 40", "frame.right 100 0 90 40", "b 150 0 50 40", "a 0 0 50 40"}
        << "a,b,frame.left,frame.right";
    QTest::newRow("hidden controls are left out")
        << QStringList{"b 60 0 50 40", "a 0 0 50 40 hidden", "c 0 60 50 40"} << "b,c";
}

void TestKeyboard::readingOrder()
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
        if (f.value(5) == QLatin1String("hidden"))
            w->hide();
    }
    QStringList names;
    for (QWidget* w : Keyboard::readingOrder(&root))
        names << w->objectName();
    QCOMPARE(names.join(QLatin1Char(',')), order);
}

void TestKeyboard::tabReadsEveryScreen_data() { everyScreen(true); }

void TestKeyboard::tabReadsEveryScreen()
{
    QFETCH(QString, screen);
    QFETCH(bool, started);
    QByteArray keep;
    const Screen s = screenFor(screen, keep);
    Form* form = open(s, started);
    QVERIFY(form);
    const QStringList round = tabRound(form);

    // Every shown control that takes Tab comes once in the round.
    QStringList shown;
    for (QWidget* w : form->findChildren<QWidget*>())
        if (Keyboard::takesTab(w) && w->isVisibleTo(form) && w->isEnabled() && !shown.contains(stop(w)))
            shown << stop(w);
    QStringList stops;
    for (const QString& name : round)
        stops << stop(form->findChild<QWidget*>(name));
    stops.sort();
    shown.sort();
    QCOMPARE(stops, shown);

    if (const auto* menu = qobject_cast<ActivityMenu*>(form)) {
        // The menu's list top to bottom, the first activity first, then Goodbye.
        QStringList expected;
        for (QPushButton* b : menu->buttons)
            expected << b->objectName();
        QCOMPARE(round, expected << menu->Command4->objectName());
    } else if (s.tabs) {
        QCOMPARE(round.join(QLatin1Char(',')), QString::fromLatin1(s.tabs));
    } else {
        // Activities: the keyboard starts on Start; each step goes on as a
        // child reads, from Print round to Options.
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
}

void TestKeyboard::escapeTakesTheWayBack()
{
    QFETCH(QString, screen);
    QByteArray keep;
    const Screen s = screenFor(screen, keep);
    Form* form = open(s, false);
    QVERIFY(form);
    const QStringList before = TestSupport::visibleForms();
    QWidget* target = form->focusWidget() ? form->focusWidget() : form;
    QTest::keyPress(target, Qt::Key_Escape); // the screen may be gone before the key is up
    TestSupport::flushUnloads();
    const QStringList after = s.afterEscape
        ? QString::fromLatin1(s.afterEscape).split(QLatin1Char(','), Qt::SkipEmptyParts)
        : before;
    QCOMPARE(TestSupport::visibleForms(), after);
    QVERIFY(!Forms::programEnded());
}

void TestKeyboard::returnAndSpacePress_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<int>("tabs"); // Tab presses from the first control
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown"); // the screen on show afterwards
    QTest::newRow("title: Return on OK") << "Titlefrm" << 0 << int(Qt::Key_Return) << "Year";
    QTest::newRow("year menu: Return on Year 2") << "Year" << 0 << int(Qt::Key_Return) << "y2Intro";
    QTest::newRow("year menu: Enter on Year 3") << "Year" << 1 << int(Qt::Key_Enter) << "y3Intro";
    QTest::newRow("year menu: Space on Year 4") << "Year" << 2 << int(Qt::Key_Space) << "y4Intro";
    QTest::newRow("year menu: Return ticks Play Sound") << "Year" << 5 << int(Qt::Key_Return) << "Year";
    QTest::newRow("year menu: Space ticks Play Sound") << "Year" << 5 << int(Qt::Key_Space) << "Year";
    QTest::newRow("menu: Return on the second activity") << "y2Intro" << 1 << int(Qt::Key_Return) << "Y2fractions2";
    QTest::newRow("menu: Return on Goodbye") << "y6Intro" << 7 << int(Qt::Key_Return) << "Year";
    QTest::newRow("menu: Return on a sub-menu") << "y5Intro" << 3 << int(Qt::Key_Return) << "y5Intro2";
}

void TestKeyboard::returnAndSpacePress()
{
    QFETCH(QString, screen);
    QFETCH(int, tabs);
    QFETCH(int, key);
    QFETCH(QString, shown);
    QByteArray keep;
    Form* form = open(screenFor(screen, keep), false);
    for (int i = 0; i < tabs; ++i)
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    QPointer<QWidget> pressed = form->focusWidget();
    auto* box = qobject_cast<QCheckBox*>(pressed.data());
    const bool ticked = box && box->isChecked();
    // Return acts as the key goes down, Space as it comes up.
    if (key == Qt::Key_Space)
        QTest::keyClick(pressed, Qt::Key_Space);
    else
        QTest::keyPress(pressed, Qt::Key(key));
    TestSupport::flushUnloads();
    QCOMPARE(TestSupport::visibleForms().filter(QRegularExpression(QStringLiteral("^(?!Grey$)"))), QStringList{shown});
    if (box)
        QCOMPARE(box->isChecked(), !ticked);
}

// A mixed number is read whole number first, though its fraction's numerator
// stands higher on the screen.
void TestKeyboard::mixedNumberReadsWholeFirst()
{
    QByteArray keep;
    auto* form = qobject_cast<y5fract4*>(open(screenFor(QStringLiteral("y5fract4"), keep), true));
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

void TestKeyboard::ringShowsTheFocus_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<bool>("started");
    QTest::addColumn<QString>("control");
    QTest::newRow("picture button") << "Year" << false << "Command3";
    QTest::newRow("check box") << "Year" << false << "Check1";
    QTest::newRow("button with a caption under its picture") << "Y2fractions2" << false << "cmdexit";
    QTest::newRow("option button in a frame") << "Y2fractions2" << false << "Option1";
    QTest::newRow("name box") << "Welldone" << false << "Text1";
    QTest::newRow("answer box") << "Y2fractions3" << true << "Text1";
    QTest::newRow("picture of a set") << "Y2fractions" << true << "Image1(0)";
    QTest::newRow("shape to colour") << "Y2fractions2" << true << "Shape1";
    QTest::newRow("number to put in order") << "Y6fract3" << true << "Label10(2)";
}

void TestKeyboard::ringShowsTheFocus()
{
    QFETCH(QString, screen);
    QFETCH(bool, started);
    QFETCH(QString, control);
    QByteArray keep;
    Form* form = open(screenFor(screen, keep), started);
    QVERIFY(form);
    auto* w = form->findChild<QWidget*>(control);
    QVERIFY(w && w->isVisible());
    w->setFocus(Qt::TabFocusReason);
    QCOMPARE(QApplication::focusWidget(), w);

    auto* ring = form->findChild<FocusRing*>();
    QVERIFY(ring && ring->isVisible());
    QCOMPARE(ring->widget(), w);
    const int width = ring->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    QVERIFY(width >= 3); // thick enough for a child to see
    // The ring stands round the control, above everything near it.
    QCOMPARE(ring->geometry(), placeOn(w, form).adjusted(-width, -width, width, width));
    QCOMPARE(form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).constLast(), ring);
    // And it is drawn: the middle of its top edge is the ring's yellow.
    const QImage shot = form->grab().toImage();
    const QPoint edge(ring->geometry().center().x(), ring->geometry().top() + width / 2);
    QCOMPARE(shot.pixelColor(edge * shot.devicePixelRatio()), FocusRing::kBand);
    // With the focus on the screen itself, no control has the ring.
    w->clearFocus();
    form->setFocus();
    QVERIFY(!ring->isVisible());
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
