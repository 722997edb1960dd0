#pragma once
// The audio side of Sound, in a module of its own (src/sound) that the
// program loads the first time a sound is to be heard: Qt Multimedia and the
// audio libraries it brings are not loaded at all by a run that stays silent,
// and a run that plays starts no later for them.
#include <QString>
#include <QtPlugin>

class SoundOutput {
public:
    virtual ~SoundOutput() = default;

    // Whether the system has an audio output to play through.
    virtual bool hasOutput() = 0;
    // Prepares the file (a RIFF WAVE file on disk) once, without playing it;
    // false when it cannot be played (no output, missing, not a WAV file).
    virtual bool load(const QString& file) = 0;
    // Plays the file, loading it first if need be; returns at once.
    virtual void play(const QString& file) = 0;
    // Whether the file has been loaded, and whether it is playing now.
    virtual bool isLoaded(const QString& file) const = 0;
    virtual bool isPlaying(const QString& file) const = 0;
};

#define PARTITUDE_SOUND_OUTPUT_IID "org.partitude.Partitude.SoundOutput/1.0"
Q_DECLARE_INTERFACE(SoundOutput, PARTITUDE_SOUND_OUTPUT_IID)
