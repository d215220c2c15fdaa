// What a campaign stands on, in its properties: what is offered and shown there, and another
// campaign map chosen, with the question and what follows.
#include "campaign_dialogs/edit_campaign.h"
#include "tests/shell/campaign_dialog_support.h"

#include <QCheckBox>
#include <QTextEdit>

#include <utility>

class EditCampaignMapTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void backgroundsInOrderOfTheirNumbers();
    void backgroundIsSelectedByItsRow();
    void mapsWithRoomAndTheFirstOf24_data();
    void mapsWithRoomAndTheFirstOf24();
    void previewOfABackgroundIsBare();
    void previewOfAMapHasItsRegions();
    void scenariosMoveToTheNewMap();
    void refusedKeepsTheMapAndStoresTheRest_data();
    void refusedKeepsTheMapAndStoresTheRest();
    void refusedAloneIsNoChange();
    void sameMapAsksNothing();
    void tellsTheSizes();

private:
    std::unique_ptr<WindowFixture> fixture;
};

namespace {

constexpr int previewHeight = 337;

const QString question = "Do you really want to change the background?";

QComboBox *ground(const EditCampaign &dialog)
{
    return control<QComboBox>(dialog, "bgCombobox");
}

void chooseGround(const EditCampaign &dialog, int id)
{
    ground(dialog)->setCurrentIndex(ground(dialog)->findData(id));
}

} // namespace

void EditCampaignMapTest::backgroundsInOrderOfTheirNumbers()
{
    CampaignData campaign = campaignOnBackground(1, "m");
    const EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(textsOf(ground(dialog)), QStringList({"plainone.pcx", "plaintwo.pcx"}));
    QCOMPARE(idsIn(ground(dialog)), QVector<int>({0, 1}));
    QCOMPARE(ground(dialog)->currentIndex(), 1);
}

// Not by its number, should the table ever have gaps.
void EditCampaignMapTest::backgroundIsSelectedByItsRow()
{
    const auto table = std::exchange(EditorData::backgrounds,
                                     {{0, "plainone.pcx"}, {1, "nosuch.pcx"}, {7, "plaintwo.pcx"}});
    CampaignData campaign = campaignOnBackground(2, "m");
    const EditCampaign dialog(nullptr, &campaign);
    EditorData::backgrounds = table;
    QCOMPARE(ground(dialog)->currentIndex(), 2);
    QCOMPARE(ground(dialog)->currentData().toInt(), 7);
    QCOMPARE(previewIn(dialog).pixelColor(0, 100), tiny::backgroundColour("plaintwo.pcx"));
}

void EditCampaignMapTest::mapsWithRoomAndTheFirstOf24_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QVector<int>>("offered");
    QTest::newRow("no scenario with a map") << "---" << QVector<int>{24, 3, 5, 6, 7, 30};
    QTest::newRow("one") << "-m-" << QVector<int>{24, 3, 6, 7};
    QTest::newRow("two") << "m-m" << QVector<int>{24, 3};
    QTest::newRow("three") << "mmm" << QVector<int>{24};
}

void EditCampaignMapTest::mapsWithRoomAndTheFirstOf24()
{
    QFETCH(QString, maps);
    QFETCH(QVector<int>, offered);
    CampaignData campaign = campaignOnMap(24, maps);
    const EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(idsIn(ground(dialog)), offered);
    QCOMPARE(ground(dialog)->itemText(0), QString("Home Shores"));
    QCOMPARE(ground(dialog)->currentIndex(), 0);
}

void EditCampaignMapTest::previewOfABackgroundIsBare()
{
    CampaignData campaign = campaignOnBackground(1, "m");
    EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(previewIn(dialog).height(), previewHeight);
    QCOMPARE(previewIn(dialog).pixelColor(0, 100), tiny::backgroundColour("plaintwo.pcx"));
    chooseGround(dialog, 0);
    QCOMPARE(previewIn(dialog).pixelColor(0, 100), tiny::backgroundColour("plainone.pcx"));
}

