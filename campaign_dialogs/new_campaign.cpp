#include "campaign_dialogs/new_campaign.h"

#include "campaign_dialogs/background_preview.h"
#include "campaign_dialogs/map_choice.h"
#include "gamedata/editor_data.h"
#include "shell/dialog_look.h"
#include "ui_newcampaign.h"

namespace {

constexpr int highestOfferedLayout = 1;

bool isOffered(const CampaignInfo &map)
{
    return map.layoutType >= 0 && map.layoutType <= highestOfferedLayout;
}

} // namespace

NewCampaign::NewCampaign(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui_newcampaign>())
{
    ui->setupUi(this);
    setWindowModality(Qt::WindowModal);
    setCampaignMapList();
    fixDialog(this);
    // The preview is drawn in the size that the layout gives its label.
    layout()->activate();
    loadBgImage(EditorData::campaignMap(getSelectedItemId()).backgroundName);
    connect(ui->campaignWithMapBtn, &QRadioButton::clicked, this,
            &NewCampaign::campWithMapSelected);
    connect(ui->campaignWithoutMapBtn, &QRadioButton::clicked, this,
            &NewCampaign::campWithoutMapSelected);
    connect(ui->listWidget, &QListWidget::currentItemChanged, this,
            &NewCampaign::clickOnListboxItem);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

NewCampaign::~NewCampaign() = default;

bool NewCampaign::isCampaignWithMap()
{
    return ui->campaignWithMapBtn->isChecked();
}

unsigned int NewCampaign::getSelectedItemId()
{
    const QListWidgetItem *item = ui->listWidget->currentItem();
    return item ? item->data(idRole).toUInt() : 0;
}

void NewCampaign::loadBgImage(const QString &name)
{
    putBackgroundToLabel(ui->bgPixmapHolder, name, isCampaignWithMap(), getSelectedItemId());
}

// For those who see its label, and for screen readers.
void NewCampaign::nameList(const QString &name)
{
    ui->label->setText(name);
    ui->listWidget->setAccessibleName(name);
}

void NewCampaign::setCampaignMapList()
{
    ui->listWidget->clear();
    nameList(tr("Campaign map"));
    for (const auto &[number, map] : EditorData::campaignInfo) {
        if (!isOffered(map))
            continue;
        auto *item = new QListWidgetItem(map.name);
        item->setData(idRole, number);
        ui->listWidget->insertItem(number == firstMap ? 0 : ui->listWidget->count(), item);
    }
    ui->listWidget->setCurrentRow(0);
}

void NewCampaign::setCampaignBackgroundList()
{
    ui->listWidget->clear();
    nameList(tr("Campaign background"));
    for (const auto &[number, name] : EditorData::backgrounds) {
        auto *item = new QListWidgetItem(name, ui->listWidget);
        item->setData(idRole, number);
    }
    ui->listWidget->setCurrentRow(0);
}

void NewCampaign::campWithMapSelected()
{
    setCampaignMapList();
}

void NewCampaign::campWithoutMapSelected()
{
    setCampaignBackgroundList();
}

void NewCampaign::clickOnListboxItem(QListWidgetItem *current, QListWidgetItem *)
{
    if (!current)
        return; // the list was just cleared
    const int id = current->data(idRole).toInt();
    loadBgImage(ui->campaignWithoutMapBtn->isChecked()
                    ? nameOf(EditorData::backgrounds, id)
                    : EditorData::campaignMap(unsigned(id)).backgroundName);
}
