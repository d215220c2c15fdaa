// Loads the input as the game's table file and asks for every value in it.
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/runtime/dat_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

// No text is longer than what the table holds of it, none lacks its end.
void askForAll(const TDatFile &table)
{
    for (int entry = 0; entry < table.entries.length; ++entry) {
        const TDatFileEntry &content = table.entries[entry];
        for (int index = 0; index < content.strings.length; ++index) {
            const char *text = table.GetStrVal(entry, index, nullptr);
            if (!text || strlen(text) > size_t(content.strings[index].length))
                abort();
        }
        for (int index = 0; index < content.ints.length; ++index) {
            if (table.GetIntVal(entry, index, 0) != content.ints[index])
                abort();
        }
        if (table.GetStrVal(entry, content.strings.length, nullptr) ||
            table.GetIntVal(entry, content.ints.length, 7) != 7)
            abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(const_cast<uint8_t *>(data), unsigned(size));
    const std::unique_ptr<TDatFile> table(TDatFile::Create());
    table->Load(stream.get());
    askForAll(*table);
    return 0;
}
