#include "tools/sample_game/table_entries.h"

#include "tools/sample_game/game_texts.h"
#include "tools/sample_game/names.h"
#include "tools/sample_game/noise.h"

namespace sample {

namespace {

// Where in an entry of each kind its name or its list stands.
constexpr int kCreaturePlace = 3;
constexpr int kArtifactPlace = 1;
constexpr int kHeroPlace = 6;
constexpr int kSkillPlace = 1;
constexpr int kMoviePlace = 4;
constexpr int kListPlace = 8;
constexpr int kTownListPlace = 7;
constexpr int kHordePlace = 5;

constexpr int kFirstAddedCreature = 150;
constexpr int kFirstAddedArtifact = 144;
constexpr int kFirstAddedHero = 156;
constexpr int kFirstAddedSkill = 28;

const QString kLineEnd = QStringLiteral("\r\n");

QByteArray numbered(const char *kind, int number)
{
    return kind + QByteArray::number(number);
}

void addNames(std::vector<TableEntry> &entries, const char *kind, int first, int place,
              const QStringList &names)
{
    for (int i = 0; i < names.size(); ++i)
        entries.push_back(
            {numbered(kind, first + i), stringsWith(place, names.at(i)), {first + i, 100 * i}});
}

TableEntry listEntry(const QByteArray &name, int place, const QStringList &list)
{
    return {name, stringsWith(place, list.join(kLineEnd))};
}

void addTowns(std::vector<TableEntry> &entries)
{
    for (const int town : {9, 10}) {
        entries.push_back(
            listEntry(numbered("casdwcost", town), kTownListPlace, names::addedDwellings(town)));
        entries.push_back(
            listEntry(numbered("casspcost", town), kTownListPlace, names::addedSpecials(town)));
    }
    entries.push_back(listEntry("firebrdhorde0", kHordePlace, names::addedSpecials(8)));
}

} // namespace

std::vector<TableEntry> nameEntries()
{
    std::vector<TableEntry> entries;
    addNames(entries, "monst", kFirstAddedCreature, kCreaturePlace, names::addedCreatures());
    addNames(entries, "art", kFirstAddedArtifact, kArtifactPlace, names::addedArtifacts());
    addNames(entries, "hero", kFirstAddedHero, kHeroPlace, names::addedHeroes());
    addNames(entries, "secskill", kFirstAddedSkill, kSkillPlace, names::addedSkills());
    // One hero of the text table was renamed since.
    entries.push_back({"hero71", stringsWith(kHeroPlace, QStringLiteral("Ruddock the Younger"))});
    addTowns(entries);
    return entries;
}

std::vector<TableEntry> mediaEntries(const QStringList &moviePictures,
                                     const QStringList &backgrounds)
{
    std::vector<TableEntry> entries;
    const QStringList movies = addedMovieNames();
    entries.reserve(size_t(movies.size()) + 5); // and a list of each other kind
    for (int i = 0; i < movies.size(); ++i)
        entries.push_back({numbered("video", i), stringsWith(kMoviePlace, movies.at(i))});
    const QStringList music = addedMusicNames();
    QString tracks = QStringLiteral("# tracks of the add-on\r\n");
    for (const QString &name : music)
        tracks += QLatin1Char('"') + name + QStringLiteral("\"\r\n");
    entries.push_back({"music0", stringsWith(kListPlace, tracks)});
    // The second list takes the place of the first.
    entries.push_back(listEntry("cmpmoviepic0", kListPlace, moviePictures.mid(0, 2)));
    entries.push_back(
        listEntry("cmpmoviepic1", kListPlace,
                  QStringList(QStringLiteral("# one picture a movie")) + moviePictures));
    const int half = backgrounds.size() / 2;
    entries.push_back(listEntry("cmpbackground0", kListPlace, backgrounds.mid(0, half)));
    entries.push_back(listEntry("cmpbackground1", kListPlace, backgrounds.mid(half)));
    return entries;
}

std::vector<TableEntry> gameOnlyEntries()
{
    Noise noise(5);
    std::vector<TableEntry> entries;
    for (int town = 0; town < names::towns().size(); ++town) {
        TableEntry entry = {numbered("townscene", town), {names::towns().at(town)}};
        entry.blob = noise.bytes(48 + 16 * town);
        entry.ints = {town, -town, 640, 480};
        entry.text = QStringLiteral("Scenery of a town");
        entries.push_back(entry);
    }
    TableEntry reserved = {"reserved1", {}, {0, 0, -1}};
    reserved.emptyBlob = true;
    entries.push_back(reserved);
    entries.push_back({"credits", {QStringLiteral("Made for the campaign editor's newcomers")}});
    entries.push_back({"2", {QStringLiteral("an entry without a kind")}, {2}});
    return entries;
}

TableSizes tableSizes()
{
    return {kFirstAddedCreature + names::addedCreatures().size(),
            kFirstAddedArtifact + names::addedArtifacts().size()};
}

} // namespace sample
