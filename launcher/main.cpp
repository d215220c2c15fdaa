// The program that users start. It settles in which encoding texts and file names stand, which
// the editor's library takes as given, and hands it the rest of the command line.
#include "gamedata/locale_codec.h"
#include "launcher/launcher_options.h"

#include <QString>

#include <cstdio>

extern "C" int run(int argc, char **argv);

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
    const int count = int(options.editorArguments.size());
    options.editorArguments.push_back(nullptr); // as main's own list ends
    return run(count, options.editorArguments.data());
}
