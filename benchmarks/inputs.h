// The files that are opened and started for measuring: make_inputs makes them, cmped-bench reads
// them.
#pragma once

#include <QString>

#include <array>

// Packed bytes of each map.
constexpr int mapBytes = 550 * 1024;
// How many maps the campaigns have.
constexpr std::array<unsigned, 4> campaignMaps = {1, 8, 64, 1000};

// The full-size game.
constexpr int gameEntries = 12000;
constexpr qint64 gameBytes = qint64(300) * 1024 * 1024;
// How many entries the archives of the others have.
constexpr std::array<int, 4> startEntries = {100, 1000, 10000, 50000};

struct Inputs
{
    QString folder;

    QString game() const { return folder + "/game"; }
    // A game with so many entries of a picture each beside those of the sample game.
    QString startGame(int entries) const { return folder + QString("/start-%1").arg(entries); }
    QString campaign(unsigned maps) const { return folder + QString("/maps-%1.e3c").arg(maps); }
    // Stands there once all the others do, and holds inputsVersion.
    QString stamp() const { return folder + "/complete"; }
};

// Changes with anything that make_inputs makes.
constexpr char inputsVersion[] = "1";
