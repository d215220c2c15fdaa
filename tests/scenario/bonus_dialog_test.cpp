// The dialog that makes and changes a row of the bonus table: its kinds and their buttons, what it
// offers and refuses, and its look.
#include "tests/scenario/bonus_dialog_fixture.h"

#include "shell/dialog_look.h"

#include <QLabel>
#include <QLayout>
#include <QTranslator>
#include <QWindow>

class BonusDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void windowHasItsTextsAndLook();
    void everyKindHasItsButtonAndPage_data();
    void everyKindHasItsButtonAndPage();
    void pageShowsWhileTheButtonIsDown_data();
    void pageShowsWhileTheButtonIsDown();
    void aNewRowStartsAsASpell();
    void buildingsNeedAMainTown_data();
    void buildingsNeedAMainTown();
    void aStoredBuildingShowsWithoutATown();
    void strangePlayersAreHarmless_data();
    void strangePlayersAreHarmless();
    void heroesOfferedFollowTheMap();
    void buildingsOfferedFollowTheTown();
    void zeroSkillsAreNotAccepted();
    void storedZeroSkillsOpenWithoutOk();
    void storedSkillsOpenWithOk();
    void otherKindsEnableOk_data();
    void otherKindsEnableOk();
    void rightClicksDoNothing_data();
    void rightClicksDoNothing();
    void tabReachesThePageBeforeTheButtons();
    void everyTextHasItsRoom_data();
    void everyTextHasItsRoom();
    void endlessNamesDoNotWidenTheDialog();

private:
    ScenarioData scenario;
};

void BonusDialogTest::initTestCase()
{
    QApplication::setFont(editorFont());
    letListsReactAtOnce();
}

void BonusDialogTest::init()
{
    fillBonusTables();
    scenario = bonusScenario();
}

