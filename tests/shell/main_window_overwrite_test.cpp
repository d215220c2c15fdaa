// Saving over a file that another program has changed since it was opened or saved here.
#include "tests/shell/exchange_window.h"
#include "tests/support/child_process.h"
#include "tests/support/disk_faults.h"
#include "tests/support/safe_save_support.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QTranslator>

#include <functional>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// What another program does at once when a save has put its file in place; nothing if empty.
std::function<void()> whenReplaced;

} // namespace

// Stands before the C library's.
extern "C" __attribute__((visibility("default"))) int rename(const char *from,
                                                             const char *to) noexcept
{
    using Function = int (*)(const char *, const char *);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "rename"));
    const int result = real(from, to);
    if (const auto then = std::exchange(whenReplaced, nullptr))
        then();
    return result;
}

namespace {

const QMessageBox::StandardButtons yesOrNo = QMessageBox::Yes | QMessageBox::No;

// What another program does to the file.
using Change = std::function<void(const QString &path)>;

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// Makes a file as if it had been written at another time.
bool moveTime(const QString &path)
{
    struct stat status = {};
    const QByteArray name = QFile::encodeName(path);
    if (stat(name.constData(), &status) != 0)
        return false;
    const timespec times[] = {status.st_atim, {status.st_mtim.tv_sec, status.st_mtim.tv_nsec ^ 1}};
    return utimensat(AT_FDCWD, name.constData(), times, 0) == 0;
}

ExpectedBox overwriteQuestion(QMessageBox::StandardButton press)
{
    return {appTitle,
            "home.e3c has changed on the disk since it was opened or saved here. Overwrite it?",
            QMessageBox::NoIcon, yesOrNo, press};
}

ExpectedBox saveQuestion(QMessageBox::StandardButton press)
{
    return {appTitle, "Save changes to home?", QMessageBox::NoIcon, yesOrNo | QMessageBox::Cancel,
            press};
}

} // namespace

Q_DECLARE_METATYPE(Change)

class MainWindowOverwriteTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void changedFileIsAskedAbout_data();
    void changedFileIsAskedAbout();
    void yesOverwritesAndIsNotAskedAgain();
    void noIsTheDefault();
    void unchangedFileIsNotAskedAbout_data();
    void unchangedFileIsNotAskedAbout();
    void ownSavesAreNotAskedAbout();
    void changeBetweenTwoSavesIsAskedAbout();
    void changeRightBehindASaveIsAskedAbout();
    void saveThatFailedInPlaceIsNotAskedAbout();
    void fileOutOfReachIsAskedAbout();
    void saveAsAsksNothingOfItsOwn();
    void noCountsAsCancelWhenTheWindowIsClosedOrAnotherFileLoaded();
    void folderInTheFilesPlaceIsToldAsAFault();
    void questionIsAskedInRussian();

private:
    QString file() const { return path("home.e3c"); }
    bool closes();
};

void MainWindowOverwriteTest::init()
{
    reset();
    load();
    EditorData::info.modified = true;
    window->updateWindowTitle();
}

bool MainWindowOverwriteTest::closes()
{
    QCloseEvent event;
    QApplication::sendEvent(window.get(), &event);
    return event.isAccepted();
}

void MainWindowOverwriteTest::changedFileIsAskedAbout_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("written") << Change([](const QString &path) { QVERIFY(write(path, "other")); });
    QTest::newRow("written, of the same size") << Change([](const QString &path) {
        QVERIFY(write(path, QByteArray(contents(path).size(), 'x')) && moveTime(path));
    });
    QTest::newRow("replaced, of the same size") << Change([](const QString &path) {
        QVERIFY(write(path + "2", QByteArray(contents(path).size(), 'x')));
        QVERIFY(QFile::remove(path) && QFile::rename(path + "2", path));
    });
    QTest::newRow("emptied") << Change([](const QString &path) { QVERIFY(write(path, "")); });
    QTest::newRow("removed and made anew") << Change([](const QString &path) {
        QVERIFY(QFile::rename(path, path + "1") && write(path, "other"));
    });
    QTest::newRow("saved by another editor") << Change([](const QString &path) {
        const bool modified = EditorData::info.modified;
        EditorData::info.modified = false;
        MainWindow other(nullptr);
        other.loadFile(path);
        QVERIFY(other.saveFile(path));
        EditorData::info.modified = modified;
    });
    QTest::newRow("a link to another file now") << Change([](const QString &path) {
        QVERIFY(QFile::rename(path, path + "1") && write(path + "2", "other"));
        QVERIFY(QFile::link(path + "2", path));
    });
}

void MainWindowOverwriteTest::changedFileIsAskedAbout()
{
    QFETCH(Change, change);
    change(file());
    const QByteArray before = contents(file());
    const NextDialog question(boxAnswer(overwriteQuestion(QMessageBox::No)));
    trigger("actionSave");
    QVERIFY(question.came());
    QCOMPARE(contents(file()), before);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    QVERIFY(!QApplication::overrideCursor());
}

void MainWindowOverwriteTest::yesOverwritesAndIsNotAskedAgain()
{
    const QByteArray before = contents(file());
    QVERIFY(write(file(), "other"));
    {
        const NextDialog question(boxAnswer(overwriteQuestion(QMessageBox::Yes)));
        trigger("actionSave");
    }
    QCOMPARE(contents(file()), before);
    QVERIFY(!EditorData::info.modified);
    trigger("actionSave");
}

void MainWindowOverwriteTest::noIsTheDefault()
{
    QVERIFY(write(file(), "other"));
    const NextDialog question([](QWidget *widget) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        QVERIFY(box);
        const bool isDefault = box->defaultButton() == box->button(QMessageBox::No);
        box->close();
        QVERIFY(isDefault);
    });
    trigger("actionSave");
    QCOMPARE(contents(file()), QByteArray("other")); // closing it is a No as well
}

