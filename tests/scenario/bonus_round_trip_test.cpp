// Starting bonuses on their way through the whole editor: made, edited and cancelled in the
// window's dialogs, saved to a file, and found the same in the file opened again.
#include "tests/scenario/bonus_files.h"

namespace {

// What the boxes show that these choices name, in the same words.
QStringList shownIn(BonusControls &controls, const QStringList &choices)
{
    QStringList shown;
    for (const QString &choice : choices) {
        const QString name = choice.section('=', 0, 0);
        const auto *box = controls.page()->findChild<QComboBox *>(name);
        shown << name + "=" +
                     (box ? box->currentText()
                          : QString::number(controls.onPage<QSpinBox>(name.toLatin1())->value()));
    }
    return shown;
}

} // namespace

class BonusRoundTripTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void aMadeBonusComesBackTheSame_data();
    void aMadeBonusComesBackTheSame();
    void anEditedBonusComesBackTheSame_data();
    void anEditedBonusComesBackTheSame();
    void cancelledWorkIsNotSaved_data();
    void cancelledWorkIsNotSaved();
    void threeBonusesKeepTheirOrder();
    void thePlayerIsSaved();
    void anotherPlayerAloneIsAChange();

private:
    // Of each kind: what is chosen for a new one, its bytes and text; and the same for a change.
    void addKinds();

    std::unique_ptr<WindowFixture> fixture;
};

void BonusRoundTripTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
    letListsReactAtOnce();
    EditorData::primarySkills = {{0, "Attack"}, {1, "Defence"}, {2, "Power"}, {3, "Lore"}};
    EditorData::jktext[27] = "Wood and Ore";
    EditorData::jktext[28] = "Precious goods";
}

void BonusRoundTripTest::addKinds()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("made"); // box=text or spin box=number
    QTest::addColumn<QByteArray>("madeBytes");
    QTest::addColumn<QString>("madeText");
    QTest::addColumn<QStringList>("edited");
    QTest::addColumn<QByteArray>("editedBytes");
    QTest::addColumn<QString>("editedText");
    const auto row = [](int kind) -> QTestData & {
        return QTest::newRow(kinds[std::size_t(kind)].button) << kind;
    };
    row(0) << QStringList{"recipientCombobox=Queen Dessa (on map)", "item1combobox=Spell 2"}
           << bytes("00 0300 02") << "Give Spell 2 spell to Queen Dessa"
           << QStringList{"item1combobox=Spell 4"} << bytes("00 0300 04")
           << "Give Spell 4 spell to Queen Dessa";
    row(1) << QStringList{"recipientCombobox=Hero 1 (on map)", "creatureCombobox=Creature 17",
                          "quantitySpinbox=1234"}
           << bytes("01 0100 1100 d204") << "Give 1234 Creature 17 to Hero 1"
           << QStringList{"quantitySpinbox=9999"} << bytes("01 0100 1100 0f27")
           << "Give 9999 Creature 17 to Hero 1";
    row(2) << QStringList{"recipientCombobox=Neutral 15"} << bytes("02 07")
           << "Build Neutral 15 at Main Town" << QStringList{"recipientCombobox=Neutral 14"}
           << bytes("02 08") << "Build Neutral 14 at Main Town";
    row(3) << QStringList{"recipientCombobox=Generated hero (in town)", u8"item1combobox=Café"}
           << bytes("03 feff 9f00") << u8"Give Café to Generated hero (in town)"
           << QStringList{"item1combobox=Artifact 4"} << bytes("03 feff 0400")
           << "Give Artifact 4 to Generated hero (in town)";
    row(4) << QStringList{"recipientCombobox=Hero 1 (on map)", "item1combobox=Spell 1"}
           << bytes("04 0100 01") << "Give Spell 1 Spell Scroll to Hero 1"
           << QStringList{"recipientCombobox=Most powerful hero"} << bytes("04 fdff 01")
           << "Give Spell 1 Spell Scroll to Most powerful hero";
    row(5) << QStringList{"datatypeBox=Queen Dessa (on map)", "spinBox=1", "spinBox_3=22",
                          "spinBox_4=99"}
           << bytes("05 0300 01 00 16 63") << "Give +1 Attack, +22 Power, +99 Lore to Queen Dessa"
           << QStringList{"spinBox=0", "spinBox_2=5"} << bytes("05 0300 00 05 16 63")
           << "Give +5 Defence, +22 Power, +99 Lore to Queen Dessa";
    row(6) << QStringList{"recipientCombobox=Hero 1 (on map)", "item1combobox=Skill 3",
                          "item2combobox=Advanced"}
           << bytes("06 0100 03 02") << "Give Advanced Skill 3 to Hero 1"
           << QStringList{"item2combobox=Expert"} << bytes("06 0100 03 03")
           << "Give Expert Skill 3 to Hero 1";
    row(7) << QStringList{"datatypeBox=Precious goods", "spinBox=99999"} << bytes("07 fe 9f860100")
           << "Receive 99999 Precious goods" << QStringList{"datatypeBox=Resource 6", "spinBox=500"}
           << bytes("07 06 f4010000") << "Receive 500 Resource 6";
}

void BonusRoundTripTest::aMadeBonusComesBackTheSame_data()
{
    addKinds();
}

