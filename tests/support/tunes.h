// Tunes made for tests: of a WAV each sample that is heard tells where in which tune it stands.
#pragma once

#include <QByteArray>

namespace tunes {

constexpr int sampleRate = 44100;

// What a WAV says of its sound, and how much sound there is.
struct Wave
{
    int frames = 0;
    int mark = 0; // the value of every sample on the right; those on the left count from 1
    unsigned channels = 2;
    quint32 rate = sampleRate;
};
QByteArray wave(const Wave &wave);

// A tone of one channel, `milliseconds` long.
QByteArray ogg(int milliseconds, double hertz);

} // namespace tunes
