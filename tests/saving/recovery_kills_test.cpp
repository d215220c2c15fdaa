// The editor is killed at every call that it makes to keep a copy of the document: the next start
// offers the copy from before the change, or the one from behind it, or none if there was none yet.
// Never does it offer half a copy, or one that has forgotten its file, and it leaves nothing of
// what the killed one has begun. With CMPED_SAVE_KILLS in the environment every call is tried,
// without it every third.
#include "tests/support/child_process.h"
#include "tests/support/file_contents.h"
#include "tests/support/tiny_game.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>

class RecoveryKillsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void everyKillLeavesAWholeCopyOrNone_data();
    void everyKillLeavesAWholeCopyOrNone();

private:
    // Runs the editor with these steps; it is killed in the place of that call on the copies'
    // folder, from 1 on.
    ChildResult start(const QString &steps, int call = 0, const QString &answers = {});
    // The campaign's file, as it is before any change.
    QString addHome() const
    {
        return m_game.addCampaign("home.e3c", tiny::campaign(24, {{true, 1}, {true, 3}, {}}));
    }
    void check(const QByteArrayList &allowed);
    QDir copies() const { return m_data->filePath("recovery_probe/recovery"); }
    // What is so new may be of an editor that runs.
    void letTimePass() const;

    tiny::Game m_game;
    std::unique_ptr<QTemporaryDir> m_data;
    QByteArray m_first; // the campaign behind each change
    QByteArray m_second;
    int m_kills = 0;
    int m_offered = 0;
};

namespace {

const QString editOnce = QStringLiteral("edit Ember Road");
const QString editTwice = QStringLiteral("edit Ember Road;edit Ashen Road");
constexpr int killBefore = 3; // as the injector numbers its faults

int stride()
{
    return qEnvironmentVariableIsSet("CMPED_SAVE_KILLS") ? 1 : 3;
}

QByteArrayList boxes(const ChildResult &result)
{
    QByteArrayList found;
    const auto lines = result.output.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("box|"))
            found << line;
    }
    return found;
}

} // namespace

ChildResult RecoveryKillsTest::start(const QString &steps, int call, const QString &answers)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("CMPED_GAME_DIR", m_game.path());
    variables.insert("XDG_CONFIG_HOME", m_data->path());
    variables.insert("XDG_DATA_HOME", m_data->path());
    variables.insert("XDG_RUNTIME_DIR", m_data->path());
    variables.insert("QT_QPA_PLATFORM", "offscreen");
    variables.insert("RECOVERY_PROBE_STEPS", steps);
    variables.insert("RECOVERY_PROBE_ANSWERS", answers);
    if (call > 0) {
        variables.insert("LD_PRELOAD", builtProgram("libcmped_fault_injector.so"));
        variables.insert("CMPED_FAULT_FOLDER", copies().path());
        variables.insert("CMPED_FAULT_CALL", QString::number(call));
        variables.insert("CMPED_FAULT_KIND", QString::number(killBefore));
    }
    const QStringList file = answers.isEmpty() ? QStringList(addHome()) : QStringList();
    return runChild(builtProgram("recovery_probe"), file, variables);
}

void RecoveryKillsTest::initTestCase()
{
    init();
    start(editOnce + ";save;exit");
    m_first = m_game.read("Maps/home.e3c");
    start(editTwice + ";save;exit");
    m_second = m_game.read("Maps/home.e3c");
    const QByteArray before = contents(addHome());
    QVERIFY(m_first != before && m_second != before && m_first != m_second);
}

void RecoveryKillsTest::init()
{
    m_data = std::make_unique<QTemporaryDir>();
}

void RecoveryKillsTest::everyKillLeavesAWholeCopyOrNone_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QByteArrayList>("allowed");
    QTest::newRow("its beginning") << editOnce << QByteArrayList{m_first};
    QTest::newRow("its renewal") << editTwice << QByteArrayList{m_first, m_second};
    QTest::newRow("its end") << editOnce + ";save" << QByteArrayList{m_first};
}

void RecoveryKillsTest::letTimePass() const
{
    const timespec moment{time(nullptr) - 120, 0};
    const timespec times[] = {moment, moment};
    const auto files = copies().entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files)
        utimensat(AT_FDCWD, QFile::encodeName(file.filePath()).constData(), times, 0);
}

// The next start brings the copy into the window as the document of its file: it saves there.
void RecoveryKillsTest::check(const QByteArrayList &allowed)
{
    const QByteArray before = m_game.read("Maps/home.e3c");
    letTimePass();
    const QByteArrayList asked = boxes(start("save;exit", 0, "Yes;Yes"));
    QCOMPARE(copies().entryList(QDir::Files | QDir::Hidden), QStringList());
    if (asked.isEmpty()) {
        QVERIFY(m_offered == 0 || before == m_first); // none yet, or saved
        return;
    }
    ++m_offered;
    QVERIFY2(asked[0].startsWith("box|Tiny Campaign Editor|Changes to home were not saved. "
                                 "Open the copy kept on "),
             asked[0]);
    const QByteArray now = m_game.read("Maps/home.e3c");
    QVERIFY2(allowed.contains(now), QByteArray::number(now.size()));
    // Where the file was saved already, it is newer than the document that the copy is of.
    QCOMPARE(asked.size(), before == now ? 2 : 1);
}

void RecoveryKillsTest::everyKillLeavesAWholeCopyOrNone()
{
    QFETCH(QString, steps);
    QFETCH(QByteArrayList, allowed);
    m_kills = 0;
    m_offered = 0;
    for (int call = 1;; call += stride()) {
        init();
        if (start(steps + ";exit", call).exitedNormally)
            break; // it makes no such call any more
        ++m_kills;
        check(allowed);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString("killed at call %1").arg(call)));
    }
    qInfo("%d kills, %d times a copy was offered", m_kills, m_offered);
    QVERIFY(m_offered > 0 && m_offered < m_kills);
}

QTEST_GUILESS_MAIN(RecoveryKillsTest)
#include "recovery_kills_test.moc"
