// The commands on the game's data: tables, list and extract.
#include "tests/cli/cli_game.h"
#include "tests/support/packing.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliDataTest : public QObject
{
    Q_OBJECT

private slots:
    void tablesHaveEveryMember();
    void tablesKeepNumericOrder();
    void tablesTellCampaignMaps();
    void tablesTellArchives();
    void everyCallGivesTheSameBytes();
    void gameTextsGoThroughTheGamesCodec();
    void listGoesByPrecedence();
    void extractTakesTheFirstArchive();
    void extractMakesPictures_data();
    void extractMakesPictures();
    void extractTellsWhatIsWrong_data();
    void extractTellsWhatIsWrong();
    void fullStandardOutputEndsWithStatusTwo();

private:
    CliGame m_game;
};

namespace {

const QString tables = QStringLiteral("tables");
const QString extract = QStringLiteral("extract");

} // namespace

void CliDataTest::tablesHaveEveryMember()
{
    const ChildResult result = m_game.run({tables});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.endsWith("\n}\n"));
    const QJsonObject all = QJsonDocument::fromJson(result.output).object();
    QStringList names = all.keys();
    const QStringList expected{"artifacts",
                               "backgrounds",
                               "buildings",
                               "campaignInfo",
                               "codec",
                               "colors",
                               "creature_ordering",
                               "creatures",
                               "editorCmdText",
                               "editorText",
                               "heroes",
                               "info",
                               "jktext",
                               "lod_archives",
                               "movieImages",
                               "musicNames",
                               "nArtifacts",
                               "nCreatures",
                               "primarySkills",
                               "resources",
                               "secondarySkills",
                               "skillLevels",
                               "spells",
                               "videoNames"};
    QCOMPARE(names, expected);
    QCOMPARE(all["codec"].toString(), QStringLiteral("windows-1252"));
    QCOMPARE(all["nArtifacts"].toInt(), 160);
    QCOMPARE(all["nCreatures"].toInt(), 186);
    QCOMPARE(all["creatures"].toObject()["2"].toString(), QStringLiteral("Creature 2"));
    QCOMPARE(all["creatures"].toObject()["185"].toString(), QStringLiteral("Beast"));
    QCOMPARE(all["heroes"].toObject()["9"].toString(), QStringLiteral("Hero 9"));
    QCOMPARE(all["primarySkills"].toObject(), (QJsonObject{{"0", "Attack"}, {"1", "Sense"}}));
    QCOMPARE(all["skillLevels"].toObject(),
             (QJsonObject{{"1", "Basic"}, {"2", "Advanced"}, {"3", "Expert"}}));
    QCOMPARE(all["colors"].toArray().size(), 8);
    QCOMPARE(all["colors"].toArray().at(7).toString(), QStringLiteral("Colour 7"));
    QCOMPARE(all["editorText"].toObject()["0"].toArray(),
             (QJsonArray{"Tiny Campaign Editor", "more"}));
    QCOMPARE(all["creature_ordering"].toArray().at(0).toInt(), 0);
    QCOMPARE(all["buildings"].toObject()["-1"].toObject()["11"].toString(),
             QStringLiteral("Neutral 0"));
    QCOMPARE(all["info"].toObject(), (QJsonObject{{"campaign", 0}, {"version", 0}, {"region", 0}}));
}

void CliDataTest::tablesKeepNumericOrder()
{
    const QByteArray text = m_game.run({tables}).output;
    const int second = text.indexOf("\n    \"2\": \"Creature 2\"");
    const int late = text.indexOf("\n    \"155\": \"Beast\"");
    QVERIFY(second > 0);
    QVERIFY(late > second);
    QVERIFY(text.indexOf("\n    \"-1\": {") <
            text.indexOf("\n    \"0\": {", text.indexOf("buildings")));
}

