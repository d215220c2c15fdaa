// Headers of maps that are well-formed: what every field of every version is read as.
#include "tests/document/map_header_reading.h"

#include <QVector>
#include <QtTest>

class MapHeaderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsEveryVersion_data();
    void readsEveryVersion();
    void aCheckStopsAtAnyPlayers_data();
    void aCheckStopsAtAnyPlayers();
    void victoryHasThePayloadOfItsType_data();
    void victoryHasThePayloadOfItsType();
    void lossHasThePayloadOfItsType_data();
    void lossHasThePayloadOfItsType();
    void teamsAreThereOnlyForACount();
    void listsAreAsLongAsTheirCountsSay();
    void aMainHeroOf255HasNeitherPortraitNorName();
    void onlyAMainTownOfOneHasAPlace();
};

void MapHeaderTest::init()
{
    samples::setTables();
}

void MapHeaderTest::readsEveryVersion_data()
{
    addVersions();
}

void MapHeaderTest::readsEveryVersion()
{
    QFETCH(quint32, version);
    QFETCH(quint32, subVersion);
    const QByteArray bytes = samples::mapHeader(version, subVersion);
    ScenarioData scenario;
    qint64 pos = 0;
    QCOMPARE(readHeader(scenario, bytes + "body", false, &pos), 72u);
    QCOMPARE(pos, qint64(bytes.size()));
    const MapHeader &h = *scenario.mapHeader;
    QCOMPARE(h.version, version);
    QCOMPARE(h.subVersion, subVersion);
    QCOMPARE(int(h.extFlagB), subVersion >= 1 ? 11 : 0);
    QCOMPARE(int(h.extFlagA), subVersion >= 1 ? 12 : 0);
    QCOMPARE(h.extValueA, subVersion >= 2 ? -13 : 0);
    QCOMPARE(h.extValueB, subVersion >= 4 ? 14 : 0);
    QCOMPARE(int(h.extFlagC), subVersion >= 4 ? 15 : 0);
    QCOMPARE(int(h.extFlagD), subVersion >= 7 ? 16 : 0);
    QCOMPARE(int(h.anyPlayers), 1);
    QCOMPARE(h.mapDimension, 72);
    QCOMPARE(int(h.hasUnderground), 1);
    QCOMPARE(h.mapName, QString("Frostmere"));
    QCOMPARE(h.mapDescription, QString("A cold shore"));
    QCOMPARE(int(h.difficulty), 3);
    QCOMPARE(int(h.levelLimit), version > 14 ? 40 : 0);
    for (int i = 0; i < 8; ++i) {
        const PlayerAttributes &p = h.players[size_t(i)];
        QCOMPARE(int(p.canHuman), i + 1);
        QCOMPARE(int(p.canComputer), i + 2);
        QCOMPARE(int(p.behaviour), i + 3);
        QCOMPARE(int(p.allowedTownsLow), version != 21 ? i + 4 : 0);
        QCOMPARE(int(p.allowedTowns), version > 14 ? 0x1200 + i : 0);
        QCOMPARE(int(p.townIsRandom), i + 5);
        QCOMPARE(int(p.hasMainTown), i == 0 ? 1 : i == 1 ? 2 : 0);
        QCOMPARE(int(p.generatesHero), i == 0 && version > 14 ? 1 : 0);
        QCOMPARE(int(p.mainTownType), i == 0 && version > 14 ? 6 : 0);
        using Position = std::array<quint8, 3>;
        QCOMPARE(p.mainTownPosition, i == 0 ? (Position{21, 22, 1}) : Position{});
        QCOMPARE(int(p.randomHero), i + 6);
        QCOMPARE(int(p.mainHeroId), i == 0 ? 33 : 255);
        QCOMPARE(int(p.mainHeroPortrait), i == 0 ? 34 : 0);
        QCOMPARE(p.mainHeroName, i == 0 ? QString("Orla") : QString());
        QCOMPARE(int(p.placeholderCount), version > 14 ? i + 7 : 0);
        QCOMPARE(p.heroInfo.size(), size_t(i == 0 && version > 14 ? 2 : 0));
    }
    if (version > 14) {
        QCOMPARE(int(h.players[0].heroInfo[0].heroId), 41);
        QCOMPARE(h.players[0].heroInfo[0].name, QString("Tamsin"));
        QCOMPARE(int(h.players[0].heroInfo[1].heroId), 42);
        QCOMPARE(h.players[0].heroInfo[1].name, QString());
    }
    QCOMPARE(int(h.victory.type), 12);
    QCOMPARE(int(h.victory.flags[0]), 1);
    QCOMPARE(h.victory.amount, 5000);
    QCOMPARE(int(h.loss.type), 2);
    QCOMPARE(int(h.loss.days), 0x0305);
    QCOMPARE(int(h.teamCount), 2);
    QCOMPARE(h.teams, (std::array<quint8, 8>{1, 2, 1, 2, 1, 2, 1, 2}));
    const int bits = version == 14 ? 128 : version >= 32 ? 163 : 160;
    QBitArray available(bits);
    available.setBit(0);
    available.setBit(2);
    available.setBit(bits - 1);
    QCOMPARE(h.headerHeroes.availableCount, quint32(bits));
    QCOMPARE(h.headerHeroes.available, available);
    QCOMPARE(h.headerHeroes.placeholders,
             version > 14 ? (std::vector<quint8>{7, 8, 9}) : std::vector<quint8>{});
    QCOMPARE(h.headerHeroes.customHeroes.size(), size_t(version > 21 ? 2 : 0));
    if (version > 21) {
        const HeaderHero &hero = h.headerHeroes.customHeroes[0];
        QCOMPARE(int(hero.heroId), 50);
        QCOMPARE(int(hero.portrait), 51);
        QCOMPARE(hero.name, QString("Brannoc"));
        QCOMPARE(int(hero.playerMask), 52);
        QCOMPARE(int(h.headerHeroes.customHeroes[1].playerMask), 62);
    }
}

