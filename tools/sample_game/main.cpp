// make_sample_game DIR: makes a small, complete game folder for the campaign editor.
// Exit status: 0 made, 1 wrong usage, 2 a file can't be written.
#include "tools/sample_game/game_folder.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    // Pictures are painted in memory; no display is asked for.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
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
