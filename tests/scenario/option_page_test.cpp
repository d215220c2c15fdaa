// What the pages of start options share, on the two that have a table of two columns.
#include "scenario/hero_crossover.h"
#include "scenario/starting_hero_options.h"
#include "tests/scenario/hero_map.h"
#include "tests/scenario/shown_page.h"
#include "tests/support/longest_wait.h"

#include <QtTest>

namespace {

constexpr unsigned campaignMap = 3;

} // namespace

class OptionPageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init();

    void nothingCanBeDoneBeforeAScenarioIsLoaded();
    void buttonsWorkWhenTheyGoDown();
    void aButtonIsUpAfterItsDialog();
    void theKeyboardWorksTheButtons();
    void theTabKeyLeadsFromTheRowsToTheButtons();
    void headsStayThinOverASelectedRow();
    void noButtonIsTheDefaultOfADialog();
    void clickingARowAllowsWorkOnIt();
    void loadingAgainForbidsWorkOnRows();
    void loadingNothingStoredAllowsNoMoreCrossovers();
    void editingLeavesTheAddingAlone();
    void editingLeavesTheHeightOfRows();
    void nothingIsEditedWithoutASelection();
    void removingASelectedRowAllowsAdding();
    void updateUIOnlyAllows();
    void clearingDropsTheRows();
    void columnsFollowTheWidth();

private:
    template<typename Work>
    void onBoth(Work work);
    void load(ShownPage<StartingHeroOptions> &shown);
    void load(ShownPage<HeroCrossover> &shown);

    CampaignData m_campaign;
};

// Scenario 3 requires all. Both kinds have two offers, and room for another.
void OptionPageTest::init()
{
    m_campaign = {};
    m_campaign.scenarios.resize(4);
    for (ScenarioData &scenario : m_campaign.scenarios)
        giveMap(scenario, heroMap());
    m_campaign.scenarios[3].prerequisites = QBitArray(4, true);
}

void OptionPageTest::load(ShownPage<StartingHeroOptions> &shown)
{
    offerHeroes(m_campaign.scenarios[3], {{0, 1}, {1, 3}});
    shown.page.initInfo(nullptr, &m_campaign.scenarios[3], campaignMap);
}

void OptionPageTest::load(ShownPage<HeroCrossover> &shown)
{
    offerCrossovers(m_campaign.scenarios[3], {{0, 0}, {1, 1}});
    shown.page.initInfo(&m_campaign, &m_campaign.scenarios[3], campaignMap);
}

// Each page in a window of its own, loaded.
template<typename Work>
void OptionPageTest::onBoth(Work work)
{
    {
        ShownPage<StartingHeroOptions> heroes;
        load(heroes);
        work(heroes);
    }
    ShownPage<HeroCrossover> crossovers;
    load(crossovers);
    work(crossovers);
}

void OptionPageTest::nothingCanBeDoneBeforeAScenarioIsLoaded()
{
    QCOMPARE(ShownPage<StartingHeroOptions>().enabledButtons(), QString());
    QCOMPARE(ShownPage<HeroCrossover>().enabledButtons(), QString());
}

void OptionPageTest::buttonsWorkWhenTheyGoDown()
{
    onBoth([](auto &shown) {
        shown.clickRow(0);
        for (const char *name : {"addButton", "editButton"}) {
            const NextDialog dialog(choose({}, QDialogButtonBox::Cancel));
            pressDown(shown, name);
            QVERIFY2(dialog.came(), name);
            letGo(shown, name);
        }
        pressDown(shown, "removeButton");
        QCOMPARE(shown.page.getOptionCount(), 1U);
        letGo(shown, "removeButton");
        QCOMPARE(shown.page.getOptionCount(), 1U);
    });
}

void OptionPageTest::aButtonIsUpAfterItsDialog()
{
    onBoth([](auto &shown) {
        shown.page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.page, longestWait));
        const NextDialog dialog(choose({}, QDialogButtonBox::Cancel));
        pressDown(shown, "addButton");
        QVERIFY(!shown.button("addButton")->isDown());
    });
}

void OptionPageTest::theKeyboardWorksTheButtons()
{
    onBoth([](auto &shown) {
        shown.page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.page, longestWait));
        shown.button("addButton")->setFocus();
        const NextDialog dialog(choose({}));
        QTest::keyPress(shown.page.windowHandle(), Qt::Key_Space);
        QVERIFY(dialog.came());
        QTest::keyRelease(shown.page.windowHandle(), Qt::Key_Space);
        QCOMPARE(shown.page.getOptionCount(), 3U);
    });
}

void OptionPageTest::theTabKeyLeadsFromTheRowsToTheButtons()
{
    onBoth([](auto &shown) {
        shown.page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.page, longestWait));
        shown.clickRow(0);
        QCOMPARE(shown.page.focusWidget(), shown.table());
        for (const char *name : {"addButton", "editButton", "removeButton", "tableWidget"}) {
            QTest::keyClick(shown.page.windowHandle(), Qt::Key_Tab);
            QCOMPARE(shown.page.focusWidget()->objectName(), QString(name));
        }
    });
}

