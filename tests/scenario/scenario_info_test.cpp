// The scenario dialog as a host: its controls, its tabs, and when it stores what they show. What
// the buttons do to the list is tested in scenario_info_list_test.
#include "tests/scenario/scenario_fixture.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QTextEdit>

class ScenarioInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void controlsHaveTypesAndTexts_data();
    void controlsHaveTypesAndTexts();
    void arrowsHaveIcons_data();
    void arrowsHaveIcons();
    void windowIsModalAndFixed_data();
    void windowIsModalAndFixed();
    void tabsStandInOrder();
    void listTakesTwoSeventhsOfTheWidth();
    void regionIsSelectedFirst_data();
    void regionIsSelectedFirst();
    void tabsShowTheRegionGiven();
    void dialogEditsACopy();
    void nothingIsChangedAtFirst();
    void selectingSavesTheScenarioLeft();
    void selectingWithoutEditsChangesNothing();
    void savingTellsWhetherATabChanged();
    void whatControlsCannotShowStays_data();
    void whatControlsCannotShowStays();
    void theOtherTabsKeepWhatNobodyEdits();
    void buttonsCloseTheDialog_data();
    void buttonsCloseTheDialog();
    void aCampaignWithoutScenariosOpens();
    void aCircleOfPrerequisitesOpens();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

namespace {

QTextEdit *textEdit(OpenScenarioDialog &open)
{
    return open.find<QTextEdit>("regionTextEdit");
}

QComboBox *difficulty(OpenScenarioDialog &open)
{
    return open.find<QComboBox>("difficultyCombobox");
}

void clickTab(OpenScenarioDialog &open, int index)
{
    QTabBar *bar = open.tabs()->tabBar();
    clickOn(bar, bar->tabRect(index).center());
}

} // namespace

void ScenarioInfoTest::controlsHaveTypesAndTexts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("text");
    const QByteArray button = "QAbstractButton";
    QTest::newRow("label") << QByteArray("QLabel") << "Scenario list";
    QTest::newRow("listWidget") << QByteArray("QListWidget") << "";
    QTest::newRow("upBtn") << button << "";
    QTest::newRow("downBtn") << button << "";
    QTest::newRow("addBtn") << button << "Add";
    QTest::newRow("deleteBtn") << button << "Delete";
    QTest::newRow("deleteAllBtn") << button << "Delete all";
    QTest::newRow("tabWidget") << QByteArray("QTabWidget") << "";
    QTest::newRow("buttonBox") << QByteArray("QDialogButtonBox") << "";
}

void ScenarioInfoTest::controlsHaveTypesAndTexts()
{
    QFETCH(QByteArray, type);
    CampaignData campaign = campaignOf(false, {"one", ""});
    OpenScenarioDialog open(campaign);
    const auto *widget = open.dialog.findChild<QWidget *>(QTest::currentDataTag());
    QVERIFY(widget);
    QVERIFY(widget->inherits(type));
    QVERIFY(widget->isVisible());
    QTEST(widget->property("text").toString(), "text");
}

void ScenarioInfoTest::arrowsHaveIcons_data()
{
    QTest::addColumn<QString>("icon");
    QTest::newRow("upBtn") << ":/icons/spinbox_up_arrow.svg";
    QTest::newRow("downBtn") << ":/icons/spinbox_down_arrow.svg";
}

void ScenarioInfoTest::arrowsHaveIcons()
{
    QFETCH(QString, icon);
    CampaignData campaign = campaignOf(false, {"one", ""});
    OpenScenarioDialog open(campaign);
    const QImage shown =
        open.find<QAbstractButton>(QTest::currentDataTag())->icon().pixmap(16, 16).toImage();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown, QIcon(icon).pixmap(16, 16).toImage());
}

void ScenarioInfoTest::windowIsModalAndFixed_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::newRow("regions") << true;
    QTest::newRow("a chain") << false;
}