void BonusRoundTripTest::aMadeBonusComesBackTheSame()
{
    QFETCH(int, kind);
    QFETCH(QStringList, made);
    QFETCH(QByteArray, madeBytes);
    QFETCH(QString, madeText);
    const auto window = windowOn(*fixture, campaignWith(noBonus));
    onTab(
        *window,
        [&](OptionsTab &tab) {
            QCOMPARE(tab.texts(), QStringList());
            tab.add(kind, made, ok);
            QCOMPARE(tab.texts(), QStringList(madeText));
        },
        ok);
    QVERIFY(EditorData::info.modified);
    const QByteArray saved = savedBy(*fixture, *window);
    QCOMPARE(saved, campaignWith(unitOf(madeBytes)));

    const auto again = windowOn(*fixture, saved);
    onTab(
        *again,
        [&](OptionsTab &tab) {
            QCOMPARE(tab.texts(), QStringList(madeText));
            tab.edit(
                [&](BonusControls &controls) {
                    QCOMPARE(controls.dialog.getBonusType(), kind);
                    QVERIFY(controls.button(kind)->isChecked());
                    QCOMPARE(shownIn(controls, made), made);
                },
                ok);
            QCOMPARE(tab.texts(), QStringList(madeText));
        },
        ok);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(savedBy(*fixture, *again), saved);
}

void BonusRoundTripTest::anEditedBonusComesBackTheSame_data()
{
    addKinds();
}

void BonusRoundTripTest::anEditedBonusComesBackTheSame()
{
    QFETCH(QByteArray, madeBytes);
    QFETCH(QString, madeText);
    QFETCH(QStringList, edited);
    QFETCH(QByteArray, editedBytes);
    QFETCH(QString, editedText);
    const auto window = windowOn(*fixture, campaignWith(unitOf(madeBytes)));
    onTab(
        *window,
        [&](OptionsTab &tab) {
            QCOMPARE(tab.texts(), QStringList(madeText));
            tab.edit([&](BonusControls &controls) { makeChoices(controls, edited); }, ok);
            QCOMPARE(tab.texts(), QStringList(editedText));
        },
        ok);
    QVERIFY(EditorData::info.modified);
    const QByteArray saved = savedBy(*fixture, *window);
    QCOMPARE(saved, campaignWith(unitOf(editedBytes)));

    const auto again = windowOn(*fixture, saved);
    onTab(
        *again,
        [&](OptionsTab &tab) {
            QCOMPARE(tab.texts(), QStringList(editedText));
            tab.edit([&](BonusControls &controls) { QCOMPARE(shownIn(controls, edited), edited); },
                     cancel);
        },
        ok);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(savedBy(*fixture, *again), saved);
}

void BonusRoundTripTest::cancelledWorkIsNotSaved_data()
{
    addKinds();
}

// Cancelled in either dialog.
void BonusRoundTripTest::cancelledWorkIsNotSaved()
{
    QFETCH(int, kind);
    QFETCH(QStringList, made);
    QFETCH(QByteArray, madeBytes);
    QFETCH(QString, madeText);
    QFETCH(QStringList, edited);
    QFETCH(QString, editedText);
    const QByteArray before = campaignWith(unitOf(madeBytes));
    const auto window = windowOn(*fixture, before);
    const auto change = [&](BonusControls &controls) { makeChoices(controls, edited); };
    onTab(
        *window,
        [&](OptionsTab &tab) {
            tab.edit(change, cancel);
            QCOMPARE(tab.texts(), QStringList(madeText));
            tab.add(kind, made, cancel);
            QCOMPARE(tab.texts(), QStringList(madeText));
        },
        ok);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(savedBy(*fixture, *window), before);
    onTab(
        *window,
        [&](OptionsTab &tab) {
            tab.edit(change, ok);
            tab.add(kind, made, ok);
            QCOMPARE(tab.texts(), QStringList({editedText, madeText}));
        },
        cancel);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(savedBy(*fixture, *window), before);
}

void BonusRoundTripTest::threeBonusesKeepTheirOrder()
{
    const auto window = windowOn(*fixture, campaignWith(noBonus));
    onTab(
        *window,
        [](OptionsTab &tab) {
            tab.add(7, {"datatypeBox=Wood and Ore", "spinBox=7"}, ok);
            tab.add(2, {"recipientCombobox=Neutral 13"}, ok);
            tab.add(0, {"item1combobox=Spell 3"}, ok);
            QVERIFY(!tab.page()->findChild<QPushButton *>("addButton")->isEnabled());
        },
        ok);
    QCOMPARE(savedBy(*fixture, *window), campaignWith(bytes("01 00 03"
                                                            "07 fd 07000000"
                                                            "02 02"
                                                            "00 fdff 03")));
}

void BonusRoundTripTest::thePlayerIsSaved()
{
    const QByteArray gold = bytes("07 06 f4010000");
    const auto window =
        windowOn(*fixture, campaignWith(bytes("01 00 02") + bytes("00 0300 02") + gold));
    onTab(
        *window,
        [](OptionsTab &tab) {
            QCOMPARE(textsOf(tab.players()), QStringList({"Colour 0", "Colour 4"}));
            choose(tab.players(), "Colour 4"); // who has no heroes
            QCOMPARE(tab.texts(), QStringList("Receive 500 Resource 6"));
        },
        ok);
    const QByteArray saved = savedBy(*fixture, *window);
    QCOMPARE(saved, campaignWith(bytes("01 04 01") + gold));
    const auto again = windowOn(*fixture, saved);
    onTab(
        *again,
        [](OptionsTab &tab) { QCOMPARE(tab.players()->currentText(), QString("Colour 4")); },
        cancel);
}

// The rows decide what the tab calls a change; the document differs all the same.
void BonusRoundTripTest::anotherPlayerAloneIsAChange()
{
    const QByteArray gold = bytes("07 06 f4010000");
    const auto window = windowOn(*fixture, campaignWith(bytes("01 00 01") + gold));
    onTab(
        *window, [](OptionsTab &tab) { choose(tab.players(), "Colour 4"); }, ok);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(savedBy(*fixture, *window), campaignWith(bytes("01 04 01") + gold));
}

QTEST_MAIN(BonusRoundTripTest)
#include "bonus_round_trip_test.moc"
