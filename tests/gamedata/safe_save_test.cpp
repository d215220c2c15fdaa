// Saving: what becomes of modes, owners, links and files that can't be replaced.
#include "gamedata/safe_save.h"

#include "tests/support/safe_save_support.h"
#include "tests/support/terminal.h"

#include <QtTest>

#include <cerrno>
#include <cstring>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

class SafeSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesThePiecesInOrder_data();
    void writesThePiecesInOrder();
    void newFilesTakeTheUmask_data();
    void newFilesTakeTheUmask();
    void keepsTheMode_data();
    void keepsTheMode();
    void keepsTheOwner();
    void replacesTheFileInOneStep();
    void replacesFilesWithLongNamesToo();
    void writesAtTheEdgeOfLongNames_data();
    void writesAtTheEdgeOfLongNames();
    void followsLinks_data();
    void followsLinks();
    void refusesLinksInACircle();
    void refusesWhatIsNoRegularFile_data();
    void refusesWhatIsNoRegularFile();
    void saysWhatTheSystemSays_data();
    void saysWhatTheSystemSays();
    void refusesNamesThatTurnIntoOthers();
    void writesAMountedFileInPlace();
    void writesInPlaceInAReadOnlyFolder();
    void savesByRelativePath();
    void emptiesAFile();

private:
    QString path(const QString &name = QStringLiteral("file")) const
    {
        return m_dir->filePath(name);
    }
    static mode_t modeOf(const QString &name)
    {
        struct stat status = {};
        return stat(QFile::encodeName(name).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    static ino_t inodeOf(const QString &name)
    {
        struct stat status = {};
        return stat(QFile::encodeName(name).constData(), &status) == 0 ? status.st_ino : 0;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void SafeSaveTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void SafeSaveTest::writesThePiecesInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("old");
    QTest::newRow("new") << QStringLiteral("file") << QByteArray();
    QTest::newRow("new, long name") << longName() << QByteArray();
    QTest::newRow("shorter before") << QStringLiteral("file") << QByteArray("old");
    QTest::newRow("shorter before, long name") << longName() << QByteArray("old");
    QTest::newRow("longer before") << QStringLiteral("file") << pattern(500000, 3);
    QTest::newRow("longer before, long name") << longName() << pattern(500000, 3);
}

void SafeSaveTest::writesThePiecesInOrder()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, old);
    if (!old.isEmpty())
        QVERIFY(makeFile(path(name), old));
    const QByteArray large = pattern(300000, 1);
    const SaveResult result = saveFileSafely(path(name), {"head", "", large, "a", "b", "tail"});
    QVERIFY2(result.ok, qPrintable(result.error));
    QVERIFY(result.error.isEmpty());
    QCOMPARE(bytesOf(path(name)), "head" + large + "abtail");
    QCOMPARE(filesOf(m_dir->path()), QStringList(name));
}

void SafeSaveTest::newFilesTakeTheUmask_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("mode");
    for (const QString &name : {QStringLiteral("file"), longName()}) {
        QTest::addRow("022, %d", name.size()) << name << 022 << 0644;
        QTest::addRow("077, %d", name.size()) << name << 077 << 0600;
        QTest::addRow("002, %d", name.size()) << name << 002 << 0664;
    }
}

void SafeSaveTest::newFilesTakeTheUmask()
{
    QFETCH(QString, name);
    QFETCH(int, mask);
    QFETCH(int, mode);
    const mode_t before = umask(mode_t(mask));
    const SaveResult result = saveFileSafely(path(name), {"bytes"});
    umask(before);
    QVERIFY(result.ok);
    QCOMPARE(int(modeOf(path(name))), mode);
}

void SafeSaveTest::keepsTheMode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("mode");
    for (const QString &name : {QStringLiteral("file"), longName()}) {
        for (const int mode : {0600, 0640, 0644, 0666, 0755, 0777, 01644, 04755})
            QTest::addRow("%o, %d", mode, name.size()) << name << mode;
    }
}

void SafeSaveTest::keepsTheMode()
{
    QFETCH(QString, name);
    QFETCH(int, mode);
    QVERIFY(makeFile(path(name), "old"));
    QCOMPARE(chmod(QFile::encodeName(path(name)).constData(), mode_t(mode)), 0);
    QVERIFY(saveFileSafely(path(name), {"new"}).ok);
    QCOMPARE(int(modeOf(path(name))), mode);
    QCOMPARE(bytesOf(path(name)), QByteArray("new"));
}

