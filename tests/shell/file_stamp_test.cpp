// Whether a file is still the one it was.
#include "shell/file_stamp.h"

#include "tests/support/file_contents.h"
#include "tests/support/safe_save_support.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr qint64 second = 1000000000;

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// Sets when the file was written last, in nanoseconds.
bool setModified(const QString &path, qint64 time)
{
    const timespec moment{time_t(time / second), long(time % second)};
    const timespec times[] = {moment, moment};
    return utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0;
}

using Change = std::function<void(const QString &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class FileStampTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void changesAreSeen_data();
    void changesAreSeen();
    void otherThingsAreNoChange_data();
    void otherThingsAreNoChange();
    void missingFilesAreAlike();
    void openFileIsStampedWhateverBecomesOfItsName();
    void statusIsStampedAsItsFile();
    void linkIsStampedAsItsFile();
    void whatCantBeToldIsLikeNothing_data();
    void whatCantBeToldIsLikeNothing();
    void stampsComeBackFromText();
    void otherTextIsNoStamp_data();
    void otherTextIsNoStamp();

private:
    static constexpr qint64 time = 1600000000 * second + 123456789;

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

void FileStampTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    path = folder->filePath("file");
    QVERIFY(write(path, "old bytes"));
    QVERIFY(setModified(path, time));
}

void FileStampTest::changesAreSeen_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("longer") << Change([](const QString &file) {
        QVERIFY(write(file, "older bytes") && setModified(file, time));
    });
    QTest::newRow("written a nanosecond later") << Change([](const QString &file) {
        QVERIFY(write(file, "new bytes") && setModified(file, time + 1));
    });
    QTest::newRow("written earlier") << Change([](const QString &file) {
        QVERIFY(write(file, "new bytes") && setModified(file, time - 3600 * second));
    });
    QTest::newRow("replaced") << Change([](const QString &file) {
        QVERIFY(write(file + "2", "new bytes") && setModified(file + "2", time));
        QVERIFY(QFile::rename(file, file + "1") && QFile::rename(file + "2", file));
    });
    QTest::newRow("removed") << Change([](const QString &file) { QVERIFY(QFile::remove(file)); });
    QTest::newRow("a folder now") << Change(
        [](const QString &file) { QVERIFY(QFile::remove(file) && QDir().mkdir(file)); });
}

void FileStampTest::changesAreSeen()
{
    QFETCH(Change, change);
    const FileStamp before = stampOf(path);
    QVERIFY(before.exists);
    change(path);
    QVERIFY(stampOf(path) != before);
}

void FileStampTest::otherThingsAreNoChange_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("read") << Change([](const QString &file) { contents(file); });
    QTest::newRow("other rights") << Change(
        [](const QString &file) { QVERIFY(QFile::setPermissions(file, QFile::ReadOwner)); });
    QTest::newRow("moved away and back") << Change([](const QString &file) {
        QVERIFY(QFile::rename(file, file + "1") && QFile::rename(file + "1", file));
    });
}

void FileStampTest::otherThingsAreNoChange()
{
    QFETCH(Change, change);
    const FileStamp before = stampOf(path);
    change(path);
    QVERIFY(stampOf(path) == before);
}

void FileStampTest::missingFilesAreAlike()
{
    QVERIFY(!stampOf(path + "1").exists);
    QVERIFY(stampOf(path + "1") == stampOf(folder->path()));
}

void FileStampTest::openFileIsStampedWhateverBecomesOfItsName()
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const FileStamp before = stampOf(path);
    QVERIFY(QFile::rename(path, path + "1") && write(path, "another"));
    QVERIFY(stampOf(file) == before);
    QVERIFY(stampOf(file) != stampOf(path));
}

void FileStampTest::linkIsStampedAsItsFile()
{
    QVERIFY(QFile::link(path, path + "-link"));
    QVERIFY(stampOf(path + "-link") == stampOf(path));
}

void FileStampTest::statusIsStampedAsItsFile()
{
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(path).constData(), &status), 0);
    QVERIFY(stampOf(status) == stampOf(path));
}

void FileStampTest::whatCantBeToldIsLikeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("absent");
    QTest::newRow("out of reach") << "file" << false;
    QTest::newRow("links in a circle") << "circle" << false;
    QTest::newRow("no such folder") << "no/file" << true;
    QTest::newRow("a file in the folder's place") << "file/file" << true;
}

void FileStampTest::whatCantBeToldIsLikeNothing()
{
    QFETCH(QString, name);
    QFETCH(bool, absent);
    QVERIFY(QFile::link("circle", folder->filePath("circle")));
    const FileStamp reached = stampOf(path);
    std::optional<FolderOutOfReach> closed;
    if (name == "file")
        closed.emplace(folder->path());
    const FileStamp stamp = stampOf(folder->filePath(name));
    const FileStamp again = stampOf(folder->filePath(name));
    closed.reset();
    QCOMPARE(stamp.exists, !absent);
    QCOMPARE(stamp == again, absent);
    QVERIFY(stamp != reached);
    const auto kept = stampFrom(textOf(stamp));
    QVERIFY(kept);
    QCOMPARE(*kept == stamp, absent);
    QCOMPARE(kept->exists, !absent);
}

void FileStampTest::stampsComeBackFromText()
{
    const FileStamp largest{true, ~quint64(0), ~quint64(0), 1LL << 62, (1LL << 62) + 1};
    for (const FileStamp &stamp : {FileStamp(), stampOf(path), largest}) {
        const auto back = stampFrom(textOf(stamp));
        QVERIFY(back && *back == stamp);
    }
}

void FileStampTest::otherTextIsNoStamp_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("too few") << "1 2 3";
    QTest::newRow("too many") << "1 2 3 4 5";
    QTest::newRow("no number") << "1 2 x 4";
    QTest::newRow("too large") << "1 99999999999999999999 3 4";
    QTest::newRow("words") << "nobody knows";
}

void FileStampTest::otherTextIsNoStamp()
{
    QFETCH(QString, text);
    QVERIFY(!stampFrom(text));
}

QTEST_GUILESS_MAIN(FileStampTest)
#include "file_stamp_test.moc"
