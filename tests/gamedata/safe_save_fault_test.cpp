// Saving on disks that fill up or fail: the old file stays whole.
#include "gamedata/safe_save.h"

#include "tests/support/disk_faults.h"
#include "tests/support/safe_save_support.h"

#include <QtTest>

#include <cerrno>
#include <memory>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// The fault that the system calls below are to show; 0 lets them through.
int renameFault = 0;
int syncFault = 0;
int truncateFault = 0;

template<typename Function>
Function systems(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int failWith(int code)
{
    errno = code;
    return -1;
}

} // namespace

// These stand before the C library's.
#define CALLED_BY_SAVES extern "C" __attribute__((visibility("default")))

CALLED_BY_SAVES int rename(const char *from, const char *to) noexcept
{
    static const auto real = systems<int (*)(const char *, const char *)>("rename");
    return renameFault ? failWith(renameFault) : real(from, to);
}

CALLED_BY_SAVES int fsync(int handle)
{
    static const auto real = systems<int (*)(int)>("fsync");
    return syncFault ? failWith(syncFault) : real(handle);
}

CALLED_BY_SAVES int ftruncate(int handle, off_t size) noexcept
{
    static const auto real = systems<int (*)(int, off_t)>("ftruncate");
    return truncateFault ? failWith(std::exchange(truncateFault, 0)) : real(handle, size);
}

namespace {

const QString name = QStringLiteral("file");

// Closes the folder if the file shall be written in place.
std::unique_ptr<FolderWithoutRight> closedFolder(const QString &folder, bool inPlace)
{
    return inPlace ? std::make_unique<FolderWithoutRight>(folder) : nullptr;
}

} // namespace

class SafeSaveFaultTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void survivesAFileThatFailsAtEverySize_data();
    void survivesAFileThatFailsAtEverySize();
    void survivesAFullDiskAtEverySize_data();
    void survivesAFullDiskAtEverySize();
    void reportsAFailedSync_data();
    void reportsAFailedSync();
    void savesWhereSyncIsUnknown();
    void reportsALateFailureOfTheReplacing_data();
    void reportsALateFailureOfTheReplacing();
    void writesInPlaceWhereReplacingIsForbidden_data();
    void writesInPlaceWhereReplacingIsForbidden();
    void putsBackWhenTheFileCantBeCut();
    void putsTheTimeBackWithTheBytes();
    void tellsWhetherAnythingWasOpened_data();
    void tellsWhetherAnythingWasOpened();
    void handsOutTheStatusOfWhatItWrote_data();
    void handsOutTheStatusOfWhatItWrote();
};

void SafeSaveFaultTest::cleanup()
{
    renameFault = syncFault = truncateFault = 0;
}

void SafeSaveFaultTest::survivesAFileThatFailsAtEverySize_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<int>("oldSize"); // -1 for none
    for (const int oldSize : {-1, 0, 50, 400}) {
        QTest::addRow("beside, %d bytes before", oldSize) << false << oldSize;
        if (oldSize >= 0)
            QTest::addRow("in place, %d bytes before", oldSize) << true << oldSize;
    }
}

void SafeSaveFaultTest::survivesAFileThatFailsAtEverySize()
{
    QFETCH(bool, inPlace);
    QFETCH(int, oldSize);
    const QByteArray old = pattern(std::max(0, oldSize), 7);
    const std::vector<QByteArray> pieces{pattern(3, 1), pattern(100, 2), pattern(150, 3)};
    const QByteArray whole = pieces[0] + pieces[1] + pieces[2];
    for (int limit = 0; limit <= whole.size(); ++limit) {
        const QTemporaryDir dir;
        if (oldSize >= 0)
            QVERIFY(makeFile(dir.filePath(name), old));
        SaveResult result;
        {
            const auto closed = closedFolder(dir.path(), inPlace);
            const FileSizeLimit limited{rlim_t(limit)};
            result = saveFileSafely(dir.filePath(name), pieces);
        }
        QCOMPARE(result.ok, limit == whole.size());
        QCOMPARE(result.error, result.ok ? QString() : QStringLiteral("File too large"));
        if (result.ok || oldSize >= 0) {
            QCOMPARE(filesOf(dir.path()), QStringList(name));
            QCOMPARE(bytesOf(dir.filePath(name)), result.ok ? whole : old);
        } else {
            QCOMPARE(filesOf(dir.path()), QStringList());
        }
    }
}

