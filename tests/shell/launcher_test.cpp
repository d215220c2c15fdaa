// The launcher: its own options, and what the library it starts shows to the outside.
#include "launcher/launcher_options.h"
#include "tests/support/child_process.h"
#include "tests/support/longest_wait.h"
#include "tests/support/tiny_game.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

class LauncherTest : public QObject
{
    Q_OBJECT

private slots:
    void ownOptionsAreTakenOut_data();
    void ownOptionsAreTakenOut();
    void optionsAreRead();
    void optionWithoutANameIsAnError();
    void helpAndVersion();
    void wrongOptionEndsWithAMessage_data();
    void wrongOptionEndsWithAMessage();
    void folderThatIsNotTheGamesEndsWithAMessage();
    void gameIsSearchedInOrder_data();
    void gameIsSearchedInOrder();
    void filesBehindTheFirstAreToldOf();
    void startsTheEditorAndEndsOnSigterm();
    void ignoredSignalsStayIgnored();
    void relativeFileIsRememberedByItsWholePath();
    void fileBehindALinkIsRememberedItself();
    void libraryExportsRunAlone();
};

namespace {

LauncherOptions read(QByteArrayList arguments)
{
    std::vector<char *> argv;
    for (QByteArray &argument : arguments)
        argv.push_back(argument.data());
    LauncherOptions options = readLauncherOptions(int(argv.size()), argv.data());
    options.editorArguments.clear(); // they point into the list, which ends here
    return options;
}

QByteArrayList editorArguments(QByteArrayList arguments)
{
    std::vector<char *> argv;
    for (QByteArray &argument : arguments)
        argv.push_back(argument.data());
    QByteArrayList left;
    for (const char *argument : readLauncherOptions(int(argv.size()), argv.data()).editorArguments)
        left << argument;
    return left;
}

// Without a game.
QProcessEnvironment userEnvironment(const QTemporaryDir &settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("CMPED_GAME_DIR");
    environment.insert("XDG_CONFIG_HOME", settings.path());
    environment.insert("XDG_DATA_HOME", settings.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    return environment;
}

QProcessEnvironment editorEnvironment(const tiny::Game &game, const QTemporaryDir &settings)
{
    QProcessEnvironment environment = userEnvironment(settings);
    environment.insert("CMPED_GAME_DIR", game.path());
    return environment;
}

// Starts the editor, ends it once it is up and answers its exit status; -1 if it never came up.
int startAndEnd(QProcess &editor, const QStringList &arguments)
{
    editor.start(builtProgram("cmped"), arguments);
    if (!editor.waitForStarted() ||
        !QTest::qWaitFor([&] { return catches(editor.processId(), SIGTERM); }, longestWait))
        return -1;
    editor.terminate();
    return editor.waitForFinished() && editor.exitStatus() == QProcess::NormalExit
               ? editor.exitCode()
               : -1;
}

// The editor writes a game's settings in a layout of its own when it ends.
bool wasEdited(const tiny::Game &game)
{
    return game.read("Ravn_settings.ini").startsWith("[Global Settings]\r\n\r\n");
}

// The recent files once the editor was started in a folder with this argument, and ended.
QStringList rememberedFiles(const tiny::Game &game, const QString &folder, const QString &argument)
{
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    editor.setWorkingDirectory(folder);
    if (startAndEnd(editor, {argument}) != 0)
        return {};
    const QSettings recent(settings.filePath("cmped_info.conf"), QSettings::NativeFormat);
    return recent.value("recentFileList").toStringList();
}

} // namespace

void LauncherTest::ownOptionsAreTakenOut_data()
{
    QTest::addColumn<QByteArrayList>("given");
    QTest::addColumn<QByteArrayList>("left");
    QTest::newRow("nothing") << QByteArrayList{"cmped"} << QByteArrayList{"cmped"};
    QTest::newRow("a file") << QByteArrayList{"cmped", "a.e3c"} << QByteArrayList{"cmped", "a.e3c"};
    QTest::newRow("before") << QByteArrayList{"cmped", "--encoding", "koi8-r", "a.e3c"}
                            << QByteArrayList{"cmped", "a.e3c"};
    QTest::newRow("behind") << QByteArrayList{"cmped", "a.e3c", "--encoding=koi8-r"}
                            << QByteArrayList{"cmped", "a.e3c"};
    QTest::newRow("another option") << QByteArrayList{"cmped", "--game", "/g", "--game=/h", "a.e3c"}
                                    << QByteArrayList{"cmped", "a.e3c"};
    QTest::newRow("no option of its own") << QByteArrayList{"cmped", "--games", "--game-of"}
                                          << QByteArrayList{"cmped", "--games", "--game-of"};
    QTest::newRow("options of the toolkit")
        << QByteArrayList{"cmped", "-platform", "offscreen", "--version"}
        << QByteArrayList{"cmped", "-platform", "offscreen"};
    QTest::newRow("behind two dashes")
        << QByteArrayList{"cmped", "--", "--help"} << QByteArrayList{"cmped", "--help"};
}

void LauncherTest::ownOptionsAreTakenOut()
{
    QFETCH(QByteArrayList, given);
    QFETCH(QByteArrayList, left);
    QCOMPARE(editorArguments(given), left);
}

void LauncherTest::optionsAreRead()
{
    QVERIFY(read({"cmped", "--help"}).help);
    QVERIFY(read({"cmped", "--version"}).version);
    QCOMPARE(read({"cmped", "--encoding", "koi8-r"}).encoding, std::string("koi8-r"));
    QCOMPARE(read({"cmped", "--encoding=koi8-r"}).encoding, std::string("koi8-r"));
    QCOMPARE(read({"cmped", "--game", "/games/a=b"}).game, std::string("/games/a=b"));
    QCOMPARE(read({"cmped", "--game=/games/a=b"}).game, std::string("/games/a=b"));
    const LauncherOptions none = read({"cmped", "--", "--help"});
    QVERIFY(!none.help && !none.version && none.encoding.empty() && none.error.empty());
    QVERIFY(none.game.empty());
}

void LauncherTest::optionWithoutANameIsAnError()
{
    QCOMPARE(read({"cmped", "--game"}).error, std::string("--game needs the name of a folder"));
    QCOMPARE(read({"cmped", "--game="}).error, std::string("--game needs the name of a folder"));
    QCOMPARE(read({"cmped", "--encoding"}).error,
             std::string("--encoding needs the name of an encoding"));
    QCOMPARE(read({"cmped", "--encoding="}).error,
             std::string("--encoding needs the name of an encoding"));
}

void LauncherTest::helpAndVersion()
{
    const ChildResult help = runChild(builtProgram("cmped"), {"--help"});
    QCOMPARE(help.exitCode, 0);
    QVERIFY(help.output.startsWith("Usage: cmped "));
    QVERIFY(help.output.contains("--encoding NAME"));
    QVERIFY(help.output.contains("--game DIR"));
    QVERIFY(help.output.contains("--game names, else the environment variable\nCMPED_GAME_DIR"));
    QVERIFY(help.error.isEmpty());
    const ChildResult version = runChild(builtProgram("cmped"), {"--version"});
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.output, QByteArray("cmped " CMPED_VERSION "\n"));
}

