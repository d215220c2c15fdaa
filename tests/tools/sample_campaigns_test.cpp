// The sample game's scenario maps, campaigns and tunes.
#include "tests/tools/made_game.h"

#include <QDir>
#include <QSet>
#include <QTest>

#include <zlib.h>

class SampleCampaignsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(m_game.openBuilt(), QByteArray()); }
    void everyTrackThatStoriesPlayIsThere();
    void mapsAreOfEveryVersion_data();
    void mapsAreOfEveryVersion();
    void mapsForRulesHaveTheirPlayers_data();
    void mapsForRulesHaveTheirPlayers();
    void faultyMapsAreFaultyInTheirOwnWay();
    void campaignsReadToTheirEnd_data();
    void campaignsReadToTheirEnd();
    void sampleStartsWithTheExpectedHeader();
    void sampleShowsEveryLookColourAndOption();
    void campaignWithoutMapIsOneChain();
    void firstMembersArePackedTheStandardWayButOne();

private:
    MadeGame m_game;
};

void SampleCampaignsTest::everyTrackThatStoriesPlayIsThere()
{
    QMap<int, QString> names;
    const QStringList base = m_game.rows(QStringLiteral("CmpMusic.txt"));
    for (int i = 0; i < 49; ++i)
        names[i] = base.at(i);
    const QStringList added = MadeGame::listOf(m_game.ofKind("music").last(), 8);
    for (int i = 0; i < added.size(); ++i)
        names[49 + i] = QString(added.at(i)).remove(QLatin1Char('"'));
    QSet<int> used = {0, 34};
    for (const QString &name :
         QDir(m_game.path(QStringLiteral("Maps"))).entryList({QStringLiteral("*.e3c")})) {
        const CampaignRecord read = m_game.campaign(name);
        used.insert(read.musicId);
        for (const ScenarioRecord &scenario : read.scenarios) {
            for (const auto *stories : {&scenario.prologues, &scenario.epilogues}) {
                for (const StoryRecord &story : *stories) {
                    if (story.present)
                        used.insert(story.music);
                }
            }
        }
    }
    QVERIFY(used.size() >= 6);
    for (const int track : qAsConst(used)) {
        const QByteArray sound = m_game.file(QStringLiteral("MP3/%1.mp3").arg(names.value(track)));
        QVERIFY2(sound.size() > 60000 && sound.size() < 122000, qPrintable(names.value(track)));
        QVERIFY(uchar(sound.at(0)) == 0xff && (uchar(sound.at(1)) & 0xe0) == 0xe0);
    }
}

void SampleCampaignsTest::mapsAreOfEveryVersion_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("subVersion");
    QTest::addColumn<int>("heroes");
    QTest::addColumn<int>("availableBits");
    QTest::newRow("The Old Ford") << 14 << 0 << 0 << 128;
    QTest::newRow("Mill Pond") << 21 << 0 << 3 << 160;
    QTest::newRow("Drums of the Karrun") << 21 << 0 << 1 << 160;
    QTest::newRow("Lantern Landing") << 28 << 0 << 2 << 160;
    QTest::newRow("Nine Wells") << 28 << 0 << 2 << 160;
    QTest::newRow("Barrow Night") << 28 << 0 << 2 << 160;
    QTest::newRow("Heron Court") << 32 << 0 << 2 << 178;
    QTest::newRow("The Ash Road") << 32 << 1 << 2 << 178;
    QTest::newRow("The Sealed Weir") << 32 << 2 << 3 << 178;
    QTest::newRow("Saltharbour") << 32 << 4 << 2 << 178;
    QTest::newRow("The Toll Bridge") << 32 << 7 << 1 << 178;
    QTest::newRow("Over the Snow Pass") << 32 << 7 << 2 << 178;
}

