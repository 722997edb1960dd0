#include "printer.h"

#include "twips.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmap>
#include <QPrinter>
#include <array>

namespace {

// PDF pages are A4 portrait with the quarter-inch border that a printer
// cannot reach, at a resolution fine enough that rounding never shows.
constexpr int kPdfDpi = 1200;
constexpr double kPdfMarginInches = 0.25;

std::unique_ptr<QPagedPaintDevice> pdfDevice(const QString& file, QPageLayout::Orientation orientation)
{
    auto pdf = std::make_unique<QPdfWriter>(file);
    pdf->setResolution(kPdfDpi);
    pdf->setCreator(QStringLiteral("Partitude"));
    const QMarginsF margins(kPdfMarginInches, kPdfMarginInches, kPdfMarginInches, kPdfMarginInches);
    pdf->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), orientation, margins, QPageLayout::Inch));
    return pdf;
}

std::unique_ptr<QPagedPaintDevice> printerDevice(QPageLayout::Orientation orientation)
{
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    // Without a printer Qt quietly falls back to writing a PDF file.
    if (device->outputFormat() != QPrinter::NativeFormat || device->printerName().isEmpty())
        throw PrinterError("No printer is installed.");
    device->setDocName(QStringLiteral("Partitude"));
    device->setPageOrientation(orientation);
    return device;
}

// An unfinished document is sent when the program ends, while the fonts
// and the printer connection are still there.
void endDocAtExit()
{
    try {
        printer().endDoc();
    } catch (const PrinterError&) {
        // Too late to tell anyone.
    }
}

} // namespace

QColor QBColor(int index)
{
    static const std::array<QRgb, 16> palette = {
        qRgb(0, 0, 0),     qRgb(0, 0, 128),     qRgb(0, 128, 0),     qRgb(0, 128, 128),
        qRgb(128, 0, 0),   qRgb(128, 0, 128),   qRgb(128, 128, 0),   qRgb(192, 192, 192),
        qRgb(128, 128, 128), qRgb(0, 0, 255),   qRgb(0, 255, 0),     qRgb(0, 255, 255),
        qRgb(255, 0, 0),   qRgb(255, 0, 255),   qRgb(255, 255, 0),   qRgb(255, 255, 255),
    };
    if (index < 0 || index >= static_cast<int>(palette.size()))
        throw std::out_of_range("QBColor takes a colour number from 0 to 15");
    return QColor(palette[static_cast<size_t>(index)]);
}

struct Printer::Page {
    std::unique_ptr<QPagedPaintDevice> device;
    QString pdfFile; // empty on a printer
    QString pdfFolder; // the PDF folder it was set up for
    Printer::PageOrientation orientation = Printer::Portrait;
    QPainter painter;
};

Printer::Printer() = default;
Printer::~Printer() = default;

Printer& printer()
{
    static Printer thePrinter;
    return thePrinter;
}

Printer::Page& Printer::page()
{
    // A page set up only for measuring follows a later change of paper or
    // target; once drawing has started the document keeps its page.
    if (m_page && !m_page->painter.isActive()
        && (m_page->orientation != Orientation || m_page->pdfFolder != PrintTarget::pdfFolder()))
        m_page.reset();
    if (m_page)
        return *m_page;
    static bool endsAtExit = false;
    if (!endsAtExit && QCoreApplication::instance()) {
        qAddPostRoutine(endDocAtExit);
        endsAtExit = true;
    }
    auto page = std::make_unique<Page>();
    page->orientation = Orientation;
    page->pdfFolder = PrintTarget::pdfFolder();
    const auto orientation = Orientation == Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    try {
        if (PrintTarget::printsToPdf()) {
            page->pdfFile = PrintTarget::nextPdfFile();
            page->device = pdfDevice(page->pdfFile, orientation);
        } else {
            page->device = printerDevice(orientation);
        }
    } catch (const PrinterError&) {
        reset();
        throw;
    }
    m_page = std::move(page);
    return *m_page;
}

QPainter& Printer::painter()
{
    Page& p = page();
    if (p.painter.isActive())
        return p.painter;
    QString problem;
    if (!p.pdfFile.isEmpty() && !QDir().mkpath(QFileInfo(p.pdfFile).absolutePath()))
        problem = QStringLiteral("Cannot create the folder %1.").arg(QFileInfo(p.pdfFile).absolutePath());
    else if (!p.painter.begin(p.device.get()))
        problem = p.pdfFile.isEmpty() ? QStringLiteral("The printer cannot start a page.")
                                      : QStringLiteral("Cannot write the file %1.").arg(p.pdfFile);
    if (!problem.isEmpty()) {
        reset();
        throw PrinterError(problem.toStdString());
    }
    // Like a printer, the PDF page shows nothing beyond the printable area.
    p.painter.setClipRect(QRect(0, 0, p.device->width(), p.device->height()));
    return p.painter;
}

