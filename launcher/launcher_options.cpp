#include "launcher/launcher_options.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// An option with a value, which stands behind "=" or is the next argument.
struct ValueOption
{
    std::string_view name;
    std::string LauncherOptions::*value;
    const char *error; // if there is no value
};

constexpr std::array<ValueOption, 2> valueOptions{{
    {"--game", &LauncherOptions::game, "--game needs the name of a folder"},
    {"--encoding", &LauncherOptions::encoding, "--encoding needs the name of an encoding"},
}};

// Whether the argument at `i` is this option; `i` goes on to its value if that is the next one.
bool takeValue(const ValueOption &option, LauncherOptions &options, int &i, int argc, char **argv)
{
    const std::string_view argument = argv[i];
    std::string_view value;
    if (argument == option.name) {
        if (i + 1 < argc)
            value = argv[++i];
    } else if (argument.substr(0, option.name.size() + 1) == std::string(option.name) + '=') {
        value = argument.substr(option.name.size() + 1);
    } else {
        return false;
    }
    options.*option.value = value;
    if (value.empty())
        options.error = option.error;
    return true;
}

// Takes the argument at `i`, and the next one if it is its value; false if it is the editor's.
bool takeOption(LauncherOptions &options, int &i, int argc, char **argv)
{
    const std::string_view argument = argv[i];
    if (argument == "--help")
        options.help = true;
    else if (argument == "--version")
        options.version = true;
    else
        return std::any_of(valueOptions.begin(), valueOptions.end(), [&](const auto &option) {
            return takeValue(option, options, i, argc, argv);
        });
    return true;
}

} // namespace

LauncherOptions readLauncherOptions(int argc, char **argv)
{
    LauncherOptions options;
    bool own = true; // "--" has not come yet
    for (int i = 0; i < argc; ++i) {
        if (i > 0 && own && std::string_view(argv[i]) == "--") {
            own = false;
            continue;
        }
        if (i == 0 || !own || !takeOption(options, i, argc, argv))
            options.editorArguments.push_back(argv[i]);
    }
    return options;
}
