#pragma once
// Writes small placeable metafiles, record by record, so the metafile tests
// need no picture file. The whole file is 16-bit words; parameters are given
// as the file stores them: shapes' corners bottom-right first, points y
// before x (except in polygons' point lists).
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

    WmfBuilder& record(quint16 function, const QVector<int>& params)
    {
        const int size = 3 + int(params.size());
        m_largest = qMax(m_largest, size);
        m_words << (size & 0xFFFF) << (size >> 16) << function << params;
        return *this;
    }

    WmfBuilder& windowOrg(int x, int y) { return record(0x020B, {y, x}); }
    WmfBuilder& windowExt(int x, int y) { return record(0x020C, {y, x}); }
    WmfBuilder& mapMode(int mode) { return record(0x0103, {mode}); }
    WmfBuilder& pen(int style, int width, QColor c) { return record(0x02FA, {style, width, 0, rg(c), c.blue()}); }
    WmfBuilder& brush(int style, QColor c, int hatch = 0) { return record(0x02FC, {style, rg(c), c.blue(), hatch}); }
    WmfBuilder& font(int height, const QByteArray& face, int escapement = 0)
    {
        return record(0x02FB, QVector<int>{height, 0, escapement, escapement, 400, 0, 0, 0, 0} + text(face + '\0'));
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
        return record(function, QVector<int>{int(points.size())} + xy(points));
    }
    WmfBuilder& polyline(const QPolygon& points) { return polygon(points, 0x0325); }
    WmfBuilder& polyPolygon(const QVector<QPolygon>& polygons)
    {
        QVector<int> counts{int(polygons.size())}, points;
        for (const QPolygon& polygon : polygons) {
            counts << int(polygon.size());
            points << xy(polygon);
        }
        return record(0x0538, counts + points);
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

    // The placeable header with its checksum, the metafile header, the records and an end record.
    QByteArray bytes() const
    {
        QVector<int> words{0xCDD7, 0x9AC6, 0, bounds.left(), bounds.top(), bounds.left() + bounds.width(),
                           bounds.top() + bounds.height(), unitsPerInch, 0, 0};
        int sum = 0;
        for (int w : words)
            sum ^= w & 0xFFFF;
        const int fileWords = 9 + int(m_words.size()) + 3;
        words << sum << 1 << 9 << 0x0300 << (fileWords & 0xFFFF) << (fileWords >> 16) << objects << m_largest << 0 << 0
              << m_words << 3 << 0 << 0;
        QByteArray out;
        for (int w : words)
            out.append(char(w & 0xFF)).append(char((w >> 8) & 0xFF));
        return out;
    }

private:
    static int rg(QColor c) { return c.red() | c.green() << 8; }
    static QVector<int> xy(const QPolygon& points)
    {
        QVector<int> words;
        for (const QPoint& p : points)
            words << p.x() << p.y();
        return words;
    }
    static QVector<int> text(const QByteArray& s)
    {
        QVector<int> words;
        for (int i = 0; i < s.size(); i += 2)
            words << (uchar(s[i]) | (i + 1 < s.size() ? uchar(s[i + 1]) << 8 : 0));
        return words;
    }

    QVector<int> m_words; // the records
    int m_largest = 3;
};
