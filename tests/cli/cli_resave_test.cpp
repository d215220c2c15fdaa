// The command resave: the newest format with everything else as it was, and an old output that
// stays whole if the new one can't be written.
#include "tests/cli/cli_game.h"
#include "tests/support/byte_writer.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliResaveTest : public QObject
{
    Q_OBJECT

private slots:
    void seedsAreUpgraded_data();
    void seedsAreUpgraded();
    void sampleCampaignsAreUpgraded_data();
    void sampleCampaignsAreUpgraded();
    void sampleCampaignsOfThisFormatStayTheSame_data();
    void sampleCampaignsOfThisFormatStayTheSame();
    void resaveOntoItself();
    void fileSizeLimitLeavesTheOldOutputWhole_data();
    void fileSizeLimitLeavesTheOldOutputWhole();

private:
    // Resaves the file in this game's folder and checks what came of it.
    void checkUpgrade(const QString &game, const QString &file) const;

    CliGame m_game;
};

namespace {

const QString resave = QStringLiteral("resave");

ChildResult runOn(const QString &game, const QStringList &words)
{
    return runChild(builtProgram(QStringLiteral("cmped-cli")),
                    QStringList{QStringLiteral("--game"), game} + words);
}

// The dump of a campaign if its file had been of the newest version; what tells the version stands
// two levels deep, the versions of maps deeper.
QByteArray asNewest(QByteArray dumped)
{
    const int before = dumped.count("\n    \"version\": 10,");
    for (const char *old : {"5", "6"})
        dumped.replace("\n    \"version\": " + QByteArray(old) + ",", "\n    \"version\": 10,");
    return before == 0 || before == 2 ? dumped : QByteArray();
}

int bytesOfMaps(const QByteArray &dumped)
{
    const QJsonObject campaign = QJsonDocument::fromJson(dumped).object()["campaign"].toObject();
    const QJsonArray scenarios = campaign["scenarios"].toArray();
    int size = 0;
    for (const QJsonValue &scenario : scenarios)
        size += scenario.toObject()["mapSize"].toInt();
    return size;
}

QStringList sampleCampaigns()
{
    return QDir(sampleGame() + QStringLiteral("/Maps"))
        .entryList({QStringLiteral("*.e3c")}, QDir::Files);
}

QString samplePath(const QString &name)
{
    return sampleGame() + QStringLiteral("/Maps/") + name;
}

} // namespace

void CliResaveTest::checkUpgrade(const QString &game, const QString &file) const
{
    const QString dump = QStringLiteral("dump");
    const QString first = m_game.filePath(QStringLiteral("first.e3c"));
    const QString second = m_game.filePath(QStringLiteral("second.e3c"));
    const ChildResult saved = runOn(game, {resave, file, first});
    QCOMPARE(saved.error, QByteArray());
    QCOMPARE(saved.output, QByteArray());
    QCOMPARE(saved.exitCode, 0);
    const QByteArray before = runOn(game, {dump, file}).output;
    const QByteArray after = runOn(game, {dump, first}).output;
    QVERIFY(!after.isEmpty());
    QCOMPARE(after.count("\n    \"version\": 10,"), 2);
    QVERIFY(after == asNewest(before));
    const int maps = bytesOfMaps(before);
    QVERIFY(contents(first).right(maps) == contents(file).right(maps));
    QCOMPARE(runOn(game, {resave, first, second}).exitCode, 0);
    QVERIFY(contents(second) == contents(first));
}

void CliResaveTest::seedsAreUpgraded_data()
{
    QTest::addColumn<QByteArray>("seed");
    for (const char *seed : {"version_5", "version_6", "version_10"})
        QTest::newRow(seed) << QByteArray(seed);
}

void CliResaveTest::seedsAreUpgraded()
{
    QFETCH(QByteArray, seed);
    const QString file = m_game.write(QStringLiteral("old.e3c"), seedCampaign(seed));
    checkUpgrade(m_game.path(), file);
    QVERIFY(bytesOfMaps(runOn(m_game.path(), {QStringLiteral("dump"), file}).output) > 100);
}