void SafeSaveTest::keepsTheOwner()
{
    if (geteuid() != 0)
        QSKIP("only root can give a file away");
    QVERIFY(makeFile(path(), "old"));
    const QByteArray name = QFile::encodeName(path());
    QCOMPARE(chown(name.constData(), 1234, 4321), 0);
    QCOMPARE(chmod(name.constData(), 0640), 0);
    QVERIFY(saveFileSafely(path(), {"new"}).ok);
    struct stat status = {};
    QCOMPARE(stat(name.constData(), &status), 0);
    QCOMPARE(status.st_uid, 1234U);
    QCOMPARE(status.st_gid, 4321U);
    QCOMPARE(status.st_mode & 07777, 0640U);
}

void SafeSaveTest::replacesTheFileInOneStep()
{
    // Who has the old file open keeps reading it whole.
    QVERIFY(makeFile(path(), "old contents"));
    QFile reader(path());
    QVERIFY(reader.open(QIODevice::ReadOnly));
    const ino_t before = inodeOf(path());
    QVERIFY(saveFileSafely(path(), {"new"}).ok);
    QCOMPARE(reader.readAll(), QByteArray("old contents"));
    QVERIFY(inodeOf(path()) != before);
}

void SafeSaveTest::replacesFilesWithLongNamesToo()
{
    QVERIFY(makeFile(path(longName()), "old contents"));
    const ino_t before = inodeOf(path(longName()));
    QVERIFY(saveFileSafely(path(longName()), {"new"}).ok);
    QVERIFY(inodeOf(path(longName())) != before);
    QCOMPARE(bytesOf(path(longName())), QByteArray("new"));
    QCOMPARE(filesOf(m_dir->path()), QStringList(longName()));
}

void SafeSaveTest::writesAtTheEdgeOfLongNames_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {247, 248, 249, 250, 255})
        QTest::addRow("%d", size) << size;
}

void SafeSaveTest::writesAtTheEdgeOfLongNames()
{
    QFETCH(int, size);
    const QString name(size, QLatin1Char('n'));
    QVERIFY(saveFileSafely(path(name), {"first"}).ok);
    QVERIFY(saveFileSafely(path(name), {"second"}).ok);
    QCOMPARE(bytesOf(path(name)), QByteArray("second"));
    QCOMPARE(filesOf(m_dir->path()), QStringList(name));
}

void SafeSaveTest::followsLinks_data()
{
    QTest::addColumn<QStringList>("links"); // each one leads to the next
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QString>("target");
    const QString sub = QStringLiteral("sub/target");
    for (const bool exists : {true, false}) {
        const char *kind = exists ? "existing" : "dangling";
        QTest::addRow("relative, %s", kind) << QStringList{sub} << exists << sub;
        QTest::addRow("absolute, %s", kind)
            << QStringList{QStringLiteral("%1/") + sub} << exists << sub;
        QTest::addRow("chain, %s", kind)
            << QStringList{QStringLiteral("sub/second"), QStringLiteral("../third"), sub} << exists
            << sub;
        QTest::addRow("long name, %s", kind) << QStringList{longName()} << exists << longName();
    }
}

void SafeSaveTest::followsLinks()
{
    QFETCH(QStringList, links);
    QFETCH(bool, exists);
    QFETCH(QString, target);
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("sub")));
    QStringList names{path()};
    for (const QString &link : qAsConst(links)) {
        const QString text = link.contains(QLatin1Char('%')) ? link.arg(m_dir->path()) : link;
        QCOMPARE(symlink(QFile::encodeName(text).constData(),
                         QFile::encodeName(names.last()).constData()),
                 0);
        names << QFileInfo(names.last()).path() + QLatin1Char('/') + link;
    }
    names.removeLast();
    if (exists)
        QVERIFY(makeFile(path(target), "old"));
    const SaveResult result = saveFileSafely(path(), {"new"});
    QVERIFY2(result.ok, qPrintable(result.error));
    for (const QString &name : qAsConst(names))
        QVERIFY2(QFileInfo(name).isSymLink(), qPrintable(name));
    QVERIFY(!QFileInfo(path(target)).isSymLink());
    QCOMPARE(bytesOf(path(target)), QByteArray("new"));
}

void SafeSaveTest::refusesLinksInACircle()
{
    QVERIFY(QFile::link(QStringLiteral("b"), path(QStringLiteral("a"))));
    QVERIFY(QFile::link(QStringLiteral("a"), path(QStringLiteral("b"))));
    const SaveResult result = saveFileSafely(path(QStringLiteral("a")), {"new"});
    QVERIFY(!result.ok);
    QCOMPARE(result.error, QString::fromLocal8Bit(strerror(ELOOP)));
}

