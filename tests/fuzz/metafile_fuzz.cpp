// libFuzzer target over the metafile reader and player: every input is read
// as a placeable metafile and, when the reader takes it, played onto a small
// image and into a QPicture (two different paint engines). The reader must
// refuse or accept every input without reading outside it, and whatever it
// accepts must play without fault.
#include "runtime/metafile.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// Small, so that each input is played quickly; a second, odd-sized target
// inside it catches rounding at the edges.
constexpr int kImageSide = 64;
const QRectF kInnerTarget(3.5, 5.25, 41, 29);

void playOnto(QPaintDevice& device, const Metafile& metafile, const QRectF& target)
{
    QPainter painter(&device);
    metafile.play(painter, target);
}

} // namespace

// fontconfig keeps every font it has looked up (the fuzzed files ask for all
// sorts of faces) until the process ends, and Qt's font database holds on to
// them: at exit that looks like a leak, though nothing of the reader's is lost.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Text needs the font database, which needs a GUI application; no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The input's own bytes, not a copy with room after them: a read past
    // the end is a read past libFuzzer's allocation.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    QString error;
    const std::optional<Metafile> metafile = Metafile::parse(bytes, &error);
    if (!metafile) {
        if (error.isEmpty())
            std::abort(); // a refusal always says why
        return 0;
    }
    if (!error.isEmpty() || metafile->bounds().isEmpty() || metafile->unitsPerInch() <= 0)
        std::abort(); // an accepted file has a frame and a scale
    if (metafile->skippedRecordCount() > metafile->recordCount())
        std::abort();

    QImage image(kImageSide, kImageSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    playOnto(image, *metafile, QRectF(image.rect()));
    playOnto(image, *metafile, kInnerTarget);
    QPicture picture;
    playOnto(picture, *metafile, QRectF(0, 0, kImageSide, kImageSide));
    return 0;
}
