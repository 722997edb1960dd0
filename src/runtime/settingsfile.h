#pragma once
// The program's two settings files (primary.inf, sound.inf): one line each,
// written as the value and a CR LF line end, read back as the first value of
// the first line. The folder is chosen once at start-up (--settings).
#include <QString>
#include <optional>

namespace SettingsFile {

void setFolder(const QString& folder);
QString folder();
QString path(const QString& fileName);

// The first value of the first line: up to the first comma, trimmed, and
// without surrounding double quotes. Nothing when the file is missing,
// unreadable or empty.
std::optional<QString> readFirstValue(const QString& fileName);

// Replaces the file with the value and CR LF. False when it cannot be written;
// the caller decides whether that matters.
bool writeValue(const QString& fileName, const QString& value);

} // namespace SettingsFile
