#include "campaign_dialogs/convert_campaign.h"

#include "campaign_dialogs/background_preview.h"
#include "campaign_dialogs/map_choice.h"
#include "document/campaign_conversion.h"
#include "document/campaign_data.h"
#include "document/prerequisites.h"
#include "gamedata/editor_data.h"
#include "shell/dialog_look.h"
#include "shell/wait_cursor.h"
#include "ui_ConvertCampaign.h"

#include <QMessageBox>

#include <algorithm>

namespace {

unsigned int regionCountOf(unsigned int mapId)
{
    return unsigned(std::max(0, EditorData::campaignMap(mapId).regionCount));
}

} // namespace

ConvertCampaign::ConvertCampaign(QWidget *parent, CampaignData *newCampaign)
    : QDialog(parent), campaign(newCampaign), ui(std::make_unique<Ui_ConvertCampaign>())
{
    ui->setupUi(this);
    ui->scCountLabel->setText(QString::number(scenariosWithMap(*campaign)));
    if (campaign->hasMap)
        fillBackgrounds();
    else
        fillMaps();
    ui->listWidget->setCurrentRow(0);
    // The warning's line keeps its room while it is empty.
    ui->warningLabel->setMinimumHeight(ui->warningLabel->sizeHint().height());
    adjustSize();
    fixDialog(this);
    connect(ui->listWidget, &QListWidget::itemSelectionChanged, this,
            &ConvertCampaign::changeSelection);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    changeSelection();
}

ConvertCampaign::~ConvertCampaign() = default;

void ConvertCampaign::fillBackgrounds()
{
    ui->convertLabel->setText(tr("Convert to campaign without map"));
    ui->regLabel->hide();
    ui->regCountLabel->hide();
    for (const auto &[id, name] : EditorData::backgrounds)
        addTarget(ui->listWidget->count(), name, id);
}

void ConvertCampaign::fillMaps()
{
    ui->convertLabel->setText(tr("Convert to campaign with map"));
    ui->bgLabel->setText(tr("Map"));
    ui->listWidget->setSortingEnabled(false);
    for (const auto &[id, map] : EditorData::campaignInfo)
        addTarget(id == firstMap ? 0 : ui->listWidget->count(), map.name, id);
}

void ConvertCampaign::addTarget(int row, const QString &name, int id)
{
    auto *item = new QListWidgetItem(name);
    item->setData(idRole, id);
    ui->listWidget->insertItem(row, item);
}

void ConvertCampaign::changeSelection()
{
    const QListWidgetItem *item = ui->listWidget->currentItem();
    if (!item)
        return;
    const unsigned int id = item->data(idRole).toUInt();
    showTarget(id);
    updateWarningLabel(id);
}

void ConvertCampaign::showTarget(unsigned int id)
{
    if (campaign->hasMap) {
        putBackgroundToLabel(ui->bgPixmapHolder, nameOf(EditorData::backgrounds, int(id)), false,
                             0);
        return;
    }
    ui->regCountLabel->setText(QString::number(regionCountOf(id)));
    putBackgroundToLabel(ui->bgPixmapHolder, EditorData::campaignMap(id).backgroundName, true, id);
}

bool ConvertCampaign::losesScenarios(unsigned int selectedId) const
{
    return !campaign->hasMap && scenariosWithMap(*campaign) > regionCountOf(selectedId);
}

void ConvertCampaign::updateWarningLabel(unsigned int selectedId)
{
    ui->warningLabel->setText(losesScenarios(selectedId) ? tr("Some scenarios will be deleted!")
                                                         : QString());
}

void ConvertCampaign::addAllWithPrecondition(int index, std::set<ScenarioData *> &kept)
{
    ::addAllWithPrecondition(*campaign, index, kept);
}

bool ConvertCampaign::isConfirmed(unsigned int selectedId)
{
    const QString text =
        losesScenarios(selectedId)
            ? tr("Do you really want to convert the campaign to different type? Some scenarios "
                 "will be deleted!")
            : tr("Do you really want to convert the campaign to different type?");
    return QMessageBox::question(parentWidget(), tr("Save changes"), text,
                                 QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void ConvertCampaign::saveInfo()
{
    const QListWidgetItem *item = ui->listWidget->currentItem();
    if (!item)
        return;
    const unsigned int id = item->data(idRole).toUInt();
    if (!isConfirmed(id))
        return;
    const WaitCursor cursor;
    EditorData::info.modified = true;
    if (campaign->hasMap)
        convertToBackground(*campaign, id);
    else
        convertToCampaignMap(*campaign, id);
}
