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

std::vector<File> archives();
std::vector<File> campaigns();
std::vector<File> campaignsToShow();
std::vector<File> layouts();
std::vector<File> maps();
std::vector<File> optionLists();
std::vector<File> pictures();
std::vector<File> scenarioRecords();
std::vector<File> settings();
std::vector<File> stringLists();
std::vector<File> tableFiles();
std::vector<File> textImports();
std::vector<File> textTables();
std::vector<File> translations();

struct Target
{
    const char *name; // of its folder under corpus/
    std::vector<File> seeds;
};

// All of them.
std::vector<Target> targets();

// The header of a map in a version's layout, with a hero in every list it has.
QByteArray mapHeader(quint32 version, quint32 subVersion = 0);

} // namespace corpus
