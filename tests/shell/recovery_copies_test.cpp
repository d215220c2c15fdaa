// Recovery copies: what is in them, what they are called, and what becomes of those that fail.
#include "gamedata/escaped_utf8.h"
#include "tests/shell/recovery_folder.h"
#include "tests/support/disk_faults.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTextCodec>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

// The folder's name is in front of the parts that matter.
QString withoutTime(const QString &name)
{
    static const QRegularExpression time("^\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d ");
    return time.match(name).hasMatch() ? name.mid(20) : "no time in " + name;
}

// Waits for the disk so far, by this process.
int waits = 0;

template<typename Function, typename... Arguments>
int countWait(const char *name, Arguments... arguments)
{
    ++waits;
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

// They stand before the C library's, for Qt too.
extern "C" __attribute__((visibility("default"))) int fsync(int handle)
{
    return countWait<int (*)(int)>("fsync", handle);
}

extern "C" __attribute__((visibility("default"))) int fdatasync(int handle)
{
    return countWait<int (*)(int)>("fdatasync", handle);
}

class RecoveryCopiesTest : public QObject, private RecoveryFolder
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

    void usualFolderIsInTheUsersData();
    void copyHoldsThePiecesInOrder();
    void laterOneTakesThePlaceOfTheFirst();
    void nobodyWaitsForTheDisk();
    void nameTellsWhenAndWhat();
    void namesOfDocumentsAreMadeHarmless_data();
    void namesOfDocumentsAreMadeHarmless();
    void namesAreKeptPlainInOtherEncodings();
    void removeLeavesNothing();
    void leftCopyStaysAndTheNextDocumentHasItsOwn();
    void originComesBack();
    void originKeepsEveryByteOfItsName();
    void damagedNoteIsNoOrigin_data();
    void damagedNoteIsNoOrigin();
    void failedRenewalKeepsTheOldCopy();
    void failedFirstCopyLeavesNothing();
    void placeThatCantBeWrittenIsNoTrouble();
    void folderAndFilesArePrivate();
};

void RecoveryCopiesTest::init()
{
    cleanup();
    reset();
}

void RecoveryCopiesTest::usualFolderIsInTheUsersData()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(home->path()));
    QCOMPARE(RecoveryCopies::usualFolder(), home->filePath("recovery_copies_test/recovery"));
}

void RecoveryCopiesTest::copyHoldsThePiecesInOrder()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"one", "", "two", QByteArray(100000, 'x')}});
    QCOMPARE(files().size(), 1);
    QCOMPARE(contents(path(files()[0])), "onetwo" + QByteArray(100000, 'x'));
}

void RecoveryCopiesTest::laterOneTakesThePlaceOfTheFirst()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"a long first one"}});
    const QStringList first = files();
    copies.keep("harbour", untitled, {{}, {"second"}});
    QCOMPARE(files(), first);
    QCOMPARE(contents(path(first[0])), QByteArray("second"));
}

// It is kept at every change.
void RecoveryCopiesTest::nobodyWaitsForTheDisk()
{
    fsync(-1);
    fdatasync(-1);
    QCOMPARE(waits, 2);
    RecoveryCopies copies(folder);
    for (const char *content : {"first", "second"})
        copies.keep("harbour", {"/campaigns/harbour.e3c", {}}, {"head", {content}});
    copies.leave();
    QCOMPARE(files().size(), 2);
    QCOMPARE(waits, 2);
}

void RecoveryCopiesTest::nameTellsWhenAndWhat()
{
    const QString format = "yyyy-MM-dd HH-mm-ss";
    const QString before = QDateTime::currentDateTime().toString(format);
    RecoveryCopies copies(folder);
    copies.keep("Old harbour (2)", untitled, {{}, {"x"}});
    const QString after = QDateTime::currentDateTime().toString(format);
    const QString name = files().value(0);
    QCOMPARE(withoutTime(name), QString("Old harbour (2).e3c"));
    QVERIFY(before <= name.left(19) && name.left(19) <= after);
}

