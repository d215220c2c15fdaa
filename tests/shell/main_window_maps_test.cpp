// The commands that write the maps of the window's campaign beside it and read them again.
#include "scenario/scenario_info.h"
#include "tests/shell/exchange_window.h"
#include "tests/support/disk_faults.h"

#include <QDialogButtonBox>
#include <QPushButton>

class MainWindowMapsTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void cleanup();

    void exportMapsWritesBesideTheCampaign();
    void exportMapsSaysNothingOfWhatDoesntOpen();
    void exportMapsLeavesTheCampaignsFileAlone();
    void exportMapsTellsAllThatIsRefusedAtOnce();
    void exportMapsOfThousandsTellsInOneBox();
    void exportMapsOntoAFullDiskWarns();
    void exportMapsOfAnUntitledCampaignUsesTheCurrentFolder();
    void refreshMapsReadsBesideTheCampaign();
    void refreshMapsEndsAtAMissingFile_data();
    void refreshMapsEndsAtAMissingFile();
    void refreshMapsWarnsOfARefusedMapAndGoesOn();
    void refreshMapsWarnsOfAnUnreadableFileAndEnds();
    void refreshMapsReadsNothingOutside();
    void refreshMapsOfNoMapsCountsAsAChange();

private:
    ExpectedBox refusal(const QString &name, const QString &reason) const
    {
        return warning("Cannot write file " + path(name) + ":\n" + reason + '.');
    }
};

void MainWindowMapsTest::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
    window.reset();
}

void MainWindowMapsTest::exportMapsWritesBesideTheCampaign()
{
    load();
    writeFile("three.e3m", "old");
    trigger("actionExport_Scenario_Maps");
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name),
             QStringList({"home.e3c", "one.e3m", "three.e3m"}));
    QCOMPARE(contents(path("one.e3m")), mapNamed("Ironmoors"));
    QCOMPARE(contents(path("three.e3m")), mapNamed("Stonegate"));
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(usedFolderBytes(), QByteArray());
}

void MainWindowMapsTest::exportMapsSaysNothingOfWhatDoesntOpen()
{
    load();
    QVERIFY(QDir(folder->path()).mkdir("one.e3m"));
    trigger("actionExport_Scenario_Maps");
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(contents(path("three.e3m")), mapNamed("Stonegate"));
}

void MainWindowMapsTest::exportMapsLeavesTheCampaignsFileAlone()
{
    CampaignData campaign = campaignWithMaps();
    campaign.scenarios[0].mapFileName = "home.e3c";
    save(campaign);
    load();
    const QByteArray before = contents(path("home.e3c"));
    NextDialog box(withoutHourglass(refusal("home.e3c", "File exists")));
    trigger("actionExport_Scenario_Maps");
    QCOMPARE(contents(path("home.e3c")), before);
    QCOMPARE(contents(path("three.e3m")), mapNamed("Stonegate"));
}

void MainWindowMapsTest::exportMapsTellsAllThatIsRefusedAtOnce()
{
    CampaignData campaign = campaignWithMaps();
    campaign.scenarios[0].mapFileName = ".profile";
    save(campaign);
    load();
    const QTemporaryDir outside;
    const QString target = samples::writeFile(outside.filePath("secret"), "the author's");
    QVERIFY(QFile::link(target, path("three.e3m")));
    const QString told = refusal(".profile", "Operation not permitted").text + "\n\n" +
                         refusal("three.e3m", "Too many levels of symbolic links").text;
    NextDialog box(withoutHourglass(warning(told)));
    trigger("actionExport_Scenario_Maps");
    QCOMPARE(contents(target), QByteArray("the author's"));
    QVERIFY(!QFile::exists(path(".profile")));
    QVERIFY(!EditorData::info.modified);
}

void MainWindowMapsTest::exportMapsOfThousandsTellsInOneBox()
{
    CampaignData campaign = campaignWithMaps();
    const ScenarioData hidden = campaign.scenarios[0];
    campaign.initDummyCampaign(24, false, 1, 3000);
    for (ScenarioData &scenario : campaign.scenarios) {
        scenario = hidden;
        scenario.mapFileName = ".profile";
    }
    save(campaign);
    load();
    NextDialog box([](QWidget *widget) {
        const QString told = qobject_cast<QMessageBox *>(widget)->text();
        widget->close();
        QVERIFY(told.startsWith("Cannot write file "));
        QVERIFY(told.size() < 1000);
    });
    trigger("actionExport_Scenario_Maps");
}

void MainWindowMapsTest::exportMapsOntoAFullDiskWarns()
{
    load();
    writeFile("one.e3m", "old");
    NextDialog box(withoutHourglass(warning(refusal("one.e3m", "File too large").text + "\n\n" +
                                            refusal("three.e3m", "File too large").text)));
    const FileSizeLimit limit(100);
    trigger("actionExport_Scenario_Maps");
    QCOMPARE(contents(path("one.e3m")), QByteArray("old"));
    QVERIFY(!QFile::exists(path("three.e3m")));
}