void MapHeaderTest::aCheckStopsAtAnyPlayers_data()
{
    addVersions();
}

void MapHeaderTest::aCheckStopsAtAnyPlayers()
{
    QFETCH(quint32, version);
    QFETCH(quint32, subVersion);
    int front = 4;
    if (version >= 32)
        front += 4 + (subVersion >= 1 ? 2 : 0) + (subVersion >= 2 ? 4 : 0) +
                 (subVersion >= 4 ? 5 : 0) + (subVersion >= 7 ? 1 : 0);
    ScenarioData scenario;
    const auto before = std::make_shared<MapHeader>();
    scenario.mapHeader = before;
    qint64 pos = 0;
    QCOMPARE(readHeader(scenario, samples::mapHeader(version, subVersion, 200), true, &pos), 1u);
    QCOMPARE(pos, qint64(front + 1));
    QCOMPARE(readHeader(scenario, samples::mapHeader(version, subVersion, 0), true, &pos),
             unsigned(-1));
    QCOMPARE(pos, qint64(front + 1));
    QCOMPARE(scenario.mapHeader, before);
}

// A header of version 14 or 28 without anything in it up to the victory condition.
static QByteArray upToVictory(quint32 version)
{
    ByteWriter w;
    w.u32(version).u8(1).zeros(4 + 1 + 4 + 4 + 1);
    if (version > 14)
        w.u8(0);
    for (int i = 0; i < 8; ++i) {
        w.zeros(version > 14 ? 8 : 6).u8(0).u8(255);
        if (version > 14)
            w.zeros(5);
    }
    return w.bytes();
}

static QByteArray behindLoss(quint32 version)
{
    return ByteWriter()
        .u8(0)
        .zeros(version == 14 ? 16 : 20)
        .zeros(version > 14 ? 4 + 1 : 0)
        .zeros(31)
        .bytes();
}

