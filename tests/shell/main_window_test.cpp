// The window itself: its form, menus, hints and the dialog about the program.
#include "shell/editor_resources.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolBar>

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void actionsHaveTextsShortcutsAndIcons_data();
    void actionsHaveTextsShortcutsAndIcons();
    void menusHoldTheirActionsInOrder_data();
    void menusHoldTheirActionsInOrder();
    void menuTitles();
    void toolBarHoldsFourActions();
    void toolTipsComeFromTheGameAndGoToTheHint_data();
    void toolTipsComeFromTheGameAndGoToTheHint();
    void convertActionHasNoHint();
    void recentFileActionsAreHiddenAtFirst();
    void allCommandsAreEnabled();
    void statusBarHoldsHintLineAndRegion();
    void pagesAreTwoEmptyOnesAndTheMap();
    void startsAsUntitledDummyOfMap24();
    void titleOfTheForm();
    void returnKeysHaveWindowShortcuts();
    void keysOpenTheProperties_data();
    void keysOpenTheProperties();
    void aboutTellsTheGamesTexts();
    void windowHasTheIcon();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void MainWindowTest::actionsHaveTextsShortcutsAndIcons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("icon");
    QTest::newRow("actionNew") << "&New..."
                               << "Ctrl+N"
                               << ":/icons/new_file.svg";
    QTest::newRow("actionOpen") << "Open..."
                                << "Ctrl+O"
                                << ":/icons/open.svg";
    QTest::newRow("actionSave") << "Save"
                                << "Ctrl+S"
                                << ":/icons/save.svg";
    QTest::newRow("actionSave_As") << "Save As..."
                                   << ""
                                   << "";
    QTest::newRow("actionExport_Texts") << "Export Texts..."
                                        << ""
                                        << "";
    QTest::newRow("actionImport_Texts") << "Import Texts..."
                                        << ""
                                        << "";
    QTest::newRow("actionRefresh_Scenario_Maps") << "Refresh Scenario Maps"
                                                 << "Ctrl+R"
                                                 << "";
    QTest::newRow("actionExport_Scenario_Maps") << "Export Scenario Maps"
                                                << "Ctrl+E"
                                                << "";
    QTest::newRow("actionExit") << "Exit"
                                << ""
                                << "";
    QTest::newRow("campaignProperties") << "Campaign Properties"
                                        << "Ctrl+Enter"
                                        << "";
    QTest::newRow("scenarioProperties") << "Scenario Properties"
                                        << "Enter"
                                        << ":/icons/edit.svg";
    QTest::newRow("actionAbout") << "About Campaign Editor..."
                                 << ""
                                 << "";
    QTest::newRow("actionConvertCmp") << "Convert campaign..."
                                      << ""
                                      << "";
}

void MainWindowTest::actionsHaveTextsShortcutsAndIcons()
{
    QFETCH(QString, text);
    QFETCH(QString, shortcut);
    QFETCH(QString, icon);
    MainWindow window(nullptr);
    const QAction *found = action(window, QTest::currentDataTag());
    QVERIFY(found);
    QCOMPARE(found->text(), text);
    QCOMPARE(found->shortcut().toString(QKeySequence::PortableText), shortcut);
    QCOMPARE(found->icon().isNull(), icon.isEmpty());
    if (!icon.isEmpty())
        QCOMPARE(found->icon().pixmap(25, 25).toImage(), QIcon(icon).pixmap(25, 25).toImage());
}

void MainWindowTest::menusHoldTheirActionsInOrder_data()
{
    QTest::addColumn<QStringList>("names");
    const QString line = "-";
    const QString recent = "recent";
    QTest::newRow("menuFile") << QStringList{"actionNew",
                                             "actionOpen",
                                             "actionSave",
                                             "actionSave_As",
                                             line,
                                             "actionExport_Texts",
                                             "actionImport_Texts",
                                             line,
                                             "actionRefresh_Scenario_Maps",
                                             "actionExport_Scenario_Maps",
                                             line,
                                             recent,
                                             recent,
                                             recent,
                                             recent,
                                             recent,
                                             line,
                                             "actionExit"};
    QTest::newRow("menuEdit") << QStringList{"campaignProperties", "scenarioProperties",
                                             "actionConvertCmp"};
    QTest::newRow("menuHelp") << QStringList{"actionAbout"};
}

void MainWindowTest::menusHoldTheirActionsInOrder()
{
    QFETCH(QStringList, names);
    MainWindow window(nullptr);
    QStringList found;
    const auto actions = window.findChild<QMenu *>(QTest::currentDataTag())->actions();
    for (const QAction *entry : actions) {
        if (entry->isSeparator())
            found << "-";
        else
            found << (entry->objectName().isEmpty() ? "recent" : entry->objectName());
    }
    QCOMPARE(found, names);
}

