// Loads the input as the game's table file and asks for every value in it.
#include "fuzz/quiet_start.h"
#include "gamedata/runtime/dat_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

bool start()
{
    startQuietly();
    return true;
}

void askForAll(const TDatFile &table)
{
    size_t length = 0;
    for (int entry = 0; entry < table.entries.length; ++entry) {
        const TDatFileEntry &content = table.entries[entry];
        for (int index = -1; index <= content.strings.length; ++index)
            length += strlen(table.GetStrVal(entry, index, ""));
        for (int index = -1; index <= content.ints.length; ++index)
            length += size_t(table.GetIntVal(entry, index, 0) & 1);
    }
    static volatile size_t kept; // so that no look-up is left out
    kept = length;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool started = start();
    (void)started;
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(const_cast<uint8_t *>(data), unsigned(size));
    const std::unique_ptr<TDatFile> table(TDatFile::Create());
    table->Load(stream.get());
    askForAll(*table);
    return 0;
}
