// The pages of the bonus dialog, each by itself: what its lists offer, in which order and with
// which data.
#include "tests/scenario/bonus_page_fixture.h"

#include "shell/right_click_filter.h"

#include <QLabel>

class BonusPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void formsHaveTheirTexts();
    void oneFilterServesAPage_data();
    void oneFilterServesAPage();
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
    void firstArtifactsAreNoBonus_data();
    void firstArtifactsAreNoBonus();

private:
    std::unique_ptr<PageFixture> fixture;
};

void BonusPagesTest::init()
{
    fillBonusTables();
    fixture = std::make_unique<PageFixture>();
}

// Before a page is made one of its kind.
void BonusPagesTest::formsHaveTheirTexts()
{
    const auto textOf = [](const QWidget &page, const char *label) {
        const auto *found = page.findChild<QLabel *>(label);
        return found ? found->text() : QString();
    };
    QWidget parent; // which a page's filter belongs to
    const bonus_multibox_dlg boxes(&parent);
    QCOMPARE(textOf(boxes, "recipientLabel"), QString("Recipient:"));
    QCOMPARE(textOf(boxes, "item1label"), QString("Item 1:"));
    QCOMPARE(textOf(boxes, "item2label"), QString("Item 2:"));
    const bonus_value_dlg values(&parent);
    QCOMPARE(textOf(values, "datatypeLabel"), QString("Datatype:"));
    for (const char *label : {"valueLabel1", "valueLabel2", "valueLabel3", "valueLabel4"})
        QCOMPARE(textOf(values, label), QString("Value1:"));
}

void BonusPagesTest::oneFilterServesAPage_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::newRow("creatures") << creatures();
    QTest::newRow("spells") << spells;
    QTest::newRow("resources") << resources();
}

void BonusPagesTest::oneFilterServesAPage()
{
    QFETCH(MakePage, page);
    fixture->make(page, townPlayer);
    QCOMPARE(
        fixture->parent->findChildren<RightClickFilter *>(QString(), Qt::FindDirectChildrenOnly)
            .size(),
        1);
    QCOMPARE(fixture->parent->findChildren<RightClickFilter *>().size(), 1);
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
    QWidget *made = fixture->make(page, townPlayer);
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
        fixture->make(page, player);
        QCOMPARE(numbersOf(fixture->find<QComboBox>(box)), heroes);
    }
    fixture->make(page, townPlayer);
    QCOMPARE(textsOf(fixture->find<QComboBox>(box)),
             (QStringList{"Most powerful hero", "Generated hero (in town)", "Queen Dessa (on map)",
                          "Berin (on map)"}));
    fixture->scenario.mapHeader = nullptr;
    fixture->make(page, townPlayer);
    QCOMPARE(numbersOf(fixture->find<QComboBox>(box)), QVector<int>{0xFFFD});
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
    fixture->make(page, townPlayer);
    QTEST(textsOf(fixture->find<QComboBox>(box)), "texts");
    QTEST(numbersOf(fixture->find<QComboBox>(box)), "numbers");
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
    fixture->make(page, player);
    const auto *list = fixture->find<QComboBox>(box);
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
    const QWidget *made = fixture->make(page, townPlayer);
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
    fixture->make(buildings, player);
    QTEST(textsOf(fixture->find<QComboBox>("recipientCombobox")), "texts");
    QTEST(numbersOf(fixture->find<QComboBox>("recipientCombobox")), "numbers");
    QCOMPARE(EditorData::buildings.size(), std::size_t(3));
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

QTEST_MAIN(BonusPagesTest)
#include "bonus_pages_test.moc"
