// The pages of the bonus dialog, each by itself: what its lists offer, in which order and with
// which data, and how a row's bonus shows.
#include "scenario/bonus_creature_dlg.h"
#include "scenario/bonus_multibox_dlg.h"
#include "scenario/bonus_value_dlg.h"
#include "tests/scenario/bonus_tables.h"

#include <QLabel>
#include <QSpinBox>

#include <functional>
#include <memory>

namespace {

using MakePage = std::function<QWidget *(QWidget *parent, ScenarioData *scenario, unsigned player,
                                         QTableWidgetItem *item)>;

MakePage creatures()
{
    return [](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
        auto *page = new BonusCreatureDlg(parent);
        page->init(scenario, player, item);
        return page;
    };
}

using MultiboxInit = void (bonus_multibox_dlg::*)(ScenarioData *, unsigned, QTableWidgetItem *);

MakePage multibox(MultiboxInit init)
{
    return
        [init](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
            auto *page = new bonus_multibox_dlg(parent);
            (page->*init)(scenario, player, item);
            return page;
        };
}

MakePage primarySkills()
{
    return [](QWidget *parent, ScenarioData *scenario, unsigned player, QTableWidgetItem *item) {
        auto *page = new bonus_value_dlg(parent);
        page->initAsPrimarySkills(scenario, player, item);
        return page;
    };
}

MakePage resources()
{
    return [](QWidget *parent, ScenarioData *, unsigned, QTableWidgetItem *item) {
        auto *page = new bonus_value_dlg(parent);
        page->initAsResources(item);
        return page;
    };
}

const MakePage spells = multibox(&bonus_multibox_dlg::initAsSpells);
const MakePage artifacts = multibox(&bonus_multibox_dlg::initAsArtifacts);
const MakePage secondarySkills = multibox(&bonus_multibox_dlg::initAsSecondarySkills);
const MakePage buildings = multibox(&bonus_multibox_dlg::initAsBuildings);

} // namespace

Q_DECLARE_METATYPE(MakePage)

class BonusPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { parent.reset(); }

    void shownControlsHaveTheirTexts_data();
    void shownControlsHaveTheirTexts();
    void recipientsAreThePlayersHeroes_data();
    void recipientsAreThePlayersHeroes();
    void listsHaveTheirOrder_data();
    void listsHaveTheirOrder();
    void dataHaveTheirType_data();
    void dataHaveTheirType();
    void firstOfEveryListIsChosen_data();
    void firstOfEveryListIsChosen();
    void buildingsAreThoseOfTheTown_data();
    void buildingsAreThoseOfTheTown();
    void numbersHaveTheirRange_data();
    void numbersHaveTheirRange();
    void rowsOfTheKindShow_data();
    void rowsOfTheKindShow();
    void rowsOfOtherKindsDoNotShow_data();
    void rowsOfOtherKindsDoNotShow();
    void numbersBeyondTheirRangeAreCut();
    void firstArtifactsAreNoBonus_data();
    void firstArtifactsAreNoBonus();
    void anySkillAboveZeroWillDo();

private:
    template<typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = parent->findChild<Widget *>(name);
        if (!widget)
            qFatal("The page has no %s.", name);
        return widget;
    }
    QWidget *make(const MakePage &page, unsigned player, QTableWidgetItem *item = nullptr)
    {
        parent = std::make_unique<QWidget>();
        return page(parent.get(), &scenario, player, item);
    }

    ScenarioData scenario;
    std::unique_ptr<QWidget> parent;
};

void BonusPagesTest::init()
{
    fillBonusTables();
    scenario = bonusScenario();
}

