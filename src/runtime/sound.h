#pragma once
// Short sounds, named by asset paths as the screens name them
// ("wav\harp3.wav"), found in the same assets folder as the pictures. Each
// file is loaded once and kept, by the sound module (soundoutput.h) that the
// first sound loads; playing never waits for the sound. Sound is a pleasure, never a reason to stop: with no audio
// output, a missing file or a file that does not load, the program carries on
// in silence.
#include <QString>
#include <QStringList>

#include <functional>

namespace Sound {

// Starts the sound and returns at once.
void play(const QString& assetPath);

// Loads the files now, so that their first play starts without delay
// (unless muted, a player stands in, or there is no audio output).
void preload(const QStringList& assetPaths);

// Whether an asset's sound has been loaded (it has not while never asked
// for, with no audio output, a missing file or not a WAV file), and whether
// it is playing now.
bool isLoaded(const QString& assetPath);
bool isPlaying(const QString& assetPath);

// The sound module's file, loading it now if it is not yet; empty when it
// cannot be loaded.
QString moduleFile();

// Whether the system has an audio output to play through.
bool hasOutput();

// Everything play() is asked for goes to the player instead of the audio
// output (a test records it); an empty player brings the audio output back.
using Player = std::function<void(const QString& assetPath)>;
void setPlayer(Player player);

// Muted, play() does nothing at all, whatever the player.
void setMuted(bool muted);
bool muted();

} // namespace Sound
