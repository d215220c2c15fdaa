// The processes that write large recovery copies: whose turn it is, and what ends them. They are
// held at their first byte as long as the test likes.
#include "tests/shell/killed_editor.h"
#include "tests/shell/recovery_folder.h"
#include "tests/support/disk_faults.h"

#include <QDeadlineTimer>
#include <QRegularExpression>

#include <atomic>
#include <climits>

#include <dlfcn.h>
#include <poll.h>
#include <sched.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Holds the writing processes at their first byte, one after the other. They have it in common with
// the test.
struct Gate
{
    std::atomic<int> begun;
    std::atomic<int> open; // to so many of them

    void openFor(int writers) { open = writers; }
    void pass()
    {
        const int number = ++begun;
        const QDeadlineTimer limit(patience);
        while (open < number && !limit.hasExpired())
            sched_yield();
    }
};

Gate *const gate = static_cast<Gate *>(
    mmap(nullptr, sizeof(Gate), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));

// Waits in such an editor, which can't tell a test of a failure.
void waitForWriters(int writers)
{
    const QDeadlineTimer limit(patience);
    while (gate->begun < writers && !limit.hasExpired())
        sched_yield();
}

} // namespace

// Writers come by here, and nobody else.
extern "C" __attribute__((visibility("default"))) ssize_t pwrite(int handle, const void *bytes,
                                                                 size_t size, off_t place)
{
    using Function = ssize_t (*)(int, const void *, size_t, off_t);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "pwrite"));
    if (place == 0)
        gate->pass();
    return real(handle, bytes, size, place);
}

class RecoveryWritersTest : public QObject, private RecoveryFolder
{
    Q_OBJECT

private slots:
    void init();

    void writerThatHasBegunIsLetFinish();
    void lastOfManyStaysInTheEnd();
    void newestIsWrittenThoughTheEditorIsKilled();
    void smallCopyEndsAllWriting();
    void removedCopyDoesNotComeBackFromTwoWriters();
    void oneThatFailsLeavesTheOneBeforeIt();
    void smallOneThatFailsLeavesThemAll();
    void killOfTheEditorsGroupLeavesTheWriter();
    void writerHoldsNothingElseOfTheEditor();

private:
    QByteArray onlyCopy() const
    {
        const QStringList copies = files().filter(QRegularExpression("\\.e3c$"));
        return copies.size() == 1 ? contents(path(copies[0])) : QByteArray("not one");
    }
};

void RecoveryWritersTest::init()
{
    reset();
    gate->begun = 0;
    gate->openFor(INT_MAX);
}

// With changes that come faster than a copy is written, the copy would stay as old as the first.
void RecoveryWritersTest::writerThatHasBegunIsLetFinish()
{
    RecoveryCopies copies(folder);
    gate->openFor(0);
    copies.keep("harbour", untitled, {{}, {large('a')}});
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 1, patience);
    copies.keep("harbour", untitled, {{}, {large('b')}});
    copies.keep("harbour", untitled, {{}, {large('c')}});
    gate->openFor(1);
    QTRY_VERIFY_WITH_TIMEOUT(onlyCopy() == large('a'), patience);
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 2, patience);
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
    gate->openFor(2);
    QTRY_VERIFY_WITH_TIMEOUT(onlyCopy() == large('c'), patience);
    copies.leave();
    QCOMPARE(files().size(), 1);
    QCOMPARE(gate->begun.load(), 2); // nothing is written that was outdated before it began
}

void RecoveryWritersTest::lastOfManyStaysInTheEnd()
{
    RecoveryCopies copies(folder);
    for (const char byte : {'a', 'b', 'c', 'd', 'e'})
        copies.keep("harbour", untitled, {{}, {large(byte)}});
    copies.leave();
    QCOMPARE(files().size(), 1);
    QVERIFY(onlyCopy() == large('e'));
    QVERIFY(copies.newestToOffer());
}

void RecoveryWritersTest::newestIsWrittenThoughTheEditorIsKilled()
{
    gate->openFor(0);
    QVERIFY(runKilledEditor([&] {
        auto *copies = new RecoveryCopies(folder);
        copies->keep("harbour", untitled, {{}, {"small"}});
        copies->keep("harbour", untitled, {{}, {large('a')}});
        waitForWriters(1);
        copies->keep("harbour", untitled, {{}, {large('b')}});
        copies->keep("harbour", untitled, {{}, {large('c')}});
    }));
    QCOMPARE(gate->begun.load(), 1);
    const RecoveryCopies copies(folder);
    QVERIFY(!copies.newestToOffer());
    gate->openFor(1);
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 2, patience);
    QVERIFY(onlyCopy() == large('a'));
    QVERIFY(!copies.newestToOffer());
    gate->openFor(2);
    QTRY_VERIFY_WITH_TIMEOUT(copies.newestToOffer(), patience);
    QVERIFY(onlyCopy() == large('c'));
    QCOMPARE(files().size(), 1);
}