void MainWindowTest::menuTitles()
{
    MainWindow window(nullptr);
    QStringList titles;
    const auto menus = window.menuBar()->actions();
    for (const QAction *menu : menus)
        titles << menu->text();
    QCOMPARE(titles, QStringList({"File", "Edit", "Help"}));
    QCOMPARE(window.menuBar()->objectName(), QString("menuBar"));
    QCOMPARE(window.menuBar()->contextMenuPolicy(), Qt::PreventContextMenu);
}

void MainWindowTest::toolBarHoldsFourActions()
{
    MainWindow window(nullptr);
    const auto *bar = window.findChild<QToolBar *>("toolBar");
    QVERIFY(bar);
    QStringList found;
    const auto actions = bar->actions();
    for (const QAction *entry : actions)
        found << (entry->isSeparator() ? "-" : entry->objectName());
    QCOMPARE(found,
             QStringList({"actionNew", "actionOpen", "actionSave", "-", "scenarioProperties"}));
    QVERIFY(!bar->isMovable());
    QVERIFY(bar->isFloatable());
    QCOMPARE(bar->allowedAreas(), Qt::ToolBarAreas(Qt::NoToolBarArea));
    QCOMPARE(bar->iconSize(), QSize(25, 25));
    QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QCOMPARE(bar->contextMenuPolicy(), Qt::PreventContextMenu);
    QCOMPARE(window.toolBarArea(const_cast<QToolBar *>(bar)), Qt::TopToolBarArea);
}

void MainWindowTest::toolTipsComeFromTheGameAndGoToTheHint_data()
{
    QTest::addColumn<QString>("hint");
    QTest::newRow("actionNew") << "Hint 1";
    QTest::newRow("actionOpen") << "Hint 2";
    QTest::newRow("actionSave") << "Hint 3";
    QTest::newRow("actionSave_As") << "Hint 4";
    QTest::newRow("actionExport_Texts") << "Hint 20";
    QTest::newRow("actionImport_Texts") << "Hint 21";
    QTest::newRow("actionExport_Scenario_Maps") << "Hint 17";
    QTest::newRow("actionRefresh_Scenario_Maps") << "Hint 16";
    QTest::newRow("actionExit") << "Hint 6";
    QTest::newRow("scenarioProperties") << "Hint 19";
    QTest::newRow("campaignProperties") << "Hint 18";
    QTest::newRow("actionAbout") << "Hint 5";
}

void MainWindowTest::toolTipsComeFromTheGameAndGoToTheHint()
{
    QFETCH(QString, hint);
    MainWindow window(nullptr);
    QAction *found = action(window, QTest::currentDataTag());
    QCOMPARE(found->toolTip(), hint);
    QCOMPARE(hintOf(window), QString("Hint 0"));
    found->hover();
    QCOMPARE(hintOf(window), hint);
}

void MainWindowTest::convertActionHasNoHint()
{
    MainWindow window(nullptr);
    action(window, "actionConvertCmp")->hover();
    QCOMPARE(hintOf(window), QString("Hint 0"));
}

void MainWindowTest::recentFileActionsAreHiddenAtFirst()
{
    MainWindow window(nullptr);
    const auto entries = window.findChild<QMenu *>("menuFile")->actions();
    for (int i = 11; i < 16; ++i) {
        QVERIFY(!entries[i]->isVisible());
        QCOMPARE(entries[i]->text(), QString("File"));
        QCOMPARE(entries[i]->toolTip(), QString("Hint 9"));
        entries[i]->hover();
        QCOMPARE(hintOf(window), QString("Hint 9"));
    }
}

void MainWindowTest::allCommandsAreEnabled()
{
    MainWindow window(nullptr);
    for (const char *name :
         {"actionNew", "actionOpen", "actionSave", "actionSave_As", "actionExport_Texts",
          "actionImport_Texts", "actionRefresh_Scenario_Maps", "actionExport_Scenario_Maps",
          "actionExit", "campaignProperties", "scenarioProperties", "actionConvertCmp",
          "actionAbout"})
        QVERIFY2(action(window, name)->isEnabled(), name);
}

void MainWindowTest::statusBarHoldsHintLineAndRegion()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const auto *hint = statusLabel(window, 0);
    const auto *region = statusLabel(window, 1);
    QVERIFY(hint && region);
    QCOMPARE(hint->text(), QString("Hint 0"));
    QCOMPARE(region->text(), QString("Alder Bay"));
    QVERIFY(hint->x() < region->x());
    QCOMPARE(hint->font().pointSize(), 8);
    QCOMPARE(region->font().pointSize(), 8);
    QCOMPARE(hint->textFormat(), Qt::PlainText);
    const auto *statusBar = window.findChild<QStatusBar *>("statusBar");
    QVERIFY(statusBar);
    const auto frames = statusBar->findChildren<QFrame *>();
    const auto found = std::find_if(frames.begin(), frames.end(), [](const QFrame *frame) {
        return frame->frameShape() == QFrame::VLine;
    });
    QVERIFY(found != frames.end());
    const QFrame *line = *found;
    QCOMPARE(int(line->frameShape()), 5);
    QCOMPARE(int(line->frameShadow()), 0x30);
    QVERIFY(line->x() > hint->x() && line->x() < region->x());
}