void CliResaveTest::sampleCampaignsAreUpgraded_data()
{
    QTest::addColumn<QString>("name");
    QVERIFY2(!sampleCampaigns().isEmpty(), "the sample game is missing");
    for (const QString &name : sampleCampaigns())
        QTest::newRow(qPrintable(name)) << name;
}

void CliResaveTest::sampleCampaignsAreUpgraded()
{
    QFETCH(QString, name);
    checkUpgrade(sampleGame(), samplePath(name));
}

void CliResaveTest::sampleCampaignsOfThisFormatStayTheSame_data()
{
    QTest::addColumn<QString>("name");
    // Those of older versions change, and so does the one whose header another deflate packed.
    const QStringList others{"version_5.e3c", "version_6.e3c", "foreign_packer.e3c"};
    for (const QString &name : others)
        QVERIFY2(sampleCampaigns().contains(name), qPrintable(name));
    for (const QString &name : sampleCampaigns()) {
        if (!others.contains(name))
            QTest::newRow(qPrintable(name)) << name;
    }
}

void CliResaveTest::sampleCampaignsOfThisFormatStayTheSame()
{
    QFETCH(QString, name);
    const QString out = m_game.filePath(QStringLiteral("same.e3c"));
    QCOMPARE(runOn(sampleGame(), {resave, samplePath(name), out}).exitCode, 0);
    QVERIFY(!contents(out).isEmpty());
    QVERIFY(contents(out) == contents(samplePath(name)));
}

void CliResaveTest::resaveOntoItself()
{
    const QString file = m_game.write(QStringLiteral("self.e3c"), seedCampaign("version_6"));
    const QString other = m_game.filePath(QStringLiteral("other.e3c"));
    QCOMPARE(m_game.run({resave, file, other}).exitCode, 0);
    QCOMPARE(m_game.run({resave, file, file}).exitCode, 0);
    QVERIFY(m_game.read(QStringLiteral("self.e3c")).size() > 100);
    QCOMPARE(m_game.read(QStringLiteral("self.e3c")), m_game.read(QStringLiteral("other.e3c")));
}

void CliResaveTest::fileSizeLimitLeavesTheOldOutputWhole_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("resave") << QStringList{resave, "big.e3c"};
    QTest::newRow("extract") << QStringList{"extract", "backhome.pcx"};
    QTest::newRow("extract as a picture") << QStringList{"extract", "backhome.pcx", ".png"};
    QTest::newRow("render") << QStringList{"render", "big.e3c"};
}

void CliResaveTest::fileSizeLimitLeavesTheOldOutputWhole()
{
    QFETCH(QStringList, words);
    const QString out = QStringLiteral("out/old") + words.value(2);
    ByteWriter noise;
    for (quint32 i = 0; i < 2000; ++i)
        noise.u32(i * 2654435761u);
    ByteWriter campaign;
    campaign.u32(10).u32(1).u8(0).u32(0).u32(0).u8(25).text(noise.bytes().toHex()).zeros(6);
    m_game.write(QStringLiteral("big.e3c"), packing::gzip(campaign.bytes()));
    QDir(m_game.filePath(QStringLiteral("out"))).removeRecursively();
    QVERIFY(QDir(m_game.path()).mkdir(QStringLiteral("out")));
    m_game.write(out, "old bytes");
    const QString script =
        QStringLiteral("cd \"$1\" && ulimit -f 1 && exec \"$0\" --game . %1 %2 %3")
            .arg(words[0], words[1], out);
    const ChildResult result = runChild(
        QStringLiteral("/bin/bash"),
        {QStringLiteral("-c"), script, builtProgram(QStringLiteral("cmped-cli")), m_game.path()});
    QVERIFY(result.exitedNormally);
    QCOMPARE(QString::fromUtf8(result.error),
             QStringLiteral("Error: Cannot write file %1:\nFile too large.\n").arg(out));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(m_game.read(out), QByteArray("old bytes"));
    QCOMPARE(
        QDir(m_game.filePath(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden).size(),
        1);
}

QTEST_GUILESS_MAIN(CliResaveTest)
#include "cli_resave_test.moc"