void SafeSaveFaultTest::survivesAFullDiskAtEverySize_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<int>("pieceSize");
    for (const int pieceSize : {10, 5000, 100000}) {
        QTest::addRow("beside, pieces of %d", pieceSize) << false << pieceSize;
        QTest::addRow("in place, pieces of %d", pieceSize) << true << pieceSize;
    }
}

void SafeSaveFaultTest::survivesAFullDiskAtEverySize()
{
    QFETCH(bool, inPlace);
    QFETCH(int, pieceSize);
    const QByteArray whole = pattern(60000, 5);
    std::vector<QByteArray> pieces;
    for (int i = 0; i < whole.size(); i += pieceSize)
        pieces.push_back(whole.mid(i, pieceSize));
    const QByteArray old = pattern(20000, 9);
    int failures = 0;
    for (int free = 0; free <= 80; free += 4) { // kilobytes left beside the old file
        const SmallDisk disk(free + 20);
        if (!disk.isMounted())
            QSKIP("no right to mount a disk here");
        QVERIFY(makeFile(disk.path(name), old));
        auto closed = closedFolder(disk.folder(), inPlace);
        const SaveResult result = saveFileSafely(disk.path(name), pieces);
        closed.reset();
        QCOMPARE(bytesOf(disk.path(name)), result.ok ? whole : old);
        QCOMPARE(filesOf(disk.folder()), QStringList(name));
        QCOMPARE(result.error, result.ok ? QString() : QStringLiteral("No space left on device"));
        failures += result.ok ? 0 : 1;
    }
    QCOMPARE(failures, inPlace ? 10 : 15); // 40,000 bytes more, or 60,000 beside the old ones
}

void SafeSaveFaultTest::reportsAFailedSync_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<bool>("exists");
    QTest::newRow("beside, existing") << false << true;
    QTest::newRow("beside, new") << false << false;
    QTest::newRow("in place") << true << true;
}

void SafeSaveFaultTest::reportsAFailedSync()
{
    QFETCH(bool, inPlace);
    QFETCH(bool, exists);
    const QTemporaryDir dir;
    if (exists)
        QVERIFY(makeFile(dir.filePath(name), "old contents"));
    syncFault = EIO;
    auto closed = closedFolder(dir.path(), inPlace);
    const SaveResult result = saveFileSafely(dir.filePath(name), {"new"});
    closed.reset();
    QVERIFY(!result.ok);
    QCOMPARE(result.error, QStringLiteral("Input/output error"));
    QCOMPARE(filesOf(dir.path()), exists ? QStringList(name) : QStringList());
    if (exists)
        QCOMPARE(bytesOf(dir.filePath(name)), QByteArray("old contents"));
}

void SafeSaveFaultTest::savesWhereSyncIsUnknown()
{
    const QTemporaryDir dir;
    syncFault = EINVAL;
    QVERIFY(saveFileSafely(dir.filePath(name), {"new"}).ok);
    QCOMPARE(bytesOf(dir.filePath(name)), QByteArray("new"));
}

void SafeSaveFaultTest::reportsALateFailureOfTheReplacing_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("error");
    QTest::newRow("EIO") << EIO << QStringLiteral("Input/output error");
    QTest::newRow("ENOSPC") << ENOSPC << QStringLiteral("No space left on device");
}

void SafeSaveFaultTest::reportsALateFailureOfTheReplacing()
{
    QFETCH(int, code);
    QFETCH(QString, error);
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(name), "old"));
    renameFault = code;
    const SaveResult result = saveFileSafely(dir.filePath(name), {"new contents"});
    QVERIFY(!result.ok);
    QCOMPARE(result.error, error);
    QCOMPARE(bytesOf(dir.filePath(name)), QByteArray("old"));
    QCOMPARE(filesOf(dir.path()), QStringList(name));
}

void SafeSaveFaultTest::writesInPlaceWhereReplacingIsForbidden_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("a mounted file") << EBUSY;
    QTest::newRow("a folder where files stay their owners'") << EPERM;
    QTest::newRow("a folder without the right") << EACCES;
    QTest::newRow("another file system") << EXDEV;
}

