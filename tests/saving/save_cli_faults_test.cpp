// Every call of a save by the command line goes wrong in turn, or is the last that its process
// makes.
#include "fuzz/corpus.h"
#include "tests/saving/call_faults.h"
#include "tests/saving/saving_place.h"
#include "tests/support/child_process.h"
#include "tests/support/tiny_game.h"

#include <QtTest>

class SaveCliFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyFaultLeavesOneFileWhole_data();
    void everyFaultLeavesOneFileWhole();
    void aKillAtEveryCallLeavesOneFileWhole_data();
    void aKillAtEveryCallLeavesOneFileWhole();

private:
    struct Run
    {
        ChildResult child;
        std::vector<std::string> calls; // none after a kill
    };
    Run resave(const SavingPlace &place, int call, const CallFault &fault, bool nameless);
    // The calls of a save that goes well; none if it doesn't.
    std::vector<std::string> callsOfASave(SavingPlace::Kind kind, bool nameless);
    void checkFault(const SavingPlace &place, const Run &run, int call, const CallFault &fault);
    void checkKill(SavingPlace::Kind kind, bool nameless, int call, FaultKind death);

    tiny::Game m_game;
    QString m_source;
    QByteArray m_bytes; // what a resave that goes well writes
    int m_injected = 0;
    int m_killed = 0;
    int m_leftovers = 0;
};

namespace {

constexpr CallFault none{"none", FaultKind::None, 0, nullptr};

void addPlaces()
{
    QTest::addColumn<SavingPlace::Kind>("kind");
    QTest::addColumn<bool>("nameless");
    QTest::newRow("new file") << SavingPlace::New << true;
    QTest::newRow("existing file") << SavingPlace::Existing << true;
    QTest::newRow("new file, none without a name") << SavingPlace::New << false;
    QTest::newRow("existing file, none without a name") << SavingPlace::Existing << false;
}

} // namespace

void SaveCliFaultsTest::initTestCase()
{
    for (const corpus::File &file : corpus::campaigns()) {
        if (QByteArray(file.name) == "version_6")
            m_source = m_game.write("source.e3c", file.bytes);
    }
    QVERIFY(!m_source.isEmpty());
    const QTemporaryDir dir;
    const QString whole = dir.filePath("whole.e3c");
    const ChildResult result =
        runChild(builtProgram("cmped-cli"), {"--game", m_game.path(), "resave", m_source, whole});
    QCOMPARE(result.exitCode, 0);
    m_bytes = bytesOf(whole);
    QVERIFY(m_bytes.size() > 100);
}

void SaveCliFaultsTest::cleanupTestCase()
{
    qInfo("%d faults, %d kills, %d of which left a hidden file", m_injected, m_killed, m_leftovers);
}

SaveCliFaultsTest::Run SaveCliFaultsTest::resave(const SavingPlace &place, int call,
                                                 const CallFault &fault, bool nameless)
{
    const QString log = m_game.filePath("calls");
    QFile::remove(log);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("LD_PRELOAD", builtProgram("libcmped_fault_injector.so"));
    variables.insert("CMPED_FAULT_FOLDER", place.folder());
    variables.insert("CMPED_FAULT_CALL", QString::number(call));
    variables.insert("CMPED_FAULT_KIND", QString::number(int(fault.kind)));
    variables.insert("CMPED_FAULT_ERROR", QString::number(fault.error));
    variables.insert("CMPED_FAULT_NAMELESS", nameless ? "1" : "0");
    variables.insert("CMPED_FAULT_LOG", log);
    Run run;
    run.child = runChild(builtProgram("cmped-cli"),
                         {"--game", m_game.path(), "resave", m_source, place.path()}, variables);
    QFile file(log);
    const bool ended = file.open(QIODevice::ReadOnly);
    while (ended && !file.atEnd())
        run.calls.push_back(file.readLine().trimmed().toStdString());
    return run;
}

