// The first tab of the scenario dialog: its controls, what they show and what is stored of it.
#include "tests/scenario/general_tab.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QTextEdit>

namespace {

const QStringList onlyOnAMap{"regionNameLabel",       "regionNameLabelMain", "regionColorLabel",
                             "regionColorCombobox",   "prereqLabel",         "prereqListWidget",
                             "regionRightClickLabel", "regionTextEdit"};

} // namespace

class ScenarioGeneralTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void controlsAreThere_data();
    void controlsAreThere();
    void regionsControlsNeedAMap_data();
    void regionsControlsNeedAMap();
    void difficultiesCarryTheirNumbers();
    void coloursCarryTheirNumbers();
    void scenarioIsShown();
    void selectionShowsTheOther();
    void regionBeyondTheMapHasNoName();
    void mapWithoutFileNameHasNone();
    void choicesAreStored_data();
    void choicesAreStored();
    void acceptedChoicesAreStored();
    void leavingTheScenarioStoresItsChoices();
    void campaignWithoutMapStoresTheDifficultyAlone();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

// Texts of two columns, of which the first is shown.
void ScenarioGeneralTest::initTestCase()
{
    fixture = std::make_unique<ScenarioFixture>();
    const QStringList names{"Meek", "Fair", "Stern", "Grim", "Dire"};
    for (int i = 0; i < names.size(); ++i)
        EditorData::editorText[25 + i] = QStringList{names[i], "not this one"};
}

void ScenarioGeneralTest::controlsAreThere_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("regionNameLabel") << "QLabel"
                                     << "Region name";
    QTest::newRow("regionNameLabelMain") << "QLabel"
                                         << "Birch Hill";
    QTest::newRow("scenarioNameLabel") << "QLabel"
                                       << "Scenario name";
    QTest::newRow("scenarioNameLabelMain") << "QLabel"
                                           << "(None)";
    QTest::newRow("regionColorLabel") << "QLabel"
                                      << "Region color";
    QTest::newRow("regionColorCombobox") << "QComboBox"
                                         << "Colour 2";
    QTest::newRow("mapFileGroup") << "QGroupBox"
                                  << "Map file";
    QTest::newRow("mapFileIdentifier") << "QLabel"
                                       << "(None)";
    QTest::newRow("refreshButton") << "QPushButton"
                                   << "Import...";
    QTest::newRow("exportButton") << "QPushButton"
                                  << "Export...";
    QTest::newRow("removeButton") << "QPushButton"
                                  << "Remove";
    QTest::newRow("defaultDifficultyLabel") << "QLabel"
                                            << "Default difficulty:";
    QTest::newRow("difficultyCombobox") << "QComboBox"
                                        << "Fair";
    QTest::newRow("prereqLabel") << "QLabel"
                                 << "Prerequisites:";
    QTest::newRow("prereqListWidget") << "QListWidget"
                                      << "";
    QTest::newRow("regionRightClickLabel") << "QLabel"
                                           << "Region right-click text:";
    QTest::newRow("regionTextEdit") << "QTextEdit"
                                    << "";
}

// As a scenario without a map shows them.
void ScenarioGeneralTest::controlsAreThere()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign, 1);
    auto *control = tab.find<QWidget>(QTest::currentDataTag());
    QVERIFY(control->inherits(type.toLatin1().constData()));
    const auto *page = tab.tabs()->widget(0);
    QVERIFY(page->isAncestorOf(control));
    QVERIFY(page->rect().contains(QRect(control->mapTo(page, {0, 0}), control->size())));
    const char *property = type == "QGroupBox"   ? "title"
                           : type == "QComboBox" ? "currentText"
                           : type == "QTextEdit" ? "plainText"
                                                 : "text";
    QCOMPARE(control->property(property).toString(), text);
}

void ScenarioGeneralTest::regionsControlsNeedAMap_data()
{
    controlsAreThere_data();
}

void ScenarioGeneralTest::regionsControlsNeedAMap()
{
    const QString name = QTest::currentDataTag();
    for (const bool hasMap : {true, false}) {
        CampaignData campaign = twoScenarios(hasMap);
        GeneralTab tab(campaign);
        QCOMPARE(tab.find<QWidget>(QTest::currentDataTag())->isVisible(),
                 hasMap || !onlyOnAMap.contains(name));
    }
}

void ScenarioGeneralTest::difficultiesCarryTheirNumbers()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    const auto *box = tab.find<QComboBox>("difficultyCombobox");
    const QStringList names{"Meek", "Fair", "Stern", "Grim", "Dire"};
    QCOMPARE(box->count(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(box->itemText(i), names[i]);
        QCOMPARE(box->itemData(i), QVariant(unsigned(i)));
    }
}

void ScenarioGeneralTest::coloursCarryTheirNumbers()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    const auto *box = tab.find<QComboBox>("regionColorCombobox");
    QCOMPARE(box->count(), 8);
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(box->itemText(i), "Colour " + QString::number(i));
        QCOMPARE(box->itemData(i), QVariant(unsigned(i)));
    }
}

void ScenarioGeneralTest::scenarioIsShown()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    QCOMPARE(tab.labelText("regionNameLabelMain"), QString("Alder Bay"));
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("isle map"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("isle.e3m"));
    QCOMPARE(tab.find<QComboBox>("regionColorCombobox")->currentText(), QString("Colour 3"));
    QCOMPARE(tab.find<QComboBox>("difficultyCombobox")->currentText(), QString("Dire"));
    QCOMPARE(tab.find<QTextEdit>("regionTextEdit")->toPlainText(), QString("Beware of the marsh"));
    for (const char *button : {"refreshButton", "exportButton", "removeButton"})
        QVERIFY(tab.find<QWidget>(button)->isEnabled());
}

