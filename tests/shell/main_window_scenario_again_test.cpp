// Into the scenario dialog and out of it more than once, by keys and by the title bar.
#include "scenario/scenario_info.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"

#include <QListWidget>
#include <QSignalSpy>
#include <QTextEdit>
#include <QWindow>

#include <functional>

class MainWindowScenarioAgainTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void returnOpensTheDialogAndAcceptsIt();
    void whatIsClosedOtherwiseIsThrownAway_data();
    void whatIsClosedOtherwiseIsThrownAway();
    void dialogOpensAgain();

private:
    std::unique_ptr<WindowFixture> fixture;
};

namespace {

using Work = std::function<void(ScenarioInfo &)>;

// Opens the dialog with the Return key; `work` has to close it.
void byReturn(MainWindow &window, const Work &work)
{
    window.activateWindow(); // no desktop does it here when a dialog goes
    QVERIFY(QTest::qWaitForWindowActive(&window, longestWait));
    NextDialog next([&](QWidget *widget) {
        auto *dialog = qobject_cast<ScenarioInfo *>(widget);
        if (!dialog) {
            widget->close();
            QFAIL("Another dialog came in the place of the scenario dialog.");
        }
        work(*dialog);
        if (dialog->isVisible()) {
            dialog->reject();
            QFAIL("The scenario dialog did not close.");
        }
    });
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
}

void press(ScenarioInfo &dialog, Qt::Key key)
{
    QTest::keyClick(dialog.windowHandle(), key);
}

} // namespace

// The key that closes the dialog doesn't open it anew.
void MainWindowScenarioAgainTest::returnOpensTheDialogAndAcceptsIt()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const QSignalSpy opened(action(window, "scenarioProperties"), &QAction::triggered);
    for (unsigned region = 1; region < 3; ++region) {
        byReturn(window, [&](ScenarioInfo &dialog) {
            press(dialog, Qt::Key_Down);
            QCOMPARE(dialog.getCurrentRegion(), region);
            press(dialog, Qt::Key_Return);
        });
        QCoreApplication::processEvents();
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(opened.size(), int(region));
        QCOMPARE(EditorData::info.region, region);
        QVERIFY(!EditorData::info.modified);
    }
}

void MainWindowScenarioAgainTest::whatIsClosedOtherwiseIsThrownAway_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("the title bar") << false;
}

void MainWindowScenarioAgainTest::whatIsClosedOtherwiseIsThrownAway()
{
    QFETCH(bool, byKey);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    for (int i = 0; i < 2; ++i) {
        byReturn(window, [&](ScenarioInfo &dialog) {
            auto *text = dialog.findChild<QTextEdit *>("regionTextEdit");
            QCOMPARE(text->toPlainText(), QString());
            text->setPlainText("edited");
            press(dialog, Qt::Key_Down);
            QVERIFY(dialog.hasChanged());
            if (byKey)
                press(dialog, Qt::Key_Escape);
            else
                dialog.windowHandle()->close();
        });
        QVERIFY(!EditorData::info.modified);
        QCOMPARE(EditorData::info.region, 0u);
    }
}

void MainWindowScenarioAgainTest::dialogOpensAgain()
{
    MainWindow window(nullptr);
    window.loadFile(fixture->game.addCampaign(
        "chain.e3c", tiny::campaignWithoutMap(1, QVector<tiny::Scenario>(1))));
    QVERIFY(show(window));
    for (int expected = 1; expected < 4; ++expected) {
        byReturn(window, [&](ScenarioInfo &dialog) {
            QCOMPARE(dialog.findChild<QListWidget *>("listWidget")->count(), expected);
            clickOn(dialog.findChild<QWidget *>("addBtn"));
            press(dialog, Qt::Key_Return);
        });
        QVERIFY(window.findChildren<ScenarioInfo *>().isEmpty());
        QVERIFY(EditorData::info.modified);
    }
    window.saveFile(fixture->game.filePath("Maps/saved.e3c"));
    CampaignData saved;
    QFile file(fixture->game.filePath("Maps/saved.e3c"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!saved.readCampaign(&file));
    QCOMPARE(saved.scenarios.size(), std::size_t(4));
}

QTEST_MAIN(MainWindowScenarioAgainTest)
#include "main_window_scenario_again_test.moc"
