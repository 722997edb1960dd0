// What a screen reader finds: every thing on every screen that it can reach
// has a name, in the states a child meets (each screen as it opens, an
// activity part way through a question, a Challenge, the certificate, the
// retry panel); pictures say what they show and where; a fraction written
// as stacked numbers is read in words; messages are spoken as they appear.
#include "activities/halves/picturecell.h"
#include "activities/halves/y2fractions.h"
#include "activities/mixed/y5fract4.h"
#include "activities/ordering/boardlabels.h"
#include "activities/ordering/y6fract3.h"
#include "rewards/reward.h"
#include "runtime/spoken.h"
#include "testsupport.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>
#include <functional>

namespace {

// What needs no name of its own: containers a reader passes through (as
// long as they hold something), a frame's drawn border, a label with nothing
// in it.
bool needsNoName(QAccessibleInterface* face)
{
    if (auto* label = qobject_cast<QLabel*>(face->object()); label && label->text().isEmpty() && label->pixmap().isNull())
        return true;
    switch (face->role()) {
    case QAccessible::Client:
    case QAccessible::Pane:
    case QAccessible::Grouping:
        return face->childCount() > 0;
    case QAccessible::Border:
        return true;
    default:
        return false;
    }
}

// Everything shown under face that a reader reaches and that has no name.
void collectUnnamed(QAccessibleInterface* face, const QString& where, QStringList& offenders, int& seen)
{
    if (!face || face->state().invisible)
        return;
    ++seen;
    const QString name = face->text(QAccessible::Name).trimmed();
    const QString here = where + QLatin1Char('/') + (face->object() ? face->object()->objectName() : QString());
    if (name.isEmpty() && !needsNoName(face))
        offenders << QStringLiteral("%1 (a %2, role %3)")
                         .arg(here, face->object() ? face->object()->metaObject()->className() : "?")
                         .arg(int(face->role()));
    for (int i = 0; i < face->childCount(); ++i)
        collectUnnamed(face->child(i), here, offenders, seen);
}

// Every screen on show, walked as a reader walks it.
QStringList unnamedOnScreen(int& seen)
{
    QStringList offenders;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible())
            collectUnnamed(QAccessible::queryAccessibleInterface(top), QString(), offenders, seen);
    return offenders;
}

QString nameOf(QObject* object)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(object);
    return face ? face->text(QAccessible::Name) : QString();
}

template <class Screen> Screen* openActivity(const char* menu, const char* button)
{
    Forms::show(QString::fromLatin1(menu))->findChild<QPushButton*>(QString::fromLatin1(button))->click();
    TestSupport::flushUnloads();
    return Forms::find<Screen>();
}

} // namespace

using Setup = std::function<void()>;
Q_DECLARE_METATYPE(Setup)

class TestScreenReader : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void everythingShownIsNamed_data();
    void everythingShownIsNamed();
    void picturesSayWhatAndWhere();
    void picturesAreImages_data();
    void picturesAreImages();
    void mixedNumbersReadInWords_data();
    void mixedNumbersReadInWords();
    void messagesAreSpoken_data();
    void messagesAreSpoken();

private:
    TestSupport::World world;
};

void TestScreenReader::initTestCase()
{
    world.fresh();
}

void TestScreenReader::init()
{
    world.fresh(3);
    Module1::version = QStringLiteral("0");
    Module1::soundsetting = QStringLiteral("0");
    Module1::yearlabel = QStringLiteral("Year 2");
    Module1::streak = 10;
}

