// Campaign files that are refused: what is told of them, and what is left of the campaign then.
#include "tests/document/campaign_reading.h"
#include "tests/support/report_recorder.h"

#include <QtTest>

class CampaignRefusalsTest : public QObject, private CampaignReading
{
    Q_OBJECT

private slots:
    void init() { samples::setTables(); }
    void failuresAreTold_data();
    void failuresAreTold();
    void theWaitCursorIsGoneWhenTheMessageComes_data();
    void theWaitCursorIsGoneWhenTheMessageComes();
    void aFileThatCannotBeOpenedIsTold();
    void aPercentInTheNameStays();
    void aFailureLeavesTheOtherFields();
    void theReaderWithoutABoxIsSilent();
};

void CampaignRefusalsTest::failuresAreTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString damaged("Incorrect or damaged file.");
    QTest::newRow("empty file") << QByteArray() << damaged;
    QTest::newRow("empty member") << samples::pack("") << damaged;
    QTest::newRow("damaged in front") << QByteArray("\x1f\x8b rubbish") << damaged;
    for (const quint32 version : {0u, 4u, 7u, 8u, 9u, 11u, 4294967295u}) {
        samples::Head head;
        head.version = version;
        QTest::newRow(qPrintable(QString("version %1").arg(version)))
            << samples::pack(samples::head(head))
            << QString("Invalid campaign file version!\n\nFile version = %1\nCurrent version = 10")
                   .arg(version);
    }
    QTest::newRow("plain text") << QByteArray("\x41\0\0\0", 4)
                                << QString("Invalid campaign file version!\n\n"
                                           "File version = 65\nCurrent version = 10");
    for (const quint32 subversion : {2u, 4294967295u}) {
        samples::Head head;
        head.subversion = subversion;
        QTest::newRow(qPrintable(QString("subversion %1").arg(subversion)))
            << samples::pack(samples::head(head))
            << QString("Unsupported version!\n\nFile subversion = %1\nCurrent subversion = 1")
                   .arg(subversion);
    }
    for (const quint32 count : {30001u, 4294967295u}) {
        samples::Head head;
        head.hasMap = 0;
        head.scenarioCount = count;
        QTest::newRow(qPrintable(QString("%1 scenarios").arg(count)))
            << samples::pack(samples::head(head)) << damaged;
    }
}

void CampaignRefusalsTest::failuresAreTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    EditorData::info.campaign = 4;
    EditorData::info.region = 2;
    CampaignData c;
    c.scenarios.resize(2);
    c.scenarioCount = 2;
    ReportRecorder recorder;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QFile file(write(bytes));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!c.ReadFromFile(&file));
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QString("Error"));
    QCOMPARE(recorder.errors[0].text, text);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(c.scenarios.empty());
    QCOMPARE(c.scenarioCount, 0u);
    QCOMPARE(EditorData::info.campaign, 4u); // the document in work stays
    QCOMPARE(EditorData::info.region, 2u);
}

void CampaignRefusalsTest::theWaitCursorIsGoneWhenTheMessageComes_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("not there") << m_folder.filePath("gone.e3c");
    QTest::newRow("empty") << samples::writeFile(m_folder.filePath("empty.e3c"), {});
}

void CampaignRefusalsTest::theWaitCursorIsGoneWhenTheMessageComes()
{
    QFETCH(QString, path);
    int messages = 0;
    bool waiting = false;
    const Reporter before = setReporter({[&](const QString &, const QString &) {
                                             ++messages;
                                             waiting = QGuiApplication::overrideCursor() != nullptr;
                                         },
                                         [](int) {}});
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QFile file(path);
    CampaignData c;
    const bool read = c.ReadFromFile(&file);
    setReporter(before);
    QVERIFY(!read);
    QCOMPARE(messages, 1);
    QVERIFY(!waiting);
}

void CampaignRefusalsTest::aFileThatCannotBeOpenedIsTold()
{
    CampaignData c;
    ReportRecorder recorder;
    QFile file(m_folder.filePath("gone.e3c"));
    QVERIFY(!c.ReadFromFile(&file));
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QString("Error"));
    QCOMPARE(recorder.errors[0].text, "Can't open file " + file.fileName());
}

void CampaignRefusalsTest::aPercentInTheNameStays()
{
    CampaignData c;
    QFile file("/nowhere/%1 and %2.e3c");
    QCOMPARE(*c.readCampaign(&file), QString("Can't open file /nowhere/%1 and %2.e3c"));
}

void CampaignRefusalsTest::aFailureLeavesTheOtherFields()
{
    CampaignData c;
    c.name = "kept";
    c.description = "kept too";
    c.mapId = 4;
    c.musicId = 2;
    c.customValue = 8;
    c.hasMap = false;
    samples::Head head;
    head.version = 7;
    QVERIFY(read(c, samples::pack(samples::head(head))));
    QCOMPARE(c.name, QString("kept"));
    QCOMPARE(c.description, QString("kept too"));
    QCOMPARE(c.mapId, quint8(4));
    QCOMPARE(c.musicId, quint8(2));
    QCOMPARE(c.customValue, 8);
    QVERIFY(!c.hasMap);
}

void CampaignRefusalsTest::theReaderWithoutABoxIsSilent()
{
    ReportRecorder recorder;
    CampaignData c;
    QCOMPARE(*read(c, {}), QString("Incorrect or damaged file."));
    QVERIFY(recorder.errors.isEmpty());
    QFile file(write(samples::pack(samples::campaignRecords(10, 0, 0))));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(c.ReadFromFile(&file));
    QVERIFY(recorder.errors.isEmpty());
}

QTEST_MAIN(CampaignRefusalsTest)
#include "campaign_refusals_test.moc"
