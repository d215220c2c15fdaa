// The dialog with a campaign's properties: what it shows and offers, and what it stores.
#include "campaign_dialogs/edit_campaign.h"
#include "tests/shell/campaign_dialog_support.h"

#include <QCheckBox>
#include <QClipboard>
#include <QTextEdit>

#include <functional>

class EditCampaignTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init();

    void formIsAsLaidOut();
    void showsTheCampaign();
    void musicIsSortedByName();
    void textsAreCutAtTheirLimit_data();
    void textsAreCutAtTheirLimit();
    void typingPastTheLimitMovesToTheEnd();
    void untouchedChangesNothing_data();
    void untouchedChangesNothing();
    void everyControlIsStored_data();
    void everyControlIsStored();
    void whatIsPutBackIsNoChange();
    void anotherRecordTakesWhatIsShown();
    void rightButtonDoesNothing_data();
    void rightButtonDoesNothing();
    void buttonsCloseTheDialog();

private:
    std::unique_ptr<WindowFixture> fixture;
};

namespace {

using Edit = std::function<void(EditCampaign &)>;
using Check = std::function<bool(const CampaignData &)>;

QTextEdit *nameEdit(const EditCampaign &dialog)
{
    return control<QTextEdit>(dialog, "nameEdit");
}

QComboBox *ground(const EditCampaign &dialog)
{
    return control<QComboBox>(dialog, "bgCombobox");
}

QComboBox *music(const EditCampaign &dialog)
{
    return control<QComboBox>(dialog, "musicCombobox");
}

void choose(QComboBox *box, int id)
{
    box->setCurrentIndex(box->findData(id));
}

QString letters(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QChar('a' + i % 26);
    return text;
}

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Check)
Q_DECLARE_METATYPE(CampaignData)

void EditCampaignTest::init()
{
    fixture->reset();
    EditorData::musicNames = {{0, "Zither"}, {1, "Alpenhorn"}, {2, "March"}};
}

void EditCampaignTest::formIsAsLaidOut()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    QCOMPARE(dialog.objectName(), QString("EditCampaign"));
    QCOMPARE(dialog.windowTitle(), QString("Campaign Properties"));
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QCOMPARE(dialog.size(), QSize(591, 451));
    QCOMPARE(textOf(dialog, "label_3"), QString("Name:"));
    QCOMPARE(textOf(dialog, "label_4"), QString("Description"));
    QCOMPARE(textOf(dialog, "label_5"), QString("Music"));
    QCOMPARE(textOf(dialog, "bgLabel"), QString("Background"));
    QCOMPARE(textOf(dialog, "mapLabel"), QString("Map:"));
    QCOMPARE(textOf(dialog, "regionMapName"), QString("Map name"));
    QVERIFY(!control<QLabel>(dialog, "mapLabel")->isVisible());
    QVERIFY(!control<QLabel>(dialog, "regionMapName")->isVisible());
    QCOMPARE(control<QCheckBox>(dialog, "diffCheckbox")->text(),
             QString("Scenario &difficulty is user selectable"));
    QCOMPARE(control<QPushButton>(dialog, "playMusicBtn")->text(), QString("Text 55"));
    const auto *description = control<QTextEdit>(dialog, "descriptionEdit");
    QVERIFY(!nameEdit(dialog)->acceptRichText());
    QVERIFY(!description->acceptRichText());
    QCOMPARE(description->lineWrapMode(), QTextEdit::WidgetWidth);
    QCOMPARE(description->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void EditCampaignTest::showsTheCampaign()
{
    CampaignData campaign = campaignOnMap(3, "m-");
    campaign.name = "Ember <b>Road</b>";
    campaign.description = "Three\nsteps";
    campaign.difficultySelectable = true;
    campaign.musicId = 2;
    EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(nameEdit(dialog)->toPlainText(), campaign.name);
    QCOMPARE(control<QTextEdit>(dialog, "descriptionEdit")->toPlainText(), campaign.description);
    QVERIFY(control<QCheckBox>(dialog, "diffCheckbox")->isChecked());
    QCOMPARE(music(dialog)->currentText(), QString("March"));
    QCOMPARE(textOf(dialog, "bgLabel"), QString("Map"));
    QCOMPARE(ground(dialog)->currentText(), QString("Two Keeps"));
    campaign.difficultySelectable = false;
    const EditCampaign other(nullptr, &campaign);
    QVERIFY(!control<QCheckBox>(other, "diffCheckbox")->isChecked());
}

void EditCampaignTest::musicIsSortedByName()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    const EditCampaign dialog(nullptr, &campaign);
    QCOMPARE(textsOf(music(dialog)), QStringList({"Alpenhorn", "March", "Zither"}));
    QCOMPARE(idsIn(music(dialog)), QVector<int>({1, 2, 0}));
}

