// The table file: its entries, looking values up, and files that are cut or lie.
#include "gamedata/runtime/dat_file.h"

#include "tests/support/byte_writer.h"

#include <QElapsedTimer>
#include <QtTest>

#include <climits>
#include <malloc.h>
#include <memory>

namespace {

struct Entry
{
    QByteArray name;
    QByteArray text;
    QList<QByteArray> strings;
    QList<int> ints;
    int hasStream = 0;
    QByteArray blob; // written with its size if hasStream is set
};

ByteWriter header(qint32 count)
{
    return ByteWriter().raw("RDAT").u32(0x1234).i32(count);
}

ByteWriter &operator<<(ByteWriter &out, const Entry &entry)
{
    out.text(entry.name).text(entry.text).i32(entry.strings.size());
    for (const QByteArray &string : entry.strings)
        out.text(string);
    out.u8(unsigned(entry.hasStream));
    if (entry.hasStream)
        out.text(entry.blob);
    out.i32(entry.ints.size());
    for (const int number : entry.ints)
        out.i32(number);
    return out;
}

using Table = std::unique_ptr<TDatFile>;

TStreamPtr<TMemoryStream> streamOf(const QByteArray &bytes)
{
    TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(unsigned(bytes.size())));
    std::copy(bytes.begin(), bytes.end(), stream->data);
    return stream;
}

Table load(const QByteArray &bytes)
{
    const TStreamPtr<TMemoryStream> stream = streamOf(bytes);
    Table table(TDatFile::Create());
    table->Load(stream.get());
    return table;
}

// Another kind of stream, which counts what is asked of it.
class CountingStream : public TStream
{
public:
    explicit CountingStream(const QByteArray &bytes) : m_bytes(streamOf(bytes)) {}
    ~CountingStream() override = default;

    int reads = 0;

    void Free() override {}
    int Read(void *buffer, unsigned size) override
    {
        ++reads;
        return m_bytes->Read(buffer, size);
    }
    int Write(void * /*buffer*/, unsigned /*size*/) override { return 0; }
    int Seek(int offset, int origin) override { return m_bytes->Seek(offset, origin); }
    int Size() override { return m_bytes->Size(); }

private:
    TStreamPtr<TMemoryStream> m_bytes;
};

constexpr int unhurriedMilliseconds = 60000; // with sanitizers on a busy machine

QByteArray bytesOf(const TString &text)
{
    return {text.c_str(), text.length};
}

QByteArray sampleBytes()
{
    ByteWriter out = header(3);
    out << Entry{"monst150", "note", {"", "b", "c", "Moss Drake"}, {1, -2, INT_MAX}, 0, {}};
    out << Entry{"art147", {}, {"x", "Lantern"}, {}, 7, "blob"};
    out << Entry{"music", {}, {}, {5}, 1, {}};
    return out.bytes();
}

} // namespace

class DatFileTest : public QObject
{
    Q_OBJECT

private slots:
    void createsAnEmptyTable();
    void readsEveryField();
    void readsAsManyEntriesAsItStates();
    void readsFromAnyPosition();
    void replacesTheTableBefore();
    void splitsNames_data();
    void splitsNames();
    void emptyBlobIsFollowedByTheIntegers();
    void looksUpValues_data();
    void looksUpValues();
    void answersTheOwnBuffer();
    void emptyTableAnswersTheDefault();
    void otherMagicGivesAnEmptyTable_data();
    void otherMagicGivesAnEmptyTable();
    void negativeLengthsMeanEmpty();
    void readsTruncatedFilesAtEveryLength();
    void cutsWhatTheFileCantHold_data();
    void cutsWhatTheFileCantHold();
    void absurdCountsTakeNoMemory_data();
    void absurdCountsTakeNoMemory();
    void looksAtNoMoreThanTheLimit();
    void readsItsStreamInOneGo();
    void readsLargeTables();
    void readsCountedStrings();
};

void DatFileTest::createsAnEmptyTable()
{
    const Table table(TDatFile::Create());
    QCOMPARE(table->entries.length, 0);
    QVERIFY(!RADF);
}

