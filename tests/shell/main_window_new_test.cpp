// The command for a new campaign: from the dialog to the document and its file.
#include "tests/shell/window_fixture.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace {

const QString title = "Tiny Campaign Editor";

// Chooses a kind and a row of the dialog with clicks and presses OK.
NextDialog::Answer chooseCampaign(const char *kind, int row)
{
    return [=](QWidget *dialog) {
        clickOn(dialog->findChild<QRadioButton *>(kind), QPoint(8, 8));
        auto *list = dialog->findChild<QListWidget *>("listWidget");
        clickOn(list->viewport(), list->visualItemRect(list->item(row)).center());
        auto *buttons = dialog->findChild<QDialogButtonBox *>("buttonBox");
        clickOn(static_cast<QWidget *>(buttons->button(QDialogButtonBox::Ok)));
    };
}

} // namespace

class MainWindowNewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init();

    void newCampaignWithMap();
    void newCampaignWithoutMap();
    void newCampaignCancelledChangesNothing();
    void newNeitherAsksNorTouchesTheFlag();
    void newCampaignsAreSavedAndOpenedAgain();

private:
    std::unique_ptr<WindowFixture> fixture;
    QString first;
    QString second;
};

void MainWindowNewTest::init()
{
    fixture->reset();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{true, 1}, {false, 3}, {}}));
    second = fixture->game.addCampaign("second.e3c", tiny::campaign(3, {{}, {true, 5}}));
}

void MainWindowNewTest::newCampaignWithMap()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.loadFile(first);
    EditorData::info.region = 2;
    NextDialog dialog([](QWidget *widget) {
        widget->findChild<QListWidget *>("listWidget")->setCurrentRow(1);
        clickOn(static_cast<QWidget *>(
            widget->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)));
    });
    action(window, "actionNew")->trigger();
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
    QCOMPARE(window.campaignId, 3U);
    QCOMPARE(EditorData::info.campaign, 3U);
    QCOMPARE(EditorData::info.region, 0U);
    QCOMPARE(regionsOf(window).size(), 2);
    QCOMPARE(regionNameIn(window), QString("West Keep"));
}

void MainWindowNewTest::newCampaignWithoutMap()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.loadFile(second);
    NextDialog dialog([](QWidget *widget) {
        clickOn(widget->findChild<QRadioButton *>("campaignWithoutMapBtn"), QPoint(8, 8));
        widget->findChild<QListWidget *>("listWidget")->setCurrentRow(1);
        clickOn(static_cast<QWidget *>(
            widget->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)));
    });
    action(window, "actionNew")->trigger();
    QCOMPARE(window.campaignId, 24U);
    QCOMPARE(regionNameIn(window), QString());
    const auto items = mapView(window)->scene()->items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(pixelOf(qgraphicsitem_cast<QGraphicsPixmapItem *>(items[0]), 0, 0),
             tiny::backgroundColour("plaintwo.pcx"));
    QCOMPARE(window.getRegionColor(0), 2);
}

void MainWindowNewTest::newCampaignCancelledChangesNothing()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.loadFile(second);
    NextDialog dialog([](QWidget *widget) {
        widget->findChild<QListWidget *>("listWidget")->setCurrentRow(0);
        clickOn(static_cast<QWidget *>(
            widget->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Cancel)));
    });
    action(window, "actionNew")->trigger();
    QCOMPARE(window.windowTitle(), "second.e3c - " + title);
    QCOMPARE(window.campaignId, 3U);
}

void MainWindowNewTest::newNeitherAsksNorTouchesTheFlag()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.loadFile(second);
    EditorData::info.modified = true;
    NextDialog dialog([](QWidget *widget) {
        QCOMPARE(widget->objectName(), QString("newcampaign"));
        clickOn(static_cast<QWidget *>(
            widget->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)));
    });
    action(window, "actionNew")->trigger();
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
}

void MainWindowNewTest::newCampaignsAreSavedAndOpenedAgain()
{
    const QString maps = fixture->game.filePath("Maps");
    MainWindow window(nullptr);
    QVERIFY(show(window));
    {
        NextDialog kind(chooseCampaign("campaignWithMapBtn", 1));
        action(window, "actionNew")->trigger();
    }
    {
        NextDialog name(chooseFile("Save As", maps, "Untitled", maps + "/with"));
        action(window, "actionSave")->trigger();
    }
    QCOMPARE(window.windowTitle(), "with.e3c - " + title);
    {
        NextDialog kind(chooseCampaign("campaignWithoutMapBtn", 1));
        action(window, "actionNew")->trigger();
    }
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
    {
        NextDialog name(chooseFile("Save As", maps, "Untitled", maps + "/without"));
        action(window, "actionSave")->trigger();
    }
    MainWindow other(nullptr);
    {
        NextDialog name(chooseFile("Open Map File", maps, "", maps + "/with.e3c"));
        action(other, "actionOpen")->trigger();
    }
    QCOMPARE(other.campaignId, 3U);
    QCOMPARE(regionsOf(other).size(), 2);
    QVERIFY(!regionsOf(other)[0]->hasScenario);
    QCOMPARE(regionNameIn(other), QString("West Keep"));
    {
        NextDialog name(chooseFile("Open Map File", maps, "", maps + "/without.e3c"));
        action(other, "actionOpen")->trigger();
    }
    QCOMPARE(other.windowTitle(), "without.e3c - " + title);
    QCOMPARE(other.campaignId, 24U);
    QCOMPARE(regionNameIn(other), QString());
    const auto items = mapView(other)->scene()->items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(pixelOf(qgraphicsitem_cast<QGraphicsPixmapItem *>(items[0]), 0, 0),
             tiny::backgroundColour("plaintwo.pcx"));
}

QTEST_MAIN(MainWindowNewTest)
#include "main_window_new_test.moc"
