#include "tourtable.h"

#include <QFile>
#include <algorithm>
#include <cmath>
#include <cstdio>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

// Every change and every answer drawn within one frame at 60 Hz.
constexpr double kMostMs = 16;
constexpr double kMostPeakMiB = 50;
constexpr double kBytesPerMiB = 1024.0 * 1024.0;
constexpr double kKiBPerMiB = 1024.0;
const QString kSeparator = QStringLiteral("\t");

const char* const kKindNames[Timings::KindCount] = {
    "open", "answer -> praise", "answer -> certificate", "certificate -> back", "exit -> menu", "print click (info)",
};
constexpr int kTitleWidth = 40;

// A figure of this process's /proc/self/status ("VmHWM") in MiB, 0 if unknown.
double statusMiB(const QByteArray& field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray key = field + ':';
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(key))
            return line.mid(key.size()).trimmed().split(' ').value(0).toDouble() / kKiBPerMiB;
    return 0;
}

double peakMiB()
{
    return statusMiB("VmHWM");
}

QByteArray cell(double median, double worst)
{
    return QStringLiteral("%1/%2").arg(median, 0, 'f', 1).arg(worst, 0, 'f', 1).toUtf8();
}

const char* verdict(bool pass)
{
    return pass ? "PASS" : "FAIL";
}

} // namespace

double Timings::heapMiB()
{
#if defined(__GLIBC__)
    const struct mallinfo2 info = mallinfo2();
    return (double(info.uordblks) + double(info.hblkhd)) / kBytesPerMiB;
#else
    return 0;
#endif
}

QString Timings::menuChange(const QString& from, const QString& to)
{
    return from + QStringLiteral(" -> ") + to;
}

QString Timings::activityChange(const QString& screen, Kind kind)
{
    return screen + kSeparator + QString::number(kind);
}

void Timings::add(const QString& label, double ms)
{
    if (!m_samples.contains(label)) {
        if (label.contains(kSeparator)) {
            const QString title = label.section(kSeparator, 0, 0);
            if (!m_activityOrder.contains(title))
                m_activityOrder << title;
        } else {
            m_menuOrder << label;
        }
    }
    m_samples[label] << ms;
}

Timings::Summary Timings::summary(const QString& label) const
{
    QVector<double> values = m_samples.value(label);
    Summary s;
    s.count = int(values.size());
    if (values.isEmpty())
        return s;
    std::sort(values.begin(), values.end());
    const int n = int(values.size());
    s.median = n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
    s.worst = values.back();
    return s;
}

bool Timings::timedPass(const QString& label) const
{
    return summary(label).worst <= kMostMs;
}

bool Timings::allPass() const
{
    for (auto it = m_samples.cbegin(); it != m_samples.cend(); ++it)
        if (!it.key().endsWith(kSeparator + QString::number(Print)) && !timedPass(it.key()))
            return false;
    return peakMiB() < kMostPeakMiB;
}

void Timings::printTable(int rounds, int pdfsPrinted) const
{
    std::printf("Full tour on a real X server, %d rounds; median/worst ms from the click (or the answer handed in)\n"
                "to the next screen painted and flushed. Target: every one within %.0f ms (the worst decides).\n\n",
                rounds, kMostMs);
    std::printf("%-44s %5s %16s %s\n", "screen change", "n", "median/worst ms", "");
    std::printf("%-44s %5d %16.1f (info)\n", "start -> title drawn, in the process", 1, m_startMs);
    for (const QString& label : m_menuOrder) {
        const Summary s = summary(label);
        std::printf("%-44s %5d %16s %s\n", qPrintable(label), s.count, cell(s.median, s.worst).constData(),
                    verdict(timedPass(label)));
    }
    std::printf("\n%-40s", "activity (median/worst ms)");
    for (int kind = 0; kind < KindCount; ++kind)
        std::printf(" %22s", kKindNames[kind]);
    std::printf("\n");
    int samples = 0;
    int over = 0;
    for (const QString& screen : m_activityOrder) {
        bool pass = true;
        const QString title = m_titles.value(screen, screen);
        std::printf("%-40s", qPrintable((title.size() > kTitleWidth ? title.left(kTitleWidth - 3) + QStringLiteral("...") : title)));
        for (int kind = 0; kind < KindCount; ++kind) {
            const QString label = activityChange(screen, Kind(kind));
            const Summary s = summary(label);
            std::printf(" %22s", s.count ? cell(s.median, s.worst).constData() : "-");
            if (kind != Print && s.count)
                pass = pass && timedPass(label);
        }
        std::printf(" %s\n", verdict(pass));
    }
    for (auto it = m_samples.cbegin(); it != m_samples.cend(); ++it) {
        if (it.key().endsWith(kSeparator + QString::number(Print)))
            continue;
        samples += int(it.value().size());
        over += int(std::count_if(it.value().cbegin(), it.value().cend(), [](double ms) { return ms > kMostMs; }));
    }
    std::printf("\n%d timed changes and answers, %d over %.0f ms.\n", samples, over, kMostMs);
    const double peak = peakMiB();
    std::printf("%-44s %10.1f MiB  < %.0f MiB  %s\n", "peak memory after the tour (VmHWM)", peak, kMostPeakMiB,
                verdict(peak < kMostPeakMiB));
    std::printf("%-44s %10.1f MiB, %.1f of it decoded pictures\n", "heap in use at the end (mallinfo2)",
                heapMiB() + m_pictureHeapMiB, m_pictureHeapMiB);
    // What the resident memory is at the end: the process's own (heap,
    // decoded pictures), mapped files (libraries, fonts) and shared memory
    // (the windows' images, shared with the X server).
    std::printf("%-44s %10.1f MiB = %.1f own + %.1f files + %.1f shared\n", "resident at the end (VmRSS)",
                statusMiB("VmRSS"), statusMiB("RssAnon"), statusMiB("RssFile"), statusMiB("RssShmem"));
    std::printf("%-44s %10d\n", "worksheets printed to PDF", pdfsPrinted);
}