void ScenarioInfoTest::windowIsModalAndFixed()
{
    QFETCH(bool, hasMap);
    CampaignData campaign = campaignOf(hasMap, {"one", "", ""});
    OpenScenarioDialog open(campaign);
    QCOMPARE(open.dialog.windowTitle(), QString("Scenario Properties"));
    QCOMPARE(open.dialog.windowModality(), Qt::ApplicationModal);
    QVERIFY(!(open.dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(open.dialog.minimumSize(), open.dialog.size());
    QCOMPARE(open.dialog.maximumSize(), open.dialog.size());
}

void ScenarioInfoTest::tabsStandInOrder()
{
    CampaignData campaign = campaignOf(true, {"one", "", ""});
    OpenScenarioDialog open(campaign);
    QStringList titles;
    QStringList pages;
    for (int i = 0; i < open.tabs()->count(); ++i) {
        titles << open.tabs()->tabText(i);
        pages << open.tabs()->widget(i)->metaObject()->className();
    }
    QCOMPARE(titles, QStringList({"General", "Prologue", "Epilogue", "Crossover Options",
                                  "Starting Options"}));
    QCOMPARE(pages, QStringList({"ScenarioGeneral", "ScenarioPrologue", "ScenarioPrologue",
                                 "ScenarioCrossover", "ScenarioStartOptions"}));
    QCOMPARE(open.tabs()->currentIndex(), 0);
    clickTab(open, 4);
    QCOMPARE(open.tabs()->currentIndex(), 4);
}

void ScenarioInfoTest::listTakesTwoSeventhsOfTheWidth()
{
    CampaignData campaign = campaignOf(true, {"one", "", ""});
    OpenScenarioDialog open(campaign);
    const auto *layout = open.dialog.findChild<QBoxLayout *>("horizontalLayout");
    QVERIFY(layout);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->stretch(0), 2);
    QCOMPARE(layout->stretch(1), 5);
}

void ScenarioInfoTest::regionIsSelectedFirst_data()
{
    QTest::addColumn<unsigned>("region");
    QTest::addColumn<int>("row");
    QTest::newRow("the first") << 0u << 0;
    QTest::newRow("the second") << 1u << 1;
    QTest::newRow("the last") << 2u << 2;
    QTest::newRow("behind the last") << 3u << 0;
    QTest::newRow("past int") << 0x80000001u << 0;
}

void ScenarioInfoTest::regionIsSelectedFirst()
{
    QFETCH(unsigned, region);
    QFETCH(int, row);
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    OpenScenarioDialog open(campaign, region);
    QCOMPARE(open.list()->currentRow(), row);
    QVERIFY(open.list()->item(row)->isSelected());
    QCOMPARE(open.dialog.getCurrentRegion(), unsigned(row));
    QCOMPARE(open.dialog.selectedScenarioData(), &open.copy().scenarios[std::size_t(row)]);
}

void ScenarioInfoTest::tabsShowTheRegionGiven()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    campaign.scenarios[2].regionText = "reeds";
    campaign.scenarios[2].defaultDifficulty = 4;
    campaign.scenarios[2].regionColor = 6;
    OpenScenarioDialog open(campaign, 2);
    QCOMPARE(open.find<QLabel>("regionNameLabelMain")->text(), QString("Cedar Fen"));
    QCOMPARE(open.find<QLabel>("scenarioNameLabelMain")->text(), QString("three map"));
    QCOMPARE(textEdit(open)->toPlainText(), QString("reeds"));
    QCOMPARE(difficulty(open)->currentData().toInt(), 4);
    QCOMPARE(open.find<QComboBox>("regionColorCombobox")->currentData().toInt(), 6);
}

void ScenarioInfoTest::dialogEditsACopy()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    const QByteArrayList before = stateOf(campaign);
    OpenScenarioDialog open(campaign);
    QVERIFY(&open.copy() != &campaign);
    QCOMPARE(stateOf(open.copy()), before);
    textEdit(open)->setPlainText("edited");
    open.select(1);
    open.click("upBtn");
    QVERIFY(stateOf(open.copy()) != before);
    QCOMPARE(stateOf(campaign), before);
}

void ScenarioInfoTest::nothingIsChangedAtFirst()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    OpenScenarioDialog open(campaign);
    QVERIFY(!open.dialog.hasChanged());
    QVERIFY(!open.dialog.saveScenarioInfo());
    QVERIFY(!open.dialog.hasChanged());
}

void ScenarioInfoTest::selectingSavesTheScenarioLeft()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    OpenScenarioDialog open(campaign);
    textEdit(open)->setPlainText("alders");
    difficulty(open)->setCurrentIndex(3);
    QVERIFY(!open.dialog.hasChanged());
    open.select(2);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.copy().scenarios[0].regionText, QString("alders"));
    QCOMPARE(int(open.copy().scenarios[0].defaultDifficulty), 3);
    QCOMPARE(open.copy().scenarios[2].regionText, QString());
    QCOMPARE(int(open.copy().scenarios[2].defaultDifficulty), 1);
    QCOMPARE(textEdit(open)->toPlainText(), QString());
    QCOMPARE(difficulty(open)->currentData().toInt(), 1);
    QCOMPARE(open.find<QLabel>("regionNameLabelMain")->text(), QString("Cedar Fen"));
    open.select(0);
    QCOMPARE(textEdit(open)->toPlainText(), QString("alders"));
}

void ScenarioInfoTest::selectingWithoutEditsChangesNothing()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    const QByteArrayList before = stateOf(campaign);
    OpenScenarioDialog open(campaign);
    for (const int row : {2, 1, 0, 1})
        open.select(row);
    QCOMPARE(open.list()->currentRow(), 1);
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(stateOf(open.copy()), before);
}

void ScenarioInfoTest::savingTellsWhetherATabChanged()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    OpenScenarioDialog open(campaign, 1);
    difficulty(open)->setCurrentIndex(0);
    QVERIFY(open.dialog.saveScenarioInfo());
    QCOMPARE(int(open.copy().scenarios[1].defaultDifficulty), 0);
    QVERIFY(!open.dialog.saveScenarioInfo());
}

