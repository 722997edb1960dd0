// Renders the scalable icon into the PNG sizes of the hicolor icon theme:
//
//   partitude_iconpng ICON.svg OUTPUT_DIR NAME SIZE...
//
// writes OUTPUT_DIR/SIZExSIZE/apps/NAME.png for each size.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {
constexpr int kFirstSizeArgument = 4;
}

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() <= kFirstSizeArgument) {
        std::fputs("usage: partitude_iconpng ICON.svg OUTPUT_DIR NAME SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(args.at(1));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(args.at(1)));
        return 1;
    }
    for (int i = kFirstSizeArgument; i < args.size(); ++i) {
        const int side = args.at(i).toInt();
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        painter.end();
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(args.at(2)).arg(side);
        QDir().mkpath(folder);
        const QString file = QDir(folder).filePath(args.at(3) + QStringLiteral(".png"));
        if (!image.save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
