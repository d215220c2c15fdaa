// What dump tells of a campaign file, and which files the commands on one refuse.
#include "fuzz/corpus.h"
#include "tests/cli/cli_game.h"
#include "tests/document/samples.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliCampaignTest : public QObject
{
    Q_OBJECT

private slots:
    void dumpBeginsWithTheHeader();
    void dumpTellsAScenario();
    void dumpTellsEveryKindOfBonus();
    void dumpTellsAMap();
    void dumpTellsEveryFieldOfAMapByItsName();
    void dumpTellsHowAMapEnds_data();
    void dumpTellsHowAMapEnds();
    void dumpKeepsToTheEncoding_data();
    void dumpKeepsToTheEncoding();
    void dumpStandsHalfSurrogates();
    void unreadableCampaignEndsWithStatusTwo_data();
    void unreadableCampaignEndsWithStatusTwo();

private:
    QJsonObject dump(const QString &path) const;

    CliGame m_game;
};

namespace {

const QString dumpCommand = QStringLiteral("dump");
const QString resave = QStringLiteral("resave");

QJsonObject parsed(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

QJsonObject scenarioOf(const QJsonObject &dumped, int index)
{
    return dumped["campaign"].toObject()["scenarios"].toArray().at(index).toObject();
}

// One scenario with this map.
QByteArray campaignWithMap(const QByteArray &header)
{
    const QByteArray map = packing::gzip(header);
    ByteWriter file;
    file.u32(10).u32(1).u8(0).u32(0).u32(1).u8(25).u32(0).u32(0).zeros(2);
    file.text("a.e3m").u32(quint32(map.size())).zeros(1 + 2 + 4 + 6 + 1 + 24 + 20 + 1);
    return packing::gzip(file.bytes()) + map;
}

QByteArray campaignNamed(const QByteArray &name)
{
    return packing::gzip(ByteWriter()
                             .u32(10)
                             .u32(1)
                             .u8(0)
                             .u32(0)
                             .u32(0)
                             .u8(25)
                             .text(name)
                             .text({})
                             .u8(0)
                             .u8(0)
                             .bytes());
}

} // namespace

QJsonObject CliCampaignTest::dump(const QString &path) const
{
    const ChildResult result = m_game.run({dumpCommand, path});
    if (result.exitCode != 0)
        qWarning("%s", result.error.constData());
    return QJsonDocument::fromJson(result.output).object();
}

void CliCampaignTest::dumpBeginsWithTheHeader()
{
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const ChildResult result = m_game.run({dumpCommand, file});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QByteArray head = R"({
  "info": {
    "campaign": 24,
    "version": 10,
    "region": 0
  },
  "campaign": {
    "version": 10,
    "mapId": 24,
    "name": "The Long Road",
    "description": "",
    "difficultySelectable": true,
    "musicId": 34,
    "hasMap": true,
    "spareFlag": false,
    "customValue": 0,
    "scenarioCount": 0,
    "spareCounter": 0,
    "scenarios": [
      {
        "mapFileName": "ash.e3m",
        "mapSize": )";
    QCOMPARE(result.output.left(head.size()), head);
    QVERIFY(result.output.endsWith("\n      }\n    ]\n  }\n}\n"));
    QCOMPARE(m_game.run({dumpCommand, file}).output, result.output);
}

void CliCampaignTest::dumpTellsAScenario()
{
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QJsonObject scenario = scenarioOf(dump(file), 1);
    QJsonObject expected = parsed(R"({
        "mapFileName": "", "mapSize": 0, "prerequisites": "010", "regionColor": 2,
        "defaultDifficulty": 1, "regionText": "A region",
        "prologues": [{"videoId": 3, "musicIndex": 4, "text": "Long ago..."}, null,
                      {"videoId": 3, "musicIndex": 4, "text": "Long ago..."}],
        "epilogues": [null, {"videoId": 3, "musicIndex": 4, "text": "Long ago..."}, null],
        "startOptions": {"optionType": 2, "optionData": {"entries": [
            {"player": 0, "sourceScenario": 0}, {"player": 1, "sourceScenario": 1}]}},
        "mapHeader": null,
        "compressedMap": {"size": 0, "sha256":
            "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"}
    })");
    expected["crossover"] =
        QJsonObject{{"heroKeeps", "01011"},
                    {"creatures", QStringLiteral("01011010").repeated(23) + "01"},
                    {"artifacts", QStringLiteral("01011010").repeated(20)}};
    QCOMPARE(scenario, expected);
}

void CliCampaignTest::dumpTellsEveryKindOfBonus()
{
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QJsonObject dumped = dump(file);
    const QJsonObject bonuses = parsed(R"({
        "optionType": 1, "optionData": {"player": 0, "bonuses": [
            {"bonusType": 0, "bonusData": {"heroId": 1, "spellId": 2}},
            {"bonusType": 1, "bonusData": {"heroId": 1, "creatureId": 2, "amount": 3}},
            {"bonusType": 2, "bonusData": {"buildingId": 7}},
            {"bonusType": 3, "bonusData": {"heroId": 1, "artifactId": 8}},
            {"bonusType": 4, "bonusData": {"heroId": 65533, "spellId": 4}},
            {"bonusType": 5, "bonusData": {"heroId": 1, "skills": [1, 2, 3, 4]}},
            {"bonusType": 6, "bonusData": {"heroId": 1, "skillId": 5, "skillLevel": 3}},
            {"bonusType": 7, "bonusData": {"resourceId": 6, "amount": -1000}},
            {"bonusType": 8, "bonusData": null}]}})");
    QCOMPARE(scenarioOf(dumped, 0)["startOptions"].toObject(), bonuses);
    const QJsonObject heroes =
        parsed(R"({"optionType": 3, "optionData": {"entries": [{"player": 0, "heroId": 12}]}})");
    QCOMPARE(scenarioOf(dumped, 2)["startOptions"].toObject(), heroes);
    const QString plain = m_game.write(QStringLiteral("b.e3c"), seedCampaign("without_map"));
    QCOMPARE(scenarioOf(dump(plain), 0)["startOptions"], QJsonValue());
}

void CliCampaignTest::dumpTellsAMap()
{
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QJsonObject scenario = scenarioOf(dump(file), 0);
    const QByteArray map = packing::gzip(corpus::mapHeader(28));
    const QByteArray hash = QCryptographicHash::hash(map, QCryptographicHash::Sha256).toHex();
    QCOMPARE(scenario["mapSize"].toInt(), map.size());
    QCOMPARE(scenario["compressedMap"].toObject(),
             (QJsonObject{{"size", map.size()}, {"sha256", QString::fromLatin1(hash)}}));

    QJsonObject header = scenario["mapHeader"].toObject();
    const QJsonArray players = header.take(QStringLiteral("players")).toArray();
    QJsonObject expected = parsed(R"({
        "version": 28, "subVersion": 0, "extFlagA": 0, "extFlagB": 0, "extValueA": 0,
        "extValueB": 0, "extFlagC": 0, "extFlagD": 0, "anyPlayers": 1, "mapDimension": 72,
        "hasUnderground": 1, "mapName": "Ash Valley", "mapDescription": "A quiet valley.",
        "difficulty": 2, "levelLimit": 0,
        "victory": {"type": 12, "flags": [1, 0], "object": 0, "kind": 0, "extra": 0,
                    "amount": 30, "position": [0, 0, 0]},
        "loss": {"type": 2, "position": [0, 0, 0], "days": 90},
        "teamCount": 2, "teams": [1, 1, 1, 1, 1, 1, 1, 1]})");
    const QJsonObject hero{
        {"heroId", 12}, {"portrait", 7}, {"name", "Orsa the Grey"}, {"playerMask", 1}};
    expected["headerHeroes"] = QJsonObject{{"available", QStringLiteral("1").repeated(160)},
                                           {"availableCount", 160},
                                           {"placeholders", QJsonArray{3}},
                                           {"customHeroes", QJsonArray{hero}}};
    QCOMPARE(header, expected);
    QCOMPARE(players.size(), 8);
    const QJsonObject first = parsed(R"({
        "canHuman": 1, "canComputer": 1, "behaviour": 0, "allowedTownsLow": 255,
        "allowedTowns": 511, "townIsRandom": 0, "hasMainTown": 1, "generatesHero": 1,
        "mainTownType": 3, "mainTownPosition": [10, 20, 0], "randomHero": 0, "mainHeroId": 12,
        "mainHeroPortrait": 5, "mainHeroName": "Orsa", "placeholderCount": 0,
        "heroInfo": [{"heroId": 12, "name": "Orsa"}]})");
    QCOMPARE(players.at(0).toObject(), first);
}

