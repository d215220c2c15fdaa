// Texts of strangers in the dialogs of scenarios and campaigns: shown as the plain text that they
// are, in windows that don't outgrow the screen, and soon.
#include "campaign_dialogs/edit_campaign.h"
#include "gamedata/locale_codec.h"
#include "scenario/scenario_info.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/shown_texts.h"

#include <QListWidget>
#include <QTabWidget>
#include <QTextEdit>

class ShownTextsTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init() { reset(); }
    void cleanup() { window.reset(); }

    void scenarioDialog_data() { addTexts(); }
    void scenarioDialog();
    void campaignDialog_data() { addTexts(); }
    void campaignDialog();
    void mainWindow_data() { addTexts(); }
    void mainWindow();
    void textsStayAsTheyAreUnlessEdited_data() { addTexts(); }
    void textsStayAsTheyAreUnlessEdited();

private:
    CampaignData campaignWith(const QString &text) const
    {
        return textsEverywhere(campaignWithMaps(), text);
    }
};

void ShownTextsTest::scenarioDialog()
{
    QFETCH(QString, text);
    CampaignData usual = campaignWith("Ash");
    const QSize usualSize = ScenarioInfo(nullptr, &usual, 24, 2).size();
    const SoonDone soon;
    CampaignData campaign = campaignWith(text);
    ScenarioInfo dialog(nullptr, &campaign, 24, 2);
    bringOnShow(dialog);
    auto *tabs = childOf<QTabWidget>(&dialog, "tabWidget");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        checkLabels(&dialog);
        checkSize(&dialog, usualSize);
    }
    tabs->setCurrentIndex(0);
    for (const char *name : {"listWidget", "prereqListWidget"}) {
        auto *list = childOf<QListWidget>(&dialog, name);
        QVERIFY(list->count() >= 2);
        for (int row = 0; row < list->count(); ++row) {
            const QString shown = list->item(row)->text();
            QVERIFY(shown.startsWith(isOrdinaryLine(text) ? text : hostile::mark));
            checkItem(list, list->model()->index(row, 0));
        }
    }
    for (const char *name : {"scenarioNameLabelMain", "mapFileIdentifier"}) {
        auto *label = childOf<QLabel>(&dialog, name);
        QCOMPARE(label->text(), text);
        checkToolTip(label, label->rect().center());
    }
}

void ShownTextsTest::campaignDialog()
{
    QFETCH(QString, text);
    CampaignData usual = campaignWith("Ash");
    const QSize usualSize = EditCampaign(nullptr, &usual).size();
    const SoonDone soon;
    CampaignData campaign = campaignWith(text);
    EditCampaign dialog(nullptr, &campaign);
    bringOnShow(dialog);
    checkLabels(&dialog);
    checkSize(&dialog, usualSize);
    for (const char *name : {"nameEdit", "descriptionEdit"}) {
        auto *edit = childOf<QTextEdit>(&dialog, name);
        QVERIFY(!edit->acceptRichText());
        QVERIFY(edit->toPlainText().startsWith(hostile::mark));
    }
}

void ShownTextsTest::mainWindow()
{
    QFETCH(QString, text);
    const SoonDone soon;
    CampaignData campaign = campaignWith(text);
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.epilogues = {}; // or it would be more than a file may hold
    save(campaign);
    const QSize usual = window->size();
    load();
    QVERIFY(show(*window));
    checkLabels(window.get());
    QCOMPARE(window->size(), usual);
}

void ShownTextsTest::textsStayAsTheyAreUnlessEdited()
{
    QFETCH(QString, text);
    CampaignData campaign = campaignWith(text);
    EditCampaign edit(nullptr, &campaign);
    edit.saveInfo(&campaign);
    QVERIFY(campaign.name == text && campaign.description == text);
    ScenarioInfo dialog(nullptr, &campaign, 24, 2);
    dialog.saveScenarioInfo();
    const ScenarioData &after = dialog.editedCampaign().scenarios[2];
    QVERIFY(after.regionText == text);
    QVERIFY(after.mapFileName == text);
    for (const auto &story : after.prologues)
        QVERIFY(story && story->text == text);
}

QTEST_MAIN(ShownTextsTest)
#include "shown_texts_test.moc"
