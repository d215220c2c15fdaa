// What the tab with the start options stores, and when it says that they changed.
#include "tests/scenario/start_options_tab.h"

namespace {

CmpStartingBonus building(int number)
{
    return {2, QVariant::fromValue(BonusBuilding{quint8(number)})};
}

} // namespace

Q_DECLARE_METATYPE(CmpScenarioStartOptions)

class ScenarioStartOptionsSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init()
    {
        fixture->reset();
        nameHeroesAndColours();
    }

    void theChosenKindIsAskedInOrder();
    void savingTellsWhetherOptionsDiffer_data();
    void savingTellsWhetherOptionsDiffer();
    void savingReplacesTheRecord();
    void withoutAChoiceNothingIsStored();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioStartOptionsSaveTest::theChosenKindIsAskedInOrder()
{
    StartOptionsTab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    const QList<QRadioButton *> buttons{open.button(bonusButton), open.button(heroButton),
                                        open.button(crossoverButton)};
    for (QRadioButton *button : buttons)
        button->setAutoExclusive(false);
    for (QRadioButton *button : buttons)
        button->setChecked(true);
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
    buttons[0]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 3U);
    QCOMPARE(open.tab.getOptionCount(), 2U);
    buttons[1]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 2U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
    buttons[2]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 0U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
}

// What is loaded into the tab, and what the scenario held when the tab is saved.
void ScenarioStartOptionsSaveTest::savingTellsWhetherOptionsDiffer_data()
{
    QTest::addColumn<CmpScenarioStartOptions>("shown");
    QTest::addColumn<CmpScenarioStartOptions>("held");
    QTest::addColumn<bool>("differ");
    const auto bonus = [](int player, const std::vector<CmpStartingBonus> &rows) {
        return CmpScenarioStartOptions{BonusKind, QVariant::fromValue(bonuses(player, rows))};
    };
    const auto heroes = [](const std::vector<StartingHero> &rows) {
        return CmpScenarioStartOptions{HeroKind, QVariant::fromValue(StartingHeroSet{rows})};
    };
    const auto crossovers = [](const std::vector<CmpHeroCrossover> &rows) {
        return CmpScenarioStartOptions{CrossoverKind, QVariant::fromValue(HeroCrossoverSet{rows})};
    };
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
    const CmpScenarioStartOptions twoBonuses = bonus(1, {resource(5), resource(6)});
    const CmpScenarioStartOptions twoHeroes = heroes({{0, 1}, {1, 3}});
    const CmpScenarioStartOptions twoCrossovers = crossovers({{0, 0}, {1, 2}});
    row("the same bonuses") << twoBonuses << bonus(1, {resource(5), resource(6)}) << false;
    row("no bonuses") << bonus(1, {}) << bonus(0, {}) << false;
    row("another player") << twoBonuses << bonus(2, {resource(5), resource(6)}) << false;
    row("other bonuses") << twoBonuses << bonus(1, {resource(5), resource(7)}) << true;
    row("bonuses turned round") << twoBonuses << bonus(1, {resource(6), resource(5)}) << true;
    row("fewer bonuses") << twoBonuses << bonus(1, {resource(5)}) << true;
    row("more bonuses") << twoBonuses << bonus(1, {resource(5), resource(6), resource(7)}) << true;
    row("other buildings") << bonus(1, {building(1)}) << bonus(1, {building(2)}) << false;
    row("the same heroes") << twoHeroes << heroes({{0, 1}, {1, 3}}) << false;
    row("another hero") << twoHeroes << heroes({{0, 1}, {1, 9}}) << true;
    row("another player's hero") << twoHeroes << heroes({{0, 1}, {2, 3}}) << true;
    row("heroes turned round") << twoHeroes << heroes({{1, 3}, {0, 1}}) << true;
    row("fewer heroes") << twoHeroes << heroes({{0, 1}}) << true;
    row("the same crossovers") << twoCrossovers << crossovers({{0, 0}, {1, 2}}) << false;
    row("another source") << twoCrossovers << crossovers({{0, 0}, {1, 1}}) << true;
    row("another player's source") << twoCrossovers << crossovers({{0, 0}, {2, 2}}) << true;
    row("crossovers turned round") << twoCrossovers << crossovers({{1, 2}, {0, 0}}) << true;
    row("fewer crossovers") << twoCrossovers << crossovers({{0, 0}}) << true;
    row("heroes for bonuses") << bonus(1, {}) << heroes({}) << true;
    row("crossovers for heroes") << heroes({}) << crossovers({}) << true;
    row("bonuses for crossovers") << crossovers({}) << bonus(0, {}) << true;
    row("data of another kind") << twoHeroes
                                << CmpScenarioStartOptions{HeroKind,
                                                           QVariant::fromValue(bonuses(1, {}))}
                                << true;
}

void ScenarioStartOptionsSaveTest::savingTellsWhetherOptionsDiffer()
{
    QFETCH(CmpScenarioStartOptions, shown);
    QFETCH(CmpScenarioStartOptions, held);
    StartOptionsTab open;
    open.scenario().startOptions = std::make_shared<CmpScenarioStartOptions>(shown);
    open.load();
    open.scenario().startOptions = std::make_shared<CmpScenarioStartOptions>(held);
    QTEST(open.tab.saveScenarioInfo(), "differ");
    QCOMPARE(open.scenario().startOptions->optionType, shown.optionType);
    QVERIFY(!open.tab.saveScenarioInfo());
    open.scenario().startOptions.reset();
    QVERIFY(open.tab.saveScenarioInfo());
}

// The document's scenario and the dialog's copy share their record.
void ScenarioStartOptionsSaveTest::savingReplacesTheRecord()
{
    StartOptionsTab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    const auto before = open.scenario().startOptions;
    open.load();
    QVERIFY(!open.tab.saveScenarioInfo());
    QVERIFY(open.scenario().startOptions != before);
    const auto stored = open.scenario().startOptions->optionData.value<StartingBonusSet>();
    QCOMPARE(int(stored.player), 1);
    QCOMPARE(stored.bonuses.size(), std::size_t(1));
    QCOMPARE(stored.bonuses[0].bonusData.value<BonusResource>().amount, 5);
    open.table(BonusKind)->removeRow(0);
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(before->optionData.value<StartingBonusSet>().bonuses.size(), std::size_t(1));
}

void ScenarioStartOptionsSaveTest::withoutAChoiceNothingIsStored()
{
    StartOptionsTab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    const auto before = open.scenario().startOptions;
    open.load();
    open.button(bonusButton)->setAutoExclusive(false);
    open.button(bonusButton)->setChecked(false);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions, before);
}

QTEST_MAIN(ScenarioStartOptionsSaveTest)
#include "scenario_start_options_save_test.moc"
