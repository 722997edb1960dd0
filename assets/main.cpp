// drawassets: draws every picture and sound the program uses into the folder
// given on the command line. Run by the build; the output is the same on
// every run.
#include "canvas.h"
#include "drawing.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    // Text needs a platform, but the build machine may have no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    const QStringList args = app.arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: drawassets OUTPUT_FOLDER\n");
        return 2;
    }
    const QString root = args.at(1);
    if (!QDir().mkpath(root)) {
        std::fprintf(stderr, "drawassets: cannot create %s\n", qPrintable(root));
        return 1;
    }

    AssetOutput out(root);
    const struct
    {
        const char *name;
        void (*draw)(AssetOutput &);
    } families[] = {
        {"icons", drawIcons},          {"title frames", drawTitleFrames},
        {"reward pictures", drawRewardSets}, {"stars", drawStarSeries},
        {"harp sounds", writeHarpSounds},
        {"publisher's logo", drawLogos},
        {"celebrations", drawCelebrations},
        {"worksheets", drawWorksheets},
        {"halves and quarters pictures", drawHalvesPictures},
    };
    for (const auto &family : families) {
        family.draw(out);
        if (out.failed()) {
            std::fprintf(stderr, "drawassets: %s failed: %s\n", family.name,
                         qPrintable(out.error()));
            return 1;
        }
    }
    std::printf("drawassets: wrote %d files, %lld KiB, to %s\n", out.fileCount(),
                static_cast<long long>((out.byteCount() + 1023) / 1024),
                qPrintable(QDir(root).absolutePath()));
    return 0;
}
