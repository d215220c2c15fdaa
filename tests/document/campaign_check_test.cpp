// The search of campaigns and maps for damage: sound files are silent, and each fault is told.
#include "document/check/campaign_check.h"
#include "document/check/map_check.h"

#include "document/campaign_data.h"
#include "document/inflating_device.h"
#include "gamedata/limits.h"
#include "gamedata/locale_codec.h"
#include "tests/document/checked_campaigns.h"
#include "tests/support/tiny_game.h"

#include <QtTest>

using namespace checked;

class CampaignCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void soundCampaignsAreSilent_data();
    void soundCampaignsAreSilent();
    void faultsOfTheFileAreTold_data();
    void faultsOfTheFileAreTold();
    void faultsOfScenariosAreTold_data();
    void faultsOfScenariosAreTold();
    void damagedHeaderIsTold();
    void faultsOfMapFilesAreTold_data();
    void faultsOfMapFilesAreTold();
    void mapsShareAnAllowance();
    void headersBeyondTheAllowanceAreNotJudged();
    void mapsOfAGigabyteAreLookedAtAndNoMore();
    void unreadableCampaignsHaveTheirMessage();
    void whatSavingChangesIsTold();

private:
    QStringList told(const QByteArray &bytes) const
    {
        return checked::told(m_folder.filePath("a.e3c"), bytes);
    }
    void compare();

    tiny::Game m_game;
    QTemporaryDir m_folder;
};

namespace {

constexpr char campaignIsTooLarge[] =
    "isn't looked at whole: the campaign's maps are too large together";

using Break = void (*)(Campaign &campaign);

void row(const char *name, Break breakIt, const QStringList &lines,
         const Campaign &campaign = sound())
{
    Campaign broken = campaign;
    breakIt(broken);
    QTest::newRow(name) << bytesOf(broken) << lines;
}

void addColumns()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
}

} // namespace

void CampaignCheckTest::initTestCase()
{
    QVERIFY(setLocaleCodec("UTF-8"));
    m_game.load();
    addHeroes();
}

void CampaignCheckTest::compare()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    QCOMPARE(told(bytes).join('\n'), lines.join('\n'));
}

void CampaignCheckTest::soundCampaignsAreSilent_data()
{
    addColumns();
    row("with a map", [](Campaign &) {}, {});
    row(
        "without one", [](Campaign &) {}, {}, soundWithoutMap());
    row("subversion 0", [](Campaign &c) { c.subversion = 0; }, {});
    row("texts at their limits",
        [](Campaign &c) {
            c.name = QByteArray(60, 'x');
            c.description = QByteArray(300, 'x');
            c.records[0].regionText = QByteArray(600, 'x');
        },
        {});
    row("byte order marks and characters of four bytes",
        [](Campaign &c) {
            c.name = "\xEF\xBB\xBF"
                     "Ember Road";
            c.description = "Three \xEF\xBB\xBFsteps \xF0\x9F\x98\x80";
        },
        {});
    row("story", [](Campaign &c) { c.records[0].stories.replace(0, 1, story(2, 2)); }, {});
    row("three stories for three options",
        [](Campaign &c) {
            c.records[0].options = bonuses(3)
                                       .u8(7)
                                       .u8(0)
                                       .i32(1)
                                       .u8(7)
                                       .u8(0xFD)
                                       .i32(99999)
                                       .u8(7)
                                       .u8(0xFE)
                                       .i32(500)
                                       .bytes();
            c.records[0].stories.replace(0, 3, story(0, 0) + story(1, 1) + story(2, 2));
        },
        {});
    row("a map twice",
        [](Campaign &c) {
            c.records[2].mapFileName = "ONE.e3m";
            c.records[2].map = c.records[0].map;
        },
        {});
}

void CampaignCheckTest::soundCampaignsAreSilent()
{
    compare();
}