void EditCampaignTest::textsAreCutAtTheirLimit_data()
{
    QTest::addColumn<QByteArray>("edit");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("left");
    const QByteArray name = "nameEdit";
    const QByteArray description = "descriptionEdit";
    QTest::newRow("60 stand") << name << letters(60) << letters(60);
    QTest::newRow("61 are cut") << name << letters(61) << letters(60);
    QTest::newRow("500 are cut") << name << letters(500) << letters(60);
    // Each takes two of QString's units.
    QTest::newRow("30 pictures stand")
        << name << QString("😀").repeated(30) << QString("😀").repeated(30);
    QTest::newRow("31 pictures are cut")
        << name << QString("😀").repeated(31) << QString("😀").repeated(30);
    QTest::newRow("no half of a picture is left") << name << letters(59) + "😀" << letters(59);
    QTest::newRow("description of 300") << description << letters(300) << letters(300);
    QTest::newRow("description of 301") << description << letters(301) << letters(300);
}

void EditCampaignTest::textsAreCutAtTheirLimit()
{
    QFETCH(QByteArray, edit);
    QFETCH(QString, pasted);
    QFETCH(QString, left);
    CampaignData campaign = campaignOnBackground(0, "m");
    EditCampaign dialog(nullptr, &campaign);
    auto *text = control<QTextEdit>(dialog, edit);
    QApplication::clipboard()->setText(pasted);
    text->paste();
    QCOMPARE(text->toPlainText(), left);
    QVERIFY(text->textCursor().atEnd());
    dialog.saveInfo(&campaign);
    QCOMPARE(edit == "nameEdit" ? campaign.name : campaign.description, left);
}

void EditCampaignTest::typingPastTheLimitMovesToTheEnd()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    campaign.name = letters(60);
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    nameEdit(dialog)->setFocus();
    nameEdit(dialog)->moveCursor(QTextCursor::End);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_X);
    QCOMPARE(nameEdit(dialog)->toPlainText(), letters(60));
    QVERIFY(nameEdit(dialog)->textCursor().atEnd());
    nameEdit(dialog)->moveCursor(QTextCursor::Start);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_X);
    QCOMPARE(nameEdit(dialog)->toPlainText(), "x" + letters(59));
    QVERIFY(nameEdit(dialog)->textCursor().atEnd());
}

void EditCampaignTest::untouchedChangesNothing_data()
{
    QTest::addColumn<CampaignData>("campaign");
    CampaignData plain = campaignOnMap(24, "mmm");
    plain.name = "Ember Road";
    QTest::newRow("on a map") << plain;
    QTest::newRow("on a background") << campaignOnBackground(1, "m-m");
    CampaignData odd = plain;
    odd.name = QString("Ember\u00a0Road\r\n\u2028\u2029");
    odd.description = "Three\r\nsteps\u00a0on";
    QTest::newRow("line ends and hard spaces") << odd;
    CampaignData lengthy = plain;
    lengthy.name = letters(61);
    lengthy.description = letters(1000);
    QTest::newRow("texts past the limits") << lengthy;
    CampaignData silent = plain;
    silent.musicId = 200;
    QTest::newRow("music that isn't there") << silent;
    QTest::newRow("background that isn't there") << campaignOnBackground(99, "m");
    QTest::newRow("background below the first") << campaignOnBackground(-5, "m");
    QTest::newRow("map that isn't there") << campaignOnMap(99, "");
    QTest::newRow("map with too few regions") << campaignOnMap(3, "mmm");
}

void EditCampaignTest::untouchedChangesNothing()
{
    QFETCH(CampaignData, campaign);
    const CampaignData before = campaign;
    EditCampaign dialog(nullptr, &campaign);
    dialog.saveInfo(&campaign);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(campaign.name, before.name);
    QCOMPARE(campaign.description, before.description);
    QCOMPARE(campaign.musicId, before.musicId);
    QCOMPARE(campaign.difficultySelectable, before.difficultySelectable);
    QCOMPARE(campaign.customValue, before.customValue);
    QCOMPARE(campaign.mapId, before.mapId);
    QCOMPARE(campaign.scenarioCount, before.scenarioCount);
    QCOMPARE(rowsOf(campaign), rowsOf(before));
    QCOMPARE(placesIn(before, campaign), placesIn(before, before));
}

