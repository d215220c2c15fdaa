// The programs where their users have them: installed into the game's folder, which they find by
// themselves, wherever they are called from.
#include "tests/support/child_process.h"
#include "tests/support/file_contents.h"
#include "tests/support/longest_wait.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

class InstalledTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everythingThatIsInstalledIsThere_data();
    void everythingThatIsInstalledIsThere();
    void commandLineFindsTheGameBesideItself();
    void editorFindsTheGameBesideItself();

private:
    QString path(const QString &name) const { return m_game.filePath(name); }

    QTemporaryDir m_game;
    QTemporaryDir m_elsewhere;
};

namespace {

// Nothing that tells where the game or the build is.
QProcessEnvironment usersEnvironment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"CMPED_GAME_DIR", "CMPED_BIN", "CMPED_SAMPLE_GAME", "LD_LIBRARY_PATH"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

} // namespace

void InstalledTest::initTestCase()
{
    const QStringList sample{"-r", sampleGame() + QStringLiteral("/."), m_game.path()};
    QCOMPARE(runChild(QStringLiteral("cp"), sample).exitCode, 0);
    // The sample game has translations of its own; those that are seen here were installed.
    QVERIFY(QDir(path(QStringLiteral("Ravn_Data"))).removeRecursively());
    const ChildResult installed = runChild(
        QStringLiteral(CMPED_CMAKE), {QStringLiteral("--install"), QStringLiteral(CMPED_BUILD_DIR),
                                      QStringLiteral("--prefix"), m_game.path()});
    QVERIFY2(installed.exitCode == 0, installed.error);
}

void InstalledTest::everythingThatIsInstalledIsThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("runs");
    QTest::newRow("launcher") << "cmped" << true;
    QTest::newRow("command line") << "cmped-cli" << true;
    QTest::newRow("library") << "libcmped.so" << false;
    QTest::newRow("English") << "Ravn_Data/cmp_en.qm" << false;
    QTest::newRow("Russian") << "Ravn_Data/cmp_ru.qm" << false;
}

void InstalledTest::everythingThatIsInstalledIsThere()
{
    QFETCH(QString, name);
    QFETCH(bool, runs);
    const QFileInfo file(path(name));
    QVERIFY(file.isFile());
    QVERIFY(file.size() > 0);
    if (runs)
        QVERIFY(file.isExecutable());
}

void InstalledTest::commandLineFindsTheGameBesideItself()
{
    QProcess program;
    program.setProcessEnvironment(usersEnvironment());
    program.setWorkingDirectory(m_elsewhere.path());
    program.start(path(QStringLiteral("cmped-cli")),
                  {QStringLiteral("dump"), path(QStringLiteral("Maps/sample.e3c"))});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(QJsonDocument::fromJson(program.readAllStandardOutput()).object().contains("campaign"));
}

void InstalledTest::editorFindsTheGameBesideItself()
{
    QFile settings(path(QStringLiteral("Ravn_settings.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[Global Settings]\nLanguage=1\n");
    settings.close();
    auto environment = usersEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_elsewhere.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_elsewhere.path());
    QProcess editor;
    editor.setProcessEnvironment(environment);
    editor.setWorkingDirectory(m_elsewhere.path());
    editor.start(path(QStringLiteral("cmped")), {path(QStringLiteral("Maps/sample.e3c"))});
    QVERIFY(editor.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), longestWait);
    const QByteArray mapped = contents(QStringLiteral("/proc/%1/maps").arg(editor.processId()));
    QVERIFY(mapped.contains(QFile::encodeName(path(QStringLiteral("libcmped.so")))));
    editor.terminate();
    QVERIFY(editor.waitForFinished());
    QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
    QCOMPARE(editor.exitCode(), 0);
    QCOMPARE(contents(settings.fileName()),
             QByteArray("[Global Settings]\r\n\r\nLanguage=1\r\n\r\n\r\n"));
}

QTEST_GUILESS_MAIN(InstalledTest)
#include "installed_test.moc"
