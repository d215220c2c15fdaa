// Reads the input as the settings file, changes an item and writes the tree out.
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "gamedata/ini_file.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    static MemoryFile input;
    input.set(data, size);
    _Ini_ settings(input.path().toStdWString());
    settings.Read();
    settings.GetIntVal("Global Settings", "Language", -1);
    settings.SetStringVal("Campaign Editor", "Path", "/tmp");
    if (settings.GetStringVal("Campaign Editor", "Path", "") != std::string("/tmp"))
        abort();
    // What was written reads as the same tree, and so is written the same again.
    const std::string text = settings.CreateStr();
    input.set(reinterpret_cast<const uint8_t *>(text.data()), text.size());
    settings.Read();
    if (settings.CreateStr() != text)
        abort();
    return 0;
}
