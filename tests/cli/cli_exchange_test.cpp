// The commands that carry texts and maps between a campaign and files of their own.
#include "tests/cli/home_folder.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliExchangeTest : public QObject, private HomeFolder
{
    Q_OBJECT

private slots:
    void init();
    void exportTextsWritesTheFile();
    void textsAreInTheEncodingGiven();
    void importTextsWritesTheCampaign();
    void importTextsTakesAPipe();
    void importTextsOntoItself();
    void importTextsRefusesOtherFiles_data();
    void importTextsRefusesOtherFiles();
    void sampleCampaignsKeepTheirTexts_data();
    void sampleCampaignsKeepTheirTexts();
    void exportMapsWritesEveryMap();
    void exportMapsTellsWhatItCannotWriteAndGoesOn();
    void exportMapsLeavesTheCampaignsFileAlone();
    void refreshMapsWritesTheCampaign();
    void refreshMapsWritesNothingUnlessAllMapsWereRead_data();
    void refreshMapsWritesNothingUnlessAllMapsWereRead();
    void campaignsThatCannotBeReadAreTold_data();
    void campaignsThatCannotBeReadAreTold();
    void filesThatCannotBeWrittenAreTold_data();
    void filesThatCannotBeWrittenAreTold();
    void fileSizeLimitLeavesTheOldOutputWhole_data();
    void fileSizeLimitLeavesTheOldOutputWhole();

private:
    QJsonObject dumped(const QString &name) const
    {
        const ChildResult result = m_game.run({"dump", path(name)});
        return QJsonDocument::fromJson(result.output).object()["campaign"].toObject();
    }
    QStringList mapNames(const QString &name) const;
    void fails(const QStringList &words, const QString &error) const;
};

void CliExchangeTest::init()
{
    makeFolder();
    QVERIFY(QDir(folder()).mkdir("maps"));
}

void CliExchangeTest::fails(const QStringList &words, const QString &error) const
{
    const ChildResult result = m_game.run(words);
    QVERIFY(result.exitedNormally);
    QCOMPARE(QString::fromUtf8(result.error), error);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitCode, 2);
}

QStringList CliExchangeTest::mapNames(const QString &name) const
{
    QStringList names;
    const QJsonArray scenarios = dumped(name)["scenarios"].toArray();
    for (const QJsonValue &scenario : scenarios)
        names << scenario.toObject()["mapHeader"].toObject()["mapName"].toString();
    return names;
}

void CliExchangeTest::exportTextsWritesTheFile()
{
    write("texts.txt", "old");
    runs({"export-texts", path("home.e3c"), path("texts.txt")});
    QCOMPARE(contents(path("texts.txt")), exported);
    QCOMPARE(contents(path("home.e3c")), homeCampaign());
}

void CliExchangeTest::textsAreInTheEncodingGiven()
{
    write("home.e3c", homeCampaign("\xC6\xE4\xE8"));
    const QStringList encoding{"--encoding", "Windows-1251"};
    runs(encoding + QStringList{"export-texts", path("home.e3c"), path("texts.txt")});
    const QByteArray texts = contents(path("texts.txt"));
    QVERIFY(texts.contains("\r\nIronmoors \x97 Alder Bay\r\n"));
    QVERIFY(texts.contains("\r\n\xC6\xE4\xE8\r\n"));
    runs(encoding + QStringList{"import-texts", path("home.e3c"), path("texts.txt"), path("out")});
    runs(encoding + QStringList{"export-texts", path("out"), path("again.txt")});
    QCOMPARE(contents(path("again.txt")), texts);
}

void CliExchangeTest::importTextsWritesTheCampaign()
{
    write("texts.txt", translated());
    runs({"import-texts", path("home.e3c"), path("texts.txt"), path("out.e3c")});
    QCOMPARE(contents(path("home.e3c")), homeCampaign());
    const QJsonObject campaign = dumped("out.e3c");
    QCOMPARE(campaign["name"].toString(), QString("Road of embers"));
    QCOMPARE(campaign["description"].toString(), QString());
    const QJsonArray scenarios = campaign["scenarios"].toArray();
    const QJsonObject first = scenarios[0].toObject();
    QCOMPARE(first["regionText"].toString(), QString("Wolves\nabout"));
    QCOMPARE(first["prologues"].toArray()[0].toObject()["text"].toString(), QString("Long\tago"));
    QCOMPARE(scenarios[1].toObject()["regionText"].toString(), QString("Nobody"));
    QCOMPARE(mapNames("out.e3c"), QStringList({"Ironmoors", "", "Stonegate"}));
    const QByteArray maps = mapNamed("Ironmoors") + mapNamed("Stonegate");
    QVERIFY(contents(path("out.e3c")).endsWith(maps));
}

void CliExchangeTest::importTextsTakesAPipe()
{
    write("texts.txt", translated());
    const QString script =
        "cat \"$3\" | \"$0\" --game \"$1\" import-texts \"$2\" /dev/stdin \"$4\"";
    const ChildResult result =
        runChild("/bin/bash", {"-c", script, builtProgram("cmped-cli"), m_game.path(),
                               path("home.e3c"), path("texts.txt"), path("out.e3c")});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(dumped("out.e3c")["name"].toString(), QString("Road of embers"));
}

