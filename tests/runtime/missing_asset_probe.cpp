// Asks for one asset and says what the message box would have said. The
// pictures test runs it as a child program, since a missing asset ends it.
#include "runtime/msgbox.h"
#include "runtime/pictures.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (argc < 3)
        return 64;
    MsgBox::setHandler([](const MsgBox::Request& r) {
        std::printf("%s\n%s\n", r.critical ? "critical" : "plain", qPrintable(r.text));
        return MsgBox::Answer::Ok;
    });
    Pictures::setAssetFolder(QString::fromLocal8Bit(argv[1]));
    const QString asset = QString::fromLocal8Bit(argv[2]);
    if (asset.endsWith(QLatin1String(".wmf")))
        Pictures::metafile(asset);
    else
        Pictures::get(asset);
    std::printf("loaded\n");
    return 0;
}
