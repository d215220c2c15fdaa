// What the launcher has to say to whoever started it.
#pragma once

#include <cstdio>
#include <string>

inline void complain(const std::string &message)
{
    std::fprintf(stderr, "cmped: %s\n", message.c_str());
}