void SafeSaveTest::refusesWhatIsNoRegularFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("folder") << QStringLiteral("folder") << QStringLiteral("Is a directory");
    QTest::newRow("pipe") << QStringLiteral("pipe") << QStringLiteral("Not a regular file");
    QTest::newRow("link to a folder")
        << QStringLiteral("to-folder") << QStringLiteral("Is a directory");
    QTest::newRow("link to a pipe")
        << QStringLiteral("to-pipe") << QStringLiteral("Not a regular file");
    QTest::newRow("device") << QStringLiteral("to-device") << QStringLiteral("Not a regular file");
}

void SafeSaveTest::refusesWhatIsNoRegularFile()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("folder"), path(QStringLiteral("to-folder"))));
    QVERIFY(QFile::link(QStringLiteral("pipe"), path(QStringLiteral("to-pipe"))));
    Terminal terminal;
    QVERIFY(terminal.open());
    QVERIFY(QFile::link(terminal.name(), path(QStringLiteral("to-device"))));
    const QStringList before = QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::System);
    const SaveResult result = saveFileSafely(path(name), {"new"});
    QVERIFY(!result.ok);
    QCOMPARE(result.error, error);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::System), before);
}

void SafeSaveTest::saysWhatTheSystemSays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("no folder") << QStringLiteral("no/file")
                               << QStringLiteral("No such file or directory");
    QTest::newRow("a file as folder")
        << QStringLiteral("plain/file") << QStringLiteral("Not a directory");
    QTest::newRow("name out of reach")
        << QString(256, QLatin1Char('n')) << QStringLiteral("File name too long");
}

void SafeSaveTest::saysWhatTheSystemSays()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    QVERIFY(makeFile(path(QStringLiteral("plain")), "old"));
    const SaveResult result = saveFileSafely(path(name), {"new"});
    QVERIFY(!result.ok);
    QCOMPARE(result.error, error);
    QCOMPARE(filesOf(m_dir->path()), QStringList(QStringLiteral("plain")));
}

void SafeSaveTest::refusesNamesThatTurnIntoOthers()
{
    const QByteArray link = QFile::encodeName(path());
    QCOMPARE(symlink("\xff\xfe", link.constData()), 0);
    QVERIFY(!saveFileSafely(path(), {"new"}).ok);
    QVERIFY(
        !saveFileSafely(path(QStringLiteral("name")) + QChar(0) + QLatin1Char('x'), {"new"}).ok);
    QVERIFY(!saveFileSafely(QString(), {"new"}).ok);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void SafeSaveTest::writesAMountedFileInPlace()
{
    const QString source = path(QStringLiteral("source"));
    QVERIFY(makeFile(source, "old contents"));
    QVERIFY(makeFile(path(), "below the mount"));
    const QByteArray place = QFile::encodeName(path());
    if (mount(QFile::encodeName(source).constData(), place.constData(), nullptr, MS_BIND, nullptr))
        QSKIP("no right to mount here");
    const SaveResult result = saveFileSafely(path(), {"new"});
    umount(place.constData());
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(bytesOf(source), QByteArray("new"));
    QCOMPARE(bytesOf(path()), QByteArray("below the mount"));
    QCOMPARE(filesOf(m_dir->path()).size(), 2);
}

void SafeSaveTest::writesInPlaceInAReadOnlyFolder()
{
    QVERIFY(makeFile(path(), "old contents"));
    SaveResult existing;
    SaveResult fresh;
    {
        const FolderWithoutRight closed(m_dir->path());
        existing = saveFileSafely(path(), {"new"});
        fresh = saveFileSafely(path(QStringLiteral("fresh")), {"new"});
    }
    QVERIFY2(existing.ok, qPrintable(existing.error));
    QCOMPARE(bytesOf(path()), QByteArray("new"));
    QVERIFY(!fresh.ok);
    QCOMPARE(fresh.error, QStringLiteral("Permission denied"));
}

void SafeSaveTest::savesByRelativePath()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_dir->path()));
    const SaveResult result = saveFileSafely(QStringLiteral("relative"), {"new"});
    QDir::setCurrent(before);
    QVERIFY(result.ok);
    QCOMPARE(bytesOf(path(QStringLiteral("relative"))), QByteArray("new"));
}

void SafeSaveTest::emptiesAFile()
{
    for (const QString &name : {QStringLiteral("file"), longName()}) {
        QVERIFY(makeFile(path(name), "old"));
        QVERIFY(saveFileSafely(path(name), {}).ok);
        QCOMPARE(bytesOf(path(name)), QByteArray());
    }
}

QTEST_GUILESS_MAIN(SafeSaveTest)
#include "safe_save_test.moc"