void RecoveryCopiesTest::namesOfDocumentsAreMadeHarmless_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("name");
    const QString pine = QString::fromUtf8("ёлка");
    const QChar half(0xD83C);
    QTest::newRow("letters of any script") << pine << pine;
    QTest::newRow("folders") << "../a/b\\c"
                             << "___a_b_c";
    QTest::newRow("dots") << ".."
                          << "__";
    QTest::newRow("another ending") << "a.offered"
                                    << "a_offered";
    QTest::newRow("empty") << ""
                           << "Untitled";
    QTest::newRow("blanks") << " \t\n "
                            << "Untitled";
    QTest::newRow("blanks around and in") << " a \n\n b "
                                          << "a b";
    QTest::newRow("signs of shells and formats") << "a*?\"<>|%1:&;$`b"
                                                 << "a_______1_____b";
    QTest::newRow("zero and others that can't be seen")
        << QString("a") + QChar(0) + QChar(7) + QChar(0x202E) + "b"
        << "a___b";
    QTest::newRow("half a letter") << QString("a") + half + "b"
                                   << "a_b";
    QTest::newRow("a byte that is no letter") << QString("a") + QChar(0xDCFF) + "b"
                                              << "a_b";
    QTest::newRow("a picture") << QString::fromUtf8("a\xF0\x9F\x8C\xB2") << "a_";
    QTest::newRow("long") << QString(500, 'n') << QString(80, 'n');
    QTest::newRow("long, two bytes a letter") << pine.repeated(100) << pine.repeated(10);
    QTest::newRow("long, with a letter at the edge") << QString(79, 'n') + pine << QString(79, 'n');
}

void RecoveryCopiesTest::namesOfDocumentsAreMadeHarmless()
{
    QFETCH(QString, document);
    QFETCH(QString, name);
    RecoveryCopies copies(folder);
    copies.keep(document, untitled, {{}, {"x"}});
    QCOMPARE(files().size(), 1);
    QCOMPARE(withoutTime(files()[0]), name + ".e3c");
    copies.leave();
    QCOMPARE(copies.newestToOffer()->documentName(), name);
    QCOMPARE(offeredBy(copies), QByteArray("x"));
    QCOMPARE(withoutTime(files()[0]), name + ".offered.e3c");
    QCOMPARE(offeredBy(copies), QByteArray());
}

// An editor for texts of Windows has file names in that encoding too, which lacks most letters.
void RecoveryCopiesTest::namesAreKeptPlainInOtherEncodings()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    RecoveryCopies copies(folder);
    copies.keep(QString::fromUtf8("a ёлка"), untitled, {{}, {"x"}});
    copies.leave();
    QCOMPARE(withoutTime(files().value(0)), QString("a ____.e3c"));
    QCOMPARE(offeredBy(copies), QByteArray("x"));
}

void RecoveryCopiesTest::removeLeavesNothing()
{
    RecoveryCopies copies(folder);
    copies.remove();
    copies.keep("harbour", {"/campaigns/harbour.e3c", {}}, {{}, {"x"}});
    QCOMPARE(files().size(), 2);
    copies.remove();
    QCOMPARE(files(), QStringList());
}

void RecoveryCopiesTest::leftCopyStaysAndTheNextDocumentHasItsOwn()
{
    RecoveryCopies copies(folder);
    copies.keep("first", untitled, {{}, {"one"}});
    copies.leave();
    copies.keep("second", untitled, {{}, {"two"}});
    QCOMPARE(files().size(), 2);
    copies.remove();
    QCOMPARE(files().size(), 1);
    QCOMPARE(contents(path(files()[0])), QByteArray("one"));
}

void RecoveryCopiesTest::originComesBack()
{
    const RecoveryOrigin origin{QString::fromUtf8("/campaigns/\"старая\" гавань.v2.e3c"),
                                {true, 1, ~quint64(0), 1LL << 40, 1600000000123456789}};
    leaveCopy("harbour", 0, origin);
    const auto copy = RecoveryCopies(folder).newestToOffer();
    QVERIFY(copy);
    QCOMPARE(copy->origin.path, origin.path);
    QVERIFY(copy->origin.stamp == origin.stamp);
    QCOMPARE(copy->documentName(), QString::fromUtf8("\"старая\" гавань"));
}