void TestScreenReader::everythingShownIsNamed_data()
{
    QTest::addColumn<Setup>("setup");
    for (const QString& screen : Forms::registeredNames()) {
        if (screen == QLatin1String("Grey")) // the timers' screen, never shown
            continue;
        QTest::newRow(qPrintable(screen)) << Setup([screen] { QVERIFY(Forms::show(screen)); });
        // The secondary edition names its years "Unit 1" .. "Unit 5".
        QTest::addRow("%s, secondary", qPrintable(screen)) << Setup([screen] {
            Module1::version = QStringLiteral("1");
            Module1::yearlabel = QStringLiteral("Unit 1");
            QVERIFY(Forms::show(screen));
        });
    }

    QTest::newRow("halves, pictures chosen") << Setup([] {
        auto* form = openActivity<Y2fractions>("y2Intro", "Command5");
        form->cmdstart->click();
        form->Image1[0]->click();
    });
    QTest::newRow("mixed numbers, one box typed") << Setup([] {
        auto* form = openActivity<y5fract4>("y5Intro2", "Command1");
        form->cmdstart->click();
        QLineEdit* box = form->focusWidget() == form->Text1 ? form->Text1 : form->Text3;
        QTest::keyClicks(box, QStringLiteral("3"));
        QTest::keyClick(box, Qt::Key_Return);
    });
    QTest::newRow("ordering, one number clicked") << Setup([] {
        auto* form = openActivity<Y6fract3>("y6Intro", "Command1");
        form->cmdstart->click();
        form->Label10[0]->setFocus();
        QTest::keyClick(form->Label10[0], Qt::Key_Space);
    });
    QTest::newRow("a Challenge, a wrong answer") << Setup([] {
        auto* form = openActivity<Y2fractions>("y2Intro", "Command5");
        Module1::challenge = 1;
        form->cmdstart->click();
        for (PictureCell* cell : form->Image1)
            if (cell->isVisible())
                cell->click(); // every picture: too many
        form->cmdcheck->click();
    });
    QTest::newRow("the certificate, ready for the Challenge") << Setup([] {
        Module1::challenge = 0;
        Module1::showwelldone(QString());
    });
    QTest::newRow("the certificate, the Challenge won") << Setup([] {
        Module1::challenge = 1;
        Module1::showwelldone(QString());
    });
    QTest::newRow("the retry panel") << Setup([] {
        openActivity<Y2fractions>("y2Intro", "Command5")->cmdstart->click();
        Module1::showreward();
    });
}

void TestScreenReader::everythingShownIsNamed()
{
    QFETCH(Setup, setup);
    setup();
    int seen = 0;
    const QStringList offenders = unnamedOnScreen(seen);
    if (!TestSupport::visibleForms().isEmpty())
        QVERIFY2(seen > 0, "the walk reaches the screens");
    QVERIFY2(offenders.isEmpty(), qPrintable(QStringLiteral("no name:\n") + offenders.join(QLatin1Char('\n'))));
}

void TestScreenReader::picturesSayWhatAndWhere()
{
    auto* form = openActivity<Y2fractions>("y2Intro", "Command5");
    form->cmdstart->click();
    while (form->question.howmany < 4)
        form->Timer3_Timer();
    const int shown = form->question.howmany;
    const QString one = form->question.onePictureName();
    QVERIFY(!one.isEmpty() && one != form->question.picname()); // "duck", not "ducks"
    PictureCell* third = form->Image1[2];
    QCOMPARE(nameOf(third), QStringLiteral("%1 3 of %2, not chosen").arg(one).arg(shown));
    third->click();
    QCOMPARE(nameOf(third), QStringLiteral("%1 3 of %2, chosen").arg(one).arg(shown));
    QVERIFY(QAccessible::queryAccessibleInterface(third)->text(QAccessible::Description).contains(QStringLiteral("choose")));
    QCOMPARE(nameOf(form->Image1[0]), QStringLiteral("%1 1 of %2, not chosen").arg(one).arg(shown));
    // The next question starts with nothing chosen.
    do
        form->Timer3_Timer();
    while (form->question.howmany < 4);
    QCOMPARE(nameOf(form->Image1[2]),
             QStringLiteral("%1 3 of %2, not chosen").arg(form->question.onePictureName()).arg(form->question.howmany));
}

