// Files made to hurt: whatever they hold, the program ends by itself, soon, and in little memory.
#include "fuzz/corpus.h"
#include "tests/cli/cli_game.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"
#include "tests/support/sanitized.h"

#include <QtTest>

#include <sys/resource.h>

class CliHostileTest : public QObject
{
    Q_OBJECT

private slots:
    void campaignIsReadSoonAndInLittleMemory_data();
    void campaignIsReadSoonAndInLittleMemory();
    void absurdCountsHaveTheirAnswer_data();
    void absurdCountsHaveTheirAnswer();
    void tableFileIsReadSoonAndInLittleMemory_data();
    void tableFileIsReadSoonAndInLittleMemory();
    void archiveIsReadSoonAndInLittleMemory_data();
    void archiveIsReadSoonAndInLittleMemory();
    // The last: the peak is that of all children so far.
    void largestCampaignIsDumpedWithoutASecondCopy();

private:
    // Runs the program on the game's folder with these words.
    void check(const CliGame &game, const QStringList &words);
    // Searches a campaign for damage, for which its maps are unpacked whole.
    void checkSearch(const QString &file);

    CliGame m_game;
    CliGame m_tableGame;
    CliGame m_archiveGame;
};

namespace {

constexpr qint64 kilobytesAllowed = 102400;
constexpr qint64 kilobytesForTheLargest = 204800;

constexpr quint32 manyScenarios = sanitized ? 3000 : 30000;
#ifdef NDEBUG
constexpr qint64 millisecondsAllowed = sanitized ? 30000 : 1000;
#else
constexpr qint64 millisecondsAllowed = 5000; // what isn't optimised takes its time
#endif

constexpr qint64 bombBytes = qint64(300) * 1024 * 1024;

// The processor's time, which other work on the machine doesn't stretch as it does the clock's.
qint64 childrenMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const qint64 seconds = usage.ru_utime.tv_sec + usage.ru_stime.tv_sec;
    return 1000 * seconds + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
}

ByteWriter head(quint32 scenarios)
{
    return ByteWriter().u32(10).u32(1).u8(0).u32(0).u32(scenarios).u8(25);
}

QByteArray scenarioBombs(quint32 count)
{
    return packing::gzipWithZeros(head(count).u32(0).u32(0).zeros(2).bytes(), bombBytes);
}

QByteArray nameBomb(quint32 length)
{
    return packing::gzipWithZeros(head(0).u32(length).bytes(), bombBytes);
}

// One scenario with this map.
QByteArray campaignWithMap(const QByteArray &map)
{
    ByteWriter file = head(1).u32(0).u32(0).zeros(2);
    file.text("bomb.e3m").u32(quint32(map.size())).zeros(1 + 2 + 4 + 6 + 1 + 24 + 20 + 1);
    return packing::gzip(file.bytes()) + map;
}

// A scenario whose map is a bomb: its header, or what is behind it.
QByteArray mapBomb(const QByteArray &start)
{
    return campaignWithMap(packing::gzipWithZeros(start, bombBytes));
}

QByteArray mapStart()
{
    return ByteWriter().u32(28).u8(1).u32(72).u8(0).bytes();
}

QByteArray mapWithPlaceholders(quint32 count)
{
    // Eight absent players, no victory, no loss, no teams, 160 heroes.
    ByteWriter map = ByteWriter().raw(mapStart()).u32(0).u32(0).u8(0).u8(0);
    for (int player = 0; player < 8; ++player)
        map.zeros(3 + 1 + 2 + 1 + 1 + 1).u8(255).u8(0).u32(0);
    return map.u8(255).u8(255).u8(0).zeros(20).u32(count).bytes();
}

} // namespace

void CliHostileTest::campaignIsReadSoonAndInLittleMemory_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const corpus::File &seed : corpus::campaigns())
        QTest::newRow(seed.name) << seed.bytes;
    QTest::newRow("bomb of 3000 scenarios") << scenarioBombs(3000);
    QTest::newRow("bomb of 2^32-1 scenarios") << scenarioBombs(0xffffffff);
    QTest::newRow("bomb in the name") << nameBomb(0x7fffffff);
    QTest::newRow("bomb in the name, as long as stated") << nameBomb(quint32(bombBytes));
    QTest::newRow("bomb without a version") << packing::gzipWithZeros({}, bombBytes);
    QTest::newRow("bomb behind a map's header") << mapBomb(corpus::mapHeader(28));
    QTest::newRow("bomb in a map's name")
        << mapBomb(mapStart() + ByteWriter().u32(0x7fffffff).bytes());
    QTest::newRow("bomb of placeholders") << mapBomb(mapWithPlaceholders(0xffffffff));
    QTest::newRow("bomb of placeholders, signed") << mapBomb(mapWithPlaceholders(0x7fffffff));
}

void CliHostileTest::campaignIsReadSoonAndInLittleMemory()
{
    QFETCH(QByteArray, content);
    const QString file = m_game.write(QStringLiteral("hostile.e3c"), content);
    const QString out = m_game.filePath(QStringLiteral("out.e3c"));
    check(m_game, {QStringLiteral("dump"), file});
    check(m_game, {QStringLiteral("resave"), file, out});
    checkSearch(file);
}

