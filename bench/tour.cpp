// The full tour: the program driven as a child would drive it, on a real X
// server, timing every screen change from the click to the next screen drawn
// (bench/paintwatch.h says what "drawn" is), and every right answer from
// being handed in to the praise (or the certificate) drawn. Round after
// round: title -> year menu -> each activity menu (Year 5's sub-menu too)
// -> each activity, a practice run answered rightly -> the certificate ->
// back to the activity -> the menu, and back to the title. On the last
// round each activity's worksheet is printed to PDF. Then the peak memory.
//
//   tour [--rounds N] [--assets DIR]
//
// The program's own pauses (the pace before the next question, the reward
// frames) are never waited for: their timers are ticked, as the tests do.
#include "answering.h"
#include "paintwatch.h"
#include "player.h"
#include "tourtable.h"

#include "activities/activitytable.h"
#include "runtime/msgbox.h"
#include "runtime/options.h"
#include "runtime/pictures.h"
#include "runtime/printtarget.h"
#include "runtime/random.h"
#include "runtime/sound.h"
#include "shell/startup.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kDefaultRounds = 5;
constexpr quint64 kSeed = 11;
// Event-loop passes before a click, so nothing from earlier is still waiting
// to be drawn when the clock starts.
constexpr int kQuietPasses = 3;
// Timer ticks tried before Start is pressed, and steps before a run counts as
// stuck (as in the random play).
constexpr int kIdleBeforeStart = 120;
constexpr int kMostStepsPerRun = 5000;

// The year menu's button for each year's menu.
struct YearButton {
    const char* menu;
    const char* button;
};
constexpr YearButton kYearButtons[] = {
    {"y2Intro", "Command5"}, {"y3Intro", "Command2"}, {"y4Intro", "Command3"},
    {"y5Intro", "Command6"}, {"y6Intro", "Command1"},
};
const QString kTitle = QStringLiteral("Titlefrm");
const QString kYear = QStringLiteral("Year");
const QString kCertificate = QStringLiteral("Welldone");
const char* const kGoodbye = "Command4"; // on the year menu: the door to the title

[[noreturn]] void stuck(const QString& what)
{
    std::fprintf(stderr, "tour: %s; on show: %s\n", qPrintable(what), qPrintable(Play::Answering::where()));
    std::exit(1);
}

bool onShow(const QString& screen)
{
    Form* form = Forms::find(screen);
    return form && form->isVisible();
}

void quiet()
{
    for (int pass = 0; pass < kQuietPasses; ++pass) {
        QCoreApplication::processEvents();
        Play::settle();
    }
}

class Tour {
public:
    explicit Tour(Timings& timings) : m_timings(timings) {}

    void round(bool printing)
    {
        m_printing = printing;
        click(kTitle, "Command1", kYear, Timings::menuChange(kTitle, kYear));
        for (const YearButton& year : kYearButtons) {
            const QString menu = QString::fromLatin1(year.menu);
            click(kYear, year.button, menu, Timings::menuChange(kYear, menu));
            tourMenu(menu, kYear);
        }
        click(kYear, kGoodbye, kTitle, Timings::menuChange(kYear, kTitle));
    }

private:
    // Clicks the button on `from` through its window and times the drawing
    // of `to`, under `label`.
    void click(const QString& from, const char* button, const QString& to, const QString& label)
    {
        const std::optional<double> ms = clickAndTime(from, button, [&to] { return to; });
        if (!onShow(to))
            stuck(QStringLiteral("%1 on %2 did not lead to %3").arg(QLatin1String(button), from, to));
        m_timings.add(label, *ms);
    }

    std::optional<double> clickAndTime(const QString& from, const char* button, const std::function<QString()>& drawn)
    {
        Form* form = Forms::find(from);
        auto* target = form ? form->findChild<QPushButton*>(QLatin1String(button)) : nullptr;
        if (!target)
            stuck(QStringLiteral("no %1 on %2").arg(QLatin1String(button), from));
        quiet();
        const QPoint at = target->mapTo(form, target->rect().center());
        return m_watch.time([&] {
            Play::deliverClick(form->windowHandle(), at);
            return drawn();
        });
    }

    void tourMenu(const QString& menu, const QString& parent)
    {
        for (const Activities::Row* row : Activities::onMenu(menu)) {
            const QString screen = QString::fromLatin1(row->screen);
            if (row->subMenu) {
                click(menu, row->button, screen, Timings::menuChange(menu, screen));
                tourMenu(screen, menu);
            } else if (row->make) {
                tourActivity(*row);
            }
        }
        click(menu, kGoodbye, parent, Timings::menuChange(menu, parent));
    }

