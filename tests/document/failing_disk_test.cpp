// Disks that fail while a campaign or a map is read.
#include "document/campaign_data.h"

#include "tests/document/samples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// How many reads of the watched file still go well before one fails; -1 for all of them. The reads
// behind that one go well again, so that nobody finds out by a later one.
int readsLeft = -1;
ino_t watched = 0;

} // namespace

// Stands before the C library's, for Qt too.
extern "C" __attribute__((visibility("default"))) ssize_t read(int handle, void *data, size_t size)
{
    using Function = ssize_t (*)(int, void *, size_t);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "read"));
    struct stat status = {};
    if (readsLeft >= 0 && fstat(handle, &status) == 0 && status.st_ino == watched &&
        readsLeft-- == 0) {
        errno = EIO;
        return -1;
    }
    return real(handle, data, size);
}

class FailingDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aCampaignIsReadWholeOrNotAtAll_data();
    void aCampaignIsReadWholeOrNotAtAll();
    void aMapIsImportedWholeOrNotAtAll_data();
    void aMapIsImportedWholeOrNotAtAll();
    void aCampaignWithMapsDoesNotComeOutOfAPipe();

private:
    QString write(const QByteArray &bytes)
    {
        QString path = samples::writeFile(m_folder.filePath("file"), bytes);
        struct stat status = {};
        stat(QFile::encodeName(path).constData(), &status);
        watched = status.st_ino;
        return path;
    }

    QTemporaryDir m_folder;
};

void FailingDiskTest::init()
{
    samples::setTables();
}

void FailingDiskTest::cleanup()
{
    readsLeft = -1;
}

void FailingDiskTest::aCampaignIsReadWholeOrNotAtAll_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray map = samples::pack(samples::mapHeader(28) + samples::noise(50000));
    const QByteArray large = samples::campaignRecords(10, quint32(map.size()), 0);
    QTest::newRow("with maps") << samples::campaign(10, map, map);
    QTest::newRow("without maps") << samples::pack(samples::campaignRecords(10, 0, 0));
    QTest::newRow("a long member") << samples::pack(large + samples::noise(90000)) + map;
    samples::Head head;
    head.mapIdByte = 25;
    head.description = samples::noise(90000).toHex();
    QTest::newRow("a long text") << samples::pack(samples::head(head));
    QTest::newRow("not packed") << large + map;
    QByteArray wrongSum = samples::pack(large + samples::noise(90000));
    wrongSum[wrongSum.size() - 6] = char(~wrongSum[wrongSum.size() - 6]);
    QTest::newRow("a member that ends badly") << wrongSum + map;
}

void FailingDiskTest::aCampaignIsReadWholeOrNotAtAll()
{
    QFETCH(QByteArray, bytes);
    QFile file(write(bytes));
    CampaignData whole;
    QVERIFY(!whole.readCampaign(&file));
    int failures = 0;
    for (bool failed = true; failed; ++failures) {
        readsLeft = failures;
        CampaignData c;
        const auto failure = c.readCampaign(&file);
        failed = readsLeft == -1; // the fault came
        if (failure) {
            QCOMPARE(*failure, QString("Incorrect or damaged file."));
            QVERIFY(c.scenarios.empty());
        } else {
            QCOMPARE(c.toPieces(), whole.toPieces());
        }
    }
    QVERIFY(failures > 1);
}

void FailingDiskTest::aMapIsImportedWholeOrNotAtAll_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<int>("reads"); // at least
    QTest::newRow("a header of one block") << samples::mapHeader(28) << 2;
    const QByteArray text = samples::noise(90000).toHex();
    const ByteWriter large = ByteWriter().u32(28).u8(1).u32(144).u8(0).text("Frostmere").text(text);
    QTest::newRow("a header of several blocks") << large.bytes() << 6;
}

void FailingDiskTest::aMapIsImportedWholeOrNotAtAll()
{
    QFETCH(QByteArray, header);
    QFETCH(int, reads);
    const QByteArray map = samples::pack(header + samples::noise(50000));
    const QString path = write(map);
    int answer = 0;
    int failures = 0;
    for (; answer == 0; ++failures) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        readsLeft = failures;
        ScenarioData scenario;
        answer = scenario.ReadMapFromFile(&file);
        readsLeft = -1;
        QCOMPARE(scenario.compressedMap, answer == 1 ? map : QByteArray());
        QCOMPARE(bool(scenario.mapHeader), answer == 1);
    }
    QCOMPARE(answer, 1); // and never -1: nobody has seen whether there are players
    QVERIFY(failures > reads);
}

void FailingDiskTest::aCampaignWithMapsDoesNotComeOutOfAPipe()
{
    const QByteArray map = samples::mapFile(28);
    for (const bool withMaps : {true, false}) {
        int ends[2] = {};
        QCOMPARE(pipe(ends), 0);
        const QByteArray bytes = withMaps ? samples::campaign(10, map, map)
                                          : samples::pack(samples::campaignRecords(10, 0, 0));
        QCOMPARE(::write(ends[1], bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
        close(ends[1]);
        QFile file(QString("/proc/self/fd/%1").arg(ends[0]));
        CampaignData c;
        const auto failure = c.readCampaign(&file);
        close(ends[0]);
        QCOMPARE(bool(failure), withMaps);
        if (failure)
            QCOMPARE(*failure, QString("Incorrect or damaged file."));
        QCOMPARE(c.scenarios.size(), size_t(withMaps ? 0 : 3));
    }
}

QTEST_GUILESS_MAIN(FailingDiskTest)
#include "failing_disk_test.moc"
