// What kind of sound a file holds, told by its bytes: the game's folder has files whose names end
// in ".mp3" whatever is in them.
#pragma once

#include <QString>

#include <optional>

enum class TuneKind
{
    Mp3,
    Ogg,
    Wave
};

// Rates of sound below this are damage: the sound library would work for minutes on filling up
// the steps between two samples.
constexpr quint32 lowestSampleRate = 1000; // a second

// Empty for a file that can't be read, and for one whose head has numbers that no sound has and
// that the sound library doesn't survive. Whatever is neither OGG nor WAV counts as MP3, which has
// no head.
std::optional<TuneKind> tuneKind(const QString &path);
