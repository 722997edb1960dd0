#pragma once
// Pictures and icons, named by asset paths written as the screens name them
// (for example "jpg2\solita05.jpg", with backslashes), resolved against the
// assets folder. Each file is decoded once, on first use, and kept in a
// bounded cache (opaque ones at 3 bytes a pixel). A missing or unreadable file is fatal: the program says which
// file and which folder, and ends. Metafiles (the worksheets) are read by the
// program's own reader, once each, and kept.
#include "metafile.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace Pictures {

void setAssetFolder(const QString& folder);
QString assetFolder();

// The file on disk for an asset path ("gif\sphfra\sphf0000.jpg").
QString resolve(const QString& assetPath);

// The picture, whose deviceIndependentSize is the size it was designed at
// (in pixels at 15 twips each); it is drawn at that size times the scale.
QPixmap get(const QString& assetPath);
// The picture ready to paint, as get() but into target, whose own pixels are
// used again when they can be (frame after frame of an animation).
void getInto(const QString& assetPath, QImage* target);

// A picture as kept, in a format that paints onto the screen without
// conversion (the screen's 4 bytes a pixel, or with its alpha); into target
// as getInto does.
QImage paintable(const QImage& picture);
void paintInto(const QImage& picture, QImage* target);

// While a Keep lives, the pictures under its folder ("gif\\sphfra\\") stay
// decoded once read, outside the cache's budget: for a screen that cycles
// through more frames than the cache holds, for as long as it shows them.
class Keep {
public:
    explicit Keep(const QString& folder);
    ~Keep();
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    QString m_folder;
};

// The picture as an icon, sized for the scale.
QIcon icon(const QString& assetPath);

// Pictures drawn larger than designed are read from a twin the asset tool
// drew kLargeTwinFactor times larger, named with a suffix: "ico\door2@2x.ico".
constexpr int kLargeTwinFactor = 2;
constexpr char kLargeTwinSuffix[] = "@2x";
QString largeTwin(const QString& assetPath);
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
