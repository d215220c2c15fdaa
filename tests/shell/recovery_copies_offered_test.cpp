// The folder of recovery copies: which are offered, who has them, and which go.
#include "shell/recovery_files.h"
#include "tests/shell/recovery_folder.h"

class RecoveryCopiesOfferedTest : public QObject, private RecoveryFolder
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void newestIsOfferedFirstAndNoneTwice();
    void nothingIsOfferedFromNowhere();
    void emptyAndForeignFilesAreNotOffered();
    void copyOfARunningEditorIsNotOffered();
    void copyIsOfferedToOneEditorAtATime();
    void editorsOfOneMomentHaveTwoCopies();
    void takenOverCopyIsTheDocumentsOwn();
    void tenNewestStay();
    void copyOfARunningEditorIsNeverDrivenOut();
    void authorsOwnFilesStay();
    void emptyNamesDriveNoCopyOut();
    void remainsOfKilledEditorsGo_data();
    void remainsOfKilledEditorsGo();
    void filesOfWritingEditorsStay();
};

void RecoveryCopiesOfferedTest::newestIsOfferedFirstAndNoneTwice()
{
    leaveCopy("middle", 20);
    leaveCopy("newest", 10);
    leaveCopy("oldest", 30);
    for (const char *name : {"newest", "middle", "oldest"})
        QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray(name));
    QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray());
    QCOMPARE(files().size(), 3);
    leaveCopy("one more", 40);
    QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray("one more"));
}

void RecoveryCopiesOfferedTest::nothingIsOfferedFromNowhere()
{
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
    QVERIFY(!QFileInfo::exists(folder));
    QVERIFY(!RecoveryCopies(QString()).newestToOffer());
}

void RecoveryCopiesOfferedTest::emptyAndForeignFilesAreNotOffered()
{
    QVERIFY(QDir().mkpath(path("2026-03-14 15-09-26 a folder.e3c")));
    QVERIFY(write(path("2026-03-14 15-09-26 empty.e3c"), ""));
    QVERIFY(write(path("2026-03-14 15-09-26 other.e3m"), "x"));
    QVERIFY(write(path("mine.e3c"), "x"));
    QVERIFY(write(path("2026-03-14 mine.e3c"), "x"));
    QVERIFY(QFile::link(path("mine.e3c"), path("2026-03-14 15-09-26 a link.e3c")));
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
}

void RecoveryCopiesOfferedTest::copyOfARunningEditorIsNotOffered()
{
    leaveCopy("left", 10);
    auto running = std::make_unique<RecoveryCopies>(folder);
    running->keep("running", untitled, {{}, {"running"}});
    running->keep("running", untitled, {{}, {"running on"}});
    QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray("left"));
    QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray());
    running.reset();
    QCOMPARE(offeredBy(RecoveryCopies(folder)), QByteArray("running on"));
}

void RecoveryCopiesOfferedTest::copyIsOfferedToOneEditorAtATime()
{
    leaveCopy("left", 10);
    auto asked = RecoveryCopies(folder).newestToOffer();
    QVERIFY(asked);
    QVERIFY(!RecoveryCopies(folder).newestToOffer());
    asked.reset(); // it ended before it had an answer
    QVERIFY(RecoveryCopies(folder).newestToOffer());
}

void RecoveryCopiesOfferedTest::editorsOfOneMomentHaveTwoCopies()
{
    std::vector<std::unique_ptr<RecoveryCopies>> editors;
    for (int i = 0; i < 5; ++i) {
        editors.push_back(std::make_unique<RecoveryCopies>(folder));
        editors.back()->keep("harbour", untitled, {{}, {QByteArray::number(i)}});
    }
    QCOMPARE(files().size(), 5);
    QByteArrayList found;
    for (const QString &name : files())
        found << contents(path(name));
    std::sort(found.begin(), found.end());
    QCOMPARE(found, QByteArrayList({"0", "1", "2", "3", "4"}));
}

void RecoveryCopiesOfferedTest::takenOverCopyIsTheDocumentsOwn()
{
    leaveCopy("harbour", 10, {"/a.e3c", {}});
    {
        RecoveryCopies copies(folder);
        auto copy = copies.newestToOffer();
        QVERIFY(copy);
        copies.markOffered(*copy);
        copies.takeOver(std::move(*copy));
        QVERIFY(!RecoveryCopies(folder).newestToOffer()); // its editor runs
        copies.keep("harbour", {"/a.e3c", {}}, {{}, {"on"}});
        QCOMPARE(files().size(), 2);
    }
    RecoveryCopies copies(folder);
    auto again = copies.newestToOffer();
    QVERIFY(again);
    QCOMPARE(contents(again->file.path), QByteArray("on"));
    QCOMPARE(again->origin.path, QString("/a.e3c"));
    copies.takeOver(std::move(*again));
    copies.remove();
    QCOMPARE(files(), QStringList());
}

