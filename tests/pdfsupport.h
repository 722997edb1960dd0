#pragma once
// Reading back what was printed to PDF files, with poppler's pdftotext and
// pdftoppm: the text, the words with their boxes, and the page as a picture.
// Tests call missingTool() first and skip when it names a tool.
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace PdfSupport {

// A4 in points (1/72 inch), the unit of the word boxes; a point is 20 twips.
constexpr double kPageWidthPt = 595.276;
constexpr double kPageHeightPt = 841.89;

inline QString missingTool()
{
    for (const char* tool : {"pdftotext", "pdftoppm"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            return QString::fromLatin1(tool);
    return QString();
}

inline QByteArray run(const QString& tool, const QStringList& arguments)
{
    QProcess p;
    p.start(tool, arguments);
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        return QByteArray();
    return p.readAllStandardOutput();
}

// The PDF files in a folder, oldest name first.
inline QStringList files(const QString& folder)
{
    QStringList names = QDir(folder).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    for (QString& name : names)
        name = QDir(folder).filePath(name);
    return names;
}

// The non-blank lines of the text, in reading order, trimmed.
inline QStringList lines(const QString& pdf)
{
    QStringList result;
    const QString text = QString::fromUtf8(run(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}));
    for (const QString& line : text.split(QLatin1Char('\n')))
        if (!line.trimmed().isEmpty())
            result << line.trimmed();
    return result;
}

// The non-blank lines of each page, trimmed: pdftotext ends every page
// with a form feed.
inline QList<QStringList> pages(const QString& pdf)
{
    QList<QStringList> result;
    const QString text = QString::fromUtf8(run(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}));
    QStringList page;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList parts = line.split(QLatin1Char('\f'));
        for (int i = 0; i < parts.size(); ++i) {
            if (i > 0) {
                result << page;
                page.clear();
            }
            if (!parts[i].trimmed().isEmpty())
                page << parts[i].trimmed();
        }
    }
    return result;
}

struct Word {
    QString text;
    QRectF box; // in points from the page's top-left corner
};

// The words of every page, or of one page when page is given.
inline QList<Word> words(const QString& pdf, int page = 0)
{
    QList<Word> result;
    QStringList arguments{QStringLiteral("-bbox")};
    if (page > 0)
        arguments << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l") << QString::number(page);
    arguments << pdf << QStringLiteral("-");
    const QString html = QString::fromUtf8(run(QStringLiteral("pdftotext"), arguments));
    static const QRegularExpression word(QString::fromLatin1(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    for (auto it = word.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        result << Word{m.captured(5), QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                                             QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()))};
    }
    return result;
}

// A page (the first unless told) drawn at dpi dots per inch.
inline QImage render(const QString& pdf, int dpi, int page = 1)
{
    QTemporaryDir dir;
    const QString stem = dir.filePath(QStringLiteral("page"));
    const QString number = QString::number(page);
    run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-png"),
                                     QStringLiteral("-f"), number, QStringLiteral("-l"), number,
                                     QStringLiteral("-singlefile"), pdf, stem});
    return QImage(stem + QStringLiteral(".png"));
}

} // namespace PdfSupport