// No two fields of this map's first player, and none of its extension, hold the same.
void CliCampaignTest::dumpTellsEveryFieldOfAMapByItsName()
{
    const QString file =
        m_game.write(QStringLiteral("b.e3c"), campaignWithMap(samples::mapHeader(32, 7)));
    const QJsonObject header = scenarioOf(dump(file), 0)["mapHeader"].toObject();
    const QJsonObject extension{{"subVersion", 7},  {"extFlagA", 12},    {"extFlagB", 11},
                                {"extValueA", -13}, {"extValueB", 14},   {"extFlagC", 15},
                                {"extFlagD", 16},   {"difficulty", 3},   {"levelLimit", 40},
                                {"anyPlayers", 1},  {"mapDimension", 72}};
    for (const QString &name : extension.keys())
        QCOMPARE(header[name], extension[name]);
    const QJsonObject player = parsed(R"({
        "canHuman": 1, "canComputer": 2, "behaviour": 3, "allowedTownsLow": 4,
        "allowedTowns": 4608, "townIsRandom": 5, "hasMainTown": 1, "generatesHero": 1,
        "mainTownType": 6, "mainTownPosition": [21, 22, 1], "randomHero": 6, "mainHeroId": 33,
        "mainHeroPortrait": 34, "mainHeroName": "Orla", "placeholderCount": 7,
        "heroInfo": [{"heroId": 41, "name": "Tamsin"}, {"heroId": 42, "name": ""}]})");
    QCOMPARE(header["players"].toArray().at(0).toObject(), player);
    QCOMPARE(header["teams"].toArray(), (QJsonArray{1, 2, 1, 2, 1, 2, 1, 2}));
    const QJsonArray custom = header["headerHeroes"].toObject()["customHeroes"].toArray();
    QCOMPARE(
        custom.at(0).toObject(),
        (QJsonObject{{"heroId", 50}, {"portrait", 51}, {"name", "Brannoc"}, {"playerMask", 52}}));
}