void BonusPagesTest::shownControlsHaveTheirTexts_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QStringList>("labels"); // name=text of all that show
    QTest::addColumn<QStringList>("fields"); // names of all that show
    QTest::newRow("creatures") << creatures()
                               << QStringList{"creatureTypeLabel=Creature type:",
                                              "quantityLabel=Quantity:", "recipientLabel=Hero:"}
                               << QStringList{"creatureCombobox", "quantitySpinbox",
                                              "recipientCombobox"};
    QTest::newRow("spells") << spells
                            << QStringList{"item1label=Spell:", "recipientLabel=Recipient:"}
                            << QStringList{"item1combobox", "recipientCombobox"};
    QTest::newRow("artifacts") << artifacts
                               << QStringList{"item1label=Artifact:", "recipientLabel=Recipient:"}
                               << QStringList{"item1combobox", "recipientCombobox"};
    QTest::newRow("buildings") << buildings << QStringList{"recipientLabel=Building:"}
                               << QStringList{"recipientCombobox"};
    QTest::newRow("secondary skills")
        << secondarySkills
        << QStringList{"item1label=Skill:", "item2label=Skill level:", "recipientLabel=Recipient:"}
        << QStringList{"item1combobox", "item2combobox", "recipientCombobox"};
    QTest::newRow("primary skills")
        << primarySkills()
        << QStringList{"datatypeLabel=Recipient:", "valueLabel1=Attack skill:",
                       "valueLabel2=Defense skill:", "valueLabel3=Spell power:",
                       "valueLabel4=Knowledge:"}
        << QStringList{"datatypeBox", "spinBox", "spinBox_2", "spinBox_3", "spinBox_4"};
    QTest::newRow("resources") << resources()
                               << QStringList{"datatypeLabel=Resource type:",
                                              "valueLabel1=Quantity"}
                               << QStringList{"datatypeBox", "spinBox"};
}

void BonusPagesTest::shownControlsHaveTheirTexts()
{
    QFETCH(MakePage, page);
    QWidget *made = make(page, townPlayer);
    QStringList labels;
    QStringList fields;
    for (QWidget *child : made->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isHidden())
            continue;
        if (const auto *label = qobject_cast<QLabel *>(child))
            labels << label->objectName() + "=" + label->text();
        else
            fields << child->objectName();
    }
    labels.sort();
    fields.sort();
    QTEST(labels, "labels");
    QTEST(fields, "fields");
}

void BonusPagesTest::recipientsAreThePlayersHeroes_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QByteArray>("box");
    QTest::newRow("creatures") << creatures() << QByteArray("recipientCombobox");
    QTest::newRow("spells") << spells << QByteArray("recipientCombobox");
    QTest::newRow("artifacts") << artifacts << QByteArray("recipientCombobox");
    QTest::newRow("secondary skills") << secondarySkills << QByteArray("recipientCombobox");
    QTest::newRow("primary skills") << primarySkills() << QByteArray("datatypeBox");
}

void BonusPagesTest::recipientsAreThePlayersHeroes()
{
    QFETCH(MakePage, page);
    QFETCH(QByteArray, box);
    const QVector<QPair<unsigned, QVector<int>>> rows{
        {townPlayer, {0xFFFD, 0xFFFE, 3, 1}}, {townless, {0xFFFD, 4}},  {randomTown, {0xFFFD}},
        {generatedOnly, {0xFFFD, 0xFFFE}},    {absentPlayer, {0xFFFD}},
    };
    for (const auto &[player, heroes] : rows) {
        make(page, player);
        QCOMPARE(numbersOf(find<QComboBox>(box)), heroes);
    }
    make(page, townPlayer);
    QCOMPARE(textsOf(find<QComboBox>(box)),
             (QStringList{"Most powerful hero", "Generated hero (in town)", "Queen Dessa (on map)",
                          "Berin (on map)"}));
    scenario.mapHeader = nullptr;
    make(page, townPlayer);
    QCOMPARE(numbersOf(find<QComboBox>(box)), QVector<int>{0xFFFD});
}

void BonusPagesTest::listsHaveTheirOrder_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::newRow("creatures as the game orders them")
        << creatures() << QByteArray("creatureCombobox")
        << QStringList{"Gryphon", "Marsh hag", "Spearman", "Bowman"} << QVector<int>{2, 140, 0, 1};
    QTest::newRow("spells by name")
        << spells << QByteArray("item1combobox") << QStringList{"Aegis", "Ember", "Mist", "Zephyr"}
        << QVector<int>{1, 5, 0, 2};
    QTest::newRow("artifacts by name, without the first four")
        << artifacts << QByteArray("item1combobox")
        << QStringList{"Ash banner", "Bronze horn", "Owl brooch", "Thorn crown"}
        << QVector<int>{151, 7, 4, 150};
    QTest::newRow("skills by number")
        << secondarySkills << QByteArray("item1combobox")
        << QStringList{"Wayfinding", "Archery", "Lore"} << QVector<int>{0, 1, 9};
    QTest::newRow("skill levels by number")
        << secondarySkills << QByteArray("item2combobox")
        << QStringList{"Novice", "Adept", "Master"} << QVector<int>{1, 2, 3};
    QTest::newRow("resources by number, then the groups")
        << resources() << QByteArray("datatypeBox")
        << QStringList{"Wood", "Ore", "Gold", "Wood and ore", "Precious goods"}
        << QVector<int>{0, 2, 6, 0xFD, 0xFE};
}

