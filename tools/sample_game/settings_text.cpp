#include "tools/sample_game/settings_text.h"

#include <utility>
#include <vector>

namespace sample {

namespace {

using Item = std::pair<const char *, const char *>;

struct Section
{
    const char *name;
    std::vector<Item> items;
};

} // namespace

QByteArray settingsFile()
{
    const std::vector<Section> sections = {
        {"Global Settings", {{"Language", "0"}, {"Ravn.dat Text Encoding", ""}}},
        {"Video", {{"Width", "800"}, {"Height", "600"}, {"Full Screen", "0"}}},
        {"Sound", {{"Music Volume", "60"}, {"Effects Volume", "75"}}},
        {"Game", {{"Autosave", "1"}, {"Hero Speed", "3"}, {"Last Map", "Lantern Landing.e3m"}}},
        {"Campaign Editor", {{"Path", ""}}},
    };
    QByteArray text;
    for (const Section &section : sections) {
        text += '[' + QByteArray(section.name) + "]\r\n\r\n";
        for (const auto &[key, value] : section.items)
            text += QByteArray(key) + '=' + value + "\r\n";
        text += "\r\n\r\n";
    }
    return text;
}

} // namespace sample
