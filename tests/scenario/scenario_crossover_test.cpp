// The crossover tab: what its lists offer, what it loads and what it stores.
#include "scenario/scenario_crossover.h"
#include "tests/scenario/scenario_fixture.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

namespace {

struct Detail
{
    const char *name;
    const char *text;
    bool byDefault;
};

// By their bits.
constexpr std::array<Detail, 5> details{{{"experienceComboBox", "Experience", true},
                                         {"primarySkillsCombobox", "Primary Skills", true},
                                         {"secSkillsCombobox", "Secondary Skills", true},
                                         {"spellsCombobox", "Spells", true},
                                         {"artifactsCombobox", "Artifacts", false}}};

constexpr const char *creatureList = "creaturesListWidget";
constexpr const char *artifactList = "crosssoverArtsListWidget";

QBitArray bitsAt(int size, std::initializer_list<int> set)
{
    QBitArray bits(size);
    for (const int bit : set)
        bits.setBit(bit);
    return bits;
}

// The tab by itself, on show.
class Tab
{
public:
    Tab() : tab(nullptr)
    {
        tab.resize(460, 400);
        tab.show();
        if (!QTest::qWaitForWindowExposed(&tab))
            QTest::qFail("The tab never came.", __FILE__, __LINE__);
    }

    template<typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = tab.findChild<Widget *>(name);
        if (!widget)
            qFatal("The tab has no %s.", name);
        return widget;
    }

    QListWidgetItem *item(const char *list, int number)
    {
        auto *widget = find<QListWidget>(list);
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->data(Qt::UserRole).toInt() == number)
                return widget->item(row);
        }
        return nullptr;
    }

    void check(const char *list, int number, bool checked)
    {
        item(list, number)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }

    // The numbers of the checked items, lowest first.
    QList<int> checked(const char *list)
    {
        QList<int> numbers;
        auto *widget = find<QListWidget>(list);
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->checkState() == Qt::Checked)
                numbers << widget->item(row)->data(Qt::UserRole).toInt();
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    // "1" for each checked detail, bit 0 first.
    QString kept()
    {
        QString text;
        for (const Detail &detail : details)
            text += find<QCheckBox>(detail.name)->isChecked() ? '1' : '0';
        return text;
    }

    ScenarioCrossover tab;
};

bool sameBits(const CmpScenarioCrossover &a, const CmpScenarioCrossover &b)
{
    return a.heroKeeps == b.heroKeeps && a.artifacts == b.artifacts && a.creatures == b.creatures;
}

} // namespace

class ScenarioCrossoverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

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
    void everyDetailHasItsBit_data();
    void everyDetailHasItsBit();
    void everyItemHasItsBit_data();
    void everyItemHasItsBit();
    void whatNoListShowsStays();
    void savingTwiceChangesNothingTheSecondTime();
    void buttonsCheckTheirList_data();
    void buttonsCheckTheirList();
    void detailAndListOfArtifactsAreIndependent();
    void shortArraysReadAsClear();
    void shortArraysGrowForWhatIsChecked();
    void longArraysKeepTheirEnd();
    void numbersBelowZeroAreNeverStored();
    void disablingTakesTheListsChecksOff();
    void enablingLeavesAllChecks();
    void savingWithoutMapClearsTheLists();
    void anotherPlaceInMemoryIsUsedFromThenOn();
    void clicksOnItemsCount();

private:
    std::unique_ptr<ScenarioFixture> fixture;
    ScenarioData scenario;
};

void ScenarioCrossoverTest::initTestCase()
{
    fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioCrossoverTest::init()
{
    fixture->reset();
    EditorData::artifacts = {{0, "Tome"},   {1, "Scroll"},     {2, "Yew Bow"}, {3, "Wagon"},
                             {4, "Anklet"}, {7, "Moss Cloak"}, {9, "Censer"},  {159, "Lute"}};
    EditorData::creatures = {{0, "Reed Guard"}, {3, "Ferryman"}, {8, "Heron"},
                             {122, "Wisp"},     {149, "Shade"},  {185, "Stilt"}};
    EditorData::creature_ordering = {8, 0, 149, 3, 122, 185};
    scenario = scenarioWithMap("ford.e3m", "Ford");
    scenario.crossover.heroKeeps = bitsAt(5, {1, 4});
    scenario.crossover.artifacts = bitsAt(160, {0, 3, 7, 12, 159});
    scenario.crossover.creatures = bitsAt(186, {3, 5, 149});
}

void ScenarioCrossoverTest::detailsAreCheckBoxes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("byDefault");
    for (const Detail &detail : details)
        QTest::newRow(detail.name) << detail.text << detail.byDefault;
}

void ScenarioCrossoverTest::detailsAreCheckBoxes()
{
    Tab open;
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
    Tab open;
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
    Tab open;
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
    Tab open;
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
    Tab open;
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
    Tab open;
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
    Tab open;
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
    Tab open;
    QTEST(open.tab.monsterIsGoodForCrossoverList(creature), "good");
    QVERIFY(open.item(creatureList, int(creature)));
}

