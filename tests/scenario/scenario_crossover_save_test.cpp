// What the crossover tab stores: every control has its bit, and all other bits stay.
#include "tests/scenario/crossover_tab.h"

class ScenarioCrossoverSaveTest : public QObject
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

    void everyDetailHasItsBit_data();
    void everyDetailHasItsBit();
    void everyItemHasItsBit_data();
    void everyItemHasItsBit();
    void whatNoListShowsStays();
    void savingTwiceChangesNothingTheSecondTime();
    void shortArraysReadAsClear();
    void shortArraysGrowForWhatIsChecked();
    void longArraysKeepTheirEnd();
    void numbersBelowZeroAreNeverStored();
    void savingWithoutMapClearsTheLists();
    void anotherPlaceInMemoryIsUsedFromThenOn();

private:
    std::unique_ptr<ScenarioFixture> fixture;
    ScenarioData scenario;
};

void ScenarioCrossoverSaveTest::everyDetailHasItsBit_data()
{
    QTest::addColumn<int>("bit");
    for (int bit = 0; bit < 5; ++bit)
        QTest::newRow(details[std::size_t(bit)].name) << bit;
}

void ScenarioCrossoverSaveTest::everyDetailHasItsBit()
{
    QFETCH(int, bit);
    for (const bool before : {false, true}) {
        scenario.crossover.heroKeeps = QBitArray(5, before);
        CrossoverTab open;
        open.tab.initInfo(&scenario);
        clickOn(open.find<QWidget>(QTest::currentDataTag()), QPoint(5, 8));
        QCOMPARE(scenario.crossover.heroKeeps, QBitArray(5, before));
        QVERIFY(open.tab.saveScenarioInfo());
        QBitArray expected(5, before);
        expected.setBit(bit, !before);
        QCOMPARE(scenario.crossover.heroKeeps, expected);
    }
}

void ScenarioCrossoverSaveTest::everyItemHasItsBit_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("before");
    for (const int number : {0, 3, 8, 122, 149, 185})
        QTest::addRow("creature %d", number)
            << QByteArray(creatureList) << number << (number == 3 || number == 149);
    for (const int number : {2, 4, 7, 9, 159})
        QTest::addRow("artifact %d", number)
            << QByteArray(artifactList) << number << (number == 7 || number == 159);
}

void ScenarioCrossoverSaveTest::everyItemHasItsBit()
{
    QFETCH(QByteArray, list);
    QFETCH(int, number);
    QFETCH(bool, before);
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    CmpScenarioCrossover expected = scenario.crossover;
    (list == artifactList ? expected.artifacts : expected.creatures).setBit(number, !before);
    open.check(list, number, !before);
    QVERIFY(open.tab.saveScenarioInfo());
    QVERIFY(sameBits(scenario.crossover, expected));
    open.check(list, number, before);
    QVERIFY(open.tab.saveScenarioInfo());
}

void ScenarioCrossoverSaveTest::whatNoListShowsStays()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.tab.initInfo(&scenario);
    clickOn(open.find<QWidget>("noneButtonArts"));
    clickOn(open.find<QWidget>("noneButton"));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.artifacts, bitsAt(160, {0, 3, 12}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(186, {5}));
    clickOn(open.find<QWidget>("allButtonArts"));
    clickOn(open.find<QWidget>("allButton"));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.artifacts, bitsAt(160, {0, 2, 3, 4, 7, 9, 12, 159}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(186, {0, 3, 5, 8, 122, 149, 185}));
}

void ScenarioCrossoverSaveTest::savingTwiceChangesNothingTheSecondTime()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    QVERIFY(!open.tab.saveScenarioInfo());
    open.check(artifactList, 4, true);
    open.check(creatureList, 3, false);
    open.find<QCheckBox>("spellsCombobox")->setChecked(true);
    QVERIFY(open.tab.saveScenarioInfo());
    const CmpScenarioCrossover stored = scenario.crossover;
    QVERIFY(!open.tab.saveScenarioInfo());
    QVERIFY(sameBits(scenario.crossover, stored));
}

