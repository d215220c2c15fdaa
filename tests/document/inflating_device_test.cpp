// Unpacking as far as somebody reads: of sound members, of damaged ones, and up to a limit.
#include "document/inflating_device.h"

#include "tests/document/samples.h"

#include <QBuffer>
#include <QDataStream>
#include <QTemporaryDir>
#include <QtTest>

using Format = InflatingDevice::Format;

class InflatingDeviceTest : public QObject
{
    Q_OBJECT

private slots:
    void unpacksFromAFileAndFromMemory();
    void aSmallReadTouchesOnlyTheBeginning();
    void plainBytesPassExceptAsAnEmbeddedMap();
    void endsWithTheFirstMemberOrGoesOn();
    void bytesBehindTheLastMemberAreIgnored();
    void tellsWhereTheMemberEnded_data();
    void tellsWhereTheMemberEnded();
    void aMemberThatDoesNotEndWellHasNoEnd();
    void unpacksWhatGzreadDoesFromDamage_data();
    void unpacksWhatGzreadDoesFromDamage();
    void anEmbeddedMapGivesWhatCouldBeUnpacked();
    void zlibFramingIsAnEmbeddedMapToo();
    void theLimitEndsTheData();
    void readsPastTheEndAreZeros();
};

void InflatingDeviceTest::unpacksFromAFileAndFromMemory()
{
    const QByteArray data = samples::noise(100000) + QByteArray(100000, 'x');
    QBuffer source;
    source.setData(samples::pack(data));
    source.open(QIODevice::ReadOnly);
    InflatingDevice device(&source, Format::GzipMember);
    QCOMPARE(device.readAll(), data);
    QVERIFY(device.atEnd());
    QCOMPARE(device.delivered(), qint64(data.size()));
    InflatingDevice embedded(source.data(), Format::Embedded);
    QCOMPARE(embedded.readAll(), data);
}

void InflatingDeviceTest::aSmallReadTouchesOnlyTheBeginning()
{
    QBuffer source;
    source.setData(samples::pack(samples::noise(1000000)));
    source.open(QIODevice::ReadOnly);
    InflatingDevice device(&source, Format::GzipMember);
    QCOMPARE(device.read(100), samples::noise(1000000).left(100));
    QVERIFY(source.pos() <= 65536);
}

void InflatingDeviceTest::plainBytesPassExceptAsAnEmbeddedMap()
{
    for (const QByteArray &bytes :
         {QByteArray("plain bytes"), QByteArray("\x1f"), QByteArray("")}) {
        QBuffer source;
        source.setData(bytes);
        source.open(QIODevice::ReadOnly);
        InflatingDevice device(&source, Format::GzipMembers);
        QCOMPARE(device.readAll(), bytes);
        QCOMPARE(device.isPlain(), !bytes.isEmpty());
        InflatingDevice embedded(bytes, Format::Embedded);
        QVERIFY(embedded.atEnd());
    }
}

void InflatingDeviceTest::endsWithTheFirstMemberOrGoesOn()
{
    QBuffer source;
    source.setData(samples::pack("one") + samples::pack("") + samples::pack("two"));
    source.open(QIODevice::ReadOnly);
    QCOMPARE(InflatingDevice(&source, Format::GzipMember).readAll(), QByteArray("one"));
    source.seek(0);
    QCOMPARE(InflatingDevice(&source, Format::GzipMembers).readAll(), QByteArray("onetwo"));
}

void InflatingDeviceTest::bytesBehindTheLastMemberAreIgnored()
{
    QBuffer source;
    source.setData(samples::pack("one") + "rubbish");
    source.open(QIODevice::ReadOnly);
    QCOMPARE(InflatingDevice(&source, Format::GzipMembers).readAll(), QByteArray("one"));
}

void InflatingDeviceTest::tellsWhereTheMemberEnded_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("taken");
    QTest::newRow("small, unread") << 10 << 0;
    QTest::newRow("small, read") << 10 << 10;
    QTest::newRow("large, unread") << 200000 << 0;
    QTest::newRow("large, half read") << 200000 << 100000;
    QTest::newRow("large, read") << 200000 << 200000;
    QTest::newRow("a whole block, read") << 16384 << 16384;
}

void InflatingDeviceTest::tellsWhereTheMemberEnded()
{
    QFETCH(int, size);
    QFETCH(int, taken);
    const QByteArray member = samples::pack(samples::noise(size));
    QBuffer source;
    source.setData(member + samples::pack("the next one") + "and more");
    source.open(QIODevice::ReadOnly);
    InflatingDevice device(&source, Format::GzipMember);
    QCOMPARE(device.read(taken).size(), taken);
    QCOMPARE(device.skipToMemberEnd(1 << 30), qint64(member.size()));
}

