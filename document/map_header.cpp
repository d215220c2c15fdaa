// The header of a scenario map, as it stands unpacked.
//
//   field                               when
//   version (4)
//   subVersion (4)                      version 32 and above
//   extFlagB (1), extFlagA (1)          subVersion 1 and above
//   extValueA (4)                       subVersion 2 and above
//   extValueB (4), extFlagC (1)         subVersion 4 and above
//   extFlagD (1)                        subVersion 7 and above
//   anyPlayers (1)
//   mapDimension (4), hasUnderground (1), mapName, mapDescription (texts), difficulty (1)
//   levelLimit (1)                      version above 14
//   8 players, victory, loss
//   teamCount (1)
//   teams (8)                           teamCount isn't 0
//   availableCount (4)                  version 32 and above; else 128 in 14, 160 in others
//   available (bit array)
//   placeholders: count (4), bytes      version above 14
//   custom heroes: count (1), heroes    version above 21
//   31 bytes that nobody looks at
//
//   player
//   canHuman (1), canComputer (1), behaviour (1)
//   allowedTownsLow (1)                 version other than 21
//   allowedTowns (2)                    version above 14
//   townIsRandom (1), hasMainTown (1)
//   generatesHero (1), mainTownType (1) hasMainTown is 1, version above 14
//   mainTownPosition (3)                hasMainTown is 1
//   randomHero (1), mainHeroId (1)
//   portrait (1), name (text)           mainHeroId isn't 255
//   placeholderCount (1)                version above 14
//   heroes: count (4), each id (1), name (text)     version above 14
//
//   victory: type (1), 2 flags unless it is 255, and
//   0           object (1 in version 14, else 2)
//   1           object likewise, amount (4)
//   2           kind (1), amount (4)
//   3           position (3), kind (1), extra (1)
//   4 to 7      position (3)
//   10          kind (1), position (3)
//   12          amount (4)
//
//   loss: type (1), and position (3) for 0 and 1, days (2) for 2
//
//   custom hero: heroId (1), portrait (1), name (text), playerMask (1)
#include "document/map_header.h"

#include "document/campaign_primitives.h"
#include "gamedata/editor_data.h"

