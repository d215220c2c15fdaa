// From the notes of a tune to its samples.
#include "tools/sample_game/tunes.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace sample {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTailSeconds = 1.2;
constexpr double kFullScale = 26000;
constexpr size_t kOvertones = 6;

struct Timbre
{
    std::array<double, kOvertones> overtones; // loudness of the first, second... partial
    double stretch;                           // how far the partials are from whole multiples
    double attackSeconds;
    double fadeSeconds; // time in which a struck note falls to a third; 0: held
    double releaseSeconds;
};

Timbre timbreOf(Voice voice)
{
    switch (voice) {
    case Voice::Harp:
        return {{1.0, 0.45, 0.30, 0.15, 0.08, 0.04}, 0, 0.004, 0.55, 0.25};
    case Voice::Flute:
        return {{1.0, 0.18, 0.10, 0.03, 0, 0}, 0, 0.05, 0, 0.10};
    case Voice::Strings:
        return {{1.0, 0.50, 0.33, 0.25, 0.15, 0.10}, 0, 0.14, 0, 0.22};
    case Voice::Bell:
        return {{1.0, 0.35, 0.40, 0.15, 0.12, 0.05}, 0.004, 0.002, 0.80, 0.60};
    case Voice::Bass:
        return {{1.0, 0.30, 0.12, 0.05, 0, 0}, 0, 0.01, 0.70, 0.08};
    case Voice::Drum:
        break;
    }
    return {{1.0, 0.20, 0, 0, 0, 0}, 0, 0.001, 0.07, 0.05};
}

// Hertz of a note such as "F#5"; 0 for a rest.
double frequencyOf(const QString &note)
{
    constexpr int kSemitones[] = {9, 11, 0, 2, 4, 5, 7}; // from A to G, counted from C
    if (note.startsWith(QLatin1Char('-')))
        return 0;
    int semitone = kSemitones[note.at(0).unicode() - 'A'];
    semitone += note.contains(QLatin1Char('#')) ? 1 : 0;
    semitone -= note.contains(QLatin1Char('b')) ? 1 : 0;
    const int octave = note.at(note.size() - 1).digitValue();
    return 440.0 * std::pow(2.0, (semitone - 9 + 12 * (octave - 4)) / 12.0);
}

double envelope(const Timbre &timbre, double time, double length)
{
    double level = std::min(1.0, time / timbre.attackSeconds);
    if (timbre.fadeSeconds > 0)
        level *= std::exp(-time / timbre.fadeSeconds);
    if (time > length)
        level *= std::max(0.0, 1.0 - (time - length) / timbre.releaseSeconds);
    return level;
}

// Adds one note to the mix, which is long enough for its release.
void addNote(std::vector<double> &mix, const Line &line, double hertz, double start, double length)
{
    const Timbre timbre = timbreOf(line.voice);
    const size_t first = size_t(start * kSampleRate);
    const size_t count = size_t((length + timbre.releaseSeconds) * kSampleRate);
    const size_t last = std::min(mix.size(), first + count);
    std::array<double, kOvertones> loudness = {};
    std::array<double, kOvertones> step = {};
    for (size_t partial = 0; partial < kOvertones; ++partial) {
        const double order = double(partial);
        const double multiple = (order + 1) * (1 + timbre.stretch * order * order);
        step[partial] = 2 * kPi * hertz * multiple / kSampleRate;
        // Partials that the rate can't carry would come back as false tones.
        loudness[partial] = step[partial] < kPi ? line.loudness * timbre.overtones[partial] : 0;
    }
    for (size_t i = first; i < last; ++i) {
        const double age = double(i - first);
        double value = 0;
        for (size_t partial = 0; partial < kOvertones; ++partial) {
            if (loudness[partial] > 0)
                value += loudness[partial] * std::sin(step[partial] * age);
        }
        mix[i] += value * envelope(timbre, age / kSampleRate, length);
    }
}

QStringList itemsOf(const Line &line)
{
    return QString::fromLatin1(line.notes).split(QLatin1Char(' '));
}

// Steps of a whole line.
int stepsOf(const Line &line)
{
    int steps = 0;
    const QStringList items = itemsOf(line);
    for (const QString &item : items)
        steps += item.section(QLatin1Char('/'), 1).toInt();
    return steps;
}

void addLine(std::vector<double> &mix, const Line &line, double secondsPerStep)
{
    int step = 0;
    const QStringList items = itemsOf(line);
    for (const QString &item : items) {
        const int steps = item.section(QLatin1Char('/'), 1).toInt();
        const QStringList chord = item.section(QLatin1Char('/'), 0, 0).split(QLatin1Char('+'));
        for (const QString &note : chord) {
            const double hertz = frequencyOf(note);
            if (hertz > 0)
                addNote(mix, line, hertz, step * secondsPerStep, steps * secondsPerStep * 0.95);
        }
        step += steps;
    }
}

} // namespace

QVector<qint16> soundOf(const Tune &tune)
{
    const double secondsPerStep = tune.stepMilliseconds / 1000.0;
    int steps = 0;
    for (const Line &line : tune.lines)
        steps = std::max(steps, stepsOf(line));
    std::vector<double> mix(size_t((steps * secondsPerStep + kTailSeconds) * kSampleRate), 0.0);
    for (const Line &line : tune.lines)
        addLine(mix, line, secondsPerStep);
    double peak = 1e-9;
    for (const double value : mix)
        peak = std::max(peak, std::abs(value));
    QVector<qint16> sound(int(mix.size()), 0);
    for (int i = 0; i < sound.size(); ++i)
        sound[i] = qint16(std::lround(mix[size_t(i)] / peak * kFullScale));
    return sound;
}

} // namespace sample
