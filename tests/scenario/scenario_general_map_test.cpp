// Importing a map into the selected scenario.
#include "tests/scenario/map_fixture.h"
#include "tests/support/idle_pipe.h"

#include <cerrno>
#include <cstring>
#include <optional>

#include <QDir>

class ScenarioGeneralMapTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<MapFixture>(); }
    void init() { fixture->reset(); }

    void dialogsStartWhereTheLastOneWas_data();
    void dialogsStartWhereTheLastOneWas();
    void chosenFolderIsKeptInUtf8_data();
    void chosenFolderIsKeptInUtf8();
    void firstMapOpensTheScenario();
    void anotherMapReplacesTheFirst();
    void onlyWhatIsNewIsAChange_data();
    void onlyWhatIsNewIsAChange();
    void unpackedMapIsImportedAsItStands();
    void fileThatCannotBeReadLeavesTheMap_data();
    void fileThatCannotBeReadLeavesTheMap();
    void mapThatIsRefusedLeavesTheMap_data();
    void mapThatIsRefusedLeavesTheMap();
    void cancelledImportStopsClicksUntilTheSelectionMoves();
    void failedImportStopsClicksUntilTheSelectionMoves();
    void importBringsClicksBack();

private:
    std::unique_ptr<MapFixture> fixture;
};

void ScenarioGeneralMapTest::dialogsStartWhereTheLastOneWas_data()
{
    QTest::addColumn<QString>("used");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("shownName");
    const QString folders = QStringLiteral("ещё/дом");
    QTest::newRow("the game's maps at first") << ""
                                              << ""
                                              << "";
    QTest::newRow("the name of the map") << ""
                                         << "isle.e3m"
                                         << "isle.e3m";
    QTest::newRow("the folder used last") << folders << ""
                                          << "";
    QTest::newRow("both") << folders << "isle.e3m"
                          << "isle.e3m";
    QTest::newRow("a name with folders") << ""
                                         << "../../isle.e3m"
                                         << "isle.e3m";
    QTest::newRow("a name with other slashes") << ""
                                               << "C:\\maps\\isle.e3m"
                                               << "isle.e3m";
    QTest::newRow("a name from the root") << folders << "/etc/passwd"
                                          << "passwd";
    QTest::newRow("a name that is a folder") << folders << ".."
                                             << "";
    QTest::newRow("a name that ends in a slash") << ""
                                                 << "isle/"
                                                 << "";
}

void ScenarioGeneralMapTest::dialogsStartWhereTheLastOneWas()
{
    QFETCH(QString, used);
    QFETCH(QString, fileName);
    QFETCH(QString, shownName);
    QString start = fixture->maps();
    if (!used.isEmpty()) {
        start = fixture->filePath(used);
        QVERIFY(QDir().mkpath(start));
        ini->SetStringVal("Campaign Editor", "Path", start.toUtf8().constData());
    }
    const QByteArray before = usedFolderBytes();
    CampaignData campaign = campaignFrom(true, {scenarioWithMap(fileName, "Isle"), ScenarioData()});
    GeneralTab tab(campaign);
    {
        NextDialog dialog(chooseFile(MapFixture::opening(start, shownName), ""));
        tab.click("refreshButton");
    }
    {
        NextDialog dialog(chooseFile(MapFixture::saving(start, shownName), ""));
        tab.click("exportButton");
    }
    QCOMPARE(usedFolderBytes(), before);
    QVERIFY(!tab.dialog.hasChanged());
    QCOMPARE(tab.copy().scenarios[0].mapFileName, fileName);
}

void ScenarioGeneralMapTest::chosenFolderIsKeptInUtf8_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("import") << "refreshButton";
    QTest::newRow("export") << "exportButton";
}

void ScenarioGeneralMapTest::chosenFolderIsKeptInUtf8()
{
    QFETCH(QString, button);
    const bool imports = button == "refreshButton";
    const QString place = fixture->filePath(QStringLiteral("Карты"));
    QVERIFY(QDir().mkpath(place));
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    const QString path = place + "/fresh.e3m";
    if (imports)
        samples::writeFile(path, mapNamed("Frostmere"));
    {
        NextDialog dialog(
            chooseFile(imports ? fixture->opening("isle.e3m") : fixture->saving("isle.e3m"), path));
        tab.click(qPrintable(button));
    }
    QCOMPARE(usedFolderBytes(),
             fixture->folderBytes() + "/\xd0\x9a\xd0\xb0\xd1\x80\xd1\x82\xd1\x8b");
    {
        const QString name = imports ? "fresh.e3m" : "isle.e3m";
        NextDialog dialog(chooseFile(MapFixture::opening(place, name), ""));
        tab.click("refreshButton");
    }
}