void SafeSaveFaultTest::writesInPlaceWhereReplacingIsForbidden()
{
    QFETCH(int, code);
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(name), "old contents"));
    renameFault = code;
    const SaveResult result = saveFileSafely(dir.filePath(name), {"ne", "w"});
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(bytesOf(dir.filePath(name)), QByteArray("new"));
    QCOMPARE(filesOf(dir.path()), QStringList(name));
}

void SafeSaveFaultTest::putsBackWhenTheFileCantBeCut()
{
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(name), "old contents"));
    truncateFault = EIO; // once
    auto closed = closedFolder(dir.path(), true);
    const SaveResult result = saveFileSafely(dir.filePath(name), {"new"});
    closed.reset();
    QVERIFY(!result.ok);
    QCOMPARE(truncateFault, 0);
    QCOMPARE(result.error, QStringLiteral("Input/output error"));
    QCOMPARE(bytesOf(dir.filePath(name)), QByteArray("old contents"));
}

// Whoever looks whether the file has changed sees none.
void SafeSaveFaultTest::putsTheTimeBackWithTheBytes()
{
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(name), "old contents"));
    const timespec time{1000000000, 123456789};
    const timespec times[] = {time, time};
    const QByteArray path = QFile::encodeName(dir.filePath(name));
    QCOMPARE(utimensat(AT_FDCWD, path.constData(), times, 0), 0);
    truncateFault = EIO; // once
    auto closed = closedFolder(dir.path(), true);
    QVERIFY(!saveFileSafely(dir.filePath(name), {"new"}).ok);
    closed.reset();
    struct stat status = {};
    QCOMPARE(stat(path.constData(), &status), 0);
    QCOMPARE(status.st_mtim.tv_sec, time.tv_sec);
    QCOMPARE(status.st_mtim.tv_nsec, time.tv_nsec);
}

void SafeSaveFaultTest::tellsWhetherAnythingWasOpened_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("opened");
    QTest::newRow("no folder") << "no/file" << false;
    QTest::newRow("a folder") << "folder" << false;
    QTest::newRow("a full disk") << "new" << true;
    QTest::newRow("a full disk, replacing") << "old" << true;
    QTest::newRow("a full disk behind a link") << "link" << true;
}

void SafeSaveFaultTest::tellsWhetherAnythingWasOpened()
{
    QFETCH(QString, file);
    QFETCH(bool, opened);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir("folder") && makeFile(dir.filePath("old"), "old"));
    QVERIFY(QFile::link("nowhere", dir.filePath("link")));
    const FileSizeLimit limited{1};
    const SaveResult result = saveFileSafely(dir.filePath(file), {"new"});
    QVERIFY(!result.ok);
    QCOMPARE(result.opened, opened);
    QCOMPARE(filesOf(dir.path()), QStringList({"link", "old"}));
}

void SafeSaveFaultTest::handsOutTheStatusOfWhatItWrote_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addColumn<bool>("exists");
    QTest::newRow("new") << false << false;
    QTest::newRow("replaced") << false << true;
    QTest::newRow("in place") << true << true;
}

void SafeSaveFaultTest::handsOutTheStatusOfWhatItWrote()
{
    QFETCH(bool, inPlace);
    QFETCH(bool, exists);
    const QTemporaryDir dir;
    QVERIFY(!exists || makeFile(dir.filePath(name), "old contents"));
    auto closed = closedFolder(dir.path(), inPlace);
    const SaveResult result = saveFileSafely(dir.filePath(name), {"new"});
    closed.reset();
    QVERIFY(result.ok && result.opened);
    struct stat now = {};
    QCOMPARE(stat(QFile::encodeName(dir.filePath(name)).constData(), &now), 0);
    QCOMPARE(result.written.st_dev, now.st_dev);
    QCOMPARE(result.written.st_ino, now.st_ino);
    QCOMPARE(result.written.st_size, now.st_size);
    QCOMPARE(result.written.st_mtim.tv_sec, now.st_mtim.tv_sec);
    QCOMPARE(result.written.st_mtim.tv_nsec, now.st_mtim.tv_nsec);
}

QTEST_GUILESS_MAIN(SafeSaveFaultTest)
#include "safe_save_fault_test.moc"
