#pragma once
// Where printed pages go. Normally the default printer; with --print-to-pdf
// every document becomes a new PDF file in the chosen folder.
#include <QString>

namespace PrintTarget {

void setPdfFolder(const QString& folder);
QString pdfFolder();
bool printsToPdf();

// A file name in the PDF folder that no earlier document of this run or an
// earlier run has taken.
QString nextPdfFile();

} // namespace PrintTarget
