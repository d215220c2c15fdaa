// The scenario dialog's tabs together: one that has nothing to store keeps no other from storing,
// and with their disabling the list follows the scenario.
#include "scenario/starting_bonus.h"
#include "tests/scenario/scenario_fixture.h"
#include "tests/scenario/shown_page.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTextEdit>

namespace {

// By their places in the dialog.
enum Page
{
    General,
    Prologue,
    Epilogue,
    Crossover,
    StartOptions
};

const QList<int> allPages{General, Prologue, Epilogue, Crossover, StartOptions};

void removeFirstBonus(QTabWidget *tabs, QWidget *tab)
{
    tabs->setCurrentWidget(tab);
    auto *bonuses = tab->findChild<StartingBonus *>();
    auto *table = childOf<QTableWidget>(bonuses, "tableWidget");
    clickOn(table->viewport(), table->visualItemRect(table->item(0, 0)).center());
    clickOn(childOf<QPushButton>(bonuses, "removeButton"));
}

// Without a look at the pages with stories: whoever leaves one of them stores it.
void edit(OpenScenarioDialog &open, int page)
{
    QWidget *tab = open.tabs()->widget(page);
    switch (page) {
    case General:
        childOf<QComboBox>(tab, "difficultyCombobox")->setCurrentIndex(4);
        break;
    case Prologue:
    case Epilogue:
        childOf<QTextEdit>(tab, "textEdit")->setPlainText("edited");
        break;
    case Crossover:
        childOf<QCheckBox>(tab, "spellsCombobox")->setChecked(true);
        break;
    default:
        removeFirstBonus(open.tabs(), tab);
    }
}

bool isEdited(const ScenarioData &scenario, int page)
{
    switch (page) {
    case General:
        return scenario.defaultDifficulty == 4;
    case Prologue:
        return scenario.prologues[0]->text == "edited";
    case Epilogue:
        return scenario.epilogues[0]->text == "edited";
    case Crossover:
        return scenario.crossover.heroKeeps.testBit(3);
    default:
        return scenario.startOptions->optionData.value<StartingBonusSet>().bonuses.size() == 2;
    }
}

QList<int> editedPages(const ScenarioData &scenario)
{
    QList<int> pages;
    for (const int page : allPages) {
        if (isEdited(scenario, page))
            pages << page;
    }
    return pages;
}

CampaignData campaignWithStories()
{
    CampaignData campaign = campaignOf(true, {"one", "two", ""});
    addStories(campaign.scenarios[0], "told");
    return campaign;
}

} // namespace

class ScenarioInfoTabsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void savingStoresEveryTab_data();
    void savingStoresEveryTab();
    void selectingStoresEveryTab_data();
    void selectingStoresEveryTab();
    void disablingTheTabsRenewsTheItem();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioInfoTabsTest::savingStoresEveryTab_data()
{
    QTest::addColumn<QList<int>>("pages");
    QTest::newRow("none") << QList<int>();
    QTest::newRow("general") << QList<int>{General};
    QTest::newRow("prologue") << QList<int>{Prologue};
    QTest::newRow("epilogue") << QList<int>{Epilogue};
    QTest::newRow("crossover") << QList<int>{Crossover};
    QTest::newRow("start options") << QList<int>{StartOptions};
    QTest::newRow("all") << allPages;
}

void ScenarioInfoTabsTest::savingStoresEveryTab()
{
    QFETCH(QList<int>, pages);
    CampaignData campaign = campaignWithStories();
    OpenScenarioDialog open(campaign);
    for (const int page : pages)
        edit(open, page);
    QCOMPARE(editedPages(open.copy().scenarios[0]), QList<int>());
    QCOMPARE(open.dialog.saveScenarioInfo(), !pages.isEmpty());
    QCOMPARE(editedPages(open.copy().scenarios[0]), pages);
    QVERIFY(!open.dialog.saveScenarioInfo());
}

void ScenarioInfoTabsTest::selectingStoresEveryTab_data()
{
    savingStoresEveryTab_data();
}

void ScenarioInfoTabsTest::selectingStoresEveryTab()
{
    QFETCH(QList<int>, pages);
    CampaignData campaign = campaignWithStories();
    OpenScenarioDialog open(campaign);
    for (const int page : pages)
        edit(open, page);
    open.select(1);
    QCOMPARE(open.dialog.hasChanged(), !pages.isEmpty());
    QCOMPARE(editedPages(open.copy().scenarios[0]), pages);
}

void ScenarioInfoTabsTest::disablingTheTabsRenewsTheItem()
{
    CampaignData campaign = campaignWithStories();
    OpenScenarioDialog open(campaign, 1);
    for (ScenarioData &scenario : open.copy().scenarios)
        scenario.mapFileName = "other.e3m";
    open.dialog.disableUI();
    QCOMPARE(open.texts(), QStringList({QStringLiteral("one.e3m — Alder Bay"),
                                        QStringLiteral("other.e3m — Birch Hill"),
                                        QStringLiteral("Empty — Cedar Fen")}));
}

QTEST_MAIN(ScenarioInfoTabsTest)
#include "scenario_info_tabs_test.moc"
