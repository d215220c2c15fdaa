#include "campaign_dialogs/edit_campaign.h"

#include "campaign_dialogs/background_preview.h"
#include "campaign_dialogs/map_choice.h"
#include "document/campaign_conversion.h"
#include "document/campaign_data.h"
#include "document/text_catalogue.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "shell/choice_box.h"
#include "shell/dialog_look.h"
#include "shell/mss_info.h"
#include "shell/readable_icon.h"
#include "shell/shown_text.h"
#include "ui_EditCampaign.h"

#include <QDebug>
#include <QDir>
#include <QMessageBox>
#include <QSignalBlocker>

namespace {

constexpr int playButtonText = 55;
constexpr int forEver = 0;

void pauseMusic()
{
    qDebug() << "MSS - PAUSE MUSIC";
    if (mss)
        mss->PauseMusic();
}

// The control turns line ends, hard spaces and the like into its own, so the text it was given
// stands as long as it shows what it showed at first.
bool storeText(const QTextEdit *edit, const QString &given, const QString &shown, QString &text)
{
    const QString edited = edit->toPlainText();
    if (edited == text || (edited == shown && text == given))
        return false;
    text = edited;
    return true;
}

} // namespace

EditCampaign::EditCampaign(QWidget *parent, CampaignData *newCampaign)
    : QDialog(parent), campaign(newCampaign), ui(std::make_unique<Ui_EditCampaign>())
{
    ui->setupUi(this);
    setWindowModality(Qt::WindowModal);
    ui->mapLabel->hide();
    ui->regionMapName->hide();
    connectControls();
    {
        const QSignalBlocker musicBlocker(ui->musicCombobox);
        const QSignalBlocker groundBlocker(ui->bgCombobox);
        fillMusic();
        fillTexts();
        if (campaign->hasMap)
            fillMaps();
        else
            fillBackgrounds();
        ui->diffCheckbox->setChecked(campaign->difficultySelectable);
        selectChoice(ui->musicCombobox, campaign->musicId);
    }
    ui->playMusicBtn->setText(textOf(EditorData::editorText, playButtonText));
    setMusicBtn(false);
    keepRightClicksOff({ui->bgCombobox, ui->musicCombobox}, this);
    fixDialog(this);
    showPreview();
}

EditCampaign::~EditCampaign()
{
    if (!mss || mss->stream == 0)
        return;
    qDebug() << "MSS - STOP MUSIC STREAM";
    mss->PauseMusic();
    mss->StopMusic();
}