namespace {

constexpr quint32 oldest = 14;     // without level limits, reserved heroes and hero lists
constexpr quint32 shortTowns = 21; // without the towns' low byte, without custom heroes
constexpr quint32 extended = 32;   // with a subversion and a count of heroes

constexpr quint8 none = 255;
constexpr int unseenTail = 31;

void readPosition(QDataStream &stream, std::array<quint8, 3> &position)
{
    for (quint8 &part : position)
        stream >> part;
}

void readExtension(QDataStream &stream, MapHeader &header)
{
    stream >> header.subVersion;
    if (header.subVersion >= 1)
        stream >> header.extFlagB >> header.extFlagA;
    if (header.subVersion >= 2)
        stream >> header.extValueA;
    if (header.subVersion >= 4)
        stream >> header.extValueB >> header.extFlagC;
    if (header.subVersion >= 7)
        stream >> header.extFlagD;
}

void readPlayer(QDataStream &stream, quint32 version, PlayerAttributes &player)
{
    stream >> player.canHuman >> player.canComputer >> player.behaviour;
    if (version != shortTowns)
        stream >> player.allowedTownsLow;
    if (version > oldest)
        stream >> player.allowedTowns;
    stream >> player.townIsRandom >> player.hasMainTown;
    if (player.hasMainTown == 1) {
        if (version > oldest)
            stream >> player.generatesHero >> player.mainTownType;
        readPosition(stream, player.mainTownPosition);
    }
    stream >> player.randomHero >> player.mainHeroId;
    if (player.mainHeroId != none) {
        stream >> player.mainHeroPortrait;
        ReadHString4(stream, player.mainHeroName);
    }
    if (version <= oldest)
        return;
    stream >> player.placeholderCount;
    const auto heroes = readNumber<quint32>(stream);
    for (quint32 i = 0; i < heroes && !stream.atEnd(); ++i) {
        PlayerAttributesHeroInfo hero;
        stream >> hero.heroId;
        ReadHString4(stream, hero.name);
        player.heroInfo.push_back(std::move(hero));
    }
}

void readObject(QDataStream &stream, quint32 version, quint16 &object)
{
    if (version == oldest)
        object = readNumber<quint8>(stream);
    else
        stream >> object;
}

void readVictory(QDataStream &stream, quint32 version, VictoryCondition &victory)
{
    stream >> victory.type;
    if (victory.type != none)
        stream >> victory.flags[0] >> victory.flags[1];
    switch (victory.type) {
    case 0:
        readObject(stream, version, victory.object);
        break;
    case 1:
        readObject(stream, version, victory.object);
        stream >> victory.amount;
        break;
    case 2:
        stream >> victory.kind >> victory.amount;
        break;
    case 3:
        readPosition(stream, victory.position);
        stream >> victory.kind >> victory.extra;
        break;
    case 4:
    case 5:
    case 6:
    case 7:
        readPosition(stream, victory.position);
        break;
    case 10:
        stream >> victory.kind;
        readPosition(stream, victory.position);
        break;
    case 12:
        stream >> victory.amount;
        break;
    default:
        break;
    }
}

void readLoss(QDataStream &stream, LossCondition &loss)
{
    stream >> loss.type;
    if (loss.type <= 1)
        readPosition(stream, loss.position);
    else if (loss.type == 2)
        stream >> loss.days;
}

quint32 heroBits(QDataStream &stream, quint32 version)
{
    if (version >= extended)
        return readNumber<quint32>(stream);
    return version == oldest ? 128 : 160;
}

void readHeroes(QDataStream &stream, quint32 version, HeaderHeroes &heroes)
{
    heroes.availableCount = heroBits(stream, version);
    ReadBitArray(stream, heroes.available, heroes.availableCount);
    heroes.availableCount = quint32(heroes.available.size()); // an absurd one was cut
    if (version > oldest) {
        const QByteArray placeholders = readBytes(stream, readNumber<quint32>(stream));
        heroes.placeholders.assign(placeholders.begin(), placeholders.end());
    }
    if (version <= shortTowns)
        return;
    const int customHeroes = readNumber<quint8>(stream);
    for (int i = 0; i < customHeroes && !stream.atEnd(); ++i) {
        HeaderHero hero;
        stream >> hero.heroId >> hero.portrait;
        ReadHString4(stream, hero.name);
        stream >> hero.playerMask;
        heroes.customHeroes.push_back(std::move(hero));
    }
}

// Everything behind anyPlayers.
void readBody(QDataStream &stream, MapHeader &header)
{
    stream >> header.mapDimension >> header.hasUnderground;
    ReadHString4(stream, header.mapName);
    ReadHString4(stream, header.mapDescription);
    stream >> header.difficulty;
    if (header.version > oldest)
        stream >> header.levelLimit;
    for (PlayerAttributes &player : header.players)
        readPlayer(stream, header.version, player);
    readVictory(stream, header.version, header.victory);
    readLoss(stream, header.loss);
    stream >> header.teamCount;
    if (header.teamCount != 0) {
        for (quint8 &team : header.teams)
            stream >> team;
    }
    readHeroes(stream, header.version, header.headerHeroes);
    stream.skipRawData(unseenTail);
}

} // namespace

HeaderHero::HeaderHero() : heroId(quint8(EditorData::heroes.size() - 1)) {}

unsigned int ScenarioData::ReadMapHeader(QDataStream &stream, bool check)
{
    MapHeader header;
    stream >> header.version;
    if (header.version >= extended)
        readExtension(stream, header);
    stream >> header.anyPlayers;
    if (check)
        return header.anyPlayers != 0 ? 1u : unsigned(-1);
    readBody(stream, header);
    mapHeader = std::make_shared<MapHeader>(std::move(header));
    return unsigned(mapHeader->mapDimension);
}
