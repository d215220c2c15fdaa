// Saving: where to, what is told of a save that fails, and what stays then.
#include "tests/shell/window_fixture.h"
#include "tests/support/disk_faults.h"
#include "tests/support/file_contents.h"

#include <QDir>

namespace {

const QString title = "Tiny Campaign Editor";

} // namespace

class MainWindowSavingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init();

    void saveOfUntitledAsksForAName();
    void saveAsCancelledChangesNothing();
    void saveAsStartsWithTheBaseName();
    void saveWritesTheCurrentFile();
    void saveThatFailsTellsAndStaysModified();
    void saveAtALimitKeepsTheOldFile();
    void saveOnAFullDiskKeepsTheOldFile();
    void chosenFolderIsKeptAsUtf8();

private:
    void saveFails(MainWindow &window, const QString &path, const QString &reason);
    QString home(const QString &name) { return fixture->game.filePath("Maps/" + name); }

    std::unique_ptr<WindowFixture> fixture;
    QString first;
    QString second;
};

void MainWindowSavingTest::init()
{
    fixture->reset();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{true, 1}, {false, 3}, {}}));
    second = fixture->game.addCampaign("second.e3c", tiny::campaign(3, {{}, {true, 5}}));
}

void MainWindowSavingTest::saveOfUntitledAsksForAName()
{
    MainWindow window(nullptr);
    const QString path = home("made.e3c");
    QFile::remove(path);
    EditorData::info.modified = true;
    NextDialog dialog(chooseFile("Save As", home("").chopped(1), "Untitled", home("made")));
    action(window, "actionSave")->trigger();
    QVERIFY(QFile::exists(path));
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window.windowTitle(), "made.e3c - " + title);
    QCOMPARE(QString(ini->GetStringVal("Campaign Editor", "Path", "")), QFileInfo(path).path());
    QVERIFY(!QApplication::overrideCursor());
    MainWindow again(nullptr);
    again.loadFile(path);
    QCOMPARE(again.windowTitle(), "made.e3c - " + title);
}

void MainWindowSavingTest::saveAsCancelledChangesNothing()
{
    MainWindow window(nullptr);
    EditorData::info.modified = true;
    NextDialog dialog(chooseFile("Save As", home("").chopped(1), "Untitled", ""));
    action(window, "actionSave")->trigger();
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
    QCOMPARE(QByteArray(ini->GetStringVal("Campaign Editor", "Path", "x")), QByteArray());
    QVERIFY(QSettings("cmped_info", "").value("recentFileList").toStringList().isEmpty());
}

void MainWindowSavingTest::saveAsStartsWithTheBaseName()
{
    MainWindow window(nullptr);
    window.loadFile(second);
    const QString copy = home("copy.e3c");
    QFile::remove(copy);
    NextDialog dialog(chooseFile("Save As", home("").chopped(1), "second", copy));
    action(window, "actionSave_As")->trigger();
    QVERIFY(QFile::exists(copy));
    QCOMPARE(window.windowTitle(), "copy.e3c - " + title);
}

void MainWindowSavingTest::saveWritesTheCurrentFile()
{
    MainWindow window(nullptr);
    window.loadFile(second);
    QFile::remove(second);
    EditorData::info.modified = true;
    action(window, "actionSave")->trigger();
    QVERIFY(QFile::exists(second));
    QVERIFY(!EditorData::info.modified);
    window.loadFile(second);
    QVERIFY(regionsOf(window)[1]->hasScenario);
}

void MainWindowSavingTest::saveThatFailsTellsAndStaysModified()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    EditorData::info.modified = true;
    const QString path = home("no/such/folder.e3c");
    NextDialog box(
        boxAnswer({"Error", "Cannot write file " + path + ":\nNo such file or directory.",
                   QMessageBox::Warning}));
    window.saveFile(path);
    QVERIFY(box.came());
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window.windowFilePath(), first);
    QVERIFY(!QApplication::overrideCursor());
}

// A save that tells its reason and leaves the file, the flag and the title's mark as they are.
void MainWindowSavingTest::saveFails(MainWindow &window, const QString &path, const QString &reason)
{
    const QByteArray before = contents(path);
    QVERIFY(!before.isEmpty());
    EditorData::info.modified = true;
    window.updateWindowTitle();
    NextDialog box(boxAnswer(
        {"Error", "Cannot write file " + path + ":\n" + reason + ".", QMessageBox::Warning}));
    action(window, "actionSave")->trigger();
    QVERIFY(box.came());
    QCOMPARE(contents(path), before);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window.windowTitle(), QFileInfo(path).fileName() + "* - " + title);
    QCOMPARE(QDir(QFileInfo(path).path()).entryList(QDir::Files).filter(".e3c."), QStringList());
    QVERIFY(!QApplication::overrideCursor());
}

void MainWindowSavingTest::saveAtALimitKeepsTheOldFile()
{
    MainWindow window(nullptr);
    window.loadFile(second);
    const FileSizeLimit limit(20);
    saveFails(window, second, "File too large");
}

void MainWindowSavingTest::saveOnAFullDiskKeepsTheOldFile()
{
    const SmallDisk disk(16);
    if (!disk.isMounted())
        QSKIP("no right to mount a disk here");
    const QString path = disk.path("second.e3c");
    QVERIFY(QFile::copy(second, path));
    MainWindow window(nullptr);
    window.loadFile(path);
    QFile filler(disk.path("filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    saveFails(window, path, "No space left on device");
}

void MainWindowSavingTest::chosenFolderIsKeptAsUtf8()
{
    const QTemporaryDir work;
    const QString folder = work.filePath(QString::fromUtf8("Карты é"));
    QVERIFY(QDir().mkdir(folder));
    const QString path = folder + "/a.e3c";
    MainWindow window(nullptr);
    {
        NextDialog dialog(chooseFile("Save As", home("").chopped(1), "Untitled", path));
        action(window, "actionSave")->trigger();
    }
    QCOMPARE(QByteArray(ini->GetStringVal("Campaign Editor", "Path", "")), folder.toUtf8());
    NextDialog dialog(chooseFile("Open Map File", folder, "", ""));
    action(window, "actionOpen")->trigger();
}

QTEST_MAIN(MainWindowSavingTest)
#include "main_window_saving_test.moc"
