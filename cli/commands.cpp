#include "cli/commands.h"

#include "cli/archive_commands.h"
#include "cli/campaign_commands.h"
#include "cli/check_command.h"
#include "cli/exchange_commands.h"
#include "cli/picture_commands.h"
#include "cli/table_commands.h"
#include "cli/text_commands.h"

#include <algorithm>
#include <array>

namespace {

// The list of all commands fits a screen of 80 columns, and so does each command's own help.

constexpr char dumpMore[] =
    R"(Prints every field of the campaign FILE as JSON, always in the same order. To
see changes of campaigns in "git diff":

  git config diff.cmped.textconv "cmped-cli --game DIR dump"
  echo '*.e3c diff=cmped' >> .gitattributes
)";

constexpr char resaveMore[] = R"(Reads the campaign FILE and writes it to OUT in the newest format.
)";

constexpr char checkMore[] =
    R"(Searches campaigns and maps (.e3m) for what the editor would drop or change
without a word, and for what is damaged. Each finding is a line, "FILE: WHERE:
WHAT". Exit status: 0 nothing was found, 3 something was, 2 a file can't be
read; the others are searched all the same. Files are never changed.
)";

constexpr char exportTextsMore[] =
    R"(Writes the texts of the campaign FILE to OUT for translators. Without --format
the ending of OUT decides; what is none of these is txt, the editor's own
lines.
)";

constexpr char importTextsMore[] =
    R"(Writes the campaign FILE to OUT with the translations in TEXTS. Without --format
the ending of TEXTS decides; what is none of these is txt, the editor's own
lines. Texts that weren't taken are told, a line each, and stay as they were.
)";

constexpr char exportMapsMore[] =
    R"(Writes each scenario's map into the folder DIR, over files of the same names.
)";

constexpr char refreshMapsMore[] =
    R"(Writes the campaign FILE to OUT with the maps of the folder DIR in the place of
its own. Nothing is written unless all of them can be read.
)";

constexpr char renderMore[] =
    R"(Draws the campaign map with its regions, or the background without them.
)";

constexpr char tablesMore[] = R"(Prints every table of the game's data as JSON.
)";

constexpr char listMore[] =
    R"(Prints each file's name, archive and size, parted by tabs. The archives stand
in the order in which they are searched.
)";

constexpr char extractMore[] =
    R"(Writes the archives' file NAME to OUT; a picture as PNG if OUT ends in .png.
)";

constexpr char regionMore[] =
    R"(Draws one region. STATE is 0 for one with a map, 1 for the selected one and 2
for one without a map; COLOUR goes from 0 to 7.
)";

constexpr CommandOption formatOption{"format", "NAME", "po, xliff (.xlf), csv or txt"};

constexpr std::array<Command, 12> commands{{
    {"dump", "FILE", "prints a campaign as JSON", runDump, dumpMore},
    {"resave", "FILE OUT", "writes it in the newest format", runResave, resaveMore},
    {"check", "FILE...", "tells damage and what would be lost", runCheck, checkMore},
    {"export-texts",
     "FILE OUT",
     "writes its texts for translators",
     runExportTexts,
     exportTextsMore,
     {formatOption}},
    {"import-texts",
     "FILE TEXTS OUT",
     "writes it with translated texts",
     runImportTexts,
     importTextsMore,
     {formatOption, {"force", nullptr, "takes translations of texts that have changed since"}}},
    {"export-maps", "FILE DIR", "writes its maps into a folder", runExportMaps, exportMapsMore},
    {"refresh-maps", "FILE DIR OUT", "writes it with the maps of a folder", runRefreshMaps,
     refreshMapsMore},
    {"render",
     "FILE OUT.png",
     "draws its map as the editor shows it",
     runRender,
     renderMore,
     {{"size", "N", "makes it smaller: no side longer than N pixels"}}},
    {"tables", "", "prints the game's tables as JSON", runTables, tablesMore},
    {"list", "", "lists the archives' files", runList, listMore},
    {"extract", "NAME OUT", "writes one of them, to .png as PNG", runExtract, extractMore},
    {"region", "MAP REGION STATE COLOUR OUT.png", "draws one region of a campaign map", runRegion,
     regionMore},
}};

constexpr char usage[] = R"(Usage: cmped-cli [options] COMMAND ARGUMENT...
Reads and writes campaigns and shows the game's data, without a window.

)";

constexpr char notes[] = R"(
"cmped-cli COMMAND --help" and "man cmped-cli" tell more. Exit status: 0 done,
1 wrong usage, 2 can't be read or written, 3 "check" has found something.
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
    return text + QLatin1Char('\n') + options + QString::fromLatin1(notes);
}