void RecoveryWritersTest::smallCopyEndsAllWriting()
{
    RecoveryCopies copies(folder);
    gate->openFor(0);
    copies.keep("harbour", untitled, {{}, {large('a')}});
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 1, patience);
    copies.keep("harbour", untitled, {{}, {large('b')}});
    copies.keep("harbour", untitled, {{}, {"small"}});
    QCOMPARE(onlyCopy(), QByteArray("small"));
    gate->openFor(INT_MAX);
    copies.leave();
    QCOMPARE(onlyCopy(), QByteArray("small"));
    QCOMPARE(files().size(), 1);
    QCOMPARE(gate->begun.load(), 1);
}

void RecoveryWritersTest::removedCopyDoesNotComeBackFromTwoWriters()
{
    RecoveryCopies copies(folder);
    gate->openFor(0);
    copies.keep("harbour", {home->filePath("harbour.e3c"), {}}, {{}, {large('a')}});
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 1, patience);
    copies.keep("harbour", {home->filePath("harbour.e3c"), {}}, {{}, {large('b')}});
    copies.remove();
    gate->openFor(INT_MAX);
    QCOMPARE(files(), QStringList());
    QCOMPARE(gate->begun.load(), 1);
}

void RecoveryWritersTest::oneThatFailsLeavesTheOneBeforeIt()
{
    RecoveryCopies copies(folder);
    gate->openFor(0);
    copies.keep("harbour", untitled, {{}, {large('a')}});
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 1, patience);
    {
        const FileSizeLimit limit(1024UL * 1024);
        copies.keep("harbour", untitled, {{}, {large('b')}});
    }
    gate->openFor(INT_MAX);
    copies.leave();
    QCOMPARE(files().size(), 1);
    QVERIFY(onlyCopy() == large('a'));
    QVERIFY(copies.newestToOffer());
}

void RecoveryWritersTest::smallOneThatFailsLeavesThemAll()
{
    RecoveryCopies copies(folder);
    gate->openFor(0);
    copies.keep("harbour", untitled, {{}, {large('a')}});
    QTRY_COMPARE_WITH_TIMEOUT(gate->begun.load(), 1, patience);
    copies.keep("harbour", untitled, {{}, {large('b')}});
    {
        const FileSizeLimit limit(2);
        copies.keep("harbour", untitled, {{}, {"small"}});
    }
    gate->openFor(INT_MAX);
    copies.leave();
    QCOMPARE(files().size(), 1);
    QVERIFY(onlyCopy() == large('b'));
}

void RecoveryWritersTest::killOfTheEditorsGroupLeavesTheWriter()
{
    gate->openFor(0);
    QVERIFY(runKilledEditor(
        [&] {
            auto *copies = new RecoveryCopies(folder);
            copies->keep("harbour", untitled, {{}, {"small"}});
            copies->keep("harbour", untitled, {{}, {large('x')}});
            waitForWriters(1);
        },
        true));
    const RecoveryCopies copies(folder);
    QVERIFY(!copies.newestToOffer()); // what will be replaced is nobody else's
    gate->openFor(INT_MAX);
    QTRY_VERIFY_WITH_TIMEOUT(copies.newestToOffer(), patience);
    QVERIFY(onlyCopy() == large('x'));
}

// A pipe ends with the editor, and so do its windows: not when the copy is written.
void RecoveryWritersTest::writerHoldsNothingElseOfTheEditor()
{
    int ends[2] = {};
    QCOMPARE(pipe(ends), 0);
    gate->openFor(0);
    const bool killed = runKilledEditor([&] {
        auto *copies = new RecoveryCopies(folder);
        copies->keep("harbour", untitled, {{}, {large('a')}});
        waitForWriters(1);
        copies->keep("harbour", untitled, {{}, {large('b')}});
    });
    close(ends[1]);
    pollfd end{ends[0], POLLIN, 0};
    const int ended = poll(&end, 1, patience / 2);
    const int begun = gate->begun;
    gate->openFor(INT_MAX);
    close(ends[0]);
    QVERIFY(killed);
    QCOMPARE(begun, 1);
    QCOMPARE(ended, 1);
    QTRY_VERIFY_WITH_TIMEOUT(RecoveryCopies(folder).newestToOffer(), patience);
    QVERIFY(onlyCopy() == large('b'));
}

QTEST_GUILESS_MAIN(RecoveryWritersTest)
#include "recovery_writers_test.moc"
