// The way into the scenario dialog and back.
#include "gamedata/editor_data.h"
#include "scenario/scenario_info.h"
#include "shell/campaign_region_item.h"
#include "shell/main_window.h"
#include "shell/wait_cursor.h"

void MainWindow::openScenarioProperties()
{
    showScenarioPropertiesDlg();
}

void MainWindow::showScenarioPropertiesDlg()
{
    WaitCursor cursor; // a list of thousands is filled
    ScenarioInfo dialog(this, &campaign, EditorData::info.campaign, EditorData::info.region);
    cursor.restore();
    scenarioDialog = &dialog;
    const bool accepted = dialog.exec() == QDialog::Accepted;
    scenarioDialog = nullptr;
    if (!accepted)
        return;
    const bool stored = dialog.saveScenarioInfo();
    if (stored || dialog.hasChanged()) {
        EditorData::info.modified = true;
        updateWindowTitle();
    }
    campaign = std::move(dialog.editedCampaign());
    campaign.scenarioCount = quint32(campaign.scenarios.size());
    EditorData::info.region = dialog.getCurrentRegion();
    keepRecoveryCopy();
    if (!campaign.hasMap)
        return;
    for (CampaignRegionItem *item : qAsConst(regionItems)) {
        if (item->regionIndex < campaign.scenarios.size())
            item->updateImage(&campaign.scenarios[item->regionIndex]);
    }
}
