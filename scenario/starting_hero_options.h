// The editor of start options for heroes: up to three offers of a hero for a player.
//
// Both items of a row hold the same StartingHero under Qt::UserRole. No hero stands in two rows.
#pragma once

#include "scenario/option_page.h"

#include <memory>

class ScenarioInfo;
class Ui_StartingHeroOptions;
struct StartingHero;
struct StartingHeroSet;

class StartingHeroOptions : public OptionPage
{
    Q_OBJECT

public:
    explicit StartingHeroOptions(QWidget *parent);
    ~StartingHeroOptions() override;

    void initInfo(ScenarioInfo *info, ScenarioData *scenario, unsigned int campaignMap);
    void saveScenarioInfo(StartingHeroSet *set);
    // Removes the rows that the scenario's map doesn't allow. A row behind one of a player whom no
    // human can play may wait for the next time.
    void validateOptions();
    // Lets a row be added exactly if there is room for it and a player who can take a hero.
    void checkAdd(ScenarioData *scenario, QTableWidgetItem *item);

private:
    void addItem() override;
    void openEditMenu(QTableWidgetItem *item) override;
    void deleteItem() override;
    bool isAllowed(const StartingHero &option) const;

    ScenarioInfo *info = nullptr; // not owned
    const std::unique_ptr<Ui_StartingHeroOptions> ui;
};
