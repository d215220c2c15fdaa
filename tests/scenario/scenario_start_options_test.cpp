// The tab with the start options: its controls, what it loads, and what clicks show. The editors of
// the three kinds have tests of their own.
#include "tests/scenario/start_options_tab.h"

#include <QLabel>
#include <QLayout>

class ScenarioStartOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init()
    {
        fixture->reset();
        nameHeroesAndColours();
    }

    void controlsHaveTypesAndTexts_data();
    void controlsHaveTypesAndTexts();
    void editorsStandInOrder();
    void aScenarioWithoutMapIsEmptyAndStays_data();
    void aScenarioWithoutMapIsEmptyAndStays();
    void aFirstMapFindsTheCampaignKnown();
    void theStoredKindIsShown_data();
    void theStoredKindIsShown();
    void anUnknownTypeShowsBonusesAndIsReplaced();
    void anotherScenarioTakesThePlaceOfTheFirst();
    void clicksShowTheEditorAndNothingElse_data();
    void clicksShowTheEditorAndNothingElse();
    void theStatusOfAllControlsIsSet();
    void enablingChoosesBonuses();
    void disablingEmptiesTheEditors();
    void anotherPlaceInMemoryIsUsedFromThenOn();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioStartOptionsTest::controlsHaveTypesAndTexts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("startingOptionsLabel") << QByteArray("QLabel") << "Starting options are:";
    QTest::newRow(bonusButton) << QByteArray("QRadioButton") << "Starting bonus options";
    QTest::newRow(crossoverButton) << QByteArray("QRadioButton") << "Hero crossover options";
    QTest::newRow(heroButton) << QByteArray("QRadioButton") << "Starting hero options";
    QTest::newRow("stackedWidget") << QByteArray("QStackedWidget") << "";
    QTest::newRow("frame") << QByteArray("QFrame") << "";
    QTest::newRow("layoutWidget") << QByteArray("QWidget") << "";
}

void ScenarioStartOptionsTest::controlsHaveTypesAndTexts()
{
    QFETCH(QByteArray, type);
    StartOptionsTab open;
    open.load();
    open.show();
    auto *widget = childOf<QWidget>(&open.tab, QTest::currentDataTag());
    QVERIFY(widget->inherits(type));
    QVERIFY(widget->isVisible());
    QTEST(widget->property("text").toString(), "text");
    QCOMPARE(open.tab.windowTitle(), QString("Form"));
    QCOMPARE(open.tab.objectName(), QString("ScenarioStartOptions"));
}

void ScenarioStartOptionsTest::editorsStandInOrder()
{
    StartOptionsTab open;
    auto *stack = childOf<QStackedWidget>(&open.tab, "stackedWidget");
    const QList<QWidget *> editors = open.editors();
    for (const char *empty : {"page", "page_2"})
        QVERIFY(stack->indexOf(childOf<QWidget>(&open.tab, empty)) >= 0);
    QVERIFY(open.tab.findChild<QLayout *>("verticalLayout"));
    const int first = stack->indexOf(editors[0]);
    QVERIFY(first >= 0);
    QCOMPARE(stack->indexOf(editors[1]), first + 1);
    QCOMPARE(stack->indexOf(editors[2]), first + 2);
}

void ScenarioStartOptionsTest::aScenarioWithoutMapIsEmptyAndStays_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("none") << int(NoType);
    QTest::newRow("bonuses") << int(BonusKind);
    QTest::newRow("crossovers") << int(CrossoverKind);
    QTest::newRow("heroes") << int(HeroKind);
}

