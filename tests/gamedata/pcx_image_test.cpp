// Picture records of every kind, and records that aren't what they say.
#include "gamedata/limits.h"
#include "gamedata/pcx_image.h"
#include "tests/gamedata/game_files.h"
#include "tests/support/picture_records.h"
#include "tests/support/report_recorder.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>

using namespace picture_records;

namespace {

using Reader = std::function<QImage(char *record, qint64 size)>;

struct NamedReader
{
    const char *name;
    Reader read;
    QByteArray record; // a whole one of its kind, 3 by 2 pixels
};

const QColor cyan(0, 255, 255);

QVector<QColor> sixColors()
{
    return {QColor(1, 2, 3),    QColor(4, 5, 6),    QColor(7, 8, 9),
            QColor(10, 20, 30), QColor(40, 50, 60), QColor(70, 80, 90)};
}

QByteArray smallPaletteRecord()
{
    return paletteRecord(3, 2, QByteArray("\x00\x01\x02\xff\x01\x00", 6),
                         {{0, QColor(11, 12, 13)}, {1, cyan}, {255, QColor(21, 22, 23)}});
}

QVector<NamedReader> readers()
{
    const QByteArray plain = plainRecord(3, 2, sixColors());
    const QByteArray p32 = p32Record(3, 2, sixColors());
    const QByteArray indexed = smallPaletteRecord();
    const auto keyed = [](char *record, qint64 size) {
        return ReadFromArrayPalette(record, cyan, size);
    };
    const auto slow = [](char *record, qint64 size) {
        return ReadFromArrayPalette_Slow(record, cyan, size);
    };
    return {{"24 bits", ReadFromArray, plain},
            {"32 bits by its magic", ReadFromArray, p32},
            {"32 bits", ReadFromArray_P32, p32},
            {"24 bits to 16", ReadFromArray_16bit, plain},
            {"palette", keyed, indexed},
            {"palette, slow", slow, indexed},
            {"palette to 16", ReadFromArrayPalette_16bit, indexed}};
}

void addReaderRows()
{
    QTest::addColumn<int>("reader");
    const QVector<NamedReader> all = readers();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << i;
}

quint16 pixel16(const QImage &image, int x, int y)
{
    return reinterpret_cast<const quint16 *>(image.constScanLine(y))[x];
}

QImage readExactly(const Reader &read, const QByteArray &record)
{
    const ExactBuffer buffer(record);
    return read(buffer.data(), record.size());
}

} // namespace

class PcxImageTest : public QObject
{
    Q_OBJECT

private slots:
    void plainRecordBecomesOpaqueRgb32FromTheTop();
    void p32RecordAppearsUprightAndOpaque();
    void p32MagicDecidesTheReader();
    void sixteenBitsCutTheLowerOnesOff_data();
    void sixteenBitsCutTheLowerOnesOff();
    void rowsOfSixteenBitsMayBePadded();
    void onlyExactlyTheKeyColorBecomesTransparent();
    void otherKeyColorsWorkAlike();
    void slowPaletteReaderAgreesWithTheFast_data();
    void slowPaletteReaderAgreesWithTheFast();
    void sixteenBitPaletteKeepsCyan();
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
    void pictureIsOpenedByName();
    void missingNameGivesNullImageWithoutMessage();
    void damagedPictureOpensAsNullImage();
};

void PcxImageTest::plainRecordBecomesOpaqueRgb32FromTheTop()
{
    const QImage image = readExactly(ReadFromArray, plainRecord(3, 2, sixColors()));
    QCOMPARE(image.format(), QImage::Format_RGB32);
    QCOMPARE(image.size(), QSize(3, 2));
    QCOMPARE(image.pixel(0, 0), 0xff010203u);
    QCOMPARE(image.pixel(1, 0), 0xff040506u);
    QCOMPARE(image.pixel(2, 0), 0xff070809u);
    QCOMPARE(image.pixel(0, 1), 0xff0a141eu);
    QCOMPARE(image.pixel(1, 1), 0xff28323cu);
    QCOMPARE(image.pixel(2, 1), 0xff46505au);
}

void PcxImageTest::p32RecordAppearsUprightAndOpaque()
{
    const QVector<QColor> stored{QColor(1, 2, 3, 0), QColor(4, 5, 6, 7),         // the bottom row
                                 QColor(7, 8, 9, 128), QColor(10, 20, 30, 255)}; // the top row
    const QImage image = readExactly(ReadFromArray_P32, p32Record(2, 2, stored));
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(2, 2));
    QCOMPARE(image.pixel(0, 0), 0xff070809u);
    QCOMPARE(image.pixel(1, 0), 0xff0a141eu);
    QCOMPARE(image.pixel(0, 1), 0xff010203u);
    QCOMPARE(image.pixel(1, 1), 0xff040506u);
}

void PcxImageTest::p32MagicDecidesTheReader()
{
    const QByteArray record = p32Record(1, 2, {QColor(1, 2, 3), QColor(4, 5, 6)});
    const QImage image = readExactly(ReadFromArray, record);
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(1, 2));
    QCOMPARE(image.pixel(0, 0), 0xff040506u);
    QCOMPARE(image.pixel(0, 1), 0xff010203u);
}

