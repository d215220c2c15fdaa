// Takes the input as the text of every entry of the table file that the campaign tables read:
// layouts of maps, lists of backgrounds, pictures, music and videos.
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "gamedata/editor_data.h"
#include "gamedata/runtime/dat_file.h"
#include "tests/support/byte_writer.h"

#include <QFile>
#include <QTextCodec>

#include <array>
#include <memory>

namespace {

constexpr std::array<const char *, 5> entryNames{"campmap3", "cmpbackground", "cmpmoviepic",
                                                 "music", "video1"};
constexpr std::array<const char *, 4> textTables{"CmpEditr.txt", "CmpEdCmd.txt", "CmpMovie.txt",
                                                 "CmpMusic.txt"};
constexpr int textsOfEntry = 9;

// An archive with the text tables, each of three lines.
QByteArray archiveBytes()
{
    const QByteArray lines("First\r\nSecond\r\nThird\r\n");
    constexpr int headerSize = 92;
    constexpr int entrySize = 32;
    ByteWriter archive;
    archive.raw(QByteArray("LOD\0", 4)).u32(200).u32(textTables.size()).zeros(80);
    const int offset = headerSize + entrySize * int(textTables.size());
    for (const char *name : textTables)
        archive.name16(name).u32(quint32(offset)).u32(quint32(lines.size())).u32(0).u32(0);
    archive.raw(lines);
    return archive.bytes();
}

void loadTextTables()
{
    static MemoryFile archiveFile;
    const QByteArray bytes = archiveBytes();
    archiveFile.set(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    QFile file(archiveFile.path());
    LodArchive archive;
    if (!file.open(QIODevice::ReadOnly))
        abort();
    archive.Read(file, archiveFile.path());
    EditorData::lod_archives = {archive};
}

QByteArray tableFileBytes(const QByteArray &text)
{
    ByteWriter table;
    table.raw("RDAT").u32(1).u32(entryNames.size());
    for (const char *name : entryNames) {
        table.text(name).text({}).u32(textsOfEntry);
        for (int i = 0; i < textsOfEntry; ++i)
            table.text(text);
        table.u8(0).u32(0);
    }
    return table.bytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(loadTextTables);
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    QByteArray bytes = tableFileBytes(text);
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(bytes.data(), unsigned(bytes.size()));
    const std::unique_ptr<TDatFile> table(TDatFile::Create());
    table->Load(stream.get());
    RADF = table.get();
    EditorData::campaignInfo.clear();
    EditorData::backgrounds.clear();
    EditorData::initCampaignInfo(QTextCodec::codecForName("Windows-1251"));
    RADF = nullptr;
    return 0;
}
