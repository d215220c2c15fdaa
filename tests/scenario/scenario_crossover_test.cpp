// The crossover tab: what its lists offer, what it shows, and when it can be edited.
#include "tests/scenario/crossover_tab.h"
#include "tests/support/longest_wait.h"

#include <QGroupBox>
#include <QLabel>

class ScenarioCrossoverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init()
    {
        fixture->reset();
        nameArtifactsAndCreatures();
        scenario = crossoverScenario();
    }

    void detailsAreCheckBoxes_data();
    void detailsAreCheckBoxes();
    void controlsHaveTypesAndTexts_data();
    void controlsHaveTypesAndTexts();
    void listsScrollSideways_data();
    void listsScrollSideways();
    void artifactsStandInAlphabeticalOrder();
    void artifactsOfOneNameAreToldApart();
    void creaturesStandInTheGamesOrder();
    void boundArtifactsAreNotGood_data();
    void boundArtifactsAreNotGood();
    void boundCreaturesAreNotGoodButListed_data();
    void boundCreaturesAreNotGoodButListed();
    void aScenarioIsShownAsItStands();
    void aScenarioWithoutMapCannotBeEdited();
    void buttonsCheckTheirList_data();
    void buttonsCheckTheirList();
    void detailAndListOfArtifactsAreIndependent();
    void disablingTakesTheListsChecksOff();
    void enablingLeavesAllChecks();
    void clicksOnItemsCount();
    void theTabKeyGoesFromTopToBottom();

private:
    std::unique_ptr<ScenarioFixture> fixture;
    ScenarioData scenario;
};

void ScenarioCrossoverTest::detailsAreCheckBoxes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("byDefault");
    for (const Detail &detail : details)
        QTest::newRow(detail.name) << detail.text << detail.byDefault;
}

void ScenarioCrossoverTest::detailsAreCheckBoxes()
{
    CrossoverTab open;
    auto *box = open.find<QCheckBox>(QTest::currentDataTag());
    QTEST(box->text(), "text");
    QTEST(box->isChecked(), "byDefault");
    QVERIFY(open.find<QGroupBox>("mapFileGroup")->isAncestorOf(box));
}

void ScenarioCrossoverTest::controlsHaveTypesAndTexts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *type, const char *property,
                        const char *text) {
        QTest::newRow(name) << QByteArray(type) << QByteArray(property) << text;
    };
    row("mapFileGroup", "QGroupBox", "title", "Crossover heroes details");
    row("creatureTypesLabel", "QLabel", "text", "Creature types:");
    row("creaturesListWidget", "QListWidget", "text", "");
    row("allButton", "QPushButton", "text", "All");
    row("noneButton", "QPushButton", "text", "None");
    row("crossoverArtifacts", "QLabel", "text", "Crossover Artifacts:");
    row("crosssoverArtsListWidget", "QListWidget", "text", "");
    row("allButtonArts", "QPushButton", "text", "All");
    row("noneButtonArts", "QPushButton", "text", "None");
}

void ScenarioCrossoverTest::controlsHaveTypesAndTexts()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, property);
    CrossoverTab open;
    auto *widget = open.find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget->inherits(type));
    QVERIFY(widget->isVisible());
    QTEST(widget->property(property).toString(), "text");
    QCOMPARE(open.tab.windowTitle(), QString("Form"));
}

void ScenarioCrossoverTest::listsScrollSideways_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow(creatureList) << int(QMetaType::UInt);
    QTest::newRow(artifactList) << int(QMetaType::Int);
}

void ScenarioCrossoverTest::listsScrollSideways()
{
    QFETCH(int, type);
    CrossoverTab open;
    auto *list = open.find<QListWidget>(QTest::currentDataTag());
    QVERIFY(list->isWrapping());
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QVERIFY(list->count() > 0);
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        QVERIFY(item->flags() & Qt::ItemIsUserCheckable);
        QVERIFY(item->flags() & Qt::ItemIsEnabled);
        QVERIFY(!(item->flags() & Qt::ItemIsDragEnabled));
        QCOMPARE(item->checkState(), Qt::Unchecked);
        QCOMPARE(item->textAlignment() & Qt::AlignHorizontal_Mask, int(Qt::AlignLeft));
        QCOMPARE(int(item->data(Qt::UserRole).type()), type);
    }
}

void ScenarioCrossoverTest::artifactsStandInAlphabeticalOrder()
{
    CrossoverTab open;
    auto *list = open.find<QListWidget>(artifactList);
    QVERIFY(list->isSortingEnabled());
    QStringList names;
    for (int row = 0; row < list->count(); ++row)
        names << list->item(row)->text();
    QCOMPARE(names, QStringList({"Anklet", "Censer", "Lute", "Moss Cloak", "Yew Bow"}));
    QCOMPARE(list->item(0)->data(Qt::UserRole).toInt(), 4);
    QCOMPARE(list->item(4)->data(Qt::UserRole).toInt(), 2);
}

