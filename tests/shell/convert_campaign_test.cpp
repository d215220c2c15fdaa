// The dialog that turns a campaign into one of the other kind.
#include "campaign_dialogs/convert_campaign.h"
#include "shell/custom_widgets.h"
#include "tests/shell/campaign_dialog_support.h"

class ConvertCampaignTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void formOffersBackgroundsToACampaignOnAMap();
    void formOffersMapsToACampaignOnABackground();
    void nothingIsCut();
    void sizeFollowsTheContents_data();
    void sizeFollowsTheContents();
    void previewAndCountFollowTheSelection();
    void previewOfABackgroundFollowsTheSelection();
    void warnsWhereScenariosWouldBeLost_data();
    void warnsWhereScenariosWouldBeLost();
    void neverWarnsOnTheWayToABackground();
    void warningLeavesTheLayoutAlone();
    void rightClickLeavesTheSelection();
    void asksBeforeConverting_data();
    void asksBeforeConverting();
    void convertsToAMap_data();
    void convertsToAMap();
    void convertsToABackground_data();
    void convertsToABackground();
    void refusedChangesNothing_data();
    void refusedChangesNothing();
    void addsAllThatRequireAScenario();
    void buttonsCloseTheDialog();

private:
    std::unique_ptr<WindowFixture> fixture;
};

namespace {

const QString plainQuestion = "Do you really want to convert the campaign to different type?";
const QString question = plainQuestion + " Some scenarios will be deleted!";
const QString warning = "Some scenarios will be deleted!";

QListWidget *targets(const ConvertCampaign &dialog)
{
    return control<QListWidget>(dialog, "listWidget");
}

QVector<int> idsOf(const ConvertCampaign &dialog)
{
    QVector<int> ids;
    for (int i = 0; i < targets(dialog)->count(); ++i)
        ids << targets(dialog)->item(i)->data(256).toInt();
    return ids;
}

void choose(ConvertCampaign &dialog, int id)
{
    targets(dialog)->setCurrentRow(idsOf(dialog).indexOf(id));
}

} // namespace

void ConvertCampaignTest::formOffersBackgroundsToACampaignOnAMap()
{
    CampaignData campaign = campaignOnMap(24, "m-m");
    ConvertCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    QCOMPARE(dialog.objectName(), QString("ConvertCampaign"));
    QCOMPARE(dialog.windowTitle(), QString("Convert Campaign"));
    QCOMPARE(textOf(dialog, "convertLabel"), QString("Convert to campaign without map"));
    QCOMPARE(textOf(dialog, "bgLabel"), QString("Background"));
    QCOMPARE(textOf(dialog, "scLabel"), QString("Scenario count:"));
    QCOMPARE(textOf(dialog, "scCountLabel"), QString("2"));
    QVERIFY(!control<QLabel>(dialog, "regLabel")->isVisible());
    QVERIFY(!control<QLabel>(dialog, "regCountLabel")->isVisible());
    QCOMPARE(idsOf(dialog), QVector<int>({0, 1}));
    QCOMPARE(targets(dialog)->item(1)->text(), QString("plaintwo.pcx"));
    QCOMPARE(targets(dialog)->currentRow(), 0);
    QVERIFY(control<CustomListWidget>(dialog, "listWidget"));
}

void ConvertCampaignTest::formOffersMapsToACampaignOnABackground()
{
    CampaignData campaign = campaignOnBackground(0, "mm-m");
    ConvertCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    QCOMPARE(textOf(dialog, "convertLabel"), QString("Convert to campaign with map"));
    QCOMPARE(textOf(dialog, "bgLabel"), QString("Map"));
    QCOMPARE(textOf(dialog, "scCountLabel"), QString("3"));
    QCOMPARE(textOf(dialog, "regLabel"), QString("Region count:"));
    QCOMPARE(textOf(dialog, "regCountLabel"), QString("3"));
    QVERIFY(control<QLabel>(dialog, "regCountLabel")->isVisible());
    QCOMPARE(idsOf(dialog), QVector<int>({24, 3, 5, 6, 7, 30}));
    QCOMPARE(targets(dialog)->item(0)->text(), QString("Home Shores"));
    QCOMPARE(targets(dialog)->item(5)->text(), QString("Hidden Realm"));
    QCOMPARE(targets(dialog)->currentRow(), 0);
}

void ConvertCampaignTest::nothingIsCut()
{
    CampaignData campaign = campaignOnBackground(0, "mmmm");
    ConvertCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
        QVERIFY2(label->height() >= label->sizeHint().height(), qPrintable(label->objectName()));
    }
}

void ConvertCampaignTest::sizeFollowsTheContents_data()
{
    QTest::addColumn<bool>("onMap");
    QTest::newRow("on a map") << true;
    QTest::newRow("on a background") << false;
}