void SampleCampaignsTest::mapsAreOfEveryVersion()
{
    QFETCH(int, version);
    QFETCH(int, subVersion);
    QFETCH(int, heroes);
    QFETCH(int, availableBits);
    const QString name = QLatin1String(QTest::currentDataTag());
    const QByteArray packed = m_game.file(QStringLiteral("Maps/%1.e3m").arg(name));
    QVERIFY(packed.size() > 20000 && packed.size() < 62000);
    const Inflated plain = inflated(packed);
    QVERIFY(plain.complete);
    QCOMPARE(plain.packedSize, qint64(packed.size()));
    QCOMPARE(numberAt(packed, packed.size() - 4), plain.content.size());
    QCOMPARE(numberAt(packed, 4), 0); // no time in the member's header
    const MapRecord map = readMap(plain.content);
    QCOMPARE(map.version, version);
    QCOMPARE(map.subVersion, subVersion);
    QCOMPARE(map.name, name);
    QVERIFY(!map.description.isEmpty());
    QCOMPARE(map.anyPlayers, 1);
    QVERIFY(map.humans >= 1);
    QCOMPARE(map.heroesOnMap, heroes);
    QCOMPARE(map.availableBits, availableBits);
    QVERIFY(map.exact);
}

// A player in words: who may play it, the type of its main town with "+" if it brings a hero forth,
// and its heroes on the map.
void SampleCampaignsTest::mapsForRulesHaveTheirPlayers_data()
{
    QTest::addColumn<QStringList>("players");
    QTest::addColumn<QVector<int>>("locked");
    QTest::addColumn<QVector<int>>("custom");
    const QVector<int> nobody;
    const QString none = QStringLiteral("computer none []");
    const auto row = [](const char *name, const QStringList &players, const QVector<int> &locked,
                        const QVector<int> &custom) {
        QTest::newRow(name) << players << locked << custom;
    };
    row("Empty Thrones",
        {"computer 0+ [2]", none, "computer 4+ []", none, none, none, "computer 255+ []", none},
        nobody, nobody);
    row("Second Sons",
        {"human 0 []", "human 1+ [5, 28 Elowyn the Younger]", none, "human 2+ []", none, none, none,
         none},
        nobody, nobody);
    row("Foundling Hall",
        {"human 3+ []", "human 6 []", "human none [61]", "human none []", none, none, none, none},
        nobody, nobody);
    row("The Wandering Fair",
        {"human 255+ []", "human 255 [15]", "human 8+ []", none, none, none, none, none}, nobody,
        nobody);
    row("Eight Hearths",
        {"human 0+ []", "human 1 []", "human 2+ []", "human 3 []", "human 4+ []", "human 5 []",
         "human 6+ []", "human 7 []"},
        nobody, nobody);
    row("Three Far Hearths",
        {"human 8+ []", "human 9 []", "human 10+ []", none, none, none, none, none}, nobody,
        nobody);
    row("The Roll of Names",
        {"human 0+ [2 Corvane Two-Shadows, 5, 2, 10]", "human 1+ [5 Fennick, or so he says]", none,
         none, none, none, none, none},
        {10, 11, 15, 16}, {15, 30});
    row("The Split Crown",
        {"human 0+ [2, 5 Fennick Halfcrown]", "human 1+ [28]", "human 5+ [61]", "computer 7+ []",
         "human 9+ []", none, none, none},
        {16}, nobody);
    row("The Split Crown, Mended",
        {"human 255 [2]", "computer 1+ []", "human none [61 Harrakesh the Landless]", "human 7+ []",
         "human 9+ []", none, none, none},
        {11, 15, 16}, {15});
}

