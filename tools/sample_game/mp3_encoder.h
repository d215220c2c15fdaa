// Sound as an MP3 file.
#pragma once

#include <QByteArray>
#include <QVector>

namespace sample {

// One channel at the given rate, constant bit rate, no tags: the same sound gives the same bytes.
// An encoder that can't be set up ends the program.
QByteArray mp3File(const QVector<qint16> &sound, int sampleRate);

} // namespace sample
