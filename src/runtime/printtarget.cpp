#include "printtarget.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace PrintTarget {
namespace {
QString g_folder;
}

void setPdfFolder(const QString& folder) { g_folder = folder; }

QString pdfFolder() { return g_folder; }

bool printsToPdf() { return !g_folder.isEmpty(); }

QString nextPdfFile()
{
    const QDir dir(g_folder);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    for (int n = 1;; ++n) {
        const QString name = dir.filePath(QStringLiteral("partitude-%1-%2.pdf").arg(stamp).arg(n, 3, 10, QLatin1Char('0')));
        if (!QFileInfo::exists(name))
            return name;
    }
}

} // namespace PrintTarget