void EditCampaign::connectControls()
{
    connect(ui->nameEdit, &QTextEdit::textChanged, this, &EditCampaign::nameEditChanged);
    connect(ui->descriptionEdit, &QTextEdit::textChanged, this, &EditCampaign::descrEditChanged);
    connect(ui->bgCombobox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &EditCampaign::bgSelected);
    connect(ui->musicCombobox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &EditCampaign::changeMusicSelection);
    connect(ui->playMusicBtn, &QPushButton::clicked, this, &EditCampaign::playPauseMusic);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void EditCampaign::fillMusic()
{
    for (const auto &[id, name] : EditorData::musicNames)
        ui->musicCombobox->addItem(name, id);
    ui->musicCombobox->model()->sort(0);
}

void EditCampaign::fillTexts()
{
    ui->nameEdit->setPlainText(headOf(campaign->name, longestText(TextKind::CampaignName)));
    ui->descriptionEdit->setPlainText(
        headOf(campaign->description, longestText(TextKind::CampaignDescription)));
    loadedName = ui->nameEdit->toPlainText();
    loadedDescription = ui->descriptionEdit->toPlainText();
}

// Backgrounds are numbered by their rows.
void EditCampaign::fillBackgrounds()
{
    for (const auto &[id, name] : EditorData::backgrounds)
        ui->bgCombobox->addItem(name, id);
    ui->bgCombobox->setCurrentIndex(campaign->customValue);
}

// Only maps with room for all scenarios that have one.
void EditCampaign::fillMaps()
{
    ui->bgLabel->setText(tr("Map"));
    const int room = int(scenariosWithMap(*campaign));
    for (const auto &[id, map] : EditorData::campaignInfo) {
        if (map.regionCount >= room)
            ui->bgCombobox->insertItem(id == firstMap ? 0 : ui->bgCombobox->count(), map.name, id);
    }
    selectChoice(ui->bgCombobox, campaign->mapId);
}

void EditCampaign::showPreview()
{
    if (ui->bgCombobox->currentIndex() < 0)
        return;
    const int id = choiceOf(ui->bgCombobox);
    if (campaign->hasMap)
        putBackgroundToLabel(ui->bgPixmapHolder,
                             EditorData::campaignMap(unsigned(id)).backgroundName, true,
                             unsigned(id));
    else
        putBackgroundToLabel(ui->bgPixmapHolder, nameOf(EditorData::backgrounds, id), false, 0);
}

void EditCampaign::bgSelected(int)
{
    showPreview();
}

void EditCampaign::changeMusicSelection(int)
{
    pauseMusic();
    setMusicBtn(false);
    musicPlaying = false;
}

void EditCampaign::playPauseMusic()
{
    if (musicPlaying) {
        pauseMusic();
    } else {
        const QString name = ui->musicCombobox->currentText() + QStringLiteral(".mp3");
        const QString path = getGameDir(QStringLiteral("MP3")).absoluteFilePath(name);
        qDebug() << "MSS - START MUSIC STRIC";
        if (mss)
            mss->StartMusicStream(path, forEver);
    }
    setMusicBtn(!musicPlaying);
    musicPlaying = !musicPlaying;
}

void EditCampaign::setMusicBtn(bool playing)
{
    const QStyle::StandardPixmap icon = playing ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay;
    ui->playMusicBtn->setIcon(readableIcon(style()->standardIcon(icon)));
}

void EditCampaign::nameEditChanged()
{
    keepWithin(ui->nameEdit, longestText(TextKind::CampaignName));
}

void EditCampaign::descrEditChanged()
{
    keepWithin(ui->descriptionEdit, longestText(TextKind::CampaignDescription));
}

bool EditCampaign::saveTexts(CampaignData *target)
{
    bool changed = storeText(ui->nameEdit, campaign->name, loadedName, target->name);
    changed |= storeText(ui->descriptionEdit, campaign->description, loadedDescription,
                         target->description);
    return changed;
}

void EditCampaign::saveInfo(CampaignData *target)
{
    bool changed = saveTexts(target);
    changed |= storeChoice(ui->musicCombobox, target->musicId);
    if (target->difficultySelectable != ui->diffCheckbox->isChecked()) {
        target->difficultySelectable = ui->diffCheckbox->isChecked();
        changed = true;
    }
    if (!target->hasMap)
        changed |= storeChoice(ui->bgCombobox, target->customValue);
    if (changed)
        EditorData::info.modified = true;
    if (target->hasMap)
        saveMap(target);
}

void EditCampaign::saveMap(CampaignData *target)
{
    qDebug() << "SCENARIOS SIZE A:" << target->scenarios.size();
    const auto id = unsigned(choiceOf(ui->bgCombobox));
    const bool chosen = ui->bgCombobox->currentIndex() >= 0 && id != target->mapId;
    if (chosen && QMessageBox::question(parentWidget(), tr("Save changes"),
                                        tr("Do you really want to change the background?"),
                                        QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes) {
        qDebug() << "SIZE OF VEC:" << scenariosWithMap(*target);
        moveToCampaignMap(*target, id);
        EditorData::info.modified = true;
        qDebug() << "NEW SIZE:" << target->scenarios.size();
    }
    qDebug() << "SCENARIOS SIZE B:" << target->scenarios.size();
}