std::vector<std::string> SaveCliFaultsTest::callsOfASave(SavingPlace::Kind kind, bool nameless)
{
    SavingPlace place(kind);
    const Run run = resave(place, 0, none, nameless);
    const bool done = run.child.exitCode == 0 && place.fault(true, m_bytes).isEmpty();
    return done ? run.calls : std::vector<std::string>();
}

void SaveCliFaultsTest::everyFaultLeavesOneFileWhole_data()
{
    addPlaces();
}

void SaveCliFaultsTest::checkFault(const SavingPlace &place, const Run &run, int call,
                                   const CallFault &fault)
{
    QVERIFY(run.child.exitedNormally);
    QVERIFY(int(run.calls.size()) >= call);
    const bool saved = run.child.exitCode == 0;
    const QString wrong = wrongAnswer(run.calls, call, fault, saved);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    const QString told = saved ? QString()
                               : QStringLiteral("Error: Cannot write file %1:\n%2.\n")
                                     .arg(place.path(), QString::fromLatin1(fault.words));
    QCOMPARE(QString::fromUtf8(run.child.error), told);
    QCOMPARE(run.child.exitCode, saved ? 0 : 2);
}

void SaveCliFaultsTest::everyFaultLeavesOneFileWhole()
{
    QFETCH(SavingPlace::Kind, kind);
    QFETCH(bool, nameless);
    const std::vector<std::string> calls = callsOfASave(kind, nameless);
    QVERIFY(calls.size() > 10);
    for (const CallFault &fault : callFaults) {
        if (fault.error == EIO || fault.error == EDQUOT)
            continue; // the same way as ENOSPC
        for (int call = 1; call <= int(calls.size()); ++call) {
            const std::string &name = calls[std::size_t(call) - 1];
            if (!concerns(fault, name))
                continue;
            SavingPlace place(kind);
            const Run run = resave(place, call, fault, nameless);
            ++m_injected;
            checkFault(place, run, call, fault);
            const QString broken = place.fault(run.child.exitCode == 0, m_bytes);
            const QString where = QStringLiteral("call %1 (%2), %3: %4")
                                      .arg(QString::number(call), QString::fromStdString(name),
                                           QLatin1String(fault.name), broken);
            QVERIFY2(!QTest::currentTestFailed() && broken.isEmpty(), qPrintable(where));
        }
    }
}

void SaveCliFaultsTest::aKillAtEveryCallLeavesOneFileWhole_data()
{
    addPlaces();
}

void SaveCliFaultsTest::checkKill(SavingPlace::Kind kind, bool nameless, int call, FaultKind death)
{
    SavingPlace place(kind);
    QVERIFY(!resave(place, call, {"kill", death, 0, nullptr}, nameless).child.exitedNormally);
    ++m_killed;
    QStringList files = filesOf(place.folder());
    const bool exists = files.removeOne("target.e3c");
    QVERIFY(exists || kind == SavingPlace::New);
    const QByteArray now = bytesOf(place.path());
    QVERIFY(!exists || now == m_bytes ||
            (kind == SavingPlace::Existing && now == SavingPlace::oldBytes()));
    if (files.isEmpty())
        return; // a folder as any save finds it
    QCOMPARE(files.size(), 1);
    QVERIFY(files[0].startsWith(".cmped-save-"));
    ++m_leftovers;
    QCOMPARE(resave(place, 0, none, nameless).child.exitCode, 0);
    const QString wrong = place.fault(true, m_bytes);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

// In the place of each call, and behind the last: what stands behind any other is what stands
// before the next.
void SaveCliFaultsTest::aKillAtEveryCallLeavesOneFileWhole()
{
    QFETCH(SavingPlace::Kind, kind);
    QFETCH(bool, nameless);
    const int count = int(callsOfASave(kind, nameless).size());
    QVERIFY(count > 10);
    for (int call = 1; call <= count && !QTest::currentTestFailed(); ++call)
        checkKill(kind, nameless, call, FaultKind::KillBefore);
    if (!QTest::currentTestFailed())
        checkKill(kind, nameless, count, FaultKind::KillAfter);
}

QTEST_GUILESS_MAIN(SaveCliFaultsTest)
#include "save_cli_faults_test.moc"