void ScenarioGeneralMapTest::firstMapOpensTheScenario()
{
    const QByteArray bytes = mapNamed("Ironmoors");
    const QString path = fixture->writeMap("first.e3m", bytes);
    CampaignData campaign = campaignOf(true, {"", "isle"});
    campaign.scenarios[0].regionText = "old text";
    GeneralTab tab(campaign);
    QVERIFY(!tab.find<QPushButton>("exportButton")->isEnabled());
    QVERIFY(!tab.find<QPushButton>("removeButton")->isEnabled());
    QCOMPARE(tab.shownPrerequisites(), QStringList());
    QCOMPARE(tab.texts(), QStringList({QStringLiteral("Empty — Alder Bay"),
                                       QStringLiteral("isle.e3m — Birch Hill")}));
    {
        NextDialog dialog(chooseFile(fixture->opening(""), path));
        tab.click("refreshButton");
    }
    QCOMPARE(tab.texts(), QStringList({QStringLiteral("first.e3m — Alder Bay"),
                                       QStringLiteral("isle.e3m — Birch Hill")}));
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("Ironmoors"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("first.e3m"));
    QVERIFY(tab.find<QPushButton>("exportButton")->isEnabled());
    QVERIFY(tab.find<QPushButton>("removeButton")->isEnabled());
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free"}));
    const ScenarioData &scenario = tab.copy().scenarios[0];
    QCOMPARE(scenario.mapFileName, QString("first.e3m"));
    QCOMPARE(scenario.compressedMap, bytes);
    QCOMPARE(scenario.mapSize, quint32(bytes.size()));
    QCOMPARE(scenario.mapHeader->mapName, QString("Ironmoors"));
    QCOMPARE(scenario.regionText, QString("old text"));
    QVERIFY(tab.dialog.hasChanged());
    QVERIFY(!QApplication::overrideCursor());
    tab.select(1);
    QCOMPARE(tab.prerequisite(0)->text(), QStringLiteral("Ironmoors — Alder Bay"));
}

void ScenarioGeneralMapTest::anotherMapReplacesTheFirst()
{
    const QByteArray bytes = mapNamed("Ironmoors");
    CampaignData campaign = campaignOf(true, {"north", "isle", "west"});
    require(campaign, 1, {2});
    require(campaign, 0, {1});
    GeneralTab tab(campaign, 1);
    {
        NextDialog dialog(
            chooseFile(fixture->opening("isle.e3m"), fixture->writeMap("other.e3m", bytes)));
        tab.click("refreshButton");
    }
    QCOMPARE(tab.texts()[1], QStringLiteral("other.e3m — Birch Hill"));
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("Ironmoors"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("other.e3m"));
    QCOMPARE(tab.copy().scenarios[1].compressedMap, bytes);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"2 checked"}));
    QCOMPARE(tab.storedFor(1), QList<int>({2}));
    QCOMPARE(tab.storedFor(0), QList<int>({1}));
    QVERIFY(tab.dialog.hasChanged());
    QCOMPARE(campaign.scenarios[1].mapHeader->mapName, QString("isle map")); // the document's
}

void ScenarioGeneralMapTest::onlyWhatIsNewIsAChange_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("changed");
    QTest::newRow("the same file") << "isle.e3m" << mapNamed("Frostmere") << false;
    QTest::newRow("another name") << "coast.e3m" << mapNamed("Frostmere") << true;
    QTest::newRow("other bytes") << "isle.e3m" << mapNamed("Ironmoors") << true;
}

void ScenarioGeneralMapTest::onlyWhatIsNewIsAChange()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, bytes);
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    campaign.scenarios[0].compressedMap = mapNamed("Frostmere");
    GeneralTab tab(campaign);
    {
        NextDialog dialog(
            chooseFile(fixture->opening("isle.e3m"), fixture->writeMap(fileName, bytes)));
        tab.click("refreshButton");
    }
    QTEST(tab.dialog.hasChanged(), "changed");
    QCOMPARE(tab.copy().scenarios[0].mapFileName, fileName);
}

void ScenarioGeneralMapTest::unpackedMapIsImportedAsItStands()
{
    const QByteArray bytes = samples::mapHeader(28);
    CampaignData campaign = campaignOf(true, {"", ""});
    GeneralTab tab(campaign);
    {
        NextDialog dialog(chooseFile(fixture->opening(""), fixture->writeMap("plain.e3m", bytes)));
        tab.click("refreshButton");
    }
    QCOMPARE(tab.copy().scenarios[0].compressedMap, bytes);
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("Frostmere"));
}

void ScenarioGeneralMapTest::fileThatCannotBeReadLeavesTheMap_data()
{
    QTest::addColumn<QString>("instead");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "nothing" << QString::fromLocal8Bit(strerror(ENOENT));
    QTest::newRow("a folder") << "folder"
                              << "file to open is a directory";
    QTest::newRow("a pipe") << "pipe"
                            << "Not a regular file";
}

