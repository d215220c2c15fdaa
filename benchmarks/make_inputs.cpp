// Makes the files that cmped-bench measures with, a gigabyte in all. What is complete already
// stays.
//
// Usage: make_inputs SAMPLE_GAME FOLDER
#include "benchmarks/inputs.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"
#include "tests/performance/archive_of_many.h"
#include "tests/performance/campaign_of_maps.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

bool isComplete(const Inputs &inputs)
{
    QFile stamp(inputs.stamp());
    return stamp.open(QIODevice::ReadOnly) && stamp.readAll() == inputsVersion;
}

bool markComplete(const Inputs &inputs)
{
    QFile stamp(inputs.stamp());
    return stamp.open(QIODevice::WriteOnly) && stamp.write(inputsVersion) > 0 && stamp.flush();
}

bool copyFolder(const QString &from, const QString &to)
{
    QDir(to).removeRecursively();
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        if (!QFile::copy(source, target))
            return false;
    }
    return true;
}

bool makeGames(const QString &sample, const Inputs &inputs)
{
    constexpr int smallEntry = 900;
    const QString data = inputs.game() + "/Data/";
    bool made = copyFolder(sample, inputs.game()) &&
                writeArchiveOfMany(data + "Bitmaps.lod", gameEntries / 2, gameBytes / 2) &&
                writeArchiveOfMany(data + "Sprites.lod", gameEntries / 2, gameBytes / 2);
    for (const int entries : startEntries) {
        const QString game = inputs.startGame(entries);
        made = made && copyFolder(sample, game) &&
               writeArchiveOfMany(game + "/Data/Many.lod", entries, qint64(entries) * smallEntry);
    }
    return made;
}

bool makeCampaigns(const Inputs &inputs)
{
    setGameRoot(inputs.game());
    loadGame();
    for (const unsigned maps : campaignMaps)
        if (!campaignOfMaps(maps, mapBytes).saveTo(inputs.campaign(maps)).ok)
            return false;
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "Usage: make_inputs SAMPLE_GAME FOLDER\n");
        return 1;
    }
    const QString sample = QDir(QFile::decodeName(argv[1])).absolutePath();
    const Inputs inputs{QDir(QFile::decodeName(argv[2])).absolutePath()};
    if (isComplete(inputs))
        return 0;
    if (!makeGames(sample, inputs) || !makeCampaigns(inputs) || !markComplete(inputs)) {
        std::fprintf(stderr, "%s can't be written\n", qPrintable(inputs.folder));
        return 1;
    }
    return 0;
}