void DatFileTest::readsEveryField()
{
    const Table table = load(sampleBytes());
    QCOMPARE(table->entries.length, 3);
    const TDatFileEntry &first = table->entries[0];
    QCOMPARE(bytesOf(first.name), QByteArray("monst150"));
    QCOMPARE(bytesOf(first.text), QByteArray("note"));
    QCOMPARE(first.strings.length, 4);
    QCOMPARE(bytesOf(first.strings[0]), QByteArray());
    QCOMPARE(bytesOf(first.strings[3]), QByteArray("Moss Drake"));
    QCOMPARE(first.ints.length, 3);
    QCOMPARE(first.ints[1], -2);
    QCOMPARE(first.ints[2], INT_MAX);
    QCOMPARE(int(first.hasStream), 0);
    QVERIFY(!first.stream);
    QCOMPARE(bytesOf(first.baseName), QByteArray("monst"));
    QCOMPARE(first.id, 150);
    const TDatFileEntry &second = table->entries[1];
    QCOMPARE(int(second.hasStream), 7);
    QVERIFY(second.stream);
    QCOMPARE(second.stream->position, 0);
    QCOMPARE(QByteArray(second.stream->data, second.stream->size), QByteArray("blob"));
    QCOMPARE(second.id, 147);
}

void DatFileTest::readsAsManyEntriesAsItStates()
{
    for (const int count : {0, 1, 2}) {
        ByteWriter out = header(count);
        out << Entry{"a1", {}, {"one"}, {}, 0, {}};
        out << Entry{"b2", {}, {"two"}, {}, 0, {}};
        QCOMPARE(load(out.bytes())->entries.length, count); // what follows is no entry
    }
}

void DatFileTest::readsFromAnyPosition()
{
    const QByteArray bytes = sampleBytes();
    const TStreamPtr<TMemoryStream> stream = streamOf(bytes);
    QVERIFY(stream->Seek(5, 0) == 5);
    const Table table(TDatFile::Create());
    table->Load(stream.get());
    QCOMPARE(table->entries.length, 3);
}

void DatFileTest::replacesTheTableBefore()
{
    const Table table = load(sampleBytes());
    const TStreamPtr<TMemoryStream> empty(TMemoryStream::Create());
    table->Load(empty.get());
    QCOMPARE(table->entries.length, 0);
}

void DatFileTest::splitsNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("baseName");
    QTest::addColumn<int>("id");
    const auto row = [](const char *name, const char *baseName, int id) {
        QTest::newRow(*name ? name : "empty") << QByteArray(name) << QByteArray(baseName) << id;
    };
    row("monst150", "monst", 150);
    row("a1b2", "a1b", 2);
    row("150", "", 150);
    row("music", "music", -1);
    row("", "", -1);
    row("hero007", "hero", 7);
    row("hero0", "hero", 0);
    row("art-5", "art-", 5);
    row("art5 ", "art5 ", -1);
    row("max2147483647", "max", 2147483647);
    row("over2147483648", "over", -1);
    row("far99999999999999999999999999999999", "far", -1);
    row("zeros00000000000000000000000000000012", "zeros", 12);
}

void DatFileTest::splitsNames()
{
    QFETCH(QByteArray, name);
    ByteWriter out = header(1);
    out << Entry{name, {}, {}, {}, 0, {}};
    const Table table = load(out.bytes());
    const QByteArray baseName = bytesOf(table->entries[0].baseName);
    const int id = table->entries[0].id;
    QTEST(baseName, "baseName");
    QTEST(id, "id");
}

void DatFileTest::emptyBlobIsFollowedByTheIntegers()
{
    for (const qint32 size : {0, -1}) {
        ByteWriter out = header(1);
        out.text("a1").text({}).i32(0).u8(1).i32(size).i32(2).i32(11).i32(12);
        const Table table = load(out.bytes());
        QCOMPARE(int(table->entries[0].hasStream), 1);
        QVERIFY(!table->entries[0].stream);
        QCOMPARE(table->entries[0].ints.length, 2);
        QCOMPARE(table->entries[0].ints[1], 12);
    }
}

void DatFileTest::looksUpValues_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("string");
    QTest::addColumn<int>("number");
    const auto row = [](int entry, int index, const char *string, int number) {
        QTest::addRow("%d, %d", entry, index) << entry << index << QByteArray(string) << number;
    };
    row(0, 0, "s0", 10);
    row(0, 1, "s1", 11);
    row(0, 2, "default", -77);
    row(0, 3, "default", -77);
    row(0, -1, "s0", 10);
    row(0, INT_MIN, "s0", 10);
    row(0, INT_MAX, "default", -77);
    row(-5, 1, "s1", 11);
    row(1, 0, "last", 20);
    row(1, 1, "default", -77);
    row(2, 0, "last", 20);
    row(INT_MAX, 0, "last", 20);
}