void EditCampaignMapTest::previewOfAMapHasItsRegions()
{
    CampaignData campaign = campaignOnMap(24, "m--");
    EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(previewIn(dialog).pixelColor(200, 200), tiny::backgroundColour("backhome.pcx"));
    chooseGround(dialog, 3);
    QCOMPARE(previewIn(dialog).pixelColor(200, 200), tiny::backgroundColour("backtwo.pcx"));
    // The middle of the region at (100, 100), selected and in colour 2.
    QCOMPARE(previewIn(dialog).pixelColor(115 * previewHeight / 600, 110 * previewHeight / 600),
             tiny::readyMadeColour(1, 1, 2));
}

void EditCampaignMapTest::scenariosMoveToTheNewMap()
{
    CampaignData campaign = campaignOnMap(24, "-mm");
    campaign.scenarios[2].prerequisites.setBit(1);
    const CampaignData before = campaign;
    EditCampaign dialog(nullptr, &campaign);
    chooseGround(dialog, 3);
    const NextDialog answer(answerQuestion(question, QMessageBox::Yes));
    dialog.saveInfo(&campaign);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(int(campaign.mapId), 3);
    QCOMPARE(placesIn(before, campaign), QVector<int>({1, 2}));
    QCOMPARE(rowsOf(campaign), QStringList({"00", "10"}));
}

void EditCampaignMapTest::refusedKeepsTheMapAndStoresTheRest_data()
{
    QTest::addColumn<bool>("closed");
    QTest::newRow("No") << false;
    QTest::newRow("the box closed") << true;
}

void EditCampaignMapTest::refusedKeepsTheMapAndStoresTheRest()
{
    QFETCH(bool, closed);
    CampaignData campaign = campaignOnMap(24, "-mm");
    const CampaignData before = campaign;
    EditCampaign dialog(nullptr, &campaign);
    chooseGround(dialog, 3);
    control<QTextEdit>(dialog, "nameEdit")->setPlainText("New");
    control<QTextEdit>(dialog, "descriptionEdit")->setPlainText("Newer");
    control<QComboBox>(dialog, "musicCombobox")->setCurrentIndex(2);
    control<QCheckBox>(dialog, "diffCheckbox")->click();
    const NextDialog answer(
        closed ? NextDialog::Answer([](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); })
               : answerQuestion(question, QMessageBox::No));
    dialog.saveInfo(&campaign);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(int(campaign.mapId), 24);
    QCOMPARE(placesIn(before, campaign), QVector<int>({0, 1, 2}));
    QCOMPARE(campaign.name, QString("New"));
    QCOMPARE(campaign.description, QString("Newer"));
    QCOMPARE(int(campaign.musicId), 2);
    QVERIFY(campaign.difficultySelectable);
}

void EditCampaignMapTest::refusedAloneIsNoChange()
{
    CampaignData campaign = campaignOnMap(24, "-mm");
    EditCampaign dialog(nullptr, &campaign);
    chooseGround(dialog, 3);
    const NextDialog answer(answerQuestion(question, QMessageBox::No));
    dialog.saveInfo(&campaign);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(int(campaign.mapId), 24);
}

// A question would stay unanswered here.
void EditCampaignMapTest::sameMapAsksNothing()
{
    CampaignData campaign = campaignOnMap(24, "-mm");
    EditCampaign dialog(nullptr, &campaign);
    chooseGround(dialog, 3);
    chooseGround(dialog, 24);
    dialog.saveInfo(&campaign);
    QVERIFY(!EditorData::info.modified);
}

void EditCampaignMapTest::tellsTheSizes()
{
    CampaignData campaign = campaignOnMap(24, "m--");
    EditCampaign dialog(nullptr, &campaign);
    for (const char *trace : {"SCENARIOS SIZE A: 3", "SCENARIOS SIZE B: 3"})
        QTest::ignoreMessage(QtDebugMsg, trace);
    dialog.saveInfo(&campaign);
    chooseGround(dialog, 3);
    for (const char *trace :
         {"SCENARIOS SIZE A: 3", "SIZE OF VEC: 1", "NEW SIZE: 2", "SCENARIOS SIZE B: 2"})
        QTest::ignoreMessage(QtDebugMsg, trace);
    const NextDialog answer(answerQuestion(question, QMessageBox::Yes));
    dialog.saveInfo(&campaign);
}

QTEST_MAIN(EditCampaignMapTest)
#include "edit_campaign_map_test.moc"