void CliExchangeTest::importTextsOntoItself()
{
    write("texts.txt", translated());
    runs({"import-texts", path("home.e3c"), path("texts.txt"), path("out.e3c")});
    runs({"import-texts", path("home.e3c"), path("texts.txt"), path("home.e3c")});
    QCOMPARE(contents(path("home.e3c")), contents(path("out.e3c")));
}

void CliExchangeTest::importTextsRefusesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QString incorrect = "Error: Cannot read file %1 - incorrect campaign text:\n%2.\n";
    const QString unknown = incorrect.arg("%1", "Unknown error");
    QTest::newRow("empty") << QByteArray("") << unknown;
    QTest::newRow("one line short") << translated().chopped(2) << unknown;
    QTest::newRow("changed name") << translated().replace("Stonegate", "Stonewall") << unknown;
    QTest::newRow("a campaign") << homeCampaign() << unknown;
    QTest::newRow("missing") << QByteArray()
                             << "Error: Cannot read file %1:\nNo such file or directory.\n";
}

void CliExchangeTest::importTextsRefusesOtherFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    const QString texts = path("texts.txt");
    if (!bytes.isNull())
        write("texts.txt", bytes);
    write("out.e3c", "old");
    fails({"import-texts", path("home.e3c"), texts, path("out.e3c")}, message.arg(texts));
    QCOMPARE(contents(path("out.e3c")), QByteArray("old"));
}

void CliExchangeTest::sampleCampaignsKeepTheirTexts_data()
{
    QTest::addColumn<QString>("name");
    const QDir maps(sampleGame() + "/Maps");
    const QStringList names = maps.entryList({"*.e3c"}, QDir::Files);
    QVERIFY2(!names.isEmpty(), "the sample game is missing");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << maps.filePath(name);
}

void CliExchangeTest::sampleCampaignsKeepTheirTexts()
{
    QFETCH(QString, name);
    const auto onSample = [](const QStringList &words) {
        const ChildResult result =
            runChild(builtProgram("cmped-cli"), QStringList{"--game", sampleGame()} + words);
        QCOMPARE(QString::fromUtf8(result.error), QString());
        QCOMPARE(result.exitCode, 0);
    };
    onSample({"export-texts", name, path("first.txt")});
    onSample({"import-texts", name, path("first.txt"), path("out.e3c")});
    onSample({"export-texts", path("out.e3c"), path("second.txt")});
    QVERIFY(contents(path("first.txt")).startsWith("Name:\r\n\r\n\r\nDescription:\r\n\r\n\r\n"));
    QCOMPARE(contents(path("second.txt")), contents(path("first.txt")));
    onSample({"export-maps", name, path("maps")});
    onSample({"export-maps", path("out.e3c"), path("maps")});
}

void CliExchangeTest::exportMapsWritesEveryMap()
{
    write("maps/one.e3m", "old");
    runs({"export-maps", path("home.e3c"), path("maps")});
    QCOMPARE(QDir(path("maps")).entryList(QDir::Files | QDir::Hidden),
             QStringList({"one.e3m", "three.e3m"}));
    QCOMPARE(contents(path("maps/one.e3m")), mapNamed("Ironmoors"));
    QCOMPARE(contents(path("maps/three.e3m")), mapNamed("Stonegate"));
}

void CliExchangeTest::exportMapsTellsWhatItCannotWriteAndGoesOn()
{
    QVERIFY(QDir(path("maps")).mkdir("one.e3m"));
    fails({"export-maps", path("home.e3c"), path("maps")},
          "Error: Cannot write file " + path("maps/one.e3m") + ":\nIs a directory.\n");
    QCOMPARE(contents(path("maps/three.e3m")), mapNamed("Stonegate"));
}

void CliExchangeTest::exportMapsLeavesTheCampaignsFileAlone()
{
    write("maps/one.e3m", homeCampaign());
    fails({"export-maps", path("maps/one.e3m"), path("maps")},
          "Error: Cannot write file " + path("maps/one.e3m") + ":\nFile exists.\n");
    QCOMPARE(contents(path("maps/one.e3m")), homeCampaign());
    QCOMPARE(contents(path("maps/three.e3m")), mapNamed("Stonegate"));
}

void CliExchangeTest::refreshMapsWritesTheCampaign()
{
    write("maps/one.e3m", mapNamed("Moorlands"));
    write("maps/three.e3m", mapNamed("Graystone"));
    runs({"refresh-maps", path("home.e3c"), path("maps"), path("out.e3c")});
    QCOMPARE(contents(path("home.e3c")), homeCampaign());
    QCOMPARE(mapNames("out.e3c"), QStringList({"Moorlands", "", "Graystone"}));
    const QByteArray maps = mapNamed("Moorlands") + mapNamed("Graystone");
    QVERIFY(contents(path("out.e3c")).endsWith(maps));
}

