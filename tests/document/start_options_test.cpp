// Start options as they are written and read.
#include "document/start_options.h"

#include "document/campaign_data.h"
#include "tests/document/samples.h"

#include <QDataStream>
#include <QVector>
#include <QtTest>

Q_DECLARE_METATYPE(CmpStartingBonus)

class StartOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyClassIsAMetaType();
    void aBonusHasTheBytesOfItsType_data();
    void aBonusHasTheBytesOfItsType();
    void nothingIsAZeroByte();
    void anEmptyBonusListSurvives();
    void crossoversSurvive();
    void startingHeroesSurvive();
    void typesWithoutContentLeaveTheOptionsAsTheyWere_data();
    void typesWithoutContentLeaveTheOptionsAsTheyWere();
    void anUnknownTypeIsWrittenAsItsByte();
    void aTypeThatNoByteHoldsIsWrittenAsNone();
    void aListHoldsAtMost255Entries();
    void anEmptyHeroListBecomesAnEmptyBonusList_data();
    void anEmptyHeroListBecomesAnEmptyBonusList();
    void anEmptyHeroListStaysInMemory();
    void aPayloadOfAnotherClassIsWrittenAsZeros();
    void aHeroCanBeTaken_data();
    void aHeroCanBeTaken();
    void anyPrefixReads();
};

void StartOptionsTest::init()
{
    samples::setTables();
}

void StartOptionsTest::everyClassIsAMetaType()
{
    const CampaignData campaign; // registers them
    for (const char *name :
         {"StartingBonusSet", "StartingHeroSet", "HeroCrossoverSet", "BonusCreature", "BonusSpell",
          "BonusBuilding", "BonusArtifact", "BonusScroll", "BonusPrimarySkill",
          "BonusSecondarySkill", "BonusResource", "CmpHeroCrossover", "StartingHero"})
        QVERIFY2(QMetaType::type(name) >= QMetaType::User, name);
}

template<typename Bonus>
static CmpStartingBonus bonus(int type, Bonus value)
{
    return {quint8(type), QVariant::fromValue(value)};
}

static QByteArray written(ScenarioData &scenario)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.WriteStartOptions(stream);
    return bytes;
}

static ScenarioData read(const QByteArray &bytes)
{
    ScenarioData scenario;
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.ReadStartOptions(stream);
    return scenario;
}

template<typename Set>
static void setOptions(ScenarioData &scenario, quint32 type, const Set &set)
{
    scenario.startOptions = std::make_shared<CmpScenarioStartOptions>();
    scenario.startOptions->optionType = type;
    scenario.startOptions->optionData = QVariant::fromValue(set);
}

void StartOptionsTest::aBonusHasTheBytesOfItsType_data()
{
    QTest::addColumn<CmpStartingBonus>("value");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0 spell") << bonus(0, BonusSpell{0x1234, 5}) << QByteArray("\0\x34\x12\5", 4);
    QTest::newRow("1 creature") << bonus(1, BonusCreature{0x1234, 0x5678, 0x0102})
                                << QByteArray("\1\x34\x12\x78\x56\2\1");
    QTest::newRow("2 building") << bonus(2, BonusBuilding{200}) << QByteArray("\2\xC8");
    QTest::newRow("3 artifact") << bonus(3, BonusArtifact{0x1234, 0x5678})
                                << QByteArray("\3\x34\x12\x78\x56");
    QTest::newRow("4 scroll") << bonus(4, BonusScroll{0x1234, 9}) << QByteArray("\4\x34\x12\x09");
    QTest::newRow("5 primary skills")
        << bonus(5, BonusPrimarySkill{0x1234, {1, 2, 3, 4}}) << QByteArray("\5\x34\x12\1\2\3\4");
    QTest::newRow("6 secondary skill")
        << bonus(6, BonusSecondarySkill{0x1234, 7, 2}) << QByteArray("\6\x34\x12\7\2");
    QTest::newRow("7 resource") << bonus(7, BonusResource{6, -2})
                                << QByteArray("\7\6\xFE\xFF\xFF\xFF");
    QTest::newRow("8") << CmpStartingBonus{8, {}} << QByteArray("\x08");
    QTest::newRow("255") << CmpStartingBonus{255, {}} << QByteArray("\xFF");
}

void StartOptionsTest::aBonusHasTheBytesOfItsType()
{
    QFETCH(CmpStartingBonus, value);
    QFETCH(QByteArray, bytes);
    const QByteArray unit = QByteArray("\1\3\2") + bytes + "\x09"; // player 3, and a type 9
    ScenarioData scenario;
    setOptions(scenario, 1, StartingBonusSet{3, {value, {9, {}}}});
    QCOMPARE(written(scenario), unit);

    ScenarioData back = read(unit);
    QCOMPARE(back.startOptions->optionType, 1u);
    auto set = back.startOptions->optionData.value<StartingBonusSet>();
    QCOMPARE(set.player, quint8(3));
    QCOMPARE(set.bonuses.size(), size_t(2));
    QCOMPARE(set.bonuses[0].bonusType, value.bonusType);
    QCOMPARE(set.bonuses[0].bonusData.userType(), value.bonusData.userType());
    QCOMPARE(set.bonuses[1].bonusType, quint8(9));
    QVERIFY(!set.bonuses[1].bonusData.isValid());
    QCOMPARE(written(back), unit);
}

