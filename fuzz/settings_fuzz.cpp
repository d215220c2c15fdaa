// Reads the input as the settings file, changes an item and writes the tree out.
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/game_dir.h"
#include "gamedata/ini_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

// A game's folder with the settings file, whose contents stand in memory.
class SettingsFile
{
public:
    SettingsFile()
    {
        if (!QFile::link(memory.path(), m_folder.filePath(QStringLiteral("Ravn_settings.ini"))))
            abort();
        setGameRoot(m_folder.path());
    }

    // Writes the settings to another file, which they are of from then on.
    void writeBeside(_Ini_ &settings) const
    {
        settings.fileName = m_folder.filePath(QStringLiteral("written.ini")).toStdWString();
        settings.Write();
    }

    MemoryFile memory;

private:
    const QTemporaryDir m_folder{QStringLiteral("/dev/shm/cmped-fuzz-XXXXXX")}; // a disk is slow
};

// To write a file safely takes ten times as long as all else, so only some inputs do.
constexpr size_t writtenSizes = 32;

void askForAll(const _Ini_ &settings)
{
    for (const auto &section : settings.sections) {
        for (const auto &item : section->items) {
            const _IniSection_ *first = settings.GetSection(section->key);
            if (!first || !first->GetItem(item->GetKey()))
                abort();
            item->IntVal();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    static SettingsFile input;
    input.memory.set(data, size);
    const std::unique_ptr<_Ini_> settings(loadRavnIni());
    askForAll(*settings);
    settings->GetIntVal("Global Settings", "Language", -1);
    settings->SetStringVal("Campaign Editor", "Path", "/tmp");
    if (settings->GetStringVal("Campaign Editor", "Path", "") != std::string("/tmp"))
        abort();
    // What was written reads as the same tree, and so is written the same again.
    const std::string text = settings->CreateStr();
    if (size % writtenSizes == 0)
        input.writeBeside(*settings);
    else
        input.memory.set(reinterpret_cast<const uint8_t *>(text.data()), text.size());
    settings->Read();
    if (settings->CreateStr() != text)
        abort();
    return 0;
}
