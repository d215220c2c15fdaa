// Game data put together by hand for the tests of the tables, and a game's folder around it.
#pragma once

#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/runtime/dat_file.h"
#include "tests/support/game_bytes.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTextCodec>

#include <utility>
#include <vector>

namespace game_files {

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