void MainWindowMapsTest::exportMapsOfAnUntitledCampaignUsesTheCurrentFolder()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir(folder->path()).mkdir("here"));
    QVERIFY(QDir::setCurrent(path("here")));
    const QString file = writeFile("two.e3m", mapNamed("Ironmoors"));
    {
        NextDialog properties([](QWidget *widget) {
            auto *dialog = qobject_cast<ScenarioInfo *>(widget);
            clickOn(dialog->findChild<QPushButton *>("refreshButton"));
            clickOn(
                dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok));
        });
        NextDialog map(chooseFile({"Open",
                                   fixture.game.filePath("Maps"),
                                   "",
                                   {"Eldmark Saga map (*.e3m)", "All Files (*)"}},
                                  file));
        trigger("scenarioProperties");
    }
    trigger("actionExport_Scenario_Maps");
    QCOMPARE(contents(path("here/two.e3m")), mapNamed("Ironmoors"));
    writeFile("here/two.e3m", mapNamed("Stonegate"));
    trigger("actionRefresh_Scenario_Maps");
    QDir::setCurrent(before);
    QCOMPARE(savedByTheWindow().scenarios[0].compressedMap, mapNamed("Stonegate"));
}

void MainWindowMapsTest::refreshMapsReadsBesideTheCampaign()
{
    load();
    writeFile("one.e3m", mapNamed("Moorlands"));
    writeFile("three.e3m", mapNamed("Graystone"));
    trigger("actionRefresh_Scenario_Maps");
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.scenarios[0].mapHeader->mapName, QString("Moorlands"));
    QCOMPARE(saved.scenarios[2].compressedMap, mapNamed("Graystone"));
}

void MainWindowMapsTest::refreshMapsEndsAtAMissingFile_data()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("unchanged before") << false;
    QTest::newRow("changed before") << true;
}

void MainWindowMapsTest::refreshMapsEndsAtAMissingFile()
{
    QFETCH(bool, modified);
    load();
    EditorData::info.modified = modified;
    window->updateWindowTitle();
    writeFile("one.e3m", mapNamed("Moorlands"));
    trigger("actionRefresh_Scenario_Maps");
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(EditorData::info.modified, modified);
    QCOMPARE(window->windowTitle(), (modified ? "home.e3c* - " : "home.e3c - ") + appTitle);
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.scenarios[0].mapHeader->mapName, QString("Moorlands"));
    QCOMPARE(saved.scenarios[2].mapHeader->mapName, QString("Stonegate"));
}

void MainWindowMapsTest::refreshMapsWarnsOfARefusedMapAndGoesOn()
{
    load();
    writeFile("one.e3m", mapNamed("Nobodies.", 0));
    writeFile("three.e3m", mapNamed("Graystone"));
    {
        NextDialog box(withoutHourglass(warning("Cannot read file one.e3m. Map has errors.")));
        trigger("actionRefresh_Scenario_Maps");
    }
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.scenarios[0].compressedMap, mapNamed("Ironmoors"));
    QCOMPARE(saved.scenarios[2].compressedMap, mapNamed("Graystone"));
}

void MainWindowMapsTest::refreshMapsWarnsOfAnUnreadableFileAndEnds()
{
    load();
    writeFile("one.e3m", "");
    writeFile("three.e3m", mapNamed("Graystone"));
    {
        NextDialog box(withoutHourglass(warning("Cannot read file one.e3m:\nUnknown error.")));
        trigger("actionRefresh_Scenario_Maps");
    }
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
    QCOMPARE(savedByTheWindow().scenarios[2].compressedMap, mapNamed("Stonegate"));
}

void MainWindowMapsTest::refreshMapsReadsNothingOutside()
{
    load();
    const QTemporaryDir outside;
    const QString target = samples::writeFile(outside.filePath("map"), mapNamed("Outsiders"));
    QVERIFY(QFile::link(target, path("one.e3m")));
    {
        NextDialog box(withoutHourglass(
            warning("Cannot read file one.e3m:\nToo many levels of symbolic links.")));
        trigger("actionRefresh_Scenario_Maps");
    }
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(savedByTheWindow().scenarios[0].compressedMap, mapNamed("Ironmoors"));
}

void MainWindowMapsTest::refreshMapsOfNoMapsCountsAsAChange()
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, true, 0, 0);
    save(campaign);
    load();
    trigger("actionRefresh_Scenario_Maps");
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
}

QTEST_MAIN(MainWindowMapsTest)
#include "main_window_maps_test.moc"