void BonusPagesTest::listsHaveTheirOrder()
{
    QFETCH(MakePage, page);
    QFETCH(QByteArray, box);
    make(page, townPlayer);
    QTEST(textsOf(find<QComboBox>(box)), "texts");
    QTEST(numbersOf(find<QComboBox>(box)), "numbers");
}

void BonusPagesTest::dataHaveTheirType_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<unsigned>("player");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QVector<int>>("types"); // of the items, by row; the last one for all others
    const QVector<int> allInt{QMetaType::Int};
    const QVector<int> allUnsigned{QMetaType::UInt};
    QTest::newRow("heroes") << spells << unsigned(townPlayer) << QByteArray("recipientCombobox")
                            << allUnsigned;
    QTest::newRow("creatures") << creatures() << unsigned(townPlayer)
                               << QByteArray("creatureCombobox") << allUnsigned;
    QTest::newRow("spells") << spells << unsigned(townPlayer) << QByteArray("item1combobox")
                            << allInt;
    QTest::newRow("artifacts") << artifacts << unsigned(townPlayer) << QByteArray("item1combobox")
                               << allInt;
    QTest::newRow("skills") << secondarySkills << unsigned(townPlayer)
                            << QByteArray("item1combobox") << allInt;
    QTest::newRow("levels") << secondarySkills << unsigned(townPlayer)
                            << QByteArray("item2combobox") << allInt;
    QTest::newRow("resources") << resources() << unsigned(townPlayer) << QByteArray("datatypeBox")
                               << allInt;
    QTest::newRow("buildings") << buildings << unsigned(townPlayer)
                               << QByteArray("recipientCombobox") << allInt;
    QTest::newRow("late buildings")
        << buildings << unsigned(lateTown) << QByteArray("recipientCombobox")
        << QVector<int>{QMetaType::Int, QMetaType::Int,  QMetaType::Int,
                        QMetaType::Int, QMetaType::UInt, QMetaType::UInt};
}

void BonusPagesTest::dataHaveTheirType()
{
    QFETCH(MakePage, page);
    QFETCH(unsigned, player);
    QFETCH(QByteArray, box);
    QFETCH(QVector<int>, types);
    make(page, player);
    const auto *list = find<QComboBox>(box);
    QVERIFY(list->count() > 0);
    for (int row = 0; row < list->count(); ++row) {
        QCOMPARE(int(list->itemData(row, Qt::UserRole).type()), types[qMin(row, types.size() - 1)]);
    }
}

void BonusPagesTest::firstOfEveryListIsChosen_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::newRow("creatures") << creatures();
    QTest::newRow("spells") << spells;
    QTest::newRow("artifacts") << artifacts;
    QTest::newRow("secondary skills") << secondarySkills;
    QTest::newRow("primary skills") << primarySkills();
    QTest::newRow("resources") << resources();
    QTest::newRow("buildings") << buildings;
}

void BonusPagesTest::firstOfEveryListIsChosen()
{
    QFETCH(MakePage, page);
    const QWidget *made = make(page, townPlayer);
    for (const QComboBox *box : made->findChildren<QComboBox *>()) {
        if (!box->isHidden())
            QCOMPARE(box->currentIndex(), 0);
    }
}

void BonusPagesTest::buildingsAreThoseOfTheTown_data()
{
    QTest::addColumn<unsigned>("player");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVector<int>>("numbers");
    // 19, 20 and 30 aren't allowed as a bonus, and are offered all the same.
    QTest::newRow("by number") << unsigned(townPlayer)
                               << QStringList{"Yard", "Tavern", "Archive", "Vault", "Warren"}
                               << QVector<int>{5, 7, 19, 20, 30};
    QTest::newRow("19 and 20 last in town 10")
        << unsigned(lateTown)
        << QStringList{"Quay", "Crane", "Arsenal", "Whale pier", "Drydock", "Beacon"}
        << QVector<int>{5, 18, 21, 40, 19, 20};
    QTest::newRow("a town without a table")
        << unsigned(unknownTown) << QStringList() << QVector<int>();
    QTest::newRow("a random town") << unsigned(randomTown) << QStringList() << QVector<int>();
    QTest::newRow("the town's type counts, not its being a main town")
        << unsigned(townless) << QStringList{"Yard", "Tavern", "Archive", "Vault", "Warren"}
        << QVector<int>{5, 7, 19, 20, 30};
}

