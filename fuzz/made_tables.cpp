#include "fuzz/made_tables.h"

#include "gamedata/editor_data.h"
#include "tests/support/byte_writer.h"

#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr std::array<const char *, 16> textTables{
    "CRTRAITS.TXT", "artraits.txt", "HOTRAITS.TXT", "SSTRAITS.txt", "SPTRAITS.txt", "RESTYPES.txt",
    "PriSkill.txt", "JKTEXT.txt",   "PlColors.txt", "CmpMusic.txt", "CmpMovie.txt", "BldgNeut.TXT",
    "BldgSpec.txt", "Dwelling.txt", "CmpEditr.txt", "CmpEdCmd.txt"};
constexpr quint32 stringsOfEntry = 9;

} // namespace

MadeTables::MadeTables(std::vector<MadeEntry> entries)
    : m_entries(std::move(entries)), m_tableFile(TDatFile::Create())
{
    addEntries();
    addArchive();
}

MadeTables::~MadeTables()
{
    RADF = nullptr;
    EditorData::lod_archives.clear();
}

// With empty strings, from the bytes of a file: so the names are taken apart as they always are.
void MadeTables::addEntries()
{
    ByteWriter table;
    table.raw("RDAT").u32(1).u32(quint32(m_entries.size()));
    for (const MadeEntry &entry : m_entries) {
        table.text(entry.name).text({}).u32(stringsOfEntry);
        for (quint32 string = 0; string < stringsOfEntry; ++string)
            table.text({});
        table.u8(0).u32(0);
    }
    QByteArray bytes = table.bytes();
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(bytes.data(), unsigned(bytes.size()));
    m_tableFile->Load(stream.get());
    RADF = m_tableFile.get();
}

// Its entries begin where the file does.
void MadeTables::addArchive()
{
    LodArchive archive;
    archive.path = m_texts.path();
    for (const char *name : textTables) {
        LodFile file;
        std::strncpy(file.name, name, sizeof file.name - 1);
        archive.files.insert(QString::fromLatin1(name).toLower(), file);
    }
    EditorData::lod_archives = {archive};
}

void MadeTables::fill(const QByteArray &text)
{
    m_texts.set(text);
    for (LodFile &file : EditorData::lod_archives.front().files)
        file.size = text.size();
    const TString string(text.constData(), text.size());
    for (size_t entry = 0; entry < m_entries.size(); ++entry) {
        for (const int index : m_entries[entry].strings)
            m_tableFile->entries[int(entry)].strings[index] = string;
    }
}
