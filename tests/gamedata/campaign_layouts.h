// The table file's entries of campaign maps, and their reading.
#pragma once

#include "tests/gamedata/game_files.h"

#include <QTest>

using game_files::GameFolder;
using game_files::lines;
using game_files::useTable;

inline QMap<QByteArray, QByteArray> emptyTexts()
{
    return {{"CmpMusic.txt", ""}, {"CmpMovie.txt", ""}, {"CmpEditr.txt", ""}, {"CmpEdCmd.txt", ""}};
}

inline void initCampaigns(const GameFolder &game,
                          const QMap<QByteArray, QByteArray> &texts = emptyTexts())
{
    game.provide(texts);
    EditorData::initCampaignInfo(game_files::codec());
}

inline game_files::TableEntry campaignMap(const QByteArray &name, const QList<QByteArray> &layout)
{
    return {name, {{0, "Name of " + name}, {1, "Back.pcx"}, {8, lines(layout)}}};
}

// Reads one layout, with backgrounds behind it that tell whether the reading went on.
inline CampaignInfo readLayout(const QList<QByteArray> &layout)
{
    const GameFolder game;
    useTable({campaignMap("campmap3", layout), {"cmpbackground", {{8, "after"}}}});
    initCampaigns(game);
    if (EditorData::backgrounds.empty())
        return {};
    return EditorData::campaignInfo[3];
}

inline const QList<QByteArray> generatedLayout = {"1",     "2",         "10 20",       "-30 40",
                                                  "North", "NGlow.pcx", "NBorder.pcx", "NFill.pcx",
                                                  "South", "SGlow.pcx", "SBorder.pcx", "SFill.pcx"};