void RecoveryCopiesOfferedTest::tenNewestStay()
{
    for (int i = 0; i < 12; ++i)
        leaveCopy("copy" + QString::number(i), i % 2 ? 100 + i : 200 + i, {"/a.e3c", {}});
    offeredBy(RecoveryCopies(folder));
    leaveCopy("last", 0);
    QStringList left;
    for (const QString &name : files().filter(".e3c"))
        left << contents(path(name));
    left.sort();
    QCOMPARE(left, QStringList({"copy0", "copy1", "copy11", "copy2", "copy3", "copy4", "copy5",
                                "copy7", "copy9", "last"}));
    QCOMPARE(files().filter(".origin").size(), 9);
}

void RecoveryCopiesOfferedTest::copyOfARunningEditorIsNeverDrivenOut()
{
    RecoveryCopies running(folder);
    running.keep("running", untitled, {{}, {"running"}});
    const QString name = files().value(0);
    QVERIFY(age(path(name), 1000));
    for (int i = 0; i < 12; ++i)
        leaveCopy("copy", i);
    QCOMPARE(contents(path(name)), QByteArray("running"));
    QCOMPARE(files().size(), 11);
}

void RecoveryCopiesOfferedTest::authorsOwnFilesStay()
{
    QVERIFY(QDir().mkpath(folder));
    const QStringList own{"2026-03-14 15-09-26 harbour.e3m", "a.origin.txt", "harbour.e3c"};
    for (const QString &name : own)
        QVERIFY(write(path(name), "x") && age(path(name), 100000));
    for (int i = 0; i < 12; ++i)
        leaveCopy("copy", i);
    for (const QString &name : own)
        QVERIFY(QFile::exists(path(name)));
    QCOMPARE(files().size(), 13);
}

// They are of copies that are being written, or never will be.
void RecoveryCopiesOfferedTest::emptyNamesDriveNoCopyOut()
{
    for (int i = 0; i < 9; ++i)
        leaveCopy("copy" + QString::number(i), 100 + i);
    for (int i = 0; i < 12; ++i)
        QVERIFY(write(path(QString("2026-03-14 15-09-%1 name.e3c").arg(10 + i)), ""));
    leaveCopy("last", 0);
    QCOMPARE(files().filter("copy").size(), 9);
    QCOMPARE(files().filter("last").size(), 1);
}

void RecoveryCopiesOfferedTest::remainsOfKilledEditorsGo_data()
{
    QTest::addColumn<bool>("byNewCopy");
    QTest::newRow("when a copy is kept") << true;
    QTest::newRow("at the start") << false;
}

// Be they locked or not if they are of yesterday: not every system has locks.
void RecoveryCopiesOfferedTest::remainsOfKilledEditorsGo()
{
    QFETCH(bool, byNewCopy);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(write(path("2026-03-14 15-09-26 gone.origin"), "{}"));
    const QString name = "2026-03-14 15-09-27 name.e3c";
    QVERIFY(write(path("2026-03-14 15-09-27 name.origin"), "{}"));
    QVERIFY(write(path(name), "") && age(path(name), 2));
    QVERIFY(write(path(".unfinished-abcdef"), "x") && age(path(".unfinished-abcdef"), 25 * 60));
    QVERIFY(write(path(".unfinished-ghijkl"), "x") && age(path(".unfinished-ghijkl"), 2));
    QFile locked(path(".unfinished-abcdef"));
    QVERIFY(locked.open(QIODevice::ReadOnly) && lockFile(locked));
    if (byNewCopy)
        leaveCopy("harbour", 0);
    else
        QVERIFY(!RecoveryCopies(folder).newestToOffer());
    QCOMPARE(files().size(), int(byNewCopy));
}

// What is locked, and what is so new that it may not be locked yet.
void RecoveryCopiesOfferedTest::filesOfWritingEditorsStay()
{
    QVERIFY(QDir().mkpath(folder));
    std::vector<std::unique_ptr<QFile>> locks;
    for (const char *name : {"2026-03-14 15-09-26 name.e3c", ".unfinished-abcdef"}) {
        locks.push_back(std::make_unique<QFile>(path(name)));
        QVERIFY(locks.back()->open(QIODevice::WriteOnly) && lockFile(*locks.back()));
        QVERIFY(age(path(name), 23 * 60));
    }
    QVERIFY(write(path("2026-03-14 15-09-26 name.origin"), "{}"));
    QVERIFY(write(path("2026-03-14 15-09-27 name.e3c"), ""));
    QVERIFY(write(path(".unfinished-ghijkl"), "x"));
    leaveCopy("harbour", 0);
    QVERIFY(RecoveryCopies(folder).newestToOffer());
    QCOMPARE(files().size(), 6);
}

QTEST_GUILESS_MAIN(RecoveryCopiesOfferedTest)
#include "recovery_copies_offered_test.moc"