void Printer::reset()
{
    m_page.reset();
    CurrentX = 0;
    CurrentY = 0;
}

bool Printer::documentOpen() const { return m_page && m_page->painter.isActive(); }

QFont Printer::font() const
{
    QFont f(FontName);
    f.setPointSizeF(FontSize > 0 ? FontSize : 1);
    f.setBold(FontBold);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

QPointF Printer::toDevice(const QPointF& twips)
{
    const QPagedPaintDevice& d = *page().device;
    return QPointF(twips.x() * d.logicalDpiX() / Twips::kPerInch, twips.y() * d.logicalDpiY() / Twips::kPerInch);
}

QRectF Printer::toDevice(const QRectF& twips)
{
    return QRectF(toDevice(twips.topLeft()), toDevice(twips.bottomRight()));
}

double Printer::textWidth(const QString& text)
{
    const QPagedPaintDevice& d = *page().device;
    return QFontMetricsF(font(), &d).horizontalAdvance(text) * Twips::kPerInch / d.logicalDpiX();
}

double Printer::textHeight(const QString&)
{
    const QPagedPaintDevice& d = *page().device;
    return QFontMetricsF(font(), &d).lineSpacing() * Twips::kPerInch / d.logicalDpiY();
}

double Printer::scaleWidth()
{
    const QPagedPaintDevice& d = *page().device;
    return d.width() * double(Twips::kPerInch) / d.logicalDpiX();
}

double Printer::scaleHeight()
{
    const QPagedPaintDevice& d = *page().device;
    return d.height() * double(Twips::kPerInch) / d.logicalDpiY();
}

void Printer::print(const QString& text)
{
    QPainter& p = painter();
    const double lineHeight = textHeight();
    if (!text.isEmpty()) {
        const QFont f = font();
        const QPointF topLeft = toDevice(QPointF(CurrentX, CurrentY));
        p.setFont(f);
        p.setPen(ForeColor);
        p.drawText(topLeft + QPointF(0, QFontMetricsF(f, p.device()).ascent()), text);
    }
    CurrentX = 0;
    CurrentY += lineHeight;
}

void Printer::line(double x1, double y1, double x2, double y2)
{
    QPainter& p = painter();
    const double width = toDevice(QPointF(DrawWidth * Twips::kPerPixel, 0)).x();
    p.setPen(QPen(ForeColor, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(toDevice(QPointF(x1, y1)), toDevice(QPointF(x2, y2)));
    CurrentX = x2;
    CurrentY = y2;
}

void Printer::paintPicture(const QImage& picture, double x, double y, double width, double height)
{
    // At its designed size, also when it comes from its larger twin.
    if (width <= 0)
        width = picture.deviceIndependentSize().width() * Twips::kPerPixel;
    if (height <= 0)
        height = picture.deviceIndependentSize().height() * Twips::kPerPixel;
    paintWith(QRectF(x, y, width, height), [&](QPainter& p, const QRectF& r) { p.drawImage(r, picture); });
}

void Printer::paintPicture(const QPixmap& picture, double x, double y, double width, double height)
{
    paintPicture(picture.toImage(), x, y, width, height);
}

void Printer::paintWith(const QRectF& twipsRect, const Drawing& draw)
{
    QPainter& p = painter();
    struct Restore {
        QPainter& p;
        ~Restore() { p.restore(); }
    };
    p.save();
    const Restore restore{p};
    draw(p, toDevice(twipsRect));
}

void Printer::newPage()
{
    QPainter& p = painter();
    if (!m_page->device->newPage()) {
        p.end();
        reset();
        throw PrinterError("The printer cannot start a new page.");
    }
    CurrentX = 0;
    CurrentY = 0;
}

void Printer::endDoc()
{
    const bool open = documentOpen();
    const bool sent = !open || m_page->painter.end();
    const auto* onPrinter = open ? dynamic_cast<const QPrinter*>(m_page->device.get()) : nullptr;
    const bool aborted = onPrinter && onPrinter->printerState() == QPrinter::Aborted;
    reset();
    if (aborted)
        throw PrintCancelled("The printer stopped the job.");
    if (!sent)
        throw PrinterError("The page could not be sent to the printer.");
}
