#pragma once
// The printer as the print routines see it: one program-wide object with a
// current position, a font and a colour, that prints lines of text, draws
// lines and pictures, and sends the page with endDoc().
//
// Every position and size is in twips (1/1440 inch), measured from the
// top-left corner of the printable area of the page.
//
// Nothing is opened until a call needs it. The first call that measures sets
// up the page (the default printer, or with --print-to-pdf a new PDF file);
// the first call that draws starts the document. When the page cannot be
// opened (no printer installed, the PDF file cannot be created) that call
// throws PrinterError and the printer is reset, so the next document tries
// afresh. This layer never shows a message: the print routines catch the
// error and tell the child.
#include "printtarget.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <functional>
#include <memory>
#include <stdexcept>

class QFont;
class QImage;
class QPainter;
class QPixmap;

class PrinterError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The printer (or the person at it) stopped the job before it was done.
class PrintCancelled : public PrinterError {
public:
    using PrinterError::PrinterError;
};

// The 16 colours of the classic palette: 0 black, 1 blue, 2 green, 3 cyan,
// 4 red, 5 magenta, 6 brown, 7 light grey, 8 grey, 9 light blue, 10 light
// green, 11 light cyan, 12 light red, 13 light magenta, 14 yellow, 15 bright
// white. Any other index throws std::out_of_range.
QColor QBColor(int index);

class Printer {
public:
    // The drawing state, read by each call that prints or draws.
    double CurrentX = 0; // where the next text starts: its left edge
    double CurrentY = 0; // and its top
    QString FontName = QStringLiteral("Arial");
    double FontSize = 10; // points
    bool FontBold = false;
    QColor ForeColor = Qt::black;
    // Line width in screen pixels of 15 twips, so that a line is as heavy on
    // paper as on the screen.
    int DrawWidth = 1;
    // The way up of the paper, read when a document's page is set up.
    enum PageOrientation { Portrait = 1, Landscape = 2 };
    PageOrientation Orientation = Portrait;

    Printer();
    ~Printer();
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    // Prints one line of text with its top-left corner at (CurrentX,
    // CurrentY) in the current font and ForeColor, then moves to the start of
    // the next line: CurrentX = 0, CurrentY += textHeight(). An empty text
    // prints nothing but still starts the document and moves down a line.
    void print(const QString& text = QString());

    // The size of one line of text in the current font, as it prints.
    double textWidth(const QString& text);
    double textHeight(const QString& text = QString());

    // The printable area of the page.
    double scaleWidth();
    double scaleHeight();

    // A straight line in ForeColor, DrawWidth wide; CurrentX and CurrentY
    // move to its end.
    void line(double x1, double y1, double x2, double y2);

    // A picture with its top-left corner at (x, y), at its own size (a pixel
    // is 15 twips) or stretched to width and height when they are given.
    void paintPicture(const QImage& picture, double x, double y, double width = 0, double height = 0);
    void paintPicture(const QPixmap& picture, double x, double y, double width = 0, double height = 0);

    // Lets a drawing paint itself into twipsRect: draw is given the page's
    // painter and that rectangle in the painter's own units. Whatever draw
    // changes on the painter is undone afterwards.
    using Drawing = std::function<void(QPainter& painter, const QRectF& deviceRect)>;
    void paintWith(const QRectF& twipsRect, const Drawing& draw);

    // Ends the page and goes on to a fresh one of the same document (in a PDF
    // file, its next page); CurrentX and CurrentY go back to the top-left
    // corner. With no document open it starts one first, so the page it ends
    // is blank.
    void newPage();

    // Sends the page: to the printer, or finishes the PDF file. The next call
    // that draws starts a new document. Does nothing when nothing was drawn.
    void endDoc();

    // Whether a document has been started and not yet sent.
    bool documentOpen() const;

private:
    struct Page;
    std::unique_ptr<Page> m_page;

    Page& page();       // sets up the page, for measuring
    QPainter& painter(); // starts the document, for drawing
    void reset();
    QFont font() const;
    QPointF toDevice(const QPointF& twips);
    QRectF toDevice(const QRectF& twips);
};

// The one printer of the program.
Printer& printer();