void LauncherTest::wrongOptionEndsWithAMessage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown") << QStringList{"--encoding", "nonsense"}
                             << QByteArray("cmped: unknown encoding 'nonsense'\n");
    QTest::newRow("no name") << QStringList{"--encoding"}
                             << QByteArray("cmped: --encoding needs the name of an encoding\n");
    QTest::newRow("no folder") << QStringList{"--game"}
                               << QByteArray("cmped: --game needs the name of a folder\n");
}

void LauncherTest::wrongOptionEndsWithAMessage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ChildResult result = runChild(builtProgram("cmped"), arguments);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.error, message);
    QVERIFY(result.output.isEmpty());
}

void LauncherTest::folderThatIsNotTheGamesEndsWithAMessage()
{
    const tiny::Game game;
    QVERIFY(QFile::remove(game.filePath("ravn.dat")));
    const ChildResult partly = runChild(builtProgram("cmped"), {"--game", game.path()});
    QCOMPARE(partly.exitCode, 1);
    QCOMPARE(partly.error,
             "cmped: " + game.path().toUtf8() + " is not the game's folder: it lacks ravn.dat\n");
    const ChildResult nowhere = runChild(builtProgram("cmped"), {"--game", "/no/such"});
    QCOMPARE(nowhere.exitCode, 1);
    QCOMPARE(nowhere.error, QByteArray("cmped: /no/such is not the game's folder: it lacks "
                                       "ravn.dat, Ravn_settings.ini, Data\n"));
}

void LauncherTest::gameIsSearchedInOrder_data()
{
    QTest::addColumn<bool>("named");
    QTest::addColumn<bool>("inEnvironment");
    QTest::addColumn<QString>("found");
    QTest::newRow("the one named comes first") << true << true << "named";
    QTest::newRow("the environment's comes next") << false << true << "environment";
    QTest::newRow("the one chosen last stands in") << false << false << "chosen";
}

