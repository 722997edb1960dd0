#pragma once
// Reads a placeable metafile record by record, on its own (it shares no
// code with the writer or with the program's picture loading), and reports
// the first thing in it that breaks the format: header fields, record
// sizes, functions outside the set the worksheets may use, object-table
// slots, shapes or text off the picture, a missing or early META_EOF.
// It collects the text of TEXTOUT and EXTTEXTOUT records in file order.
#include <QByteArray>
#include <QMap>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QtEndian>

#include <algorithm>
#include <vector>

struct WmfCheck
{
    QString problem;  // empty when the file is sound
    QRect box;
    int inch = 0;
    int objectCount = 0;   // as the header says
    int peakObjects = 0;   // most objects alive at once
    QStringList texts;
    QMap<int, int> functionCounts;
};

inline WmfCheck checkWmf(const QByteArray &bytes)
{
    WmfCheck c;
    const auto *d = reinterpret_cast<const uchar *>(bytes.constData());
    const qint64 size = bytes.size();
    auto u16 = [&](qint64 at) { return int(qFromLittleEndian<quint16>(d + at)); };
    auto s16 = [&](qint64 at) { return int(qFromLittleEndian<qint16>(d + at)); };
    auto u32 = [&](qint64 at) { return qint64(qFromLittleEndian<quint32>(d + at)); };
    auto fail = [&](const QString &why) { c.problem = why; return c; };

    if (size < 22 + 18 + 6)
        return fail(QStringLiteral("too short: %1 bytes").arg(size));
    if (u32(0) != 0x9AC6CDD7)
        return fail(QStringLiteral("placeable key %1").arg(u32(0), 0, 16));
    if (u16(4) != 0 || u32(16) != 0)
        return fail(QStringLiteral("handle or reserved field not zero"));
    c.box = QRect(QPoint(s16(6), s16(8)), QPoint(s16(10) - 1, s16(12) - 1));
    c.inch = u16(14);
    int checksum = 0;
    for (int i = 0; i < 10; ++i)
        checksum ^= u16(2 * i);
    if (checksum != u16(20))
        return fail(QStringLiteral("checksum %1, words give %2").arg(u16(20)).arg(checksum));

    const int h = 22;
    if (u16(h) != 1 || u16(h + 2) != 9 || u16(h + 4) != 0x0300 || u16(h + 16) != 0)
        return fail(QStringLiteral("header type %1, size %2, version %3, members %4")
                        .arg(u16(h)).arg(u16(h + 2)).arg(u16(h + 4), 0, 16).arg(u16(h + 16)));
    if (size % 2 != 0 || u32(h + 6) != (size - 22) / 2)
        return fail(QStringLiteral("header says %1 words, file has %2 bytes after the placeable header")
                        .arg(u32(h + 6)).arg(size - 22));
    c.objectCount = u16(h + 10);
    const qint64 maxRecord = u32(h + 12);

    // Fixed parameter sizes in words of the records that have one.
    const QMap<int, int> fixedWords = {
        {0x0000, 0}, {0x0102, 1}, {0x0103, 1}, {0x012E, 1}, {0x012D, 1}, {0x01F0, 1},
        {0x0209, 2}, {0x020B, 2}, {0x020C, 2}, {0x0213, 2}, {0x0214, 2}, {0x02FA, 5},
        {0x02FC, 4}, {0x0418, 4}, {0x041B, 4}, {0x061C, 6}};
    const QSet<int> variable = {0x02FB, 0x0324, 0x0325, 0x0521, 0x0A32};

    std::vector<bool> live;
    qint64 at = h + 18, largest = 0;
    bool ended = false;
    auto inside = [&](int x, int y) { return c.box.contains(x, y); };
    while (at < size) {
        if (ended)
            return fail(QStringLiteral("data after META_EOF at byte %1").arg(at));
        if (at + 6 > size)
            return fail(QStringLiteral("record header cut off at byte %1").arg(at));
        const qint64 words = u32(at);
        const int fn = u16(at + 4);
        if (words < 3 || at + 2 * words > size)
            return fail(QStringLiteral("record of %1 words at byte %2 does not fit").arg(words).arg(at));
        const qint64 p = at + 6;
        const qint64 paramBytes = 2 * (words - 3);
        auto param = [&](int i) { return s16(p + 2 * i); };
        const QString where = QStringLiteral("function 0x%1 at byte %2").arg(fn, 4, 16, QLatin1Char('0')).arg(at);
        if (fixedWords.contains(fn)) {
            if (paramBytes != 2 * fixedWords.value(fn))
                return fail(where + QStringLiteral(": %1 words").arg(words));
        } else if (!variable.contains(fn)) {
            return fail(where + QStringLiteral(": not a record the worksheets may use"));
        }
        largest = std::max(largest, words);
        ++c.functionCounts[fn];

        switch (fn) {
        case 0x0000:
            ended = true;
            break;
        case 0x02FB:
            if (paramBytes < 20)
                return fail(where + QStringLiteral(": font record too short"));
            [[fallthrough]];
        case 0x02FA:
        case 0x02FC: {  // a new object takes the lowest free slot
            const auto free = std::find(live.begin(), live.end(), false);
            if (free - live.begin() >= c.objectCount)
                return fail(where + QStringLiteral(": object table of %1 is full").arg(c.objectCount));
            if (free == live.end())
                live.push_back(true);
            else
                *free = true;
            c.peakObjects = std::max(c.peakObjects, int(std::count(live.begin(), live.end(), true)));
            break;
        }
        case 0x012D:
        case 0x01F0: {
            const int slot = u16(p);
            if (slot >= int(live.size()) || !live[slot])
                return fail(where + QStringLiteral(": slot %1 holds no object").arg(slot));
            if (fn == 0x01F0)
                live[slot] = false;
            break;
        }
        case 0x0418:
        case 0x041B:
        case 0x061C: {
            const int o = fn == 0x061C ? 2 : 0;
            if (!inside(param(o + 3), param(o + 2)) || !inside(param(o + 1) - 1, param(o) - 1))
                return fail(where + QStringLiteral(": off the picture"));
            break;
        }
        case 0x0213:
        case 0x0214:
            if (!inside(param(1), param(0)))
                return fail(where + QStringLiteral(": off the picture"));
            break;
        case 0x0324:
        case 0x0325: {
            const int n = param(0);
            if (n < 2 || paramBytes != 2 + 4 * qint64(n))
                return fail(where + QStringLiteral(": %1 points in %2 bytes").arg(n).arg(paramBytes));
            for (int i = 0; i < n; ++i)
                if (!inside(param(1 + 2 * i), param(2 + 2 * i)))
                    return fail(where + QStringLiteral(": off the picture"));
            break;
        }
        case 0x0521:
        case 0x0A32: {
            const bool ext = fn == 0x0A32;
            const int length = ext ? param(2) : param(0);
            const int options = ext ? u16(p + 6) : 0;
            const qint64 start = ext ? p + 8 + ((options & 0x6) ? 8 : 0) : p + 2;
            const qint64 padded = length + (length % 2);
            const qint64 end = start + padded + (ext ? 0 : 4);
            if (length < 0 || end > p + paramBytes)
                return fail(where + QStringLiteral(": text of %1 bytes does not fit").arg(length));
            const int x = ext ? param(1) : s16(start + padded + 2);
            const int y = ext ? param(0) : s16(start + padded);
            if (!inside(x, y))
                return fail(where + QStringLiteral(": text starts off the picture"));
            c.texts << QString::fromLatin1(bytes.mid(start, length));
            break;
        }
        default:
            break;
        }
        at += 2 * words;
    }
    if (!ended)
        return fail(QStringLiteral("no META_EOF"));
    if (largest != maxRecord)
        return fail(QStringLiteral("header says the largest record is %1 words, it is %2").arg(maxRecord).arg(largest));
    if (std::count(live.begin(), live.end(), true) != 0)
        return fail(QStringLiteral("objects left undeleted at the end"));
    return c;
}
