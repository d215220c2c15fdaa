// Every call of a save goes wrong in turn, in every way, and the window tells what came of it.
#include "tests/saving/call_faults.h"
#include "tests/saving/saving_place.h"
#include "tests/saving/saving_window.h"

#include "document/map_exchange.h"
#include "gamedata/ini_file.h"
#include "gamedata/safe_saves.h"

#include <QtTest>

#include <algorithm>
#include <set>

class SaveFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyFaultLeavesOneFileWhole_data();
    void everyFaultLeavesOneFileWhole();
    void theSettingsSurviveEveryFault_data();
    void theSettingsSurviveEveryFault();
    void everyCallOfTheListIsMade();
    void theBytesAreOnTheDiskBeforeTheNameIs_data();
    void theBytesAreOnTheDiskBeforeTheNameIs();
    void mapsAreExportedWithTheirFolderListedOnce_data();
    void mapsAreExportedWithTheirFolderListedOnce();
    void everyFolderOfManySavesIsRidOfLeftovers();

private:
    // One save with the fault in this call; false if there is no such call any more.
    bool checkSave(int call, const CallFault &fault);
    bool checkSettings(int call, const CallFault &fault);

    std::unique_ptr<SavingWindow> m_window;
    int m_injected = 0;
    int m_failed = 0;
};

namespace {

// What a process may leave that is killed while it saves.
const QString leftover = QStringLiteral(".cmped-save-abc123");

void addPlaces()
{
    QTest::addColumn<SavingPlace::Kind>("kind");
    QTest::addColumn<bool>("nameless");
    QTest::newRow("new file") << SavingPlace::New << true;
    QTest::newRow("existing file") << SavingPlace::Existing << true;
    QTest::newRow("link") << SavingPlace::Link << true;
    QTest::newRow("beside a leftover") << SavingPlace::Leftover << true;
    QTest::newRow("somebody else's") << SavingPlace::Foreign << true;
    QTest::newRow("new file, none without a name") << SavingPlace::New << false;
    QTest::newRow("existing file, none without a name") << SavingPlace::Existing << false;
    QTest::newRow("in place") << SavingPlace::InPlace << true;
}

FaultPlan planFor(const SavingPlace &place, int call, const CallFault &fault, bool nameless)
{
    return {QFile::encodeName(place.folder()).toStdString(), call, fault.kind, fault.error,
            nameless};
}

QByteArray naming(int call, const std::string &name, const CallFault &fault, const QString &wrong)
{
    return QStringLiteral("call %1 (%2), %3: %4")
        .arg(QString::number(call), QString::fromStdString(name), QLatin1String(fault.name), wrong)
        .toLocal8Bit();
}

} // namespace

void SaveFaultsTest::initTestCase()
{
    m_window = std::make_unique<SavingWindow>();
    QVERIFY(m_window->bytes().size() > 100);
}

void SaveFaultsTest::cleanupTestCase()
{
    qInfo("%d faults, %d saves failed", m_injected, m_failed);
    m_window.reset();
}

void SaveFaultsTest::everyFaultLeavesOneFileWhole_data()
{
    addPlaces();
}

bool SaveFaultsTest::checkSave(int call, const CallFault &fault)
{
    QFETCH(SavingPlace::Kind, kind);
    QFETCH(bool, nameless);
    SavingPlace place(kind);
    const QString path = place.path();
    const QString before = m_window->file();
    armFaults(planFor(place, call, fault, nameless));
    const bool saved = m_window->save(path);
    const std::vector<std::string> calls = disarmFaults();
    const bool hit = call <= int(calls.size());
    const std::string name = hit ? calls[std::size_t(call - 1)] : "none";
    QString wrong = hit ? wrongAnswer(calls, call, fault, saved) : QString();
    if (wrong.isEmpty())
        wrong = place.fault(saved, m_window->bytes());
    if (wrong.isEmpty() && EditorData::info.modified == saved)
        wrong = QStringLiteral("the flag");
    if (wrong.isEmpty() && m_window->file() != (saved ? path : before))
        wrong = QStringLiteral("the document's file: ") + m_window->file();
    const QStringList told =
        saved ? QStringList() : cannotWrite(path, QString::fromLatin1(fault.words));
    if (wrong.isEmpty() && m_window->messages() != told)
        wrong = QStringLiteral("told ") + m_window->messages().join(QLatin1Char(' '));
    m_injected += hit && concerns(fault, name) ? 1 : 0;
    m_failed += saved ? 0 : 1;
    if (!hit && !saved)
        wrong = QStringLiteral("failed without a fault");
    if (!wrong.isEmpty())
        QTest::qFail(naming(call, name, fault, wrong).constData(), __FILE__, __LINE__);
    return hit && wrong.isEmpty();
}

void SaveFaultsTest::everyFaultLeavesOneFileWhole()
{
    for (const CallFault &fault : callFaults) {
        int call = 1;
        while (checkSave(call, fault))
            ++call;
        if (QTest::currentTestFailed())
            return;
        QVERIFY(call > 10);
    }
}

void SaveFaultsTest::theSettingsSurviveEveryFault_data()
{
    addPlaces();
}

