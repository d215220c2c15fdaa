// The text tables of the sample game, as they stand in its archives: lines ended by CR LF, columns
// by tabs, in the game's encoding. Each has the head and tail lines that its reader leaves out.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace sample {

struct NamedFile
{
    QByteArray name;
    QByteArray content;
};

QVector<NamedFile> traitTexts();    // creatures, artifacts, heroes, skills, spells, resources
QVector<NamedFile> buildingTexts(); // neutral and special buildings, dwellings
QVector<NamedFile> editorTexts();   // what the editor shows: texts, hints, movies, music, colours

// Earlier wordings of some tables, for archives of lower precedence: complete, so that a reader
// that took them would start, but with names that nobody should see.
QVector<NamedFile> outdatedTexts();

// Names of the music tracks 0 to 48 and 49 to 52, each the name of a file in MP3 without suffix,
// though only a few are there.
QStringList musicNames();
QStringList addedMusicNames();

// Names of the movies: those of the text table, and those of the table file, where an empty name
// keeps its number free.
QStringList movieNames();
QStringList addedMovieNames();

// Rows of a table, each ended by CR LF, in the game's encoding.
QByteArray textTable(const QStringList &rows);

} // namespace sample
