// Where the game's files are.
#include "gamedata/game_dir.h"

#include <QTemporaryDir>
#include <QtTest>

class GameDirTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void rootIsTheApplicationsFolder();
    void environmentNamesAnotherRoot();
    void setGameRootComesFirst();
    void findsSubfolders();
    void missingSubfolderGivesTheRoot();
    void knowsFilesFromFolders_data();
    void knowsFilesFromFolders();
};

void GameDirTest::cleanup()
{
    setGameRoot({});
    qunsetenv("CMPED_GAME_DIR");
}

void GameDirTest::rootIsTheApplicationsFolder()
{
    QCOMPARE(gameRoot(), QCoreApplication::applicationDirPath());
}

void GameDirTest::environmentNamesAnotherRoot()
{
    qputenv("CMPED_GAME_DIR", "/the/game");
    QCOMPARE(gameRoot(), QStringLiteral("/the/game"));
    qputenv("CMPED_GAME_DIR", "");
    QCOMPARE(gameRoot(), QCoreApplication::applicationDirPath());
}

void GameDirTest::setGameRootComesFirst()
{
    qputenv("CMPED_GAME_DIR", "/the/game");
    setGameRoot(QStringLiteral("/another/game"));
    QCOMPARE(gameRoot(), QStringLiteral("/another/game"));
    setGameRoot({});
    QCOMPARE(gameRoot(), QStringLiteral("/the/game"));
}

void GameDirTest::findsSubfolders()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("Maps")));
    setGameRoot(dir.path());
    QCOMPARE(getGameDir(QStringLiteral("Maps")).path(), dir.filePath(QStringLiteral("Maps")));
}

void GameDirTest::missingSubfolderGivesTheRoot()
{
    const QTemporaryDir dir;
    setGameRoot(dir.path());
    QCOMPARE(getGameDir(QStringLiteral("Maps")).path(), dir.path());
    setGameRoot({});
    QCOMPARE(getGameDir(QStringLiteral("no such folder")).path(),
             QCoreApplication::applicationDirPath());
}

void GameDirTest::knowsFilesFromFolders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");
    QTest::newRow("file") << QStringLiteral("file") << true;
    QTest::newRow("folder") << QStringLiteral("folder") << false;
    QTest::newRow("missing") << QStringLiteral("missing") << false;
    QTest::newRow("link to a file") << QStringLiteral("link") << true;
    QTest::newRow("link to nothing") << QStringLiteral("dangling") << false;
}

void GameDirTest::knowsFilesFromFolders()
{
    QFETCH(QString, name);
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder")));
    QVERIFY(QFile::link(QStringLiteral("file"), dir.filePath(QStringLiteral("link"))));
    QVERIFY(QFile::link(QStringLiteral("missing"), dir.filePath(QStringLiteral("dangling"))));
    const bool exists = fileExists(dir.filePath(name));
    QTEST(exists, "expected");
}

QTEST_GUILESS_MAIN(GameDirTest)
#include "game_dir_test.moc"
