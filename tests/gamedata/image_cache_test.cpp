// Pictures are read or computed once and found again.
#include "gamedata/image_cache.h"
#include "tests/gamedata/game_files.h"
#include "tests/support/picture_records.h"
#include "tests/support/report_recorder.h"

#include <QTest>

using namespace picture_records;

namespace {

// One pixel of this colour.
QByteArray onePixel(const QColor &color)
{
    return paletteRecord(1, 1, QByteArray(1, '\0'), {{0, color}});
}

QImage filled(QRgb color)
{
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

using Preload = void (PreloadArchive::*)(const QString &);
using Load = QImage (PreloadArchive::*)(const QString &);
using Images = QMap<QString, QImage> PreloadArchive::*;

struct NamedCache
{
    Preload preload;
    Load load;
    Images images;
    Images others;
    QImage::Format format;
};

NamedCache namedCache(int bits)
{
    if (bits == 32)
        return {&PreloadArchive::preloadPcxImage32, &PreloadArchive::loadPcxImage32,
                &PreloadArchive::images32, &PreloadArchive::images16, QImage::Format_ARGB32};
    return {&PreloadArchive::preloadPcxImage16, &PreloadArchive::loadPcxImage16,
            &PreloadArchive::images16, &PreloadArchive::images32, QImage::Format_RGB16};
}

void addBitRows()
{
    QTest::addColumn<int>("bits");
    QTest::newRow("32 bits") << 32;
    QTest::newRow("16 bits") << 16;
}

} // namespace

class ImageCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsReadOnce_data() { addBitRows(); }
    void pictureIsReadOnce();
    void preloadingReadsOnlyWhatIsNotThere_data() { addBitRows(); }
    void preloadingReadsOnlyWhatIsNotThere();
    void missingFileStaysANullImage_data() { addBitRows(); }
    void missingFileStaysANullImage();
    void nameIsTheKeyAsItWasGiven_data() { addBitRows(); }
    void nameIsTheKeyAsItWasGiven();
    void cachesOfTwoDepthsAreApart_data() { addBitRows(); }
    void cachesOfTwoDepthsAreApart();
    void pictureReadIn32BitsIsNotReadAgainIn16();
    void sixteenBitsAreTheSameWhicheverDepthCameFirst();
    void writingToACopyLeavesTheCacheAlone();
    void regionsAreOrderedMemberByMember_data();
    void regionsAreOrderedMemberByMember();
    void largeImageIsFoundUnderAllFourNumbers();
    void smallImageIsFoundUnderMapAndRegion();
    void secondRequestReturnsTheSameImage();
    void savingAgainReplacesTheImage();
    void nullImageIsKeptAsWell();
    void globalCacheIsThereOnlyOnceTheStartMadeIt();
};

