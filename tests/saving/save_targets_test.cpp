// Saving onto everything that a name can stand for.
#include "tests/saving/saving_place.h"
#include "tests/saving/saving_window.h"
#include "tests/support/terminal.h"

#include <QtTest>

#include <sys/mount.h>

namespace {

const QString file = QStringLiteral("file.e3c");
const QByteArray oldBytes = QByteArrayLiteral("old bytes");

} // namespace

class SaveTargetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void writesWhereALinkLeads_data();
    void writesWhereALinkLeads();
    void keepsTheMode_data();
    void keepsTheMode();
    void keepsTheOwner();
    void closesAFileThatLosesItsGroup();
    void writesNamesOfAnyLength_data();
    void writesNamesOfAnyLength();
    void refusesAReadOnlyFile();
    void writesInAReadOnlyFolderWhatIsThereAlready();
    void writesAMountedFileInPlace();
    void leavesTheOtherNamesOfAFileItsOldContent();
    void leavesOtherHiddenFilesAlone();

private:
    QString path(const QString &name = file) const { return m_dir->filePath(name); }
    void checkSaved(const QString &name)
    {
        QVERIFY(m_window->save(path(name)));
        QCOMPARE(m_window->messages(), QStringList());
        QVERIFY(!EditorData::info.modified);
        QCOMPARE(m_window->file(), path(name));
        QVERIFY(bytesOf(path(name)) == m_window->bytes());
    }
    void checkRefused(const QString &name, const QString &words)
    {
        const QString before = m_window->file();
        QVERIFY(!m_window->save(path(name)));
        QCOMPARE(m_window->messages(), cannotWrite(path(name), words));
        QVERIFY(EditorData::info.modified);
        QCOMPARE(m_window->file(), before);
    }
    struct stat statusOf(const QString &name) const
    {
        struct stat status = {};
        if (stat(QFile::encodeName(path(name)).constData(), &status) != 0)
            qWarning("no status of %s", qPrintable(name));
        return status;
    }

    std::unique_ptr<SavingWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;
};

void SaveTargetsTest::initTestCase()
{
    m_window = std::make_unique<SavingWindow>();
}

void SaveTargetsTest::cleanupTestCase()
{
    m_window.reset();
}

void SaveTargetsTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void SaveTargetsTest::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("words");
    QTest::newRow("folder") << "folder"
                            << "Is a directory";
    QTest::newRow("link to a folder") << "to-folder"
                                      << "Is a directory";
    QTest::newRow("pipe that nobody reads") << "pipe"
                                            << "Not a regular file";
    QTest::newRow("link to a pipe") << "to-pipe"
                                    << "Not a regular file";
    QTest::newRow("device") << "to-device"
                            << "Not a regular file";
    QTest::newRow("links in a circle") << "circle"
                                       << "Too many levels of symbolic links";
    QTest::newRow("no folder") << "no/file"
                               << "No such file or directory";
    QTest::newRow("link into no folder") << "to-nowhere"
                                         << "No such file or directory";
    QTest::newRow("below a file") << "plain/file"
                                  << "Not a directory";
}

void SaveTargetsTest::refusesWhatIsNoFile()
{
    QFETCH(QString, target);
    QFETCH(QString, words);
    QVERIFY(QDir(m_dir->path()).mkdir("folder"));
    QVERIFY(makeFile(path("plain"), oldBytes));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link("folder", path("to-folder")));
    QVERIFY(QFile::link("pipe", path("to-pipe")));
    Terminal terminal;
    QVERIFY(terminal.open());
    QVERIFY(QFile::link(terminal.name(), path("to-device")));
    QVERIFY(QFile::link("ring", path("circle")));
    QVERIFY(QFile::link("circle", path("ring")));
    QVERIFY(QFile::link("no/file", path("to-nowhere")));
    const QDir dir(m_dir->path());
    const auto all = QDir::AllEntries | QDir::System | QDir::Hidden;
    const QStringList before = dir.entryList(all);
    checkRefused(target, words);
    QCOMPARE(dir.entryList(all), before);
    QCOMPARE(bytesOf(path("plain")), oldBytes);
    QVERIFY(QDir(path("folder")).isEmpty());
}

void SaveTargetsTest::writesWhereALinkLeads_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("to a file") << true;
    QTest::newRow("to nowhere") << false;
}

void SaveTargetsTest::writesWhereALinkLeads()
{
    QFETCH(bool, exists);
    QVERIFY(QDir(m_dir->path()).mkdir("folder"));
    QVERIFY(QFile::link("folder/real.e3c", path("link.e3c")));
    if (exists)
        QVERIFY(makeFile(path("folder/real.e3c"), oldBytes));
    checkSaved("link.e3c");
    QVERIFY(QFileInfo(path("link.e3c")).isSymLink());
    QCOMPARE(filesOf(path("folder")), QStringList("real.e3c"));
    QVERIFY(bytesOf(path("folder/real.e3c")) == m_window->bytes());
}

void SaveTargetsTest::keepsTheMode_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0664, 0777})
        QTest::addRow("%o", unsigned(mode)) << mode;
}

void SaveTargetsTest::keepsTheMode()
{
    QFETCH(int, mode);
    QVERIFY(makeFile(path(), oldBytes));
    QCOMPARE(chmod(QFile::encodeName(path()).constData(), mode_t(mode)), 0);
    checkSaved(file);
    QCOMPARE(int(statusOf(file).st_mode & 07777), mode);
}

void SaveTargetsTest::keepsTheOwner()
{
    if (geteuid() != 0)
        QSKIP("only root can give a file away");
    QVERIFY(makeFile(path(), oldBytes));
    QCOMPARE(chown(QFile::encodeName(path()).constData(), 1234, 4321), 0);
    checkSaved(file);
    QCOMPARE(statusOf(file).st_uid, 1234U);
    QCOMPARE(statusOf(file).st_gid, 4321U);
}