void EditCampaignTest::everyControlIsStored_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Check>("check");
    QTest::newRow("name") << Edit([](EditCampaign &dialog) {
        nameEdit(dialog)->setPlainText("New");
    }) << Check([](const CampaignData &campaign) { return campaign.name == "New"; });
    QTest::newRow("description") << Edit([](EditCampaign &dialog) {
        control<QTextEdit>(dialog, "descriptionEdit")->setPlainText("New\nlines");
    }) << Check([](const CampaignData &campaign) { return campaign.description == "New\nlines"; });
    QTest::newRow("music") << Edit([](EditCampaign &dialog) {
        choose(music(dialog), 2);
    }) << Check([](const CampaignData &campaign) { return campaign.musicId == 2; });
    QTest::newRow("difficulty") << Edit([](EditCampaign &dialog) {
        control<QCheckBox>(dialog, "diffCheckbox")->click();
    }) << Check([](const CampaignData &campaign) { return campaign.difficultySelectable; });
    QTest::newRow("background") << Edit([](EditCampaign &dialog) {
        choose(ground(dialog), 1);
    }) << Check([](const CampaignData &campaign) { return campaign.customValue == 1; });
}

void EditCampaignTest::everyControlIsStored()
{
    QFETCH(Edit, edit);
    QFETCH(Check, check);
    CampaignData campaign = campaignOnBackground(0, "m");
    QVERIFY(!check(campaign));
    EditCampaign dialog(nullptr, &campaign);
    edit(dialog);
    QVERIFY(!check(campaign)); // not before it is saved
    dialog.saveInfo(&campaign);
    QVERIFY(check(campaign));
    QVERIFY(EditorData::info.modified);
}

void EditCampaignTest::whatIsPutBackIsNoChange()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    campaign.name = "Ember\r\nRoad";
    EditCampaign dialog(nullptr, &campaign);
    nameEdit(dialog)->setPlainText("New");
    nameEdit(dialog)->setPlainText("Ember\nRoad");
    choose(music(dialog), 2);
    choose(music(dialog), 1);
    choose(ground(dialog), 1);
    choose(ground(dialog), 0);
    dialog.saveInfo(&campaign);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(campaign.name, QString("Ember\r\nRoad"));
}

// Each value is held against the record that is saved to, not against the one that was shown.
void EditCampaignTest::anotherRecordTakesWhatIsShown()
{
    CampaignData shown = campaignOnBackground(1, "m");
    shown.name = "Ember Road";
    shown.description = "Three steps";
    shown.difficultySelectable = true;
    CampaignData other = campaignOnBackground(0, "m");
    other.name = "Old";
    other.description = "Older";
    other.musicId = 2;
    EditCampaign dialog(nullptr, &shown);
    dialog.saveInfo(&other);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(other.name, QString("Ember Road"));
    QCOMPARE(other.description, QString("Three steps"));
    QCOMPARE(int(other.musicId), 1);
    QVERIFY(other.difficultySelectable);
    QCOMPARE(other.customValue, 1);
}

void EditCampaignTest::rightButtonDoesNothing_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::newRow("background") << QByteArray("bgCombobox");
    QTest::newRow("music") << QByteArray("musicCombobox");
}

void EditCampaignTest::rightButtonDoesNothing()
{
    QFETCH(QByteArray, box);
    CampaignData campaign = campaignOnBackground(0, "m");
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    verifyRightClicksDoNothing(control<QComboBox>(dialog, box));
}

void EditCampaignTest::buttonsCloseTheDialog()
{
    CampaignData campaign = campaignOnBackground(0, "m");
    EditCampaign dialog(nullptr, &campaign);
    {
        const NextDialog answer([&](QWidget *) { press(dialog, QDialogButtonBox::Ok); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    EditCampaign other(nullptr, &campaign);
    const NextDialog answer([&](QWidget *) { press(other, QDialogButtonBox::Cancel); });
    QCOMPARE(other.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(EditCampaignTest)
#include "edit_campaign_test.moc"
