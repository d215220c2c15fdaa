// Table files that are well-formed: what is read of them, and what is looked up in them.
#include "tests/runtime/dat_bytes.h"

#include <QtTest>

namespace {

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
