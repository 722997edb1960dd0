// What a screen reader finds: names for all it reaches, pictures saying what and where, fractions in words, messages spoken.
#include "activities/halves/picturecell.h"
#include "activities/halves/y2fractions.h"
#include "activities/mixed/y5fract4.h"
#include "activities/ordering/boardlabels.h"
#include "activities/ordering/y6fract3.h"
#include "rewards/reward.h"
#include "runtime/spoken.h"
#include "activitytest.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>
#include <functional>

namespace {

// Needs no name: a container a reader passes through, a drawn border, an empty label.
bool needsNoName(QAccessibleInterface* face)
{
    if (auto* label = qobject_cast<QLabel*>(face->object()); label && label->text().isEmpty() && label->pixmap().isNull())
        return true;
    const QAccessible::Role role = face->role();
    if (role == QAccessible::Client || role == QAccessible::Pane || role == QAccessible::Grouping)
        return face->childCount() > 0;
    return role == QAccessible::Border;
}

// Everything shown under face that a reader reaches and that has no name.
void collectUnnamed(QAccessibleInterface* face, const QString& where, QStringList& offenders, int& seen)
{
    if (!face || face->state().invisible)
        return;
    ++seen;
    const QString here = where + QLatin1Char('/') + (face->object() ? face->object()->objectName() : QString());
    if (face->text(QAccessible::Name).trimmed().isEmpty() && !needsNoName(face))
        offenders << QStringLiteral("%1 (a %2, role %3)")
                         .arg(here, face->object() ? face->object()->metaObject()->className() : "?")
                         .arg(int(face->role()));
    for (int i = 0; i < face->childCount(); ++i)
        collectUnnamed(face->child(i), here, offenders, seen);
}

QString nameOf(QObject* object) { return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name); }

// The activity opened from its menu, and started unless told.
template <class Screen> Screen* openActivity(const char* screen, bool start = true)
{
    Screen* form = ActivityTest::open<Screen>(QString::fromLatin1(screen));
    if (start)
        form->cmdstart->click();
    return form;
}

Y2fractions* halves() { return openActivity<Y2fractions>("Y2fractions"); }
y5fract4* mixedNumbers() { return openActivity<y5fract4>("y5fract4"); }

// Chooses as many pictures as the question asks for, and checks.
void answerRight(Y2fractions* form)
{
    for (int i = 0; i < form->question.target; ++i)
        form->Image1[i]->click();
    form->cmdcheck->click();
}

} // namespace

using Setup = std::function<void()>;
Q_DECLARE_METATYPE(Setup)
using Message = std::function<QLabel*()>; // brings a message and gives its label
Q_DECLARE_METATYPE(Message)

