// The program that users start. It settles in which encoding texts and file names stand and where
// the game is, which the editor's library takes as given, and hands it the rest of the command
// line.
#include "gamedata/locale_codec.h"
#include "launcher/complaint.h"
#include "launcher/game_folder.h"
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
    "Edits campaigns of the game Eldmark Saga with its add-on Ravn.\n"
    "\n"
    "  CAMPAIGN         a campaign file (.e3c) to open\n"
    "  --game DIR       the game's folder: the one with ravn.dat, Ravn_settings.ini\n"
    "                   and the folder Data\n"
    "  --encoding NAME  the encoding of texts in campaigns and maps, such as\n"
    "                   Windows-1251; by default that of the system's locale\n"
    "  --help           show this text and end\n"
    "  --version        show the version and end\n"
    "\n"
    "The game's folder is the one that --game names, else the environment variable\n"
    "CMPED_GAME_DIR; else the one in which this program stands; else the one chosen\n"
    "last. Where none of these is the game's, cmped asks for it and remembers it in\n"
    "~/.config/cmped/cmped.conf.\n";

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
    complain(message);
    return 1;
}

// Whoever names several files, by a pattern perhaps, ought to know what became of them.
void tellOfFilesLeftAlone(const std::vector<std::string> &arguments)
{
    for (size_t i = 2; i < arguments.size(); ++i) {
        std::error_code unknown;
        if (arguments[1][0] != '-' && fs::is_regular_file(arguments[i], unknown))
            complain("only the first file is opened, not " + arguments[i]);
    }
}

int runEditor(std::vector<std::string> arguments)
{
    std::vector<char *> list;
    list.reserve(arguments.size() + 1);
    for (std::string &argument : arguments)
        list.push_back(argument.data());
    list.push_back(nullptr); // as main's own list ends
    return run(int(arguments.size()), list.data());
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
    if (!settleGameFolder(options))
        return 1;
    std::vector<std::string> arguments{options.editorArguments.front()};
    for (size_t i = 1; i < options.editorArguments.size(); ++i)
        arguments.push_back(withWholePath(options.editorArguments[i]));
    tellOfFilesLeftAlone(arguments);
    return runEditor(std::move(arguments));
}
