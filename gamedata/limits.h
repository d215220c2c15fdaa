// How much the program takes from a file before it stops believing it. Well-formed files stay far
// below every one of these; files made to hurt end here.
#pragma once

#include <QtGlobal>

namespace limits {

// Deflate can't shrink more than this; a stated unpacked size beyond it is damage.
constexpr qint64 deflateRatio = 1032;

// Scenarios of a campaign without a map.
constexpr quint32 scenarios = 30000;

// Inflated bytes of a campaign's first member that are passed through in search of its end.
// 30,000 scenarios with their bit arrays and texts take 137 MB.
constexpr qint64 campaignHeaderBytes = qint64(160) * 1024 * 1024;

// What a campaign's header and records may take of that apart from prerequisites: texts, mostly.
// For 30,000 scenarios that is 800 bytes each.
constexpr qint64 campaignTextBytes = qint64(24) * 1024 * 1024;

// What a bonus takes in memory, which is far more than in the file; counted as text.
constexpr qint64 bonusBytes = 96;

// A file of a campaign's texts: all of them in an encoding of twice the length, and the lines
// around them.
constexpr qint64 textFileBytes = qint64(64) * 1024 * 1024;

// Entries of a translators' file: seven texts of each scenario, and some that are gone since.
constexpr qint64 translationUnits = 250000;

// Of the same: columns of a row, levels of elements, attributes of an element.
constexpr int csvColumns = 1000;
constexpr int xliffLevels = 64;
constexpr int xliffAttributes = 200;

// Bits of an array that are made even where the file ends before them.
constexpr quint32 bitsWithoutData = 65536;

// A map file, packed as it is.
constexpr qint64 mapBytes = qint64(256) * 1024 * 1024;

// All maps of a campaign together, packed as they are. A thousand of the largest maps take that.
constexpr qint64 campaignMapBytes = qint64(1024) * 1024 * 1024;

// Inflated bytes of a map that are looked at; a header is some kilobytes long.
constexpr qint64 mapHeaderBytes = qint64(4) * 1024 * 1024;

// All the headers of a campaign's maps together may take mapHeaderBytes, and this many times
// their packed bytes. A header is much shorter than the body behind it, even packed.
constexpr qint64 mapHeaderRatio = 8;

// Inflated bytes of maps' bodies that are looked at when a campaign is searched for damage: of one
// map, and of all.
constexpr qint64 checkedMapBytes = qint64(256) * 1024 * 1024;
constexpr qint64 checkedCampaignBytes = qint64(1024) * 1024 * 1024;

// One unpacked entry of an archive. The largest pictures are a few megabytes.
constexpr qint64 archiveEntryBytes = qint64(64) * 1024 * 1024;

// What is read of a text table of the archives: split into its lines, a text takes many times its
// own size in memory.
constexpr qint64 textTableBytes = qint64(4) * 1024 * 1024;

// The settings file and the table file.
constexpr qint64 settingsBytes = qint64(4) * 1024 * 1024;
constexpr qint64 tableFileBytes = qint64(64) * 1024 * 1024;

// Chunks of a tune's file that are passed through in search of its format.
constexpr int tuneChunks = 1000;

// The number after a name in the table file that can be a key of a table: creatures, artifacts...
constexpr int tableId = 65535;

// Width and height of a picture.
constexpr quint32 pictureSide = 16384;

} // namespace limits