void TestScreenReader::picturesAreImages_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    const int image = QAccessible::Graphic;
    QTest::newRow("title") << "Titlefrm" << "Picture1" << "Partitude title picture" << image;
    QTest::newRow("year menu logo") << "Year" << "Picture1" << "Partitude logo" << image;
    QTest::newRow("year menu publisher") << "Year" << "Picture2" << "Partitude Learning logo" << image;
    QTest::newRow("activity menu logo") << "y4Intro" << "Picture1" << "Partitude logo" << image;
    QTest::newRow("worksheet") << "y2fracprint1" << "Picture1" << "the worksheet" << image;
    // A picture box that holds the opening words is a panel, not an image.
    QTest::newRow("opening panel") << "Y2fractions" << "Picture1" << "" << int(QAccessible::Pane);
}

void TestScreenReader::picturesAreImages()
{
    QFETCH(QString, screen);
    QFETCH(QString, picture);
    QFETCH(QString, name);
    QFETCH(int, role);
    QWidget* box = Forms::show(screen)->findChild<QWidget*>(picture);
    QVERIFY(box && box->isVisible());
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(int(face->role()), role);
    QCOMPARE(face->text(QAccessible::Name), name);
}

void TestScreenReader::mixedNumbersReadInWords_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("whole");
    QTest::addColumn<int>("numer");
    QTest::addColumn<int>("denom");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("improper shown") << 1 << 2 << 3 << 4 << QStringLiteral("eleven quarters equals");
    QTest::newRow("improper, over twenty") << 1 << 5 << 2 << 7 << QStringLiteral("37 sevenths equals");
    QTest::newRow("mixed shown") << 2 << 5 << 2 << 3 << QStringLiteral("five and two thirds equals");
    QTest::newRow("mixed, one half") << 2 << 1 << 1 << 2 << QStringLiteral("one and one half equals");
}

void TestScreenReader::mixedNumbersReadInWords()
{
    QFETCH(int, direction);
    QFETCH(int, whole);
    QFETCH(int, numer);
    QFETCH(int, denom);
    QFETCH(QString, spoken);
    auto* form = openActivity<y5fract4>("y5Intro2", "Command1");
    form->cmdstart->click();
    MixedQuestion q;
    q.direction = direction;
    q.whole = qint16(whole);
    q.numer = qint16(numer);
    q.denom = qint16(denom);
    form->showQuestion(q);
    QFrame* panel = direction == MixedQuestion::kToMixed ? form->Picture2 : form->Picture3;
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(panel);
    QCOMPARE(face->text(QAccessible::Name), spoken);
    // Inside the panel a reader meets only the answer boxes, not the loose numbers.
    QStringList inside;
    for (int i = 0; i < face->childCount(); ++i)
        if (!face->child(i)->state().invisible)
            inside << face->child(i)->text(QAccessible::Name);
    const QStringList boxes = direction == MixedQuestion::kToMixed
        ? QStringList{QStringLiteral("whole number"), QStringLiteral("top number"), QStringLiteral("bottom number")}
        : QStringList{QStringLiteral("top number"), QStringLiteral("bottom number")};
    QCOMPARE(inside, boxes);
    for (int i = 0; i < face->childCount(); ++i)
        QCOMPARE(face->indexOfChild(face->child(i)), i);

    // A number typed stands in its box's place, named by the box.
    QLineEdit* first = direction == MixedQuestion::kToMixed ? form->Text1 : form->Text3;
    QTest::keyClicks(first, QStringLiteral("7"));
    QTest::keyClick(first, Qt::Key_Return);
    QCOMPARE(face->child(0)->text(QAccessible::Name), boxes.first() + QStringLiteral(", 7"));
}

using Message = std::function<QLabel*()>; // does what brings a message and gives its label
Q_DECLARE_METATYPE(Message)

namespace {
// Halves and Quarters 1 started, with `count` pictures chosen.
Y2fractions* halvesWithChosen(int count)
{
    auto* form = openActivity<Y2fractions>("y2Intro", "Command5");
    form->cmdstart->click();
    for (int i = 0; i < count && i < form->question.howmany; ++i)
        form->Image1[i]->click();
    return form;
}
} // namespace

