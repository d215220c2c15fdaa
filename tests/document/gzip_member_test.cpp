// Packing and unpacking of whole members, held against zlib's own functions.
#include "document/gzip_member.h"

#include "document/campaign_data.h"
#include "tests/document/samples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

bool memoryIsOut = false;

// While it lives no stream for packing gets its memory.
struct MemoryFault
{
    MemoryFault() { memoryIsOut = true; }
    ~MemoryFault() { memoryIsOut = false; }
    MemoryFault(const MemoryFault &) = delete;
    MemoryFault &operator=(const MemoryFault &) = delete;
};

} // namespace

// Stands before zlib's own.
extern "C" int deflateInit_(z_streamp stream, int level, const char *version, int size)
{
    return memoryIsOut ? Z_MEM_ERROR
                       : deflateInit2_(stream, level, Z_DEFLATED, MAX_WBITS, MAX_MEM_LEVEL - 1,
                                       Z_DEFAULT_STRATEGY, version, size);
}

using GzHandle = std::unique_ptr<gzFile_s, gz_deleter>;

class GzipMemberTest : public QObject
{
    Q_OBJECT

private slots:
    void packsByteForByteAsTheGzFunctions_data() { addData(); }
    void packsByteForByteAsTheGzFunctions();
    void thePackedLengthAndTwelveIsTheMembersLength_data() { addData(); }
    void thePackedLengthAndTwelveIsTheMembersLength();
    void thePackedLengthIsThatOfCompress_data() { addData(); }
    void thePackedLengthIsThatOfCompress();
    void withoutMemoryThereIsNoLength();
    void withoutMemoryNoMapIsReadFromAnotherPlace();
    void portionsHaveTheLengthOfTheWhole_data() { addData(); }
    void portionsHaveTheLengthOfTheWhole();
    void portionsPackIntoTheSameMember_data() { addData(); }
    void portionsPackIntoTheSameMember();
    void packingEndsWhereNobodyTakesMore();
    void unpacksBothFramings();
    void answersZlibsErrorCodes();
    void theDeleterClosesAHandleSoThatItsBytesAreOnTheDisk();

private:
    static void addData();
};

void GzipMemberTest::addData()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("one byte") << QByteArray("a");
    QTest::newRow("a small header") << samples::campaignRecords(10, 0, 0);
    QTest::newRow("noise that doesn't shrink") << samples::noise(700);
    QTest::newRow("more noise than a block") << samples::noise(300000);
    QTest::newRow("zeros") << QByteArray(1000000, '\0');
    QByteArray mixed;
    for (int i = 0; i < 400; ++i)
        mixed += samples::noise(300, quint32(i % 60)) + QByteArray(i, 'x');
    QTest::newRow("repetitions across windows") << mixed;
}

void GzipMemberTest::packsByteForByteAsTheGzFunctions()
{
    QFETCH(QByteArray, data);
    QTemporaryDir folder;
    const QString path = folder.filePath("packed");
    GzHandle handle(gzopen(path.toLocal8Bit().constData(), "wb"));
    QCOMPARE(gzwrite(handle.get(), data.constData(), unsigned(data.size())), data.size());
    handle.reset();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(packGzipMember(data), file.readAll());
}

void GzipMemberTest::thePackedLengthAndTwelveIsTheMembersLength()
{
    QFETCH(QByteArray, data);
    const int length = get_gz_compressed_size(reinterpret_cast<uchar *>(data.data()), data.size());
    QCOMPARE(length + 12, packGzipMember(data).size());
}

void GzipMemberTest::thePackedLengthIsThatOfCompress()
{
    QFETCH(QByteArray, data);
    uLongf length = compressBound(uLong(data.size()));
    QByteArray room(int(length), '\0');
    QCOMPARE(compress(reinterpret_cast<Bytef *>(room.data()), &length,
                      reinterpret_cast<const Bytef *>(data.constData()), uLong(data.size())),
             Z_OK);
    QCOMPARE(get_gz_compressed_size(reinterpret_cast<uchar *>(data.data()), data.size()),
             int(length));
}

