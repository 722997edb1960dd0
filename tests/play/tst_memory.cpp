// No memory growth over 1,000 answered questions: every built activity is
// answered rightly through its runs, certificates and Challenges, and the
// heap in use and the live widgets after 200 answers are compared with
// those after 1,000.
#include "answering.h"

#include "runtime/pictures.h"

#include <QApplication>
#include <QtTest>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

// Both counts end a won Challenge whether a run is 10 or 20 questions long
// (a practice run and its Challenge make a pair), so the screens on show
// are the same at both looks: the menu and the certificate.
constexpr int kFirst = 200;
constexpr int kLast = 1000;
// Generous: a leak of one small object per answer (a label, a pixmap
// header) stays under it only if it is smaller than about 1 KiB.
constexpr qint64 kMostGrowthBytes = 1024 * 1024;

struct Use {
    qint64 heapBytes = 0;
    int widgets = 0;
};

Use inUse()
{
    // The decoded pictures are a bounded cache, not growth: it is emptied
    // before each look.
    Pictures::clearCache();
    TestSupport::flushUnloads();
    Use use;
#if defined(__GLIBC__)
    const struct mallinfo2 info = mallinfo2();
    use.heapBytes = qint64(info.uordblks) + qint64(info.hblkhd);
#endif
    use.widgets = int(QApplication::allWidgets().size());
    return use;
}

} // namespace

class TestMemory : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void noGrowthOverAThousandAnswers_data();
    void noGrowthOverAThousandAnswers();

private:
    TestSupport::World world;
};

void TestMemory::initTestCase()
{
    // The offscreen platform notes each raise() it cannot do; thousands of
    // screens are raised here.
    static const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (!message.contains(QLatin1String("This plugin does not support")))
                previous(type, context, message);
        });
}

void TestMemory::noGrowthOverAThousandAnswers_data()
{
    QTest::addColumn<int>("row");
    const QVector<Activities::Row>& rows = Activities::all();
    for (int i = 0; i < rows.size(); ++i)
        if (rows[i].make)
            QTest::newRow(rows[i].screen) << i;
}

void TestMemory::noGrowthOverAThousandAnswers()
{
#if !defined(__GLIBC__)
    QSKIP("the heap in use is read from glibc's mallinfo2");
#endif
    QFETCH(int, row);
    world.fresh(5);
    Module1::version = QStringLiteral("0");
    Module1::streak = 10;
    const Activities::Row& activity = Activities::all()[row];
    Forms::show(QString::fromLatin1(activity.menu));

    Play::Answering answering(activity);
    QVERIFY2(answering.answer(kFirst), qPrintable(Play::Answering::where()));
    const Use first = inUse();
    QVERIFY2(answering.answer(kLast - kFirst), qPrintable(Play::Answering::where()));
    const Use last = inUse();

    qInfo("%s: heap in use %.2f MiB after %d answers, %.2f MiB after %d (%+lld bytes); widgets %d and %d",
          activity.screen, first.heapBytes / 1048576.0, kFirst, last.heapBytes / 1048576.0, kLast,
          static_cast<long long>(last.heapBytes - first.heapBytes), first.widgets, last.widgets);
    QCOMPARE(answering.taken(), kLast);
    QCOMPARE(last.widgets, first.widgets);
    QVERIFY2(last.heapBytes - first.heapBytes < kMostGrowthBytes,
             qPrintable(QStringLiteral("the heap grew by %1 bytes").arg(last.heapBytes - first.heapBytes)));
}

QTEST_MAIN(TestMemory)
#include "tst_memory.moc"
