// Recovery copies that are written by processes of their own: those of large campaigns.
#include "tests/shell/killed_editor.h"
#include "tests/shell/recovery_folder.h"
#include "tests/support/disk_faults.h"
#include "tests/support/processor_time.h"

#include <QDeadlineTimer>

#include <dlfcn.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A handle is moved to its file's start only once there is something in the file.
bool movesLate = false;

// Noise that takes its time to be packed.
QByteArray largeHead(int megabytes = 3)
{
    QByteArray bytes(megabytes * 1024 * 1024, '\0');
    quint32 state = 1;
    for (char &byte : bytes)
        byte = char((state = state * 1664525u + 1013904223u) >> 24);
    return bytes;
}

// Leaves room for so many more handles while it lives.
class HandleLimit
{
public:
    explicit HandleLimit(int more)
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const int next = dup(0); // the lowest that is free
        close(next);
        const rlimit now{rlim_t(next + more), m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &now);
    }
    ~HandleLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }
    HandleLimit(const HandleLimit &) = delete;
    HandleLimit &operator=(const HandleLimit &) = delete;

private:
    rlimit m_before = {};
};

const QFile::Permissions ownersOnly =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

} // namespace

// Stands before the C library's, for Qt too.
extern "C" __attribute__((visibility("default"))) off64_t lseek64(int handle, off64_t place,
                                                                  int whence) noexcept
{
    using Function = off64_t (*)(int, off64_t, int);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "lseek64"));
    struct stat status = {};
    const QDeadlineTimer limit(60000);
    if (movesLate && whence == SEEK_SET && place == 0)
        while (!limit.hasExpired() && fstat(handle, &status) == 0 && status.st_size == 0)
            sched_yield();
    return real(handle, place, whence);
}

class RecoveryLargeCopiesTest : public QObject, private RecoveryFolder
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void piecesAreWrittenInOrder();
    void placeOfTheEditorsHandleIsNothingToTheOtherProcess();
    void headIsPackedInFrontOfTheRest_data();
    void headIsPackedInFrontOfTheRest();
    void largeHeadIsPackedByAnotherProcess();
    void largeCopyIsWrittenWhateverBecomesOfTheEditor_data();
    void largeCopyIsWrittenWhateverBecomesOfTheEditor();
    void laterCopyComesLastHoweverLarge_data();
    void laterCopyComesLastHoweverLarge();
    void removedLargeCopyDoesNotComeBack();
    void failedLargeCopyKeepsTheOldOne();
    void failedFirstLargeCopyLeavesNothing_data();
    void failedFirstLargeCopyLeavesNothing();
    void nobodyIsOfferedACopyThatIsBeingWritten();
    void copyIsKeptAndLockedWhereHandlesRunOut_data();
    void copyIsKeptAndLockedWhereHandlesRunOut();
};

void RecoveryLargeCopiesTest::piecesAreWrittenInOrder()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"one", large('x'), "two"}});
    copies.leave();
    QCOMPARE(files().size(), 1);
    QCOMPARE(QFile::permissions(path(files()[0])), ownersOnly);
    QVERIFY(contents(path(files()[0])) == "one" + large('x') + "two");
    QVERIFY(copies.newestToOffer());
}

// Both have the same open file, and Qt moves to its start before it closes a temporary one.
void RecoveryLargeCopiesTest::placeOfTheEditorsHandleIsNothingToTheOtherProcess()
{
    RecoveryCopies copies(folder);
    movesLate = true;
    copies.keep("harbour", untitled, {{}, {"one", large('x'), "two"}});
    movesLate = false;
    copies.leave();
    QVERIFY(contents(path(files()[0])) == "one" + large('x') + "two");
}

void RecoveryLargeCopiesTest::headIsPackedInFrontOfTheRest_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::newRow("small") << QByteArray("head");
    QTest::newRow("large") << largeHead();
}

void RecoveryLargeCopiesTest::headIsPackedInFrontOfTheRest()
{
    QFETCH(QByteArray, head);
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {head, {"one", "", "two"}});
    copies.leave();
    QCOMPARE(files().size(), 1);
    QVERIFY(contents(path(files()[0])) == packGzipMember(head) + "onetwo");
}

void RecoveryLargeCopiesTest::largeHeadIsPackedByAnotherProcess()
{
    const UnpackedFile content{largeHead(8), {}};
    RecoveryCopies copies(folder);
    const ProcessorTime timeOfKeeping;
    copies.keep("harbour", untitled, content);
    const qint64 keeping = timeOfKeeping.milliseconds();
    const ProcessorTime timeOfPacking;
    QVERIFY(!packGzipMember(content.head).isEmpty());
    const qint64 packing = timeOfPacking.milliseconds();
    QVERIFY2(keeping < packing / 2, qPrintable(QString("%1, %2 ms").arg(keeping).arg(packing)));
}

