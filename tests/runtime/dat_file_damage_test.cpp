// Table files that are damaged: no table at all, cut anywhere, with absurd counts.
#include "tests/runtime/dat_bytes.h"
#include "tests/support/processor_time.h"

#include <QtTest>

#include <malloc.h>

class DatFileDamageTest : public QObject
{
    Q_OBJECT

private slots:
    void otherMagicGivesAnEmptyTable_data();
    void otherMagicGivesAnEmptyTable();
    void negativeLengthsMeanEmpty();
    void readsTruncatedFilesAtEveryLength();
    void cutsWhatTheFileCantHold_data();
    void cutsWhatTheFileCantHold();
    void absurdCountsTakeNoMemory_data();
    void absurdCountsTakeNoMemory();
    void looksAtNoMoreThanTheLimit();
};

void DatFileDamageTest::otherMagicGivesAnEmptyTable_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("magic cut short") << QByteArray("RDA");
    QTest::newRow("magic alone") << QByteArray("RDAT");
    QTest::newRow("lower case") << QByteArray("rdat") + sampleBytes().mid(4);
    QTest::newRow("zeros") << QByteArray(100, '\0');
}

void DatFileDamageTest::otherMagicGivesAnEmptyTable()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(load(bytes)->entries.length, 0);
}

void DatFileDamageTest::negativeLengthsMeanEmpty()
{
    ByteWriter out = header(2);
    out.i32(-1).i32(INT_MIN).i32(-9).u8(0).i32(-1);
    out << Entry{"hero8", {}, {"name"}, {}, 0, {}};
    const Table table = load(out.bytes());
    QCOMPARE(table->entries.length, 2);
    QCOMPARE(table->entries[0].name.length, 0);
    QCOMPARE(table->entries[0].strings.length, 0);
    QCOMPARE(table->entries[0].ints.length, 0);
    QCOMPARE(table->entries[0].id, -1);
    QCOMPARE(table->entries[1].id, 8);
    QCOMPARE(load(header(-1).bytes())->entries.length, 0);
}

void DatFileDamageTest::readsTruncatedFilesAtEveryLength()
{
    // What an entry has before the cut is read, what it would have behind it is zero.
    ByteWriter out = header(2);
    out << Entry{"a1", {}, {"one"}, {7}, 0, {}};
    const int firstEnds = out.size();
    out << Entry{"b2", "t", {"two", "three"}, {8, 9}, 1, "blob"};
    for (int size = 0; size < out.size(); ++size) {
        const Table table = load(out.bytes().left(size));
        QCOMPARE(table->entries.length, size <= 12 ? 0 : size <= firstEnds ? 1 : 2);
        if (size >= firstEnds) {
            QCOMPARE(table->GetIntVal(0, 0, 0), 7);
            QCOMPARE(QByteArray(table->GetStrVal(0, 0, "")), QByteArray("one"));
        }
        const TDatFileEntry &last = table->entries[1];
        QVERIFY(QByteArray("b2").startsWith(last.name.c_str()) ||
                QByteArray("a1").startsWith(last.name.c_str()));
        for (int i = 0; size > firstEnds && i < last.ints.length; ++i)
            QVERIFY(last.ints[i] == 0 || last.ints[i] == 8 + i);
    }
    const Table whole = load(out.bytes());
    QCOMPARE(whole->GetIntVal(1, 1, 0), 9);
}

void DatFileDamageTest::cutsWhatTheFileCantHold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("strings");
    QTest::addColumn<int>("ints");
    QTest::addColumn<int>("blob"); // -1 for none
    QTest::newRow("name") << header(1).i32(INT_MAX).raw("abc9").bytes() << QByteArray("abc9") << 0
                          << 0 << -1;
    QTest::newRow("strings") << header(1).text("n").i32(0).i32(INT_MAX).text("s").bytes()
                             << QByteArray("n") << 1 << 0 << -1;
    QTest::newRow("string") << header(1).text("n").i32(0).i32(2).i32(INT_MAX).raw("s").bytes()
                            << QByteArray("n") << 1 << 0 << -1;
    QTest::newRow("ints") << header(1).text("n").i32(0).i32(0).u8(0).i32(INT_MAX).i32(1).bytes()
                          << QByteArray("n") << 0 << 1 << -1;
    QTest::newRow("blob") << header(1).text("n").i32(0).i32(0).u8(1).i32(INT_MAX).raw("xy").bytes()
                          << QByteArray("n") << 0 << 0 << 2;
    QTest::newRow("a number's first half is no flag")
        << header(1).text("n").i32(0).raw(QByteArray("\1\1")).bytes() << QByteArray("n") << 0 << 0
        << -1;
}

void DatFileDamageTest::cutsWhatTheFileCantHold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, name);
    QFETCH(int, strings);
    QFETCH(int, ints);
    QFETCH(int, blob);
    const Table table = load(bytes);
    QCOMPARE(table->entries.length, 1);
    const TDatFileEntry &entry = table->entries[0];
    QCOMPARE(bytesOf(entry.name), name);
    QCOMPARE(entry.strings.length, strings);
    QCOMPARE(entry.ints.length, ints);
    QCOMPARE(entry.stream ? entry.stream->size : -1, blob);
    QCOMPARE(int(entry.hasStream), blob < 0 ? 0 : 1);
}

void DatFileDamageTest::absurdCountsTakeNoMemory_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("entries");
    // 17 zero bytes are an empty entry; 88 hold five and the beginning of a sixth.
    QTest::newRow("100 bytes") << header(INT_MAX).zeros(88).bytes() << 6;
    QTest::newRow("no entries") << header(INT_MAX).bytes() << 0;
    QTest::newRow("a megabyte") << header(INT_MAX).zeros(1 << 20).bytes() << 61681;
    QTest::newRow("absurd everywhere")
        << header(INT_MAX).raw(QByteArray(1 << 20, '\x7f')).bytes() << 1;
}

void DatFileDamageTest::absurdCountsTakeNoMemory()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, entries);
    const auto inUse = [] {
        const auto info = mallinfo2();
        return qint64(info.uordblks) + qint64(info.hblkhd);
    };
    const qint64 before = inUse();
    const ProcessorTime time;
    const Table table = load(bytes);
    QVERIFY(time.milliseconds() < unhurriedMilliseconds); // believing the count takes much longer
    QCOMPARE(table->entries.length, entries);
    QVERIFY(inUse() - before < 12 * qint64(bytes.size()) + 4096);
}

void DatFileDamageTest::looksAtNoMoreThanTheLimit()
{
    const QByteArray bytes = sampleBytes();
    const TStreamPtr<TMemoryStream> stream = streamOf(bytes);
    const Table table(TDatFile::Create());
    table->Load(stream.get(), bytes.size());
    QCOMPARE(table->GetIntVal(2, 0, 0), 5);
    table->Load(stream.get(), bytes.size() - 1);
    QCOMPARE(table->entries.length, 3);
    QCOMPARE(table->GetIntVal(2, 0, 0), 0);
    table->Load(stream.get(), -1);
    QCOMPARE(table->entries.length, 0);
}

QTEST_APPLESS_MAIN(DatFileDamageTest)
#include "dat_file_damage_test.moc"