void SampleCampaignsTest::mapsForRulesHaveTheirPlayers()
{
    QFETCH(QVector<int>, locked);
    const QString name = QLatin1String(QTest::currentDataTag());
    const Inflated plain = inflated(m_game.file(QStringLiteral("Maps/%1.e3m").arg(name)));
    QVERIFY(plain.complete);
    const MapRecord map = readMap(plain.content);
    QVERIFY(map.exact);
    QCOMPARE(map.anyPlayers, 1);
    QCOMPARE(map.name, name);
    QVERIFY(!map.description.isEmpty());
    QStringList players;
    for (const MapPlayerRecord &player : map.players) {
        const QString town =
            player.mainTown < 0 ? QStringLiteral("none") : QString::number(player.mainTown);
        players += QStringLiteral("%1 %2%3 [%4]")
                       .arg(player.human ? "human" : "computer", town, player.heroInTown ? "+" : "",
                            player.heroes.join(", "));
    }
    QTEST(players, "players");
    QCOMPARE(map.available.size(), map.availableBits - locked.size());
    for (const int hero : qAsConst(locked))
        QVERIFY(!map.available.contains(hero));
    QTEST(map.customHeroes, "custom");
}

void SampleCampaignsTest::faultyMapsAreFaultyInTheirOwnWay()
{
    const Inflated nobody = inflated(m_game.file(QStringLiteral("Maps/Nobody Home.e3m")));
    QVERIFY(nobody.complete);
    QCOMPARE(readMap(nobody.content).anyPlayers, 0);
    QVERIFY(readMap(nobody.content).exact);

    const QByteArray plain = m_game.file(QStringLiteral("Maps/Plain Sailing.e3m"));
    QCOMPARE(numberAt(plain, 0), 28);
    QVERIFY(readMap(plain).exact);

    const Inflated torn = inflated(m_game.file(QStringLiteral("Maps/Torn Page.e3m")));
    QVERIFY(!torn.complete);
    QCOMPARE(readMap(torn.content).name, QStringLiteral("Torn Page"));
}

void SampleCampaignsTest::campaignsReadToTheirEnd_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("subVersion");
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<int>("mapId");
    QTest::addColumn<int>("scenarios");
    QTest::addColumn<int>("imported");
    QTest::newRow("sample.e3c") << 10 << 1 << true << 24 << 10 << 8;
    QTest::newRow("without_map.e3c") << 10 << 1 << false << 24 << 4 << 3;
    QTest::newRow("version_5.e3c") << 5 << 0 << true << 15 << 7 << 3;
    QTest::newRow("version_6.e3c") << 6 << 0 << true << 15 << 7 << 3;
    QTest::newRow("ready_made_pictures.e3c") << 10 << 1 << true << 3 << 5 << 3;
    QTest::newRow("no_maps_yet.e3c") << 10 << 1 << true << 8 << 4 << 0;
    QTest::newRow("foreign_packer.e3c") << 10 << 0 << true << 27 << 6 << 2;
}

void SampleCampaignsTest::campaignsReadToTheirEnd()
{
    QFETCH(int, version);
    QFETCH(int, subVersion);
    QFETCH(bool, hasMap);
    QFETCH(int, mapId);
    QFETCH(int, scenarios);
    QFETCH(int, imported);
    const QString name = QLatin1String(QTest::currentDataTag());
    const QByteArray bytes = m_game.file(QStringLiteral("Maps/") + name);
    const CampaignRecord read = m_game.campaign(name);
    QVERIFY(read.exact);
    QCOMPARE(read.version, version);
    QCOMPARE(read.subVersion, subVersion);
    QCOMPARE(read.hasMap, hasMap);
    QCOMPARE(read.mapId, mapId);
    QCOMPARE(read.scenarioCount, hasMap ? 0 : scenarios);
    QCOMPARE(read.scenarios.size(), scenarios);
    QVERIFY(!read.name.isEmpty() && read.name.size() <= 60 && read.description.size() <= 300);

    qint64 offset = inflated(bytes).packedSize;
    int found = 0;
    for (const ScenarioRecord &scenario : read.scenarios) {
        QCOMPARE(scenario.mapSize == 0, scenario.mapFileName.isEmpty());
        if (scenario.mapSize == 0)
            continue;
        ++found;
        QCOMPARE(bytes.mid(int(offset), int(scenario.mapSize)),
                 m_game.file(QStringLiteral("Maps/") + scenario.mapFileName));
        offset += scenario.mapSize;
        for (const auto *stories : {&scenario.prologues, &scenario.epilogues}) {
            for (const StoryRecord &story : *stories)
                QVERIFY(story.video <= 20 && story.video != 18);
        }
    }
    QCOMPARE(found, imported);
    QCOMPARE(offset, qint64(bytes.size()));
}

