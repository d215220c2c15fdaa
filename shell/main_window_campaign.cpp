// The commands that change the campaign as a whole: its properties, and its conversion.
#include "campaign_dialogs/convert_campaign.h"
#include "campaign_dialogs/edit_campaign.h"
#include "gamedata/editor_data.h"
#include "shell/main_window.h"

void MainWindow::openCampaignProperties()
{
    EditCampaign dialog(this, &campaign);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.saveInfo(&campaign);
    showChangedCampaign();
}

void MainWindow::openConvertCampaign()
{
    ConvertCampaign dialog(this, &campaign);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.saveInfo();
    showChangedCampaign();
}

// The map may be another one, so the first region is selected. The dialogs set the modified flag.
void MainWindow::showChangedCampaign()
{
    EditorData::info.campaign = campaign.mapId;
    campaignId = campaign.mapId;
    currentRegion = 0;
    EditorData::info.region = 0;
    keepRecoveryCopy();
    refreshCampaignView();
    updateRegionLabel();
    updateWindowTitle();
}
