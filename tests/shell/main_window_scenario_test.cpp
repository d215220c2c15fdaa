// The way from the window into the scenario dialog and back: what is taken over, and what isn't.
#include "document/campaign_data.h"
#include "scenario/scenario_general.h"
#include "scenario/scenario_info.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/file_contents.h"
#include "tests/support/stored_options.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>

#include <functional>

class MainWindowScenarioTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void dialogShowsTheSelectedRegion();
    void rejectedChangesNothing_data();
    void rejectedChangesNothing();
    void acceptedWithoutEditsIsNoChange();
    void acceptedEditsAreTakenOver();
    void editsThatWereStoredBeforeCountToo();
    void changedDocumentStaysChanged();
    void titleIsSetOnceAndOnlyOnAChange();
    void regionOfTheDialogBecomesTheSelectedOne();
    void countFollowsTheScenarios_data();
    void countFollowsTheScenarios();
    void onlyRegionsThatLookDifferentAreDrawnAnew_data();
    void onlyRegionsThatLookDifferentAreDrawnAnew();
    void storiesComeBackWhole();

private:
    // A window on a campaign of map 24 with maps in the first two regions, as the dialog leaves it.
    std::unique_ptr<MainWindow> windowOnRegions();
    std::unique_ptr<MainWindow> windowOnChain(int scenarios);
    CampaignData savedBy(MainWindow &window);
    QByteArray bytesOf(MainWindow &window);

    std::unique_ptr<WindowFixture> fixture;
};

namespace {

const QString title = "Tiny Campaign Editor";

using Edit = std::function<void(ScenarioInfo &)>;

// Lets somebody edit in the dialog, then presses a button.
void runDialog(MainWindow &window, const Edit &edit, QDialogButtonBox::StandardButton button)
{
    NextDialog next([&](QWidget *widget) {
        auto *dialog = qobject_cast<ScenarioInfo *>(widget);
        if (!dialog) {
            widget->close();
            QFAIL("Another dialog came in the place of the scenario dialog.");
        }
        edit(*dialog);
        clickOn(dialog->findChild<QDialogButtonBox *>("buttonBox")->button(button));
        QVERIFY(!dialog->isVisible());
    });
    action(window, "scenarioProperties")->trigger();
}

void accept(MainWindow &window, const Edit &edit)
{
    runDialog(window, edit, QDialogButtonBox::Ok);
}

void leaveAlone(ScenarioInfo &) {}

void selectRow(ScenarioInfo &dialog, int row)
{
    auto *list = dialog.findChild<QListWidget *>("listWidget");
    clickOn(list->viewport(), list->visualItemRect(list->item(row)).center());
}

void choose(ScenarioInfo &dialog, const char *box, unsigned value)
{
    auto *choice = dialog.findChild<QComboBox *>(box);
    choice->setCurrentIndex(choice->findData(value));
}

void press(ScenarioInfo &dialog, const char *button)
{
    clickOn(dialog.findChild<QWidget *>(button));
}

void removeMap(ScenarioInfo &dialog)
{
    clickOn(dialog.findChild<ScenarioGeneral *>()->findChild<QPushButton *>("removeButton"));
}

void editText(ScenarioInfo &dialog)
{
    dialog.findChild<QTextEdit *>("regionTextEdit")->setPlainText("edited");
}

// Everything that can be done at once.
void editAll(ScenarioInfo &dialog)
{
    editText(dialog);
    choose(dialog, "regionColorCombobox", 6);
    choose(dialog, "difficultyCombobox", 4);
    press(dialog, "downBtn");
    selectRow(dialog, 0);
    removeMap(dialog);
}

CampaignData campaignIn(const QString &path)
{
    CampaignData campaign;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || campaign.readCampaign(&file))
        QTest::qFail("The campaign can't be read.", __FILE__, __LINE__);
    return campaign;
}

QVector<qint64> picturesIn(MainWindow &window)
{
    QVector<qint64> keys;
    for (const CampaignRegionItem *region : regionsOf(window))
        keys << region->pixmap().cacheKey();
    return keys;
}

} // namespace

std::unique_ptr<MainWindow> MainWindowScenarioTest::windowOnRegions()
{
    auto window = std::make_unique<MainWindow>(nullptr);
    const QString path = fixture->game.addCampaign(
        "regions.e3c", tiny::campaign(24, {{true, 1}, {true, 3}, {false, 5}}));
    CampaignData campaign = campaignIn(path);
    for (std::size_t i = 0; i < 2; ++i)
        campaign.scenarios[i].startOptions = resourceBonuses(0);
    if (!campaign.saveTo(path).ok)
        QTest::qFail("The campaign can't be saved.", __FILE__, __LINE__);
    window->loadFile(path);
    return window;
}

