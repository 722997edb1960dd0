#pragma once
// What every activity's Print must give: the worksheet of 12 fresh questions
// from its own generator, then a page with their answers. The test copies
// the program's random source before printing and draws the same sheet again.
#include "pdfsupport.h"
#include "runtime/printtarget.h"
#include "runtime/random.h"
#include "worksheets/generatedsheet.h"

#include <QAbstractButton>
#include <functional>

namespace SheetCheck {

// Whether `text` holds `sentence` as printed. A question may wrap onto a
// second line, and pdftotext may read the other column's line in between,
// so the sentence may stand there in two pieces.
inline bool holds(const QString& text, const QString& sentence)
{
    const QStringList words = sentence.simplified().split(QLatin1Char(' '));
    for (int split = words.size(); split > 0; --split)
        if (text.contains(words.mid(0, split).join(QLatin1Char(' '))) &&
            (split == words.size() || text.contains(words.mid(split).join(QLatin1Char(' ')))))
            return true;
    return false;
}

// Presses print (the question is answered Yes by the test's world) and
// returns what is wrong with the printed sheet, or nothing.
inline QString printAndRead(QAbstractButton* print, const std::function<Worksheets::Sheet(Random::Source&)>& sheetOf)
{
    QTemporaryDir pdfs;
    PrintTarget::setPdfFolder(pdfs.path());
    Random::Source copy = Random::program();
    print->click();
    PrintTarget::setPdfFolder(QString());
    const Worksheets::Sheet expected = sheetOf(copy);
    const QStringList files = PdfSupport::files(pdfs.path());
    if (files.size() != 1)
        return QStringLiteral("%1 files printed").arg(files.size());
    const QList<QStringList> pages = PdfSupport::pages(files[0]);
    if (pages.size() != 2 || expected.rows.size() != Worksheets::kQuestions)
        return QStringLiteral("%1 pages, %2 rows").arg(pages.size()).arg(expected.rows.size());
    const QString front = pages[0].join(QLatin1Char(' ')), back = pages[1].join(QLatin1Char(' '));
    for (const Worksheets::Row& row : expected.rows)
        if (!holds(front, row.question))
            return QStringLiteral("question missing: ") + row.question;
    for (const Worksheets::Row& row : expected.rows)
        if (row.answer.simplified().isEmpty() || !holds(back, row.answer))
            return QStringLiteral("answer missing: ") + row.answer;
    if (!front.contains(expected.title) || !back.contains(QStringLiteral("Answers")))
        return QStringLiteral("title or answers heading missing");
    return QString();
}

} // namespace SheetCheck