void StartOptionsTest::nothingIsAZeroByte()
{
    ScenarioData scenario;
    QCOMPARE(written(scenario), QByteArray("\0", 1));
    QVERIFY(!read(QByteArray("\0", 1)).startOptions);
}

void StartOptionsTest::anEmptyBonusListSurvives()
{
    ScenarioData scenario;
    setOptions(scenario, 1, StartingBonusSet{4, {}});
    QCOMPARE(written(scenario), QByteArray("\1\4\0", 3));
    const ScenarioData back = read(QByteArray("\1\4\0", 3));
    QCOMPARE(back.startOptions->optionType, 1u);
    QCOMPARE(back.startOptions->optionData.value<StartingBonusSet>().player, quint8(4));
    QVERIFY(back.startOptions->optionData.value<StartingBonusSet>().bonuses.empty());
}

void StartOptionsTest::crossoversSurvive()
{
    const QByteArray bytes("\2\2\5\1\6\0", 6);
    ScenarioData scenario = read(bytes);
    QCOMPARE(scenario.startOptions->optionType, 2u);
    auto set = scenario.startOptions->optionData.value<HeroCrossoverSet>();
    QCOMPARE(set.entries.size(), size_t(2));
    QCOMPARE(set.entries[0].player, quint8(5));
    QCOMPARE(set.entries[0].sourceScenario, quint8(1));
    QCOMPARE(set.entries[1].player, quint8(6));
    QCOMPARE(written(scenario), bytes);
    setOptions(scenario, 2, HeroCrossoverSet{});
    QCOMPARE(written(scenario), QByteArray("\2\0", 2));
}

void StartOptionsTest::startingHeroesSurvive()
{
    const QByteArray bytes("\3\2\5\x34\x12\6\xFF\xFF", 8);
    ScenarioData scenario = read(bytes);
    QCOMPARE(scenario.startOptions->optionType, 3u);
    auto set = scenario.startOptions->optionData.value<StartingHeroSet>();
    QCOMPARE(set.entries.size(), size_t(2));
    QCOMPARE(set.entries[0].player, quint8(5));
    QCOMPARE(set.entries[0].heroId, quint16(0x1234));
    QCOMPARE(set.entries[1].heroId, quint16(0xFFFF));
    QCOMPARE(written(scenario), bytes);
}

void StartOptionsTest::typesWithoutContentLeaveTheOptionsAsTheyWere_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 4, 5, 128, 255})
        QTest::newRow(qPrintable(QString::number(type))) << type;
}

void StartOptionsTest::typesWithoutContentLeaveTheOptionsAsTheyWere()
{
    QFETCH(int, type);
    const QByteArray bytes = ByteWriter().u8(unsigned(type)).u8(77).bytes();
    QDataStream stream(bytes);
    ScenarioData scenario;
    setOptions(scenario, 2, HeroCrossoverSet{});
    const auto before = scenario.startOptions;
    scenario.ReadStartOptions(stream);
    QCOMPARE(scenario.startOptions, before);
    QCOMPARE(stream.device()->pos(), qint64(1));
}

void StartOptionsTest::anUnknownTypeIsWrittenAsItsByte()
{
    ScenarioData scenario;
    setOptions(scenario, 9, StartingBonusSet{4, {}});
    QCOMPARE(written(scenario), QByteArray("\x09"));
    setOptions(scenario, 0, StartingBonusSet{4, {}});
    QCOMPARE(written(scenario), QByteArray("\0", 1));
}

void StartOptionsTest::aTypeThatNoByteHoldsIsWrittenAsNone()
{
    ScenarioData scenario;
    setOptions(scenario, 257, StartingBonusSet{4, {}});
    QCOMPARE(written(scenario), QByteArray("\0", 1));
}

void StartOptionsTest::aListHoldsAtMost255Entries()
{
    ScenarioData scenario;
    setOptions(scenario, 2, HeroCrossoverSet{std::vector<CmpHeroCrossover>(300, {1, 2})});
    const QByteArray bytes = written(scenario);
    QCOMPARE(bytes.size(), 2 + 2 * 255);
    QCOMPARE(bytes.left(2), QByteArray("\2\xFF"));
    const ScenarioData back = read(bytes);
    QCOMPARE(back.startOptions->optionData.value<HeroCrossoverSet>().entries.size(), size_t(255));
}

void StartOptionsTest::anEmptyHeroListBecomesAnEmptyBonusList_data()
{
    QTest::addColumn<bool>("withMap");
    QTest::addColumn<int>("player");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no map") << false << -1 << QByteArray("\1\0\0", 3);
    QTest::newRow("nobody") << true << -1 << QByteArray("\1\0\0", 3);
    QTest::newRow("player 0") << true << 0 << QByteArray("\1\0\0", 3);
    QTest::newRow("player 2") << true << 2 << QByteArray("\1\2\0", 3);
    QTest::newRow("player 7") << true << 7 << QByteArray("\1\7\0", 3);
}