bool SaveFaultsTest::checkSettings(int call, const CallFault &fault)
{
    QFETCH(SavingPlace::Kind, kind);
    QFETCH(bool, nameless);
    _Ini_ settings(QStringLiteral("unread").toStdWString());
    settings.SetStringVal("Campaign Editor", "Path", "somewhere");
    SavingPlace place(kind);
    settings.fileName = place.path().toStdWString();
    armFaults(planFor(place, call, fault, nameless));
    settings.Write();
    const std::vector<std::string> calls = disarmFaults();
    const bool hit = call <= int(calls.size());
    const std::string name = hit ? calls[std::size_t(call - 1)] : "none";
    const QByteArray text = "[Campaign Editor]\r\n\r\nPath=somewhere\r\n\r\n\r\n";
    const bool saved = bytesOf(place.path()) == text;
    QString wrong = hit ? wrongAnswer(calls, call, fault, saved) : QString();
    if (wrong.isEmpty())
        wrong = place.fault(saved, text);
    if (!hit && !saved)
        wrong = QStringLiteral("failed without a fault");
    m_injected += hit && concerns(fault, name) ? 1 : 0;
    m_failed += saved ? 0 : 1;
    if (!wrong.isEmpty())
        QTest::qFail(naming(call, name, fault, wrong).constData(), __FILE__, __LINE__);
    return hit && wrong.isEmpty();
}

void SaveFaultsTest::theSettingsSurviveEveryFault()
{
    for (const CallFault &fault : callFaults) {
        if (fault.error == ENOSPC || fault.error == EDQUOT)
            continue; // the same way as EIO
        int call = 1;
        while (checkSettings(call, fault))
            ++call;
        if (QTest::currentTestFailed())
            return;
        QVERIFY(call > 10);
    }
}

// A call that no save makes gets no fault either.
void SaveFaultsTest::everyCallOfTheListIsMade()
{
    std::set<std::string> made;
    for (const SavingPlace::Kind kind :
         {SavingPlace::New, SavingPlace::Leftover, SavingPlace::Foreign, SavingPlace::InPlace}) {
        SavingPlace place(kind);
        armFaults(planFor(place, 0, callFaults[0], true));
        const bool saved = m_window->save(place.path());
        const std::vector<std::string> calls = disarmFaults();
        QVERIFY(saved);
        made.insert(calls.begin(), calls.end());
    }
    made.insert({"opendir", "fstat folder"}); // there is more than one way to open a folder
    if (geteuid() != 0)
        made.insert("fchown");
    for (const CallDuty &known : callDuties)
        QVERIFY2(made.count(known.call) == 1, known.call);
}

void SaveFaultsTest::theBytesAreOnTheDiskBeforeTheNameIs_data()
{
    addPlaces();
}

void SaveFaultsTest::theBytesAreOnTheDiskBeforeTheNameIs()
{
    QFETCH(SavingPlace::Kind, kind);
    QFETCH(bool, nameless);
    SavingPlace place(kind);
    armFaults(planFor(place, 0, callFaults[0], nameless));
    const bool saved = m_window->save(place.path());
    const std::vector<std::string> calls = disarmFaults();
    QVERIFY(saved);
    QStringList order;
    for (const std::string &call : calls) {
        for (const char *kept :
             {"pwrite", "ftruncate", "fchmod", "fsync", "linkat", "rename", "fsync folder"}) {
            if (call == kept && (order.isEmpty() || order.last() != QLatin1String(kept)))
                order << QLatin1String(kept);
        }
    }
    QStringList expected{"pwrite"};
    if (kind == SavingPlace::InPlace)
        expected << "ftruncate";
    else if (kind != SavingPlace::New)
        expected << "fchmod";
    expected << "fsync";
    if (kind != SavingPlace::InPlace) {
        if (nameless)
            expected << "linkat";
        if (!nameless || kind != SavingPlace::New)
            expected << "rename";
        expected << "fsync folder";
    }
    QCOMPARE(order, expected);
}

void SaveFaultsTest::mapsAreExportedWithTheirFolderListedOnce_data()
{
    QTest::addColumn<int>("maps");
    QTest::addColumn<bool>("there");
    for (const int maps : {1, 2, 40}) {
        QTest::addRow("%d new files", maps) << maps << false;
        QTest::addRow("%d existing files", maps) << maps << true;
    }
}

void SaveFaultsTest::mapsAreExportedWithTheirFolderListedOnce()
{
    QFETCH(int, maps);
    QFETCH(bool, there);
    const QTemporaryDir folder;
    CampaignData campaign;
    campaign.scenarios.resize(std::size_t(maps));
    QStringList expected;
    for (ScenarioData &scenario : campaign.scenarios) {
        expected << QStringLiteral("%1.e3m").arg(expected.size(), 2, 10, QLatin1Char('0'));
        scenario.mapFileName = expected.last();
        scenario.compressedMap = "map";
        QVERIFY(!there || makeFile(folder.filePath(expected.last()), "old"));
    }
    QVERIFY(makeFile(folder.filePath(leftover), "left"));
    armFaults({QFile::encodeName(folder.path()).toStdString()});
    exportMapsTo(folder.path(), campaign, {}, [](const QString &text) { QFAIL(qPrintable(text)); });
    const std::vector<std::string> calls = disarmFaults();
    // Whichever way a folder is opened, it is closed so.
    QCOMPARE(std::count(calls.begin(), calls.end(), "closedir"), 1);
    QCOMPARE(filesOf(folder.path()), expected);
    QCOMPARE(bytesOf(folder.filePath(expected.last())), QByteArray("map"));
}

// A link leads from one folder into another.
void SaveFaultsTest::everyFolderOfManySavesIsRidOfLeftovers()
{
    const QTemporaryDir one;
    const QTemporaryDir other;
    QVERIFY(makeFile(one.filePath(leftover), "left") && makeFile(other.filePath(leftover), "left"));
    QVERIFY(QFile::link(other.filePath("target"), one.filePath("link")));
    SafeSaves saves;
    for (const char *name : {"first", "link", "last"})
        QVERIFY(saves.save(one.filePath(name), {name}).ok);
    QCOMPARE(filesOf(one.path()), QStringList({"first", "last", "link"}));
    QCOMPARE(filesOf(other.path()), QStringList("target"));
}

QTEST_MAIN(SaveFaultsTest)
#include "save_faults_test.moc"