void ScenarioStartOptionsTest::aScenarioWithoutMapIsEmptyAndStays()
{
    QFETCH(int, type);
    StartOptionsTab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    open.load();
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 3}));
    ScenarioData empty = open.scenario();
    empty.mapHeader.reset();
    empty.startOptions.reset();
    if (type == BonusKind)
        giveOptions(empty, BonusKind, bonuses(0, {resource(5)}));
    else if (type == CrossoverKind)
        offerCrossovers(empty, {{0, 0}});
    else if (type == HeroKind)
        offerHeroes(empty, {{0, 1}});
    const auto stored = empty.startOptions;
    TraceRecorder traces;
    open.tab.initInfo(nullptr, &open.campaign, &empty, homeMap);
    QVERIFY(TraceRecorder::messages().filter("OPTION TYPE").isEmpty());
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(!childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 0);
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(empty.startOptions, stored);
}

// The first scenario on show gets its first map: adding a crossover needs the campaign.
void ScenarioStartOptionsTest::aFirstMapFindsTheCampaignKnown()
{
    StartOptionsTab open;
    open.scenario().mapHeader.reset();
    open.load();
    giveMap(open.scenario(), heroMap());
    open.tab.updateScenarioData(&open.scenario());
    open.tab.enableUI();
    open.tab.updateScenarioUI();
    open.show();
    clickOn(open.button(crossoverButton), QPoint(5, 8));
    QCOMPARE(open.shownType(), int(CrossoverKind));
    {
        NextDialog dialog(choose({{"scenarioCombobox", QStringLiteral("ford map — Alder Bay")}}));
        clickOn(childOf<QPushButton>(open.editors()[1], "addButton"));
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 1, 0}));
    QCOMPARE(open.table(CrossoverKind)->item(0, 0)->text(), QStringLiteral("ford map — Alder Bay"));
}

void ScenarioStartOptionsTest::theStoredKindIsShown_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("none") << int(NoType) << QByteArray(bonusButton) << QList<int>{0, 0, 0};
    QTest::newRow("bonuses") << int(BonusKind) << QByteArray(bonusButton) << QList<int>{2, 0, 0};
    QTest::newRow("crossovers") << int(CrossoverKind) << QByteArray(crossoverButton)
                                << QList<int>{0, 1, 0};
    QTest::newRow("heroes") << int(HeroKind) << QByteArray(heroButton) << QList<int>{0, 0, 3};
}

void ScenarioStartOptionsTest::theStoredKindIsShown()
{
    QFETCH(int, type);
    QFETCH(QByteArray, button);
    StartOptionsTab open;
    if (type == BonusKind)
        giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5), resource(6)}));
    else if (type == CrossoverKind)
        offerCrossovers(open.scenario(), {{0, 0}});
    else if (type == HeroKind)
        offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    TraceRecorder traces;
    open.load();
    const QStringList told = TraceRecorder::messages().filter("!!! OPTION TYPE");
    QCOMPARE(told, type == NoType ? QStringList()
                                  : QStringList{QStringLiteral("!!! OPTION TYPE %1").arg(type)});
    const int shown = type == NoType ? int(BonusKind) : type;
    QCOMPARE(open.shownType(), shown);
    QVERIFY(open.button(button)->isChecked());
    QCOMPARE(open.tab.getSelectedOption(), unsigned(shown));
    QTEST(open.rowCounts(), "rows");
    QCOMPARE(open.tab.getOptionCount(), unsigned(open.rowCounts()[shown - 1]));
    QCOMPARE(open.tab.saveScenarioInfo(), type == NoType);
    QVERIFY(!open.tab.saveScenarioInfo());
}

void ScenarioStartOptionsTest::anUnknownTypeShowsBonusesAndIsReplaced()
{
    StartOptionsTab open;
    giveOptions(open.scenario(), 9, bonuses(1, {resource(5)}));
    TraceRecorder traces;
    open.load();
    QVERIFY(TraceRecorder::messages().contains("!!! OPTION TYPE 9"));
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions->optionType, 1U);
    QVERIFY(open.scenario().startOptions->optionData.value<StartingBonusSet>().bonuses.empty());
}