std::unique_ptr<MainWindow> MainWindowScenarioTest::windowOnChain(int scenarios)
{
    auto window = std::make_unique<MainWindow>(nullptr);
    window->loadFile(fixture->game.addCampaign(
        "chain.e3c", tiny::campaignWithoutMap(1, QVector<tiny::Scenario>(scenarios))));
    return window;
}

// What saving would write. Title, file and flag stay as they are.
QByteArray MainWindowScenarioTest::bytesOf(MainWindow &window)
{
    const QString path = fixture->game.filePath("Maps/saved.e3c");
    QFile::remove(path);
    const bool modified = EditorData::info.modified;
    const QString file = window.windowFilePath();
    window.saveFile(path);
    window.setCurrentFile(file);
    EditorData::info.modified = modified;
    window.updateWindowTitle();
    return contents(path);
}

CampaignData MainWindowScenarioTest::savedBy(MainWindow &window)
{
    bytesOf(window);
    return campaignIn(fixture->game.filePath("Maps/saved.e3c"));
}

void MainWindowScenarioTest::dialogShowsTheSelectedRegion()
{
    const auto window = windowOnRegions();
    QVERIFY(show(*window));
    clickOn(mapView(*window)->viewport(), QPoint(210, 310));
    accept(*window, [&](ScenarioInfo &dialog) {
        QCOMPARE(dialog.parentWidget(), window.get());
        QCOMPARE(dialog.windowTitle(), QString("Scenario Properties"));
        QCOMPARE(dialog.getCurrentRegion(), 2u);
        QCOMPARE(dialog.findChild<QListWidget *>("listWidget")->currentRow(), 2);
        QCOMPARE(dialog.findChild<QLabel *>("regionNameLabelMain")->text(), QString("Cedar Fen"));
    });
}

void MainWindowScenarioTest::rejectedChangesNothing_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::newRow("regions") << true;
    QTest::newRow("a chain") << false;
}

void MainWindowScenarioTest::rejectedChangesNothing()
{
    QFETCH(bool, hasMap);
    const auto window = hasMap ? windowOnRegions() : windowOnChain(3);
    const QByteArray before = bytesOf(*window);
    const auto pictures = picturesIn(*window);
    const auto edit = [&](ScenarioInfo &dialog) {
        if (hasMap) {
            editAll(dialog);
            return;
        }
        choose(dialog, "difficultyCombobox", 4);
        press(dialog, "downBtn");
        press(dialog, "addBtn");
        press(dialog, "addBtn");
        press(dialog, "deleteBtn");
        QCOMPARE(dialog.editedCampaign().scenarios.size(), std::size_t(4));
    };
    runDialog(*window, edit, QDialogButtonBox::Cancel);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(EditorData::info.region, 0u);
    QCOMPARE(picturesIn(*window), pictures);
    QCOMPARE(bytesOf(*window), before);
}

void MainWindowScenarioTest::acceptedWithoutEditsIsNoChange()
{
    const auto window = windowOnRegions();
    const auto pictures = picturesIn(*window);
    accept(*window, [](ScenarioInfo &dialog) {
        selectRow(dialog, 1);
        selectRow(dialog, 2);
    });
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "regions.e3c - " + title);
    QCOMPARE(picturesIn(*window), pictures);
}

void MainWindowScenarioTest::acceptedEditsAreTakenOver()
{
    const auto window = windowOnRegions();
    accept(*window, editAll);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "regions.e3c* - " + title);
    // The first scenario went down with what was typed; the one now first lost its map.
    const CampaignData saved = savedBy(*window);
    QCOMPARE(saved.scenarios[1].regionText, QString("edited"));
    QCOMPARE(int(saved.scenarios[1].regionColor), 6);
    QCOMPARE(int(saved.scenarios[1].defaultDifficulty), 4);
    QVERIFY(saved.scenarios[1].mapHeader);
    QVERIFY(!saved.scenarios[0].mapHeader);
    QCOMPARE(int(saved.scenarios[0].regionColor), 3);
    QVERIFY(!regionsOf(*window)[0]->hasScenario);
    QVERIFY(regionsOf(*window)[1]->hasScenario);
    QCOMPARE(regionsOf(*window)[1]->regionColor, 6u);
}

void MainWindowScenarioTest::editsThatWereStoredBeforeCountToo()
{
    const auto window = windowOnRegions();
    accept(*window, [](ScenarioInfo &dialog) {
        editText(dialog);
        selectRow(dialog, 1); // stores it, so that nothing is left to be stored in the end
    });
    QVERIFY(EditorData::info.modified);
    QCOMPARE(savedBy(*window).scenarios[0].regionText, QString("edited"));
}

void MainWindowScenarioTest::changedDocumentStaysChanged()
{
    const auto window = windowOnRegions();
    EditorData::info.modified = true;
    accept(*window, leaveAlone);
    QVERIFY(EditorData::info.modified);
    runDialog(*window, editText, QDialogButtonBox::Cancel);
    QVERIFY(EditorData::info.modified);
}