void StartOptionsTest::anEmptyHeroListBecomesAnEmptyBonusList()
{
    QFETCH(bool, withMap);
    QFETCH(int, player);
    QFETCH(QByteArray, bytes);
    ScenarioData scenario;
    setOptions(scenario, 3, StartingHeroSet{});
    if (withMap) {
        scenario.mapHeader = std::make_shared<MapHeader>();
        for (PlayerAttributes &attributes : scenario.mapHeader->players)
            attributes.generatesHero = 1; // of no use to who can't be human
    }
    if (player >= 0) {
        scenario.mapHeader->players[size_t(player)].canHuman = 1;
        scenario.mapHeader->players[7].canHuman = 1;
    }
    QCOMPARE(written(scenario), bytes);
}

void StartOptionsTest::anEmptyHeroListStaysInMemory()
{
    ScenarioData scenario;
    setOptions(scenario, 3, StartingHeroSet{});
    written(scenario);
    QCOMPARE(scenario.startOptions->optionType, 3u);
    QVERIFY(scenario.startOptions->optionData.canConvert<StartingHeroSet>());
}

void StartOptionsTest::aPayloadOfAnotherClassIsWrittenAsZeros()
{
    ScenarioData scenario;
    setOptions(scenario, 1, StartingBonusSet{0, {bonus(3, BonusSpell{1, 2})}});
    QCOMPARE(written(scenario), QByteArray("\1\0\1\3\0\0\0\0", 8));
    setOptions(scenario, 2, StartingBonusSet{5, {}});
    QCOMPARE(written(scenario), QByteArray("\2\0", 2));
}

void StartOptionsTest::aHeroCanBeTaken_data()
{
    QTest::addColumn<int>("canHuman");
    QTest::addColumn<int>("generatesHero");
    QTest::addColumn<QVector<int>>("onMap");
    QTest::addColumn<QVector<int>>("used");
    QTest::addColumn<bool>("answer");
    using List = QVector<int>;
    QTest::newRow("no human") << 0 << 1 << List{4} << List{} << false;
    QTest::newRow("a hero on the map") << 1 << 0 << List{4} << List{} << true;
    QTest::newRow("no hero at all") << 1 << 0 << List{} << List{} << false;
    QTest::newRow("its hero is taken") << 1 << 0 << List{4} << List{4} << false;
    QTest::newRow("one of two is left") << 1 << 0 << List{4, 5} << List{4} << true;
    QTest::newRow("a town brings one forth") << 1 << 1 << List{4} << List{4} << true;
    QTest::newRow("any flag will do") << 255 << 2 << List{} << List{} << true;
}

void StartOptionsTest::aHeroCanBeTaken()
{
    QFETCH(int, canHuman);
    QFETCH(int, generatesHero);
    QFETCH(QVector<int>, onMap);
    QFETCH(QVector<int>, used);
    QFETCH(bool, answer);
    ScenarioData scenario;
    const std::set<int> taken(used.begin(), used.end());
    QVERIFY(!playerCanTakeHero(scenario, taken, 3));
    scenario.mapHeader = std::make_shared<MapHeader>();
    PlayerAttributes &player = scenario.mapHeader->players[3];
    player.canHuman = quint8(canHuman);
    player.generatesHero = quint8(generatesHero);
    for (const int hero : onMap)
        player.heroInfo.push_back({quint8(hero), {}});
    QCOMPARE(playerCanTakeHero(scenario, taken, 3), answer);
    QVERIFY(!playerCanTakeHero(scenario, taken, 8));
    QVERIFY(!playerCanTakeHero(scenario, taken, 4000000000u));
}

void StartOptionsTest::anyPrefixReads()
{
    const QByteArray bonuses("\1\3\4\1\x34\x12\x78\x56\2\1\7\6\xFE\xFF\xFF\xFF\2\x05\x09", 19);
    const QByteArray heroes("\3\2\5\x34\x12\6\xFF\xFF", 8);
    for (const QByteArray &unit : {bonuses, heroes, QByteArray("\2\2\5\1\6\7", 6)}) {
        for (int size = 0; size < unit.size(); ++size)
            written(*std::make_unique<ScenarioData>(read(unit.left(size))));
    }
    // Two of three heroes are there, the second one in part.
    const ScenarioData scenario = read(QByteArray("\3\3\5\x34\x12\6\x01", 7));
    const auto set = scenario.startOptions->optionData.value<StartingHeroSet>();
    QCOMPARE(set.entries.size(), size_t(2));
    QCOMPARE(set.entries[1].player, quint8(6));
    QCOMPARE(set.entries[1].heroId, quint16(0));
}

QTEST_GUILESS_MAIN(StartOptionsTest)
#include "start_options_test.moc"
