#pragma once
// Pictures and icons, named by asset paths written as the screens name them
// (for example "jpg2\solita05.jpg", with backslashes), resolved against the
// assets folder. Each file is decoded once, on first use, and kept in a
// bounded cache. A missing or unreadable file is fatal: the program says which
// file and which folder, and ends. Metafiles (the worksheets) are read by the
// program's own reader, once each, and kept.
#include "metafile.h"

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
// A metafile ("wmf\y2print1.wmf"). A file the reader refuses is fatal too,
// and the message gives the reader's reason.
Metafile metafile(const QString& assetPath);

// How many files have been decoded so far (each decode counts once).
int decodeCount();
void clearCache();

// The message shown when an asset cannot be read.
QString missingMessage(const QString& assetPath);
QString refusedMessage(const QString& assetPath, const QString& reason);

} // namespace Pictures