void ConvertCampaignTest::sizeFollowsTheContents()
{
    QFETCH(bool, onMap);
    CampaignData campaign = onMap ? campaignOnMap(24, "m-m") : campaignOnBackground(0, "mmmm");
    ConvertCampaign dialog(nullptr, &campaign);
    const QSize size = dialog.size();
    QCOMPARE(dialog.minimumSize(), size);
    QCOMPARE(dialog.maximumSize(), size);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    dialog.resize(521, 472);
    dialog.adjustSize();
    QCOMPARE(dialog.size(), size);
}

void ConvertCampaignTest::previewAndCountFollowTheSelection()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    ConvertCampaign dialog(nullptr, &campaign);
    QCOMPARE(previewIn(dialog).height(), 350);
    QCOMPARE(previewIn(dialog).pixelColor(200, 200), tiny::backgroundColour("backhome.pcx"));
    QVERIFY(show(dialog));
    targets(dialog)->setFocus();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Down);
    QCOMPARE(textOf(dialog, "regCountLabel"), QString("2"));
    QCOMPARE(previewIn(dialog).pixelColor(200, 200), tiny::backgroundColour("backtwo.pcx"));
    QCOMPARE(previewIn(dialog).pixelColor(115 * 350 / 600, 110 * 350 / 600),
             tiny::readyMadeColour(1, 1, 2));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Down);
    QCOMPARE(textOf(dialog, "regCountLabel"), QString("0"));
}

void ConvertCampaignTest::previewOfABackgroundFollowsTheSelection()
{
    CampaignData campaign = campaignOnMap(24, "m--");
    ConvertCampaign dialog(nullptr, &campaign);
    QCOMPARE(previewIn(dialog).pixelColor(0, 100), tiny::backgroundColour("plainone.pcx"));
    choose(dialog, 1);
    QCOMPARE(previewIn(dialog).pixelColor(0, 100), tiny::backgroundColour("plaintwo.pcx"));
}

void ConvertCampaignTest::warnsWhereScenariosWouldBeLost_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("warns");
    QTest::newRow("as many as regions") << "m-m" << 3 << false;
    QTest::newRow("one more") << "mm-m" << 3 << true;
    QTest::newRow("fewer") << "m---" << 3 << false;
    QTest::newRow("one without a region") << "m" << 5 << true;
    QTest::newRow("none without a region") << "-" << 5 << false;
}

void ConvertCampaignTest::warnsWhereScenariosWouldBeLost()
{
    QFETCH(QString, maps);
    QFETCH(int, target);
    QFETCH(bool, warns);
    CampaignData campaign = campaignOnBackground(0, maps);
    ConvertCampaign dialog(nullptr, &campaign);
    choose(dialog, target);
    QCOMPARE(textOf(dialog, "warningLabel"), warns ? warning : QString());
    choose(dialog, 24); // with three regions
    QCOMPARE(textOf(dialog, "warningLabel"), QString());
}

// Though all three go: none is a root.
void ConvertCampaignTest::neverWarnsOnTheWayToABackground()
{
    CampaignData campaign = markedCampaign("mmm", {"001", "100", "010"});
    campaign.mapId = 24;
    ConvertCampaign dialog(nullptr, &campaign);
    QCOMPARE(textOf(dialog, "warningLabel"), QString());
    choose(dialog, 1);
    QCOMPARE(textOf(dialog, "warningLabel"), QString());
    dialog.updateWarningLabel(0);
    QCOMPARE(textOf(dialog, "warningLabel"), QString());
}

void ConvertCampaignTest::warningLeavesTheLayoutAlone()
{
    CampaignData campaign = campaignOnBackground(0, "mmm");
    ConvertCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    const QRect list = targets(dialog)->geometry();
    const QSize size = dialog.size();
    choose(dialog, 3);
    QCOMPARE(textOf(dialog, "warningLabel"), warning);
    QCoreApplication::processEvents();
    QCOMPARE(targets(dialog)->geometry(), list);
    QCOMPARE(dialog.size(), size);
}

void ConvertCampaignTest::rightClickLeavesTheSelection()
{
    CampaignData campaign = campaignOnBackground(0, "mmm");
    ConvertCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    const auto click = [&](Qt::MouseButton button) {
        clickOn(targets(dialog)->viewport(),
                targets(dialog)->visualItemRect(targets(dialog)->item(1)).center(), button);
    };
    click(Qt::RightButton);
    QCOMPARE(targets(dialog)->currentRow(), 0);
    click(Qt::LeftButton);
    QCOMPARE(targets(dialog)->currentRow(), 1);
}

void ConvertCampaignTest::asksBeforeConverting_data()
{
    QTest::addColumn<bool>("onMap");
    QTest::addColumn<QString>("maps");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("text");
    QTest::newRow("room for all") << false << "mm" << 3 << plainQuestion;
    QTest::newRow("too few regions") << false << "mmm" << 3 << question;
    QTest::newRow("to a background") << true << "mmm" << 1 << plainQuestion;
    QTest::newRow("to a background without a map") << true << "---" << 1 << plainQuestion;
}

