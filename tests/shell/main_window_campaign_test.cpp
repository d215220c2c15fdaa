// The way from the window into the dialogs on the campaign as a whole, and back.
#include "document/campaign_conversion.h"
#include "tests/shell/campaign_dialog_support.h"

#include <QListWidget>
#include <QTextEdit>

#include <functional>

class MainWindowCampaignTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void propertiesAreStored();
    void cancelledChangesNothing_data();
    void cancelledChangesNothing();
    void acceptedWithoutEditsIsNoChange();
    void otherBackgroundIsShown();
    void otherMapIsShown();
    void firstRegionIsSelectedAfterwards();
    void convertsToABackgroundAndBack();
    void refusedConversionChangesNothing();
    void convertedCampaignsAreReadAgain_data();
    void convertedCampaignsAreReadAgain();

private:
    std::unique_ptr<MainWindow> windowOn(const QByteArray &campaign);
    CampaignData savedBy(MainWindow &window);

    std::unique_ptr<WindowFixture> fixture;
};

namespace {

const QString title = "Tiny Campaign Editor";
const QString convertQuestion = "Do you really want to convert the campaign to different type?";

using Edit = std::function<void(QDialog &)>;

NextDialog::Answer editing(const QString &dialogTitle, const Edit &edit,
                           QDialogButtonBox::StandardButton button)
{
    return [=](QWidget *widget) {
        auto *dialog = qobject_cast<QDialog *>(widget);
        if (!dialog || dialog->windowTitle() != dialogTitle) {
            widget->close();
            QFAIL("Another dialog came.");
        }
        edit(*dialog);
        press(*dialog, button);
        QVERIFY(!dialog->isVisible());
    };
}

void properties(MainWindow &window, const Edit &edit,
                QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok)
{
    const NextDialog dialog(editing("Campaign Properties", edit, button));
    action(window, "campaignProperties")->trigger();
}

void convert(MainWindow &window, int row, QMessageBox::StandardButton answer,
             const QString &text = convertQuestion)
{
    const auto choose = [row](QDialog &dialog) {
        control<QListWidget>(dialog, "listWidget")->setCurrentRow(row);
    };
    const NextDialog dialog(editing("Convert Campaign", choose, QDialogButtonBox::Ok));
    const NextDialog question(answerQuestion(text, answer));
    action(window, "actionConvertCmp")->trigger();
}

void enterName(QDialog &dialog)
{
    control<QTextEdit>(dialog, "nameEdit")->setPlainText("New");
}

void leaveAlone(QDialog &) {}

QColor shownAt(MainWindow &window, int x, int y)
{
    const auto items = mapView(window)->scene()->items(Qt::AscendingOrder);
    return items.isEmpty() ? QColor()
                           : pixelOf(static_cast<QGraphicsPixmapItem *>(items.first()), x, y);
}

} // namespace

std::unique_ptr<MainWindow> MainWindowCampaignTest::windowOn(const QByteArray &campaign)
{
    auto window = std::make_unique<MainWindow>(nullptr);
    window->loadFile(fixture->game.addCampaign("given.e3c", campaign));
    return window;
}

CampaignData MainWindowCampaignTest::savedBy(MainWindow &window)
{
    const QString path = fixture->game.filePath("Maps/saved.e3c");
    QFile::remove(path);
    if (!window.saveFile(path))
        QTest::qFail("The campaign can't be saved.", __FILE__, __LINE__);
    CampaignData campaign;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || campaign.readCampaign(&file))
        QTest::qFail("The campaign can't be read.", __FILE__, __LINE__);
    return campaign;
}

void MainWindowCampaignTest::propertiesAreStored()
{
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {true, 3}, {false, 5}}));
    properties(*window, enterName);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "given.e3c* - " + title);
    const CampaignData saved = savedBy(*window);
    QCOMPARE(saved.name, QString("New"));
    QCOMPARE(scenariosWithMap(saved), 2U);
}

void MainWindowCampaignTest::cancelledChangesNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("dialogTitle");
    QTest::newRow("properties") << QByteArray("campaignProperties") << "Campaign Properties";
    QTest::newRow("conversion") << QByteArray("actionConvertCmp") << "Convert Campaign";
}

void MainWindowCampaignTest::cancelledChangesNothing()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, dialogTitle);
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {true, 3}, {false, 5}}));
    window->currentRegion = 2;
    EditorData::info.region = 2;
    const auto edit = command == "campaignProperties" ? Edit(enterName) : Edit(leaveAlone);
    {
        const NextDialog dialog(editing(dialogTitle, edit, QDialogButtonBox::Cancel));
        action(*window, command)->trigger();
    }
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->currentRegion, 2U);
    QCOMPARE(EditorData::info.region, 2U);
    QCOMPARE(savedBy(*window).name, QString("A campaign"));
}

void MainWindowCampaignTest::acceptedWithoutEditsIsNoChange()
{
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {true, 3}, {false, 5}}));
    properties(*window, leaveAlone);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "given.e3c - " + title);
}

void MainWindowCampaignTest::otherBackgroundIsShown()
{
    const auto window = windowOn(tiny::campaignWithoutMap(0, {{true, 1}}));
    QCOMPARE(shownAt(*window, 5, 5), tiny::backgroundColour("plainone.pcx"));
    properties(*window, [](QDialog &dialog) {
        control<QComboBox>(dialog, "bgCombobox")->setCurrentIndex(1);
    });
    QCOMPARE(shownAt(*window, 5, 5), tiny::backgroundColour("plaintwo.pcx"));
    QCOMPARE(savedBy(*window).customValue, 1);
}

