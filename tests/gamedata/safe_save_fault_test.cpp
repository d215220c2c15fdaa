#include "gamedata/safe_save.h"

#include "tests/gamedata/safe_save_support.h"
#include "tests/support/disk_faults.h"

#include <QtTest>

#include <array>
#include <cerrno>
#include <csignal>
#include <random>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

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

// These stand before the C library's, for Qt too.
#define CALLED_BY_QT extern "C" __attribute__((visibility("default")))

CALLED_BY_QT int rename(const char *from, const char *to) noexcept
{
    static const auto real = systems<int (*)(const char *, const char *)>("rename");
    return renameFault ? failWith(renameFault) : real(from, to);
}

CALLED_BY_QT int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                           unsigned flags) noexcept
{
    using Function = int (*)(int, const char *, int, const char *, unsigned);
    static const auto real = systems<Function>("renameat2");
    return renameFault ? failWith(renameFault) : real(fromFolder, from, toFolder, to, flags);
}

CALLED_BY_QT int fsync(int handle)
{
    static const auto real = systems<int (*)(int)>("fsync");
    return syncFault ? failWith(syncFault) : real(handle);
}

CALLED_BY_QT int ftruncate64(int handle, off64_t size) noexcept
{
    static const auto real = systems<int (*)(int, off64_t)>("ftruncate64");
    return truncateFault ? failWith(std::exchange(truncateFault, 0)) : real(handle, size);
}

namespace {

const QString shortName = QStringLiteral("file");

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
    void survivesKillsAtAnyMoment();
    void reportsAFailedSync_data();
    void reportsAFailedSync();
    void savesWhereSyncIsUnknown();
    void reportsALateFailureOfTheReplacing_data();
    void reportsALateFailureOfTheReplacing();
    void writesInPlaceWhereReplacingIsForbidden_data();
    void writesInPlaceWhereReplacingIsForbidden();
    void putsBackWhenTheFileCantBeCut();
};

void SafeSaveFaultTest::cleanup()
{
    renameFault = syncFault = truncateFault = 0;
}

void SafeSaveFaultTest::survivesAFileThatFailsAtEverySize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("oldSize"); // -1 for none
    for (const QString &name : {shortName, longName()}) {
        for (const int oldSize : {-1, 0, 50, 400})
            QTest::addRow("%d, %d bytes before", name.size(), oldSize) << name << oldSize;
    }
}

void SafeSaveFaultTest::survivesAFileThatFailsAtEverySize()
{
    QFETCH(QString, name);
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
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pieceSize");
    for (const QString &name : {shortName, longName()}) {
        for (const int pieceSize : {10, 5000, 100000})
            QTest::addRow("%d, pieces of %d", name.size(), pieceSize) << name << pieceSize;
    }
}

void SafeSaveFaultTest::survivesAFullDiskAtEverySize()
{
    QFETCH(QString, name);
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
        const SaveResult result = saveFileSafely(disk.path(name), pieces);
        QCOMPARE(bytesOf(disk.path(name)), result.ok ? whole : old);
        QCOMPARE(filesOf(disk.folder()), QStringList(name));
        QCOMPARE(result.error, result.ok ? QString() : QStringLiteral("No space left on device"));
        failures += result.ok ? 0 : 1;
    }
    QCOMPARE(failures,
             name == shortName ? 15 : 10); // 60,000 bytes beside the old ones, or 40,000 more
}

void SafeSaveFaultTest::survivesKillsAtAnyMoment()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(shortName);
    const std::array<QByteArray, 2> contents{pattern(200000, 1), pattern(150000, 2)};
    QVERIFY(makeFile(path, contents[0]));
    std::mt19937 random(20260101);
    constexpr int kills = 200;
    int changes = 0;
    QByteArray before = contents[0];
    for (int kill = 0; kill < kills; ++kill) {
        const pid_t child = fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            for (unsigned i = unsigned(kill);; ++i)
                saveFileSafely(path, {contents[i % 2].left(1000), contents[i % 2].mid(1000)});
        }
        usleep(useconds_t(random() % 8000));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const QByteArray now = bytesOf(path);
        QVERIFY(now == contents[0] || now == contents[1]);
        changes += now == before ? 0 : 1;
        before = now;
        QVERIFY(filesOf(dir.path()).size() <= 1 + kill + 1); // one left behind by each at most
    }
    QVERIFY(changes > 0); // some saves were finished
}

void SafeSaveFaultTest::reportsAFailedSync_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");
    for (const bool exists : {true, false}) {
        QTest::addRow("beside, %d", exists) << shortName << exists;
        QTest::addRow("in place, %d", exists) << longName() << exists;
    }
}

void SafeSaveFaultTest::reportsAFailedSync()
{
    QFETCH(QString, name);
    QFETCH(bool, exists);
    const QTemporaryDir dir;
    if (exists)
        QVERIFY(makeFile(dir.filePath(name), "old contents"));
    syncFault = EIO;
    const SaveResult result = saveFileSafely(dir.filePath(name), {"new"});
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
    QVERIFY(saveFileSafely(dir.filePath(shortName), {"new"}).ok);
    QCOMPARE(bytesOf(dir.filePath(shortName)), QByteArray("new"));
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
    QVERIFY(makeFile(dir.filePath(shortName), "old"));
    renameFault = code;
    const SaveResult result = saveFileSafely(dir.filePath(shortName), {"new contents"});
    QVERIFY(!result.ok);
    QCOMPARE(result.error, error);
    QCOMPARE(bytesOf(dir.filePath(shortName)), QByteArray("old"));
    QCOMPARE(filesOf(dir.path()), QStringList(shortName));
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
    QVERIFY(makeFile(dir.filePath(shortName), "old contents"));
    renameFault = code;
    const SaveResult result = saveFileSafely(dir.filePath(shortName), {"ne", "w"});
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(bytesOf(dir.filePath(shortName)), QByteArray("new"));
    QCOMPARE(filesOf(dir.path()), QStringList(shortName));
}

void SafeSaveFaultTest::putsBackWhenTheFileCantBeCut()
{
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(longName()), "old contents"));
    truncateFault = EIO; // once
    const SaveResult result = saveFileSafely(dir.filePath(longName()), {"new"});
    QVERIFY(!result.ok);
    QCOMPARE(truncateFault, 0);
    QCOMPARE(result.error, QStringLiteral("Input/output error"));
    QCOMPARE(bytesOf(dir.filePath(longName())), QByteArray("old contents"));
}

QTEST_GUILESS_MAIN(SafeSaveFaultTest)
#include "safe_save_fault_test.moc"