void CampaignCheckTest::faultsOfTheFileAreTold_data()
{
    addColumns();
    row("behind the records", [](Campaign &c) { c.behindRecords = "12345"; },
        {"header: 5 bytes stand behind the records, saving drops them"});
    row("behind the maps", [](Campaign &c) { c.behindMaps = "1234"; },
        {"file: 4 bytes stand behind its last map, saving drops them"});
    row("behind no map",
        [](Campaign &c) {
            c.records = std::vector<Record>(3);
            c.behindMaps = "1234";
        },
        {"file: 4 bytes stand behind its last map, saving drops them"});
    QTest::newRow("not packed") << header(sound()) + maps(sound())
                                << QStringList("header: isn't packed");
    QTest::newRow("records end early")
        << samples::pack(header(sound()).chopped(2)) + maps(sound())
        << QStringList("scenario.3: the records end here, the rest reads as nothing");
    row(
        "scenarios missing", [](Campaign &c) { c.count = 5; },
        {"header: 5 scenarios are promised, 3 there"}, soundWithoutMap());
    row("flag for a map", [](Campaign &c) { c.hasMap = 2; },
        {"header: the flag for a campaign map is 2, saving makes it 1"});
    row("flag for difficulty", [](Campaign &c) { c.choice = 255; },
        {"header: the flag for a choice of difficulty is 255, saving makes it 1"});
    row("unknown map",
        [](Campaign &c) {
            c.mapId = 99;
            c.records.clear();
        },
        {"campaign.map: the game has no campaign map 98: no scenario is read, and nothing can be "
         "saved"});
    row(
        "unknown background", [](Campaign &c) { c.background = 9; },
        {"campaign.background: the game has no background 9"}, soundWithoutMap());
    row("unknown music", [](Campaign &c) { c.music = 9; },
        {"campaign.music: the game has no music 9"});
    row("long name", [](Campaign &c) { c.name = QByteArray(61, 'x'); },
        {"campaign.name: 61 letters, the editor keeps 60"});
    row("long description", [](Campaign &c) { c.description = QByteArray(301, 'x'); },
        {"campaign.description: 301 letters, the editor keeps 300"});
    row("no text", [](Campaign &c) { c.name = "\xff"; },
        {"campaign.name: holds bytes that are no text in this encoding"});
}

void CampaignCheckTest::faultsOfTheFileAreTold()
{
    compare();
}

void CampaignCheckTest::faultsOfScenariosAreTold_data()
{
    addColumns();
    row("map cut off", [](Campaign &c) { c.records[2].promised = c.records[2].map.size() + 10; },
        {QString("scenario.3.map: %1 bytes are promised, %2 there")
             .arg(map("Ironmoors").size() + 10)
             .arg(map("Ironmoors").size())});
    row("map's checksum",
        [](Campaign &c) {
            QByteArray &map = c.records[0].map;
            map[map.size() - 8] = char(uchar(map.at(map.size() - 8)) ^ 1);
        },
        {"scenario.1.map: is damaged: incorrect data check"});
    row("map's end", [](Campaign &c) { c.records[0].map.chop(3); },
        {"scenario.1.map: is cut short"});
    row("behind a map", [](Campaign &c) { c.records[0].map += "1234"; },
        {"scenario.1.map: 4 bytes stand behind its end"});
    row("map not packed", [](Campaign &c) { c.records[0].map = samples::mapHeader(28); },
        {"scenario.1.map: isn't packed by gzip"});
    row("map's header",
        [](Campaign &c) { c.records[0].map = samples::pack(samples::mapHeader(28).left(100)); },
        {"scenario.1.map: its header is cut short"});
    row("map for nobody",
        [](Campaign &c) { c.records[0].map = samples::pack(samples::mapHeader(28, 0, 0)); },
        {"scenario.1.map: nobody can play it"});
    row("long text", [](Campaign &c) { c.records[0].regionText = QByteArray(601, 'x'); },
        {"scenario.1.region.text: 601 letters, the editor keeps 600"});
    row("colour", [](Campaign &c) { c.records[0].colour = 8; },
        {"scenario.1.region: the game has no colour 8"});
    row("difficulty", [](Campaign &c) { c.records[1].difficulty = 5; },
        {"scenario.2: the game has no difficulty 5"});
    row("prerequisites beyond", [](Campaign &c) { c.records[2].prerequisites = "\x09"; },
        {"scenario.3: a bit beyond the 3 prerequisites is set, saving clears it"});
    row("kept beyond", [](Campaign &c) { c.records[0].heroKeeps = 0x2f; },
        {"scenario.1: a bit beyond the 5 things that heroes keep is set, saving clears it"});
    row("creatures beyond", [](Campaign &c) { c.records[0].creatures[23] = 4; },
        {"scenario.1: a bit beyond the 186 creatures is set, saving clears it"});
    row("requires itself", [](Campaign &c) { c.records[2].prerequisites = "\x05"; },
        {"scenario.3.prerequisites: it requires itself"});
    row("circle", [](Campaign &c) { c.records[0].prerequisites = "\x04"; },
        {"scenario.1.prerequisites: it stands on a circle of scenarios that require each other",
         "scenario.3.prerequisites: it stands on a circle of scenarios that require each other"});
    row("requires no map", [](Campaign &c) { c.records[0].prerequisites = "\x02"; },
        {"scenario.1.prerequisites: it requires scenario 2, which has no map"});
    row(
        "no chain", [](Campaign &c) { c.records[2].prerequisites = QByteArray(1, '\0'); },
        {"scenario.3.prerequisites: saving replaces them by the scenario before"},
        soundWithoutMap());
    row("mark of a story", [](Campaign &c) { c.records[0].stories[4] = 2; },
        {"scenario.1: epilogue 2 has the mark 2, it reads as absent"});
    row("story without an option",
        [](Campaign &c) { c.records[0].stories.replace(1, 1, story(0, 0)); },
        {"scenario.1.prologue.2: belongs to no start option, the scenario dialog drops it"});
    row("story without a map", [](Campaign &c) { c.records[1].stories.replace(3, 1, story(0, 0)); },
        {"scenario.2.epilogue.1: belongs to a scenario without a map"});
    row("video and music", [](Campaign &c) { c.records[0].stories.replace(0, 1, story(3, 4)); },
        {"scenario.1.prologue.1: the game has no video 3",
         "scenario.1.prologue.1: the game has no music 4"});
    row("folder in a name", [](Campaign &c) { c.records[0].mapFileName = "..\\maps/a.e3m"; },
        {"scenario.1.map: \"..\\maps/a.e3m\" is no bare name, export writes \"a.e3m\""});
    row("no name", [](Campaign &c) { c.records[0].mapFileName = "a/.."; },
        {"scenario.1.map: has no name that export could write it under"});
    row("same name",
        [](Campaign &c) {
            c.records[0].mapFileName = "one%2.e3m";
            c.records[2].mapFileName = "One%2.e3m";
        },
        {"scenario.3.map: export writes \"One%2.e3m\" over that of scenario 1"});
    row("name without a map", [](Campaign &c) { c.records[1].mapFileName = "a\n.e3m"; },
        {"scenario.2.map: \"a?.e3m\" is named, but there is no map"});
}

