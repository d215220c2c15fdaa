// The list of prerequisites: what may be checked, and what a click does to the graph. Only direct
// prerequisites are stored; those implied by one are shown checked and disabled.
#include "document/campaign_data.h"
#include "document/prerequisites.h"
#include "scenario/naming.h"
#include "scenario/scenario_general.h"
#include "shell/shown_text.h"
#include "ui_scenarioGeneral.h"

namespace {

constexpr int indexRole = Qt::UserRole;

// Null if the scenario isn't listed.
QListWidgetItem *itemOf(const QListWidget &list, unsigned int index)
{
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(indexRole).toUInt() == index)
            return list.item(row);
    }
    return nullptr;
}

// Checks an item, which a click may take away again only if it is a direct prerequisite.
void check(QListWidgetItem *item, bool direct)
{
    if (!item)
        return;
    item->setFlags(direct ? item->flags() | Qt::ItemIsEnabled : item->flags() & ~Qt::ItemIsEnabled);
    item->setCheckState(Qt::Checked);
}

} // namespace

void ScenarioGeneral::addPrerequisiteUI()
{
    if (!campaign->hasMap)
        return;
    ui->prereqListWidget->clear();
    if (!scenario->mapHeader)
        return;
    const QBitArray required = requiredBy(*campaign, region);
    for (unsigned int i = 0; i < campaign->scenarios.size(); ++i) {
        if (i == region || !campaign->scenarios[i].mapHeader)
            continue;
        if (QListWidgetItem *item = prerequisiteItem(i, required))
            ui->prereqListWidget->addItem(item);
    }
}

// Null for a scenario that requires this one: to choose it would close a circle.
QListWidgetItem *ScenarioGeneral::prerequisiteItem(unsigned int index,
                                                   const QBitArray &required) const
{
    const bool direct = hasPrerequisite(*scenario, index);
    const bool implied = !direct && required.testBit(int(index));
    if (!direct && !implied && isReferencedBy(campaign, region, index))
        return nullptr;
    auto *item = new QListWidgetItem(inOneLine(getScenarioName(campaign, campaignMap, index)));
    item->setData(indexRole, index);
    item->setFlags((item->flags() & ~Qt::ItemIsDragEnabled) | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
    if (direct || implied)
        check(item, direct);
    return item;
}

void ScenarioGeneral::checkPrereq(QListWidgetItem *item)
{
    if (!guard)
        return;
    guard = false;
    const unsigned int x = item->data(indexRole).toUInt();
    const bool required = item->checkState() == Qt::Checked;
    if (hasPrerequisite(*scenario, x) != required) {
        setPrerequisite(*scenario, x, required);
        setChanged();
        if (required)
            loopAndForbid(x);
        else
            loopAndAllow(x);
        requireAlongWith(x, required);
    }
    guard = true;
}

// Those that require this scenario have x through it now, or keep it by themselves.
void ScenarioGeneral::requireAlongWith(unsigned int x, bool required)
{
    for (unsigned int k = 0; k < campaign->scenarios.size(); ++k) {
        ScenarioData &other = campaign->scenarios[k];
        if (k != region && k != x && hasPrerequisite(other, region))
            setPrerequisite(other, x, !required);
    }
}

void ScenarioGeneral::loopAndForbid(unsigned int x)
{
    setImpliedBy(x, false);
}

void ScenarioGeneral::loopAndAllow(unsigned int x)
{
    setImpliedBy(x, true);
}

// On a circle x stands among those it requires, and so may this scenario: neither is touched.
void ScenarioGeneral::setImpliedBy(unsigned int x, bool direct)
{
    const QBitArray implied = requiredBy(*campaign, x);
    for (unsigned int j = 0; j < unsigned(implied.size()); ++j) {
        if (!implied.testBit(int(j)) || j == x || j == region)
            continue;
        setPrerequisite(*scenario, j, direct);
        check(itemOf(*ui->prereqListWidget, j), direct);
    }
}
