// The sample game's music: short pieces written for it as lines of notes, and their sound.
#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace sample {

constexpr int kSampleRate = 44100;

// How a line sounds: each voice has its own overtones and fades in its own way.
enum class Voice
{
    Harp,
    Flute,
    Strings,
    Bell,
    Bass,
    Drum
};

// Notes as "D5/2": name, octave and length in steps; "-" is a rest, "+" joins the notes of a
// chord, "b" and "#" behind the name change it by a semitone.
struct Line
{
    Voice voice;
    double loudness; // 1 is as loud as a line alone may be
    const char *notes;
};

struct Tune
{
    const char *name; // of a music track
    int stepMilliseconds;
    std::vector<Line> lines;
};

const std::vector<Tune> &tunes();

// One channel of 16 bits at kSampleRate, with a short tail of silence.
QVector<qint16> soundOf(const Tune &tune);

} // namespace sample
