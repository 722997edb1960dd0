#pragma once
// Writes small placeable metafiles, record by record, so the metafile tests
// need no picture file. Parameters are given as the file stores them: 16-bit
// words, shapes' corners bottom-right first, points y before x.
#include <QByteArray>
#include <QColor>
#include <QPolygon>
#include <QRect>
#include <QVector>

class WmfBuilder {
public:
    QRect bounds{0, 0, 1000, 1000}; // as left, top, width, height
    int unitsPerInch = 1440;
    int objects = 8;
    bool endRecord = true;
    bool rightChecksum = true;
    static constexpr int kHeaderBytes = 40;

    WmfBuilder& record(quint16 function, const QVector<int>& words)
    {
        m_offsets << kHeaderBytes + int(m_records.size());
        m_largest = qMax(m_largest, 3 + int(words.size()));
        put32(m_records, quint32(3 + words.size()));
        put16(m_records, function);
        for (int w : words)
            put16(m_records, w);
        return *this;
    }
    // A record written byte by byte, its size field and all.
    WmfBuilder& raw(const QByteArray& bytes)
    {
        m_offsets << kHeaderBytes + int(m_records.size());
        m_records += bytes;
        return *this;
    }
    // The byte at which the i-th record begins.
    int offset(int i) const { return m_offsets.at(i); }

    WmfBuilder& windowOrg(int x, int y) { return record(0x020B, {y, x}); }
    WmfBuilder& windowExt(int x, int y) { return record(0x020C, {y, x}); }
    WmfBuilder& mapMode(int mode) { return record(0x0103, {mode}); }
    WmfBuilder& pen(int style, int width, QColor c) { return record(0x02FA, {style, width, 0, rg(c), c.blue()}); }
    WmfBuilder& brush(int style, QColor c, int hatch = 0) { return record(0x02FC, {style, rg(c), c.blue(), hatch}); }
    WmfBuilder& font(int height, const QByteArray& face, int weight = 400, int escapement = 0)
    {
        QVector<int> words{height, 0, escapement, escapement, weight, 0, 0, 0, 0};
        return record(0x02FB, words + text(face + '\0'));
    }
    WmfBuilder& select(int slot) { return record(0x012D, {slot}); }
    WmfBuilder& remove(int slot) { return record(0x01F0, {slot}); }
    WmfBuilder& saveDC() { return record(0x001E, {}); }
    WmfBuilder& restoreDC(int n) { return record(0x0127, {n}); }
    WmfBuilder& clip(int l, int t, int r, int b) { return record(0x0416, {b, r, t, l}); }
    WmfBuilder& moveTo(int x, int y) { return record(0x0214, {y, x}); }
    WmfBuilder& lineTo(int x, int y) { return record(0x0213, {y, x}); }
    WmfBuilder& rectangle(int l, int t, int r, int b) { return record(0x041B, {b, r, t, l}); }
    WmfBuilder& ellipse(int l, int t, int r, int b) { return record(0x0418, {b, r, t, l}); }
    WmfBuilder& roundRect(int l, int t, int r, int b, int w, int h) { return record(0x061C, {h, w, b, r, t, l}); }
    WmfBuilder& pie(int l, int t, int r, int b, QPoint from, QPoint to)
    {
        return record(0x081A, {to.y(), to.x(), from.y(), from.x(), b, r, t, l});
    }
    WmfBuilder& polygon(const QPolygon& points, quint16 function = 0x0324)
    {
        QVector<int> words{int(points.size())};
        for (const QPoint& p : points)
            words << p.x() << p.y();
        return record(function, words);
    }
    WmfBuilder& polyline(const QPolygon& points) { return polygon(points, 0x0325); }
    WmfBuilder& polyPolygon(const QVector<QPolygon>& polygons)
    {
        QVector<int> words{int(polygons.size())};
        for (const QPolygon& polygon : polygons)
            words << int(polygon.size());
        for (const QPolygon& polygon : polygons)
            for (const QPoint& p : polygon)
                words << p.x() << p.y();
        return record(0x0538, words);
    }
    WmfBuilder& textColour(QColor c) { return record(0x0209, {rg(c), c.blue()}); }
    WmfBuilder& bkColour(QColor c) { return record(0x0201, {rg(c), c.blue()}); }
    WmfBuilder& bkMode(int mode) { return record(0x0102, {mode}); }
    WmfBuilder& textAlign(int align) { return record(0x012E, {align}); }
    WmfBuilder& textOut(int x, int y, const QByteArray& s)
    {
        return record(0x0521, QVector<int>{int(s.size())} + text(s) + QVector<int>{y, x});
    }
    // box is left, top, right, bottom, written only when given.
    WmfBuilder& extTextOut(int x, int y, int options, const QVector<int>& box, const QByteArray& s,
                           const QVector<int>& dx = {})
    {
        return record(0x0A32, QVector<int>{y, x, int(s.size()), options} + box + text(s) + dx);
    }

    QByteArray bytes() const
    {
        QByteArray out;
        put32(out, 0x9AC6CDD7);
        put16(out, 0);
        put16(out, bounds.left());
        put16(out, bounds.top());
        put16(out, bounds.left() + bounds.width());
        put16(out, bounds.top() + bounds.height());
        put16(out, unitsPerInch);
        put32(out, 0);
        quint16 sum = 0;
        for (int i = 0; i < 20; i += 2)
            sum ^= quint16(uchar(out[i]) | uchar(out[i + 1]) << 8);
        put16(out, rightChecksum ? sum : sum ^ 0x5555);
        const QByteArray end = endRecord ? QByteArray("\x03\0\0\0\0\0", 6) : QByteArray();
        put16(out, 1);
        put16(out, 9);
        put16(out, 0x0300);
        put32(out, quint32((18 + m_records.size() + end.size()) / 2));
        put16(out, objects);
        put32(out, quint32(m_largest));
        put16(out, 0);
        return out + m_records + end;
    }

    static void put16(QByteArray& out, int v)
    {
        out += char(v & 0xFF);
        out += char((v >> 8) & 0xFF);
    }
    static void put32(QByteArray& out, quint32 v)
    {
        put16(out, int(v & 0xFFFF));
        put16(out, int(v >> 16));
    }

private:
    static int rg(QColor c) { return c.red() | c.green() << 8; }
    static QVector<int> text(const QByteArray& s)
    {
        QVector<int> words;
        for (int i = 0; i < s.size(); i += 2)
            words << (uchar(s[i]) | (i + 1 < s.size() ? uchar(s[i + 1]) << 8 : 0));
        return words;
    }

    QByteArray m_records;
    QVector<int> m_offsets;
    int m_largest = 3;
};