void ConvertCampaignTest::asksBeforeConverting()
{
    QFETCH(bool, onMap);
    QFETCH(QString, maps);
    QFETCH(int, target);
    QFETCH(QString, text);
    CampaignData campaign = onMap ? campaignOnMap(24, maps) : campaignOnBackground(0, maps);
    ConvertCampaign dialog(nullptr, &campaign);
    choose(dialog, target);
    const NextDialog answer(answerQuestion(text, QMessageBox::Yes));
    dialog.saveInfo();
    QVERIFY(EditorData::info.modified);
    QCOMPARE(campaign.hasMap, !onMap);
}

void ConvertCampaignTest::convertsToAMap_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<int>("target");
    QTest::addColumn<QVector<int>>("places");
    QTest::newRow("empty regions are added") << "m" << 24 << QVector<int>{0, -1, -1};
    QTest::newRow("cut at the regions") << "m-mmm" << 24 << QVector<int>{0, 2, 3};
    QTest::newRow("the map chosen") << "mmm" << 3 << QVector<int>{0, 1};
}

void ConvertCampaignTest::convertsToAMap()
{
    QFETCH(QString, maps);
    QFETCH(int, target);
    QFETCH(QVector<int>, places);
    CampaignData campaign = campaignOnBackground(0, maps);
    const CampaignData before = campaign;
    ConvertCampaign dialog(nullptr, &campaign);
    choose(dialog, target);
    const NextDialog answer(answerQuestion(
        textOf(dialog, "warningLabel").isEmpty() ? plainQuestion : question, QMessageBox::Yes));
    dialog.saveInfo();
    QCOMPARE(int(campaign.mapId), target);
    QCOMPARE(placesIn(before, campaign), places);
    QCOMPARE(campaign.scenarioCount, quint32(places.size()));
}

void ConvertCampaignTest::convertsToABackground_data()
{
    QTest::addColumn<QString>("maps");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QVector<int>>("places");
    QTest::newRow("roots and what they lead to")
        << "m-m" << QStringList{"000", "000", "100"} << QVector<int>{0, 2};
    QTest::newRow("no root") << "mmm" << QStringList{"001", "100", "010"} << QVector<int>{-1};
    QTest::newRow("no map") << "---" << QStringList{"000", "000", "000"} << QVector<int>{-1};
}

void ConvertCampaignTest::convertsToABackground()
{
    QFETCH(QString, maps);
    QFETCH(QStringList, rows);
    QFETCH(QVector<int>, places);
    CampaignData campaign = markedCampaign(maps, rows);
    campaign.mapId = 24;
    const CampaignData before = campaign;
    ConvertCampaign dialog(nullptr, &campaign);
    choose(dialog, 1);
    const NextDialog answer(answerQuestion(plainQuestion, QMessageBox::Yes));
    dialog.saveInfo();
    QCOMPARE(int(campaign.mapId), 0);
    QCOMPARE(campaign.customValue, 1);
    QCOMPARE(placesIn(before, campaign), places);
    QCOMPARE(campaign.scenarioCount, quint32(places.size()));
}

void ConvertCampaignTest::refusedChangesNothing_data()
{
    QTest::addColumn<bool>("onMap");
    QTest::newRow("on a map") << true;
    QTest::newRow("on a background") << false;
}

void ConvertCampaignTest::refusedChangesNothing()
{
    QFETCH(bool, onMap);
    CampaignData campaign = onMap ? campaignOnMap(24, "m-m") : campaignOnBackground(0, "m-m");
    const CampaignData before = campaign;
    ConvertCampaign dialog(nullptr, &campaign);
    const NextDialog answer(answerQuestion(plainQuestion, QMessageBox::No));
    dialog.saveInfo();
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(campaign.hasMap, onMap);
    QCOMPARE(campaign.mapId, before.mapId);
    QCOMPARE(campaign.customValue, before.customValue);
    QCOMPARE(campaign.scenarioCount, before.scenarioCount);
    QCOMPARE(placesIn(before, campaign), placesIn(before, before));
    QCOMPARE(rowsOf(campaign), rowsOf(before));
}

void ConvertCampaignTest::addsAllThatRequireAScenario()
{
    CampaignData campaign = markedCampaign("mmm", {"000", "100", "010"});
    campaign.mapId = 24;
    ConvertCampaign dialog(nullptr, &campaign);
    std::set<ScenarioData *> kept;
    dialog.addAllWithPrecondition(0, kept);
    QVERIFY(kept == std::set<ScenarioData *>({&campaign.scenarios[1], &campaign.scenarios[2]}));
}

void ConvertCampaignTest::buttonsCloseTheDialog()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    ConvertCampaign dialog(nullptr, &campaign);
    {
        const NextDialog answer([&](QWidget *) {
            QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
            press(dialog, QDialogButtonBox::Ok);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    ConvertCampaign other(nullptr, &campaign);
    const NextDialog answer([&](QWidget *) { press(other, QDialogButtonBox::Cancel); });
    QCOMPARE(other.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(ConvertCampaignTest)
#include "convert_campaign_test.moc"
