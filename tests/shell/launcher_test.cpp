// The launcher: its own options, and what the library it starts shows to the outside.
#include "launcher/launcher_options.h"
#include "tests/support/child_process.h"
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
    void encodingWithoutANameIsAnError();
    void helpAndVersion();
    void wrongEncodingEndsWithAMessage_data();
    void wrongEncodingEndsWithAMessage();
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

QProcessEnvironment editorEnvironment(const tiny::Game &game, const QTemporaryDir &settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CMPED_GAME_DIR", game.path());
    environment.insert("XDG_CONFIG_HOME", settings.path());
    environment.insert("XDG_DATA_HOME", settings.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    return environment;
}

// The recent files once the editor was started in a folder with this argument, and ended.
QStringList rememberedFiles(const tiny::Game &game, const QString &folder, const QString &argument)
{
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    editor.setWorkingDirectory(folder);
    editor.start(builtProgram("cmped"), {argument});
    if (!editor.waitForStarted() ||
        !QTest::qWaitFor([&] { return catches(editor.processId(), SIGTERM); }, 30000))
        return {};
    editor.terminate();
    editor.waitForFinished();
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
    const LauncherOptions none = read({"cmped", "--", "--help"});
    QVERIFY(!none.help && !none.version && none.encoding.empty() && none.error.empty());
}

void LauncherTest::encodingWithoutANameIsAnError()
{
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
    QVERIFY(help.error.isEmpty());
    const ChildResult version = runChild(builtProgram("cmped"), {"--version"});
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.output, QByteArray("cmped " CMPED_VERSION "\n"));
}

void LauncherTest::wrongEncodingEndsWithAMessage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown") << QStringList{"--encoding", "nonsense"}
                             << QByteArray("cmped: unknown encoding 'nonsense'\n");
    QTest::newRow("no name") << QStringList{"--encoding"}
                             << QByteArray("cmped: --encoding needs the name of an encoding\n");
}

void LauncherTest::wrongEncodingEndsWithAMessage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ChildResult result = runChild(builtProgram("cmped"), arguments);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.error, message);
    QVERIFY(result.output.isEmpty());
}

void LauncherTest::startsTheEditorAndEndsOnSigterm()
{
    const tiny::Game game("Language=0\n");
    const QTemporaryDir settings;
    QProcess editor;
    editor.setProcessEnvironment(editorEnvironment(game, settings));
    editor.start(builtProgram("cmped"), {"--encoding", "windows-1251"});
    QVERIFY(editor.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), 30000);
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
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), 30000);
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