void GzipMemberTest::withoutMemoryThereIsNoLength()
{
    QByteArray data("the same, the same, the same");
    const MemoryFault fault;
    QCOMPARE(get_gz_compressed_size(reinterpret_cast<uchar *>(data.data()), data.size()), -1);
    PackedLength packed;
    packed.add(data.constData(), data.size());
    QVERIFY(!packed.finish());
}

// Of a first member that ends badly only its packed length tells where the maps begin.
void GzipMemberTest::withoutMemoryNoMapIsReadFromAnotherPlace()
{
    samples::setTables();
    const QByteArray map = samples::mapFile(28);
    const QByteArray records = samples::campaignRecords(10, quint32(map.size()), 0);
    QByteArray head = samples::pack(records + samples::noise(90000));
    head[head.size() - 6] = char(~head[head.size() - 6]);
    const QTemporaryDir folder;
    QFile file(samples::writeFile(folder.filePath("c.e3c"), head + map));
    CampaignData campaign;
    QVERIFY(!campaign.readCampaign(&file));
    const MemoryFault fault;
    const auto failure = campaign.readCampaign(&file);
    QVERIFY(failure);
    QCOMPARE(*failure, QString("Incorrect or damaged file."));
    QVERIFY(campaign.scenarios.empty());
}

void GzipMemberTest::portionsHaveTheLengthOfTheWhole()
{
    QFETCH(QByteArray, data);
    PackedLength packed;
    for (int at = 0; at < data.size(); at += 1000)
        packed.add(data.constData() + at, qMin(1000, data.size() - at));
    QCOMPARE(packed.finish().value_or(0) + 12, qint64(packGzipMember(data).size()));
}

void GzipMemberTest::portionsPackIntoTheSameMember()
{
    QFETCH(QByteArray, data);
    const QByteArray whole = packGzipMember(data);
    for (const int portion : {1, 1000, 65536}) {
        QByteArray packed;
        const auto append = [&](const char *bytes, int size) {
            packed.append(bytes, size);
            return true;
        };
        MemberPacker packer;
        for (int at = 0; at < data.size(); at += portion)
            QVERIFY(packer.add(data.constData() + at, qMin(portion, data.size() - at), append));
        QVERIFY(packer.add(data.constData(), 0, append));
        QVERIFY(packer.finish(append));
        QVERIFY(packed == whole);
    }
}

void GzipMemberTest::packingEndsWhereNobodyTakesMore()
{
    const QByteArray data = samples::noise(300000);
    int taken = 0;
    const auto takeTwice = [&](const char *, int) { return ++taken < 2; };
    MemberPacker packer;
    QVERIFY(!packer.add(data.constData(), data.size(), takeTwice));
    QCOMPARE(taken, 2);
}

void GzipMemberTest::unpacksBothFramings()
{
    const QByteArray data = "the same, the same, the same";
    for (const int bits : {31, 15}) {
        const QByteArray packed = samples::pack(data, 6, bits);
        QByteArray room(data.size(), '\0');
        QCOMPARE(zlib_inflate(packed.constData(), packed.size(), room.data(), room.size()),
                 data.size());
        QCOMPARE(room, data);
    }
}

void GzipMemberTest::answersZlibsErrorCodes()
{
    const QByteArray packed = samples::pack("the same, the same, the same");
    QByteArray room(64, '\0');
    QCOMPARE(zlib_inflate("plain text", 10, room.data(), room.size()), Z_DATA_ERROR);
    QCOMPARE(zlib_inflate(packed.constData(), packed.size(), room.data(), 5), Z_BUF_ERROR);
    QCOMPARE(zlib_inflate(packed.constData(), packed.size() - 1, room.data(), 64), Z_BUF_ERROR);
    QCOMPARE(zlib_inflate(packed.constData(), -1, room.data(), 64), Z_BUF_ERROR);
}

void GzipMemberTest::theDeleterClosesAHandleSoThatItsBytesAreOnTheDisk()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("packed");
    {
        GzHandle handle(gzopen(path.toLocal8Bit().constData(), "wb"));
        gzputc(handle.get(), 'a');
    }
    QCOMPARE(QFileInfo(path).size(), qint64(samples::pack("a").size()));
    GzHandle none(nullptr);
}

QTEST_GUILESS_MAIN(GzipMemberTest)
#include "gzip_member_test.moc"
