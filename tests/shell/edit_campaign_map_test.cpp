// Another campaign map chosen in the campaign's properties: the question, and what follows.
#include "campaign_dialogs/edit_campaign.h"
#include "tests/shell/campaign_dialog_support.h"

#include <QCheckBox>
#include <QTextEdit>

class EditCampaignMapTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

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

const QString question = "Do you really want to change the background?";

void chooseMap(const EditCampaign &dialog, int id)
{
    auto *box = control<QComboBox>(dialog, "bgCombobox");
    box->setCurrentIndex(box->findData(id));
}

} // namespace

void EditCampaignMapTest::scenariosMoveToTheNewMap()
{
    CampaignData campaign = campaignOnMap(24, "-mm");
    campaign.scenarios[2].prerequisites.setBit(1);
    const CampaignData before = campaign;
    EditCampaign dialog(nullptr, &campaign);
    chooseMap(dialog, 3);
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
    chooseMap(dialog, 3);
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
    chooseMap(dialog, 3);
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
    chooseMap(dialog, 3);
    chooseMap(dialog, 24);
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
    chooseMap(dialog, 3);
    for (const char *trace :
         {"SCENARIOS SIZE A: 3", "SIZE OF VEC: 1", "NEW SIZE: 2", "SCENARIOS SIZE B: 2"})
        QTest::ignoreMessage(QtDebugMsg, trace);
    const NextDialog answer(answerQuestion(question, QMessageBox::Yes));
    dialog.saveInfo(&campaign);
}

QTEST_MAIN(EditCampaignMapTest)
#include "edit_campaign_map_test.moc"
