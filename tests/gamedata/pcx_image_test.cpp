// Pictures that are well-formed: their pixels in every format.
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/pcx_readers.h"
#include "tests/support/report_recorder.h"

#include <QRandomGenerator>

namespace {

quint16 pixel16(const QImage &image, int x, int y)
{
    return reinterpret_cast<const quint16 *>(image.constScanLine(y))[x];
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
    void pictureIsOpenedByName();
    void missingNameGivesNullImageWithoutMessage();
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

QTEST_GUILESS_MAIN(PcxImageTest)
#include "pcx_image_test.moc"