void InflatingDeviceTest::aMemberThatDoesNotEndWellHasNoEnd()
{
    const QByteArray member = samples::pack(samples::noise(40000));
    QByteArray wrongSum = member;
    wrongSum[wrongSum.size() - 6] = char(wrongSum[wrongSum.size() - 6] ^ 1);
    for (const QByteArray &bytes : {member.left(member.size() - 1), wrongSum, member.left(30)}) {
        QBuffer source;
        source.setData(bytes);
        source.open(QIODevice::ReadOnly);
        InflatingDevice device(&source, Format::GzipMember);
        QCOMPARE(device.skipToMemberEnd(1 << 30), qint64(-1));
    }
    QBuffer source;
    source.setData(member);
    source.open(QIODevice::ReadOnly);
    InflatingDevice device(&source, Format::GzipMember);
    QCOMPARE(device.skipToMemberEnd(20000), qint64(-1)); // the limit stops it
}

// zlib's own reader is the measure.
static QByteArray gzread(const QString &path)
{
    gzFile handle = gzopen(path.toLocal8Bit().constData(), "rb");
    QByteArray all;
    QByteArray part(8192, '\0');
    int got = 0;
    while ((got = ::gzread(handle, part.data(), unsigned(part.size()))) > 0)
        all.append(part.constData(), got);
    gzclose(handle);
    return all;
}

void InflatingDeviceTest::unpacksWhatGzreadDoesFromDamage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray small = samples::pack(QByteArray("shore ").repeated(500));
    const QByteArray large = samples::pack(samples::noise(60000) + QByteArray(60000, 'x'));
    for (const int cut : {0, 1, 2, 9, 10, 11, 20})
        QTest::newRow(qPrintable(QString("cut to %1").arg(cut))) << small.left(cut);
    QTest::newRow("large, cut") << large.left(large.size() / 2);
    for (const int at : {1, 2, 3, 12, 25, small.size() - 8, small.size() - 1}) {
        QByteArray wrong = small;
        wrong[at] = char(wrong[at] ^ 0x55);
        QTest::newRow(qPrintable(QString("wrong byte at %1").arg(at))) << wrong;
    }
    for (const int at : {40000, large.size() - 30, large.size() - 1}) {
        QByteArray wrong = large;
        wrong[at] = char(wrong[at] ^ 0x55);
        QTest::newRow(qPrintable(QString("large, wrong byte at %1").arg(at))) << wrong;
    }
    QTest::newRow("second member damaged") << small + small.left(30);
    QTest::newRow("two members and rubbish") << small + large + "rubbish";
    QTest::newRow("a lone first byte behind") << small + "\x1f";
}

void InflatingDeviceTest::unpacksWhatGzreadDoesFromDamage()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir folder;
    QFile file(samples::writeFile(folder.filePath("f"), bytes));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(InflatingDevice(&file, Format::GzipMembers).readAll(), gzread(file.fileName()));
}

void InflatingDeviceTest::anEmbeddedMapGivesWhatCouldBeUnpacked()
{
    const QByteArray data = samples::noise(60000);
    QByteArray packed = samples::pack(data);
    InflatingDevice cut(packed.left(30000), Format::Embedded);
    const QByteArray half = cut.readAll();
    QVERIFY(half.size() > 20000);
    QCOMPARE(half, data.left(half.size()));
    packed[packed.size() - 1] = char(packed[packed.size() - 1] ^ 1);
    QCOMPARE(InflatingDevice(packed, Format::Embedded).readAll(), data);
}

void InflatingDeviceTest::zlibFramingIsAnEmbeddedMapToo()
{
    QCOMPARE(InflatingDevice(samples::pack("shore", 6, 15), Format::Embedded).readAll(),
             QByteArray("shore"));
}

void InflatingDeviceTest::theLimitEndsTheData()
{
    const QByteArray data = samples::noise(5000);
    InflatingDevice device(samples::pack(data), Format::Embedded);
    device.setLimit(3000);
    QCOMPARE(device.read(2999), data.left(2999));
    QVERIFY(!device.atEnd());
    QVERIFY(!device.limitReached());
    QCOMPARE(device.read(100), data.mid(2999, 1));
    QVERIFY(device.atEnd());
    QVERIFY(device.limitReached());
    device.setLimit(5000);
    QCOMPARE(device.readAll(), data.mid(3000));
    QVERIFY(!device.limitReached());
}

void InflatingDeviceTest::readsPastTheEndAreZeros()
{
    InflatingDevice device(samples::pack(QByteArray("\1\2\3\4\5\6", 6)), Format::Embedded);
    QDataStream stream(&device);
    stream.setByteOrder(QDataStream::LittleEndian);
    quint32 whole = 0;
    quint32 partial = 7;
    quint16 beyond = 7;
    stream >> whole >> partial >> beyond;
    QCOMPARE(whole, 0x04030201u);
    QCOMPARE(partial, 0u);
    QCOMPARE(beyond, quint16(0));
    QVERIFY(stream.atEnd());
}

QTEST_GUILESS_MAIN(InflatingDeviceTest)
#include "inflating_device_test.moc"
