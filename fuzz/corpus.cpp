#include "fuzz/corpus.h"

namespace corpus {

std::vector<Target> targets()
{
    return {
        {"archive", archives()},
        {"campaign", campaigns()},
        {"dialog", campaignsToShow()},
        {"layout", layouts()},
        {"map_header", maps()},
        {"pcx", pictures()},
        {"scenario_record", scenarioRecords()},
        {"settings", settings()},
        {"start_options", optionLists()},
        {"string_list", stringLists()},
        {"table_file", tableFiles()},
        {"text_import", textImports()},
        {"text_table", textTables()},
        {"translations", translations()},
    };
}

} // namespace corpus
