// Writes pictures as GIF files through giflib (Qt reads GIF but cannot
// write it). A picture with at most 256 colours keeps every colour exactly;
// one with more is reduced to 256 by median cut, the same way every time.
// Pixels that are more than half transparent become the GIF's transparent
// colour.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QVector>

// The whole GIF file in memory; empty, with *error set, on failure.
QByteArray encodeGif(const QImage &image, QString *error = nullptr);

bool writeGif(const QImage &image, const QString &path, QString *error = nullptr);

// One palette of at most `colours` colours for a set of pictures, such as
// the frames of an animation, chosen by the same median cut. Mapping every
// frame to it keeps what stays put the same colour from frame to frame, and
// each frame then keeps its colours exactly. See-through pixels (alpha below
// 128) are left out.
QVector<QRgb> sharedPalette(const QVector<QImage> &images, int colours = 255);

// The picture with each solid pixel replaced by the nearest palette colour
// and each see-through pixel made fully clear.
QImage mapToPalette(const QImage &image, const QVector<QRgb> &palette);
