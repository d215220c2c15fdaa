#include "cli/commands.h"

#include "cli/archive_commands.h"
#include "cli/campaign_commands.h"
#include "cli/exchange_commands.h"
#include "cli/picture_commands.h"
#include "cli/table_commands.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<Command, 11> commands{{
    {"dump", "FILE", "prints the whole campaign as JSON", runDump},
    {"resave", "FILE OUT", "reads a campaign and writes it in the newest format", runResave},
    {"export-texts", "FILE OUT", "writes a campaign's texts as lines, for translators",
     runExportTexts},
    {"import-texts", "FILE TEXTS OUT", "writes a campaign with translated texts", runImportTexts},
    {"export-maps", "FILE DIR", "writes every scenario's map into a folder", runExportMaps},
    {"refresh-maps", "FILE DIR OUT", "writes a campaign with the maps of a folder", runRefreshMaps},
    {"render", "FILE OUT.png", "draws the campaign map as the editor shows it", runRender},
    {"tables", "", "prints every table of the game's data as JSON", runTables},
    {"list", "", "lists the archives' files: name, archive and size, parted by tabs", runList},
    {"extract", "NAME OUT", "writes one archive file; a picture as PNG if OUT ends in .png",
     runExtract},
    {"region", "MAP REGION STATE COLOUR OUT.png", "draws one region of a campaign map", runRegion},
}};

const char usage[] = R"(Usage: cmped-cli [options] COMMAND ARGUMENT...
Reads and writes campaign files and shows the game's data, without a window.

Commands:
)";

const char notes[] = R"(
Archives are searched in the order in which "list" names them. The state of a region is 0 for
one with a map, 1 for the selected one and 2 for one without a map; colours go from 0 to 7.

The game's folder is the one named by --game, else by the variable CMPED_GAME_DIR, else the
program's own. Output files are replaced only once they are written whole.

Exit status: 0 done, 1 wrong usage, 2 the input can't be read or the output can't be written.
)";

QString titleOf(const Command &command)
{
    return (QString::fromLatin1(command.name) + QLatin1Char(' ') +
            QString::fromLatin1(command.arguments))
        .trimmed();
}

} // namespace

const Command *findCommand(const QString &name)
{
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command &command) {
        return name == QLatin1String(command.name);
    });
    return found == commands.end() ? nullptr : &*found;
}

QString helpText(const QString &options)
{
    int width = 0;
    for (const Command &command : commands)
        width = std::max(width, titleOf(command).size());
    QString text = QString::fromLatin1(usage);
    for (const Command &command : commands) {
        text += QStringLiteral("  %1  %2\n")
                    .arg(titleOf(command).leftJustified(width), QString::fromLatin1(command.help));
    }
    return text + QStringLiteral("\nOptions:\n") + options + QString::fromLatin1(notes);
}
