// The scenario dialog on odd documents, and on scenarios that get or lose their map while it is
// open.
#include "tests/scenario/map_fixture.h"

#include <QComboBox>

class ScenarioInfoDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<MapFixture>(); }
    void init() { fixture->reset(); }

    void mapOpensTheOtherTabs_data();
    void mapOpensTheOtherTabs();
    void refusedMapLeavesTheOtherTabsClosed();
    void orderOfAChainIsWhatIsRequired();
    void aMapWithoutScenariosOpens();
    void moreScenariosThanRegionsOpen();
    void emptyArraysCanBeEdited();
    void emptyTablesOpen_data();
    void emptyTablesOpen();
    void everyOpeningStartsFromTheDocument();

private:
    std::unique_ptr<MapFixture> fixture;
};

namespace {

void import(GeneralTab &tab, const ExpectedFileDialog &expected, const QString &path)
{
    NextDialog dialog(chooseFile(expected, path));
    tab.click("refreshButton");
}

// Which of the pages for crossover and start options can be used; one is asked by each of its
// controls named here.
QStringList openPages(GeneralTab &tab)
{
    const auto allEnabled = [&](int page, const QStringList &controls) {
        for (const QString &name : controls) {
            if (!tab.tabs()->widget(page)->findChild<QWidget *>(name)->isEnabled())
                return false;
        }
        return true;
    };
    QStringList pages;
    if (allEnabled(3, {"experienceComboBox", "allButton", "creaturesListWidget"}))
        pages << "crossover";
    if (allEnabled(4, {"startingBonusBtn", "stackedWidget"}))
        pages << "start options";
    return pages;
}

const QStringList both{"crossover", "start options"};

// Goes through everything that needs no file.
void clickThrough(GeneralTab &open)
{
    for (int row = open.list()->count() - 1; row >= 0; --row) {
        open.select(row);
        for (int page = 0; page < open.tabs()->count(); ++page)
            open.tabs()->setCurrentIndex(page);
        open.tabs()->setCurrentIndex(0);
    }
    for (const char *button : {"downBtn", "upBtn", "upBtn", "addBtn", "deleteBtn", "removeButton"})
        open.click(button);
    open.dialog.saveScenarioInfo();
}

CampaignData savedAndRead(CampaignData campaign, const QString &path)
{
    CampaignData read;
    QFile file(path);
    if (!campaign.saveTo(path).ok || !file.open(QIODevice::ReadOnly) || read.readCampaign(&file))
        QTest::qFail("The campaign can't be saved and read.", __FILE__, __LINE__);
    return read;
}

} // namespace

void ScenarioInfoDocumentsTest::mapOpensTheOtherTabs_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::newRow("regions") << true;
    QTest::newRow("a chain") << false;
}

void ScenarioInfoDocumentsTest::mapOpensTheOtherTabs()
{
    QFETCH(bool, hasMap);
    CampaignData campaign = campaignOf(hasMap, {"", "b", ""});
    GeneralTab tab(campaign);
    QCOMPARE(openPages(tab), QStringList());
    import(tab, fixture->opening(""), fixture->writeMap("first.e3m", mapNamed("Ironmoors")));
    QCOMPARE(openPages(tab), both);
    tab.select(2);
    QCOMPARE(openPages(tab), QStringList());
    tab.select(0);
    QCOMPARE(openPages(tab), both);
    tab.click("removeButton");
    QCOMPARE(openPages(tab), QStringList());
    tab.select(1);
    QCOMPARE(openPages(tab), both);
    ini->SetStringVal("Campaign Editor", "Path", "");
    import(tab, fixture->opening("b.e3m"), fixture->writeMap("next.e3m", mapNamed("Ironmoors")));
    QCOMPARE(openPages(tab), both);
}

void ScenarioInfoDocumentsTest::refusedMapLeavesTheOtherTabsClosed()
{
    CampaignData campaign = campaignOf(true, {"", "b"});
    GeneralTab tab(campaign);
    const QString path = fixture->writeMap("bad.e3m", samples::mapFile(28, 0, 0));
    {
        NextDialog dialog(chooseFile(fixture->opening(""), path));
        NextDialog told(boxAnswer(
            {"Error", "Cannot read file " + path + ". Map has errors.", QMessageBox::Warning}));
        tab.click("refreshButton");
    }
    QCOMPARE(openPages(tab), QStringList());
    QVERIFY(!tab.dialog.selectedScenarioData()->mapHeader);
}

// Whatever the arrays say: each scenario with a map requires the one with a map before it.
void ScenarioInfoDocumentsTest::orderOfAChainIsWhatIsRequired()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "", "d"});
    for (ScenarioData &scenario : campaign.scenarios) {
        if (!scenario.mapHeader)
            continue;
        scenario.compressedMap = mapNamed("Ironmoors");
        scenario.mapSize = quint32(scenario.compressedMap.size());
    }
    require(campaign, QStringList{"0111", "0011", "0001", "0000"});
    GeneralTab tab(campaign, 3);
    tab.click("upBtn");
    tab.click("upBtn");
    const CampaignData read = savedAndRead(tab.copy(), fixture->filePath("chain.e3c"));
    QStringList names;
    for (const ScenarioData &scenario : read.scenarios)
        names << scenario.mapFileName;
    QCOMPARE(names, QStringList({"a.e3m", "d.e3m", "b.e3m", ""}));
    QCOMPARE(requiredIn(read), QStringList({"0000", "1000", "0100", "0000"}));
}