void ScenarioCrossoverTest::aScenarioIsShownAsItStands()
{
    Tab open;
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
    Tab open;
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

void ScenarioCrossoverTest::everyDetailHasItsBit_data()
{
    QTest::addColumn<int>("bit");
    for (int bit = 0; bit < 5; ++bit)
        QTest::newRow(details[std::size_t(bit)].name) << bit;
}

void ScenarioCrossoverTest::everyDetailHasItsBit()
{
    QFETCH(int, bit);
    for (const bool before : {false, true}) {
        scenario.crossover.heroKeeps = QBitArray(5, before);
        Tab open;
        open.tab.initInfo(&scenario);
        clickOn(open.find<QWidget>(QTest::currentDataTag()), QPoint(5, 8));
        QCOMPARE(scenario.crossover.heroKeeps, QBitArray(5, before));
        QVERIFY(open.tab.saveScenarioInfo());
        QBitArray expected(5, before);
        expected.setBit(bit, !before);
        QCOMPARE(scenario.crossover.heroKeeps, expected);
    }
}

void ScenarioCrossoverTest::everyItemHasItsBit_data()
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

void ScenarioCrossoverTest::everyItemHasItsBit()
{
    QFETCH(QByteArray, list);
    QFETCH(int, number);
    QFETCH(bool, before);
    Tab open;
    open.tab.initInfo(&scenario);
    CmpScenarioCrossover expected = scenario.crossover;
    (list == artifactList ? expected.artifacts : expected.creatures).setBit(number, !before);
    open.check(list, number, !before);
    QVERIFY(open.tab.saveScenarioInfo());
    QVERIFY(sameBits(scenario.crossover, expected));
    open.check(list, number, before);
    QVERIFY(open.tab.saveScenarioInfo());
}

void ScenarioCrossoverTest::whatNoListShowsStays()
{
    Tab open;
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

void ScenarioCrossoverTest::savingTwiceChangesNothingTheSecondTime()
{
    Tab open;
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
    Tab open;
    open.tab.initInfo(&scenario);
    clickOn(open.find<QWidget>(QTest::currentDataTag()));
    QTEST(open.checked(creatureList), "creatures");
    QTEST(open.checked(artifactList), "artifacts");
    QCOMPARE(open.kept(), QString("01001"));
}

void ScenarioCrossoverTest::detailAndListOfArtifactsAreIndependent()
{
    Tab open;
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

void ScenarioCrossoverTest::shortArraysReadAsClear()
{
    scenario.crossover.heroKeeps = QBitArray(2, true);
    scenario.crossover.artifacts = bitsAt(8, {7});
    scenario.crossover.creatures = QBitArray();
    Tab open;
    open.tab.initInfo(&scenario);
    QCOMPARE(open.kept(), QString("11000"));
    QCOMPARE(open.checked(artifactList), QList<int>({7}));
    QCOMPARE(open.checked(creatureList), QList<int>());
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps.size(), 2);
    QCOMPARE(scenario.crossover.artifacts.size(), 8);
    QCOMPARE(scenario.crossover.creatures.size(), 0);
}

void ScenarioCrossoverTest::shortArraysGrowForWhatIsChecked()
{
    scenario.crossover.heroKeeps = QBitArray(2, true);
    scenario.crossover.artifacts = bitsAt(8, {7});
    scenario.crossover.creatures = QBitArray();
    Tab open;
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

void ScenarioCrossoverTest::longArraysKeepTheirEnd()
{
    scenario.crossover.heroKeeps = bitsAt(8, {0, 7});
    scenario.crossover.artifacts = bitsAt(300, {299});
    scenario.crossover.creatures = bitsAt(300, {298});
    Tab open;
    open.tab.initInfo(&scenario);
    open.find<QCheckBox>("experienceComboBox")->setChecked(false);
    clickOn(open.find<QWidget>("allButtonArts"));
    clickOn(open.find<QWidget>("allButton"));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(scenario.crossover.heroKeeps, bitsAt(8, {7}));
    QCOMPARE(scenario.crossover.artifacts, bitsAt(300, {2, 4, 7, 9, 159, 299}));
    QCOMPARE(scenario.crossover.creatures, bitsAt(300, {0, 3, 8, 122, 149, 185, 298}));
}

void ScenarioCrossoverTest::numbersBelowZeroAreNeverStored()
{
    EditorData::artifacts[-1] = "Nothing";
    EditorData::creature_ordering.push_back(unsigned(-1));
    Tab open;
    open.tab.initInfo(&scenario);
    const CmpScenarioCrossover before = scenario.crossover;
    open.check(artifactList, -1, true);
    open.find<QListWidget>(creatureList)->item(6)->setCheckState(Qt::Checked);
    QVERIFY(!open.tab.saveScenarioInfo());
    QVERIFY(sameBits(scenario.crossover, before));
}

void ScenarioCrossoverTest::disablingTakesTheListsChecksOff()
{
    Tab open;
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
    Tab open;
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

void ScenarioCrossoverTest::savingWithoutMapClearsTheLists()
{
    scenario.mapHeader.reset();
    Tab open;
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

void ScenarioCrossoverTest::anotherPlaceInMemoryIsUsedFromThenOn()
{
    Tab open;
    open.tab.initInfo(&scenario);
    open.check(artifactList, 4, true);
    ScenarioData moved = scenario;
    open.tab.updateScenarioData(&moved);
    QCOMPARE(open.checked(artifactList), QList<int>({4, 7, 159}));
    QVERIFY(open.tab.saveScenarioInfo());
    QVERIFY(moved.crossover.artifacts.testBit(4));
    QVERIFY(!scenario.crossover.artifacts.testBit(4));
}

void ScenarioCrossoverTest::clicksOnItemsCount()
{
    Tab open;
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

QTEST_MAIN(ScenarioCrossoverTest)
#include "scenario_crossover_test.moc"
