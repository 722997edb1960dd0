// One printed worksheet page as a metafile, in twips (1440 to the inch),
// 6.5 x 9.3 inches so it fits A4 and Letter paper beside the program's
// 1000-twip margin. It keeps the pen, brush, font and text settings and
// writes a record only when one changes, and it lays out the parts every
// worksheet shares: the year or unit, name and date, title, instruction.
//
// Text is measured with Liberation Sans and Serif, the metric twins of
// Arial and Times New Roman, so the page can refuse text that runs off the
// page or into other text: finish() then returns nothing and error() says
// what went wrong.
#pragma once

#include "wmfwriter.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QRectF>
#include <QString>
#include <QVector>

class WorksheetPage
{
public:
    static constexpr int Width = 9360;
    static constexpr int Height = 13390;
    static constexpr int Left = 240;            // where the exercises may start ...
    static constexpr int Right = Width - 240;   // ... and end
    static constexpr int Bottom = Height - 340; // below this only the footer

    enum Face { Serif, Sans };

    WorksheetPage();

    void setPen(const QColor &colour, int width = 15, WmfOut::PenStyle style = WmfOut::PenSolid);
    void setNoPen();
    void setBrush(const QColor &colour);
    void setNoBrush();
    // size: the height of the letters in twips (20 to the point).
    void setFont(Face face, int size, bool bold = false);
    void setTextColour(const QColor &colour);

    // Text standing on a baseline, aligned left, centred or right on x.
    void text(int x, int baseline, const QString &text, Qt::Alignment align = Qt::AlignLeft);
    // A number (or any short text) centred in a box, by the height of digits.
    void numberInBox(const QRect &box, const QString &number);
    int textWidth(const QString &text) const;
    // How far the digits of the current font stand above the baseline.
    int digitHeight() const;

    void line(int x1, int y1, int x2, int y2);
    void line(const QPoint &from, const QPoint &to) { line(from.x(), from.y(), to.x(), to.y()); }
    void rect(const QRect &r);
    void roundRect(const QRect &r, int radius);
    void ellipse(const QRect &r);
    void polygon(const QVector<QPoint> &points);
    void polyline(const QVector<QPoint> &points);

    // The shared top of a sheet; returns the first y free for exercises.
    int drawHeading(const QString &yearLabel, const QString &title, const QString &instruction);
    // A numbered disc for an exercise, centred on centre.
    void drawExerciseNumber(const QPoint &centre, int number);

    QByteArray finish();
    QString error() const;

private:
    void align(int flags);
    void checkInside(const QRectF &r, const QString &what);
    void place(int x, int baseline, const QString &text, Qt::Alignment align, bool number);
    QFont measuringFont() const;

    WmfWriter m_wmf;
    int m_pen = -1, m_brush = -1, m_font = -1;
    QString m_penKey, m_brushKey, m_fontKey;
    Face m_face = Sans;
    int m_size = 240;
    bool m_bold = false;
    QColor m_textColour;
    int m_align = -1;
    QVector<QPair<QRectF, QString>> m_texts;
    QString m_error;
};