void LauncherTest::gameIsSearchedInOrder()
{
    QFETCH(bool, named);
    QFETCH(bool, inEnvironment);
    QFETCH(QString, found);
    const tiny::Game namedGame("Language=0\n");
    const tiny::Game environmentsGame("Language=0\n");
    const tiny::Game chosenGame("Language=0\n");
    const QTemporaryDir settings;
    QSettings chosen(settings.filePath("cmped/cmped.conf"), QSettings::NativeFormat);
    chosen.setValue("game/folder", chosenGame.path());
    chosen.sync();
    QProcess editor;
    editor.setProcessEnvironment(inEnvironment ? editorEnvironment(environmentsGame, settings)
                                               : userEnvironment(settings));
    editor.setWorkingDirectory(QFileInfo(namedGame.path()).path());
    QCOMPARE(startAndEnd(editor, named
                                     ? QStringList{"--game", QFileInfo(namedGame.path()).fileName()}
                                     : QStringList()),
             0);
    QCOMPARE(wasEdited(namedGame), found == "named");
    QCOMPARE(wasEdited(environmentsGame), found == "environment");
    QCOMPARE(wasEdited(chosenGame), found == "chosen");
}

void LauncherTest::filesBehindTheFirstAreToldOf()
{
    const tiny::Game game("Language=0\n");
    const QString one = game.addCampaign("one.e3c", tiny::campaign(24, {{}, {}, {}}));
    const QString two = game.addCampaign("two.e3c", tiny::campaign(24, {{}, {}, {}}));
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    QCOMPARE(startAndEnd(editor, {one, two}), 0);
    QVERIFY(editor.readAllStandardError().contains("cmped: only the first file is opened, not " +
                                                   two.toUtf8() + '\n'));
}

void LauncherTest::startsTheEditorAndEndsOnSigterm()
{
    const tiny::Game game("Language=0\n");
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    editor.start(builtProgram("cmped"), {"--encoding", "windows-1251"});
    QVERIFY(editor.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), longestWait);
    editor.terminate();
    QVERIFY(editor.waitForFinished());
    QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
    QCOMPARE(editor.exitCode(), 0);
    QFile written(game.filePath("Ravn_settings.ini"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), QByteArray("[Global Settings]\r\n\r\nLanguage=0\r\n\r\n\r\n"));
}

// As "nohup" and a shell's background jobs have it.
void LauncherTest::ignoredSignalsStayIgnored()
{
    const tiny::Game game("Language=0\n");
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    const auto before = std::signal(SIGHUP, SIG_IGN);
    editor.start(builtProgram("cmped"), QStringList());
    const bool started = editor.waitForStarted();
    std::signal(SIGHUP, before);
    QVERIFY(started);
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), longestWait);
    QVERIFY(!catches(editor.processId(), SIGHUP));
    editor.terminate();
    QVERIFY(editor.waitForFinished());
    QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
}

void LauncherTest::relativeFileIsRememberedByItsWholePath()
{
    tiny::Game game("Language=0\n");
    const QString campaign = game.addCampaign("near.e3c", tiny::campaign(24, {{}, {}, {}}));
    QCOMPARE(rememberedFiles(game, QFileInfo(campaign).path(), "./near.e3c"),
             QStringList{campaign});
}

void LauncherTest::fileBehindALinkIsRememberedItself()
{
    tiny::Game game("Language=0\n");
    const QString near = game.addCampaign("near.e3c", tiny::campaign(24, {{}, {}, {}}));
    const QTemporaryDir elsewhere;
    QVERIFY(QDir(elsewhere.path()).mkdir("sub"));
    const QString far = elsewhere.filePath("near.e3c");
    QVERIFY(QFile::copy(near, far));
    const QString folder = QFileInfo(near).path();
    QVERIFY(QFile::link(elsewhere.filePath("sub"), folder + "/link"));
    const QStringList remembered = rememberedFiles(game, folder, "link/../near.e3c");
    QCOMPARE(remembered.size(), 1);
    QVERIFY(QDir::isAbsolutePath(remembered.first()));
    QCOMPARE(QFileInfo(remembered.first()).canonicalFilePath(), QFileInfo(far).canonicalFilePath());
}

void LauncherTest::libraryExportsRunAlone()
{
    const ChildResult names = runChild(
        "nm", {"-D", "--defined-only", "--format=just-symbols", builtProgram("libcmped.so")});
    QVERIFY2(names.started && names.exitCode == 0, names.error.constData());
    QCOMPARE(names.output, QByteArray("run\n"));
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
