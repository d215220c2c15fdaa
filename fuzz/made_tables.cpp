#include "fuzz/made_tables.h"

#include "fuzz/memory_file.h"
#include "gamedata/editor_data.h"
#include "tests/support/byte_writer.h"

#include <QFile>

#include <array>
#include <cstdlib>

namespace {

constexpr std::array<const char *, 16> textTables{
    "CRTRAITS.TXT", "artraits.txt", "HOTRAITS.TXT", "SSTRAITS.txt", "SPTRAITS.txt", "RESTYPES.txt",
    "PriSkill.txt", "JKTEXT.txt",   "PlColors.txt", "CmpMusic.txt", "CmpMovie.txt", "BldgNeut.TXT",
    "BldgSpec.txt", "Dwelling.txt", "CmpEditr.txt", "CmpEdCmd.txt"};
constexpr int headerSize = 92;
constexpr int entrySize = 32;
constexpr int stringsOfEntry = 9;

QByteArray archiveBytes(const QByteArray &text)
{
    ByteWriter archive;
    archive.raw(QByteArray("LOD\0", 4)).u32(200).u32(textTables.size()).zeros(80);
    const int offset = headerSize + entrySize * int(textTables.size());
    for (const char *name : textTables)
        archive.name16(name).u32(quint32(offset)).u32(quint32(text.size())).u32(0).u32(0);
    return archive.raw(text).bytes();
}

QByteArray tableFileBytes(const std::vector<const char *> &names, const QByteArray &text)
{
    ByteWriter table;
    table.raw("RDAT").u32(1).u32(quint32(names.size()));
    for (const char *name : names) {
        table.text(name).text({}).u32(stringsOfEntry);
        for (int i = 0; i < stringsOfEntry; ++i)
            table.text(text);
        table.u8(0).u32(0);
    }
    return table.bytes();
}

} // namespace

void makeTextTables(const QByteArray &text)
{
    static MemoryFile archiveFile;
    archiveFile.set(archiveBytes(text));
    QFile file(archiveFile.path());
    LodArchive archive;
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    archive.Read(file, archiveFile.path());
    EditorData::lod_archives = {archive};
}

MadeTableFile::MadeTableFile(const std::vector<const char *> &names, const QByteArray &text)
    : m_table(TDatFile::Create())
{
    QByteArray bytes = tableFileBytes(names, text);
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(bytes.data(), unsigned(bytes.size()));
    m_table->Load(stream.get());
    RADF = m_table.get();
}

MadeTableFile::~MadeTableFile()
{
    RADF = nullptr;
}
