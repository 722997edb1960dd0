#include "rewards/grey.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "runtime/twips.h"
#include "shell/activityform.h"
#include "testsupport.h"

#include <QPushButton>
#include <QtTest>
#include <tuple>

using namespace Module1;

// An activity screen with nothing but the common controls.
class Activity : public ActivityForm {
    Q_OBJECT
public:
    explicit Activity(const QString& name = QStringLiteral("Activity")) : ActivityForm(name) {}
};

class TestModule1 : public QObject {
    Q_OBJECT
    TestSupport::World world;
private slots:
    void init() { world.fresh(); }

    void praiseGivesOnlyTheTwelvePhrases()
    {
        QSet<QString> seen;
        for (int i = 0; i < 2000; ++i) {
            praise();
            seen.insert(praisetext);
        }
        const QSet<QString> expected(std::begin(kPraise), std::end(kPraise));
        QCOMPARE(expected.size(), 12);
        QCOMPARE(seen, expected);
    }

    void rewardFramesEndOnTwenty_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("frames"); // after each answer; past the last, frame 20 stays
        QTest::newRow("10 questions") << 10 << "02 04 06 08 10 12 14 16 18 20 20";
        QTest::newRow("20 questions") << 20 << "01 02 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 18 19 20 20";
    }

    void rewardFramesEndOnTwenty()
    {
        QFETCH(int, length);
        QFETCH(QString, frames);
        Activity form;
        form.show();
        questions = length;
        pickpicture(form);
        QVERIFY(!form.Image2->isVisible());
        QCOMPARE(form.Image2->picturePath(), "jpg2\\" + picset + "00.jpg");
        Grey* grey = Forms::load<Grey>();
        QStringList shown, expected;
        for (counter = 1; counter <= length + 1; ++counter) {
            form.setEnabled(true);
            form.cmdhint->setEnabled(true);
            grey->Timer1->setEnabled(false);
            nextpicture(form);
            shown << form.Image2->picturePath();
            QVERIFY(form.Image2->isVisible() && !form.cmdhint->isEnabled() && !grey->isVisible());
            // Until the last answer the screen waits for the stars; then the run is over.
            QCOMPARE(form.isEnabled(), counter >= length);
            QCOMPARE(grey->Timer1->isEnabled(), counter < length);
        }
        for (const QString& f : frames.split(' '))
            expected << "jpg2\\" + picset + f + ".jpg";
        QCOMPARE(shown, expected);
    }

    // A new run in practice or the Challenge; every third pick follows a failed
    // Challenge, which builds the same picture in the same place.
    void pickpictureChoosesSetAndPlace()
    {
        Activity plain, y3("y3fract3");
        challenge = 2; // a failed Challenge before any run still needs a set
        pickpicture(plain);
        QVERIFY(!picset.isEmpty());
        QSet<QString> sets, y3sets;
        int freshInChallenge = 0;
        for (int i = 0; i < 900; ++i) {
            const QString last = picset;
            const int lastTop = plain.Image2->y();
            challenge = i % 3;
            counter = 7;
            plain.Image2->show();
            pickpicture(plain);
            sets.insert(picset);
            QCOMPARE(counter, 0);
            QVERIFY(!plain.Image2->isVisibleTo(&plain));
            QCOMPARE(plain.Image2->picturePath(), "jpg2\\" + picset + "00.jpg");
            const bool tall = picset == "thermo" || picset == "cake" || picset == "greenb";
            QCOMPARE(plain.Image2->y(), Twips::toPixels(tall ? 600 : 1200));
            if (challenge == 2)
                QVERIFY(picset == last && plain.Image2->y() == lastTop);
            freshInChallenge += challenge == 1 && picset != last;
        }
        QVERIFY(freshInChallenge > 0); // a new Challenge draws afresh
        challenge = 0;
        for (int i = 0; i < 300; ++i) {
            pickpicture(y3);
            y3sets.insert(picset);
        }
        QCOMPARE(sets.size(), 10);
        QCOMPARE(y3sets.size(), 9);
        QVERIFY(!y3sets.contains("sphfra"));
    }

    void setupformLaysOutTheActivity()
    {
        Activity form;
        questions = 10;
        setupform(form);
        QCOMPARE(questions, 20);
        QCOMPARE(form.size(), QSize(632, 434)); // ScaleWidth 9480 x ScaleHeight 6510
        QCOMPARE(form.backColour(), QColor(48, 133, 214));
        const QList<std::tuple<QPushButton*, int, QString>> buttons = {{form.cmdprint, 120, "Print A Worksheet"},
            {form.cmdstart, 2067, "Press To Start"}, {form.cmdcheck, 4014, "Check Your Answer"},
            {form.cmdhint, 5961, "Get Some Help"}, {form.cmdexit, 7910, "Goodbye"}};
        for (const auto& [button, left, tip] : buttons) {
            QCOMPARE(button->pos(), QPoint(Twips::toPixels(left), Twips::toPixels(280)));
            QCOMPARE(button->toolTip(), tip);
        }
        QCOMPARE(form.cmdprint->text(), QString("Print A Worksheet"));
        QCOMPARE(form.Picture1->x(), Twips::toPixels(1300));
        // Centred on the display, by its outer size of 9600 x 7200 twips.
        const QRect display = QGuiApplication::primaryScreen()->geometry();
        QCOMPARE(form.x(), display.x() + Twips::toPixels(Twips::fromPixels(display.width()) / 2 - 4800));
        QCOMPARE(form.y(), display.y() + Twips::toPixels(Twips::fromPixels(display.height()) / 2 - 3600));
        QVERIFY(!QGuiApplication::overrideCursor()); // the hourglass is gone again
    }

    // Set cases, then over every pair the screens use: the result divides both and nothing larger does.
    void hcfCountsDownFromB()
    {
        for (const auto& [a, b, result] : QList<std::tuple<int, int, int>>{{12, 18, 6}, {5, 0, 0}, {-4, -6, 2}, {0, 7, 7}})
            QCOMPARE(hcf(a, b), result);
        for (int x = 1; x <= 99; ++x)
            for (int y = 1; y <= 10; ++y) {
                const int h = hcf(x, y);
                QVERIFY(x % h == 0 && y % h == 0);
                QCOMPARE(hcf(x / h, y / h), 1);
            }
    }

    void randomdecimalNeverEndsInZero()
    {
        const QList<std::tuple<int, int, int>> cases = {{3, 1, 1}, {3, 2, 2}, {3, 3, 3}, {5, 7, 3}, {1, 0, 3}};
        for (const auto& [whole, places, digits] : cases) {
            QSet<QChar> seen;
            for (int seed = 0; seed < 2000; ++seed) {
                Random::fixSeed(seed);
                const QString text = randomdecimal(whole, places);
                QCOMPARE(text.section('.', 0, 0), QString::number(whole));
                const QString after = text.section('.', 1);
                QCOMPARE(after.size(), digits);
                for (QChar c : after) {
                    QVERIFY(c >= '1' && c <= '9');
                    seen.insert(c);
                }
            }
            QCOMPARE(seen.size(), 9);
        }
    }

    void showwelldoneLoadsAfresh()
    {
        showwelldone("Halves and Quarters 2");
        QPointer<Form> first = Forms::find("Welldone");
        QVERIFY(first && first->isVisible());
        showwelldone("Halves and Quarters 2"); // while it is open: built again
        QVERIFY(Forms::find("Welldone") != first.data());
        TestSupport::flushUnloads();
        QVERIFY(first.isNull() && Forms::find("Welldone")->isVisible());
    }
};

QTEST_MAIN(TestModule1)
#include "tst_module1.moc"
