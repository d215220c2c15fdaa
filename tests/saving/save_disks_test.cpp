// Disks that are full at every page: the old file or the new one is whole, and the window tells.
#include "tests/saving/saving_window.h"
#include "tests/support/disk_faults.h"
#include "tests/support/safe_save_support.h"

#include <QtTest>

class SaveDisksTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void aFullDiskAtEveryPage_data();
    void aFullDiskAtEveryPage();
    void aDiskWithoutRoomForAnotherName();
    void whatAKilledSaveLeftMakesRoom();

private:
    // Pages of this disk that so many bytes take.
    static int pages(int bytes) { return (bytes + pageSize - 1) / pageSize; }

    static constexpr int pageSize = 4096;

    std::unique_ptr<SavingWindow> m_window;
    int m_disks = 0;
    int m_failed = 0;
};

namespace {

const QString full = QStringLiteral("No space left on device");
const QString name = QStringLiteral("target.e3c");

} // namespace

void SaveDisksTest::initTestCase()
{
    // A campaign of some pages, of bytes that can't be packed any smaller.
    m_window = std::make_unique<SavingWindow>(40000);
    QVERIFY(m_window->bytes().size() > 40000);
}

void SaveDisksTest::cleanupTestCase()
{
    qInfo("%d disks, %d saves failed", m_disks, m_failed);
    m_window.reset();
}

void SaveDisksTest::aFullDiskAtEveryPage_data()
{
    QTest::addColumn<int>("oldSize"); // -1 for none
    QTest::newRow("new file") << -1;
    QTest::newRow("empty file") << 0;
    QTest::newRow("shorter file") << 10000;
    QTest::newRow("as long a file") << m_window->bytes().size();
    QTest::newRow("longer file") << 70000;
}

void SaveDisksTest::aFullDiskAtEveryPage()
{
    QFETCH(int, oldSize);
    const QByteArray old = pattern(std::max(0, oldSize), 6);
    const int needed = pages(old.size()) + pages(m_window->bytes().size());
    for (int size = std::max(1, pages(old.size())); size <= needed + 2; ++size) {
        const SmallDisk disk(size * pageSize / 1024);
        if (!disk.isMounted())
            QSKIP("no right to mount a disk here");
        if (oldSize >= 0)
            QVERIFY(makeFile(disk.path(name), old));
        const bool saved = m_window->save(disk.path(name));
        ++m_disks;
        m_failed += saved ? 0 : 1;
        QCOMPARE(saved, size >= needed);
        QCOMPARE(m_window->messages(), saved ? QStringList() : cannotWrite(disk.path(name), full));
        QCOMPARE(EditorData::info.modified, !saved);
        QCOMPARE(filesOf(disk.folder()), saved || oldSize >= 0 ? QStringList(name) : QStringList());
        if (saved || oldSize >= 0)
            QVERIFY(bytesOf(disk.path(name)) == (saved ? m_window->bytes() : old));
    }
}

void SaveDisksTest::aDiskWithoutRoomForAnotherName()
{
    const SmallDisk disk(1024, 2); // the folder and the old file
    if (!disk.isMounted())
        QSKIP("no right to mount a disk here");
    QVERIFY(makeFile(disk.path(name), "old bytes"));
    QVERIFY(!m_window->save(disk.path(name)));
    QCOMPARE(m_window->messages(), cannotWrite(disk.path(name), full));
    QVERIFY(EditorData::info.modified);
    QCOMPARE(bytesOf(disk.path(name)), QByteArray("old bytes"));
    QCOMPARE(filesOf(disk.folder()), QStringList(name));
}

void SaveDisksTest::whatAKilledSaveLeftMakesRoom()
{
    const int needed = pages(10) + pages(m_window->bytes().size());
    const SmallDisk disk(needed * pageSize / 1024);
    if (!disk.isMounted())
        QSKIP("no right to mount a disk here");
    QVERIFY(makeFile(disk.path(name), "old bytes"));
    const QString left = ".cmped-save-abc123";
    QVERIFY(makeFile(disk.path(left), pattern(20000, 1)));
    QVERIFY(m_window->save(disk.path(name)));
    QCOMPARE(filesOf(disk.folder()), QStringList(name));
    QVERIFY(bytesOf(disk.path(name)) == m_window->bytes());
}

QTEST_MAIN(SaveDisksTest)
#include "save_disks_test.moc"
