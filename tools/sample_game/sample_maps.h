// The sample game's scenario maps: one or more of every header version, and three that an editor
// has to be careful with.
#pragma once

#include "tools/sample_game/map_writer.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace sample {

// The maps' places in the list.
enum SampleMap
{
    LanternLanding,
    TollBridge,
    MillPond,
    OldFord,
    HeronCourt,
    AshRoad,
    SealedWeir,
    Saltharbour,
    NineWells,
    BarrowNight,
    SnowPass,
    KarrunDrums,
    SampleMapCount
};

// Some heroes who stand on the maps.
constexpr int kMarwenna = 12;
constexpr int kTammas = 19;
constexpr int kFernald = 29;
constexpr int kCalligra = 38;
constexpr int kKnell = 82;
constexpr int kQorlan = 124;
constexpr int kCaptainThrale = 162;

const std::vector<MapPlan> &sampleMaps();

struct MapFile
{
    QString name;
    QByteArray content;
};

// All that goes into the folder Maps: the sound maps, those on which the rules of start options
// bite, one without players, one that isn't packed, one whose end is missing.
std::vector<MapFile> mapFiles();

} // namespace sample