void ImageCacheTest::pictureIsReadOnce()
{
    QFETCH(int, bits);
    const NamedCache named = namedCache(bits);
    const game_files::GameFolder game;
    PreloadArchive cache;
    game.provide({{"a.pcx", onePixel(Qt::red)}});
    const QImage first = (cache.*named.load)("a.pcx");
    QCOMPARE(first.format(), named.format);
    QCOMPARE(first.pixelColor(0, 0), QColor(Qt::red));

    game.provide({{"a.pcx", onePixel(Qt::blue)}});
    const QImage second = (cache.*named.load)("a.pcx");
    QCOMPARE(second.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(second.cacheKey(), first.cacheKey());
    QCOMPARE((cache.*named.images).keys(), QList<QString>{"a.pcx"});
}

void ImageCacheTest::preloadingReadsOnlyWhatIsNotThere()
{
    QFETCH(int, bits);
    const NamedCache named = namedCache(bits);
    const game_files::GameFolder game;
    PreloadArchive cache;
    game.provide({{"a.pcx", onePixel(Qt::red)}});
    (cache.*named.preload)("a.pcx");
    QCOMPARE((cache.*named.images)["a.pcx"].format(), named.format);
    QCOMPARE((cache.*named.images)["a.pcx"].pixelColor(0, 0), QColor(Qt::red));

    game.provide({{"a.pcx", onePixel(Qt::blue)}});
    (cache.*named.preload)("a.pcx");
    QCOMPARE((cache.*named.images)["a.pcx"].pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE((cache.*named.load)("a.pcx").pixelColor(0, 0), QColor(Qt::red));
}

void ImageCacheTest::missingFileStaysANullImage()
{
    QFETCH(int, bits);
    const NamedCache named = namedCache(bits);
    const game_files::GameFolder game;
    const ReportRecorder recorder;
    PreloadArchive cache;
    game.provide({});
    QVERIFY((cache.*named.load)("a.pcx").isNull());
    QVERIFY((cache.*named.images).contains("a.pcx"));
    (cache.*named.preload)("b.pcx");
    QVERIFY((cache.*named.images).contains("b.pcx"));

    game.provide({{"a.pcx", onePixel(Qt::red)}, {"b.pcx", onePixel(Qt::red)}});
    QVERIFY((cache.*named.load)("a.pcx").isNull());
    (cache.*named.preload)("b.pcx");
    QVERIFY((cache.*named.load)("b.pcx").isNull());
    QVERIFY(recorder.errors.isEmpty());
}

void ImageCacheTest::nameIsTheKeyAsItWasGiven()
{
    QFETCH(int, bits);
    const NamedCache named = namedCache(bits);
    const game_files::GameFolder game;
    PreloadArchive cache;
    game.provide({{"a.pcx", onePixel(Qt::red)}});
    QVERIFY(!(cache.*named.load)("a.pcx").isNull());
    QVERIFY(!(cache.*named.load)("A.PCX").isNull());
    QCOMPARE((cache.*named.images).keys(), (QList<QString>{"A.PCX", "a.pcx"}));
}

void ImageCacheTest::cachesOfTwoDepthsAreApart()
{
    QFETCH(int, bits);
    const NamedCache named = namedCache(bits);
    const NamedCache other = namedCache(bits == 32 ? 16 : 32);
    const game_files::GameFolder game;
    PreloadArchive cache;
    game.provide({{"cmpdash.pcx", onePixel(Qt::cyan)}});
    (cache.*named.preload)("cmpdash.pcx");
    QVERIFY((cache.*named.others).isEmpty());
    QCOMPARE((cache.*other.load)("cmpdash.pcx").format(), other.format);
    QCOMPARE(cache.images32["cmpdash.pcx"].pixel(0, 0), 0u);
    QCOMPARE(cache.images16["cmpdash.pcx"].pixel(0, 0), 0xff00ffffu);
}

void ImageCacheTest::pictureReadIn32BitsIsNotReadAgainIn16()
{
    const game_files::GameFolder game;
    PreloadArchive cache;
    game.provide({{"a.pcx", onePixel(Qt::red)}});
    cache.preloadPcxImage32("a.pcx");
    game.provide({{"a.pcx", onePixel(Qt::blue)}});
    QCOMPARE(cache.loadPcxImage16("a.pcx").pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(cache.loadPcxImage16("a.pcx").format(), QImage::Format_RGB16);
}

// All colours that differ in their highest or lowest bits, cyan and its neighbours among them; of
// an odd width, so that rows of 16 bits have a gap between them.
void ImageCacheTest::sixteenBitsAreTheSameWhicheverDepthCameFirst()
{
    constexpr int width = 15;
    constexpr int height = 18;
    QByteArray indexes(width * height, '\0');
    QMap<int, QColor> palette;
    const int values[] = {0, 1, 7, 8, 254, 255};
    for (int i = 0; i < 216; ++i) {
        indexes[i] = char(i);
        palette[i] = QColor(values[i / 36], values[i / 6 % 6], values[i % 6]);
    }
    const game_files::GameFolder game;
    game.provide({{"a.pcx", paletteRecord(width, height, indexes, palette)}});
    PreloadArchive alone;
    PreloadArchive after32;
    after32.preloadPcxImage32("a.pcx");
    const QImage expected = alone.loadPcxImage16("a.pcx");
    QCOMPARE(expected.size(), QSize(width, height));
    QVERIFY(alone.images32.isEmpty());
    QCOMPARE(after32.loadPcxImage16("a.pcx"), expected);
}

void ImageCacheTest::writingToACopyLeavesTheCacheAlone()
{
    PreloadArchive cache;
    cache.images32["a.pcx"] = filled(0xff112233);
    QImage copy = cache.loadPcxImage32("a.pcx");
    copy.bits()[0] = 0;
    QCOMPARE(cache.images32["a.pcx"], filled(0xff112233));
}

void ImageCacheTest::regionsAreOrderedMemberByMember_data()
{
    QTest::addColumn<QVector<uint>>("lower");
    QTest::addColumn<QVector<uint>>("higher");
    QTest::newRow("map first") << QVector<uint>{1, 9, 9, 9} << QVector<uint>{2, 0, 0, 0};
    QTest::newRow("then region") << QVector<uint>{1, 1, 9, 9} << QVector<uint>{1, 2, 0, 0};
    QTest::newRow("then state") << QVector<uint>{1, 1, 1, 9} << QVector<uint>{1, 1, 2, 0};
    QTest::newRow("then colour") << QVector<uint>{1, 1, 1, 1} << QVector<uint>{1, 1, 1, 2};
    QTest::newRow("map unsigned") << QVector<uint>{1, 0, 0, 0} << QVector<uint>{~0u, 0, 0, 0};
    QTest::newRow("region unsigned") << QVector<uint>{1, 1, 0, 0} << QVector<uint>{1, ~0u, 0, 0};
    QTest::newRow("state unsigned") << QVector<uint>{1, 1, 1, 0} << QVector<uint>{1, 1, ~0u, 0};
    QTest::newRow("colour unsigned") << QVector<uint>{1, 1, 1, 1} << QVector<uint>{1, 1, 1, ~0u};
}

void ImageCacheTest::regionsAreOrderedMemberByMember()
{
    QFETCH(QVector<uint>, lower);
    QFETCH(QVector<uint>, higher);
    const RegInfo low{lower[0], lower[1], lower[2], lower[3]};
    const RegInfo high{higher[0], higher[1], higher[2], higher[3]};
    QVERIFY(low < high);
    QVERIFY(!(high < low));
    QVERIFY(!(low < low));
}

void ImageCacheTest::largeImageIsFoundUnderAllFourNumbers()
{
    PreloadArchive cache;
    QVERIFY(!cache.getLargeGeneratedImage(1, 2, 0, 3));
    cache.saveLargeGeneratedImage(1, 2, 0, 3, filled(0xff000001));
    QVERIFY(cache.getLargeGeneratedImage(1, 2, 0, 3));
    QCOMPARE(*cache.getLargeGeneratedImage(1, 2, 0, 3), filled(0xff000001));
    QVERIFY(!cache.getLargeGeneratedImage(0, 2, 0, 3));
    QVERIFY(!cache.getLargeGeneratedImage(1, 0, 0, 3));
    QVERIFY(!cache.getLargeGeneratedImage(1, 2, 1, 3));
    QVERIFY(!cache.getLargeGeneratedImage(1, 2, 0, 0));
    QVERIFY(!cache.getSmallGeneratedImage(1, 2));
    QCOMPARE(cache.largeImages.size(), 1);
}

void ImageCacheTest::smallImageIsFoundUnderMapAndRegion()
{
    PreloadArchive cache;
    QVERIFY(!cache.getSmallGeneratedImage(1, 2));
    cache.saveSmallGeneratedImage(1, 2, filled(0xff000001));
    QVERIFY(cache.getSmallGeneratedImage(1, 2));
    QCOMPARE(*cache.getSmallGeneratedImage(1, 2), filled(0xff000001));
    QVERIFY(!cache.getSmallGeneratedImage(2, 1));
    QVERIFY(!cache.getSmallGeneratedImage(1, 1));
    QVERIFY(cache.largeImages.isEmpty());
    QCOMPARE(cache.smallImages.size(), 1);
}

void ImageCacheTest::secondRequestReturnsTheSameImage()
{
    PreloadArchive cache;
    cache.saveLargeGeneratedImage(1, 2, 0, 3, filled(0xff000001));
    cache.saveSmallGeneratedImage(1, 2, filled(0xff000002));
    QImage *large = cache.getLargeGeneratedImage(1, 2, 0, 3);
    QImage *small = cache.getSmallGeneratedImage(1, 2);
    for (unsigned other = 10; other < 200; ++other) {
        cache.saveLargeGeneratedImage(other, 0, 0, 0, QImage());
        cache.saveSmallGeneratedImage(other, 0, QImage());
    }
    QCOMPARE(cache.getLargeGeneratedImage(1, 2, 0, 3), large);
    QCOMPARE(*large, filled(0xff000001));
    QCOMPARE(cache.getSmallGeneratedImage(1, 2), small);
    QCOMPARE(*small, filled(0xff000002));
}

void ImageCacheTest::savingAgainReplacesTheImage()
{
    PreloadArchive cache;
    cache.saveLargeGeneratedImage(1, 2, 0, 3, filled(0xff000001));
    cache.saveLargeGeneratedImage(1, 2, 0, 3, filled(0xff000002));
    QCOMPARE(*cache.getLargeGeneratedImage(1, 2, 0, 3), filled(0xff000002));
    cache.saveSmallGeneratedImage(1, 2, filled(0xff000001));
    cache.saveSmallGeneratedImage(1, 2, filled(0xff000002));
    QCOMPARE(*cache.getSmallGeneratedImage(1, 2), filled(0xff000002));
}

void ImageCacheTest::nullImageIsKeptAsWell()
{
    PreloadArchive cache;
    cache.saveLargeGeneratedImage(1, 2, 0, 3, QImage());
    QVERIFY(cache.getLargeGeneratedImage(1, 2, 0, 3));
    QVERIFY(cache.getLargeGeneratedImage(1, 2, 0, 3)->isNull());
}

void ImageCacheTest::globalCacheIsThereOnlyOnceTheStartMadeIt()
{
    QVERIFY(!preloadArchive);
}

QTEST_GUILESS_MAIN(ImageCacheTest)
#include "image_cache_test.moc"