void DatFileTest::looksUpValues()
{
    QFETCH(int, entry);
    QFETCH(int, index);
    ByteWriter out = header(2);
    out << Entry{"a1", {}, {"s0", "s1"}, {10, 11}, 0, {}};
    out << Entry{"a2", {}, {"last"}, {20}, 0, {}};
    const Table table = load(out.bytes());
    const QByteArray string = table->GetStrVal(entry, index, "default");
    const int number = table->GetIntVal(entry, index, -77);
    QTEST(string, "string");
    QTEST(number, "number");
}

void DatFileTest::answersTheOwnBuffer()
{
    const Table table = load(sampleBytes());
    QVERIFY(table->GetStrVal(0, 3, "") == table->entries[0].strings[3].c_str());
    const char *fallback = "fallback";
    QVERIFY(table->GetStrVal(0, 4, fallback) == fallback);
}

void DatFileTest::emptyTableAnswersTheDefault()
{
    const Table table(TDatFile::Create());
    const char *fallback = "fallback";
    QVERIFY(table->GetStrVal(0, 0, fallback) == fallback);
    QVERIFY(table->GetStrVal(7, -1, fallback) == fallback);
    QCOMPARE(table->GetIntVal(0, 0, 42), 42);
    QCOMPARE(table->GetIntVal(-1, 3, 42), 42);
}

void DatFileTest::otherMagicGivesAnEmptyTable_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("magic cut short") << QByteArray("RDA");
    QTest::newRow("magic alone") << QByteArray("RDAT");
    QTest::newRow("lower case") << QByteArray("rdat") + sampleBytes().mid(4);
    QTest::newRow("zeros") << QByteArray(100, '\0');
}

void DatFileTest::otherMagicGivesAnEmptyTable()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(load(bytes)->entries.length, 0);
}

void DatFileTest::negativeLengthsMeanEmpty()
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

void DatFileTest::readsTruncatedFilesAtEveryLength()
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

void DatFileTest::cutsWhatTheFileCantHold_data()
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

void DatFileTest::cutsWhatTheFileCantHold()
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

void DatFileTest::absurdCountsTakeNoMemory_data()
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

void DatFileTest::absurdCountsTakeNoMemory()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, entries);
    const auto inUse = [] {
        const auto info = mallinfo2();
        return qint64(info.uordblks) + qint64(info.hblkhd);
    };
    const qint64 before = inUse();
    QElapsedTimer clock;
    clock.start();
    const Table table = load(bytes);
    QVERIFY(clock.elapsed() < unhurriedMilliseconds); // believing the count takes much longer
    QCOMPARE(table->entries.length, entries);
    QVERIFY(inUse() - before < 12 * qint64(bytes.size()) + 4096);
}

void DatFileTest::looksAtNoMoreThanTheLimit()
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

void DatFileTest::readsItsStreamInOneGo()
{
    CountingStream stream(sampleBytes());
    const Table table(TDatFile::Create());
    table->Load(&stream);
    QCOMPARE(table->entries.length, 3);
    QCOMPARE(stream.reads, 1); // each one of a file asks the system
}

void DatFileTest::readsLargeTables()
{
    constexpr int count = 5000;
    ByteWriter out = header(count);
    for (int i = 0; i < count; ++i) {
        const QByteArray text(20, char('a' + i % 26));
        out << Entry{"monst" + QByteArray::number(i),
                     {},
                     {text, text, text, text, text},
                     {i, i, i, i},
                     0,
                     {}};
    }
    QVERIFY(out.size() > 700000);
    const Table table = load(out.bytes());
    QCOMPARE(table->entries.length, count);
    QCOMPARE(table->entries[4999].id, 4999);
    QCOMPARE(table->GetIntVal(1234, 3, 0), 1234);
}

void DatFileTest::readsCountedStrings()
{
    const QByteArray bytes = ByteWriter().text("abc").i32(0).i32(-4).i32(9).raw("cut").bytes();
    const TStreamPtr<TMemoryStream> stream = streamOf(bytes);
    TString text("before");
    ReadLS(stream.get(), text);
    QCOMPARE(text.c_str(), "abc");
    ReadLS(stream.get(), text);
    QCOMPARE(text.length, 0);
    text = TString("before");
    ReadLS(stream.get(), text);
    QCOMPARE(text.c_str(), "");
    ReadLS(stream.get(), text);
    QCOMPARE(text.c_str(), "cut");
    ReadLS(stream.get(), text);
    QCOMPARE(text.c_str(), "");
}

QTEST_APPLESS_MAIN(DatFileTest)
#include "dat_file_test.moc"