void CliExchangeTest::refreshMapsWritesNothingUnlessAllMapsWereRead_data()
{
    QTest::addColumn<QByteArray>("first"); // null: no file
    QTest::addColumn<QByteArray>("third");
    QTest::addColumn<QString>("message");
    const QByteArray refused = mapNamed("Nobodies.", 0);
    const QString firstRefused = "Error: Cannot read file one.e3m. Map has errors.\n";
    const QString thirdMissing = "Error: Cannot read file three.e3m:\nNo such file or directory.\n";
    QTest::newRow("missing") << mapNamed("Moorlands") << QByteArray() << thirdMissing;
    QTest::newRow("refused") << refused << mapNamed("Graystone") << firstRefused;
    QTest::newRow("both") << refused << QByteArray() << firstRefused + thirdMissing;
    QTest::newRow("empty") << QByteArray("") << QByteArray()
                           << "Error: Cannot read file one.e3m:\nUnknown error.\n";
}

void CliExchangeTest::refreshMapsWritesNothingUnlessAllMapsWereRead()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, third);
    QFETCH(QString, message);
    if (!first.isNull())
        write("maps/one.e3m", first);
    if (!third.isNull())
        write("maps/three.e3m", third);
    write("out.e3c", "old");
    fails({"refresh-maps", path("home.e3c"), path("maps"), path("out.e3c")}, message);
    QCOMPARE(contents(path("out.e3c")), QByteArray("old"));
}

void CliExchangeTest::campaignsThatCannotBeReadAreTold_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("export-texts") << QStringList{"export-texts", "", "out"};
    QTest::newRow("import-texts") << QStringList{"import-texts", "", "texts", "out"};
    QTest::newRow("export-maps") << QStringList{"export-maps", "", "maps"};
    QTest::newRow("refresh-maps") << QStringList{"refresh-maps", "", "maps", "out"};
}

void CliExchangeTest::campaignsThatCannotBeReadAreTold()
{
    QFETCH(QStringList, words);
    for (int i = 1; i < words.size(); ++i)
        words[i] = path(words[i]);
    words[1] = path("gone.e3c");
    fails(words, "Error: Cannot read file " + words[1] + ":\nNo such file or directory.\n");
    words[1] = write("damaged.e3c", packing::gzip(""));
    fails(words, "Error: Incorrect or damaged file.\n");
    QVERIFY(!QFile::exists(path("out")));
}

void CliExchangeTest::filesThatCannotBeWrittenAreTold_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("export-texts") << QStringList{"export-texts", "home.e3c"};
    QTest::newRow("import-texts") << QStringList{"import-texts", "home.e3c", "texts.txt"};
    QTest::newRow("refresh-maps") << QStringList{"refresh-maps", "home.e3c", "maps"};
}

void CliExchangeTest::filesThatCannotBeWrittenAreTold()
{
    QFETCH(QStringList, words);
    write("texts.txt", translated());
    write("maps/one.e3m", mapNamed("Moorlands"));
    write("maps/three.e3m", mapNamed("Graystone"));
    for (int i = 1; i < words.size(); ++i)
        words[i] = path(words[i]);
    const QString out = path("no/such/place");
    fails(words + QStringList{out},
          "Error: Cannot write file " + out + ":\nNo such file or directory.\n");
}

void CliExchangeTest::fileSizeLimitLeavesTheOldOutputWhole_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("out");
    QTest::newRow("export-texts") << "export-texts home.e3c out/old"
                                  << "out/old";
    QTest::newRow("import-texts") << "import-texts home.e3c texts.txt out/old"
                                  << "out/old";
    QTest::newRow("export-maps") << "export-maps home.e3c out"
                                 << "out/one.e3m";
    QTest::newRow("refresh-maps") << "refresh-maps home.e3c maps out/old"
                                  << "out/old";
}

// Every output but the third map is larger than the kilobyte allowed.
void CliExchangeTest::fileSizeLimitLeavesTheOldOutputWhole()
{
    QFETCH(QString, command);
    QFETCH(QString, out);
    const QByteArray text = samples::noise(2000).toHex();
    const QByteArray map = samples::pack(samples::mapHeader(28) + samples::noise(2000));
    write("home.e3c", homeCampaign(text, map));
    write("texts.txt",
          QByteArray(exported).replace("Ironmoors", "Frostmere").replace("Beware", text));
    write("maps/one.e3m", map);
    write("maps/three.e3m", mapNamed("Graystone"));
    QVERIFY(QDir(folder()).mkdir("out"));
    write(out, "old bytes");
    const QString script = "cd \"$1\" && ulimit -f 1 && exec \"$0\" --game \"$2\" " + command;
    const ChildResult result =
        runChild("/bin/bash", {"-c", script, builtProgram("cmped-cli"), folder(), m_game.path()});
    QCOMPARE(QString::fromUtf8(result.error),
             "Error: Cannot write file " + out + ":\nFile too large.\n");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(contents(path(out)), QByteArray("old bytes"));
    const QStringList others{"old", "one.e3m", "three.e3m"};
    for (const QString &name : QDir(path("out")).entryList(QDir::Files | QDir::Hidden))
        QVERIFY2(others.contains(name), qPrintable(name));
}

QTEST_GUILESS_MAIN(CliExchangeTest)
#include "cli_exchange_test.moc"