// And means the same file to an editor of another encoding.
void RecoveryCopiesTest::originKeepsEveryByteOfItsName()
{
    const QByteArray name = "/campaigns/\xE3\xE0\xE2 %41+\xFF\xD1\x91.e3c";
    QTextCodec::setCodecForLocale(escapedUtf8Codec());
    leaveCopy("harbour", 0, {QFile::decodeName(name), {}});
    QCOMPARE(QFile::encodeName(RecoveryCopies(folder).newestToOffer()->origin.path), name);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("koi8-r"));
    QCOMPARE(QFile::encodeName(RecoveryCopies(folder).newestToOffer()->origin.path), name);
}

void RecoveryCopiesTest::damagedNoteIsNoOrigin_data()
{
    QTest::addColumn<QByteArray>("note");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no note") << QByteArray("\x1f\x8b\0\xff", 4);
    QTest::newRow("cut off") << QByteArray("{\"file\": \"/a.e3c\", \"sta");
    QTest::newRow("without a state") << QByteArray("{\"file\": \"/a.e3c\"}");
    QTest::newRow("of other types") << QByteArray("{\"file\": [1], \"state\": {}}");
    QTest::newRow("endless") << QByteArray(1 << 20, '[');
}

void RecoveryCopiesTest::damagedNoteIsNoOrigin()
{
    QFETCH(QByteArray, note);
    leaveCopy("harbour", 0, {"/a.e3c", {}});
    const QString name = files().filter(".origin").value(0);
    QVERIFY(write(path(name), note));
    const auto copy = RecoveryCopies(folder).newestToOffer();
    QVERIFY(copy);
    QCOMPARE(copy->origin.path, QString());
    QVERIFY(!copy->origin.stamp.exists);
    QCOMPARE(copy->documentName(), QString("harbour"));
}

void RecoveryCopiesTest::failedRenewalKeepsTheOldCopy()
{
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"short"}});
    const QStringList before = files();
    {
        const FileSizeLimit limit(20);
        copies.keep("harbour", untitled, {{}, {"this is ", "longer than allowed"}});
        QCOMPARE(files(), before);
        QCOMPARE(contents(path(before[0])), QByteArray("short"));
    }
    copies.keep("harbour", untitled, {{}, {"this is ", "longer than allowed"}});
    QCOMPARE(files(), before);
    QCOMPARE(contents(path(before[0])), QByteArray("this is longer than allowed"));
}

void RecoveryCopiesTest::failedFirstCopyLeavesNothing()
{
    RecoveryCopies copies(folder);
    {
        const FileSizeLimit limit(20);
        copies.keep("harbour", untitled, {{}, {"this is longer than allowed"}});
    }
    QCOMPARE(files(), QStringList());
    copies.keep("harbour", untitled, {{}, {"this is longer than allowed"}});
    QCOMPARE(files().size(), 1);
}

void RecoveryCopiesTest::placeThatCantBeWrittenIsNoTrouble()
{
    QVERIFY(write(home->filePath("data"), "a file"));
    RecoveryCopies copies(folder);
    copies.keep("harbour", untitled, {{}, {"x"}});
    QVERIFY(!copies.newestToOffer());
    copies.remove();
    copies.leave();
    QCOMPARE(contents(home->filePath("data")), QByteArray("a file"));
    RecoveryCopies nowhere{QString()};
    nowhere.keep("harbour", untitled, {{}, {"x"}});
    QVERIFY(!nowhere.newestToOffer());
}

void RecoveryCopiesTest::folderAndFilesArePrivate()
{
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
    const mode_t mask = umask(0);
    RecoveryCopies copies(folder);
    copies.keep("harbour", {"/a.e3c", {}}, {{}, {"x"}});
    copies.keep("harbour", {"/a.e3c", {}}, {{}, {"y"}});
    umask(mask);
    QCOMPARE(modeOf(folder), mode_t(0700));
    QCOMPARE(files().size(), 2);
    for (const QString &name : files())
        QCOMPARE(modeOf(path(name)), mode_t(0600));
}

QTEST_GUILESS_MAIN(RecoveryCopiesTest)
#include "recovery_copies_test.moc"
