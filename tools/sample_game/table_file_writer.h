// Writes the table file (ravn.dat) in memory.
//
//   "RDAT", version, count of entries; then for each entry, numbers of 32 bits:
//   name, text                 each a length and that many bytes
//   strings                    a count, then each as above
//   blob flag                  one byte; if it isn't 0: the blob's size and its bytes
//   integers                   a count, then the numbers
//
// Texts are given as they read and stored in the encoding of the game's own files.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace sample {

struct TableEntry
{
    QByteArray name; // kind and number in one, such as "hero160"
    QStringList strings;
    std::vector<qint32> ints = {};
    QByteArray blob = {};
    QString text = {};
    bool emptyBlob = false; // the flag of a blob, with a size of 0
};

QByteArray tableFile(const std::vector<TableEntry> &entries);

// A list of strings with the given one at its place and the filler before it.
QStringList stringsWith(int place, const QString &value, const QString &filler = QString());

} // namespace sample