void CliHostileTest::absurdCountsHaveTheirAnswer_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("told"); // some of the dump
    const QByteArray longName = mapStart() + ByteWriter().u32(0x7fffffff).raw("Ash").bytes();
    QTest::newRow("map name of 2^31-1 bytes") << campaignWithMap(packing::gzip(longName))
                                              << QByteArray() << QByteArray(R"("mapName": "Ash",)");
    QTest::newRow("2^32-1 reserved heroes")
        << campaignWithMap(packing::gzip(mapWithPlaceholders(0xffffffff) + "\3\4")) << QByteArray()
        << QByteArray("\"placeholders\": [\n              3,\n              4\n            ],");
    QTest::newRow("2^32-1 scenarios")
        << packing::gzip(head(0xffffffff).zeros(1000).bytes())
        << QByteArray("Error: Incorrect or damaged file.\n") << QByteArray();
}

void CliHostileTest::absurdCountsHaveTheirAnswer()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, told);
    const QString file = m_game.write(QStringLiteral("absurd.e3c"), content);
    check(m_game, {QStringLiteral("dump"), file});
    const ChildResult result = m_game.run({QStringLiteral("dump"), file});
    QCOMPARE(result.error, message);
    QCOMPARE(result.exitCode, message.isEmpty() ? 0 : 2);
    QCOMPARE(result.output.isEmpty(), !message.isEmpty());
    QVERIFY2(result.output.contains(told), result.output.constData());
}

void CliHostileTest::tableFileIsReadSoonAndInLittleMemory_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const corpus::File &seed : corpus::tableFiles())
        QTest::newRow(seed.name) << seed.bytes;
}

void CliHostileTest::tableFileIsReadSoonAndInLittleMemory()
{
    QFETCH(QByteArray, content);
    m_tableGame.write(QStringLiteral("ravn.dat"), content);
    check(m_tableGame, {QStringLiteral("tables")});
}

void CliHostileTest::archiveIsReadSoonAndInLittleMemory_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const corpus::File &seed : corpus::archives())
        QTest::newRow(seed.name) << seed.bytes;
}

void CliHostileTest::archiveIsReadSoonAndInLittleMemory()
{
    QFETCH(QByteArray, content);
    m_archiveGame.write(QStringLiteral("Data/Ravn_l_ext.lod"), content);
    const QString out = m_archiveGame.filePath(QStringLiteral("out"));
    check(m_archiveGame, {QStringLiteral("list")});
    check(m_archiveGame, {QStringLiteral("extract"), QStringLiteral("hello.txt"), out});
}

void CliHostileTest::largestCampaignIsDumpedWithoutASecondCopy()
{
    // 30,000 scenarios with as many prerequisites each: 113 MB of records, 900 MB of JSON.
    const QString file = m_game.write(QStringLiteral("largest.e3c"), scenarioBombs(manyScenarios));
    const ChildResult result = runChild(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("exec \"$0\" --game \"$1\" dump \"$2\" >/dev/null"),
         builtProgram(QStringLiteral("cmped-cli")), m_game.path(), file});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    if (!sanitized)
        QVERIFY2(result.peakKilobytes < kilobytesForTheLargest,
                 qPrintable(QStringLiteral("%1 KB").arg(result.peakKilobytes)));
}

void CliHostileTest::checkSearch(const QString &file)
{
    const qint64 before = childrenMilliseconds();
    const ChildResult result = m_game.run({QStringLiteral("check"), file});
    const qint64 spent = childrenMilliseconds() - before;
    QVERIFY(result.exitedNormally);
    QVERIFY2(result.exitCode == 0 || result.exitCode == 2 || result.exitCode == 3, result.error);
    QCOMPARE(result.output.isEmpty(), result.exitCode != 3);
    QVERIFY2(spent < 3 * millisecondsAllowed, qPrintable(QStringLiteral("%1 ms").arg(spent)));
    if (!sanitized)
        QVERIFY2(result.peakKilobytes < kilobytesAllowed,
                 qPrintable(QStringLiteral("%1 KB").arg(result.peakKilobytes)));
}

void CliHostileTest::check(const CliGame &game, const QStringList &words)
{
    const qint64 before = childrenMilliseconds();
    const ChildResult result = game.run(words);
    const qint64 spent = childrenMilliseconds() - before;
    QVERIFY(result.exitedNormally);
    QVERIFY2(result.exitCode == 0 || result.exitCode == 2, result.error);
    QCOMPARE(result.error.isEmpty(), result.exitCode == 0);
    QVERIFY2(spent < millisecondsAllowed, qPrintable(QStringLiteral("%1 ms").arg(spent)));
    if (!sanitized)
        QVERIFY2(result.peakKilobytes < kilobytesAllowed,
                 qPrintable(QStringLiteral("%1 KB").arg(result.peakKilobytes)));
}

QTEST_GUILESS_MAIN(CliHostileTest)
#include "cli_hostile_test.moc"
