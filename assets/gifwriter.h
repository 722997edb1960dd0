// Writes pictures as GIF files through giflib (Qt reads GIF but cannot
// write it). A picture with at most 256 colours keeps every colour exactly;
// one with more is reduced to 256 by median cut, the same way every time.
// Pixels that are more than half transparent become the GIF's transparent
// colour.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// The whole GIF file in memory; empty, with *error set, on failure.
QByteArray encodeGif(const QImage &image, QString *error = nullptr);

bool writeGif(const QImage &image, const QString &path, QString *error = nullptr);