// The list sorts an item anew when it is checked.
void ScenarioCrossoverTest::artifactsOfOneNameAreToldApart()
{
    EditorData::artifacts = {{10, "Bell"}, {11, "Bell"}, {12, "Bell"}, {13, "Bell"}, {14, "Axe"}};
    scenario.crossover.artifacts = bitsAt(160, {11, 13});
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    QCOMPARE(open.checked(artifactList), QList<int>({11, 13}));
    QVERIFY(!open.tab.saveScenarioInfo());
    clickOn(open.find<QWidget>("allButtonArts"));
    QCOMPARE(open.checked(artifactList), QList<int>({10, 11, 12, 13, 14}));
    clickOn(open.find<QWidget>("noneButtonArts"));
    QCOMPARE(open.checked(artifactList), QList<int>());
}

void ScenarioCrossoverTest::creaturesStandInTheGamesOrder()
{
    EditorData::creature_ordering.push_back(77); // has no name
    CrossoverTab open;
    auto *list = open.find<QListWidget>(creatureList);
    QVERIFY(!list->isSortingEnabled());
    QStringList names;
    for (int row = 0; row < list->count(); ++row)
        names << list->item(row)->text();
    QCOMPARE(names,
             QStringList({"Heron", "Reed Guard", "Shade", "Ferryman", "Wisp", "Stilt", QString()}));
    QCOMPARE(EditorData::creatures.count(77), std::size_t(0));
}

void ScenarioCrossoverTest::boundArtifactsAreNotGood_data()
{
    QTest::addColumn<unsigned int>("artifact");
    QTest::addColumn<bool>("good");
    for (const unsigned int artifact : {0U, 1U, 3U})
        QTest::addRow("%u", artifact) << artifact << false;
    for (const unsigned int artifact : {2U, 4U, 5U, 128U, 159U, 65535U})
        QTest::addRow("%u", artifact) << artifact << true;
}

void ScenarioCrossoverTest::boundArtifactsAreNotGood()
{
    QFETCH(unsigned int, artifact);
    CrossoverTab open;
    QTEST(open.tab.artIsGoodForCrossoverList(artifact), "good");
}

void ScenarioCrossoverTest::boundCreaturesAreNotGoodButListed_data()
{
    QTest::addColumn<unsigned int>("creature");
    QTest::addColumn<bool>("good");
    for (const unsigned int creature : {122U, 124U, 126U, 128U, 145U, 146U, 147U, 148U, 149U})
        QTest::addRow("%u", creature) << creature << false;
    for (const unsigned int creature : {0U, 121U, 123U, 125U, 127U, 129U, 144U, 150U})
        QTest::addRow("%u", creature) << creature << true;
}

void ScenarioCrossoverTest::boundCreaturesAreNotGoodButListed()
{
    QFETCH(unsigned int, creature);
    EditorData::creature_ordering = {creature};
    CrossoverTab open;
    QTEST(open.tab.monsterIsGoodForCrossoverList(creature), "good");
    QVERIFY(open.item(creatureList, int(creature)));
}

void ScenarioCrossoverTest::aScenarioIsShownAsItStands()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    QCOMPARE(open.kept(), QString("01001"));
    QCOMPARE(open.checked(creatureList), QList<int>({3, 149}));
    QCOMPARE(open.checked(artifactList), QList<int>({7, 159}));
    scenario.crossover.heroKeeps = bitsAt(5, {0});
    scenario.crossover.artifacts = bitsAt(160, {4});
    scenario.crossover.creatures = bitsAt(186, {});
    open.tab.initInfo(&scenario);
    QCOMPARE(open.kept(), QString("10000"));
    QCOMPARE(open.checked(creatureList), QList<int>());
    QCOMPARE(open.checked(artifactList), QList<int>({4}));
}

void ScenarioCrossoverTest::aScenarioWithoutMapCannotBeEdited()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    ScenarioData empty = scenario;
    empty.mapHeader.reset();
    open.tab.initInfo(&empty);
    QCOMPARE(open.kept(), QString("11110"));
    QCOMPARE(open.checked(creatureList), QList<int>());
    QCOMPARE(open.checked(artifactList), QList<int>());
    for (const Detail &detail : details)
        QVERIFY(!open.find<QWidget>(detail.name)->isEnabled());
    for (const char *name :
         {"allButton", "noneButton", "allButtonArts", "noneButtonArts", "creatureTypesLabel",
          "crossoverArtifacts", "creaturesListWidget", "crosssoverArtsListWidget"}) {
        QVERIFY2(!open.find<QWidget>(name)->isEnabled(), name);
    }
    open.tab.initInfo(&scenario);
    for (const char *name :
         {"allButton", "noneButton", "allButtonArts", "noneButtonArts", "creatureTypesLabel",
          "crossoverArtifacts", "creaturesListWidget", "crosssoverArtsListWidget"}) {
        QVERIFY2(open.find<QWidget>(name)->isEnabled(), name);
    }
    for (const Detail &detail : details)
        QVERIFY(open.find<QWidget>(detail.name)->isEnabled());
}