void MainWindowTest::pagesAreTwoEmptyOnesAndTheMap()
{
    MainWindow window(nullptr);
    const auto *pages = window.findChild<QStackedWidget *>("stackedWidget");
    QCOMPARE(pages->count(), 3);
    QCOMPARE(pages->widget(0)->objectName(), QString("page"));
    QCOMPARE(pages->widget(1)->objectName(), QString("page_2"));
    QCOMPARE(pages->currentWidget()->objectName(), QString("MapBrowser"));
    QCOMPARE(pages->frameShape(), QFrame::NoFrame);
    QCOMPARE(pages->lineWidth(), 0);
    QCOMPARE(pages->parentWidget()->objectName(), QString("centralWidget"));
}

void MainWindowTest::startsAsUntitledDummyOfMap24()
{
    MainWindow window(nullptr);
    QCOMPARE(window.windowTitle(), QString("Untitled.e3c - Tiny Campaign Editor"));
    QCOMPARE(window.campaignId, 24U);
    QCOMPARE(window.currentRegion, 0U);
    QCOMPARE(EditorData::info.campaign, 24U);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window.getRegionColor(0), 2);
    QCOMPARE(window.getRegionColor(3), 2);
    QCOMPARE(window.getRegionColor(-1), 2);
}

void MainWindowTest::titleOfTheForm()
{
    MainWindow window(nullptr);
    EditorData::info.modified = true;
    window.updateWindowTitle();
    QCOMPARE(window.windowTitle(), QString("Untitled.e3c - Tiny Campaign Editor"));
}

void MainWindowTest::returnKeysHaveWindowShortcuts()
{
    MainWindow window(nullptr);
    QStringList keys;
    const auto shortcuts = window.findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        QCOMPARE(shortcut->context(), Qt::WindowShortcut);
        keys << shortcut->key().toString(QKeySequence::PortableText);
    }
    QCOMPARE(keys, QStringList({"Return", "Ctrl+Return"}));
}

void MainWindowTest::keysOpenTheProperties_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("name");
    const int none = int(Qt::NoModifier);
    const int keypad = int(Qt::KeypadModifier);
    const int control = int(Qt::ControlModifier);
    QTest::newRow("Return") << int(Qt::Key_Return) << none << "scenarioProperties";
    QTest::newRow("Enter") << int(Qt::Key_Enter) << keypad << "scenarioProperties";
    QTest::newRow("Ctrl+Return") << int(Qt::Key_Return) << control << "campaignProperties";
    QTest::newRow("Ctrl+Enter") << int(Qt::Key_Enter) << (keypad | control) << "campaignProperties";
}

void MainWindowTest::keysOpenTheProperties()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, name);
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, longestWait));
    QStringList opened;
    for (const char *command : {"scenarioProperties", "campaignProperties"}) {
        connect(action(window, command), &QAction::triggered, &window,
                [&opened, command] { opened << command; });
    }
    const NextDialog properties(closingDialog(
        name == "scenarioProperties" ? "Scenario Properties" : "Campaign Properties"));
    QTest::keyClick(window.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(opened, QStringList(name));
}

void MainWindowTest::aboutTellsTheGamesTexts()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    NextDialog about([](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("AboutCmpEd"));
        QCOMPARE(dialog->windowTitle(), QString("About Campaign Editor"));
        QVERIFY(dialog->isModal());
        QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
        QCOMPARE(dialog->size(), QSize(480, 301));
        const auto *label = dialog->findChild<QLabel *>("label");
        QCOMPARE(label->text(), QString("Tiny Campaign Editor\nVersion Ravn\n\nText 7\n\nText 1"));
        QVERIFY(label->wordWrap());
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(dialog->findChild<QFrame *>("frame"));
        const auto *icon = dialog->findChild<QLabel *>("icon");
        QVERIFY(icon->pixmap(Qt::ReturnByValue).width() > 0);
        QVERIFY(icon->hasScaledContents());
        clickOn(dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok));
    });
    action(window, "actionAbout")->trigger();
}

// The file's own picture of each size, and only of those that are shown somewhere.
void MainWindowTest::windowHasTheIcon()
{
    initEditorResources();
    QApplication::setWindowIcon(applicationIcon());
    const MainWindow window(nullptr);
    const QList<QSize> sizes{{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}};
    QCOMPARE(window.windowIcon().availableSizes(), sizes);
    const QIcon whole(":/icons/cmped.ico");
    for (const QSize size : sizes)
        QCOMPARE(window.windowIcon().pixmap(size).toImage(), whole.pixmap(size).toImage());
    QApplication::setWindowIcon({});
}

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