void MainWindowCampaignTest::otherMapIsShown()
{
    const auto window = windowOn(tiny::campaign(24, {{false, 1}, {true, 3}, {true, 5}}));
    const NextDialog dialog(editing(
        "Campaign Properties",
        [](QDialog &shown) {
            auto *box = control<QComboBox>(shown, "bgCombobox");
            box->setCurrentIndex(box->findData(3));
        },
        QDialogButtonBox::Ok));
    const NextDialog question(
        answerQuestion("Do you really want to change the background?", QMessageBox::Yes));
    action(*window, "campaignProperties")->trigger();
    QCOMPARE(window->campaignId, 3U);
    QCOMPARE(EditorData::info.campaign, 3U);
    QCOMPARE(shownAt(*window, 5, 5), tiny::backgroundColour("backtwo.pcx"));
    QCOMPARE(regionsOf(*window).size(), 2);
    QCOMPARE(regionsOf(*window)[0]->regionColor, 3U);
    QCOMPARE(regionsOf(*window)[1]->regionColor, 5U);
    QVERIFY(regionsOf(*window)[1]->hasScenario);
    QCOMPARE(regionNameIn(*window), QString("West Keep"));
    QCOMPARE(window->windowTitle(), "given.e3c* - " + title);
    const CampaignData saved = savedBy(*window);
    QCOMPARE(int(saved.mapId), 3);
    QCOMPARE(scenariosWithMap(saved), 2U);
}

void MainWindowCampaignTest::firstRegionIsSelectedAfterwards()
{
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {true, 3}, {false, 5}}));
    QVERIFY(show(*window));
    clickOn(mapView(*window)->viewport(), QPoint(210, 310));
    QCOMPARE(regionNameIn(*window), QString("Cedar Fen"));
    properties(*window, leaveAlone);
    QCOMPARE(window->currentRegion, 0U);
    QCOMPARE(EditorData::info.region, 0U);
    QCOMPARE(regionNameIn(*window), QString("Alder Bay"));
    QVERIFY(regionsOf(*window)[0]->isSelected);
    QVERIFY(!regionsOf(*window)[2]->isSelected);
}

void MainWindowCampaignTest::convertsToABackgroundAndBack()
{
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {false, 3}, {true, 5}}));
    convert(*window, 1, QMessageBox::Yes);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "given.e3c* - " + title);
    QCOMPARE(EditorData::info.campaign, 0U);
    QCOMPARE(window->campaignId, 0U);
    QVERIFY(regionsOf(*window).isEmpty());
    QCOMPARE(regionNameIn(*window), QString());
    QCOMPARE(shownAt(*window, 5, 5), tiny::backgroundColour("plaintwo.pcx"));
    const CampaignData chain = savedBy(*window);
    QVERIFY(!chain.hasMap);
    QCOMPARE(chain.customValue, 1);
    QCOMPARE(rowsOf(chain), QStringList({"00", "10"}));

    convert(*window, 1, QMessageBox::Yes);
    QCOMPARE(window->campaignId, 3U);
    QCOMPARE(regionsOf(*window).size(), 2);
    QCOMPARE(regionsOf(*window)[1]->regionColor, 5U);
    QCOMPARE(regionNameIn(*window), QString("West Keep"));
    const CampaignData back = savedBy(*window);
    QVERIFY(back.hasMap);
    QCOMPARE(rowsOf(back), QStringList({"00", "10"}));
    QCOMPARE(back.scenarios[1].compressedMap, chain.scenarios[1].compressedMap);
    QVERIFY(!back.scenarios[1].compressedMap.isEmpty());
}

void MainWindowCampaignTest::refusedConversionChangesNothing()
{
    const auto window = windowOn(tiny::campaign(24, {{true, 1}, {false, 3}, {true, 5}}));
    window->currentRegion = 2;
    convert(*window, 1, QMessageBox::No);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "given.e3c - " + title);
    QCOMPARE(window->currentRegion, 0U); // the view is shown anew all the same
    QCOMPARE(regionsOf(*window).size(), 3);
    const CampaignData saved = savedBy(*window);
    QVERIFY(saved.hasMap);
    QCOMPARE(scenariosWithMap(saved), 2U);
}

void MainWindowCampaignTest::convertedCampaignsAreReadAgain_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("question");
    QTest::addColumn<unsigned>("count");
    const QString lossy = convertQuestion + " Some scenarios will be deleted!";
    QTest::newRow("nothing left on a background")
        << tiny::campaign(24, QVector<tiny::Scenario>(3)) << convertQuestion << 1U;
    QTest::newRow("more scenarios than regions")
        << tiny::campaignWithoutMap(0, QVector<tiny::Scenario>(5, {true, 4})) << lossy << 3U;
    QTest::newRow("fewer scenarios than regions")
        << tiny::campaignWithoutMap(0, {{true, 4}}) << convertQuestion << 3U;
}

void MainWindowCampaignTest::convertedCampaignsAreReadAgain()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, question);
    QFETCH(unsigned, count);
    const auto window = windowOn(bytes);
    convert(*window, 0, QMessageBox::Yes, question);
    const CampaignData saved = savedBy(*window);
    QCOMPARE(unsigned(saved.scenarios.size()), count);
    QCOMPARE(saved.scenarioCount, count);
}

QTEST_MAIN(MainWindowCampaignTest)
#include "main_window_campaign_test.moc"
