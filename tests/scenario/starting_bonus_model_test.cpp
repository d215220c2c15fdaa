// The rows that survive on the page of starting bonuses, held against a plain walk over them on
// random maps.
#include "scenario/starting_bonus.h"

#include "document/campaign_data.h"
#include "tests/scenario/shown_page.h"
#include "tests/support/bonus_rows.h"

#include <QtTest>

#include <random>

namespace {

constexpr int rounds = 10000;
constexpr unsigned int seed = 5;
constexpr int mostRows = 6;

struct Row
{
    bool hasItem = true;
    int type = 0;
    QVariant payload;
    QString text;
    int id = 0; // of the row before anything is removed
};

struct Outcome
{
    std::vector<Row> rows;
    int traces = 0;
};

// The hero of a payload of the kind that its type says, 0 of any other.
int heroOf(const Row &row)
{
    switch (row.type) {
    case 0:
        return qvariant_cast<BonusSpell>(row.payload).heroId;
    case 1:
        return qvariant_cast<BonusCreature>(row.payload).heroId;
    case 3:
        return qvariant_cast<BonusArtifact>(row.payload).heroId;
    case 4:
        return qvariant_cast<BonusScroll>(row.payload).heroId;
    case 5:
        return qvariant_cast<BonusPrimarySkill>(row.payload).heroId;
    default:
        return qvariant_cast<BonusSecondarySkill>(row.payload).heroId;
    }
}

bool townCanHave(int building, int town)
{
    if (building == 10)
        return town == 2 || town == 5 || town == 8 || town == 10;
    if (building == 14)
        return town != 6 && town != 7;
    if (building == 15)
        return town != 0 && town != 6 && town != 7 && town != 9;
    const QList<int> nowhere{16, 18, 19, 20, 21, 24, 27, 30, 33, 36};
    return !nowhere.contains(building);
}

QString buildingText(int building, int town)
{
    QString name;
    if (EditorData::buildings.count(town) && EditorData::buildings.at(town).count(building))
        name = EditorData::buildings.at(town).at(building);
    return "Build " + name + " at Main Town";
}

// Keeps or removes the row at the position; true if it stays.
bool judge(Row &row, const PlayerAttributes &player, const std::vector<char> &onMap, int &traces)
{
    const int building = qvariant_cast<BonusBuilding>(row.payload).buildingId;
    int hero = 0;
    switch (row.type) {
    case 2:
        if (player.mainTownType == 0xFF)
            return false;
        if (!player.hasMainTown || !townCanHave(building, player.mainTownType))
            return false;
        row.text = buildingText(building, player.mainTownType);
        return true;
    case 0:
    case 1:
    case 3:
    case 4:
    case 5:
    case 6:
        hero = heroOf(row);
        if (hero == 0xFFFE && !(player.generatesHero && player.hasMainTown)) {
            ++traces;
            return false;
        }
        if (hero == 0xFFFD || hero == 0xFFFE)
            return true;
        return hero < int(onMap.size()) && onMap[std::size_t(hero)];
    default:
        return true;
    }
}

Outcome modelOf(std::vector<Row> rows, const MapHeader *map, unsigned int number)
{
    const PlayerAttributes player = map && number < 8 ? map->players[number] : PlayerAttributes();
    std::vector<char> onMap(EditorData::heroes.size(), 0);
    for (const PlayerAttributesHeroInfo &hero : player.heroInfo) {
        if (hero.heroId < onMap.size())
            onMap[hero.heroId] = 1;
    }
    int traces = 0;
    for (std::size_t position = 0; position < rows.size();) {
        if (!rows[position].hasItem || judge(rows[position], player, onMap, traces))
            ++position;
        else
            rows.erase(rows.begin() + std::ptrdiff_t(position));
    }
    return {rows, traces};
}

class RandomBonuses
{
public:
    int below(int end) { return std::uniform_int_distribution<>(0, end - 1)(m_random); }
    int oneOf(const std::vector<int> &values)
    {
        return values[std::size_t(below(int(values.size())))];
    }

    std::shared_ptr<MapHeader> map()
    {
        if (below(50) == 0)
            return nullptr;
        auto header = std::make_shared<MapHeader>();
        for (PlayerAttributes &player : header->players) {
            player.canHuman = quint8(below(2));
            player.hasMainTown = quint8(oneOf({0, 1, 1, 2}));
            player.generatesHero = quint8(oneOf({0, 1, 7}));
            player.mainTownType = quint8(oneOf({0, 2, 2, 5, 6, 7, 8, 9, 10, 200, 255}));
            for (int hero = below(6); hero > 0; --hero)
                player.heroInfo.push_back({quint8(oneOf({0, 1, 2, 3, 5, 7, 9, 10, 255})), ""});
        }
        return header;
    }

