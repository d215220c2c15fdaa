// What a campaign map is made of: its background and its clickable regions.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct CampaignRegion
{
    int x = 0; // left edge on the campaign map, pixels
    int y = 0; // top edge, pixels
    QString name;

    // Ready-made pictures: imageNames[state][colour]. Empty on a generated map.
    QVector<QStringList> imageNames;

    // Grey masks from which the picture is computed. Empty unless the map is generated.
    QString borderImage;
    QString glowImage;
    QString fillImage;
};

struct CampaignInfo
{
    int regionCount = 0;
    QVector<CampaignRegion> regions;
    QString name;
    QString backgroundName; // a picture in the archives
    int layoutType = 0;     // 0 ready-made pictures, 1 computed ones, others belong to the game
    bool generated = false; // layoutType is 1
};