// Who may write a file by its group can't give the new one to its owner, nor to a group he isn't
// in; the mode then grants his own group no more than everybody.
void SaveTargetsTest::closesAFileThatLosesItsGroup()
{
    if (geteuid() != 0)
        QSKIP("only root can become somebody else");
    QVERIFY(makeFile(path(), oldBytes));
    QCOMPARE(chmod(QFile::encodeName(path()).constData(), 0662), 0);
    QCOMPARE(chmod(QFile::encodeName(m_dir->path()).constData(), 0777), 0);
    constexpr uid_t nobody = 65534;
    QCOMPARE(setegid(nobody), 0);
    QCOMPARE(seteuid(nobody), 0);
    const bool saved = m_window->save(path());
    QCOMPARE(seteuid(0), 0);
    QCOMPARE(setegid(0), 0);
    QVERIFY2(saved, qPrintable(m_window->messages().join(' ')));
    QVERIFY(bytesOf(path()) == m_window->bytes());
    QCOMPARE(statusOf(file).st_uid, nobody);
    QCOMPARE(int(statusOf(file).st_mode & 07777), 0622);
    QCOMPARE(filesOf(m_dir->path()), QStringList(file));
}

void SaveTargetsTest::writesNamesOfAnyLength_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("exists");
    for (const int size : {1, 248, 249, 250, 255}) {
        QTest::addRow("%d, new", size) << size << false;
        QTest::addRow("%d, existing", size) << size << true;
    }
}

void SaveTargetsTest::writesNamesOfAnyLength()
{
    QFETCH(int, size);
    QFETCH(bool, exists);
    const QString name(size, 'n');
    if (exists)
        QVERIFY(makeFile(path(name), oldBytes));
    QFile reader(path(name));
    QCOMPARE(reader.open(QIODevice::ReadOnly), exists);
    checkSaved(name);
    QCOMPARE(filesOf(m_dir->path()), QStringList(name));
    if (exists)
        QCOMPARE(reader.readAll(), oldBytes); // it was replaced, not written over
}

void SaveTargetsTest::refusesAReadOnlyFile()
{
    QVERIFY(makeFile(path(), oldBytes));
    QCOMPARE(chmod(QFile::encodeName(path()).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(m_dir->path()).constData(), 0777), 0);
    const bool root = geteuid() == 0; // whom no mode binds
    if (root)
        QCOMPARE(seteuid(65534), 0);
    checkRefused(file, "Permission denied");
    if (root)
        QCOMPARE(seteuid(0), 0);
    QCOMPARE(bytesOf(path()), oldBytes);
    QCOMPARE(filesOf(m_dir->path()), QStringList(file));
}

void SaveTargetsTest::writesInAReadOnlyFolderWhatIsThereAlready()
{
    QVERIFY(makeFile(path(), oldBytes));
    {
        const FolderWithoutRight closed(m_dir->path());
        checkSaved(file);
        checkRefused("new.e3c", "Permission denied");
    }
    QCOMPARE(filesOf(m_dir->path()), QStringList(file));
}

void SaveTargetsTest::writesAMountedFileInPlace()
{
    const QByteArray source = QFile::encodeName(path("source.e3c"));
    const QByteArray place = QFile::encodeName(path());
    QVERIFY(makeFile(path("source.e3c"), pattern(50000, 1)));
    QVERIFY(makeFile(path(), "below the mount"));
    if (mount(source.constData(), place.constData(), nullptr, MS_BIND, nullptr))
        QSKIP("no right to mount here");
    const bool saved = m_window->save(path());
    umount(place.constData());
    QVERIFY(saved);
    QVERIFY(bytesOf(path("source.e3c")) == m_window->bytes());
    QCOMPARE(bytesOf(path()), QByteArray("below the mount"));
    QCOMPARE(filesOf(m_dir->path()), QStringList({file, "source.e3c"}));
}

void SaveTargetsTest::leavesTheOtherNamesOfAFileItsOldContent()
{
    QVERIFY(makeFile(path(), oldBytes));
    QCOMPARE(link(QFile::encodeName(path()).constData(),
                  QFile::encodeName(path("backup.e3c")).constData()),
             0);
    checkSaved(file);
    QCOMPARE(bytesOf(path("backup.e3c")), oldBytes);
    QCOMPARE(int(statusOf("backup.e3c").st_nlink), 1);
}

// Only what has our name for a second file, is a regular file and isn't in use goes.
void SaveTargetsTest::leavesOtherHiddenFilesAlone()
{
    const QStringList kept{".cmped-save-abcde",   ".cmped-save-abcdefg", ".cmped-save",
                           "x.cmped-save-abcdef", "file.e3c.abcdef",     ".file.e3c"};
    for (const QString &name : kept)
        QVERIFY(makeFile(path(name), oldBytes));
    QVERIFY(makeFile(path(".cmped-save-abcdef"), oldBytes));
    QVERIFY(QFile::link("x.cmped-save-abcdef", path(".cmped-save-linked")));
    QCOMPARE(mkfifo(QFile::encodeName(path(".cmped-save-pipe00")).constData(), 0600), 0);
    QVERIFY(QDir(m_dir->path()).mkdir(".cmped-save-folder"));
    checkSaved(file);
    const auto all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    QStringList expected = kept;
    expected << file << ".cmped-save-linked"
             << ".cmped-save-pipe00"
             << ".cmped-save-folder";
    expected.sort();
    QStringList found = QDir(m_dir->path()).entryList(all);
    found.sort();
    QCOMPARE(found, expected);
}

QTEST_MAIN(SaveTargetsTest)
#include "save_targets_test.moc"