    void tourActivity(const Activities::Row& row)
    {
        const QString menu = QString::fromLatin1(row.menu);
        const QString screen = QString::fromLatin1(row.screen);
        m_timings.nameActivity(screen, Activities::titleText(row));
        click(menu, row.button, screen, Timings::activityChange(screen, Timings::Open));
        answerRun(row);
        // The certificate's exit: back to the activity, or to the menu when
        // a won Challenge took the activity away.
        const auto back = [&] { return onShow(screen) ? screen : menu; };
        m_timings.add(Timings::activityChange(screen, Timings::CertificateBack),
                      *clickAndTime(kCertificate, "cmdexit", back));
        if (!onShow(screen))
            return;
        if (m_printing)
            print(row);
        click(screen, "cmdexit", menu, Timings::activityChange(screen, Timings::Exit));
    }

    // Answers the questions rightly until the certificate shows, timing each
    // answer until the praise (or the certificate) is drawn. The clock starts
    // as giveRightAnswer() puts the answer on the board and runs Check's
    // handler, so it includes putting the answer; Check is not clicked
    // through the window.
    void answerRun(const Activities::Row& row)
    {
        const QString screen = QString::fromLatin1(row.screen);
        auto* form = static_cast<ActivityForm*>(Forms::find(screen));
        int idle = 0;
        for (int step = 0; step < kMostStepsPerRun; ++step) {
            quiet();
            const std::optional<double> ms = m_watch.time([&] {
                if (!form->giveRightAnswer())
                    return QString();
                return onShow(kCertificate) ? kCertificate : screen;
            });
            if (ms) {
                const bool done = onShow(kCertificate);
                m_timings.add(Timings::activityChange(screen, done ? Timings::Certificate : Timings::Praise), *ms);
                if (done)
                    return;
                idle = 0;
                continue;
            }
            // No question waits: the pace timer runs, or Start is due.
            if (++idle < kIdleBeforeStart && Play::Answering::tickRunningTimers())
                continue;
            idle = 0;
            if (form->cmdstart->isEnabled())
                form->cmdstart->click();
        }
        stuck(QStringLiteral("%1 never reached the certificate").arg(screen));
    }

    // The activity's Print button, "Yes" to the question: its worksheet goes
    // to a PDF file before the click returns. Printing need not change the
    // screen, so the click alone is timed, for information.
    void print(const Activities::Row& row)
    {
        const QString screen = QString::fromLatin1(row.screen);
        Form* form = Forms::find(screen);
        auto* button = form->findChild<QPushButton*>(QStringLiteral("cmdprint"));
        quiet();
        QElapsedTimer clock;
        clock.start();
        Play::deliverClick(form->windowHandle(), button->mapTo(form, button->rect().center()));
        m_timings.add(Timings::activityChange(screen, Timings::Print), clock.nsecsElapsed() / 1e6);
    }

    Timings& m_timings;
    PaintWatch m_watch;
    bool m_printing = false;
};

int pdfCount(const QString& folder)
{
    return int(QDir(folder).entryList({QStringLiteral("*.pdf")}, QDir::Files).size());
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList args = QApplication::arguments();
    int rounds = kDefaultRounds;
    QString assets = QStringLiteral(PARTITUDE_TEST_ASSETS);
    for (int i = 1; i + 1 < args.size(); i += 2) {
        if (args[i] == QLatin1String("--rounds"))
            rounds = std::max(1, args[i + 1].toInt());
        else if (args[i] == QLatin1String("--assets"))
            assets = args[i + 1];
    }

    QTemporaryDir settings;
    QTemporaryDir pdfs;
    // An edition and the sound already chosen, as on any run after the first.
    for (const char* name : {"primary.inf", "sound.inf"}) {
        QFile file(settings.filePath(QLatin1String(name)));
        if (file.open(QIODevice::WriteOnly))
            file.write("0\r\n");
    }
    Random::fixSeed(kSeed);
    Sound::setMuted(true);
    MsgBox::setHandler([](const MsgBox::Request& request) {
        return request.buttons == MsgBox::Buttons::YesNo ? MsgBox::Answer::Yes : MsgBox::Answer::Ok;
    });

    Timings timings;
    StartOptions options;
    options.assetFolder = assets;
    options.settingsFolder = settings.path();
    options.pdfFolder = pdfs.path();
    {
        PaintWatch watch;
        const std::optional<double> ms = watch.time([&] {
            startProgram(options);
            return kTitle;
        });
        timings.noteStart(*ms);
    }
    Tour tour(timings);
    for (int round = 1; round <= rounds; ++round)
        tour.round(round == rounds);
    quiet();
    const double heap = Timings::heapMiB();
    Pictures::clearCache();
    timings.notePictureHeap(heap - Timings::heapMiB());
    timings.printTable(rounds, pdfCount(pdfs.path()));
    return timings.allPass() ? 0 : 1;
}
