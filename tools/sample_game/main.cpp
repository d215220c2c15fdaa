// make_sample_game DIR: makes a small, complete game folder for the campaign editor.
// Exit status: 0 made, 1 wrong usage, 2 a file can't be written.
#include "tools/sample_game/game_folder.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    // Shapes are painted in memory and no letters, so no display and no fonts are needed.
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || arguments.at(1).startsWith(QLatin1Char('-'))) {
        std::fputs("usage: make_sample_game DIR\n", stderr);
        return 1;
    }
    const QString fault = sample::makeGameFolder(arguments.at(1));
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "make_sample_game: %s\n", qPrintable(fault));
        return 2;
    }
    return 0;
}
