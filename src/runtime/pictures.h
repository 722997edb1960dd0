#pragma once
// Pictures and icons, named by asset paths written as the screens name them
// (for example "jpg2\solita05.jpg", with backslashes), resolved against the
// assets folder. Each file is decoded once, on first use, and kept in a
// bounded cache. A missing or unreadable file is fatal: the program says which
// file and which folder, and ends.
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace Pictures {

void setAssetFolder(const QString& folder);
QString assetFolder();

// The file on disk for an asset path ("gif\sphfra\sphf0000.jpg").
QString resolve(const QString& assetPath);

QPixmap get(const QString& assetPath);
QIcon icon(const QString& assetPath);

// How many files have been decoded so far (each decode counts once).
int decodeCount();
void clearCache();

// The message shown when an asset cannot be read.
QString missingMessage(const QString& assetPath);

} // namespace Pictures
