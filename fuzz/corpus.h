// The seed files of the fuzz targets, by target.
#pragma once

#include <QByteArray>

#include <vector>

namespace corpus {

struct File
{
    const char *name;
    QByteArray bytes;
};

QByteArray gzip(const QByteArray &bytes); // as campaigns and maps are packed
// The same of these bytes and so many zeros behind them, which need no memory here.
QByteArray gzipWithZeros(const QByteArray &bytes, qint64 zeros);
QByteArray zlibStream(const QByteArray &bytes); // as files in archives are packed

std::vector<File> archives();
std::vector<File> campaigns();
std::vector<File> layouts();
std::vector<File> maps();
std::vector<File> pictures();
std::vector<File> settings();
std::vector<File> tableFiles();

// The header of a map in a version's layout, with a hero in every list it has.
QByteArray mapHeader(quint32 version, quint32 subVersion = 0);

} // namespace corpus
