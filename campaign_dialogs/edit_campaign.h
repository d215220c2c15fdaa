// The properties of the campaign as a whole: name, description, music, and what it stands on.
//
// The campaign is read when the dialog is made and changed by saveInfo alone. What nobody edited
// stays exact: texts that the controls show with other line ends or cut, and numbers for which the
// lists have no row.
#pragma once

#include <QDialog>

#include <memory>

class CampaignData;
class Ui_EditCampaign;

class EditCampaign : public QDialog
{
    Q_OBJECT

public:
    EditCampaign(QWidget *parent, CampaignData *campaign);
    // Stops the music.
    ~EditCampaign() override;

    // Stores what differs and sets the modified flag if anything does. Another campaign map is a
    // matter of the user's consent, asked for here: scenarios move to other regions.
    void saveInfo(CampaignData *target);
    void setMusicBtn(bool playing);

private slots:
    void bgSelected(int index);
    void changeMusicSelection(int index);
    void playPauseMusic();
    void nameEditChanged();
    void descrEditChanged();

private:
    void fillMusic();
    void fillBackgrounds();
    void fillMaps();
    void fillTexts();
    void showPreview();
    void connectControls();
    bool saveTexts(CampaignData *target);
    void saveMap(CampaignData *target);

    CampaignData *campaign; // the document, not owned
    bool musicPlaying = false;
    const std::unique_ptr<Ui_EditCampaign> ui;
    QString loadedName; // as the controls show them
    QString loadedDescription;
};