void TestScreenReader::messagesAreSpoken_data()
{
    QTest::addColumn<Message>("bring");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("shows"); // how often it appears on the way
    QTest::newRow("praise") << Message([] {
        Y2fractions* form = halvesWithChosen(0);
        form->Timer3_Timer(); // fresh question: choose exactly the target
        for (int i = 0; i < form->question.target; ++i)
            form->Image1[i]->click();
        form->cmdcheck->click();
        return form->Label2;
    }) << QStringLiteral("You chose") << 1;
    QTest::newRow("the next question") << Message([] {
        Y2fractions* form = halvesWithChosen(0);
        form->cmdcheck->click(); // a message in the question's place
        form->Timer3_Timer();
        return form->Label1;
    }) << QStringLiteral("Click on ") << 2; // at Start, and again after the message
    QTest::newRow("nothing chosen") << Message([] {
        Y2fractions* form = halvesWithChosen(0);
        form->cmdcheck->click();
        return form->Label2;
    }) << QStringLiteral("You must choose some pictures!") << 1;
    QTest::newRow("Incorrect!") << Message([] {
        auto* form = openActivity<y5fract4>("y5Intro2", "Command1");
        form->cmdstart->click();
        const bool toMixed = form->question().direction == MixedQuestion::kToMixed;
        QLineEdit* first = toMixed ? form->Text1 : form->Text3;
        QTest::keyClicks(first, QStringLiteral("99"));
        QTest::keyClick(first, Qt::Key_Return);
        for (QLineEdit* box : toMixed ? QList<QLineEdit*>{form->Text4, form->Text2} : QList<QLineEdit*>{form->Text5}) {
            QTest::keyClicks(box, QStringLiteral("1"));
            QTest::keyClick(box, Qt::Key_Return);
        }
        return form->Label2;
    }) << QStringLiteral("Incorrect! ") << 1;
    QTest::newRow("a mixed-number hint") << Message([] {
        auto* form = openActivity<y5fract4>("y5Intro2", "Command1");
        form->cmdstart->click();
        MixedQuestion q;
        q.direction = MixedQuestion::kToImproper;
        q.whole = 2;
        q.numer = 3;
        q.denom = 4;
        form->showQuestion(q);
        form->cmdhint->click();
        return form->Label20;
    }) << QStringLiteral("2 times 4 is 8") << 1;
    QTest::newRow("ready for the Challenge") << Message([] {
        Y2fractions* form = halvesWithChosen(0);
        Module1::counter = Module1::questions - 1;
        for (int i = 0; i < form->question.target; ++i)
            form->Image1[i]->click();
        form->cmdcheck->click();
        return form->Label8;
    }) << QStringLiteral("You are now ready for the Challenge.") << 1;
    QTest::newRow("the retry panel") << Message([] {
        halvesWithChosen(0);
        Module1::showreward();
        return Forms::find<Reward>()->Label1;
    }) << QStringLiteral("You have been unsuccessful in the Challenge.") << 1;
}

void TestScreenReader::messagesAreSpoken()
{
    // The bridge to the reader speaks an alert as it shows (it passes on
    // showing, not Qt's Alert event); the walk from outside hears it.
    QFETCH(Message, bring);
    QFETCH(QString, words);
    QFETCH(int, shows);
    // Each showing is news to a reader: a message shows once each time it has
    // something to say, never twice for the same words.
    struct ShowCounter : QObject {
        QList<QPointer<QObject>> shown; // a screen unloaded on the way leaves null behind
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Show && !event->spontaneous()) // the window system's own do not reach a reader
                shown << watched;
            return false;
        }
    } counter;
    qApp->installEventFilter(&counter);
    QLabel* label = bring();
    qApp->removeEventFilter(&counter);
    QCOMPARE(counter.shown.count(label), shows);
    QVERIFY(label->isVisible());
    QVERIFY(Spoken::isMessage(label));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(label);
    QCOMPARE(face->role(), QAccessible::AlertMessage);
    QVERIFY2(face->text(QAccessible::Name).contains(words), qPrintable(face->text(QAccessible::Name)));
    QVERIFY(!face->state().invisible);
}

QTEST_MAIN(TestScreenReader)
#include "tst_screenreader.moc"
