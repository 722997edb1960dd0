#include "settingsfile.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace SettingsFile {
namespace {
QString g_folder = QStringLiteral(".");
constexpr qint64 kLongestLine = 4096; // a settings line is a few characters
}

void setFolder(const QString& folder) { g_folder = folder; }

QString folder() { return g_folder; }

QString path(const QString& fileName)
{
    return QDir(g_folder).filePath(fileName);
}

std::optional<QString> readFirstValue(const QString& fileName)
{
    QFile file(path(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray line = file.readLine(kLongestLine);
    if (line.isEmpty())
        return std::nullopt;
    QString value = QString::fromLatin1(line);
    value = value.section(QLatin1Char(','), 0, 0).trimmed();
    if (value.size() >= 2 && value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"')))
        value = value.mid(1, value.size() - 2);
    return value;
}

bool writeValue(const QString& fileName, const QString& value)
{
    if (!QDir().mkpath(g_folder))
        return false;
    QSaveFile file(path(fileName));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray line = value.toLatin1() + "\r\n";
    if (file.write(line) != line.size())
        return false;
    return file.commit();
}

} // namespace SettingsFile
