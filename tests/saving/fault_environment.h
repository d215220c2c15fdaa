// The environment that tells a preloaded injector of faults what to do.
#pragma once

#include "tests/saving/fault_injector.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

inline std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

inline int numberIn(const char *name)
{
    return std::atoi(variable(name).c_str());
}

// Arms the faults when it is made, and writes the calls down when it goes.
class ToldByEnvironment
{
public:
    ToldByEnvironment()
    {
        const std::string folder = variable("CMPED_FAULT_FOLDER");
        if (folder.empty())
            return;
        armFaults({folder, numberIn("CMPED_FAULT_CALL"), FaultKind(numberIn("CMPED_FAULT_KIND")),
                   numberIn("CMPED_FAULT_ERROR"), variable("CMPED_FAULT_NAMELESS") != "0"});
    }
    ~ToldByEnvironment()
    {
        const std::string path = variable("CMPED_FAULT_LOG");
        if (path.empty())
            return;
        const std::vector<std::string> names = disarmFaults();
        if (FILE *log = std::fopen(path.c_str(), "w")) {
            for (const std::string &name : names)
                std::fprintf(log, "%s\n", name.c_str());
            std::fclose(log);
        }
    }
    ToldByEnvironment(const ToldByEnvironment &) = delete;
    ToldByEnvironment &operator=(const ToldByEnvironment &) = delete;
};
