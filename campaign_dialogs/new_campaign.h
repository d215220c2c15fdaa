// Asks what a new campaign rests on: a campaign map, or a background without regions.
#pragma once

#include <QDialog>

#include <memory>

class QListWidgetItem;
class Ui_newcampaign;

class NewCampaign : public QDialog
{
    Q_OBJECT

public:
    explicit NewCampaign(QWidget *parent);
    ~NewCampaign() override;

    bool isCampaignWithMap();
    // A campaign map's number or a background's, as isCampaignWithMap tells.
    unsigned int getSelectedItemId();

    void loadBgImage(const QString &name);
    void setCampaignMapList();
    void setCampaignBackgroundList();

private slots:
    void campWithMapSelected();
    void campWithoutMapSelected();
    void clickOnListboxItem(QListWidgetItem *current, QListWidgetItem *previous);

private:
    void nameList(const QString &name);

    const std::unique_ptr<Ui_newcampaign> ui;
};
