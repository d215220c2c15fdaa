#include "fuzz/corpus.h"

namespace corpus {

std::vector<Target> targets()
{
    return {
        {"archive", archives()},      {"campaign", campaigns()}, {"layout", layouts()},
        {"map_header", maps()},       {"pcx", pictures()},       {"settings", settings()},
        {"table_file", tableFiles()},
    };
}

} // namespace corpus
