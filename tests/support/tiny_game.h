// A game folder as small as the editor can start in, with pictures of which every pixel is known.
//
// Campaign maps, by number:
//
//    3  "Two Keeps": ready-made pictures, regions "West Keep" at (10, 10) and "East Keep" at
//       (100, 100), 30 by 20 pixels each, in colours as readyMadeColour says
//    5  "Lost Sky": no archive has its background
//    6  "Torn Map": no archive has its region's pictures
//    7  "Blind Map": no archive has its region's masks
//   24  "Home Shores": computed pictures, three regions in the colours of computedColour:
//         "Alder Bay"   at (20, 30), 40 by 30
//         "Birch Hill"  at (40, 40), 40 by 30, its upper left 10 by 10 transparent
//         "Cedar Fen"   at (200, 300), 20 by 20, its upper left 5 by 5 transparent
//   30  "Hidden Realm": of a layout that new campaigns aren't offered, without regions; its
//       background is 4 pixels wider and 10 higher than a map
//
// Backgrounds: 0 "plainone.pcx", 1 "plaintwo.pcx". Picture "wide.pcx" has 32 bits a pixel.
//
// Movies: 0 "Movie 0" to 2 "Movie 2", with a picture of one colour each. Music: 0 "Music 0" to 2.
//
// Two archives: E3bitmap.lod, every other file of which is packed, and Ravn_lng.lod, which has
// another PriSkill.txt. 186 creatures and 160 artifacts, the widths that the seed campaigns of the
// fuzz targets are made for; so are three regions on map 24.
#pragma once

#include "tests/support/packing.h"

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

namespace tiny {

struct Scenario
{
    bool map = false;
    unsigned colour = 2;
};

class Game
{
public:
    // Writes the folder, with these lines under "Global Settings" in the settings and this title
    // of the application in the game's texts.
    explicit Game(const QByteArray &globalSettings = "Language=0\r\n",
                  const QByteArray &title = "Tiny Campaign Editor");

    QString path() const { return m_dir.path(); }
    QString filePath(const QString &name) const { return m_dir.filePath(name); }

    // Makes it the game of this process: root folder, settings, tables, image cache. Once only.
    void load() const;

    // Writes a file below the folder and answers its path. The folder it goes into has to be there.
    QString write(const QString &name, const QByteArray &bytes) const;
    QByteArray read(const QString &name) const;

    // Writes a campaign file into the folder and answers its path.
    QString addCampaign(const QString &name, const QByteArray &bytes) const;

private:
    QTemporaryDir m_dir;
};

// A campaign of the newest version. Without a map, `background` says what is behind it.
QByteArray campaign(unsigned mapId, const QVector<Scenario> &scenarios);
QByteArray campaignWithoutMap(int background, const QVector<Scenario> &scenarios);
using packing::gzip;

// Colours of backgrounds, by their pictures' names.
QColor backgroundColour(const QString &name);
QColor movieColour(int video);
QColor readyMadeColour(int region, int state, int colour);
// The look of map 24's regions in colour 2, with its opacity.
QColor computedColour(int state);

} // namespace tiny
