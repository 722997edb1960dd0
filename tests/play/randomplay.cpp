// Random play: the whole program played at random, in-process and headless,
// with every invariant checked after every event. See README.md here.
//
//     randomplay [--seed S] [--events N] [--assets DIR] [--failure-file FILE]
//     randomplay --replay FILE        the events of a failure, printed as they happen
//     randomplay --replay --seed S --events N
#include "player.h"

#include "runtime/pictures.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <csignal>
#include <cstdio>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PLAY_SANITIZED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define PLAY_SANITIZED 1
#endif
#ifdef PLAY_SANITIZED
extern "C" void __sanitizer_set_death_callback(void (*callback)());
#endif

namespace {

constexpr int kDefaultEvents = 20000;
constexpr quint64 kDefaultSeed = 1;

Play::Player* g_player = nullptr;
quint64 g_seed = 0;

void printLastEvents(FILE* out)
{
    if (!g_player)
        return;
    std::fprintf(out, "Random play, seed %llu, event %d. The last events:\n", static_cast<unsigned long long>(g_seed),
                 g_player->reached().events);
    for (const QString& line : g_player->lastEvents())
        std::fprintf(out, "  %s\n", qPrintable(line));
    std::fflush(out);
}

// A sanitizer report or a crash ends the process: the events that led
// there are printed first.
void onDeath() { printLastEvents(stderr); }
void onSignal(int sig)
{
    onDeath();
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}

bool readReplayFile(const QString& path, quint64& seed, int& events)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    const QString text = QString::fromUtf8(file.readAll());
    const auto seedMatch = QRegularExpression(QStringLiteral("^seed (\\d+)$"), QRegularExpression::MultilineOption).match(text);
    const auto eventsMatch = QRegularExpression(QStringLiteral("^events (\\d+)$"), QRegularExpression::MultilineOption).match(text);
    if (!seedMatch.hasMatch() || !eventsMatch.hasMatch())
        return false;
    seed = seedMatch.captured(1).toULongLong();
    events = eventsMatch.captured(1).toInt();
    return true;
}

void writeFailure(const QString& path, quint64 seed, const Play::Player& player, const QString& broken)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    QString text = QStringLiteral("seed %1\nevents %2\nbroken %3\n").arg(seed).arg(player.reached().events).arg(broken);
    for (const QString& line : player.lastEvents())
        text += line + QLatin1Char('\n');
    file.write(text.toUtf8());
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plays Partitude at random and checks it after every event."));
    parser.addHelpOption();
    const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("The seed of every choice."), QStringLiteral("S"),
                                        QString::number(kDefaultSeed));
    const QCommandLineOption eventsOption(QStringLiteral("events"), QStringLiteral("How many events."), QStringLiteral("N"),
                                          QString::number(kDefaultEvents));
    const QCommandLineOption assetsOption(QStringLiteral("assets"), QStringLiteral("The drawn assets."), QStringLiteral("DIR"),
                                          QStringLiteral(PARTITUDE_TEST_ASSETS));
    const QCommandLineOption failureOption(QStringLiteral("failure-file"), QStringLiteral("Where a failure is written."),
                                           QStringLiteral("FILE"));
    const QCommandLineOption replayOption(QStringLiteral("replay"),
                                          QStringLiteral("Play again, printing every event: the seed and count of a "
                                                         "failure file given as argument, or of --seed and --events."));
    parser.addOptions({seedOption, eventsOption, assetsOption, failureOption, replayOption});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("With --replay: a failure file."), QStringLiteral("[FILE]"));
    parser.process(app);

    quint64 seed = parser.value(seedOption).toULongLong();
    int events = parser.value(eventsOption).toInt();
    const bool replay = parser.isSet(replayOption);
    if (replay && !parser.positionalArguments().isEmpty()
        && !readReplayFile(parser.positionalArguments().constFirst(), seed, events)) {
        std::fprintf(stderr, "randomplay: %s holds no \"seed\" and \"events\" lines\n",
                     qPrintable(parser.positionalArguments().constFirst()));
        return 2;
    }
    const QString failureFile = parser.isSet(failureOption) ? parser.value(failureOption)
                                                            : QStringLiteral("randomplay-failure-%1.txt").arg(seed);

    Pictures::setAssetFolder(parser.value(assetsOption));
    Play::Player player(seed);
    g_player = &player;
    g_seed = seed;
#ifdef PLAY_SANITIZED
    __sanitizer_set_death_callback(onDeath);
#endif
    for (int sig : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS})
        std::signal(sig, onSignal);
    if (replay)
        player.setEcho([](const QString& line) { std::printf("%s\n", qPrintable(line)); });

    QElapsedTimer clock;
    clock.start();
    player.start();
    for (int n = 0; n < events; ++n) {
        const QString broken = player.step();
        if (!broken.isEmpty()) {
            std::fprintf(stderr, "Random play broke an invariant: %s\n", qPrintable(broken));
            printLastEvents(stderr);
            writeFailure(failureFile, seed, player, broken);
            std::fprintf(stderr, "Replay: randomplay --replay %s   (or --replay --seed %llu --events %d)\n",
                         qPrintable(failureFile), static_cast<unsigned long long>(seed), player.reached().events);
            g_player = nullptr;
            return 1;
        }
    }
    const Play::Player::Reached& r = player.reached();
    std::printf("Random play, seed %llu: %d events in %.1f s, %d starts, %d right answers given, %d certificates "
                "(%d after a Challenge), %d retry panels, %d message boxes answered\nScreens seen: %s\n",
                static_cast<unsigned long long>(seed), r.events, clock.elapsed() / 1000.0, r.starts, r.rightAnswers,
                r.certificates, r.challengesWon, r.retryPanels, r.boxes, qPrintable(player.screensSeen().join(QLatin1Char(' '))));
    g_player = nullptr;
    return 0;
}