void SampleCampaignsTest::sampleStartsWithTheExpectedHeader()
{
    const Inflated first = inflated(m_game.file(QStringLiteral("Maps/sample.e3c")));
    QVERIFY(first.complete);
    const QByteArray expected = QByteArray("\x0a\0\0\0"
                                           "\x01\0\0\0"
                                           "\x01"
                                           "\0\0\0\0"
                                           "\0\0\0\0"
                                           "\x19"
                                           "\x10\0\0\0",
                                           22) +
                                "The Absent Queen";
    QCOMPARE(first.content.left(expected.size()), expected);
}

void SampleCampaignsTest::sampleShowsEveryLookColourAndOption()
{
    const CampaignRecord read = m_game.campaign(QStringLiteral("sample.e3c"));
    QSet<int> colours;
    QSet<int> options;
    QSet<int> bonuses;
    int unused = 0;
    bool threeStories = false;
    bool epilogue = false;
    for (const ScenarioRecord &scenario : read.scenarios) {
        unused += scenario.mapSize == 0 ? 1 : 0;
        options.insert(scenario.optionType);
        for (const int type : scenario.bonusTypes)
            bonuses.insert(type);
        if (scenario.mapSize != 0)
            colours.insert(scenario.colour);
        threeStories = threeStories || scenario.prologues[2].present;
        epilogue = epilogue || scenario.epilogues[0].present;
    }
    QCOMPARE(unused, 2);
    QVERIFY(read.scenarios.first().mapSize != 0); // the region that is selected at first
    QCOMPARE(colours, (QSet<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    QCOMPARE(options, (QSet<int>{0, 1, 2, 3}));
    QCOMPARE(bonuses, (QSet<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    QVERIFY(threeStories && epilogue);
    const ScenarioRecord &last = read.scenarios.last();
    QCOMPARE(last.heroKeeps.size(), 5);
    QCOMPARE(last.creatures.size(), kCreatures);
    QCOMPARE(last.artifacts.last(), kArtifacts - 1);
}

void SampleCampaignsTest::campaignWithoutMapIsOneChain()
{
    const CampaignRecord read = m_game.campaign(QStringLiteral("without_map.e3c"));
    QCOMPARE(read.background, 2);
    QCOMPARE(read.scenarios.at(0).prerequisites, QVector<int>());
    QCOMPARE(read.scenarios.at(1).prerequisites, QVector<int>());
    QCOMPARE(read.scenarios.at(1).mapSize, qint64(0));
    QCOMPARE(read.scenarios.at(2).prerequisites, QVector<int>{0});
    QCOMPARE(read.scenarios.at(3).prerequisites, QVector<int>{2});
}

void SampleCampaignsTest::firstMembersArePackedTheStandardWayButOne()
{
    for (const QString &name :
         QDir(m_game.path(QStringLiteral("Maps"))).entryList({QStringLiteral("*.e3c")})) {
        const Inflated first = inflated(m_game.file(QStringLiteral("Maps/") + name));
        QByteArray packed(int(compressBound(uLong(first.content.size()))), '\0');
        uLongf size = uLongf(packed.size());
        compress(reinterpret_cast<Bytef *>(packed.data()), &size,
                 reinterpret_cast<const Bytef *>(first.content.constData()),
                 uLong(first.content.size()));
        // A gzip member has 10 + 8 bytes around its data, a zlib stream 2 + 4.
        QCOMPARE(first.packedSize == qint64(size) + 12,
                 name != QLatin1String("foreign_packer.e3c"));
    }
}

QTEST_GUILESS_MAIN(SampleCampaignsTest)
#include "sample_campaigns_test.moc"