void PcxImageTest::sixteenBitsCutTheLowerOnesOff_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("expected");
    QTest::newRow("white") << QColor(255, 255, 255) << 0xffff;
    QTest::newRow("red") << QColor(255, 0, 0) << 0xf800;
    QTest::newRow("green") << QColor(0, 255, 0) << 0x07e0;
    QTest::newRow("blue") << QColor(0, 0, 255) << 0x001f;
    QTest::newRow("below the first step") << QColor(7, 3, 7) << 0x0000;
    QTest::newRow("at the first step") << QColor(8, 4, 8) << 0x0821;
    QTest::newRow("cyan") << cyan << 0x07ff;
}

void PcxImageTest::sixteenBitsCutTheLowerOnesOff()
{
    QFETCH(QColor, color);
    QFETCH(int, expected);
    const QImage plain = readExactly(ReadFromArray_16bit, plainRecord(1, 1, {color}));
    QCOMPARE(plain.format(), QImage::Format_RGB16);
    QCOMPARE(int(pixel16(plain, 0, 0)), expected);
    const QByteArray indexed = paletteRecord(1, 1, QByteArray(1, '\x05'), {{5, color}});
    QCOMPARE(int(pixel16(readExactly(ReadFromArrayPalette_16bit, indexed), 0, 0)), expected);

    QImage byColor(1, 1, QImage::Format_RGB16);
    byColor.setPixelColor(0, 0, color);
    QCOMPARE(plain, byColor);
}

void PcxImageTest::rowsOfSixteenBitsMayBePadded()
{
    const QImage plain = readExactly(ReadFromArray_16bit, plainRecord(3, 2, sixColors()));
    QCOMPARE(plain.size(), QSize(3, 2));
    QVERIFY(plain.bytesPerLine() > 3 * 2);
    QCOMPARE(int(pixel16(plain, 2, 0)), 0x0041); // 7, 8, 9
    QCOMPARE(int(pixel16(plain, 0, 1)), 0x08a3); // 10, 20, 30
    QCOMPARE(int(pixel16(plain, 2, 1)), 0x428b); // 70, 80, 90

    const QImage indexed = readExactly(ReadFromArrayPalette_16bit, smallPaletteRecord());
    QCOMPARE(indexed.format(), QImage::Format_RGB16);
    QCOMPARE(indexed.size(), QSize(3, 2));
    QCOMPARE(int(pixel16(indexed, 0, 0)), 0x0861); // 11, 12, 13
    QCOMPARE(int(pixel16(indexed, 0, 1)), 0x10a2); // 21, 22, 23
    QCOMPARE(int(pixel16(indexed, 2, 1)), 0x0861);
}

void PcxImageTest::onlyExactlyTheKeyColorBecomesTransparent()
{
    const QByteArray record = paletteRecord(6, 1, QByteArray("\x01\x02\x03\x04\x05\xff", 6),
                                            {{1, cyan},
                                             {2, QColor(0, 255, 254)},
                                             {3, QColor(0, 254, 255)},
                                             {4, QColor(1, 255, 255)},
                                             {5, QColor(0, 0, 0)},
                                             {255, cyan}});
    const QImage image = readExactly(
        [](char *data, qint64 size) { return ReadFromArrayPalette(data, cyan, size); }, record);
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.pixel(0, 0), 0u);
    QCOMPARE(image.pixel(1, 0), 0xff00fffeu);
    QCOMPARE(image.pixel(2, 0), 0xff00feffu);
    QCOMPARE(image.pixel(3, 0), 0xff01ffffu);
    QCOMPARE(image.pixel(4, 0), 0xff000000u);
    QCOMPARE(image.pixel(5, 0), 0u);
}

void PcxImageTest::otherKeyColorsWorkAlike()
{
    const QByteArray record = smallPaletteRecord();
    const ExactBuffer buffer(record);
    const QImage image = ReadFromArrayPalette(buffer.data(), QColor(21, 22, 23), record.size());
    QCOMPARE(image.pixel(0, 0), 0xff0b0c0du);
    QCOMPARE(image.pixel(1, 0), 0xff00ffffu);
    QCOMPARE(image.pixel(0, 1), 0u);
    // Palette colours are opaque, so a translucent key matches none.
    const QImage whole =
        ReadFromArrayPalette(buffer.data(), QColor(0, 255, 255, 254), record.size());
    QCOMPARE(whole.pixel(1, 0), 0xff00ffffu);
}

void PcxImageTest::slowPaletteReaderAgreesWithTheFast_data()
{
    QTest::addColumn<QColor>("key");
    QTest::newRow("cyan") << cyan;
    QTest::newRow("cyan by its hue") << QColor::fromHsv(180, 255, 255);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("invalid") << QColor();
    QTest::newRow("translucent") << QColor(0, 255, 255, 100);
    QTest::newRow("transparent") << QColor(Qt::transparent);
}