void ScenarioGeneralTest::selectionShowsTheOther()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    tab.select(1);
    QCOMPARE(tab.labelText("regionNameLabelMain"), QString("Birch Hill"));
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("(None)"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("(None)"));
    QCOMPARE(tab.find<QComboBox>("regionColorCombobox")->currentText(), QString("Colour 2"));
    QCOMPARE(tab.find<QComboBox>("difficultyCombobox")->currentText(), QString("Fair"));
    QCOMPARE(tab.find<QTextEdit>("regionTextEdit")->toPlainText(), QString());
    QVERIFY(tab.find<QWidget>("refreshButton")->isEnabled());
    QVERIFY(!tab.find<QWidget>("exportButton")->isEnabled());
    QVERIFY(!tab.find<QWidget>("removeButton")->isEnabled());
}

void ScenarioGeneralTest::regionBeyondTheMapHasNoName()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d"});
    GeneralTab tab(campaign, 3);
    QCOMPARE(tab.labelText("regionNameLabelMain"), QString());
}

void ScenarioGeneralTest::mapWithoutFileNameHasNone()
{
    CampaignData campaign = twoScenarios();
    campaign.scenarios[1] = scenarioWithMap("", "Nameless");
    GeneralTab tab(campaign);
    tab.select(1);
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("Nameless"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("(None)"));
    QVERIFY(tab.find<QWidget>("exportButton")->isEnabled());
}

void ScenarioGeneralTest::choicesAreStored_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("colour");
    QTest::addColumn<int>("difficulty");
    QTest::addColumn<bool>("changed");
    const QString before = "Beware of the marsh";
    QTest::newRow("nothing") << before << 3 << 4 << false;
    QTest::newRow("text") << "Beware" << 3 << 4 << true;
    QTest::newRow("no text") << "" << 3 << 4 << true;
    QTest::newRow("colour") << before << 0 << 4 << true;
    QTest::newRow("last colour") << before << 7 << 4 << true;
    QTest::newRow("difficulty") << before << 3 << 0 << true;
    QTest::newRow("all") << "Other" << 1 << 2 << true;
}

void ScenarioGeneralTest::choicesAreStored()
{
    QFETCH(QString, text);
    QFETCH(int, colour);
    QFETCH(int, difficulty);
    QFETCH(bool, changed);
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    tab.find<QTextEdit>("regionTextEdit")->setPlainText(text);
    tab.find<QComboBox>("regionColorCombobox")->setCurrentIndex(colour);
    tab.find<QComboBox>("difficultyCombobox")->setCurrentIndex(difficulty);
    const ScenarioData &scenario = tab.copy().scenarios[0];
    QCOMPARE(scenario.regionColor, quint8(3)); // nothing is stored before its time
    QCOMPARE(scenario.defaultDifficulty, quint8(4));
    QCOMPARE(scenario.regionText, QString("Beware of the marsh"));
    QCOMPARE(tab.general()->saveScenarioInfo(), changed);
    QCOMPARE(scenario.regionText, text);
    QCOMPARE(scenario.regionColor, quint8(colour));
    QCOMPARE(scenario.defaultDifficulty, quint8(difficulty));
    QVERIFY(!tab.general()->saveScenarioInfo()); // a second time there is nothing new
}

void ScenarioGeneralTest::acceptedChoicesAreStored()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    auto *difficulty = tab.find<QComboBox>("difficultyCombobox");
    difficulty->setFocus();
    QTest::keyClick(tab.dialog.windowHandle(), Qt::Key_Up);
    clickOn(tab.find<QTextEdit>("regionTextEdit")->viewport());
    QTest::keyClick(tab.dialog.windowHandle(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClicks(tab.dialog.focusWidget(), "Oh! ");
    clickOn(tab.find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok));
    QCOMPARE(tab.dialog.result(), int(QDialog::Accepted));
    QVERIFY(tab.general()->saveScenarioInfo());
    QCOMPARE(tab.copy().scenarios[0].defaultDifficulty, quint8(3));
    QCOMPARE(tab.copy().scenarios[0].regionText, QString("Oh! Beware of the marsh"));
}

void ScenarioGeneralTest::leavingTheScenarioStoresItsChoices()
{
    CampaignData campaign = twoScenarios();
    GeneralTab tab(campaign);
    tab.find<QComboBox>("regionColorCombobox")->setCurrentIndex(6);
    tab.select(1);
    QCOMPARE(tab.copy().scenarios[0].regionColor, quint8(6));
    QCOMPARE(tab.copy().scenarios[1].regionColor, quint8(2));
    QVERIFY(tab.dialog.hasChanged());
}

void ScenarioGeneralTest::campaignWithoutMapStoresTheDifficultyAlone()
{
    CampaignData campaign = twoScenarios(false);
    GeneralTab tab(campaign);
    tab.find<QTextEdit>("regionTextEdit")->setPlainText("Other");
    tab.find<QComboBox>("regionColorCombobox")->setCurrentIndex(1);
    QVERIFY(!tab.general()->saveScenarioInfo());
    tab.find<QComboBox>("difficultyCombobox")->setCurrentIndex(2);
    QVERIFY(tab.general()->saveScenarioInfo());
    const ScenarioData &scenario = tab.copy().scenarios[0];
    QCOMPARE(scenario.regionText, QString("Beware of the marsh"));
    QCOMPARE(scenario.regionColor, quint8(3));
    QCOMPARE(scenario.defaultDifficulty, quint8(2));
}

QTEST_MAIN(ScenarioGeneralTest)
#include "scenario_general_test.moc"