void BonusPagesTest::buildingsAreThoseOfTheTown()
{
    QFETCH(unsigned, player);
    make(buildings, player);
    QTEST(textsOf(find<QComboBox>("recipientCombobox")), "texts");
    QTEST(numbersOf(find<QComboBox>("recipientCombobox")), "numbers");
    QCOMPARE(EditorData::buildings.size(), std::size_t(3));
}

void BonusPagesTest::numbersHaveTheirRange_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("creatures") << creatures() << QByteArray("quantitySpinbox") << 1 << 9999;
    QTest::newRow("resource") << resources() << QByteArray("spinBox") << 1 << 99999;
    for (const char *skill : {"spinBox", "spinBox_2", "spinBox_3", "spinBox_4"})
        QTest::newRow(skill) << primarySkills() << QByteArray(skill) << 0 << 99;
}

void BonusPagesTest::numbersHaveTheirRange()
{
    QFETCH(MakePage, page);
    QFETCH(QByteArray, box);
    QFETCH(int, least);
    QFETCH(int, most);
    make(page, townPlayer);
    auto *number = find<QSpinBox>(box);
    QCOMPARE(number->value(), least);
    number->setValue(least - 1);
    QCOMPARE(number->value(), least);
    number->setValue(most);
    QCOMPARE(number->value(), most);
    number->setValue(most + 1);
    QCOMPARE(number->value(), most);
}

void BonusPagesTest::rowsOfTheKindShow_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<QStringList>("shown"); // name=text or number
    QTest::newRow("creatures") << creatures() << 1
                               << QVariant::fromValue(BonusCreature{3, 140, 4321})
                               << QStringList{"recipientCombobox=Queen Dessa (on map)",
                                              "creatureCombobox=Marsh hag", "quantitySpinbox=4321"};
    const QStringList spell{"recipientCombobox=Berin (on map)", "item1combobox=Zephyr"};
    QTest::newRow("a spell") << spells << 0 << QVariant::fromValue(BonusSpell{1, 2}) << spell;
    QTest::newRow("a scroll") << spells << 4 << QVariant::fromValue(BonusScroll{1, 2}) << spell;
    QTest::newRow("an artifact") << artifacts << 3
                                 << QVariant::fromValue(BonusArtifact{0xFFFE, 150})
                                 << QStringList{"recipientCombobox=Generated hero (in town)",
                                                "item1combobox=Thorn crown"};
    QTest::newRow("a secondary skill")
        << secondarySkills << 6 << QVariant::fromValue(BonusSecondarySkill{1, 9, 3})
        << QStringList{"recipientCombobox=Berin (on map)", "item1combobox=Lore",
                       "item2combobox=Master"};
    QTest::newRow("primary skills")
        << primarySkills() << 5 << QVariant::fromValue(BonusPrimarySkill{3, {{1, 22, 0, 99}}})
        << QStringList{"datatypeBox=Queen Dessa (on map)", "spinBox=1", "spinBox_2=22",
                       "spinBox_3=0", "spinBox_4=99"};
    QTest::newRow("a resource") << resources() << 7 << QVariant::fromValue(BonusResource{6, 54321})
                                << QStringList{"datatypeBox=Gold", "spinBox=54321"};
    QTest::newRow("a group of resources")
        << resources() << 7 << QVariant::fromValue(BonusResource{0xFE, 2})
        << QStringList{"datatypeBox=Precious goods", "spinBox=2"};
    QTest::newRow("a building") << buildings << 2 << QVariant::fromValue(BonusBuilding{20})
                                << QStringList{"recipientCombobox=Vault"};
}