void PcxImageTest::slowPaletteReaderAgreesWithTheFast()
{
    QFETCH(QColor, key);
    QRandomGenerator random(27);
    constexpr int width = 61;
    constexpr int height = 40;
    QByteArray indexes(width * height, '\0');
    for (char &index : indexes)
        index = char(random.bounded(256));
    QMap<int, QColor> colors{{1, cyan}, {200, cyan}};
    for (int i = 2; i < 128; ++i)
        colors[i] = QColor(random.bounded(256), random.bounded(256), random.bounded(256));
    const QByteArray record = paletteRecord(width, height, indexes, colors);
    const ExactBuffer buffer(record);

    const QImage fast = ReadFromArrayPalette(buffer.data(), key, record.size());
    const QImage slow = ReadFromArrayPalette_Slow(buffer.data(), key, record.size());
    QCOMPARE(fast.format(), QImage::Format_ARGB32);
    QCOMPARE(slow.format(), QImage::Format_ARGB32);
    QCOMPARE(fast, slow);
}

void PcxImageTest::sixteenBitPaletteKeepsCyan()
{
    const QImage image = readExactly(ReadFromArrayPalette_16bit, smallPaletteRecord());
    QCOMPARE(int(pixel16(image, 1, 0)), 0x07ff);
    QCOMPARE(image.pixelColor(1, 0), cyan);
}

void PcxImageTest::recordWithoutPixelsGivesNullImage_data()
{
    addReaderRows();
}

void PcxImageTest::recordWithoutPixelsGivesNullImage()
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

void PcxImageTest::truncatedRecordGivesNullImage_data()
{
    addReaderRows();
}

void PcxImageTest::truncatedRecordGivesNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    for (int length = 0; length < named.record.size(); ++length)
        QVERIFY2(readExactly(named.read, named.record.left(length)).isNull(),
                 qPrintable(QString::number(length)));
    QCOMPARE(readExactly(named.read, named.record).size(), QSize(3, 2));
}

void PcxImageTest::bytesBehindTheRecordAreIgnored_data()
{
    addReaderRows();
}

void PcxImageTest::bytesBehindTheRecordAreIgnored()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    QCOMPARE(readExactly(named.read, named.record + QByteArray(9, 'x')),
             readExactly(named.read, named.record));
}

void PcxImageTest::recordOfUnknownSizeIsTrusted_data()
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

void PcxImageTest::recordOfUnknownSizeIsTrusted()
{
    QFETCH(QImage, unsized);
    QFETCH(QImage, sized);
    QVERIFY(!unsized.isNull());
    QCOMPARE(unsized, sized);
}

void PcxImageTest::absurdSidesGiveNullImage_data()
{
    addReaderRows();
}

void PcxImageTest::absurdSidesGiveNullImage()
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

void PcxImageTest::largestSideIsRead()
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

void PcxImageTest::noRecordGivesNullImage_data()
{
    addReaderRows();
}

void PcxImageTest::noRecordGivesNullImage()
{
    QFETCH(int, reader);
    const NamedReader named = readers()[reader];
    QVERIFY(named.read(nullptr, uncheckedRecordSize).isNull());
    QVERIFY(named.read(nullptr, 0).isNull());
    QVERIFY(named.read(nullptr, 1000).isNull());
}

void PcxImageTest::pictureIsOpenedByName()
{
    const game_files::GameFolder game;
    game.provide({{"Tower.PCX", smallPaletteRecord()}});

    const QImage image = OpenPcx8Image("tower.pcx");
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(3, 2));
    QCOMPARE(image.pixel(0, 0), 0xff0b0c0du);
    QCOMPARE(image.pixel(1, 0), 0u);
    QCOMPARE(image.pixel(0, 1), 0xff151617u);

    const QImage image16 = OpenPcx8Image_16bit("tower.pcx");
    QCOMPARE(image16.format(), QImage::Format_RGB16);
    QCOMPARE(image16.size(), QSize(3, 2));
    QCOMPARE(image16.pixelColor(1, 0), cyan);
}

void PcxImageTest::missingNameGivesNullImageWithoutMessage()
{
    const game_files::GameFolder game;
    game.provide({{"tower.pcx", smallPaletteRecord()}});
    const ReportRecorder recorder;
    QVERIFY(OpenPcx8Image("castle.pcx").isNull());
    QVERIFY(OpenPcx8Image_16bit("castle.pcx").isNull());
    QVERIFY(OpenPcx8Image(QString()).isNull());
    QVERIFY(recorder.errors.isEmpty());
}

void PcxImageTest::damagedPictureOpensAsNullImage()
{
    const game_files::GameFolder game;
    const QByteArray record = smallPaletteRecord();
    game.provide({{"short.pcx", record.left(record.size() - 1)}, {"none.pcx", QByteArray()}});
    QVERIFY(OpenPcx8Image("short.pcx").isNull());
    QVERIFY(OpenPcx8Image_16bit("short.pcx").isNull());
    QVERIFY(OpenPcx8Image("none.pcx").isNull());
}

QTEST_GUILESS_MAIN(PcxImageTest)
#include "pcx_image_test.moc"
