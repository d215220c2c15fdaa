#include "launcher/launcher_options.h"

#include <string_view>

namespace {

constexpr std::string_view encodingOption = "--encoding";
constexpr std::string_view encodingPrefix = "--encoding=";

void setEncoding(LauncherOptions &options, std::string_view name)
{
    options.encoding = name;
    if (name.empty())
        options.error = "--encoding needs the name of an encoding";
}

// Takes the argument at `i`, and the next one if it is its value; false if it is the editor's.
bool takeOption(LauncherOptions &options, int &i, int argc, char **argv)
{
    const std::string_view argument = argv[i];
    if (argument == "--help")
        options.help = true;
    else if (argument == "--version")
        options.version = true;
    else if (argument == encodingOption)
        setEncoding(options, i + 1 < argc ? argv[++i] : "");
    else if (argument.substr(0, encodingPrefix.size()) == encodingPrefix)
        setEncoding(options, argument.substr(encodingPrefix.size()));
    else
        return false;
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