void CliDataTest::tablesTellCampaignMaps()
{
    const QJsonObject all = QJsonDocument::fromJson(m_game.run({tables}).output).object();
    const QJsonObject map = all["campaignInfo"].toObject()["3"].toObject();
    QCOMPARE(map["name"].toString(), QStringLiteral("Two Keeps"));
    QCOMPARE(map["regionCount"].toInt(), 2);
    QCOMPARE(map["layoutType"].toInt(-1), 0);
    QCOMPARE(map["generated"].toBool(true), false);
    QCOMPARE(map["backgroundName"].toString(), QStringLiteral("backtwo.pcx"));
    QCOMPARE(map["regions"].toArray().size(), 2);
    QJsonObject region = map["regions"].toArray().at(1).toObject();
    const QJsonArray looks = region.take(QStringLiteral("imageNames")).toArray();
    QCOMPARE(region, (QJsonObject{{"x", 100},
                                  {"y", 100},
                                  {"name", "East Keep"},
                                  {"borderImage", ""},
                                  {"glowImage", ""},
                                  {"fillImage", ""}}));
    QCOMPARE(looks.size(), 3);
    QCOMPARE(looks.at(2).toArray().at(7).toString(), QStringLiteral("k1s2c7.pcx"));
    const QJsonObject computed = all["campaignInfo"].toObject()["24"].toObject();
    QCOMPARE(computed["layoutType"].toInt(), 1);
    QCOMPARE(computed["generated"].toBool(), true);
    QCOMPARE(computed["regions"].toArray().at(0).toObject(),
             (QJsonObject{{"x", 20},
                          {"y", 30},
                          {"name", "Alder Bay"},
                          {"imageNames", QJsonArray{QJsonArray(), QJsonArray(), QJsonArray()}},
                          {"borderImage", "r0b.pcx"},
                          {"glowImage", "r0g.pcx"},
                          {"fillImage", "r0f.pcx"}}));
    QCOMPARE(all["backgrounds"].toObject(),
             (QJsonObject{{"0", "plainone.pcx"}, {"1", "plaintwo.pcx"}}));
}

void CliDataTest::tablesTellArchives()
{
    const QJsonObject all = QJsonDocument::fromJson(m_game.run({tables}).output).object();
    const QJsonArray archives = all["lod_archives"].toArray();
    QCOMPARE(archives.size(), 2);
    // A header of 92 bytes, an entry of 32, then the packed file.
    const QByteArray packed = packing::zlibStream("Attack\r\nSense\r\n");
    const QJsonObject file{{"name", "priskill.TXT"},
                           {"offset", 124},
                           {"size", 15},
                           {"type", 7},
                           {"compressedSize", packed.size()}};
    QCOMPARE(archives.at(0).toObject(),
             (QJsonObject{{"path", "Ravn_lng.lod"},
                          {"version", 200},
                          {"fileCount", 1},
                          {"files", QJsonObject{{"priskill.txt", file}}}}));
    QCOMPARE(archives.at(1).toObject()["path"].toString(), QStringLiteral("E3bitmap.lod"));
}

void CliDataTest::everyCallGivesTheSameBytes()
{
    for (const QString &command : {tables, QStringLiteral("list")}) {
        // The same game in another folder.
        const CliGame copy;
        const QByteArray once = m_game.run({command}).output;
        QVERIFY(!once.isEmpty());
        QVERIFY(m_game.run({command}).output == once);
        QVERIFY(copy.run({command}).output == once);
    }
}

void CliDataTest::gameTextsGoThroughTheGamesCodec()
{
    const CliGame game;
    const auto artifact = [&game] {
        const QJsonObject all = QJsonDocument::fromJson(game.run({tables}).output).object();
        return all["artifacts"].toObject()["159"].toString();
    };
    QCOMPARE(artifact(), QStringLiteral("Caf\u00e9"));
    game.write(QStringLiteral("Ravn_settings.ini"), "[Global Settings]\r\nLanguage=1\r\n");
    QCOMPARE(artifact(), QStringLiteral("Caf\u0439"));
    game.write(QStringLiteral("Ravn_settings.ini"), "[Other]\r\nLanguage=0\r\n");
    QCOMPARE(artifact(), QStringLiteral("Caf\u0439"));
    game.write(QStringLiteral("Ravn_settings.ini"),
               "[Global Settings]\r\nLanguage=5\r\nRavn.dat Text Encoding=KOI8-R\r\n");
    QCOMPARE(artifact(), QStringLiteral("Caf\u0418"));
}