void ScenarioInfoTest::whatControlsCannotShowStays_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("colour");
    QTest::addColumn<int>("difficulty");
    QTest::newRow("line ends of the game") << "a\r\nb\r\n" << 2 << 1;
    QTest::newRow("hard spaces") << QString(QChar::Nbsp) + "a" + QString(QChar::Nbsp) << 2 << 1;
    QTest::newRow("a long text") << QString(700, 'x') << 2 << 1;
    QTest::newRow("a colour past the table") << "a" << 200 << 1;
    QTest::newRow("a difficulty past the five") << "a" << 2 << 9;
}

void ScenarioInfoTest::whatControlsCannotShowStays()
{
    QFETCH(QString, text);
    QFETCH(int, colour);
    QFETCH(int, difficulty);
    CampaignData campaign = campaignOf(true, {"one", "two", ""});
    for (ScenarioData &scenario : campaign.scenarios) {
        scenario.regionText = text;
        scenario.regionColor = quint8(colour);
        scenario.defaultDifficulty = quint8(difficulty);
    }
    const QByteArrayList before = stateOf(campaign);
    OpenScenarioDialog open(campaign);
    for (const int row : {1, 2, 0})
        open.select(row);
    for (const int tab : {1, 2, 3, 4, 0})
        clickTab(open, tab);
    QVERIFY(!open.dialog.saveScenarioInfo());
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(stateOf(open.copy()), before);
    open.select(1);
    open.click("upBtn");
    QVERIFY(!open.dialog.saveScenarioInfo());
    for (const ScenarioData &scenario : open.copy().scenarios) {
        QCOMPARE(scenario.regionText, text);
        QCOMPARE(int(scenario.regionColor), colour);
        QCOMPARE(int(scenario.defaultDifficulty), difficulty);
    }
}

void ScenarioInfoTest::theOtherTabsKeepWhatNobodyEdits()
{
    CampaignData campaign = campaignOf(true, {"one", "two", ""});
    addStories(campaign.scenarios[0], "first");
    addStories(campaign.scenarios[1], "second");
    const QByteArrayList before = stateOf(campaign);
    OpenScenarioDialog open(campaign);
    for (const int row : {1, 2, 0}) {
        open.select(row);
        for (const int tab : {1, 2, 3, 4, 2, 1, 0})
            clickTab(open, tab);
    }
    QVERIFY(!open.dialog.saveScenarioInfo());
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(stateOf(open.copy()), before);
    open.click("downBtn");
    open.click("downBtn");
    open.click("upBtn");
    open.click("upBtn");
    QVERIFY(!open.dialog.saveScenarioInfo());
    QCOMPARE(stateOf(open.copy()), before);
    QCOMPARE(stateOf(campaign), before);
}

void ScenarioInfoTest::buttonsCloseTheDialog_data()
{
    addButtonsThatClose();
}

void ScenarioInfoTest::buttonsCloseTheDialog()
{
    CampaignData campaign = campaignOf(true, {"one", "", "three"});
    OpenScenarioDialog open(campaign);
    verifyButtonCloses(open.dialog);
}

void ScenarioInfoTest::aCampaignWithoutScenariosOpens()
{
    CampaignData campaign = campaignOf(false, QStringList());
    OpenScenarioDialog open(campaign);
    QCOMPARE(open.list()->count(), 0);
    QVERIFY(!open.tabs()->isEnabled());
    for (const char *button : {"upBtn", "downBtn", "deleteBtn", "deleteAllBtn"})
        QVERIFY2(!open.find<QWidget>(button)->isEnabled(), button);
    QVERIFY(!open.dialog.selectedScenarioData());
    QCOMPARE(open.dialog.getCurrentRegion(), 0u);
    QVERIFY(!open.dialog.saveScenarioInfo());
    QVERIFY(!open.dialog.hasChanged());

    open.click("addBtn");
    QCOMPARE(open.texts(), QStringList("1. Empty"));
    QVERIFY(open.dialog.hasChanged());
    open.select(0);
    QCOMPARE(open.dialog.selectedScenarioData(), open.copy().scenarios.data());
    QVERIFY(open.tabs()->isEnabled());
    difficulty(open)->setCurrentIndex(4);
    QVERIFY(open.dialog.saveScenarioInfo());
    QCOMPARE(int(open.copy().scenarios[0].defaultDifficulty), 4);
}

// Each scenario requires the next and the last one the first; the second requires itself as well,
// the others what isn't there.
void ScenarioInfoTest::aCircleOfPrerequisitesOpens()
{
    CampaignData campaign = campaignOf(true, {"one", "two", "three"});
    require(campaign, {"0100000001", "011", "100000001"});
    OpenScenarioDialog open(campaign);
    for (const int row : {1, 2, 0})
        open.select(row);
    QVERIFY(!open.dialog.hasChanged());
    open.click("downBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"101", "1000000001", "010000001"}));
    open.select(2);
    QCOMPARE(open.find<QListWidget>("prereqListWidget")->count(), 2);
}

QTEST_MAIN(ScenarioInfoTest)
#include "scenario_info_test.moc"
