// Taking a map's file into a scenario: which files are taken, and what a refused one leaves.
#include "document/campaign_data.h"

#include "tests/document/samples.h"

#include <QTemporaryDir>
#include <QtTest>

class MapImportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void keepsTheFileWholeAndReadsItsHeader();
    void readsPlainFilesAndSeveralMembers();
    void aMapWithoutPlayersIsRefused_data();
    void aMapWithoutPlayersIsRefused();
    void nothingToReadIsZero_data();
    void nothingToReadIsZero();
    void aFileThatIsGoneIsZero();
    void aFileReplacedMeanwhileIsTakenAsOne();
    void aDamagedBodyDoesNoHarm();
    void anyPrefixImportsOrLeavesTheScenario();
    void aBombEndsAtTheLimit();

private:
    int import(const QByteArray &bytes);

    QTemporaryDir m_folder;
    ScenarioData m_scenario;
    std::shared_ptr<MapHeader> m_before;
};

void MapImportTest::init()
{
    samples::setTables();
    m_scenario = {};
    m_scenario.mapFileName = "old.e3m";
    m_scenario.mapSize = 3;
    m_scenario.compressedMap = "old";
    m_scenario.regionText = "kept";
    m_before = m_scenario.mapHeader = std::make_shared<MapHeader>();
}

int MapImportTest::import(const QByteArray &bytes)
{
    QFile file(samples::writeFile(m_folder.filePath("new.e3m"), bytes));
    file.open(QIODevice::ReadOnly);
    return m_scenario.ReadMapFromFile(&file);
}

void MapImportTest::keepsTheFileWholeAndReadsItsHeader()
{
    const QByteArray map = samples::mapFile(28);
    QCOMPARE(import(map), 1);
    QCOMPARE(m_scenario.mapFileName, QString("new.e3m"));
    QCOMPARE(m_scenario.mapSize, quint32(map.size()));
    QCOMPARE(m_scenario.compressedMap, map);
    QVERIFY(m_scenario.mapHeader != m_before);
    QCOMPARE(m_scenario.mapHeader->mapName, QString("Frostmere"));
    QCOMPARE(m_scenario.regionText, QString("kept"));
}

void MapImportTest::readsPlainFilesAndSeveralMembers()
{
    const QByteArray header = samples::mapHeader(21);
    for (const QByteArray &map :
         {header, samples::pack(header.left(40)) + samples::pack(header.mid(40))}) {
        m_scenario.mapHeader.reset();
        QCOMPARE(import(map), 1);
        QCOMPARE(m_scenario.compressedMap, map);
        QCOMPARE(m_scenario.mapHeader->headerHeroes.placeholders.size(), size_t(3));
    }
}

void MapImportTest::aMapWithoutPlayersIsRefused_data()
{
    QTest::addColumn<quint32>("version");
    for (const quint32 version : {14u, 21u, 28u, 32u})
        QTest::newRow(qPrintable(QString::number(version))) << version;
}

void MapImportTest::aMapWithoutPlayersIsRefused()
{
    QFETCH(quint32, version);
    QTest::ignoreMessage(QtDebugMsg, "Err2");
    QCOMPARE(import(samples::mapFile(version, 7, 0)), -1);
    QCOMPARE(m_scenario.mapFileName, QString("old.e3m"));
    QCOMPARE(m_scenario.mapSize, 3u);
    QCOMPARE(m_scenario.compressedMap, QByteArray("old"));
    QCOMPARE(m_scenario.mapHeader, m_before);
}

void MapImportTest::nothingToReadIsZero_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("empty member") << samples::pack("");
    QTest::newRow("not even a gzip header") << samples::mapFile(28).left(9);
    QTest::newRow("damaged in front") << QByteArray("\x1f\x8b\x08\0rubbish and more rubbish", 28);
}

void MapImportTest::nothingToReadIsZero()
{
    QFETCH(QByteArray, bytes);
    QTest::ignoreMessage(QtDebugMsg, "ERR3");
    QCOMPARE(import(bytes), 0);
    QCOMPARE(m_scenario.compressedMap, QByteArray("old"));
    QCOMPARE(m_scenario.mapHeader, m_before);
}

void MapImportTest::aFileThatIsGoneIsZero()
{
    QFile file(samples::writeFile(m_folder.filePath("gone.e3m"), samples::mapFile(28)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(QFile::remove(file.fileName()));
    QTest::ignoreMessage(QtDebugMsg, "Scenario Read Error");
    QCOMPARE(m_scenario.ReadMapFromFile(&file), 0);
    QCOMPARE(m_scenario.mapHeader, m_before);
}

void MapImportTest::aFileReplacedMeanwhileIsTakenAsOne()
{
    QFile file(samples::writeFile(m_folder.filePath("new.e3m"), samples::mapFile(28)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray other =
        samples::pack(samples::mapHeader(28).replace("Frostmere", "Ironmoors"));
    samples::writeFile(file.fileName(), other); // another file of that name
    QCOMPARE(m_scenario.ReadMapFromFile(&file), 1);
    QCOMPARE(m_scenario.mapHeader->mapName, QString("Ironmoors"));
    QCOMPARE(m_scenario.compressedMap, other);
}

void MapImportTest::aDamagedBodyDoesNoHarm()
{
    QByteArray map = samples::pack(samples::mapHeader(28) + samples::noise(100000));
    map[map.size() - 2000] = char(~map[map.size() - 2000]);
    map.chop(500);
    QCOMPARE(import(map), 1);
    QCOMPARE(m_scenario.compressedMap, map);
    QCOMPARE(m_scenario.mapHeader->headerHeroes.customHeroes.size(), size_t(2));
}

void MapImportTest::anyPrefixImportsOrLeavesTheScenario()
{
    const QByteArray map = samples::mapFile(32, 7);
    for (int size = 0; size <= map.size(); ++size) {
        init();
        const int answer = import(map.left(size));
        QCOMPARE(m_scenario.compressedMap, answer == 1 ? map.left(size) : QByteArray("old"));
        QCOMPARE(m_scenario.mapHeader == m_before, answer != 1);
        QCOMPARE(m_scenario.mapSize, quint32(m_scenario.compressedMap.size()));
    }
}

void MapImportTest::aBombEndsAtTheLimit()
{
    // A map name that goes on for as long as it is believed.
    const QByteArray front = ByteWriter().u32(28).u8(1).i32(72).u8(0).u32(2147483647u).bytes();
    QCOMPARE(import(samples::packWithZeros(front, qint64(64) << 20)), 1);
    QCOMPARE(m_scenario.mapHeader->mapName.size(), (4 << 20) - front.size());
}

QTEST_GUILESS_MAIN(MapImportTest)
#include "map_import_test.moc"
