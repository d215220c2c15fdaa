#include "tools/sample_game/art/names.h"

#include "tools/sample_game/art/random.h"

#include <QStringList>

#include <array>

namespace art {

namespace {

struct Words
{
    std::array<const char *, 10> heads;
    std::array<const char *, 10> tails;
};

constexpr std::array<Words, kThemes> kWords = {{
    {{"Gull", "Salt", "Coral", "Brine", "Tern", "Pearl", "Kelp", "Anchor", "Foam", "Merrow"},
     {"haven", "holm", "sound", "cay", "reach", "quay", "strand", "mouth", "ness", "wick"}},
    {{"Stag", "Bracken", "Thorn", "Crag", "Heather", "Falcon", "Oaken", "Grim", "Larch", "Tarn"},
     {"moor", "fell", "garth", "pike", "dale", "brae", "ridge", "keep", "hollow", "combe"}},
    {{"Rime", "Hoar", "Ice", "Wolf", "Pale", "Drift", "Sleet", "Bear", "Glim", "Winter"},
     {"gard", "fjell", "mark", "vik", "spire", "waste", "hall", "tooth", "lund", "watch"}},
    {{"Sun", "Amber", "Jackal", "Brass", "Ochre", "Date", "Mirage", "Scarab", "Cinnamon", "Dust"},
     {" Wells", " Gate", "sands", " Steps", " Ruins", " Basin", "dune", " Market", " Tombs",
      "rock"}},
    {{"Mire", "Toad", "Sedge", "Murk", "Heron", "Willow", "Adder", "Lantern", "Moss", "Fen"},
     {"water", "mere", "ford", "bog", "stead", "slough", "ditch", "low", "root", "thicket"}},
    {{"Cinder", "Ash", "Scorch", "Slag", "Soot", "Flint", "Smoulder", "Brimstone", "Coal", "Pyre"},
     {"fall", "forge", "maw", "vale", "horn", "crown", "pit", "scar", "march", "throne"}},
}};

} // namespace

QStringList inventNames(Theme theme, int count, quint32 seed)
{
    Random random(seed);
    const Words &words = kWords[static_cast<size_t>(theme)];
    const auto pick = [&](const std::array<const char *, 10> &list) {
        return QString::fromLatin1(list[static_cast<size_t>(random.below(10))]);
    };
    QStringList names;
    QStringList heads;
    while (names.size() < count - 1) {
        const QString head = pick(words.heads);
        // Heads come again only once all of them have been used.
        if (heads.contains(head) && heads.size() % 10 != 0)
            continue;
        const QString name = head + pick(words.tails);
        if (names.contains(name))
            continue;
        if (heads.size() == 10)
            heads.clear();
        heads.append(head);
        names.append(name);
    }
    names.append(pick(words.heads) + QStringLiteral(" Light"));
    return names;
}

} // namespace art
