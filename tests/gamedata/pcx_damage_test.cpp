// Pictures that are damaged, and those whose size is at a limit.
#include "gamedata/limits.h"
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/pcx_readers.h"
#include "tests/support/report_recorder.h"

class PcxDamageTest : public QObject
{
    Q_OBJECT

private slots:
    void recordWithoutPixelsGivesNullImage_data();
    void recordWithoutPixelsGivesNullImage();
    void truncatedRecordGivesNullImage_data();
    void truncatedRecordGivesNullImage();
    void bytesBehindTheRecordAreIgnored_data();
    void bytesBehindTheRecordAreIgnored();
    void recordOfUnknownSizeIsTrusted_data();
    void recordOfUnknownSizeIsTrusted();
    void absurdSidesGiveNullImage_data();
    void absurdSidesGiveNullImage();
    void largestSideIsRead();
    void noRecordGivesNullImage_data();
    void noRecordGivesNullImage();
    void damagedPictureOpensAsNullImage();
};

void PcxDamageTest::recordWithoutPixelsGivesNullImage_data()
{
    addReaderRows();
}

void PcxDamageTest::recordWithoutPixelsGivesNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    const auto header = named.record.startsWith("P32F") ? p32Header : plainHeader;
    const QVector<QPair<quint32, quint32>> sizes{{0, 0}, {0, 5}, {5, 0}, {0, 0xffffffff}};
    for (const auto &size : sizes) {
        // Not a byte behind the header: a look at a pixel or the palette is a fault.
        const QByteArray record = header(size.first, size.second);
        QVERIFY(readExactly(named.read, record).isNull());
        const ExactBuffer buffer(record);
        QVERIFY(named.read(buffer.data(), uncheckedRecordSize).isNull());
    }
}

void PcxDamageTest::truncatedRecordGivesNullImage_data()
{
    addReaderRows();
}

void PcxDamageTest::truncatedRecordGivesNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    for (int length = 0; length < named.record.size(); ++length)
        QVERIFY2(readExactly(named.read, named.record.left(length)).isNull(),
                 qPrintable(QString::number(length)));
    QCOMPARE(readExactly(named.read, named.record).size(), QSize(3, 2));
}

void PcxDamageTest::bytesBehindTheRecordAreIgnored_data()
{
    addReaderRows();
}

void PcxDamageTest::bytesBehindTheRecordAreIgnored()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    QCOMPARE(readExactly(named.read, named.record + QByteArray(9, 'x')),
             readExactly(named.read, named.record));
}

void PcxDamageTest::recordOfUnknownSizeIsTrusted_data()
{
    QTest::addColumn<QImage>("unsized");
    QTest::addColumn<QImage>("sized");
    const QVector<NamedReader> all = readers();
    const ExactBuffer plain(all[0].record);
    const ExactBuffer p32(all[2].record);
    const ExactBuffer indexed(all[4].record);
    const auto sized = [&](int reader) {
        return readExactly(all[reader].read, all[reader].record);
    };
    QTest::newRow(all[0].name) << ReadFromArray(plain.data()) << sized(0);
    QTest::newRow(all[1].name) << ReadFromArray(p32.data()) << sized(1);
    QTest::newRow(all[2].name) << ReadFromArray_P32(p32.data()) << sized(2);
    QTest::newRow(all[3].name) << ReadFromArray_16bit(plain.data()) << sized(3);
    QTest::newRow(all[4].name) << ReadFromArrayPalette(indexed.data(), cyan) << sized(4);
    QTest::newRow(all[5].name) << ReadFromArrayPalette_Slow(indexed.data(), cyan) << sized(5);
    QTest::newRow(all[6].name) << ReadFromArrayPalette_16bit(indexed.data()) << sized(6);
}

void PcxDamageTest::recordOfUnknownSizeIsTrusted()
{
    QFETCH(QImage, unsized);
    QFETCH(QImage, sized);
    QVERIFY(!unsized.isNull());
    QCOMPARE(unsized, sized);
}

void PcxDamageTest::absurdSidesGiveNullImage_data()
{
    addReaderRows();
}

void PcxDamageTest::absurdSidesGiveNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    const auto header = named.record.startsWith("P32F") ? p32Header : plainHeader;
    const quint32 past = limits::pictureSide + 1;
    // Products that are small in 32 bits, and sides that are negative there.
    const QVector<QPair<quint32, quint32>> sizes{{past, 1},
                                                 {1, past},
                                                 {0x10000, 0x10000},
                                                 {0x80000000, 2},
                                                 {0xffffffff, 0xffffffff},
                                                 {0xffffffff, 1},
                                                 {1, 0xffffffff},
                                                 {0x80000001, 0x80000001}};
    const QByteArray plenty(int(past) * 4 + 768, '\x01');
    for (const auto &size : sizes) {
        QVERIFY(readExactly(named.read, header(size.first, size.second)).isNull());
        QVERIFY(readExactly(named.read, header(size.first, size.second) + plenty).isNull());
    }
}

void PcxDamageTest::largestSideIsRead()
{
    const int side = int(limits::pictureSide);
    const QByteArray indexes(side, '\x03');
    const QMap<int, QColor> colors{{3, QColor(9, 8, 7)}};
    const Reader read = [](char *record, qint64 size) {
        return ReadFromArrayPalette(record, cyan, size);
    };
    const QImage wide = readExactly(read, paletteRecord(limits::pictureSide, 1, indexes, colors));
    QCOMPARE(wide.size(), QSize(16384, 1));
    QCOMPARE(wide.pixel(16383, 0), 0xff090807u);
    const QImage tall = readExactly(read, paletteRecord(1, limits::pictureSide, indexes, colors));
    QCOMPARE(tall.size(), QSize(1, 16384));
    QCOMPARE(tall.pixel(0, 16383), 0xff090807u);
}

void PcxDamageTest::noRecordGivesNullImage_data()
{
    addReaderRows();
}

void PcxDamageTest::noRecordGivesNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    QVERIFY(named.read(nullptr, uncheckedRecordSize).isNull());
    QVERIFY(named.read(nullptr, 0).isNull());
    QVERIFY(named.read(nullptr, 1000).isNull());
}

void PcxDamageTest::damagedPictureOpensAsNullImage()
{
    const game_files::GameFolder game;
    const QByteArray record = smallPaletteRecord();
    game.provide({{"short.pcx", record.left(record.size() - 1)}, {"none.pcx", QByteArray()}});
    QVERIFY(OpenPcx8Image("short.pcx").isNull());
    QVERIFY(OpenPcx8Image_16bit("short.pcx").isNull());
    QVERIFY(OpenPcx8Image("none.pcx").isNull());
}

QTEST_GUILESS_MAIN(PcxDamageTest)
#include "pcx_damage_test.moc"