void OptionPageTest::headsStayThinOverASelectedRow()
{
    onBoth([](auto &shown) {
        QHeaderView *heads = shown.table()->horizontalHeader();
        const QImage before = heads->grab().toImage();
        shown.clickRow(0);
        QTest::mouseMove(shown.page.windowHandle(), QPoint(1, shown.page.height() - 1));
        QCOMPARE(shown.table()->selectedItems().size(), 2);
        QCOMPARE(heads->grab().toImage(), before);
    });
}

// In a dialog the first button would else be what the Return key presses.
void OptionPageTest::noButtonIsTheDefaultOfADialog()
{
    onBoth([](auto &shown) {
        for (const char *name : {"addButton", "editButton", "removeButton"})
            QVERIFY2(!shown.button(name)->autoDefault(), name);
    });
}

void OptionPageTest::clickingARowAllowsWorkOnIt()
{
    onBoth([](auto &shown) {
        for (int column = 0; column < 2; ++column) {
            shown.button("editButton")->setEnabled(false);
            shown.button("removeButton")->setEnabled(false);
            shown.clickRow(1, column);
            QCOMPARE(shown.enabledButtons(), QString("add edit remove"));
            QCOMPARE(shown.table()->selectedItems().size(), 2);
            QCOMPARE(shown.table()->selectedItems().constFirst(), shown.item(1, 0));
        }
    });
}

void OptionPageTest::loadingAgainForbidsWorkOnRows()
{
    onBoth([this](auto &shown) {
        shown.clickRow(0);
        QCOMPARE(shown.enabledButtons(), QString("add edit remove"));
        load(shown);
        QCOMPARE(shown.enabledButtons(), QString("add"));
        QCOMPARE(shown.page.getOptionCount(), 2U);
    });
}

void OptionPageTest::loadingNothingStoredAllowsNoMoreCrossovers()
{
    ShownPage<HeroCrossover> shown;
    load(shown);
    QCOMPARE(shown.enabledButtons(), QString("add"));
    m_campaign.scenarios[3].startOptions.reset();
    shown.page.initInfo(&m_campaign, &m_campaign.scenarios[3], campaignMap);
    QCOMPARE(shown.enabledButtons(), QString());
}

// Whether it is possible is asked anew when rows come and go.
void OptionPageTest::editingLeavesTheAddingAlone()
{
    onBoth([](auto &shown) {
        shown.clickRow(0);
        shown.button("addButton")->setEnabled(false);
        const NextDialog dialog(choose({}));
        shown.click("editButton");
        QCOMPARE(shown.enabledButtons(), QString("edit remove"));
    });
}

void OptionPageTest::editingLeavesTheHeightOfRows()
{
    onBoth([](auto &shown) {
        shown.table()->setRowHeight(0, 17);
        shown.table()->setRowHeight(1, 17);
        shown.clickRow(0);
        const NextDialog dialog(choose({}));
        shown.click("editButton");
        QCOMPARE(shown.rowHeights(), QList<int>({17, 17}));
    });
}

void OptionPageTest::nothingIsEditedWithoutASelection()
{
    onBoth([](auto &shown) {
        const QStringList before = shown.rows();
        shown.clickRow(0);
        shown.table()->clearSelection();
        shown.click("editButton"); // a dialog would never come back
        shown.click("removeButton");
        QCOMPARE(shown.rows(), before);
    });
}

void OptionPageTest::removingASelectedRowAllowsAdding()
{
    onBoth([](auto &shown) {
        shown.button("addButton")->setEnabled(false);
        const QString second = shown.rows().last();
        shown.clickRow(0, 1);
        shown.click("removeButton");
        QCOMPARE(shown.rows(), QStringList(second));
        QCOMPARE(shown.enabledButtons(), QString("add edit remove"));
        shown.clickRow(0);
        shown.click("removeButton");
        QCOMPARE(shown.enabledButtons(), QString("add"));
    });
}

// Three rows are the most: two leave room for another, three forbid nothing that is allowed.
void OptionPageTest::updateUIOnlyAllows()
{
    onBoth([](auto &shown) {
        shown.button("addButton")->setEnabled(false);
        shown.page.updateUI();
        QCOMPARE(shown.enabledButtons(), QString("add"));
        shown.table()->setRowCount(3);
        shown.page.updateUI();
        QCOMPARE(shown.enabledButtons(), QString("add"));
        shown.button("addButton")->setEnabled(false);
        shown.page.updateUI();
        QCOMPARE(shown.enabledButtons(), QString());
    });
}

void OptionPageTest::clearingDropsTheRows()
{
    onBoth([](auto &shown) {
        shown.page.clearUI();
        QCOMPARE(shown.page.getOptionCount(), 0U);
    });
    const QVariant stored = m_campaign.scenarios[3].startOptions->optionData;
    QCOMPARE(int(stored.value<HeroCrossoverSet>().entries.size()), 2);
}

void OptionPageTest::columnsFollowTheWidth()
{
    onBoth([](auto &shown) {
        const int before = shown.table()->columnWidth(0);
        shown.page.resize(880, 280);
        QTRY_VERIFY_WITH_TIMEOUT(shown.table()->columnWidth(0) >= 2 * before, longestWait);
        const int both = shown.table()->columnWidth(0) + shown.table()->columnWidth(1);
        QCOMPARE(both, shown.table()->viewport()->width());
    });
}

QTEST_MAIN(OptionPageTest)
#include "option_page_test.moc"