void MainWindowScenarioTest::titleIsSetOnceAndOnlyOnAChange()
{
    const auto window = windowOnRegions();
    const QSignalSpy titles(window.get(), &QWidget::windowTitleChanged);
    accept(*window, leaveAlone);
    QCOMPARE(titles.size(), 0);
    accept(*window, editAll);
    QCOMPARE(titles.size(), 1);
}

void MainWindowScenarioTest::regionOfTheDialogBecomesTheSelectedOne()
{
    const auto window = windowOnRegions();
    accept(*window, [](ScenarioInfo &dialog) { selectRow(dialog, 2); });
    QCOMPARE(EditorData::info.region, 2u);
    accept(*window, [](ScenarioInfo &dialog) {
        QCOMPARE(dialog.getCurrentRegion(), 2u);
        press(dialog, "upBtn");
    });
    QCOMPARE(EditorData::info.region, 1u);
}

void MainWindowScenarioTest::countFollowsTheScenarios_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<unsigned>("count");
    QTest::newRow("regions") << true << QByteArray("downBtn") << 3u;
    QTest::newRow("one added") << false << QByteArray("addBtn") << 4u;
    QTest::newRow("one deleted") << false << QByteArray("deleteBtn") << 2u;
    QTest::newRow("one moved") << false << QByteArray("downBtn") << 3u;
}

void MainWindowScenarioTest::countFollowsTheScenarios()
{
    QFETCH(bool, hasMap);
    QFETCH(QByteArray, button);
    QFETCH(unsigned, count);
    const auto window = hasMap ? windowOnRegions() : windowOnChain(3);
    if (hasMap)
        QCOMPARE(savedBy(*window).scenarioCount, 0u);
    accept(*window, [&](ScenarioInfo &dialog) { press(dialog, button); });
    QVERIFY(EditorData::info.modified);
    const CampaignData saved = savedBy(*window);
    QCOMPARE(saved.scenarioCount, count);
    QCOMPARE(unsigned(saved.scenarios.size()), count);
}

void MainWindowScenarioTest::onlyRegionsThatLookDifferentAreDrawnAnew_data()
{
    QTest::addColumn<int>("region");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<bool>("redrawn");
    QTest::newRow("another colour") << 1 << QByteArray("regionColorCombobox") << true;
    QTest::newRow("no map any more") << 0 << QByteArray("removeButton") << true;
    QTest::newRow("another difficulty") << 1 << QByteArray("difficultyCombobox") << false;
    QTest::newRow("colour without a map") << 2 << QByteArray("regionColorCombobox") << true;
}

void MainWindowScenarioTest::onlyRegionsThatLookDifferentAreDrawnAnew()
{
    QFETCH(int, region);
    QFETCH(QByteArray, control);
    QFETCH(bool, redrawn);
    const auto window = windowOnRegions();
    const auto before = picturesIn(*window);
    accept(*window, [&](ScenarioInfo &dialog) {
        selectRow(dialog, region);
        if (control == "removeButton")
            removeMap(dialog);
        else
            choose(dialog, control, 4);
    });
    QVERIFY(EditorData::info.modified);
    const auto after = picturesIn(*window);
    QCOMPARE(after.size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(after[i] != before[i], redrawn && i == region);
}

void MainWindowScenarioTest::storiesComeBackWhole()
{
    const auto window = windowOnRegions();
    CampaignData told = savedBy(*window);
    for (std::size_t i = 0; i < 3; ++i) {
        told.scenarios[0].prologues[i] =
            std::make_shared<CmpPrologue>(CmpPrologue{1, 2, "It begins"});
        told.scenarios[0].epilogues[i] =
            std::make_shared<CmpPrologue>(CmpPrologue{2, 1, "It ends"});
    }
    told.scenarios[0].startOptions = resourceBonuses(3);
    told.scenarios[0].crossover.creatures.setBit(9);
    const QString path = fixture->game.filePath("Maps/told.e3c");
    QVERIFY(told.saveTo(path).ok);
    window->loadFile(path);
    accept(*window, leaveAlone); // stores the count, which the file of a campaign with a map lacks
    const QByteArray counted = bytesOf(*window);
    accept(*window, leaveAlone);
    QCOMPARE(bytesOf(*window), counted);
    const CampaignData saved = savedBy(*window);
    for (std::size_t i = 0; i < 3; ++i) {
        QVERIFY(saved.scenarios[0].prologues[i] && saved.scenarios[0].epilogues[i]);
        QCOMPARE(saved.scenarios[0].prologues[i]->text, QString("It begins"));
        QCOMPARE(saved.scenarios[0].epilogues[i]->text, QString("It ends"));
    }
    QVERIFY(saved.scenarios[0].crossover.creatures.testBit(9));
}

QTEST_MAIN(MainWindowScenarioTest)
#include "main_window_scenario_test.moc"
