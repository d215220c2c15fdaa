// Lets a monkey play with the editor and sees that the editor lives through it. Environment:
//
//   CMPED_MONKEY_SECONDS   for how long
//   CMPED_MONKEY_SEED      of the first run; the runs after it take the numbers that follow
//
// What was reached how often is printed at the end, and for a run that goes wrong its last steps.
#include "tests/monkey/journal.h"
#include "tests/support/child_process.h"

#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <cstdio>

#include <sys/types.h>

namespace {

constexpr int longestRun = 90;         // seconds; then the next one starts afresh
constexpr int shortestRun = 5;         // what is left behind it isn't worth a start
constexpr int longestSilence = 180000; // milliseconds that a step may take, or a start
constexpr int linesToShow = 200;
constexpr int stepsToReachAll = 15000;

// What a monkey has to have seen after that many steps.
constexpr const char *windows[] = {
    "AboutCmpEd",
    "AskDeleteAll",
    "BonusDialog",
    "ConvertCampaign",
    "EditCampaign",
    "HeroCrossoverDialog",
    "MainWindow",
    "NewCampaign",
    "QFileDialog",
    "QMenu",
    "QMessageBox",
    "ScenarioInfo",
    "QComboBoxPrivateContainer",
    "StartingHeroDialog",
};

constexpr const char *pages[] = {
    "ScenarioInfo > ScenarioGeneral 0",      "ScenarioInfo > ScenarioPrologue 1",
    "ScenarioInfo > ScenarioPrologue 2",     "ScenarioInfo > ScenarioCrossover 3",
    "ScenarioInfo > ScenarioStartOptions 4", "ScenarioInfo > StartingBonus 2",
    "ScenarioInfo > HeroCrossover 3",        "ScenarioInfo > StartingHeroOptions 4",
    "BonusDialog > bonus_multibox_dlg 0",    "BonusDialog > BonusCreatureDlg 1",
    "BonusDialog > bonus_multibox_dlg 2",    "BonusDialog > bonus_multibox_dlg 3",
    "BonusDialog > bonus_multibox_dlg 4",    "BonusDialog > bonus_value_dlg 5",
    "BonusDialog > bonus_multibox_dlg 6",    "BonusDialog > bonus_value_dlg 7",
};

constexpr const char *actions[] = {
    "actionNew",
    "actionOpen",
    "actionSave",
    "actionSave_As",
    "actionExport_Texts",
    "actionImport_Texts",
    "actionRefresh_Scenario_Maps",
    "actionExport_Scenario_Maps",
    "actionExit",
    "campaignProperties",
    "scenarioProperties",
    "actionAbout",
    "actionConvertCmp",
    "drop",
};

struct Run
{
    int steps = 0;
    bool silent = false; // nothing came from it for too long
    QByteArrayList lastLines;
    QString trouble; // what went wrong, empty if nothing did
};

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

public:
    // The toolkit's own limit on a test is for tests of another length.
    static void initMain() { qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(INT_MAX)); }

private slots:
    void editorLivesThroughAMonkey();

private:
    Run letPlay(quint32 seed, int seconds);
    void read(const QByteArray &line, Run &run);
    void printVisits() const;
    QStringList neverReached() const;

    QMap<QByteArray, int> m_visits; // by kind and name, a tabulator between
};

void MonkeyTest::editorLivesThroughAMonkey()
{
    const int seconds =
        qEnvironmentVariable("CMPED_MONKEY_SECONDS", QStringLiteral(CMPED_MONKEY_SECONDS)).toInt();
    bool given = false;
    quint32 seed = qEnvironmentVariable("CMPED_MONKEY_SEED").toUInt(&given);
    if (!given)
        seed = QRandomGenerator::global()->bounded(1000000U);
    QElapsedTimer clock;
    clock.start();
    int steps = 0;
    for (int left = seconds; left >= shortestRun; left = seconds - int(clock.elapsed() / 1000)) {
        const Run run = letPlay(seed, std::min(left, longestRun));
        steps += run.steps;
        std::printf("Seed %u: %d steps\n", seed, run.steps);
        std::fflush(stdout);
        if (!run.trouble.isEmpty()) {
            std::puts(run.lastLines.join('\n').constData());
            QFAIL(qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(run.trouble)));
        }
        ++seed;
    }
    printVisits();
    QVERIFY(steps > 0);
    if (steps >= stepsToReachAll)
        QCOMPARE(neverReached(), QStringList());
}

Run MonkeyTest::letPlay(quint32 seed, int seconds)
{
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", folder.path()); // a crash leaves the private game behind
    environment.insert("QT_LOGGING_RULES", "default.debug=false");
    environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":handle_abort=1");
    environment.insert("UBSAN_OPTIONS", "print_stacktrace=1");
    QProcess monkey;
    monkey.setProcessEnvironment(environment);
    monkey.setProcessChannelMode(QProcess::MergedChannels);
    monkey.start(builtProgram("monkey"),
                 {sampleGame(), QString::number(seconds), QString::number(seed)},
                 QIODevice::ReadOnly);
    Run run;
    while (monkey.state() != QProcess::NotRunning || monkey.canReadLine()) {
        if (!monkey.canReadLine() && !monkey.waitForReadyRead(longestSilence) &&
            monkey.state() == QProcess::Running) {
            if (run.silent)
                monkey.kill();
            run.silent = true;
            ::kill(pid_t(monkey.processId()), SIGABRT); // the sanitizers show where it hangs
        }
        while (monkey.canReadLine())
            read(monkey.readLine().chopped(1), run);
    }
    if (run.silent)
        run.trouble = QStringLiteral("a step took too long");
    else if (monkey.exitStatus() != QProcess::NormalExit)
        run.trouble = QStringLiteral("signal %1 ended the editor").arg(monkey.exitCode());
    else if (monkey.exitCode() != monkeyIsHome && monkey.exitCode() != editorEnded)
        run.trouble = QStringLiteral("the run ended with %1").arg(monkey.exitCode());
    return run;
}

void MonkeyTest::read(const QByteArray &line, Run &run)
{
    if (line.startsWith("visits\t")) {
        const auto fields = line.split('\t');
        m_visits[fields.value(2) + '\t' + fields.value(3)] += fields.value(1).toInt();
        return;
    }
    if (line.startsWith("This plugin does not support"))
        return; // the platform without a screen has no say in the order of windows
    if (line.startsWith("step "))
        ++run.steps;
    run.lastLines += line;
    if (run.lastLines.size() > linesToShow)
        run.lastLines.removeFirst();
}

void MonkeyTest::printVisits() const
{
    for (auto visit = m_visits.begin(); visit != m_visits.end(); ++visit)
        std::printf("%7d  %s\n", visit.value(), visit.key().constData());
    std::fflush(stdout);
}

QStringList MonkeyTest::neverReached() const
{
    QStringList missing;
    const auto check = [&](const char *kind, const auto &names) {
        for (const char *name : names) {
            if (!m_visits.contains(QByteArray(kind) + '\t' + name))
                missing += QString::fromLatin1(name);
        }
    };
    check("window", windows);
    check("page", pages);
    check("action", actions);
    return missing;
}

QTEST_GUILESS_MAIN(MonkeyTest)
#include "monkey_test.moc"