void BonusDialogTest::windowHasItsTextsAndLook()
{
    OpenDialog open(scenario, townPlayer);
    QCOMPARE(open.dialog.windowTitle(), QString("Edit Starting Bonus"));
    QCOMPARE(open.find<QLabel>("selectBonusLabel")->text(), QString("Select a bonus type:"));
    QCOMPARE(open.dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(open.dialog.minimumSize(), open.dialog.maximumSize());
    QVERIFY(!open.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    for (const char *container : {"layoutWidget", "frame"})
        QVERIFY(open.find<QWidget>(container)->isVisible());
    QVERIFY(open.dialog.findChild<QLayout *>("gridLayout"));
    for (const char *empty : {"page", "page_2"}) // behind the eight
        QVERIFY(open.stack()->indexOf(open.find<QWidget>(empty)) >= 8);
    QVERIFY(open.ok()->isEnabled());
    QVERIFY(open.cancel()->isEnabled());
}

void BonusDialogTest::everyKindHasItsButtonAndPage_data()
{
    addKindRows();
}

void BonusDialogTest::everyKindHasItsButtonAndPage()
{
    QFETCH(int, kind);
    const KindRow &row = kinds[std::size_t(kind)];
    OpenDialog open(scenario, townPlayer);
    QCOMPARE(open.button(kind)->text(), QString(row.text));
    open.clickKind(kind == 0 ? 7 : 0);
    QVERIFY(!open.button(kind)->isChecked());
    open.clickKind(kind);
    QVERIFY(open.button(kind)->isChecked());
    QCOMPARE(open.dialog.getBonusType(), kind);
    const QVariant property = open.page()->property("Bonus");
    QCOMPARE(property.userType(), int(QMetaType::Int));
    QCOMPARE(property.toInt(), kind);
    QCOMPARE(open.stack()->currentIndex(), kind);
    QCOMPARE(open.page()->metaObject()->className(), row.pageClass);
    bool found = false;
    for (const QLabel *label : open.page()->findChildren<QLabel *>())
        found |= label->isVisible() && label->text() == row.firstLabel;
    QVERIFY(found);
    QVERIFY(open.ok()->isEnabled() == (kind != 5));
}

void BonusDialogTest::pageShowsWhileTheButtonIsDown_data()
{
    addKindRows();
}

// Let go elsewhere, the button stays the one whose page shows.
void BonusDialogTest::pageShowsWhileTheButtonIsDown()
{
    QFETCH(int, kind);
    OpenDialog open(scenario, townPlayer);
    open.clickKind(kind == 0 ? 7 : 0);
    QWindow *window = open.dialog.windowHandle();
    const QRadioButton *button = open.button(kind);
    QTest::mousePress(window, Qt::LeftButton, {}, button->mapTo(&open.dialog, open.markOf(kind)));
    QCOMPARE(open.dialog.getBonusType(), kind);
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(open.dialog.getBonusType(), kind);
    QVERIFY(button->isChecked());
}

void BonusDialogTest::aNewRowStartsAsASpell()
{
    OpenDialog open(scenario, townPlayer);
    QCOMPARE(open.dialog.getBonusType(), 0);
    QVERIFY(open.button(0)->isChecked());
    QCOMPARE(open.box("recipientCombobox")->currentText(), QString("Most powerful hero"));
    QCOMPARE(open.box("item1combobox")->currentText(), QString("Aegis"));
}

void BonusDialogTest::buildingsNeedAMainTown_data()
{
    QTest::addColumn<unsigned>("player");
    QTest::addColumn<bool>("possible");
    QTest::newRow("a town") << unsigned(townPlayer) << true;
    QTest::newRow("town 10") << unsigned(lateTown) << true;
    QTest::newRow("no main town") << unsigned(townless) << false;
    QTest::newRow("a random town") << unsigned(randomTown) << false;
    QTest::newRow("a generated hero alone") << unsigned(generatedOnly) << false;
    QTest::newRow("no such player") << unsigned(absentPlayer) << false;
}

void BonusDialogTest::buildingsNeedAMainTown()
{
    QFETCH(unsigned, player);
    QFETCH(bool, possible);
    OpenDialog open(scenario, player);
    QCOMPARE(open.button(2)->isEnabled(), possible);
    open.clickKind(2);
    QCOMPARE(open.dialog.getBonusType(), possible ? 2 : 0);
    for (const int kind : {7, 6, 5, 4, 3, 1, 0}) {
        open.clickKind(kind);
        QVERIFY(open.button(kind)->isEnabled());
        QCOMPARE(open.dialog.getBonusType(), kind);
        QTableWidgetItem item;
        open.dialog.updateBonus(&item);
        QCOMPARE(item.data(Qt::UserRole + 1).toInt(), kind);
    }
}

void BonusDialogTest::aStoredBuildingShowsWithoutATown()
{
    QTableWidgetItem item;
    fillRow(item, 2, BonusBuilding{20});
    OpenDialog open(scenario, townless, &item);
    QCOMPARE(open.dialog.getBonusType(), 2);
    QVERIFY(open.button(2)->isChecked());
    QVERIFY(!open.button(2)->isEnabled());
    QCOMPARE(open.box("recipientCombobox")->currentText(), QString("Vault"));
    open.dialog.updateBonus(&item);
    QCOMPARE(told(item.data(Qt::UserRole)), QString("BonusBuilding 20"));
}

void BonusDialogTest::strangePlayersAreHarmless_data()
{
    QTest::addColumn<unsigned>("player");
    QTest::addColumn<bool>("hasMap");
    QTest::newRow("one past the last") << 8u << true;
    QTest::newRow("a byte from a file") << 200u << true;
    QTest::newRow("no map") << 0u << false;
    QTest::newRow("a town that no table knows") << unsigned(unknownTown) << true;
    QTest::newRow("a random town") << unsigned(randomTown) << true;
}

void BonusDialogTest::strangePlayersAreHarmless()
{
    QFETCH(unsigned, player);
    QFETCH(bool, hasMap);
    if (!hasMap)
        scenario.mapHeader = nullptr;
    const std::size_t towns = EditorData::buildings.size();
    for (int kind = 0; kind < 8; ++kind) {
        QTableWidgetItem item;
        item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(kind)));
        OpenDialog open(scenario, player, &item);
        QCOMPARE(open.dialog.getBonusType(), kind);
        open.dialog.updateBonus(&item);
        QCOMPARE(item.data(Qt::UserRole + 1).toInt(), kind);
    }
    QCOMPARE(EditorData::buildings.size(), towns);
}

void BonusDialogTest::heroesOfferedFollowTheMap()
{
    OpenDialog open(scenario, townless);
    for (const int kind : {0, 1, 3, 4, 5, 6}) {
        open.clickKind(kind);
        const auto *recipients = open.box(kind == 5 ? "datatypeBox" : "recipientCombobox");
        QCOMPARE(textsOf(recipients), (QStringList{"Most powerful hero", "Elbrec (on map)"}));
        QCOMPARE(numbersOf(recipients), (QVector<int>{0xFFFD, 4}));
    }
}

void BonusDialogTest::buildingsOfferedFollowTheTown()
{
    OpenDialog open(scenario, lateTown);
    open.clickKind(2);
    QCOMPARE(textsOf(open.box("recipientCombobox")),
             (QStringList{"Quay", "Crane", "Arsenal", "Whale pier", "Drydock", "Beacon"}));
}

void BonusDialogTest::zeroSkillsAreNotAccepted()
{
    OpenDialog open(scenario, townPlayer);
    open.clickKind(5);
    QVERIFY(!open.ok()->isEnabled());
    clickOn(open.ok());
    QTest::keyClick(open.dialog.windowHandle(), Qt::Key_Return);
    QVERIFY(open.dialog.isVisible());
    for (const char *skill : {"spinBox", "spinBox_2", "spinBox_3", "spinBox_4"}) {
        open.type(skill, 1);
        QVERIFY2(open.ok()->isEnabled(), skill);
        open.type(skill, 0);
        QVERIFY2(!open.ok()->isEnabled(), skill);
    }
    open.type("spinBox_3", 5);
    clickOn(open.ok());
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(open.dialog.result(), int(QDialog::Accepted));
}

