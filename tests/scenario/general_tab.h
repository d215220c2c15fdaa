// The scenario dialog with its first tab in front, and what its tests do there: read the list of
// prerequisites, click on its boxes, read the stored bits.
#pragma once

#include "scenario/scenario_general.h"
#include "tests/scenario/scenario_fixture.h"

#include <QLabel>
#include <QStyleOptionViewItem>

class GeneralTab : public OpenScenarioDialog
{
public:
    using OpenScenarioDialog::OpenScenarioDialog;

    ScenarioGeneral *general() { return dialog.findChild<ScenarioGeneral *>(); }

    // Other tabs have controls of the same names: those of this tab are looked for first.
    template<typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = general()->findChild<Widget *>(name);
        return widget ? widget : OpenScenarioDialog::find<Widget>(name);
    }

    void click(const char *button) { clickOn(find<QWidget>(button)); }

    QListWidget *prerequisites() { return find<QListWidget>("prereqListWidget"); }

    // Null if the scenario isn't listed.
    QListWidgetItem *prerequisite(int scenario)
    {
        QListWidget *shown = prerequisites();
        for (int row = 0; row < shown->count(); ++row) {
            if (shown->item(row)->data(Qt::UserRole).toInt() == scenario)
                return shown->item(row);
        }
        return nullptr;
    }

    // Clicks on the box in front of a scenario; does nothing if it isn't listed.
    void clickOnBoxOf(int scenario)
    {
        QListWidget *shown = prerequisites();
        QListWidgetItem *item = prerequisite(scenario);
        if (!item)
            return;
        shown->scrollToItem(item);
        QStyleOptionViewItem option;
        option.initFrom(shown);
        option.widget = shown;
        option.rect = shown->visualItemRect(item);
        option.features =
            QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.checkState = item->checkState();
        option.text = item->text();
        const QRect box =
            shown->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, shown);
        clickOn(shown->viewport(), box.center());
    }

    // The list as it is shown: "3 checked", "4 implied" (checked, and not to be changed), "5 free".
    QStringList shownPrerequisites()
    {
        QStringList rows;
        for (int row = 0; row < prerequisites()->count(); ++row)
            rows << stateOf(*prerequisites()->item(row));
        return rows;
    }

    // The direct prerequisites that are stored for a scenario, rising.
    QList<int> storedFor(int scenario)
    {
        const QBitArray &bits = copy().scenarios[std::size_t(scenario)].prerequisites;
        QList<int> stored;
        for (int bit = 0; bit < bits.size(); ++bit) {
            if (bits.testBit(bit))
                stored << bit;
        }
        return stored;
    }

    QString labelText(const char *name) { return find<QLabel>(name)->text(); }

private:
    static QString stateOf(const QListWidgetItem &item)
    {
        const bool checked = item.checkState() == Qt::Checked;
        const bool enabled = item.flags() & Qt::ItemIsEnabled;
        const QString state =
            checked ? (enabled ? "checked" : "implied") : (enabled ? "free" : "neither");
        return item.data(Qt::UserRole).toString() + ' ' + state;
    }
};

// Makes a scenario require these, and nothing else.
inline void require(CampaignData &campaign, int scenario, const QList<int> &required)
{
    QBitArray &bits = campaign.scenarios[std::size_t(scenario)].prerequisites;
    bits.fill(false);
    for (const int bit : required) {
        if (bit >= bits.size())
            bits.resize(bit + 1);
        bits.setBit(bit);
    }
}

// Gives the tiny game's map room for campaigns of more scenarios: "Reach 3", "Reach 4" ...
inline void addRegions(int count)
{
    CampaignInfo &map = EditorData::campaignInfo[homeMap];
    for (int region = map.regions.size(); region < count; ++region) {
        map.regions.append(CampaignRegion());
        map.regions.last().name = "Reach " + QString::number(region);
    }
    map.regionCount = map.regions.size();
}

// One scenario on a map, one without.
inline CampaignData twoScenarios(bool hasMap = true)
{
    CampaignData campaign = campaignOf(hasMap, {"isle", ""});
    ScenarioData &first = campaign.scenarios[0];
    first.regionColor = 3;
    first.defaultDifficulty = 4;
    first.regionText = "Beware of the marsh";
    return campaign;
}