void ScenarioCrossoverSaveTest::shortArraysReadAsClear()
{
    scenario.crossover.heroKeeps = QBitArray(2, true);
    scenario.crossover.artifacts = bitsAt(8, {7});
    scenario.crossover.creatures = QBitArray();
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    QCOMPARE(open.kept(), QString("11000"));
    QCOMPARE(open.checked(artifactList), QList<int>({7}));
    QCOMPARE(open.checked(creatureList), QList<int>());
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps.size(), 2);
    QCOMPARE(scenario.crossover.artifacts.size(), 8);
    QCOMPARE(scenario.crossover.creatures.size(), 0);
}

void ScenarioCrossoverSaveTest::shortArraysGrowForWhatIsChecked()
{
    scenario.crossover.heroKeeps = QBitArray(2, true);
    scenario.crossover.artifacts = bitsAt(8, {7});
    scenario.crossover.creatures = QBitArray();
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.find<QCheckBox>("artifactsCombobox")->setChecked(true);
    open.check(artifactList, 159, true);
    open.check(creatureList, 122, true);
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps, bitsAt(5, {0, 1, 4}));
    QCOMPARE(scenario.crossover.artifacts, bitsAt(160, {7, 159}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(123, {122}));
    QVERIFY(!open.tab.saveScenarioInfo());
}

void ScenarioCrossoverSaveTest::longArraysKeepTheirEnd()
{
    scenario.crossover.heroKeeps = bitsAt(8, {0, 7});
    scenario.crossover.artifacts = bitsAt(300, {299});
    scenario.crossover.creatures = bitsAt(300, {298});
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.find<QCheckBox>("experienceComboBox")->setChecked(false);
    clickOn(open.find<QWidget>("allButtonArts"));
    clickOn(open.find<QWidget>("allButton"));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps, bitsAt(8, {7}));
    QCOMPARE(scenario.crossover.artifacts, bitsAt(300, {2, 4, 7, 9, 159, 299}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(300, {0, 3, 8, 122, 149, 185, 298}));
}

void ScenarioCrossoverSaveTest::numbersBelowZeroAreNeverStored()
{
    EditorData::artifacts[-1] = "Nothing";
    EditorData::creature_ordering.push_back(unsigned(-1));
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    const CmpScenarioCrossover before = scenario.crossover;
    open.check(artifactList, -1, true);
    open.find<QListWidget>(creatureList)->item(6)->setCheckState(Qt::Checked);
    QVERIFY(!open.tab.saveScenarioInfo());
    QVERIFY(sameBits(scenario.crossover, before));
}

void ScenarioCrossoverSaveTest::savingWithoutMapClearsTheLists()
{
    scenario.mapHeader.reset();
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps, bitsAt(5, {0, 1, 2, 3}));
    QCOMPARE(scenario.crossover.artifacts, bitsAt(160, {0, 3, 12}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(186, {5}));
    QVERIFY(!open.tab.saveScenarioInfo());
    ScenarioData fresh;
    open.tab.initInfo(&fresh);
    QVERIFY(!open.tab.saveScenarioInfo());
}

void ScenarioCrossoverSaveTest::anotherPlaceInMemoryIsUsedFromThenOn()
{
    CrossoverTab open;
    open.tab.initInfo(&scenario);
    open.check(artifactList, 4, true);
    ScenarioData moved = scenario;
    open.tab.updateScenarioData(&moved);
    QCOMPARE(open.checked(artifactList), QList<int>({4, 7, 159}));
    QVERIFY(open.tab.saveScenarioInfo());
    QVERIFY(moved.crossover.artifacts.testBit(4));
    QVERIFY(!scenario.crossover.artifacts.testBit(4));
}

QTEST_MAIN(ScenarioCrossoverSaveTest)
#include "scenario_crossover_save_test.moc"
