// What the tests of the bonus editors share: small tables, a map with players of every sort, and
// clicks on combo boxes.
#pragma once

#include "document/campaign_data.h"
#include "document/start_options.h"
#include "gamedata/editor_data.h"
#include "tests/support/longest_wait.h"
#include "tests/support/widgets.h"

#include <QApplication>
#include <QTableWidgetItem>

// Players of the map.
enum MapPlayer : unsigned
{
    townPlayer,    // a town of type 2, a generated hero, two heroes on the map
    townless,      // no main town, one hero on the map
    randomTown,    // a main town of any type
    lateTown,      // a town of type 10
    unknownTown,   // a town of type 200, which no table knows
    generatedOnly, // a generated hero without a town
    absentPlayer = 200,
};

inline void fillBonusTables()
{
    EditorData::colors = {"Red", "Blue", "Tan"};
    EditorData::heroes = {{0, "Aldra"}, {1, "Berin"}, {2, "Corvane"}, {3, "Dessa"}, {4, "Elbrec"}};
    EditorData::spells = {{0, "Mist"}, {1, "Aegis"}, {2, "Zephyr"}, {5, "Ember"}};
    EditorData::artifacts = {{0, "Spellbook"},     {1, "Scroll"},      {2, "Relic"},
                             {3, "Siege wagon"},   {4, "Owl brooch"},  {7, "Bronze horn"},
                             {150, "Thorn crown"}, {151, "Ash banner"}};
    EditorData::creatures = {{0, "Spearman"}, {1, "Bowman"}, {2, "Gryphon"}, {140, "Marsh hag"}};
    EditorData::creature_ordering = {2, 140, 0, 1};
    EditorData::secondarySkills = {{0, "Wayfinding"}, {1, "Archery"}, {9, "Lore"}};
    EditorData::skillLevels = {{1, "Novice"}, {2, "Adept"}, {3, "Master"}};
    EditorData::primarySkills = {{0, "Attack"}, {1, "Defense"}, {2, "Power"}, {3, "Knowledge"}};
    EditorData::resources = {{0, "Wood"}, {2, "Ore"}, {6, "Gold"}};
    EditorData::jktext = {{27, "Wood and ore"}, {28, "Precious goods"}};
    EditorData::buildings.clear();
    EditorData::buildings[0] = {{0, "Zeroth hall"}};
    EditorData::buildings[2] = {
        {7, "Tavern"}, {5, "Yard"}, {19, "Archive"}, {20, "Vault"}, {30, "Warren"}};
    EditorData::buildings[10] = {{5, "Quay"},    {18, "Crane"},   {19, "Drydock"},
                                 {20, "Beacon"}, {21, "Arsenal"}, {40, "Whale pier"}};
}

inline ScenarioData bonusScenario()
{
    auto header = std::make_shared<MapHeader>();
    auto &players = header->players;
    players[townPlayer].hasMainTown = 1;
    players[townPlayer].mainTownType = 2;
    players[townPlayer].generatesHero = 1;
    players[townPlayer].heroInfo = {{3, "Queen Dessa"}, {1, ""}};
    players[townless].mainTownType = 2;
    players[townless].heroInfo = {{4, ""}};
    players[randomTown].hasMainTown = 1;
    players[randomTown].mainTownType = 0xFF;
    players[lateTown].hasMainTown = 1;
    players[lateTown].mainTownType = 10;
    players[unknownTown].hasMainTown = 1;
    players[unknownTown].mainTownType = 200;
    players[generatedOnly].generatesHero = 1;
    ScenarioData scenario;
    scenario.mapHeader = header;
    return scenario;
}

// A row's item as the table of bonuses has it.
template<typename Record>
void fillRow(QTableWidgetItem &item, unsigned char type, const Record &record,
             const QString &text = "as it was")
{
    item.setData(Qt::UserRole, QVariant::fromValue(record));
    item.setData(Qt::UserRole + 1, QVariant::fromValue(type));
    item.setText(text);
}

inline QVector<int> numbersOf(const QComboBox *box)
{
    QVector<int> numbers;
    for (int row = 0; row < box->count(); ++row)
        numbers << box->itemData(row, Qt::UserRole).toInt();
    return numbers;
}

// Opens the box and picks a text, as a user does.
inline void choose(QComboBox *box, const QString &text)
{
    const int row = box->findText(text);
    QVERIFY2(row >= 0, qPrintable(text));
    clickOn(box);
    QTRY_VERIFY_WITH_TIMEOUT(box->view()->isVisible(), longestWait);
    clickOnRow(box, row);
    QTRY_COMPARE_WITH_TIMEOUT(box->currentText(), text, longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(!box->view()->isVisible(), longestWait);
}

// A list takes clicks only when a double click's time has passed since its box was clicked.
inline void letListsReactAtOnce()
{
    QApplication::setDoubleClickInterval(0);
}
