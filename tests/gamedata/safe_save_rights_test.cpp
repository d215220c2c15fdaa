// Saving over a file with an access list: nobody is let in.
#include "gamedata/safe_save.h"

#include "tests/support/byte_writer.h"
#include "tests/support/safe_save_support.h"

#include <QtTest>

#include <cerrno>

#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace {

// The fault that setting a list is to show; 0 lets it through.
int listFault = 0;

} // namespace

// Stands before the C library's.
extern "C" __attribute__((visibility("default"))) int fsetxattr(int handle, const char *name,
                                                                const void *value, std::size_t size,
                                                                int flags) noexcept
{
    using Function = int (*)(int, const char *, const void *, std::size_t, int);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "fsetxattr"));
    if (listFault == 0)
        return real(handle, name, value, size, flags);
    errno = listFault;
    return -1;
}

namespace {

const QString name = QStringLiteral("file");
constexpr char ownList[] = "system.posix_acl_access";
constexpr char listOfNewFiles[] = "system.posix_acl_default";

// An access list as the system keeps it: the owner may read and write, and what others may is said.
QByteArray accessList(int namedUser, int ownGroup, int others)
{
    ByteWriter list;
    list.u32(2);
    const auto add = [&](int tag, int rights, quint32 id) {
        list.u16(quint16(tag)).u16(quint16(rights)).u32(id);
    };
    constexpr quint32 nobody = ~0u;
    add(0x01, 06, nobody);
    add(0x02, namedUser, 1234);
    add(0x04, ownGroup, nobody);
    add(0x10, namedUser | ownGroup, nobody);
    add(0x20, others, nobody);
    return list.bytes();
}

bool setList(const QString &path, const char *kind, const QByteArray &list)
{
    return setxattr(QFile::encodeName(path).constData(), kind, list.constData(),
                    std::size_t(list.size()), 0) == 0;
}

QByteArray listOf(const QString &path)
{
    QByteArray list(1000, '\0');
    const ssize_t size = getxattr(QFile::encodeName(path).constData(), ownList, list.data(),
                                  std::size_t(list.size()));
    return size < 0 ? QByteArray() : list.left(int(size));
}

int modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777)
                                                                   : -1;
}

} // namespace

class SafeSaveRightsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { listFault = 0; }
    void keepsTheAccessList();
    void takesNoAccessListFromTheFolder();
    void givesNobodyMoreWithoutTheAccessList_data();
    void givesNobodyMoreWithoutTheAccessList();
};

void SafeSaveRightsTest::keepsTheAccessList()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(makeFile(path, "old"));
    const QByteArray list = accessList(06, 0, 0);
    if (!setList(path, ownList, list))
        QSKIP("no access lists on this file system");
    QVERIFY(saveFileSafely(path, {"new"}).ok);
    QCOMPARE(bytesOf(path), QByteArray("new"));
    QCOMPARE(listOf(path), list);
    QCOMPARE(modeOf(path), 0660);
}

void SafeSaveRightsTest::takesNoAccessListFromTheFolder()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(makeFile(path, "old"));
    QCOMPARE(chmod(QFile::encodeName(path).constData(), 0640), 0);
    if (!setList(dir.path(), listOfNewFiles, accessList(06, 06, 0)))
        QSKIP("no access lists on this file system");
    QVERIFY(saveFileSafely(path, {"new"}).ok);
    QCOMPARE(listOf(path), QByteArray());
    QCOMPARE(modeOf(path), 0640);
}

void SafeSaveRightsTest::givesNobodyMoreWithoutTheAccessList_data()
{
    QTest::addColumn<int>("namedUser");
    QTest::addColumn<int>("ownGroup");
    QTest::addColumn<int>("others");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("mode"); // -1: the save fails
    QTest::newRow("closed to the group") << 06 << 00 << 00 << ENOTSUP << 0600;
    QTest::newRow("the group may read") << 06 << 04 << 00 << EPERM << 0640;
    QTest::newRow("one user may not") << 00 << 06 << 04 << EINVAL << 0600;
    QTest::newRow("a full disk") << 06 << 04 << 00 << ENOSPC << -1;
}

void SafeSaveRightsTest::givesNobodyMoreWithoutTheAccessList()
{
    QFETCH(int, namedUser);
    QFETCH(int, ownGroup);
    QFETCH(int, others);
    QFETCH(int, code);
    QFETCH(int, mode);
    const QTemporaryDir dir;
    const QString path = dir.filePath(name);
    QVERIFY(makeFile(path, "old"));
    const QByteArray list = accessList(namedUser, ownGroup, others);
    if (!setList(path, ownList, list))
        QSKIP("no access lists on this file system");
    listFault = code;
    const SaveResult result = saveFileSafely(path, {"new"});
    QCOMPARE(result.ok, mode >= 0);
    QCOMPARE(bytesOf(path), QByteArray(result.ok ? "new" : "old"));
    QCOMPARE(listOf(path), result.ok ? QByteArray() : list);
    if (result.ok)
        QCOMPARE(modeOf(path), mode);
}

QTEST_GUILESS_MAIN(SafeSaveRightsTest)
#include "safe_save_rights_test.moc"
