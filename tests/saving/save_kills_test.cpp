// A process is killed while it saves: the old file or the new one is whole, and what is left beside
// it is hidden and goes with the next save. CMPED_SAVE_KILLS in the environment says how many kills
// there are in each way; scripts/save-torture.sh asks for many.
#include "tests/support/child_process.h"
#include "tests/support/safe_save_support.h"

#include <QProcess>
#include <QtTest>

#include <chrono>
#include <memory>
#include <random>
#include <thread>

class SaveKillsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void killsLeaveOneFileWhole_data();
    void killsLeaveOneFileWhole();
    void savesSideBySideLeaveEachOtherAlone_data();
    void savesSideBySideLeaveEachOtherAlone();

private:
    QProcessEnvironment environment(const QString &folder, bool nameless) const
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert("LD_PRELOAD", builtProgram("libcmped_fault_injector.so"));
        variables.insert("CMPED_FAULT_FOLDER", folder);
        variables.insert("CMPED_FAULT_NAMELESS", nameless ? "1" : "0");
        return variables;
    }
    // The save loop on this file, behind its first save.
    std::unique_ptr<QProcess> start(const QString &folder, bool nameless,
                                    const QStringList &times = {}) const;

    QTemporaryDir m_sources;
    QByteArray m_first = pattern(300000, 1);
    QByteArray m_second = pattern(200000, 2);
};

namespace {

constexpr int usualKills = 20;
constexpr int patience = 60000; // milliseconds
const QString target = QStringLiteral("target.e3c");

int killCount()
{
    return qEnvironmentVariableIsSet("CMPED_SAVE_KILLS")
               ? qEnvironmentVariableIntValue("CMPED_SAVE_KILLS")
               : usualKills;
}

void addWays()
{
    QTest::addColumn<bool>("nameless");
    QTest::newRow("files without a name") << true;
    QTest::newRow("none without a name") << false;
}

} // namespace

void SaveKillsTest::initTestCase()
{
    QVERIFY(makeFile(m_sources.filePath("first"), m_first));
    QVERIFY(makeFile(m_sources.filePath("second"), m_second));
}

std::unique_ptr<QProcess> SaveKillsTest::start(const QString &folder, bool nameless,
                                               const QStringList &times) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment(folder, nameless));
    process->start(builtProgram("save_loop"),
                   QStringList{folder + '/' + target, m_sources.filePath("first"),
                               m_sources.filePath("second")} +
                       times);
    while (!process->canReadLine() && process->waitForReadyRead(patience)) {
    }
    return process;
}

void SaveKillsTest::killsLeaveOneFileWhole_data()
{
    addWays();
}

void SaveKillsTest::killsLeaveOneFileWhole()
{
    QFETCH(bool, nameless);
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(target), "old bytes"));
    std::mt19937 random(20260101);
    std::uniform_int_distribution<int> microseconds(0, 20000);
    int seconds = 0; // ended behind the loop's second save
    int leftovers = 0;
    const int kills = killCount();
    for (int kill = 0; kill < kills; ++kill) {
        const auto process = start(dir.path(), nameless);
        QCOMPARE(process->readLine(), QByteArray("saved\n"));
        // The moment itself is what varies here; no outcome depends on its length.
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        process->kill();
        QVERIFY(process->waitForFinished(patience));
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        const QByteArray now = bytesOf(dir.filePath(target));
        QVERIFY2(now == m_first || now == m_second, qPrintable(QString::number(now.size())));
        seconds += now == m_second ? 1 : 0;
        QStringList files = filesOf(dir.path());
        QVERIFY(files.removeOne(target));
        QVERIFY2(files.size() <= 1, qPrintable(files.join(' '))); // of this kill, of none before
        for (const QString &name : files)
            QVERIFY2(name.startsWith(".cmped-save-"), qPrintable(name));
        leftovers += files.size();
    }
    qInfo("%d kills: the first content %d times, the second %d times, a hidden file %d times",
          kills, kills - seconds, seconds, leftovers);
    const auto process = start(dir.path(), nameless, {"1"});
    QVERIFY(process->waitForFinished(patience) || process->state() == QProcess::NotRunning);
    QCOMPARE(process->exitCode(), 0);
    QCOMPARE(filesOf(dir.path()), QStringList(target));
    QCOMPARE(bytesOf(dir.filePath(target)), m_first);
}

void SaveKillsTest::savesSideBySideLeaveEachOtherAlone_data()
{
    addWays();
}

void SaveKillsTest::savesSideBySideLeaveEachOtherAlone()
{
    QFETCH(bool, nameless);
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(target), m_first));
    const QStringList times{QString::number(std::max(20, killCount()))};
    std::array<std::unique_ptr<QProcess>, 3> savers;
    for (auto &saver : savers)
        saver = start(dir.path(), nameless, times);
    for (auto &saver : savers) {
        QVERIFY(saver->waitForFinished(patience) || saver->state() == QProcess::NotRunning);
        QCOMPARE(saver->readAllStandardError(), QByteArray());
        QCOMPARE(saver->exitCode(), 0);
    }
    QCOMPARE(filesOf(dir.path()), QStringList(target));
    const QByteArray now = bytesOf(dir.filePath(target));
    QVERIFY(now == m_first || now == m_second);
}

QTEST_GUILESS_MAIN(SaveKillsTest)
#include "save_kills_test.moc"
