// Another map is imported over a scenario with start options: the rows that it doesn't allow are
// gone, and only those. Through the whole dialog, on the sample game's maps.
#include "tests/scenario/general_tab.h"
#include "tests/scenario/map_fixture.h"
#include "tests/support/file_dialogs.h"

namespace {

enum Player
{
    Red,
    Blue,
    Tan,
    Green,
    Orange
};

constexpr int edited = 3; // the scenario in work, which requires the three before it
constexpr int heroesOfTheGame = 178;

constexpr quint16 strongest = 0xFFFD;
constexpr quint16 generated = 0xFFFE;
constexpr quint16 anyHero = 0xFFFF;

CmpStartingBonus spellFor(quint16 hero)
{
    return {0, QVariant::fromValue(BonusSpell{hero, 1})};
}

CmpStartingBonus townHall()
{
    return {2, QVariant::fromValue(BonusBuilding{5})};
}

CmpStartingBonus gold()
{
    return {7, QVariant::fromValue(BonusResource{6, 500})};
}

CmpScenarioStartOptions bonusesFor(int player, const std::vector<CmpStartingBonus> &rows)
{
    return {1, QVariant::fromValue(StartingBonusSet{quint8(player), rows})};
}

CmpScenarioStartOptions crossovers(const std::vector<CmpHeroCrossover> &rows)
{
    return {2, QVariant::fromValue(HeroCrossoverSet{rows})};
}

CmpScenarioStartOptions heroes(const std::vector<StartingHero> &rows)
{
    return {3, QVariant::fromValue(StartingHeroSet{rows})};
}

QString textOfBonus(const CmpStartingBonus &bonus)
{
    switch (bonus.bonusType) {
    case 0:
        return QStringLiteral("spell for %1").arg(bonus.bonusData.value<BonusSpell>().heroId);
    case 2:
        return QStringLiteral("building %1").arg(bonus.bonusData.value<BonusBuilding>().buildingId);
    default:
        return QStringLiteral("resource %1").arg(bonus.bonusData.value<BonusResource>().amount);
    }
}

// The type, and the rows in their order.
QStringList textsOf(const CmpScenarioStartOptions &options)
{
    QStringList texts{QStringLiteral("type %1").arg(options.optionType)};
    if (options.optionType == 1) {
        const auto set = options.optionData.value<StartingBonusSet>();
        texts << QStringLiteral("player %1").arg(set.player);
        for (const CmpStartingBonus &bonus : set.bonuses)
            texts << textOfBonus(bonus);
    }
    for (const CmpHeroCrossover &row : options.optionData.value<HeroCrossoverSet>().entries)
        texts << QStringLiteral("player %1 from %2").arg(row.player).arg(row.sourceScenario);
    for (const StartingHero &row : options.optionData.value<StartingHeroSet>().entries)
        texts << QStringLiteral("player %1 as %2").arg(row.player).arg(row.heroId);
    return texts;
}

QString sampleMap(const QString &name)
{
    return qEnvironmentVariable("CMPED_SAMPLE_GAME") + "/Maps/" + name + ".e3m";
}

} // namespace

Q_DECLARE_METATYPE(CmpScenarioStartOptions)

class MapChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void anotherMapDropsTheRowsItDoesNotAllow_data();
    void anotherMapDropsTheRowsItDoesNotAllow();
    void whatIsDroppedDoesNotComeBack();
    void aCancelledImportLeavesAllRows();

private:
    CampaignData campaignOn(const QString &map, const CmpScenarioStartOptions &options);
    void import(GeneralTab &tab, const QString &map);

    std::unique_ptr<MapFixture> fixture;
};

void MapChangeTest::initTestCase()
{
    fixture = std::make_unique<MapFixture>();
    for (int hero = 0; hero < heroesOfTheGame; ++hero)
        EditorData::heroes[hero] = QStringLiteral("Hero %1").arg(hero);
    QVERIFY2(QFile::exists(sampleMap("The Split Crown")), "the sample game is missing");
}

CampaignData MapChangeTest::campaignOn(const QString &map, const CmpScenarioStartOptions &options)
{
    CampaignData campaign = campaignOf(true, {"ford", "weir", "pass", "crown"});
    require(campaign, {"0000", "0000", "0000", "1110"});
    ScenarioData &scenario = campaign.scenarios[edited];
    QFile file(sampleMap(map));
    if (!file.open(QIODevice::ReadOnly) || scenario.ReadMapFromFile(&file) != 1)
        qFatal("The map can't be read.");
    scenario.startOptions = std::make_shared<CmpScenarioStartOptions>(options);
    return campaign;
}

void MapChangeTest::import(GeneralTab &tab, const QString &map)
{
    const QString shown = tab.copy().scenarios[edited].mapFileName;
    const QByteArray used = usedFolderBytes();
    const QString start = used.isEmpty() ? fixture->maps() : QString::fromUtf8(used);
    NextDialog dialog(
        chooseFile(MapFixture::opening(start, shown), map.isEmpty() ? QString() : sampleMap(map)));
    tab.click("refreshButton");
}

