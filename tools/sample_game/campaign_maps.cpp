#include "tools/sample_game/campaign_maps.h"

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/picture_records.h"

namespace sample {

namespace {

enum class Kind
{
    ReadyMade,
    Computed,
    GameOnly
};
enum class Depth
{
    Bits24,
    Bits32
};

struct MapPlace
{
    const char *name;
    int number;
    art::Theme theme;
    Kind kind;
    int regions;
    quint32 seed;
    Depth depth; // of the background
};

constexpr MapPlace kMaps[] = {
    {"The Wells of Quesh", 15, art::Theme::Desert, Kind::Computed, 7, 1501, Depth::Bits24},
    {"The River Realm", kDefaultMap, art::Theme::Highlands, Kind::Computed, 10, 2401,
     Depth::Bits24},
    {"The Salt Isles", kReadyMadeMap, art::Theme::Isles, Kind::ReadyMade, 5, 301, Depth::Bits24},
    {"The Winter Marches", 8, art::Theme::Frost, Kind::ReadyMade, 4, 801, Depth::Bits24},
    {"The Ember Coast", 27, art::Theme::Ember, Kind::Computed, 6, 2701, Depth::Bits32},
    {"The Uncharted Fen", 31, art::Theme::Marsh, Kind::GameOnly, 0, 3101, Depth::Bits24},
};

QString mapPrefix(const MapPlace &place)
{
    return QStringLiteral("m%1").arg(place.number, 2, 10, QLatin1Char('0'));
}

// Computed pictures are told apart by their mask: g, b or f.
QString maskName(const MapPlace &place, int region, char mask)
{
    return QStringLiteral("%1_%2%3.pcx")
        .arg(mapPrefix(place))
        .arg(region, 2, 10, QLatin1Char('0'))
        .arg(QLatin1Char(mask));
}

// Ready-made ones by state (u unselected, s selected, n not used) and colour.
QString lookName(const MapPlace &place, int region, int state, int colour)
{
    constexpr char kStates[] = {'u', 's', 'n'};
    return QStringLiteral("%1_%2%3%4.pcx")
        .arg(mapPrefix(place))
        .arg(region)
        .arg(QLatin1Char(kStates[state]))
        .arg(colour);
}

void addRegionPictures(CampaignMap &map, QStringList &layout, const MapPlace &place,
                       const art::PaintedRegion &region, int number)
{
    layout += region.name;
    const auto add = [&map](const QString &name, const QImage &picture) {
        map.pictures.push_back({name.toLatin1(), recordPalette(picture)});
    };
    if (place.kind == Kind::Computed) {
        const std::pair<char, const QImage *> masks[] = {
            {'g', &region.glow}, {'b', &region.border}, {'f', &region.fill}};
        for (const auto &[letter, picture] : masks) {
            layout += maskName(place, number, letter);
            add(layout.last(), *picture);
        }
        return;
    }
    for (int state = 0; state < art::kRegionStates; ++state) {
        QStringList looks;
        for (int colour = 0; colour < art::kRegionColours; ++colour) {
            looks += lookName(place, number, state, colour);
            add(looks.last(), region.looks[state][colour]);
        }
        layout += looks.join(QLatin1Char(' '));
    }
}

QString layoutText(CampaignMap &map, const MapPlace &place, const art::PaintedMap &painted)
{
    QStringList layout = {QStringLiteral("# ") + QLatin1String(place.name),
                          QString::number(int(place.kind)), QString::number(place.regions),
                          QStringLiteral("# upper left corners")};
    for (int i = 0; i < place.regions; ++i) {
        const QPoint corner = painted.regions.at(i).position;
        layout += QStringLiteral("%1 %2").arg(corner.x()).arg(corner.y());
    }
    layout += QStringLiteral("# regions");
    for (int i = 0; i < place.regions; ++i)
        addRegionPictures(map, layout, place, painted.regions.at(i), i);
    return layout.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

CampaignMap makeMap(const MapPlace &place)
{
    const art::PaintedMap painted = art::paintCampaignMap(place.theme, place.regions, place.seed,
                                                          place.kind == Kind::ReadyMade);
    if (painted.regions.size() < place.regions)
        qFatal("\"%s\" was painted with too few regions", place.name);
    CampaignMap map;
    map.regionCount = place.regions;
    map.readyMade = place.kind == Kind::ReadyMade;
    const QString background = mapPrefix(place) + QStringLiteral("back.pcx");
    map.pictures.push_back({background.toLatin1(), place.depth == Depth::Bits32
                                                       ? record32Bit(painted.background)
                                                       : record24Bit(painted.background)});
    map.entry.name = "campmap" + QByteArray::number(place.number);
    map.entry.strings = stringsWith(8, layoutText(map, place, painted));
    map.entry.strings[0] = QLatin1String(place.name);
    map.entry.strings[1] = background;
    map.entry.ints = {place.regions};
    return map;
}

} // namespace

std::vector<CampaignMap> campaignMaps()
{
    std::vector<CampaignMap> maps;
    for (const MapPlace &place : kMaps)
        maps.push_back(makeMap(place));
    return maps;
}

} // namespace sample
