// A resource archive with many entries of real pictures.
#pragma once

#include <QString>

// Writes an archive of so many entries and, together, about so many bytes. Half of them are
// pictures, half are of a kind that the editor passes over; of either, half are packed. Sixteen
// different pictures are repeated. Answers false if it can't be written.
bool writeArchiveOfMany(const QString &path, int entries, qint64 bytes);