void CampaignCheckTest::faultsOfScenariosAreTold()
{
    compare();
}

// The reader gives up a block of 16 KB with a fault in it, which only a longer header outlives.
void CampaignCheckTest::damagedHeaderIsTold()
{
    Campaign campaign = sound();
    campaign.records = std::vector<Record>(3);
    campaign.behindRecords = samples::noise(40000);
    QByteArray bytes = bytesOf(campaign);
    bytes[bytes.size() - 8] = char(uchar(bytes.at(bytes.size() - 8)) ^ 1);
    const QStringList lines = told(bytes);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].endsWith(" bytes stand behind the records, saving drops them"),
             qPrintable(lines[0]));
    QCOMPARE(lines[1], QString("header: its packed bytes are damaged or cut short"));
}

void CampaignCheckTest::faultsOfMapFilesAreTold_data()
{
    addColumns();
    QTest::newRow("sound") << map() << QStringList();
    QTest::newRow("empty") << QByteArray("") << QStringList("file: isn't packed by gzip");
    QTest::newRow("plain") << samples::mapHeader(28) << QStringList("file: isn't packed by gzip");
    QTest::newRow("cut short") << map().chopped(1) << QStringList("file: is cut short");
    QTest::newRow("behind")
        << map() + map()
        << QStringList(QString("file: %1 bytes stand behind its end").arg(map().size()));
    QTest::newRow("nobody") << samples::pack(samples::mapHeader(28, 0, 0))
                            << QStringList("file: nobody can play it");
    const QByteArray header = samples::mapHeader(28);
    const qint64 zeros = limits::checkedMapBytes - header.size();
    QTest::newRow("as large as is looked at")
        << samples::packWithZeros(header, zeros) << QStringList();
    QTest::newRow("larger") << samples::packWithZeros(header, zeros + 1)
                            << QStringList("file: is too large to be looked at whole");
}