void RecoveryLargeCopiesTest::largeCopyIsWrittenWhateverBecomesOfTheEditor_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("large pieces") << QByteArray() << large('x');
    QTest::newRow("a head to be packed") << largeHead() << QByteArray("small");
}

// It dies as soon as it may go on.
void RecoveryLargeCopiesTest::largeCopyIsWrittenWhateverBecomesOfTheEditor()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, piece);
    const QByteArray bytes = (head.isEmpty() ? QByteArray() : packGzipMember(head)) + piece;
    QVERIFY(runKilledEditor([&] {
        auto *copies = new RecoveryCopies(folder);
        copies->keep("harbour", untitled, {head, {piece}});
    }));
    const RecoveryCopies copies(folder);
    QTRY_VERIFY_WITH_TIMEOUT(copies.newestToOffer(), patience);
    QCOMPARE(files().size(), 1);
    QVERIFY(contents(path(files()[0])) == bytes);
}

void RecoveryLargeCopiesTest::laterCopyComesLastHoweverLarge_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::newRow("a larger one") << QByteArray("small") << large('x');
    QTest::newRow("a smaller one") << large('x') << QByteArray("small");
    QTest::newRow("one as large") << large('x') << large('y');
}

void RecoveryLargeCopiesTest::laterCopyComesLastHoweverLarge()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {first}});
    copies.keep("harbour", untitled, {{}, {second}});
    copies.leave();
    QCOMPARE(files().size(), 1);
    QVERIFY(contents(path(files()[0])) == second);
}

void RecoveryLargeCopiesTest::removedLargeCopyDoesNotComeBack()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", {home->filePath("harbour.e3c"), {}}, {{}, {large('x')}});
    copies.remove();
    QCOMPARE(files(), QStringList());
}

void RecoveryLargeCopiesTest::failedLargeCopyKeepsTheOldOne()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"short"}});
    const QStringList before = files();
    {
        const FileSizeLimit limit(1024UL * 1024);
        copies.keep("harbour", untitled, {{}, {large('x')}});
        copies.keep("harbour", untitled, {{}, {large('x')}}); // when the first of them has failed
        QVERIFY(!RecoveryCopies(folder).newestToOffer());
    }
    copies.leave();
    QCOMPARE(files(), before);
    QCOMPARE(contents(path(before[0])), QByteArray("short"));
    QVERIFY(copies.newestToOffer());
}

void RecoveryLargeCopiesTest::failedFirstLargeCopyLeavesNothing_data()
{
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("the document ends") << true;
    QTest::newRow("the editor ends") << false;
}

void RecoveryLargeCopiesTest::failedFirstLargeCopyLeavesNothing()
{
    QFETCH(bool, goesOn);
    auto copies = std::make_unique<RecoveryCopies>(folder);
    const FileSizeLimit limit(1024UL * 1024);
    copies->keep("harbour", {home->filePath("harbour.e3c"), {}}, {{}, {large('x')}});
    if (goesOn)
        copies->leave();
    else
        copies.reset();
    QCOMPARE(files(), QStringList());
}

// Neither the old one nor the new one.
void RecoveryLargeCopiesTest::nobodyIsOfferedACopyThatIsBeingWritten()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"short"}});
    copies.keep("harbour", untitled, {{}, {large('x')}});
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
    QTRY_COMPARE_WITH_TIMEOUT(QFileInfo(path(files()[0])).size(), qint64(large('x').size()),
                              patience);
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
}

void RecoveryLargeCopiesTest::copyIsKeptAndLockedWhereHandlesRunOut_data()
{
    QTest::addColumn<int>("handles");
    for (int handles = 1; handles < 5; ++handles)
        QTest::addRow("%d more", handles) << handles;
}

// Or none is kept where there is no handle for it.
void RecoveryLargeCopiesTest::copyIsKeptAndLockedWhereHandlesRunOut()
{
    QFETCH(int, handles);
    RecoveryCopies copies(folder);
    {
        const HandleLimit limit(handles);
        copies.keep("harbour", untitled, {{}, {large('x')}});
    }
    const bool kept = handles > 1; // for its name, and for the file beside it
    QCOMPARE(!files().isEmpty(), kept);
    QTRY_VERIFY_WITH_TIMEOUT(!kept || contents(path(files()[0])) == large('x'), patience);
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
    copies.leave();
    QCOMPARE(files().size(), int(kept));
    QCOMPARE(bool(copies.newestToOffer()), kept);
}

QTEST_GUILESS_MAIN(RecoveryLargeCopiesTest)
#include "recovery_large_copies_test.moc"
