// The list of recent files, in the menu and in the settings.
#include "tests/shell/window_fixture.h"

namespace {

const QString title = "Tiny Campaign Editor";

QVector<QAction *> recentActions(MainWindow &window)
{
    QVector<QAction *> visible;
    const auto actions = window.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction *entry : actions) {
        if (entry->isVisible() && entry->data().isValid())
            visible.append(entry);
    }
    return visible;
}

} // namespace

class MainWindowRecentFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init();

    void recentFilesStartWithTheNewest();
    void sixthRecentFileDropsTheOldest();
    void listThatIsTooLongIsCut();
    void reopenedRecentFileMovesToTheTop();
    void vanishedRecentFileStaysInTheList();
    void vanishedRecentFileIsLookedForBehindTheQuestion_data();
    void vanishedRecentFileIsLookedForBehindTheQuestion();
    void recentFilesReachEveryWindow();
    void ampersandInANameIsShown();

private:
    std::unique_ptr<WindowFixture> fixture;
    QString first;
    QString second;
};

void MainWindowRecentFilesTest::init()
{
    fixture->reset();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{true, 1}, {false, 3}, {}}));
    second = fixture->game.addCampaign("second.e3c", tiny::campaign(3, {{}, {true, 5}}));
}

void MainWindowRecentFilesTest::recentFilesStartWithTheNewest()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    window.loadFile(second);
    const auto actions = recentActions(window);
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions[0]->text(), QString("&1 second.e3c"));
    QCOMPARE(actions[0]->data().toString(), second);
    QCOMPARE(actions[1]->text(), QString("&2 first.e3c"));
    actions[1]->trigger();
    QCOMPARE(window.windowTitle(), "first.e3c - " + title);
}

void MainWindowRecentFilesTest::sixthRecentFileDropsTheOldest()
{
    MainWindow window(nullptr);
    QStringList expected;
    for (int i = 1; i <= 6; ++i) {
        const QString path =
            fixture->game.addCampaign(QString("n%1.e3c").arg(i), tiny::campaign(3, {{}, {}}));
        window.loadFile(path);
        expected.prepend(path);
    }
    expected.removeLast();
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(), expected);
    const auto actions = recentActions(window);
    QCOMPARE(actions.size(), 5);
    QCOMPARE(actions[4]->text(), QString("&5 n2.e3c"));
}

// As another version may have left it.
void MainWindowRecentFilesTest::listThatIsTooLongIsCut()
{
    QStringList files;
    for (int i = 1; i <= 8; ++i)
        files << QString("/gone/n%1.e3c").arg(i);
    files.insert(2, first);
    files << first;
    QSettings("cmped_info", "").setValue("recentFileList", files);
    MainWindow window(nullptr);
    const auto actions = recentActions(window);
    QCOMPARE(actions.size(), 5);
    QCOMPARE(actions[4]->data().toString(), QString("/gone/n4.e3c"));
    actions[2]->trigger();
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(),
             QStringList({first, "/gone/n1.e3c", "/gone/n2.e3c", "/gone/n3.e3c", "/gone/n4.e3c"}));
}

void MainWindowRecentFilesTest::reopenedRecentFileMovesToTheTop()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    window.loadFile(second);
    window.loadFile(first);
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(),
             QStringList({first, second}));
}

void MainWindowRecentFilesTest::vanishedRecentFileStaysInTheList()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    window.loadFile(second);
    QFile::remove(first);
    NextDialog box(
        boxAnswer({"Error", "Cannot read file " + first + ":\nNo such file or directory.",
                   QMessageBox::Warning}));
    recentActions(window)[1]->trigger();
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(),
             QStringList({second, first}));
}

void MainWindowRecentFilesTest::vanishedRecentFileIsLookedForBehindTheQuestion_data()
{
    QTest::addColumn<int>("press");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("Cancel") << int(QMessageBox::Cancel);
}

void MainWindowRecentFilesTest::vanishedRecentFileIsLookedForBehindTheQuestion()
{
    QFETCH(int, press);
    MainWindow window(nullptr);
    window.loadFile(first);
    window.loadFile(second);
    QFile::remove(first);
    EditorData::info.modified = true;
    const NextDialog question(boxAnswer({title, "Save changes to second?", QMessageBox::NoIcon,
                                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                         QMessageBox::StandardButton(press)}));
    std::unique_ptr<NextDialog> told;
    if (press == int(QMessageBox::No)) {
        told = std::make_unique<NextDialog>(
            boxAnswer({"Error", "Cannot read file " + first + ":\nNo such file or directory.",
                       QMessageBox::Warning}));
    }
    recentActions(window)[1]->trigger();
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window.campaignId, 3U);
}

void MainWindowRecentFilesTest::recentFilesReachEveryWindow()
{
    MainWindow window(nullptr);
    MainWindow other(nullptr);
    window.loadFile(first);
    QCOMPARE(recentActions(other).size(), 1);
}

void MainWindowRecentFilesTest::ampersandInANameIsShown()
{
    const QString path =
        fixture->game.addCampaign("Salt & Iron&Bread.e3c", tiny::campaign(3, {{}, {}}));
    MainWindow window(nullptr);
    window.loadFile(path);
    // Doubled in a menu's text it stands for itself.
    QCOMPARE(recentActions(window)[0]->text(), QString("&1 Salt && Iron&&Bread.e3c"));
    QCOMPARE(recentActions(window)[0]->data().toString(), path);
}

QTEST_MAIN(MainWindowRecentFilesTest)
#include "main_window_recent_files_test.moc"