void CliCampaignTest::dumpTellsHowAMapEnds_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("victory");
    QTest::addColumn<QByteArray>("loss");
    QTest::newRow("a building, a town lost")
        << ByteWriter()
               .u8(3)
               .u8(5)
               .u8(6)
               .u8(21)
               .u8(22)
               .u8(1)
               .u8(23)
               .u8(24)
               .u8(1)
               .u8(31)
               .u8(32)
               .u8(0)
               .bytes()
        << QByteArray(R"({"type": 3, "flags": [5, 6], "object": 0, "kind": 23, "extra": 24,
                          "amount": 0, "position": [21, 22, 1]})")
        << QByteArray(R"({"type": 1, "position": [31, 32, 0], "days": 0})");
    QTest::newRow("creatures, time")
        << ByteWriter().u8(1).u8(5).u8(6).u16(515).u32(400).u8(2).u16(90).bytes()
        << QByteArray(R"({"type": 1, "flags": [5, 6], "object": 515, "kind": 0, "extra": 0,
                          "amount": 400, "position": [0, 0, 0]})")
        << QByteArray(R"({"type": 2, "position": [0, 0, 0], "days": 90})");
}

void CliCampaignTest::dumpTellsHowAMapEnds()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, victory);
    QFETCH(QByteArray, loss);
    QByteArray map = corpus::mapHeader(28);
    const QByteArray usual = ByteWriter().u8(12).u8(1).u8(0).u32(30).u8(2).u16(90).bytes();
    QCOMPARE(map.count(usual), 1);
    map.replace(usual, stored);
    const QString file = m_game.write(QStringLiteral("b.e3c"), campaignWithMap(map));
    const QJsonObject header = scenarioOf(dump(file), 0)["mapHeader"].toObject();
    QCOMPARE(header["victory"].toObject(), parsed(victory));
    QCOMPARE(header["loss"].toObject(), parsed(loss));
    QCOMPARE(header["teamCount"].toInt(), 2); // what stands behind is in its place
}