void BonusPagesTest::rowsOfTheKindShow()
{
    QFETCH(MakePage, page);
    QFETCH(int, type);
    QFETCH(QVariant, record);
    QFETCH(QStringList, shown);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(type)));
    make(page, townPlayer, &item);
    for (const QString &control : shown) {
        const QByteArray name = control.section('=', 0, 0).toLatin1();
        const auto *box = parent->findChild<QComboBox *>(name);
        const QString text =
            box ? box->currentText() : QString::number(find<QSpinBox>(name)->value());
        QCOMPARE(name + "=" + text, control);
    }
}

void BonusPagesTest::rowsOfOtherKindsDoNotShow_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QVector<int>>("own");
    QTest::newRow("creatures") << creatures() << QVector<int>{1};
    QTest::newRow("spells") << spells << QVector<int>{0, 4};
    QTest::newRow("artifacts") << artifacts << QVector<int>{3};
    QTest::newRow("secondary skills") << secondarySkills << QVector<int>{6};
    QTest::newRow("primary skills") << primarySkills() << QVector<int>{5};
    QTest::newRow("resources") << resources() << QVector<int>{7};
    QTest::newRow("buildings") << buildings << QVector<int>{2};
}

// A payload of another kind counts as all zeros, and hero 0 isn't among this player's: so the row
// was loaded where a choice is gone or a number has changed.
void BonusPagesTest::rowsOfOtherKindsDoNotShow()
{
    QFETCH(MakePage, page);
    QFETCH(QVector<int>, own);
    EditorData::resources.erase(0);
    for (int type = 0; type < 8; ++type) {
        QTableWidgetItem item;
        item.setData(Qt::UserRole, QString("neither kind"));
        item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(type)));
        const QWidget *made = make(page, townPlayer, &item);
        bool loaded = false;
        for (const QComboBox *box : made->findChildren<QComboBox *>())
            loaded |= !box->isHidden() && box->currentIndex() < 0;
        QCOMPARE(loaded, own.contains(type));
    }
}

void BonusPagesTest::numbersBeyondTheirRangeAreCut()
{
    QTableWidgetItem item;
    fillRow(item, 1, BonusCreature{3, 0, 65535});
    make(creatures(), townPlayer, &item);
    QCOMPARE(find<QSpinBox>("quantitySpinbox")->value(), 9999);
    fillRow(item, 1, BonusCreature{3, 0, 0});
    make(creatures(), townPlayer, &item);
    QCOMPARE(find<QSpinBox>("quantitySpinbox")->value(), 1);
    fillRow(item, 5, BonusPrimarySkill{3, {{255, 100, 99, 0}}});
    make(primarySkills(), townPlayer, &item);
    QCOMPARE(find<QSpinBox>("spinBox")->value(), 99);
    QCOMPARE(find<QSpinBox>("spinBox_2")->value(), 99);
    QCOMPARE(find<QSpinBox>("spinBox_3")->value(), 99);
    QCOMPARE(find<QSpinBox>("spinBox_4")->value(), 0);
    fillRow(item, 7, BonusResource{6, -5});
    make(resources(), townPlayer, &item);
    QCOMPARE(find<QSpinBox>("spinBox")->value(), 1);
}

void BonusPagesTest::firstArtifactsAreNoBonus_data()
{
    QTest::addColumn<unsigned>("artifact");
    QTest::addColumn<bool>("good");
    for (unsigned artifact = 0; artifact < 4; ++artifact)
        QTest::newRow(QByteArray::number(artifact)) << artifact << false;
    QTest::newRow("4") << 4u << true;
    QTest::newRow("160") << 160u << true;
    QTest::newRow("65535") << 65535u << true;
}

void BonusPagesTest::firstArtifactsAreNoBonus()
{
    QFETCH(unsigned, artifact);
    QTEST(artIsGoodForBonus(artifact), "good");
}

void BonusPagesTest::anySkillAboveZeroWillDo()
{
    auto *page = static_cast<bonus_value_dlg *>(make(primarySkills(), townPlayer));
    QVERIFY(!page->skillCheckout());
    for (const char *name : {"spinBox", "spinBox_2", "spinBox_3", "spinBox_4"}) {
        auto *box = find<QSpinBox>(name);
        box->setValue(1);
        QVERIFY2(page->skillCheckout(), name);
        box->setValue(0);
        QVERIFY2(!page->skillCheckout(), name);
    }
}

QTEST_MAIN(BonusPagesTest)
#include "bonus_pages_test.moc"