    unsigned int player() { return unsigned(oneOf({0, 1, 2, 3, 4, 5, 6, 7, 8, 200, -1})); }

    QVariant payload(int type)
    {
        const auto hero = quint16(
            oneOf({0, 1, 2, 3, 5, 7, 9, 10, 255, 0x0102, 0xFFFC, 0xFFFD, 0xFFFE, 0xFFFE, 0xFFFF}));
        const auto building = quint8(oneOf({0, 5, 10, 10, 11, 14, 15, 16, 21, 30, 36, 40, 255}));
        switch (below(20) == 0 ? below(9) : type) { // at times of another kind
        case 0:
            return QVariant::fromValue(BonusSpell{hero, 1});
        case 1:
            return QVariant::fromValue(BonusCreature{hero, 1, 5});
        case 2:
            return QVariant::fromValue(BonusBuilding{building});
        case 3:
            return QVariant::fromValue(BonusArtifact{hero, 4});
        case 4:
            return QVariant::fromValue(BonusScroll{hero, 2});
        case 5:
            return QVariant::fromValue(BonusPrimarySkill{hero, {1, 2, 0, 0}});
        case 6:
            return QVariant::fromValue(BonusSecondarySkill{hero, 1, 2});
        case 7:
            return QVariant::fromValue(BonusResource{6, 100});
        default:
            return {};
        }
    }

    std::vector<Row> rows()
    {
        std::vector<Row> made(std::size_t(below(mostRows + 1)));
        int id = 0;
        for (Row &row : made) {
            row.hasItem = below(12) > 0;
            row.type = oneOf({0, 1, 2, 2, 2, 3, 4, 5, 6, 7, 8, 255});
            row.payload = payload(row.type);
            row.id = id++;
            row.text = QStringLiteral("row %1").arg(row.id);
        }
        return made;
    }

private:
    std::mt19937 m_random{seed};
};

void fillTable(QTableWidget *table, const std::vector<Row> &rows)
{
    table->setRowCount(0);
    table->setRowCount(int(rows.size()));
    for (const Row &row : rows) {
        if (!row.hasItem)
            continue;
        auto *item = new QTableWidgetItem(row.text);
        item->setData(Qt::UserRole, row.payload);
        item->setData(Qt::UserRole + 1, QVariant::fromValue(quint8(row.type)));
        table->setItem(row.id, 0, item);
    }
}

QStringList textsOf(const std::vector<Row> &rows)
{
    QStringList texts;
    for (const Row &row : rows)
        texts << (row.hasItem ? row.text : QStringLiteral("-"));
    return texts;
}

QStringList textsOf(const QTableWidget *table)
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        texts << (table->item(row, 0) ? table->item(row, 0)->text() : QStringLiteral("-"));
    return texts;
}

} // namespace

class StartingBonusModelTest : public QObject
{
    Q_OBJECT

private slots:
    void theRowsThatStayAreThoseOfThePlainWalk();
};

void StartingBonusModelTest::theRowsThatStayAreThoseOfThePlainWalk()
{
    fillNameTables();
    RandomBonuses random;
    StartingBonus page(nullptr);
    auto *table = childOf<QTableWidget>(&page, "tableWidget");
    ScenarioData scenario;
    page.initInfo(&scenario, 24);
    int kept = 0;
    int removed = 0;
    int traced = 0;
    for (int round = 0; round < rounds; ++round) {
        scenario.mapHeader = random.map();
        const std::vector<Row> rows = random.rows();
        const unsigned int player = random.player();
        fillTable(table, rows);
        const Outcome expected = modelOf(rows, scenario.mapHeader.get(), player);

        QStringList traces;
        {
            const TraceRecorder recorder;
            page.validateForPlayer(player);
            traces = TraceRecorder::messages();
        }
        QVERIFY2(textsOf(table) == textsOf(expected.rows),
                 qPrintable(QStringLiteral("round %1: %2 instead of %3")
                                .arg(QString::number(round), textsOf(table).join("; "),
                                     textsOf(expected.rows).join("; "))));
        QCOMPARE(traces.count("Bad (no generated hero)"), expected.traces);
        kept += int(expected.rows.size());
        removed += int(rows.size() - expected.rows.size());
        traced += expected.traces;
    }
    // Enough of each, or the walk proves little.
    QVERIFY(kept > rounds / 2);
    QVERIFY(removed > rounds / 2);
    QVERIFY(traced > rounds / 50);
}

QTEST_MAIN(StartingBonusModelTest)
#include "starting_bonus_model_test.moc"
