// The game's tables, which all dialogs read. Filled once at the start by OpenLods and constant
// afterwards, apart from `info`, the state of the document in work.
//
// Look-ups of a number that a table lacks answer an empty name and leave the table as it is: use
// nameOf, textOf and campaignMap instead of the maps' operator[].
#pragma once

#include "gamedata/campaign_info.h"
#include "gamedata/lod_archive.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

class CampaignRegionItem;
class QTextCodec;

struct LoadingInfo
{
    quint32 campaign = 0; // number of the campaign map
    quint32 version = 0;  // format version of the file read last
    quint32 region = 0;   // the selected region
    bool modified = false;
    CampaignRegionItem *currentItem = nullptr; // pressed last; owned by the scene
};

class EditorData
{
public:
    static LoadingInfo info;
    static QTextCodec *codec; // of the game's own texts, not of campaign files

    static unsigned nArtifacts; // bits of an artifact array
    static unsigned nCreatures; // bits of a creature array

    static std::map<int, QString> artifacts;
    static std::map<int, QString> creatures;
    static std::vector<unsigned> creature_ordering; // creature numbers in display order
    static std::map<int, QString> heroes;
    static std::map<int, QString> secondarySkills;
    static std::map<int, QString> primarySkills;
    static std::map<int, QString> skillLevels;
    static std::map<int, QString> spells;
    static std::map<int, QString> resources;
    static std::map<int, QString> jktext;
    static std::vector<LodArchive> lod_archives; // the highest precedence first

    static std::map<int, CampaignInfo> campaignInfo; // by campaign map number
    static std::map<int, QString> backgrounds;
    static std::vector<QString> colors; // player colour names
    static std::map<int, QStringList> editorText;
    static std::map<int, QStringList> editorCmdText;
    static std::map<int, QString> movieImages;
    static std::map<int, QString> musicNames;
    static std::map<int, QString> videoNames;
    static std::map<int, std::map<int, QString>> buildings; // by town, -1 for any; by building

    // Reads every archive's index and fills all tables anew. The language chooses nothing here.
    static void OpenLods(unsigned int language, QTextCodec *codec);

    // The file's bytes from the first archive that has it, in a new buffer owned by the caller
    // (delete[]) with a zero byte behind it; null if no archive has it.
    static char *getLodFileData(const QString &name, int *size = nullptr);

    // The lines of a text table, empty ones included, up to the first zero byte. A missing table
    // ends the process. Without a codec the bytes are taken as Latin-1.
    static QStringList readTxtFile(const QString &name, QTextCodec *codec);
    // Numbers the lines that aren't blank from 0 and adds them to the target, columns and all.
    static void parseTextSimple(std::map<int, QString> &target, QString name, QTextCodec *codec,
                                bool dropLastLine);

    static void initCreatures(QTextCodec *codec);
    static void initArtifacts(QTextCodec *codec);
    static void initHeroes(QTextCodec *codec);
    static void initResourceInfo(QTextCodec *codec);
    static void initCampaignInfo(QTextCodec *codec);
    static void readSkills(QTextCodec *codec);
    static void readSpells(QTextCodec *codec);
    static void readColors(QTextCodec *codec);
    static void readMusicNames(QTextCodec *codec);
    static void readVideoNames(QTextCodec *codec);
    static void readMovieImageNames(QTextCodec *codec);
    static void readBuildings(QTextCodec *codec);

    // The campaign map of this number; an empty one if there is none.
    static const CampaignInfo &campaignMap(unsigned int number);
};

// The name under a number, empty if the table has none.
QString nameOf(const std::map<int, QString> &table, int number);

// A column of a text row, empty if the row or the column is missing.
QString textOf(const std::map<int, QStringList> &table, int row, int column = 0);

// The application's title in the game's language.
QString cmpEditorTitle();

// How many creatures the lines of their text table and the table file name together. Takes the
// header off the lines, so that only rows are left.
unsigned getCreatureCount(QStringList &lines);

// False for the creatures that no hero takes along into the next scenario.
bool monsterIsGoodForCrossoverList(unsigned creature);

// The highest level that the mage guild of a town of this type reaches.
int GetMaxGuildLevel(int town);

// Whether a town of this type can have the building, by the game's rules; asks no table.
bool BuildingIsValidForTown(unsigned building, unsigned town);
