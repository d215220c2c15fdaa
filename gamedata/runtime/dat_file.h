// The table file of the game, ravn.dat: one flat list of entries that add to the text tables of
// the archives.
//
// A damaged file gives the entries that are there: a text or list ends where the data ends,
// numbers behind the end are zero. A file of another kind gives an empty table.
#pragma once

#include "gamedata/runtime/t_array.h"
#include "gamedata/runtime/t_stream.h"
#include "gamedata/runtime/t_string.h"

#include <climits>

struct TDatFileEntry
{
    TString name; // with its number, like "monst150"
    TString text; // stored in the file and used by nobody
    TArray<TString> strings;
    TArray<int> ints;
    unsigned char hasStream = 0;
    TStreamPtr<TMemoryStream> stream; // null if the entry has none or an empty one

    // Both come from `name`: what stands before the digits at its end, and their number. The
    // number is -1 without digits and where it is out of the range of int.
    TString baseName;
    int id = -1;
};

class TDatFile
{
public:
    TArray<TDatFileEntry> entries; // in the order of the file

    // An empty table, owned by the caller (delete).
    static TDatFile *Create();

    // Replaces the table by the stream's contents, of which `limit` bytes are looked at.
    void Load(TStream *stream, int limit = INT_MAX);

    // A value of an entry, or the default if the entry has fewer values. An entry outside the
    // table is taken as the nearest one; an empty table answers the default.
    int GetIntVal(int entry, int index, int defaultValue) const;
    // Answers the entry's own buffer.
    const char *GetStrVal(int entry, int index, const char *defaultValue) const;
};

// Reads a 32-bit length and that many bytes. A length of 0 or less gives an empty string; one
// that the stream can't hold is cut to what is left.
void ReadLS(TStream *stream, TString &target);

// The game's table; null until it is loaded.
extern TDatFile *RADF;
