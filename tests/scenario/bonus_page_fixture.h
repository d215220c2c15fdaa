// What the tests of the bonus dialog's pages share: pages of every kind, each by itself.
#pragma once

#include "scenario/bonus_creature_dlg.h"
#include "scenario/bonus_multibox_dlg.h"
#include "scenario/bonus_value_dlg.h"
#include "tests/scenario/bonus_tables.h"

#include <functional>
#include <memory>

using MakePage = std::function<QWidget *(QWidget *parent, ScenarioData *scenario, unsigned player,
                                         QTableWidgetItem *item)>;

inline MakePage creatures()
{
    return [](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
        auto *page = new BonusCreatureDlg(parent);
        page->init(scenario, player, item);
        return page;
    };
}

using MultiboxInit = void (bonus_multibox_dlg::*)(ScenarioData *, unsigned, QTableWidgetItem *);

inline MakePage multibox(MultiboxInit init)
{
    return
        [init](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
            auto *page = new bonus_multibox_dlg(parent);
            (page->*init)(scenario, player, item);
            return page;
        };
}

inline MakePage primarySkills()
{
    return [](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
        auto *page = new bonus_value_dlg(parent);
        page->initAsPrimarySkills(scenario, player, item);
        return page;
    };
}

inline MakePage resources()
{
    return [](QWidget *parent, ScenarioData *, unsigned, QTableWidgetItem *item) {
        auto *page = new bonus_value_dlg(parent);
        page->initAsResources(item);
        return page;
    };
}

inline const MakePage spells = multibox(&bonus_multibox_dlg::initAsSpells);
inline const MakePage artifacts = multibox(&bonus_multibox_dlg::initAsArtifacts);
inline const MakePage secondarySkills = multibox(&bonus_multibox_dlg::initAsSecondarySkills);
inline const MakePage buildings = multibox(&bonus_multibox_dlg::initAsBuildings);

Q_DECLARE_METATYPE(MakePage)

// One page at a time, on the map of bonusScenario.
class PageFixture
{
public:
    template<typename Widget>
    Widget *find(const char *name)
    {
        return childOf<Widget>(parent.get(), name);
    }
    QWidget *make(const MakePage &page, unsigned player, QTableWidgetItem *item = nullptr)
    {
        parent = std::make_unique<QWidget>();
        return page(parent.get(), &scenario, player, item);
    }

    ScenarioData scenario = bonusScenario();
    std::unique_ptr<QWidget> parent;
};