void CliDataTest::listGoesByPrecedence()
{
    const ChildResult result = m_game.run({QStringLiteral("list")});
    QCOMPARE(result.exitCode, 0);
    const QList<QByteArray> lines = result.output.split('\n');
    QCOMPARE(lines.first(), QByteArray("priskill.TXT\tRavn_lng.lod\t15"));
    QCOMPARE(lines.last(), QByteArray());
    QVERIFY(lines.contains("PriSkill.txt\tE3bitmap.lod\t44"));
    QVERIFY(lines.contains("k1s2c7.pcx\tE3bitmap.lod\t1380"));
    // Sixteen text tables, 48 ready-made pictures, nine masks, five backgrounds, three stills of
    // movies, two others, and one table in the other archive.
    QCOMPARE(lines.size() - 1, 16 + 48 + 9 + 5 + 3 + 2 + 1);
}

void CliDataTest::extractTakesTheFirstArchive()
{
    const QString out = m_game.filePath(QStringLiteral("skills.txt"));
    const ChildResult result = m_game.run({extract, QStringLiteral("PRISKILL.txt"), out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(m_game.read(QStringLiteral("skills.txt")), QByteArray("Attack\r\nSense\r\n"));
}

void CliDataTest::extractMakesPictures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRgb>("corner");
    QTest::addColumn<QRgb>("inside");
    QTest::newRow("palette") << "r2f.pcx" << QSize(20, 20) << qRgba(0, 0, 0, 0) << qRgb(0, 0, 0);
    QTest::newRow("24 bits") << "backtwo.pcx" << QSize(456, 600) << qRgb(60, 30, 10)
                             << qRgb(60, 30, 10);
    QTest::newRow("32 bits") << "wide.pcx" << QSize(15, 10) << qRgb(9, 8, 7) << qRgb(9, 8, 7);
}

void CliDataTest::extractMakesPictures()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(QRgb, corner);
    QFETCH(QRgb, inside);
    const QString out = m_game.filePath(QStringLiteral("picture.PNG"));
    QCOMPARE(m_game.run({extract, name, out}).exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), size);
    QCOMPARE(image.pixel(0, 0), corner);
    QCOMPARE(image.pixel(8, 8), inside);
}

void CliDataTest::extractTellsWhatIsWrong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("message");
    QTest::newRow("no such file") << "none.txt"
                                  << "out.txt"
                                  << "Error: Can't find none.txt file in lod file\n";
    QTest::newRow("no picture") << "jktext.txt"
                                << "out.png"
                                << "Error: jktext.txt is no picture.\n";
    QTest::newRow("no such folder") << "jktext.txt"
                                    << "none/out.txt"
                                    << "Error: Cannot write file %1:\nNo such file or directory.\n";
    QTest::newRow("no such folder for a picture")
        << "k1s1c1.pcx"
        << "none/out.png"
        << "Error: Cannot write file %1:\nNo such file or directory.\n";
}

void CliDataTest::extractTellsWhatIsWrong()
{
    QFETCH(QString, name);
    QFETCH(QString, out);
    QFETCH(QString, message);
    const QString target = m_game.filePath(out);
    const ChildResult result = m_game.run({extract, name, target});
    QCOMPARE(QString::fromUtf8(result.error), message.replace(QLatin1String("%1"), target));
    QCOMPARE(result.exitCode, 2);
    QVERIFY(!QFile::exists(target));
}

void CliDataTest::fullStandardOutputEndsWithStatusTwo()
{
    m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    for (const char *command : {"tables", "list", "dump a.e3c", "--help", "--version"}) {
        const ChildResult result = runChild(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"),
             QStringLiteral("cd \"$1\" && exec \"$0\" --game . %1 >/dev/full").arg(command),
             builtProgram(QStringLiteral("cmped-cli")), m_game.path()});
        QCOMPARE(result.error,
                 QByteArray("Error: Cannot write file standard output:\nNo space left "
                            "on device.\n"));
        QCOMPARE(result.exitCode, 2);
    }
}

QTEST_GUILESS_MAIN(CliDataTest)
#include "cli_data_test.moc"