void ScenarioCrossoverTest::buttonsCheckTheirList_data()
{
    QTest::addColumn<QList<int>>("creatures");
    QTest::addColumn<QList<int>>("artifacts");
    const QList<int> creatures{3, 149};
    const QList<int> artifacts{7, 159};
    QTest::newRow("allButton") << QList<int>{0, 3, 8, 122, 149, 185} << artifacts;
    QTest::newRow("noneButton") << QList<int>{} << artifacts;
    QTest::newRow("allButtonArts") << creatures << QList<int>{2, 4, 7, 9, 159};
    QTest::newRow("noneButtonArts") << creatures << QList<int>{};
}

void ScenarioCrossoverTest::buttonsCheckTheirList()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    clickOn(open.find<QWidget>(QTest::currentDataTag()));
    QTEST(open.checked(creatureList), "creatures");
    QTEST(open.checked(artifactList), "artifacts");
    QCOMPARE(open.kept(), QString("01001"));
}

void ScenarioCrossoverTest::detailAndListOfArtifactsAreIndependent()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    auto *box = open.find<QCheckBox>("artifactsCombobox");
    for (const bool checked : {false, true}) {
        clickOn(box, QPoint(5, 8));
        QCOMPARE(box->isChecked(), checked);
        QVERIFY(open.find<QWidget>(artifactList)->isEnabled());
        QCOMPARE(open.checked(artifactList), QList<int>({7, 159}));
    }
    for (const char *button : {"noneButtonArts", "allButtonArts"}) {
        clickOn(open.find<QWidget>(button));
        QVERIFY(box->isEnabled());
        QVERIFY(box->isChecked());
    }
}

void ScenarioCrossoverTest::disablingTakesTheListsChecksOff()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.tab.disableUI();
    QCOMPARE(open.kept(), QString("01001"));
    QCOMPARE(open.checked(creatureList), QList<int>());
    QCOMPARE(open.checked(artifactList), QList<int>());
    QVERIFY(!open.find<QWidget>(artifactList)->isEnabled());
    QVERIFY(!open.find<QWidget>("experienceComboBox")->isEnabled());
}

void ScenarioCrossoverTest::enablingLeavesAllChecks()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.tab.enableUI();
    QCOMPARE(open.kept(), QString("01001"));
    QCOMPARE(open.checked(creatureList), QList<int>({3, 149}));
    open.tab.disableUI();
    open.tab.enableUI();
    QVERIFY(open.find<QWidget>(artifactList)->isEnabled());
    QVERIFY(open.find<QWidget>("experienceComboBox")->isEnabled());
    QCOMPARE(open.checked(creatureList), QList<int>());
}

void ScenarioCrossoverTest::clicksOnItemsCount()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    for (const char *name : {creatureList, artifactList}) {
        auto *list = open.find<QListWidget>(name);
        QListWidgetItem *item = list->item(0);
        QCOMPARE(item->checkState(), Qt::Unchecked);
        const QRect place = list->visualItemRect(item);
        clickOn(list->viewport(), {place.left() + 9, place.center().y()});
        QCOMPARE(item->checkState(), Qt::Checked);
    }
    QVERIFY(open.tab.saveScenarioInfo());
    QVERIFY(scenario.crossover.creatures.testBit(8));
    QVERIFY(scenario.crossover.artifacts.testBit(4));
}

void ScenarioCrossoverTest::theTabKeyGoesFromTopToBottom()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.tab.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.tab, longestWait));
    open.find<QWidget>("experienceComboBox")->setFocus();
    for (const char *name :
         {"primarySkillsCombobox", "secSkillsCombobox", "spellsCombobox", "artifactsCombobox",
          "allButton", "noneButton", creatureList, "allButtonArts", "noneButtonArts", artifactList,
          "experienceComboBox"}) {
        QTest::keyClick(open.tab.windowHandle(), Qt::Key_Tab);
        QVERIFY(open.tab.focusWidget());
        QCOMPARE(open.tab.focusWidget()->objectName(), QString(name));
    }
}

QTEST_MAIN(ScenarioCrossoverTest)
#include "scenario_crossover_test.moc"
