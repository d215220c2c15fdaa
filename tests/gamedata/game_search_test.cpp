// Finding the game: what a folder lacks of it, the one chosen last, and the order of places.
#include "gamedata/game_search.h"
#include "gamedata/locale_codec.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class GameSearchTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void missingFilesAreNamed_data();
    void missingFilesAreNamed();
    void nothingIsChosenAtFirst();
    void choiceIsKeptInTheUsersSettings();
    void choiceIsTheSameInEveryEncoding_data();
    void choiceIsTheSameInEveryEncoding();
    void choiceThatCantBeKeptIsTold();
    void systemsChoiceStandsInForTheUsers();
    void placesAreSearchedInOrder_data();
    void placesAreSearchedInOrder();
    void chosenFolderIsPassedOverOnceItLacksAFile();
    void ownFolderCountsWhileAnyFileOfTheGameIsThere();

private:
    // A folder with these files of the game; a name that ends in "/" is a folder's.
    QString folder(const QString &name, const QStringList &files) const;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

namespace {

const QStringList wholeGame{"ravn.dat", "Ravn_settings.ini", "Data/"};

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

// Qt looks up where settings stand once for a process, so all tests share that folder.
void GameSearchTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(setLocaleCodec("UTF-8"));
    static const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.filePath("user")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(settings.filePath("system")));
    for (const char *who : {"user", "system"})
        QDir(settings.filePath(who)).removeRecursively();
}

void GameSearchTest::cleanup()
{
    qunsetenv("CMPED_GAME_DIR");
}

QString GameSearchTest::folder(const QString &name, const QStringList &files) const
{
    const QDir there(path(name));
    there.mkpath(".");
    for (const QString &file : files) {
        if (file.endsWith('/'))
            there.mkpath(file);
        else
            touch(there.filePath(file));
    }
    return there.path();
}

void GameSearchTest::missingFilesAreNamed_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("none") << wholeGame << QStringList();
    QTest::newRow("table file") << QStringList{"Ravn_settings.ini", "Data/"}
                                << QStringList{"ravn.dat"};
    QTest::newRow("settings") << QStringList{"ravn.dat", "Data/"}
                              << QStringList{"Ravn_settings.ini"};
    QTest::newRow("archives") << QStringList{"ravn.dat", "Ravn_settings.ini"}
                              << QStringList{"Data"};
    QTest::newRow("a folder of a file's name")
        << QStringList{"ravn.dat/", "Ravn_settings.ini", "Data/"} << QStringList{"ravn.dat"};
    QTest::newRow("a file of the folder's name")
        << QStringList{"ravn.dat", "Ravn_settings.ini", "Data"} << QStringList{"Data"};
    QTest::newRow("all") << QStringList() << QStringList{"ravn.dat", "Ravn_settings.ini", "Data"};
}

void GameSearchTest::missingFilesAreNamed()
{
    QFETCH(QStringList, files);
    QTEST(missingGameFiles(folder("game", files)), "missing");
}

void GameSearchTest::nothingIsChosenAtFirst()
{
    QCOMPARE(chosenGame(), QString());
    QCOMPARE(findGame(path("nowhere")), QString());
}

void GameSearchTest::choiceIsKeptInTheUsersSettings()
{
    QVERIFY(rememberChosenGame("/games/first"));
    QVERIFY(rememberChosenGame("/games/eldmark"));
    QCOMPARE(chosenGame(), QString("/games/eldmark"));
    QFile file(qEnvironmentVariable("XDG_CONFIG_HOME") + "/cmped/cmped.conf");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("[game]\nfolder=/games/eldmark\n"));
}

void GameSearchTest::choiceIsTheSameInEveryEncoding_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("UTF-8") << QByteArray("/\xd1\x91\xd0\xb6");
    QTest::newRow("no UTF-8") << QByteArray("/\xb8\xe6");
    QTest::newRow("signs of settings files") << QByteArray("/a=b,c;d \"e\" [f] %g");
}

void GameSearchTest::choiceIsTheSameInEveryEncoding()
{
    QFETCH(QByteArray, name);
    QVERIFY(rememberChosenGame(QFile::decodeName(name)));
    QCOMPARE(QFile::encodeName(chosenGame()), name);
    QVERIFY(setLocaleCodec("windows-1251"));
    QCOMPARE(QFile::encodeName(chosenGame()), name);
    QVERIFY(rememberChosenGame(QFile::decodeName(name)));
    QVERIFY(setLocaleCodec("UTF-8"));
    QCOMPARE(QFile::encodeName(chosenGame()), name);
}

void GameSearchTest::choiceThatCantBeKeptIsTold()
{
    const QString home = qEnvironmentVariable("XDG_CONFIG_HOME");
    touch(home); // a file where the folder of settings would be
    QVERIFY(!rememberChosenGame("/games/eldmark"));
    QVERIFY(QFile::remove(home));
}

void GameSearchTest::systemsChoiceStandsInForTheUsers()
{
    const QString folder = qEnvironmentVariable("XDG_CONFIG_DIRS") + "/cmped";
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/cmped.conf");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[game]\nfolder=/usr/games/eldmark\n");
    file.close();
    QCOMPARE(chosenGame(), QString("/usr/games/eldmark"));
    QVERIFY(rememberChosenGame("/home/eldmark"));
    QCOMPARE(chosenGame(), QString("/home/eldmark"));
}

void GameSearchTest::placesAreSearchedInOrder_data()
{
    QTest::addColumn<bool>("named");
    QTest::addColumn<bool>("beside");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<QString>("found");
    QTest::newRow("all") << true << true << true << "named";
    QTest::newRow("none named") << false << true << true << "own";
    QTest::newRow("chosen alone") << false << false << true << "chosen";
    QTest::newRow("named, not beside") << true << false << true << "named";
    QTest::newRow("none") << false << false << false << "";
}

void GameSearchTest::placesAreSearchedInOrder()
{
    QFETCH(bool, named);
    QFETCH(bool, beside);
    QFETCH(bool, chosen);
    QFETCH(QString, found);
    if (named) // whatever is in it: the editor tells what is not
        qputenv("CMPED_GAME_DIR", QFile::encodeName(path("named")));
    folder("own", beside ? wholeGame : QStringList{"Ravn_Data/", "Data/"});
    folder("chosen", wholeGame);
    if (chosen)
        QVERIFY(rememberChosenGame(path("chosen")));
    QCOMPARE(findGame(path("own")), found.isEmpty() ? QString() : path(found));
}

void GameSearchTest::chosenFolderIsPassedOverOnceItLacksAFile()
{
    const QString chosen = folder("chosen", wholeGame);
    QVERIFY(rememberChosenGame(chosen));
    QCOMPARE(findGame(path("own")), chosen);
    QVERIFY(QFile::remove(chosen + "/ravn.dat"));
    QCOMPARE(findGame(path("own")), QString());
    QCOMPARE(chosenGame(), chosen);
}

// The editor in a game's folder says what that game has lost, and opens no other one.
void GameSearchTest::ownFolderCountsWhileAnyFileOfTheGameIsThere()
{
    QVERIFY(rememberChosenGame(folder("chosen", wholeGame)));
    for (const char *name : {"ravn.dat", "Ravn_settings.ini"})
        QCOMPARE(findGame(folder(QString("own ") + name, {name})), path(QString("own ") + name));
}

QTEST_GUILESS_MAIN(GameSearchTest)
#include "game_search_test.moc"
