// The harp sounds: short plucked arpeggios and strums, 16-bit mono PCM WAV
// at 22050 Hz. A plucked string is a sum of harmonics that fade out, the
// higher ones faster, which gives the soft, bright sound of a harp.
#include "canvas.h"
#include "drawing.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kRate = 22050;

struct Pluck
{
    double startSeconds;
    int midiNote;
};

struct HarpSound
{
    const char *name;
    double seconds;
    std::vector<Pluck> plucks;
};

double frequency(int midiNote) { return 440.0 * std::pow(2.0, (midiNote - 69) / 12.0); }

void addPluck(std::vector<double> &mix, const Pluck &pluck)
{
    const double f = frequency(pluck.midiNote);
    // Lower strings ring longer.
    const double ringSeconds = std::clamp(1.4 * 262.0 / f, 0.35, 1.2);
    const int start = int(pluck.startSeconds * kRate);
    for (int h = 1; h <= 7; ++h) {
        const double hf = f * h;
        if (hf > kRate * 0.45)
            break;
        // Plucked a little off the middle, so every harmonic sounds.
        const double level = std::abs(std::sin(M_PI * h * 0.23)) / std::pow(h, 1.3);
        const double fade = 1.0 / (ringSeconds / (1.0 + 0.9 * (h - 1)));
        for (std::size_t i = start; i < mix.size(); ++i) {
            const double t = double(i - start) / kRate;
            const double attack = std::min(1.0, t / 0.004);
            mix[i] += level * attack * std::exp(-fade * t) * std::sin(2 * M_PI * hf * t);
        }
    }
}

QByteArray wavFile(const std::vector<double> &mix)
{
    double peak = 1e-9;
    for (double v : mix)
        peak = std::max(peak, std::abs(v));
    const double gain = 0.7 * 32767 / peak;
    // The strings still ring at the end: a gentle fade, as a hand laid on
    // them, rather than a cut (and no click).
    const int fadeOut = kRate * 3 / 10;
    QByteArray samples(int(mix.size() * 2), Qt::Uninitialized);
    for (std::size_t i = 0; i < mix.size(); ++i) {
        const std::size_t left = mix.size() - 1 - i;
        const double tail = left < std::size_t(fadeOut) ? 0.5 - 0.5 * std::cos(M_PI * left / fadeOut) : 1.0;
        const auto value = qint16(std::lround(std::clamp(mix[i] * gain * tail, -32767.0, 32767.0)));
        qToLittleEndian(value, samples.data() + 2 * i);
    }

    QByteArray wav;
    auto put32 = [&wav](quint32 v) {
        char b[4];
        qToLittleEndian(v, b);
        wav.append(b, 4);
    };
    auto put16 = [&wav](quint16 v) {
        char b[2];
        qToLittleEndian(v, b);
        wav.append(b, 2);
    };
    const quint16 channels = 1, bits = 16;
    wav.append("RIFF", 4);
    put32(quint32(36 + samples.size()));
    wav.append("WAVE", 4);
    wav.append("fmt ", 4);
    put32(16);
    put16(1);  // PCM
    put16(channels);
    put32(kRate);
    put32(kRate * channels * bits / 8);
    put16(channels * bits / 8);
    put16(bits);
    wav.append("data", 4);
    put32(quint32(samples.size()));
    wav.append(samples);
    return wav;
}

} // namespace

void writeHarpSounds(AssetOutput &out)
{
    // MIDI note numbers: 60 is middle C.
    const HarpSound sounds[] = {
        {"harp1", 1.3, {{0.0, 72}, {0.09, 76}, {0.18, 79}, {0.27, 84}}},           // C major up
        {"harp2", 1.3, {{0.0, 74}, {0.09, 78}, {0.18, 81}, {0.27, 86}}},           // D major up
        {"harp3", 1.4, {{0.0, 67}, {0.07, 69}, {0.14, 72}, {0.21, 74}, {0.28, 76},
                        {0.35, 79}, {0.42, 81}}},                                  // glissando
        {"harp4", 1.3, {{0.0, 88}, {0.1, 84}, {0.2, 79}, {0.3, 76}}},              // falling
        {"harp5", 1.2, {{0.0, 65}, {0.03, 69}, {0.06, 72}, {0.09, 77}}},           // F strum
    };
    for (const HarpSound &sound : sounds) {
        std::vector<double> mix(std::size_t(sound.seconds * kRate), 0.0);
        for (const Pluck &pluck : sound.plucks)
            addPluck(mix, pluck);
        out.saveBytes(wavFile(mix), QStringLiteral("wav/%1.wav").arg(QLatin1String(sound.name)));
    }
}
