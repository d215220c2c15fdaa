// The program that users start. It settles in which encoding texts and file names stand, which
// the editor's library takes as given, and hands it the rest of the command line.
#include "gamedata/locale_codec.h"
#include "launcher/launcher_options.h"

#include <QString>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

extern "C" int run(int argc, char **argv);

namespace fs = std::filesystem;

namespace {

constexpr const char *helpText =
    "Usage: cmped [OPTION]... [CAMPAIGN]\n"
    "Edits the campaigns of the game in whose folder it stands.\n"
    "\n"
    "  CAMPAIGN         a campaign file (.e3c) to open\n"
    "  --encoding NAME  the encoding of texts in campaigns and maps, such as\n"
    "                   windows-1251; by default that of the system's locale\n"
    "  --help           show this text and end\n"
    "  --version        show the version and end\n"
    "\n"
    "The environment variable CMPED_GAME_DIR names another game folder.\n";

// The editor remembers files by their path, so a name that only means something in this folder is
// made one that does everywhere. What names no file here is left alone: it may be an option.
std::string withWholePath(const char *argument)
{
    std::error_code unknown;
    if (argument[0] == '-' || !fs::exists(argument, unknown))
        return argument;
    const fs::path whole = fs::absolute(argument, unknown);
    if (unknown)
        return argument;
    // Without its dots it is nicer to read, but behind a link ".." leads to another file.
    const fs::path plain = whole.lexically_normal();
    return (fs::equivalent(plain, whole, unknown) ? plain : whole).string();
}

int fail(const std::string &message)
{
    std::fprintf(stderr, "cmped: %s\n", message.c_str());
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    LauncherOptions options = readLauncherOptions(argc, argv);
    if (!options.error.empty())
        return fail(options.error);
    if (options.help) {
        std::fputs(helpText, stdout);
        return 0;
    }
    if (options.version) {
        std::puts("cmped " CMPED_VERSION);
        return 0;
    }
    if (!setLocaleCodec(QString::fromLatin1(options.encoding.c_str())))
        return fail("unknown encoding '" + options.encoding + "'");
    std::vector<std::string> arguments{options.editorArguments.front()};
    for (size_t i = 1; i < options.editorArguments.size(); ++i)
        arguments.push_back(withWholePath(options.editorArguments[i]));
    std::vector<char *> list;
    list.reserve(arguments.size() + 1);
    for (std::string &argument : arguments)
        list.push_back(argument.data());
    list.push_back(nullptr); // as main's own list ends
    return run(int(arguments.size()), list.data());
}
