#pragma once
// The publisher's animated logo on the year menu and the activity menus.
// Every menu advances the same frame number (Module1::logoframe), so the
// logo carries on where the last menu left it.
#include <QString>

namespace Logo {

// The two sizes the logo is drawn at: the larger "morv" frames and the
// smaller "smmv" ones.
enum class Frames { Large, Small };

constexpr int kFrameCount = 20;
constexpr int kIntervalMs = 25;

// "bmp\morv0009.gif", "bmp\smmv0010.gif": three zeros below 10, two above.
QString frameFile(Frames frames, int n);

// Moves the shared frame number on by one (19 is followed by 0) and
// returns the file of the new frame.
QString advance(Frames frames);

// The publisher's logo bitmaps that go with each size.
QString bitmapFile(Frames frames);

// What a screen reader calls the animated logo ("Partitude logo") and the
// publisher's logo beside it.
QString spokenName();
QString publisherSpokenName();

} // namespace Logo
