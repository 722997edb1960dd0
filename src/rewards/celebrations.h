#pragma once
// The celebration animations the certificate screen plays after a Challenge:
// one is picked at random and its frames are shown in a loop. Each frame is
// a 200 x 150 JPEG on the screen's blue, named as the base followed by the
// two-digit frame number ("gif\grstel\grstel00.jpg" .. "grstel19.jpg").
// The asset tool draws exactly these files.
#include <QString>

struct Celebration {
    const char* base;
    int frames;
};

inline constexpr Celebration kCelebrations[] = {
    {"gif\\grstel\\grstel", 20},   // a great smiling star with sparkles
    {"gif\\firewk\\firewk", 24},   // fireworks bursting in many colours
    {"gif\\balloon\\balloon", 20}, // balloons floating up
    {"gif\\trophy\\trophy", 16},   // a shining gold cup
};

inline constexpr int kCelebrationCount = int(sizeof kCelebrations / sizeof kCelebrations[0]);
inline constexpr int kCelebrationWidth = 200;
inline constexpr int kCelebrationHeight = 150;

// The asset path of one frame: the base, the frame number with a leading
// "0" below 10, then ".jpg".
inline QString celebrationFrameFile(const Celebration& celebration, int frame)
{
    return QString::fromLatin1(celebration.base)
           + (frame < 10 ? QStringLiteral("0") : QString()) + QString::number(frame)
           + QStringLiteral(".jpg");
}