void ScenarioInfoDocumentsTest::aMapWithoutScenariosOpens()
{
    CampaignData campaign = campaignOf(true, QStringList());
    GeneralTab tab(campaign, 2);
    QCOMPARE(tab.list()->count(), 0);
    QVERIFY(!tab.tabs()->isEnabled());
    for (const char *button :
         {"upBtn", "downBtn", "addBtn", "deleteBtn", "deleteAllBtn", "refreshButton"}) {
        QVERIFY2(!tab.find<QWidget>(button)->isEnabled(), button);
        tab.click(button);
    }
    QVERIFY(!tab.dialog.saveScenarioInfo());
    QVERIFY(!tab.dialog.hasChanged());
    QVERIFY(tab.copy().scenarios.empty());
}

void ScenarioInfoDocumentsTest::moreScenariosThanRegionsOpen()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d", "e"});
    GeneralTab tab(campaign, 4);
    QCOMPARE(tab.texts().mid(2),
             QStringList({QStringLiteral("c.e3m — Cedar Fen"), QStringLiteral("d.e3m — "),
                          QStringLiteral("e.e3m — ")}));
    QCOMPARE(tab.labelText("regionNameLabelMain"), QString());
    tab.clickOnBoxOf(3);
    QCOMPARE(tab.storedFor(4), QList<int>({3}));
    tab.click("upBtn");
    tab.click("upBtn");
    QCOMPARE(tab.labelText("regionNameLabelMain"), QString("Cedar Fen"));
    QCOMPARE(tab.storedFor(2), QList<int>({4}));
    clickThrough(tab);
    QCOMPARE(tab.copy().scenarios.size(), std::size_t(5));
}

void ScenarioInfoDocumentsTest::emptyArraysCanBeEdited()
{
    for (const bool hasMap : {true, false}) {
        CampaignData campaign = campaignOf(hasMap, {"a", "", "c"});
        require(campaign, QStringList{"", "", ""});
        GeneralTab tab(campaign);
        clickThrough(tab);
        QCOMPARE(tab.list()->count(), 3);
        QVERIFY(!tab.dialog.selectedScenarioData()->mapHeader);
        // The map was removed, or a scenario was added, and another one deleted since.
        QCOMPARE(tab.dialog.selectedScenarioData()->prerequisites, QBitArray(hasMap ? 3 : 4));
    }
}

void ScenarioInfoDocumentsTest::emptyTablesOpen_data()
{
    mapOpensTheOtherTabs_data();
}

void ScenarioInfoDocumentsTest::emptyTablesOpen()
{
    QFETCH(bool, hasMap);
    const auto colors = std::exchange(EditorData::colors, {});
    const auto texts = std::exchange(EditorData::editorText, {});
    const auto maps = std::exchange(EditorData::campaignInfo, {});
    const auto heroes = std::exchange(EditorData::heroes, {});
    const auto artifacts = std::exchange(EditorData::artifacts, {});
    const auto creatures = std::exchange(EditorData::creatures, {});
    const auto ordering = std::exchange(EditorData::creature_ordering, {});
    {
        CampaignData campaign = campaignOf(hasMap, {"a", "", "c"});
        campaign.scenarios[0].regionColor = 5;
        campaign.scenarios[0].defaultDifficulty = 3;
        GeneralTab tab(campaign);
        QCOMPARE(tab.find<QComboBox>("regionColorCombobox")->count(), 0);
        QCOMPARE(tab.find<QComboBox>("difficultyCombobox")->count(), 5);
        QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("a map"));
        QVERIFY(!tab.general()->saveScenarioInfo());
        QCOMPARE(int(tab.copy().scenarios[0].regionColor), 5);
        QCOMPARE(int(tab.copy().scenarios[0].defaultDifficulty), 3);
        clickThrough(tab);
    }
    EditorData::colors = colors;
    EditorData::editorText = texts;
    EditorData::campaignInfo = maps;
    EditorData::heroes = heroes;
    EditorData::artifacts = artifacts;
    EditorData::creatures = creatures;
    EditorData::creature_ordering = ordering;
}

void ScenarioInfoDocumentsTest::everyOpeningStartsFromTheDocument()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c"});
    for (int i = 0; i < 2; ++i) {
        GeneralTab tab(campaign, 1);
        QCOMPARE(tab.texts(), QStringList({"1. a.e3m", "2. b.e3m", "3. c.e3m"}));
        QCOMPARE(tab.labelText("mapFileIdentifier"), QString("b.e3m"));
        QVERIFY(!tab.dialog.hasChanged());
        clickThrough(tab);
        QVERIFY(tab.dialog.hasChanged());
    }
}

QTEST_MAIN(ScenarioInfoDocumentsTest)
#include "scenario_info_documents_test.moc"
