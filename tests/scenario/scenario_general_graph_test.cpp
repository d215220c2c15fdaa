// Clicks on prerequisites in graphs of chance, held against a model that follows the rules by
// itself: it closes the graph anew after each click.
#include "tests/scenario/general_tab.h"
#include "tests/support/sanitized.h"

#include <QRandomGenerator>

#include <bitset>

namespace {

constexpr int mostScenarios = 20;

using Scenarios = std::bitset<mostScenarios>;
using Graph = QVector<Scenarios>; // the direct prerequisites of each scenario

// What each scenario requires, directly or through others: ways through the first scenario, then
// those through the second as well, and so on.
Graph closureOf(const Graph &direct)
{
    Graph closure = direct;
    for (int through = 0; through < closure.size(); ++through) {
        for (Scenarios &required : closure) {
            if (required[std::size_t(through)])
                required |= closure[through];
        }
    }
    return closure;
}

bool has(const Scenarios &scenarios, int scenario)
{
    return scenarios[std::size_t(scenario)];
}

void put(Scenarios &scenarios, int scenario, bool in = true)
{
    scenarios.set(std::size_t(scenario), in);
}

// A campaign's graph and the list shown for the selected scenario, kept by the rules alone.
struct Model
{
    Graph direct;
    QVector<bool> hasMap;
    int selected = 0;
    Scenarios takenAway; // unchecked in the list though still implied, until it is loaded anew

    void select(int scenario)
    {
        selected = scenario;
        takenAway.reset();
    }

    void check(int x)
    {
        const Scenarios implied = closureOf(direct)[x];
        put(direct[selected], x);
        direct[selected] &= ~implied;
        takenAway &= ~implied;
        put(takenAway, x, false);
        for (int k = 0; k < direct.size(); ++k) {
            if (k != selected && has(direct[k], selected))
                put(direct[k], x, false);
        }
    }

    void uncheck(int x)
    {
        const Scenarios implied = closureOf(direct)[x];
        put(direct[selected], x, false);
        direct[selected] |= implied;
        takenAway &= ~implied;
        put(takenAway, x);
        for (int k = 0; k < direct.size(); ++k) {
            if (k != selected && has(direct[k], selected))
                put(direct[k], x);
        }
    }

    void removeMap()
    {
        for (int k = 0; k < direct.size(); ++k) {
            if (k == selected || !has(direct[k], selected))
                continue;
            direct[k] |= direct[selected];
            put(direct[k], selected, false);
        }
        direct[selected].reset();
        hasMap[selected] = false;
        takenAway.reset();
    }

    QStringList list() const
    {
        QStringList rows;
        const Graph closure = closureOf(direct);
        for (int i = 0; i < direct.size() && hasMap[selected]; ++i) {
            if (i == selected || !hasMap[i])
                continue;
            const QString number = QString::number(i);
            const bool requiresThis = has(closure[i], selected);
            if (has(direct[selected], i))
                rows << number + " checked";
            else if (has(closure[selected], i) && !has(takenAway, i))
                rows << number + " implied";
            else if (!requiresThis)
                rows << number + " free";
        }
        return rows;
    }
};

// Arrows lead from a scenario to some that come before it in an order of chance: no cycle.
Model randomModel(QRandomGenerator &random)
{
    Model model;
    const int count = random.bounded(2, mostScenarios + 1);
    QVector<int> order;
    for (int i = 0; i < count; ++i)
        order.insert(random.bounded(i + 1), i);
    model.direct.resize(count);
    model.hasMap.resize(count);
    const int density = random.bounded(1, 8);
    for (int i = 0; i < count; ++i) {
        model.hasMap[i] = random.bounded(6) > 0;
        for (int before = 0; before < i; ++before) {
            if (random.bounded(count) < density)
                put(model.direct[order[i]], order[before]);
        }
    }
    return model;
}

QList<int> listOf(const Scenarios &scenarios)
{
    QList<int> list;
    for (int i = 0; i < mostScenarios; ++i) {
        if (has(scenarios, i))
            list << i;
    }
    return list;
}

CampaignData campaignOfModel(const Model &model)
{
    QStringList names;
    for (int i = 0; i < model.hasMap.size(); ++i)
        names << (model.hasMap[i] ? "m" + QString::number(i) : QString());
    CampaignData campaign = campaignOf(true, names);
    for (int i = 0; i < model.direct.size(); ++i)
        require(campaign, i, listOf(model.direct[i]));
    return campaign;
}

bool hasCycle(const Graph &direct)
{
    const Graph closure = closureOf(direct);
    for (int i = 0; i < closure.size(); ++i) {
        if (has(closure[i], i))
            return true;
    }
    return false;
}

Graph storedIn(GeneralTab &tab)
{
    Graph graph;
    for (int i = 0; i < int(tab.copy().scenarios.size()); ++i) {
        const QList<int> stored = tab.storedFor(i);
        graph << Scenarios();
        for (const int required : stored)
            put(graph.last(), required);
    }
    return graph;
}

// Reach before and after a click, held against what the click means.
void compareReach(const Graph &old, const Graph &now, const Graph &directBefore, int s, int x,
                  bool checked)
{
    for (int k = 0; k < old.size(); ++k) {
        Scenarios expected = old[k];
        if (checked && (k == s || has(old[k], s))) {
            expected |= old[x];
            put(expected, x);
        }
        if (!checked && k == s) {
            bool impliedByAnother = false;
            for (const int other : listOf(directBefore[s]))
                impliedByAnother |= other != x && has(old[other], x);
            if (!impliedByAnother)
                put(expected, x, false);
        }
        QCOMPARE(now[k], expected);
    }
}

} // namespace

class ScenarioGeneralGraphTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void randomGraphsFollowTheModel_data();
    void randomGraphsFollowTheModel();
    void checksAloneOnlyAddReach();

private:
    void step(GeneralTab &tab, Model &model, QRandomGenerator &random);
    void compare(GeneralTab &tab, const Model &model);

    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioGeneralGraphTest::initTestCase()
{
    fixture = std::make_unique<ScenarioFixture>();
    addRegions(128);
}

void ScenarioGeneralGraphTest::compare(GeneralTab &tab, const Model &model)
{
    QCOMPARE(tab.shownPrerequisites(), model.list());
    const Graph stored = storedIn(tab);
    QCOMPARE(stored, model.direct);
    QVERIFY(!hasCycle(stored));
}

// One act of a user: another scenario, a map taken away, or a click on a box.
void ScenarioGeneralGraphTest::step(GeneralTab &tab, Model &model, QRandomGenerator &random)
{
    const int act = random.bounded(12);
    if (act < 4) {
        const int scenario = random.bounded(model.direct.size());
        tab.select(scenario == model.selected ? (scenario + 1) % model.direct.size() : scenario);
        tab.select(scenario);
        model.select(scenario);
        return;
    }
    if (act == 4 && random.bounded(4) == 0 && model.hasMap[model.selected]) {
        const int s = model.selected;
        const Graph old = closureOf(model.direct);
        tab.click("removeButton");
        model.removeMap();
        const Graph now = closureOf(storedIn(tab));
        for (int k = 0; k < old.size(); ++k) {
            Scenarios expected = k == s ? Scenarios() : old[k];
            put(expected, s, false);
            QCOMPARE(now[k], expected);
        }
        return;
    }
    const QStringList rows = model.list().filter(QRegExp("checked|free"));
    if (rows.isEmpty())
        return;
    const QStringList row = rows[random.bounded(rows.size())].split(' ');
    const int x = row[0].toInt();
    const bool checks = row[1] == "free";
    const Graph before = model.direct;
    tab.clickOnBoxOf(x);
    checks ? model.check(x) : model.uncheck(x);
    compareReach(closureOf(before), closureOf(storedIn(tab)), before, model.selected, x, checks);
}

void ScenarioGeneralGraphTest::randomGraphsFollowTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    constexpr quint32 seeds = sanitized ? 3 : 6;
    for (quint32 seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void ScenarioGeneralGraphTest::randomGraphsFollowTheModel()
{
    constexpr int campaigns = 50;
    constexpr int steps = 10;
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (int number = 0; number < campaigns; ++number) {
        Model model = randomModel(random);
        CampaignData campaign = campaignOfModel(model);
        model.select(random.bounded(model.direct.size()));
        GeneralTab tab(campaign, unsigned(model.selected));
        compare(tab, model);
        for (int i = 0; i < steps && !QTest::currentTestFailed(); ++i) {
            step(tab, model, random);
            if (!QTest::currentTestFailed())
                compare(tab, model);
        }
        if (QTest::currentTestFailed()) {
            qWarning("Campaign %d", number);
            return;
        }
    }
}

void ScenarioGeneralGraphTest::checksAloneOnlyAddReach()
{
    QRandomGenerator random(7);
    Model model = randomModel(random);
    while (model.direct.size() < 15)
        model = randomModel(random);
    model.hasMap.fill(true);
    CampaignData campaign = campaignOfModel(model);
    GeneralTab tab(campaign);
    for (int scenario = 1; scenario < model.direct.size(); ++scenario) {
        tab.select(scenario);
        model.select(scenario);
        for (QStringList rows = model.list().filter("free"); !rows.isEmpty();
             rows = model.list().filter("free")) {
            const Graph before = model.direct;
            const int x = rows[random.bounded(rows.size())].section(' ', 0, 0).toInt();
            tab.clickOnBoxOf(x);
            model.check(x);
            compareReach(closureOf(before), closureOf(storedIn(tab)), before, scenario, x, true);
            compare(tab, model);
            if (QTest::currentTestFailed())
                return;
        }
    }
    // All that may be required is: whoever two are, one of them requires the other.
    const Graph closure = closureOf(storedIn(tab));
    for (int a = 1; a < closure.size(); ++a) {
        for (int b = 0; b < a; ++b)
            QVERIFY(has(closure[a], b) != has(closure[b], a));
    }
}

QTEST_MAIN(ScenarioGeneralGraphTest)
#include "scenario_general_graph_test.moc"