void BonusDialogTest::storedZeroSkillsOpenWithoutOk()
{
    QTableWidgetItem item;
    fillRow(item, 5, BonusPrimarySkill{3, {{0, 0, 0, 0}}});
    OpenDialog open(scenario, townPlayer, &item);
    QCOMPARE(open.dialog.getBonusType(), 5);
    QVERIFY(!open.ok()->isEnabled());
}

void BonusDialogTest::storedSkillsOpenWithOk()
{
    QTableWidgetItem item;
    fillRow(item, 5, BonusPrimarySkill{3, {{0, 0, 0, 1}}});
    OpenDialog open(scenario, townPlayer, &item);
    QVERIFY(open.ok()->isEnabled());
}

void BonusDialogTest::otherKindsEnableOk_data()
{
    addKindRows();
}

void BonusDialogTest::otherKindsEnableOk()
{
    QFETCH(int, kind);
    OpenDialog open(scenario, townPlayer);
    open.clickKind(5);
    QVERIFY(!open.ok()->isEnabled());
    open.clickKind(kind);
    QCOMPARE(open.ok()->isEnabled(), kind != 5);
    open.clickKind(5);
    QVERIFY(!open.ok()->isEnabled());
    open.type("spinBox", 3);
    open.clickKind(kind);
    open.clickKind(5);
    QVERIFY(open.ok()->isEnabled());
}

void BonusDialogTest::rightClicksDoNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("box");
    const QVector<QPair<int, QByteArrayList>> boxes{
        {0, {"recipientCombobox", "item1combobox"}},
        {1, {"recipientCombobox", "creatureCombobox"}},
        {2, {"recipientCombobox"}},
        {3, {"recipientCombobox", "item1combobox"}},
        {4, {"recipientCombobox", "item1combobox"}},
        {5, {"datatypeBox"}},
        {6, {"recipientCombobox", "item1combobox", "item2combobox"}},
        {7, {"datatypeBox"}},
    };
    for (const auto &[kind, names] : boxes) {
        for (const QByteArray &name : names)
            QTest::newRow(kinds[std::size_t(kind)].button + QByteArray(" ") + name) << kind << name;
    }
}

void BonusDialogTest::rightClicksDoNothing()
{
    QFETCH(int, kind);
    QFETCH(QByteArray, box);
    OpenDialog open(scenario, townPlayer);
    open.clickKind(kind);
    verifyRightClicksDoNothing(open.box(box));
}

void BonusDialogTest::tabReachesThePageBeforeTheButtons()
{
    OpenDialog open(scenario, townPlayer);
    open.clickKind(6);
    open.button(6)->setFocus();
    const QVector<QWidget *> order{open.box("recipientCombobox"), open.box("item1combobox"),
                                   open.box("item2combobox")};
    for (QWidget *widget : order) {
        QTest::keyClick(open.dialog.windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), widget);
    }
    QTest::keyClick(open.dialog.windowHandle(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() == open.ok() ||
            QApplication::focusWidget() == open.cancel());
}

void BonusDialogTest::everyTextHasItsRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "cmp_en.qm";
    QTest::newRow("Russian") << "cmp_ru.qm";
}

// Names of the length that a game's longest have.
void BonusDialogTest::everyTextHasItsRoom()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QCoreApplication::applicationDirPath() + "/Ravn_Data/" + language));
    QCoreApplication::installTranslator(&translator);
    const QString longest = "Pendant of the Everlasting Midnight Sun";
    EditorData::spells[9] = longest;
    EditorData::artifacts[9] = longest;
    EditorData::creatures[9] = longest;
    EditorData::creature_ordering.push_back(9);
    EditorData::secondarySkills[2] = longest;
    EditorData::resources[3] = longest;
    EditorData::buildings[2][6] = longest;
    {
        OpenDialog open(scenario, townPlayer);
        for (int kind = 0; kind < 8; ++kind) {
            open.clickKind(kind);
            for (const QWidget *widget : open.dialog.findChildren<QWidget *>()) {
                const bool tells = qobject_cast<const QLabel *>(widget) ||
                                   qobject_cast<const QComboBox *>(widget) ||
                                   qobject_cast<const QSpinBox *>(widget) ||
                                   qobject_cast<const QAbstractButton *>(widget);
                if (!tells || !widget->isVisible())
                    continue;
                const QSize need = widget->sizeHint();
                QVERIFY2(widget->width() >= need.width() && widget->height() >= need.height(),
                         qPrintable(widget->objectName()));
            }
        }
    }
    QCoreApplication::removeTranslator(&translator);
}

void BonusDialogTest::endlessNamesDoNotWidenTheDialog()
{
    auto header = std::make_shared<MapHeader>(*scenario.mapHeader);
    header->players[townPlayer].heroInfo[0].name = QString(30000, 'W');
    scenario.mapHeader = header;
    OpenDialog open(scenario, townPlayer);
    QVERIFY(open.dialog.width() < 600);
}

QTEST_MAIN(BonusDialogTest)
#include "bonus_dialog_test.moc"