class TestScreenReader : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { world.fresh(); }

    void init()
    {
        world.fresh(3);
        world.arrive();
    }

    void everythingShownIsNamed_data()
    {
        QTest::addColumn<Setup>("setup");
        for (const QString& screen : Forms::registeredNames()) {
            if (screen == QLatin1String("Grey")) // the timers' screen, never shown
                continue;
            QTest::newRow(qPrintable(screen)) << Setup([screen] { QVERIFY(Forms::show(screen)); });
            QTest::addRow("%s, secondary", qPrintable(screen)) << Setup([screen] {
                Module1::version = QStringLiteral("1");
                Module1::yearlabel = QStringLiteral("Unit 1");
                QVERIFY(Forms::show(screen));
            });
        }
        QTest::newRow("halves, pictures chosen") << Setup([] { halves()->Image1[0]->click(); });
        QTest::newRow("mixed numbers, one box typed") << Setup([] {
            auto* form = mixedNumbers();
            ActivityTest::enter(QStringLiteral("3"), form->focusWidget() == form->Text1 ? form->Text1 : form->Text3);
        });
        QTest::newRow("ordering, one number clicked") << Setup([] {
            auto* form = openActivity<Y6fract3>("Y6fract3");
            form->Label10[0]->setFocus();
            QTest::keyClick(form->Label10[0], Qt::Key_Space);
        });
        QTest::newRow("a Challenge, a wrong answer") << Setup([] {
            auto* form = openActivity<Y2fractions>("Y2fractions", false);
            Module1::challenge = 1;
            form->cmdstart->click();
            for (PictureCell* cell : form->Image1)
                if (cell->isVisible())
                    cell->click(); // every picture: too many
            form->cmdcheck->click();
        });
        for (int challenge : {0, 1})
            QTest::addRow("the certificate, challenge %d", challenge) << Setup([challenge] {
                Module1::challenge = challenge;
                Module1::showwelldone(QString());
            });
        QTest::newRow("the retry panel") << Setup([] {
            halves();
            Module1::showreward();
        });
    }
    void everythingShownIsNamed()
    {
        QFETCH(Setup, setup);
        setup();
        int seen = 0;
        QStringList offenders;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->isVisible())
                collectUnnamed(QAccessible::queryAccessibleInterface(top), QString(), offenders, seen);
        if (!TestSupport::visibleForms().isEmpty())
            QVERIFY2(seen > 0, "the walk reaches the screens");
        QVERIFY2(offenders.isEmpty(), qPrintable(QStringLiteral("no name:\n") + offenders.join(QLatin1Char('\n'))));
    }

    void picturesSayWhatAndWhere()
    {
        Y2fractions* form = halves();
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
        do // the next question starts with nothing chosen
            form->Timer3_Timer();
        while (form->question.howmany < 4);
        QCOMPARE(nameOf(third), QStringLiteral("%1 3 of %2, not chosen").arg(form->question.onePictureName()).arg(form->question.howmany));
    }

    void picturesAreImages_data()
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
    void picturesAreImages()
    {
        QFETCH(QString, screen);
        QFETCH(QString, picture);
        QFETCH(QString, name);
        QFETCH(int, role);
        QWidget* box = Forms::show(screen)->findChild<QWidget*>(picture);
        QVERIFY(box && box->isVisible());
        QCOMPARE(int(QAccessible::queryAccessibleInterface(box)->role()), role);
        QCOMPARE(nameOf(box), name);
    }

    void mixedNumbersReadInWords_data()
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
    void mixedNumbersReadInWords()
    {
        QFETCH(int, direction);
        QFETCH(int, whole);
        QFETCH(int, numer);
        QFETCH(int, denom);
        QFETCH(QString, spoken);
        y5fract4* form = mixedNumbers();
        form->showQuestion(MixedQuestion{direction, qint16(whole), qint16(numer), qint16(denom)});
        const bool toMixed = direction == MixedQuestion::kToMixed;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(toMixed ? form->Picture2 : form->Picture3);
        QCOMPARE(face->text(QAccessible::Name), spoken);
        // Inside the panel a reader meets only the answer boxes, not the loose numbers.
        QStringList inside;
        for (int i = 0; i < face->childCount(); ++i) {
            QCOMPARE(face->indexOfChild(face->child(i)), i);
            if (!face->child(i)->state().invisible)
                inside << face->child(i)->text(QAccessible::Name);
        }
        const QStringList boxes = QStringList{"whole number", "top number", "bottom number"}.mid(toMixed ? 0 : 1);
        QCOMPARE(inside, boxes);
        // A number typed stands in its box's place, named by the box.
        ActivityTest::enter(QStringLiteral("7"), toMixed ? form->Text1 : form->Text3);
        QCOMPARE(face->child(0)->text(QAccessible::Name), boxes.first() + QStringLiteral(", 7"));
    }

    void messagesAreSpoken_data()
    {
        QTest::addColumn<Message>("bring");
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("shows"); // how often it appears on the way
        QTest::newRow("praise") << Message([] {
            Y2fractions* form = halves();
            form->Timer3_Timer(); // a fresh question
            answerRight(form);
            return form->Label2;
        }) << QStringLiteral("You chose") << 1;
        QTest::newRow("the next question") << Message([] {
            Y2fractions* form = halves();
            form->cmdcheck->click(); // a message in the question's place
            form->Timer3_Timer();
            return form->Label1;
        }) << QStringLiteral("Click on ") << 2; // at Start, and again after the message
        QTest::newRow("Incorrect!") << Message([] {
            y5fract4* form = mixedNumbers();
            const bool toMixed = form->question().direction == MixedQuestion::kToMixed;
            ActivityTest::enter(QStringLiteral("99"), toMixed ? form->Text1 : form->Text3);
            for (QLineEdit* box : toMixed ? QList<QLineEdit*>{form->Text4, form->Text2} : QList<QLineEdit*>{form->Text5})
                ActivityTest::enter(QStringLiteral("1"), box);
            return form->Label2;
        }) << QStringLiteral("Incorrect! ") << 1;
        QTest::newRow("a mixed-number hint") << Message([] {
            y5fract4* form = mixedNumbers();
            form->showQuestion(MixedQuestion{MixedQuestion::kToImproper, 2, 3, 4});
            form->cmdhint->click();
            return form->Label20;
        }) << QStringLiteral("2 times 4 is 8") << 1;
        QTest::newRow("ready for the Challenge") << Message([] {
            Y2fractions* form = halves();
            Module1::counter = Module1::questions - 1;
            answerRight(form);
            return form->Label8;
        }) << QStringLiteral("You are now ready for the Challenge.") << 1;
        QTest::newRow("the retry panel") << Message([] {
            halves();
            Module1::showreward();
            return Forms::find<Reward>()->Label1;
        }) << QStringLiteral("You have been unsuccessful in the Challenge.") << 1;
    }
    // The bridge speaks an alert as it shows: once each time it has something to say.
    void messagesAreSpoken()
    {
        QFETCH(Message, bring);
        QFETCH(QString, words);
        QFETCH(int, shows);
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
        QVERIFY(label->isVisible() && Spoken::isMessage(label));
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(label);
        QCOMPARE(face->role(), QAccessible::AlertMessage);
        QVERIFY2(face->text(QAccessible::Name).contains(words), qPrintable(face->text(QAccessible::Name)));
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestScreenReader)
#include "tst_screenreader.moc"