void ScenarioStartOptionsTest::anotherScenarioTakesThePlaceOfTheFirst()
{
    StartOptionsTab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    open.load();
    QCOMPARE(open.shownType(), int(HeroKind));
    ScenarioData other = open.scenario();
    giveOptions(other, BonusKind, bonuses(0, {resource(1)}));
    open.tab.initInfo(nullptr, &open.campaign, &other, homeMap);
    QCOMPARE(open.shownType(), int(BonusKind));
    QVERIFY(open.button(bonusButton)->isChecked());
    QCOMPARE(open.rowCounts(), QList<int>({1, 0, 0}));
}

void ScenarioStartOptionsTest::clicksShowTheEditorAndNothingElse_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow(bonusButton) << int(BonusKind);
    QTest::newRow(crossoverButton) << int(CrossoverKind);
    QTest::newRow(heroButton) << int(HeroKind);
}

void ScenarioStartOptionsTest::clicksShowTheEditorAndNothingElse()
{
    QFETCH(int, type);
    StartOptionsTab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5), resource(6)}));
    const auto stored = open.scenario().startOptions;
    open.load();
    open.show();
    clickOn(open.button(type == HeroKind ? bonusButton : heroButton), QPoint(5, 8));
    const int before = open.shownType();
    QRadioButton *button = open.button(QTest::currentDataTag());
    const QPoint mark = button->mapTo(&open.tab, QPoint(5, 8));
    TraceRecorder traces;
    QTest::mousePress(open.tab.windowHandle(), Qt::LeftButton, {}, mark);
    QCOMPARE(open.shownType(), before); // until the button is let go
    QTest::mouseRelease(open.tab.windowHandle(), Qt::LeftButton, {}, mark);
    QCOMPARE(TraceRecorder::messages().size(), 1);
    QCOMPARE(open.shownType(), type);
    QCOMPARE(open.tab.getSelectedOption(), unsigned(type));
    QCOMPARE(open.tab.getOptionCount(), type == BonusKind ? 2U : 0U);
    QCOMPARE(open.rowCounts(), QList<int>({2, 0, 0}));
    QCOMPARE(open.scenario().startOptions, stored);
}

void ScenarioStartOptionsTest::theStatusOfAllControlsIsSet()
{
    StartOptionsTab open;
    open.load();
    for (const bool status : {false, true}) {
        open.tab.setUIstatus(status);
        for (const char *name :
             {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
            QCOMPARE(childOf<QWidget>(&open.tab, name)->isEnabled(), status);
        }
    }
}

void ScenarioStartOptionsTest::enablingChoosesBonuses()
{
    StartOptionsTab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    open.tab.setUIstatus(false);
    childOf<QComboBox>(&open.tab, "playerCombobox")->clear();
    open.tab.enableUI();
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 4);
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 2}));
}

void ScenarioStartOptionsTest::disablingEmptiesTheEditors()
{
    StartOptionsTab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    for (const int type : {int(BonusKind), int(CrossoverKind), int(HeroKind)})
        open.table(type)->setRowCount(2);
    open.tab.disableUI();
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(!childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QCOMPARE(open.shownType(), int(BonusKind));
    QVERIFY(open.button(bonusButton)->isChecked());
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 0);
}

void ScenarioStartOptionsTest::anotherPlaceInMemoryIsUsedFromThenOn()
{
    StartOptionsTab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    open.load();
    ScenarioData moved = open.scenario();
    const auto before = open.scenario().startOptions;
    MapHeader other;
    other.players[6].canHuman = 1;
    giveMap(moved, other);
    open.tab.updateScenarioData(&moved);
    QCOMPARE(open.rowCounts(), QList<int>({1, 0, 0}));
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 4);
    open.tab.updateScenarioUI(); // in all three editors
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 1);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions, before);
    QVERIFY(moved.startOptions != before);
}

QTEST_MAIN(ScenarioStartOptionsTest)
#include "scenario_start_options_test.moc"