void MapHeaderTest::victoryHasThePayloadOfItsType_data()
{
    QTest::addColumn<quint32>("version");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QVector<int>>("fields"); // flags, object, kind, extra, amount, position
    const auto row = [](quint32 version, int type, const QByteArray &payload,
                        const QVector<int> &fields) {
        QTest::newRow(qPrintable(QString("version %1 type %2").arg(version).arg(type)))
            << version << type << payload << fields;
    };
    const QByteArray amount("\5\6\0\0", 4);
    row(13, 0, "\7\1", {0x107, 0, 0, 0, 0, 0, 0}); // only 14 itself has a single byte
    row(14, 0, "\7", {7, 0, 0, 0, 0, 0, 0});
    row(28, 0, "\7\1", {0x107, 0, 0, 0, 0, 0, 0});
    row(14, 1, "\7" + amount, {7, 0, 0, 0x605, 0, 0, 0});
    row(28, 1, "\7\1" + amount, {0x107, 0, 0, 0x605, 0, 0, 0});
    for (const quint32 version : {14u, 28u}) {
        row(version, 2, "\7" + amount, {0, 7, 0, 0x605, 0, 0, 0});
        row(version, 3, "\1\2\3\4\5", {0, 4, 5, 0, 1, 2, 3});
        for (const int type : {4, 5, 6, 7})
            row(version, type, "\1\2\3", {0, 0, 0, 0, 1, 2, 3});
        for (const int type : {8, 9, 11, 13, 127, 128, 254})
            row(version, type, "", {0, 0, 0, 0, 0, 0, 0});
        row(version, 10, "\4\1\2\3", {0, 4, 0, 0, 1, 2, 3});
        row(version, 12, amount, {0, 0, 0, 0x605, 0, 0, 0});
        row(version, 255, "", {0, 0, 0, 0, 0, 0, 0});
    }
}

void MapHeaderTest::victoryHasThePayloadOfItsType()
{
    QFETCH(quint32, version);
    QFETCH(int, type);
    QFETCH(QByteArray, payload);
    QFETCH(QVector<int>, fields);
    const bool flags = type != 255;
    const QByteArray bytes = upToVictory(version) + char(type) + QByteArray(flags ? "\1\2" : "") +
                             payload + '\xFF' + behindLoss(version);
    ScenarioData scenario;
    qint64 pos = 0;
    readHeader(scenario, bytes + QByteArray(50, '\x66'), false, &pos);
    QCOMPARE(pos, qint64(bytes.size()));
    const VictoryCondition &victory = scenario.mapHeader->victory;
    QCOMPARE(int(victory.type), type);
    QCOMPARE(int(victory.flags[0]), flags ? 1 : 0);
    QCOMPARE(int(victory.flags[1]), flags ? 2 : 0);
    const QVector<int> found{victory.object,     victory.kind,        victory.extra,
                             victory.amount,     victory.position[0], victory.position[1],
                             victory.position[2]};
    QCOMPARE(found, fields);
    QCOMPARE(int(scenario.mapHeader->loss.type), 255);
}

void MapHeaderTest::lossHasThePayloadOfItsType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QVector<int>>("fields"); // position, days
    QTest::newRow("0") << 0 << QByteArray("\1\2\3") << QVector<int>{1, 2, 3, 0};
    QTest::newRow("1") << 1 << QByteArray("\1\2\3") << QVector<int>{1, 2, 3, 0};
    QTest::newRow("2") << 2 << QByteArray("\1\2") << QVector<int>{0, 0, 0, 0x201};
    for (const int type : {3, 128, 255})
        QTest::newRow(qPrintable(QString::number(type)))
            << type << QByteArray() << QVector<int>{0, 0, 0, 0};
}