void CliCampaignTest::dumpKeepsToTheEncoding_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("the locale's") << QStringList()
                                  << QByteArray("\xd0\x9f\xd1\x83\xd1\x82\xd1\x8c");
    QTest::newRow("Windows-1251") << QStringList{"--encoding", "Windows-1251"}
                                  << QByteArray("\xcf\xf3\xf2\xfc");
    QTest::newRow("UTF-8") << QStringList{"--encoding", "UTF-8"}
                           << QByteArray("\xd0\x9f\xd1\x83\xd1\x82\xd1\x8c");
}

void CliCampaignTest::dumpKeepsToTheEncoding()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, stored);
    // The file's own name holds a letter whose bytes no code page has.
    const QString file =
        m_game.write(QStringLiteral("\u0418\u043c\u044f.e3c"), campaignNamed(stored));
    const QString out = m_game.filePath(QStringLiteral("out.e3c"));
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *locale : {"C.UTF-8", "C"}) {
        environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
        const ChildResult result =
            m_game.run(options + QStringList{dumpCommand, file}, environment);
        QCOMPARE(result.error, QByteArray());
        const QJsonObject dumped = QJsonDocument::fromJson(result.output).object();
        QCOMPARE(dumped["campaign"].toObject()["name"].toString(),
                 QStringLiteral("\u041f\u0443\u0442\u044c"));
        QCOMPARE(m_game.run(options + QStringList{resave, file, out}, environment).exitCode, 0);
        QCOMPARE(m_game.read(QStringLiteral("out.e3c")), campaignNamed(stored));
    }
}

void CliCampaignTest::dumpStandsHalfSurrogates()
{
    const QString file =
        m_game.write(QStringLiteral("half.e3c"), campaignNamed("a\xed\xa0\x80\"\x01\xed\xb0\x80"));
    const ChildResult result =
        m_game.run({QStringLiteral("--encoding"), QStringLiteral("CESU-8"), dumpCommand, file});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.contains("\"name\": \"a\\ud800\\\"\\u0001\\udc00\","));
    QVERIFY(QJsonDocument::fromJson(result.output).isObject());
}

void CliCampaignTest::unreadableCampaignEndsWithStatusTwo_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray() << "Error: Incorrect or damaged file.\n";
    QTest::newRow("version") << seedCampaign("version_11")
                             << "Error: Invalid campaign file version!\n\nFile version = 11\n"
                                "Current version = 10\n";
    QTest::newRow("subversion") << seedCampaign("subversion_2")
                                << "Error: Unsupported version!\n\nFile subversion = 2\n"
                                   "Current subversion = 1\n";
    QTest::newRow("scenarios") << seedCampaign("hostile_scenarios_4g")
                               << "Error: Incorrect or damaged file.\n";
    QTest::newRow("missing") << QByteArray("-")
                             << "Error: Cannot read file %1:\nNo such file or directory.\n";
}

void CliCampaignTest::unreadableCampaignEndsWithStatusTwo()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const QString file = m_game.write(QStringLiteral("bad.e3c"), content);
    if (content == "-")
        QVERIFY(QFile::remove(file));
    message.replace(QLatin1String("%1"), file);
    const QString out = m_game.write(QStringLiteral("old"), "old bytes");
    for (const QStringList &words : {QStringList{dumpCommand, file}, QStringList{resave, file, out},
                                     QStringList{QStringLiteral("render"), file, out}}) {
        const ChildResult result = m_game.run(words);
        QVERIFY(result.exitedNormally);
        QCOMPARE(QString::fromUtf8(result.error), message);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(m_game.read(QStringLiteral("old")), QByteArray("old bytes"));
    }
}

QTEST_GUILESS_MAIN(CliCampaignTest)
#include "cli_campaign_test.moc"