void MapChangeTest::anotherMapDropsTheRowsItDoesNotAllow_data()
{
    QTest::addColumn<CmpScenarioStartOptions>("before");
    QTest::addColumn<QString>("map");
    QTest::addColumn<QStringList>("after");
    const QString mended = "The Split Crown, Mended";
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };

    row("hero who left, random town")
        << bonusesFor(Red, {spellFor(5), townHall(), gold()}) << mended
        << QStringList{"type 1", "player 0", "resource 500"};
    row("town that brings nobody forth")
        << bonusesFor(Red, {spellFor(generated), spellFor(2), spellFor(strongest)}) << mended
        << QStringList{"type 1", "player 0", "spell for 2", "spell for 65533"};
    row("player who lost a town") << bonusesFor(Tan,
                                                {townHall(), spellFor(generated), spellFor(61)})
                                  << mended << QStringList{"type 1", "player 2", "spell for 61"};
    // Judged for the player they were made for, then handed to the first who is on show.
    row("player who is no human any more")
        << bonusesFor(Blue, {spellFor(28), townHall(), spellFor(generated)}) << mended
        << QStringList{"type 1", "player 0", "building 5", "spell for 65534"};
    row("player who stands as before")
        << bonusesFor(Orange, {spellFor(generated), townHall(), gold()}) << mended
        << QStringList{"type 1", "player 4", "spell for 65534", "building 5", "resource 500"};
    row("bonuses where nobody is human")
        << bonusesFor(Red, {spellFor(5), spellFor(2), townHall()}) << "Empty Thrones"
        << QStringList{"type 1", "player 0", "spell for 2", "building 5"};

    row("crossovers of two who are no humans")
        << crossovers({{Blue, 0}, {Blue, 1}, {Red, 2}}) << mended
        << QStringList{"type 2", "player 0 from 2"};
    row("crossovers of one behind two others")
        << crossovers({{Red, 2}, {Tan, 1}, {Blue, 0}}) << mended
        << QStringList{"type 2", "player 0 from 2", "player 2 from 1"};
    row("crossovers where nobody is human") << crossovers({{Red, 0}, {Tan, 1}, {Orange, 2}})
                                            << "Empty Thrones" << QStringList{"type 2"};

    row("offer of a hero who left") << heroes({{Red, 2}, {Red, 5}, {Tan, 61}}) << mended
                                    << QStringList{"type 3", "player 0 as 2", "player 2 as 61"};
    row("offers of a town that is gone") << heroes({{Tan, anyHero}, {Tan, 3}, {Tan, 61}}) << mended
                                         << QStringList{"type 3", "player 2 as 61"};
    row("offers of a town that brings nobody forth")
        << heroes({{Red, anyHero}, {Red, 3}, {Red, 2}}) << mended
        << QStringList{"type 3", "player 0 as 2"};
    row("offers of heroes who are disabled")
        << heroes({{Orange, 11}, {Orange, 15}, {Orange, anyHero}}) << mended
        << QStringList{"type 3", "player 4 as 15", "player 4 as 65535"};
    row("offers of two who are no humans") << heroes({{Blue, 28}, {Blue, 0}, {Red, 2}}) << mended
                                           << QStringList{"type 3", "player 0 as 2"};
    row("offers where the first has nobody to send")
        << heroes({{Red, 2}, {Red, 3}, {Blue, 28}}) << "Second Sons"
        << QStringList{"type 1", "player 0"};
    row("offers where nobody is human") << heroes({{Red, 2}, {Red, 3}, {Orange, 4}})
                                        << "Empty Thrones" << QStringList{"type 1", "player 0"};
}

void MapChangeTest::anotherMapDropsTheRowsItDoesNotAllow()
{
    QFETCH(CmpScenarioStartOptions, before);
    QFETCH(QString, map);
    QFETCH(QStringList, after);
    CampaignData campaign = campaignOn("The Split Crown", before);
    GeneralTab tab(campaign, edited);
    QCOMPARE(tab.dialog.getSelectedOption(), before.optionType);
    QCOMPARE(tab.dialog.getOptionCount(), 3U);
    import(tab, map);
    QVERIFY(tab.dialog.hasChanged());
    QCOMPARE(tab.dialog.saveScenarioInfo(), after != textsOf(before));
    const ScenarioData &scenario = tab.copy().scenarios[edited];
    QCOMPARE(scenario.mapFileName, map + ".e3m");
    QCOMPARE(textsOf(*scenario.startOptions), after);
    QCOMPARE(textsOf(*campaign.scenarios[edited].startOptions), textsOf(before));
}

void MapChangeTest::whatIsDroppedDoesNotComeBack()
{
    CampaignData campaign =
        campaignOn("The Split Crown", heroes({{Red, 5}, {Red, 2}, {Tan, anyHero}}));
    GeneralTab tab(campaign, edited);
    import(tab, "The Split Crown, Mended");
    QCOMPARE(tab.dialog.getOptionCount(), 1U);
    import(tab, "The Split Crown");
    QCOMPARE(tab.dialog.getOptionCount(), 1U);
    QVERIFY(tab.dialog.saveScenarioInfo());
    QCOMPARE(textsOf(*tab.copy().scenarios[edited].startOptions),
             QStringList({"type 3", "player 0 as 2"}));
}

void MapChangeTest::aCancelledImportLeavesAllRows()
{
    CampaignData campaign =
        campaignOn("The Split Crown", heroes({{Red, 5}, {Red, 2}, {Tan, anyHero}}));
    GeneralTab tab(campaign, edited);
    import(tab, {});
    QCOMPARE(tab.dialog.getOptionCount(), 3U);
    QVERIFY(!tab.dialog.hasChanged());
    QVERIFY(!tab.dialog.saveScenarioInfo());
}

QTEST_MAIN(MapChangeTest)
#include "map_change_test.moc"