void MainWindowOverwriteTest::unchangedFileIsNotAskedAbout_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("left alone") << Change([](const QString &) {});
    QTest::newRow("read") << Change([](const QString &path) { contents(path); });
    QTest::newRow("removed") << Change([](const QString &path) { QVERIFY(QFile::remove(path)); });
    QTest::newRow("moved away and back") << Change([](const QString &path) {
        QVERIFY(QFile::rename(path, path + "1") && QFile::rename(path + "1", path));
    });
}

// A question that nobody answers would stay for ever.
void MainWindowOverwriteTest::unchangedFileIsNotAskedAbout()
{
    QFETCH(Change, change);
    change(file());
    trigger("actionSave");
    QVERIFY(!EditorData::info.modified);
    QVERIFY(!contents(file()).isEmpty());
}

void MainWindowOverwriteTest::ownSavesAreNotAskedAbout()
{
    for (int i = 0; i < 3; ++i) {
        EditorData::info.modified = true;
        trigger("actionSave");
        QVERIFY(!EditorData::info.modified);
    }
    QVERIFY(window->saveFile(path("elsewhere.e3c")));
    QVERIFY(write(file(), "other")); // which isn't the document's file any more
    trigger("actionSave");
    QCOMPARE(contents(file()), QByteArray("other"));
}

void MainWindowOverwriteTest::changeBetweenTwoSavesIsAskedAbout()
{
    trigger("actionSave");
    QVERIFY(write(file(), "other"));
    const NextDialog question(boxAnswer(overwriteQuestion(QMessageBox::No)));
    trigger("actionSave");
    QCOMPARE(contents(file()), QByteArray("other"));
}

void MainWindowOverwriteTest::changeRightBehindASaveIsAskedAbout()
{
    whenReplaced = [this] { QVERIFY(write(file(), "other")); };
    trigger("actionSave");
    QVERIFY(!whenReplaced);
    QVERIFY(!EditorData::info.modified);
    EditorData::info.modified = true;
    const NextDialog question(boxAnswer(overwriteQuestion(QMessageBox::No)));
    trigger("actionSave");
    QCOMPARE(contents(file()), QByteArray("other"));
}

void MainWindowOverwriteTest::saveThatFailedInPlaceIsNotAskedAbout()
{
    const QByteArray before = contents(file());
    QVERIFY(write(file(), before) && moveTime(file()));
    EditorData::info.modified = false;
    load();
    EditorData::info.modified = true;
    const FolderWithoutRight closed(folder->path());
    {
        const FileSizeLimit limit(100);
        const NextDialog told(
            boxAnswer(warning("Cannot write file " + file() + ":\nFile too large.")));
        trigger("actionSave");
        QVERIFY(told.came());
    }
    QCOMPARE(contents(file()), before);
    trigger("actionSave"); // a question that nobody answers would stay for ever
    QVERIFY(!EditorData::info.modified);
}

void MainWindowOverwriteTest::fileOutOfReachIsAskedAbout()
{
    const QByteArray before = contents(file());
    {
        const FolderOutOfReach closed(folder->path());
        const NextDialog question(boxAnswer(overwriteQuestion(QMessageBox::No)));
        trigger("actionSave");
        QVERIFY(question.came());
    }
    QVERIFY(EditorData::info.modified);
    QCOMPARE(contents(file()), before);
}

// The file dialog asks before it takes the name of a file that is there.
void MainWindowOverwriteTest::saveAsAsksNothingOfItsOwn()
{
    QVERIFY(write(file(), "other"));
    const NextDialog dialog(chooseFile("Save As", fixture.game.filePath("Maps"), "home", file()));
    const NextDialog taken(
        [](QWidget *box) { static_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click(); });
    trigger("actionSave_As");
    QVERIFY(!EditorData::info.modified);
    QVERIFY(contents(file()) != "other");
}

void MainWindowOverwriteTest::noCountsAsCancelWhenTheWindowIsClosedOrAnotherFileLoaded()
{
    QVERIFY(write(file(), "other"));
    {
        const NextDialog question(boxAnswer(saveQuestion(QMessageBox::Yes)));
        const NextDialog overwrite(boxAnswer(overwriteQuestion(QMessageBox::No)));
        QVERIFY(!closes());
    }
    CampaignData another = campaignWithMaps();
    QVERIFY(another.saveTo(path("another.e3c")).ok);
    const NextDialog question(boxAnswer(saveQuestion(QMessageBox::Yes)));
    const NextDialog overwrite(boxAnswer(overwriteQuestion(QMessageBox::No)));
    window->loadFile(path("another.e3c"));
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    QCOMPARE(contents(file()), QByteArray("other"));
}

void MainWindowOverwriteTest::folderInTheFilesPlaceIsToldAsAFault()
{
    QVERIFY(QFile::remove(file()) && QDir().mkdir(file()));
    const NextDialog told(boxAnswer(warning("Cannot write file " + file() + ":\nIs a directory.")));
    trigger("actionSave");
    QVERIFY(EditorData::info.modified);
}

void MainWindowOverwriteTest::questionIsAskedInRussian()
{
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    QCoreApplication::installTranslator(&russian);
    QVERIFY(write(file(), "other"));
    ExpectedBox expected = overwriteQuestion(QMessageBox::No);
    expected.text = QString::fromUtf8("Файл home.e3c изменился на диске с тех пор, как был открыт "
                                      "или сохранён здесь. Перезаписать его?");
    const NextDialog question(boxAnswer(expected));
    trigger("actionSave");
}

QTEST_MAIN(MainWindowOverwriteTest)
#include "main_window_overwrite_test.moc"
