// The folder that file dialogs begin in, as the settings keep it.
#include "gamedata/game_dir.h"
#include "gamedata/ini_file.h"
#include "gamedata/used_folder.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class UsedFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void noneWasUsedAtFirst();
    void settingsTellTheFolder();
    void folderOfAChosenFileIsKept_data();
    void folderOfAChosenFileIsKept();
    void relativeFilesAreKeptByTheirWholeFolder();
    void settingsFileIsNotWrittenAtOnce();
    void readOnlyGamesFolderIsKeptForTheUser();
    void folderOfAnotherGameIsNotRecalled();
    void writableGameKeepsItsOwn();

private:
    // As the program has them at its start in a game's folder.
    void useSettings(const QString &game);

    QTemporaryDir m_dir;
    std::unique_ptr<_Ini_> m_settings;
};

namespace {

// A word of two Cyrillic letters, as its bytes stand in a file in UTF-8.
constexpr const char *cyrillic = "/\xd1\x91\xd0\xb6";

QByteArray storedPath()
{
    return ini->GetStringVal("Campaign Editor", "Path", "none");
}

} // namespace

void UsedFolderTest::useSettings(const QString &game)
{
    setGameRoot(game);
    m_settings = std::make_unique<_Ini_>((game + "/settings.ini").toStdWString());
    ini = m_settings.get();
}

void UsedFolderTest::init()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.filePath("user")));
    QDir(m_dir.filePath("user")).removeRecursively();
    useSettings(m_dir.path());
}

void UsedFolderTest::cleanup()
{
    ini = nullptr;
    setGameRoot({});
}

void UsedFolderTest::noneWasUsedAtFirst()
{
    QCOMPARE(usedFolder(), QString());
    m_settings->SetStringVal("Campaign Editor", "Path", "");
    QCOMPARE(usedFolder(), QString());
}

void UsedFolderTest::settingsTellTheFolder()
{
    m_settings->SetStringVal("Campaign Editor", "Path", "/maps");
    QCOMPARE(usedFolder(), QString("/maps"));
    m_settings->SetStringVal("Campaign Editor", "Path", cyrillic);
    QCOMPARE(usedFolder(), QString("/") + QChar(0x451) + QChar(0x436));
}

void UsedFolderTest::folderOfAChosenFileIsKept_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("in a folder") << "/maps/old/thaw.e3m" << QByteArray("/maps/old");
    QTest::newRow("in the root") << "/thaw.e3m" << QByteArray("/");
    QTest::newRow("in UTF-8") << QString("/") + QChar(0x451) + QChar(0x436) + "/thaw.e3m"
                              << QByteArray(cyrillic);
}

void UsedFolderTest::folderOfAChosenFileIsKept()
{
    QFETCH(QString, file);
    m_settings->SetStringVal("Campaign Editor", "Path", "/before");
    rememberFolderOf(file);
    QTEST(storedPath(), "stored");
    QCOMPARE(usedFolder(), QFileInfo(file).path());
}

void UsedFolderTest::relativeFilesAreKeptByTheirWholeFolder()
{
    rememberFolderOf("thaw.e3m");
    QCOMPARE(storedPath(), QDir::currentPath().toUtf8());
}

void UsedFolderTest::settingsFileIsNotWrittenAtOnce()
{
    rememberFolderOf("/maps/thaw.e3m");
    QVERIFY(!QFile::exists(m_dir.filePath("settings.ini")));
    m_settings->Write();
    _Ini_ again(m_dir.filePath("settings.ini").toStdWString());
    again.Read();
    QCOMPARE(again.GetStringVal("Campaign Editor", "Path", "none"), "/maps");
}

// A settings file that isn't there can't be written either, not even by root.
void UsedFolderTest::readOnlyGamesFolderIsKeptForTheUser()
{
    useSettings("/no/such/game");
    recallUsedFolder();
    QCOMPARE(storedPath(), QByteArray("none"));
    rememberFolderOf(QString("/") + QChar(0x451) + QChar(0x436) + "/thaw.e3m");
    keepUsedFolder();

    useSettings("/no/such/game");
    m_settings->SetStringVal("Campaign Editor", "Path", "/of/everybody");
    recallUsedFolder();
    QCOMPARE(storedPath(), QByteArray(cyrillic));
}

void UsedFolderTest::folderOfAnotherGameIsNotRecalled()
{
    useSettings("/no/such/game");
    rememberFolderOf("/maps/thaw.e3m");
    keepUsedFolder();
    useSettings("/no/other/game");
    recallUsedFolder();
    QCOMPARE(storedPath(), QByteArray("none"));
}

void UsedFolderTest::writableGameKeepsItsOwn()
{
    useSettings("/no/such/game");
    rememberFolderOf("/maps/thaw.e3m");
    keepUsedFolder();

    useSettings(m_dir.path());
    setGameRoot("/no/such/game");
    m_settings->SetStringVal("Campaign Editor", "Path", "/of/everybody");
    m_settings->Write();
    QVERIFY(QFile::exists(m_dir.filePath("settings.ini")));
    recallUsedFolder();
    QCOMPARE(storedPath(), QByteArray("/of/everybody"));
    rememberFolderOf("/elsewhere/thaw.e3m");
    m_settings->Write();
    keepUsedFolder();

    useSettings("/no/such/game");
    recallUsedFolder();
    QCOMPARE(storedPath(), QByteArray("/maps"));
}

QTEST_APPLESS_MAIN(UsedFolderTest)
#include "used_folder_test.moc"
