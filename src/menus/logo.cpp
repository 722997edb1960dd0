#include "logo.h"

#include "shell/module1.h"
#include "shell/publisher.h"

#include <QCoreApplication>

namespace Logo {

QString frameFile(Frames frames, int n)
{
    const QString base = frames == Frames::Large ? QStringLiteral("bmp\\morv") : QStringLiteral("bmp\\smmv");
    return base + (n < 10 ? QStringLiteral("000") : QStringLiteral("00")) + QString::number(n)
        + QStringLiteral(".gif");
}

QString advance(Frames frames)
{
    Module1::logoframe += 1;
    if (Module1::logoframe == kFrameCount)
        Module1::logoframe = 0;
    return frameFile(frames, Module1::logoframe);
}

QString bitmapFile(Frames frames)
{
    return frames == Frames::Large ? QStringLiteral("bmp\\morvane2.bmp") : QStringLiteral("bmp\\morvane3.bmp");
}

QString spokenName()
{
    return QCoreApplication::translate("Logo", "Partitude logo");
}

QString publisherSpokenName()
{
    return QCoreApplication::translate("Logo", "%1 logo").arg(Publisher::kName);
}

} // namespace Logo
