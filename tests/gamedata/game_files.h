// Game data put together by hand for the tests of the tables: archives, the table file, and a
// game's folder around them.
#pragma once

#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/runtime/dat_file.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTextCodec>

#include <utility>
#include <vector>

namespace game_files {

enum Storage
{
    Raw,
    Packed
};

struct ArchiveEntry
{
    QByteArray name;
    QByteArray data;
    Storage storage = Raw;
};

inline QByteArray packed(const QByteArray &data)
{
    return packing::zlibStream(data);
}

// One index entry.
inline QByteArray indexEntry(const QByteArray &name, quint32 offset, qint32 size,
                             qint32 compressedSize, quint32 type = 7)
{
    return ByteWriter().name16(name).u32(offset).i32(size).u32(type).i32(compressedSize).bytes();
}

inline QByteArray archiveHeader(qint32 fileCount)
{
    return ByteWriter()
        .raw(QByteArray("LOD\0", 4))
        .u32(200)
        .i32(fileCount)
        .raw(QByteArray(80, 'r'))
        .bytes();
}

// The bytes of an archive with these files, in this order.
inline QByteArray archive(const std::vector<ArchiveEntry> &entries)
{
    QByteArray index;
    QByteArray bodies;
    const int bodyStart = 92 + 32 * int(entries.size());
    for (const ArchiveEntry &entry : entries) {
        const QByteArray body = entry.storage == Packed ? packed(entry.data) : entry.data;
        index += indexEntry(entry.name, quint32(bodyStart + bodies.size()), entry.data.size(),
                            entry.storage == Packed ? body.size() : 0);
        bodies += body;
    }
    return archiveHeader(int(entries.size())) + index + bodies;
}

// One entry of the table file: a name with its number, and strings by their index.
struct TableEntry
{
    QByteArray name;
    QMap<int, QByteArray> strings;
};

inline QByteArray tableFile(const std::vector<TableEntry> &entries)
{
    ByteWriter writer;
    writer.raw("RDAT").u32(1).i32(int(entries.size()));
    for (const TableEntry &entry : entries) {
        const int count = entry.strings.isEmpty() ? 0 : entry.strings.lastKey() + 1;
        writer.text(entry.name).text("").i32(count);
        for (int i = 0; i < count; ++i)
            writer.text(entry.strings.value(i));
        writer.u8(0).i32(0);
    }
    return writer.bytes();
}

// Makes these entries the game's table file.
inline void useTable(const std::vector<TableEntry> &entries)
{
    QByteArray bytes = tableFile(entries);
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(bytes.data(), unsigned(bytes.size()));
    delete std::exchange(RADF, TDatFile::Create());
    RADF->Load(stream.get());
}

inline void forgetTables()
{
    delete std::exchange(RADF, nullptr);
    EditorData::info = {};
    EditorData::nArtifacts = EditorData::nCreatures = 0;
    for (auto *table : {&EditorData::artifacts, &EditorData::creatures, &EditorData::heroes,
                        &EditorData::secondarySkills, &EditorData::primarySkills,
                        &EditorData::skillLevels, &EditorData::spells, &EditorData::resources,
                        &EditorData::jktext, &EditorData::backgrounds, &EditorData::movieImages,
                        &EditorData::musicNames, &EditorData::videoNames})
        table->clear();
    EditorData::creature_ordering.clear();
    EditorData::lod_archives.clear();
    EditorData::campaignInfo.clear();
    EditorData::colors.clear();
    EditorData::editorText.clear();
    EditorData::editorCmdText.clear();
    EditorData::buildings.clear();
}

// Lines joined as the game joins them, the last one ended as well.
inline QByteArray lines(const QList<QByteArray> &list)
{
    return list.isEmpty() ? QByteArray() : list.join("\r\n") + "\r\n";
}

// A row of `columns` columns whose first one is this name.
inline QByteArray row(const QByteArray &name, int columns)
{
    return name + QByteArray(columns - 1, '\t');
}

// The rows name0, name1 ... without their line ends.
inline QList<QByteArray> numbered(const QByteArray &name, int count, int columns = 1)
{
    QList<QByteArray> list;
    for (int i = 0; i < count; ++i)
        list.append(row(name + QByteArray::number(i), columns));
    return list;
}

// Every text table that a start needs, each just long enough to be one.
inline QMap<QByteArray, QByteArray> smallTexts()
{
    QMap<QByteArray, QByteArray> texts;
    for (const char *name : {"CRTRAITS.TXT", "artraits.txt", "CmpMusic.txt", "CmpMovie.txt",
                             "CmpEditr.txt", "CmpEdCmd.txt", "HOTRAITS.TXT", "RESTYPES.txt",
                             "PlColors.txt", "PriSkill.txt", "JKTEXT.txt", "BldgNeut.TXT",
                             "BldgSpec.txt", "Dwelling.txt", "SSTRAITS.txt", "SPTRAITS.txt"})
        texts[name] = "one line\r\n";
    return texts;
}

inline QByteArray archiveOf(const QMap<QByteArray, QByteArray> &texts)
{
    std::vector<ArchiveEntry> entries;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        entries.push_back({text.key(), text.value(), entries.size() % 2 ? Packed : Raw});
    return archive(entries);
}

inline QTextCodec *codec()
{
    return QTextCodec::codecForName("Windows-1252");
}

// A game's folder that is the game's root as long as it lives. All tables are empty before and
// after it.
class GameFolder
{
public:
    GameFolder()
    {
        forgetTables();
        QDir(m_folder.path()).mkdir(QStringLiteral("Data"));
        setGameRoot(m_folder.path());
    }
    ~GameFolder()
    {
        setGameRoot(QString());
        forgetTables();
    }
    GameFolder(const GameFolder &) = delete;
    GameFolder &operator=(const GameFolder &) = delete;

    QString dataPath(const QString &name) const
    {
        return m_folder.path() + QStringLiteral("/Data/") + name;
    }

    bool write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(dataPath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    // Writes these texts into one archive and reads everything, as a start does.
    void open(const QMap<QByteArray, QByteArray> &texts) const
    {
        write(QStringLiteral("E3bitmap.lod"), archiveOf(texts));
        EditorData::OpenLods(0, codec());
    }

    // Makes these texts available without reading any table.
    void provide(const QMap<QByteArray, QByteArray> &texts) const
    {
        const QString name = QStringLiteral("E3bitmap.lod");
        write(name, archiveOf(texts));
        QFile file(dataPath(name));
        LodArchive archive;
        if (file.open(QIODevice::ReadOnly))
            archive.Read(file, dataPath(name));
        EditorData::lod_archives = {archive};
    }

private:
    QTemporaryDir m_folder;
};

} // namespace game_files
