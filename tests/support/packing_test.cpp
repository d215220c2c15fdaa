// The packer of the tests themselves: what it makes is what zlib reads back.
#include "tests/support/packing.h"

#include <QtTest>

#include <zlib.h>

class PackingTest : public QObject
{
    Q_OBJECT

private slots:
    void zerosStandBehindTheHead_data();
    void zerosStandBehindTheHead();
    void membersHaveNoNameAndNoTime();
    void manyZerosTakeLittleRoom();
};

namespace {

struct Unpacked
{
    QByteArray content;
    int status = Z_OK;
    uLong packedSize = 0;
};

Unpacked unpacked(const QByteArray &member, int room)
{
    Unpacked result;
    result.content = QByteArray(room, '?');
    z_stream stream{};
    inflateInit2(&stream, packing::gzipBits);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(member.constData()));
    stream.avail_in = uInt(member.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.content.data());
    stream.avail_out = uInt(room);
    result.status = inflate(&stream, Z_FINISH);
    result.packedSize = stream.total_in;
    result.content.truncate(int(stream.total_out));
    inflateEnd(&stream);
    return result;
}

} // namespace

void PackingTest::zerosStandBehindTheHead_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<int>("count");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("head alone") << QByteArray("head") << 0;
    QTest::newRow("one zero") << QByteArray("head") << 1;
    QTest::newRow("less than a block") << QByteArray("head") << 1000;
    QTest::newRow("a block") << QByteArray("head") << (16 << 20);
    QTest::newRow("two blocks and a zero") << QByteArray("a head") << (32 << 20) + 1;
}

void PackingTest::zerosStandBehindTheHead()
{
    QFETCH(QByteArray, head);
    QFETCH(int, count);
    const QByteArray member = packing::gzipWithZeros(head, count);
    // Its check sum and its size were right, or this isn't the end of the stream.
    const Unpacked read = unpacked(member, head.size() + count + 1);
    QCOMPARE(read.status, Z_STREAM_END);
    QCOMPARE(read.packedSize, uLong(member.size()));
    QVERIFY(read.content == head + QByteArray(count, '\0'));
}

void PackingTest::membersHaveNoNameAndNoTime()
{
    const QByteArray start("\x1f\x8b\x08\0\0\0\0\0\0\x03", 10);
    QCOMPARE(packing::gzip("text").left(10), start);
    QCOMPARE(packing::gzipWithZeros("text", 5).left(10), start);
    QCOMPARE(unpacked(packing::gzip("text"), 10).content, QByteArray("text"));
    QCOMPARE(packing::zlibStream("text").left(2), QByteArray("\x78\x9c"));
}

void PackingTest::manyZerosTakeLittleRoom()
{
    QVERIFY(packing::gzipWithZeros("head", qint64(300) << 20).size() < 320 * 1024);
}

QTEST_GUILESS_MAIN(PackingTest)
#include "packing_test.moc"
