#pragma once
// Windows metafiles (placeable WMF), the format of the printed worksheets.
// Qt reads no metafiles, so the program has its own small reader:
// Metafile::parse checks and decodes a whole file up front into a list of
// drawing steps, and play() draws those steps onto any QPainter - a screen,
// an image, a printer or a PDF file - so that the picture fills a target
// rectangle. Playing never looks at the file's bytes again.
//
// A Metafile is a value: copies share the decoded picture.
#include <QByteArray>
#include <QRect>
#include <QSizeF>
#include <QString>
#include <memory>
#include <optional>

class QPainter;
class QRectF;

namespace Wmf {
struct Picture;
}

class Metafile {
public:
    // Decodes a whole placeable metafile. A file that is cut short or
    // malformed anywhere is refused: the result is empty and *error says what
    // is wrong and at which byte of the file.
    static std::optional<Metafile> parse(const QByteArray& bytes, QString* error = nullptr);

    // The picture's frame in its own units (left, top, width, height), and
    // how many of those units make an inch.
    QRect bounds() const;
    int unitsPerInch() const;
    // The picture's own size on paper.
    QSizeF sizeInTwips() const;

    // Records in the file before its end record, and how many of them the
    // reader passes over (bitmaps, palettes, escapes and the like).
    int recordCount() const;
    int skippedRecordCount() const;
    // Whether the placeable header's checksum is right. A wrong checksum does
    // not refuse a file: many writers get it wrong, and every other part of
    // the file is checked anyway.
    bool checksumMatches() const;

    // Draws the picture so that its window (the bounding box, unless the file
    // sets its own window) fills the target rectangle, given in the
    // painter's coordinates. Nothing is drawn outside the target. The
    // painter's state is left as it was.
    void play(QPainter& painter, const QRectF& target) const;

private:
    explicit Metafile(std::shared_ptr<const Wmf::Picture> picture);
    std::shared_ptr<const Wmf::Picture> d;
};
