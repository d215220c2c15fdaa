// The folders in which the window's file dialogs begin, and when a chosen one is remembered.
#include "gamedata/game_dir.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/disk_faults.h"

#include <QDir>

class MainWindowFoldersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init();
    void cleanup() { setGameRoot(fixture->game.path()); }

    void dialogsBeginInTheMapsFolder_data();
    void dialogsBeginInTheMapsFolder();
    void folderOfAFileThatCannotBeReadIsRemembered();
    void folderOfAFileThatCannotBeWrittenIsRemembered();

private:
    static QByteArray usedFolder() { return ini->GetStringVal("Campaign Editor", "Path", ""); }
    QString path(const QString &name) const { return folder->filePath(name); }

    std::unique_ptr<WindowFixture> fixture;
    std::unique_ptr<QTemporaryDir> folder;
};

void MainWindowFoldersTest::init()
{
    fixture->reset();
    folder = std::make_unique<QTemporaryDir>();
}

void MainWindowFoldersTest::dialogsBeginInTheMapsFolder_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<bool>("behindLinks");
    const QStringList campaigns{"Eldmark Saga campaign (*.e3c)", "All Files (*)"};
    const QStringList texts{"Text files (*.txt)", "All Files (*)"};
    QTest::newRow("actionOpen") << "Open Map File"
                                << "" << campaigns << true;
    QTest::newRow("actionSave_As") << "Save As"
                                   << "Untitled" << campaigns << false;
    QTest::newRow("actionImport_Texts") << "Open"
                                        << "" << texts << false;
}

// Of a game that is reached by a link, opening shows the folder itself.
void MainWindowFoldersTest::dialogsBeginInTheMapsFolder()
{
    QFETCH(QString, caption);
    QFETCH(QString, name);
    QFETCH(QStringList, filters);
    QFETCH(bool, behindLinks);
    const QString link = path("game");
    QVERIFY(QFile::link(fixture->game.path(), link));
    setGameRoot(link);
    const QString itself = QDir(fixture->game.path()).canonicalPath();
    MainWindow window(nullptr);
    const NextDialog dialog(
        chooseFile({caption, (behindLinks ? itself : link) + "/Maps", name, filters}, ""));
    action(window, QTest::currentDataTag())->trigger();
}

void MainWindowFoldersTest::folderOfAFileThatCannotBeReadIsRemembered()
{
    QFile file(path("torn.e3c"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    MainWindow window(nullptr);
    const NextDialog dialog(
        chooseFile("Open Map File", fixture->game.filePath("Maps"), "", file.fileName()));
    const NextDialog box(boxAnswer({"Error", "Incorrect or damaged file.", QMessageBox::Critical}));
    action(window, "actionOpen")->trigger();
    QCOMPARE(usedFolder(), folder->path().toUtf8());
}

void MainWindowFoldersTest::folderOfAFileThatCannotBeWrittenIsRemembered()
{
    MainWindow window(nullptr);
    const QString file = path("large.e3c");
    const NextDialog dialog(
        chooseFile("Save As", fixture->game.filePath("Maps"), "Untitled", file));
    const NextDialog box(boxAnswer(
        {"Error", "Cannot write file " + file + ":\nFile too large.", QMessageBox::Warning}));
    const FileSizeLimit limit(20);
    action(window, "actionSave_As")->trigger();
    QCOMPARE(usedFolder(), folder->path().toUtf8());
    QCOMPARE(window.windowTitle(), QString("Untitled.e3c - Tiny Campaign Editor"));
}

QTEST_MAIN(MainWindowFoldersTest)
#include "main_window_folders_test.moc"