void MapHeaderTest::lossHasThePayloadOfItsType()
{
    QFETCH(int, type);
    QFETCH(QByteArray, payload);
    QFETCH(QVector<int>, fields);
    const QByteArray bytes = upToVictory(28) + '\xFF' + char(type) + payload + behindLoss(28);
    ScenarioData scenario;
    qint64 pos = 0;
    readHeader(scenario, bytes + QByteArray(50, '\x66'), false, &pos);
    QCOMPARE(pos, qint64(bytes.size()));
    const LossCondition &loss = scenario.mapHeader->loss;
    QCOMPARE(int(loss.type), type);
    QCOMPARE((QVector<int>{loss.position[0], loss.position[1], loss.position[2], loss.days}),
             fields);
}

void MapHeaderTest::teamsAreThereOnlyForACount()
{
    const QByteArray front = upToVictory(28) + "\xFF\xFF";
    const auto without = headerOf(front + ByteWriter().u8(0).zeros(20).u32(1).u8(9).bytes());
    QCOMPARE(without->teams, (std::array<quint8, 8>{}));
    QCOMPARE(without->headerHeroes.placeholders, std::vector<quint8>{9});
    const auto with = headerOf(
        front + ByteWriter().u8(200).raw("\1\2\3\4\5\6\7\x08").zeros(20).u32(1).u8(9).bytes());
    QCOMPARE(with->teams, (std::array<quint8, 8>{1, 2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(with->headerHeroes.placeholders, std::vector<quint8>{9});
}

// Of a player's heroes and of the placeholders there are more than a byte can count.
void MapHeaderTest::listsAreAsLongAsTheirCountsSay()
{
    constexpr unsigned playersHeroes = 258;
    constexpr unsigned customHeroes = 255; // a byte is all they have
    ByteWriter w;
    w.u32(28).u8(1).zeros(4 + 1 + 4 + 4 + 1 + 1);
    for (unsigned player = 0; player < 8; ++player) {
        w.zeros(8).u8(0).u8(255).u8(0).u32(player == 7 ? playersHeroes : 0);
        for (unsigned i = 0; player == 7 && i < playersHeroes; ++i)
            w.u8(i % 256).text("x");
    }
    w.u8(255).u8(255).u8(0).zeros(20);
    w.u32(playersHeroes).raw(QByteArray(int(playersHeroes), '\3'));
    w.u8(customHeroes);
    for (unsigned i = 0; i < customHeroes; ++i)
        w.u8(i).u8(7).text("y").u8(9);
    const QByteArray bytes = w.zeros(31).bytes();
    ScenarioData scenario;
    qint64 pos = 0;
    readHeader(scenario, bytes + "body", false, &pos);
    QCOMPARE(pos, qint64(bytes.size()));
    const MapHeader &header = *scenario.mapHeader;
    QCOMPARE(header.players[7].heroInfo.size(), size_t(258));
    QCOMPARE(int(header.players[7].heroInfo[257].heroId), 1);
    QCOMPARE(header.headerHeroes.placeholders.size(), size_t(258));
    QCOMPARE(header.headerHeroes.customHeroes.size(), size_t(255));
    QCOMPARE(int(header.headerHeroes.customHeroes[254].heroId), 254);
    QCOMPARE(int(header.headerHeroes.customHeroes[254].playerMask), 9);
}

void MapHeaderTest::aMainHeroOf255HasNeitherPortraitNorName()
{
    const auto header = headerOf(samples::mapHeader(28));
    QCOMPARE(int(header->players[1].mainHeroId), 255);
    QCOMPARE(header->players[1].mainHeroName, QString());
    QCOMPARE(int(header->players[2].canHuman), 3); // the next player is read from its place
}

void MapHeaderTest::onlyAMainTownOfOneHasAPlace()
{
    const auto header = headerOf(samples::mapHeader(28));
    QCOMPARE(int(header->players[1].hasMainTown), 2);
    QCOMPARE(header->players[1].mainTownPosition, (std::array<quint8, 3>{}));
}

QTEST_GUILESS_MAIN(MapHeaderTest)
#include "map_header_test.moc"
