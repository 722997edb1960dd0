#include "rewards/grey.h"
#include "rewards/reward.h"
#include "runtime/formtimer.h"
#include "runtime/picturebox.h"
#include "shell/activityform.h"
#include "activitytest.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Module1;

class TestReward : public QObject {
    Q_OBJECT
private slots:
    void init() { world.fresh(); }

    void greyBringsUpFreshStarsAndFormsAHarpName()
    {
        Grey* grey = Forms::load<Grey>();
        QVERIFY(!grey->isVisible());
        QSet<int> sets, steps;
        QSet<QString> harps;
        for (int i = 0; i < 400; ++i) {
            grey->Timer1->setEnabled(true);
            grey->Timer1_Timer();
            QVERIFY(!grey->Timer1->isEnabled()); // one shot
            Reward* reward = Forms::find<Reward>();
            QVERIFY(reward && reward->isVisible() && reward->Timer1->isEnabled());
            QVERIFY(!reward->Label1->isVisibleTo(reward) && !reward->Label2->isVisibleTo(reward));
            sets.insert(starset);
            steps.insert(starstep);
            harps.insert(grey->harpFile());
        }
        QCOMPARE(sets, (QSet<int>{0, 1, 2, 3}));
        QCOMPARE(steps, (QSet<int>{-1, 1}));
        QCOMPARE(harps, (QSet<QString>{"wav\\harp1.wav", "wav\\harp2.wav", "wav\\harp3.wav", "wav\\harp4.wav",
                                        "wav\\harp5.wav"}));
        QVERIFY(!grey->isVisible());
        grey->Timer2->setEnabled(true);
        grey->Timer2_Timer();
        QVERIFY(!grey->Timer2->isEnabled());
    }

    void starsPlayFiftyFramesEitherWay_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QStringList>("files");
        QStringList up, down;
        for (int f = 0; f <= 49; ++f)
            up << QString("reward\\stars2%1.jpg").arg(f % 20, 2, 10, QChar('0'));
        for (int f = 100; f >= 51; --f)
            down << QString("reward\\stars2%1.jpg").arg(f % 20, 2, 10, QChar('0'));
        QTest::newRow("counting up") << -1 << up;
        QTest::newRow("counting down") << 1 << down;
    }

    void starsPlayFiftyFramesEitherWay()
    {
        QFETCH(int, step);
        QFETCH(QStringList, files);
        QPointer<Reward> reward;
        do { // each showing draws its direction and its first frame
            Forms::unload("Reward");
            reward = Forms::show<Reward>();
        } while (starstep != step);
        starset = 2;
        QStringList shown;
        for (int tick = 0; tick < 60 && Forms::isLoaded("Reward"); ++tick) {
            reward->Timer1_Timer();
            if (Forms::isLoaded("Reward"))
                shown << reward->Image2->picturePath();
        }
        QCOMPARE(shown, files);
        QVERIFY(!Forms::isLoaded("Reward"));
    }

    void theRetryMessageNeverPlaysStars()
    {
        Forms::show<Reward>(); // stars are playing when the Challenge is failed
        showreward();
        QPointer<Reward> reward = Forms::find<Reward>();
        QVERIFY(reward->isVisible());
        QCOMPARE(reward->Label1->text(), QString("You have been unsuccessful in the Challenge."));
        QCOMPARE(reward->Label2->text(), QString("The Challenge will begin again."));
        QVERIFY(reward->Label1->isVisible() && reward->Label2->isVisible());
        QVERIFY(!reward->Timer1->isEnabled() && reward->Timer2->isEnabled() && reward->Timer3->isEnabled());
        QVERIFY(reward->Image2->picturePath().isEmpty());
        reward->Timer3_Timer();
        QVERIFY(!reward->Timer3->isEnabled());
        QVERIFY(Forms::isLoaded("Reward"));
        reward->Timer2_Timer(); // the message has stayed long enough
        QVERIFY(!Forms::isLoaded("Reward"));
        QCOMPARE(retry, 0);
    }

    void theRetryPanelSitsOverTheActivity()
    {
        const QRect display = QGuiApplication::primaryScreen()->geometry();
        Reward* reward = Forms::show<Reward>();
        // (3660, 1050) twips inside a centred 9600 x 7200 activity screen.
        const int left = (display.width() * 15 - 9600) / 2 + 3660;
        const int top = (display.height() * 15 - 7200) / 2 + 1050;
        QCOMPARE(reward->pos(), QPoint(left / 15, top / 15));
        QVERIFY(reward->windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(reward->backColour(), QColor(48, 133, 214));
    }

    void thePanelStandsOverTheBoard_data()
    {
        QTest::addColumn<QString>("screen");
        for (const char* screen : {"Y2fractions", "Y2fractions2", "Y2fractions3", "y5fract4", "Y6fract3"})
            QTest::newRow(screen) << screen;
    }

    // Over an activity the stars and the retry message leave every button whole and most of the reward picture in sight.
    void thePanelStandsOverTheBoard()
    {
        QFETCH(QString, screen);
        auto* activity = ActivityTest::open<ActivityForm>(screen); // from its menu
        QVERIFY(activity);
        activity->cmdstart->click();
        auto global = [](const QWidget* w) { return QRect(w->mapToGlobal(QPoint(0, 0)), w->size()); };
        for (const char* set : {"solita", "cake"}) {
            picset = QString::fromLatin1(set);
            activity->Image2->load(rewardFrameFile(picset, 20));
            activity->Image2->move(activity->Image2->x(), set == QLatin1String("cake") ? 40 : 80);
            activity->Image2->show();
            for (int message : {0, 1}) {
                retry = message;
                Forms::unload("Reward");
                const QRect panel = global(Forms::show<Reward>());
                QVERIFY(global(activity).contains(panel));
                for (QPushButton* b : {activity->cmdprint, activity->cmdstart, activity->cmdcheck, activity->cmdhint, activity->cmdexit})
                    QVERIFY2(!global(b).intersects(panel), qPrintable(b->objectName()));
                const QRect picture = global(activity->Image2);
                const QRect covered = picture.intersected(panel);
                QVERIFY2(covered.width() * covered.height() * 4 <= picture.width() * picture.height(), set);
            }
        }
    }

private:
    TestSupport::World world;
};

QTEST_MAIN(TestReward)
#include "tst_reward.moc"
