// The launcher's own options, which it takes out of the command line before the editor sees it.
#pragma once

#include <string>
#include <vector>

struct LauncherOptions
{
    bool help = false;
    bool version = false;
    std::string game;                    // empty: to be searched
    std::string encoding;                // empty: what the system says
    std::string error;                   // set if the command line is wrong
    std::vector<char *> editorArguments; // what is left, the program's name first
};

// Options stand anywhere in front of "--", which is taken out as well; what follows it is the
// editor's, whatever it looks like.
LauncherOptions readLauncherOptions(int argc, char **argv);