// The file dialog takes nothing but files, so this one goes when it was chosen.
void ScenarioGeneralMapTest::fileThatCannotBeReadLeavesTheMap()
{
    QFETCH(QString, instead);
    QFETCH(QString, reason);
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    GeneralTab tab(campaign);
    const QString path = fixture->writeMap("go%2ne.e3m", mapNamed("Ironmoors"));
    bool waiting = true;
    std::optional<IdlePipe> pipe;
    {
        NextDialog dialog(chooseFile(fixture->opening("isle.e3m"), path, [&] {
            QVERIFY(QFile::remove(path));
            QVERIFY(instead != "folder" || QDir().mkdir(path));
            if (instead == "pipe")
                QVERIFY(pipe.emplace(path).isMade());
        }));
        NextDialog told([&](QWidget *box) {
            waiting = QApplication::overrideCursor() != nullptr;
            boxAnswer({"Error", "Cannot read file " + path + ":\n" + reason + ".",
                       QMessageBox::Warning})(box);
        });
        tab.click("refreshButton");
    }
    QVERIFY(!pipe || !pipe->wasOpened());
    QVERIFY(!waiting);
    QCOMPARE(tab.copy().scenarios[0].mapFileName, QString("isle.e3m"));
    QCOMPARE(tab.copy().scenarios[0].compressedMap, QByteArray("packed isle.e3m"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("isle.e3m"));
    QCOMPARE(tab.texts()[0], QStringLiteral("isle.e3m — Alder Bay"));
    QVERIFY(!tab.dialog.hasChanged());
    QCOMPARE(usedFolderBytes(), fixture->folderBytes());
}

void ScenarioGeneralMapTest::mapThatIsRefusedLeavesTheMap_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString errors = "Cannot read file %1. Map has errors.";
    const QString nothing = "Cannot read file %1:\nUnknown error.";
    QTest::newRow("without players") << samples::mapFile(28, 0, 0) << errors;
    QTest::newRow("without players, newest") << samples::mapFile(32, 7, 0) << errors;
    QTest::newRow("unpacked, without players") << samples::mapHeader(28, 0, 0) << errors;
    QTest::newRow("ends before the players")
        << samples::pack(samples::mapHeader(28).left(4)) << errors;
    QTest::newRow("empty") << QByteArray() << nothing;
    QTest::newRow("an empty member") << samples::pack("") << nothing;
    QTest::newRow("ends in the packing's header") << samples::mapFile(28).left(9) << nothing;
}

void ScenarioGeneralMapTest::mapThatIsRefusedLeavesTheMap()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    GeneralTab tab(campaign);
    const QString path = fixture->writeMap("<b>bad & %2.e3m", bytes);
    bool waiting = true;
    {
        NextDialog dialog(chooseFile(fixture->opening("isle.e3m"), path));
        NextDialog told([&](QWidget *box) {
            waiting = QApplication::overrideCursor() != nullptr;
            auto *shown = qobject_cast<QMessageBox *>(box);
            QVERIFY(shown && shown->textFormat() == Qt::PlainText);
            boxAnswer({"Error", QString(text).replace("%1", path), QMessageBox::Warning})(box);
        });
        tab.click("refreshButton");
    }
    QVERIFY(!waiting);
    const ScenarioData &scenario = tab.copy().scenarios[0];
    QCOMPARE(scenario.mapFileName, QString("isle.e3m"));
    QCOMPARE(scenario.compressedMap, QByteArray("packed isle.e3m"));
    QCOMPARE(scenario.mapHeader, campaign.scenarios[0].mapHeader);
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("isle map"));
    QVERIFY(!tab.dialog.hasChanged());
    QCOMPARE(usedFolderBytes(), fixture->folderBytes());
}

void ScenarioGeneralMapTest::cancelledImportStopsClicksUntilTheSelectionMoves()
{
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    GeneralTab tab(campaign);
    {
        NextDialog dialog(chooseFile(fixture->opening("isle.e3m"), ""));
        tab.click("refreshButton");
    }
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>());
    QVERIFY(!tab.dialog.hasChanged());
    tab.select(1);
    tab.select(0);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>({1}));
}

void ScenarioGeneralMapTest::failedImportStopsClicksUntilTheSelectionMoves()
{
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    GeneralTab tab(campaign);
    const QString path = fixture->writeMap("bad.e3m", samples::mapFile(28, 0, 0));
    {
        NextDialog dialog(chooseFile(fixture->opening("isle.e3m"), path));
        NextDialog told(boxAnswer(
            {"Error", "Cannot read file " + path + ". Map has errors.", QMessageBox::Warning}));
        tab.click("refreshButton");
    }
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>());
    tab.select(1);
    tab.clickOnBoxOf(0);
    QCOMPARE(tab.storedFor(1), QList<int>({0}));
}

void ScenarioGeneralMapTest::importBringsClicksBack()
{
    CampaignData campaign = campaignOf(true, {"isle", "west"});
    GeneralTab tab(campaign);
    {
        NextDialog cancelled(chooseFile(fixture->opening("isle.e3m"), ""));
        tab.click("refreshButton");
    }
    {
        const QString path = fixture->writeMap("good.e3m", mapNamed("Ironmoors"));
        NextDialog dialog(chooseFile(fixture->opening("isle.e3m"), path));
        tab.click("refreshButton");
    }
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>({1}));
}

QTEST_MAIN(ScenarioGeneralMapTest)
#include "scenario_general_map_test.moc"
