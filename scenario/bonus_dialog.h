// Makes or changes one row of the bonus table: eight kinds of bonus, a page for each.
//
// All pages are filled when the dialog opens; the radio buttons choose which one shows, and that
// one is what updateBonus writes.
#pragma once

#include <QDialog>

#include <array>
#include <memory>

class BonusCreatureDlg;
class QTableWidgetItem;
class ScenarioData;
class Ui_bonus_dialog;
class bonus_multibox_dlg;
class bonus_value_dlg;
enum class BonusType : unsigned char;

class BonusDialog : public QDialog
{
    Q_OBJECT

public:
    // `item` is the row to edit, null for a new one. The dialog only reads it.
    BonusDialog(QWidget *parent, ScenarioData *scenario, unsigned int campaignMap,
                unsigned int player, QTableWidgetItem *item);
    ~BonusDialog() override;

    // The kind on show, as it is stored.
    int getBonusType();
    // Writes the page on show into a row's item: the record under Qt::UserRole, its type as
    // unsigned char under the next role, and the text. The item need not stand in a table.
    void updateBonus(QTableWidgetItem *item);

private slots:
    void clickSpell();
    void clickCreature();
    void clickBuilding();
    void clickArtifacts();
    void clickScroll();
    void clickPrimSkills();
    void clickSecSkills();
    void clickResources();
    // Primary skills that are all 0 can't be accepted.
    void checkPrimSkillOkStatus(int value);

private:
    struct Kind;
    static const std::array<Kind, 8> &kinds(); // by BonusType

    void addPages(QTableWidgetItem *item);
    template<typename Page>
    Page *addPage(BonusType type);
    void alignPages();
    void initSlotsAndSignals();
    void setOkEnabled(bool enabled);
    void showPage(BonusType type);
    // For all kinds whose page can't be wrong.
    void choosePage(BonusType type);

    ScenarioData *scenario;   // not owned
    unsigned int campaignMap; // key of EditorData::campaignInfo
    unsigned int player;
    const std::unique_ptr<Ui_bonus_dialog> ui;
    bonus_multibox_dlg *spellPage = nullptr; // Qt owns these eight
    BonusCreatureDlg *creaturePage = nullptr;
    bonus_multibox_dlg *buildingPage = nullptr;
    bonus_multibox_dlg *artifactPage = nullptr;
    bonus_multibox_dlg *scrollPage = nullptr;
    bonus_value_dlg *primSkillPage = nullptr;
    bonus_multibox_dlg *secSkillPage = nullptr;
    bonus_value_dlg *resourcePage = nullptr;
};