void CampaignCheckTest::faultsOfMapFilesAreTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    QFile file(samples::writeFile(m_folder.filePath("a.e3m"), bytes));
    QVERIFY(file.open(QIODevice::ReadOnly));
    Findings findings;
    QVERIFY(checkMapFile(file, findings));
    QStringList found;
    for (const Finding &finding : findings)
        found << finding.where + ": " + finding.what;
    QCOMPARE(found, lines);
}

void CampaignCheckTest::mapsShareAnAllowance()
{
    const QByteArray whole = samples::mapHeader(28) + samples::noise(100000);
    qint64 allowance = whole.size();
    Findings findings;
    checkMap(samples::pack(whole), QStringLiteral("a"), allowance, findings);
    QCOMPARE(allowance, 0);
    QVERIFY(findings.empty());
    allowance = whole.size() - 1;
    checkMap(samples::pack(whole), QStringLiteral("a"), allowance, findings);
    QCOMPARE(allowance, 0);
    QCOMPARE(findings.size(), size_t(1));
    QCOMPARE(findings[0].what, QString(campaignIsTooLarge));
}

void CampaignCheckTest::headersBeyondTheAllowanceAreNotJudged()
{
    const QByteArray front = ByteWriter().u32(28).u8(1).u32(72).u8(0).u32(100000).bytes();
    const QByteArray rest = samples::noise(100000) + samples::mapHeader(28).mid(23);
    qint64 allowance = 0;
    Findings findings;
    checkMap(samples::pack(front + rest), QStringLiteral("a"), allowance, findings);
    QCOMPARE(findings.size(), size_t(1));
    QCOMPARE(findings[0].what, QString(campaignIsTooLarge));
}

void CampaignCheckTest::mapsOfAGigabyteAreLookedAtAndNoMore()
{
    const QByteArray header = samples::mapHeader(28);
    const QByteArray large =
        samples::packWithZeros(header, limits::checkedMapBytes - header.size());
    Campaign campaign = soundWithoutMap();
    QCOMPARE(limits::checkedCampaignBytes % limits::checkedMapBytes, 0);
    campaign.count = quint32(limits::checkedCampaignBytes / limits::checkedMapBytes) + 1;
    campaign.records.assign(campaign.count, campaign.records[0]);
    for (quint32 i = 0; i < campaign.count; ++i) {
        Record &record = campaign.records[i];
        record.mapFileName = QByteArray::number(i) + ".e3m";
        record.prerequisites = QByteArray(1, i == 0 ? '\0' : char(1 << (i - 1)));
        if (i + 1 < campaign.count)
            record.map = large;
    }
    QCOMPARE(told(bytesOf(campaign)),
             QStringList(QString("scenario.5.map: ") + campaignIsTooLarge));
}

void CampaignCheckTest::unreadableCampaignsHaveTheirMessage()
{
    QCOMPARE(told(""), QStringList("Incorrect or damaged file."));
    Campaign campaign = sound();
    campaign.version = 7;
    QVERIFY(told(bytesOf(campaign)).first().startsWith("Invalid campaign file version!"));
}

// Each byte of the header changed in several ways: either it is saved as it stands, or something
// is told.
void CampaignCheckTest::whatSavingChangesIsTold()
{
    Campaign campaign = sound();
    campaign.records[0].options = bonuses(1).u8(0).u16(ownHero).u8(0).bytes();
    campaign.records[0].stories.replace(0, 1, story(0, 0));
    const QByteArray whole = header(campaign);
    constexpr int subversionByte = 4;
    int changed = 0;
    for (int place = 0; place < whole.size(); ++place) {
        for (const int mask : {1, 2, 4, 8, 16, 32, 64, 128, 255}) {
            QByteArray other = whole;
            other[place] = char(uchar(other.at(place)) ^ mask);
            if (place == subversionByte && other.at(place) == 0)
                continue; // the older subversion is sound
            const QByteArray bytes = samples::pack(other) + maps(campaign);
            if (!told(bytes).isEmpty())
                continue;
            CampaignData read;
            QFile file(m_folder.filePath("a.e3c"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(!read.readCampaign(&file));
            InflatingDevice saved(read.toPieces().front(), InflatingDevice::Format::Embedded);
            QCOMPARE(saved.readAll().toHex(), other.toHex());
            ++changed;
        }
    }
    QVERIFY(changed > 100); // texts, at least
}

QTEST_GUILESS_MAIN(CampaignCheckTest)
#include "campaign_check_test.moc"
