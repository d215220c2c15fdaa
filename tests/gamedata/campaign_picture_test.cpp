// The pictures of a campaign map: its background, and its regions ready-made or computed.
#include "gamedata/campaign_picture.h"
#include "tests/gamedata/region_masks.h"
#include "tests/support/picture_records.h"
#include "tests/support/report_recorder.h"

#include <QTest>

#include <utility>

using namespace picture_records;
using namespace region_masks;

namespace {

constexpr unsigned readyMadeMap = 3;
constexpr unsigned computedMap = 24;

// A palette picture of one pixel.
QByteArray pixelRecord(const QColor &color)
{
    return paletteRecord(1, 1, QByteArray(1, '\0'), {{0, color}});
}

// The red and green of a pixel of `paintedRecord` are its place, a hundred to the step.
QColor paintAt(int x, int y)
{
    return {x / 100, y / 100, (x + y) % 256};
}

QByteArray paintedRecord(int width, int height)
{
    QVector<QColor> pixels;
    pixels.reserve(width * height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            pixels.append(paintAt(x, y));
    }
    return plainRecord(quint32(width), quint32(height), pixels);
}

// Region 1 of the map at (1, 0), with the masks of `useMasks`.
void addComputedMap()
{
    CampaignRegion region;
    region.x = 1;
    region.fillImage = "fill";
    region.borderImage = "border";
    region.glowImage = "glow";
    CampaignInfo &map = EditorData::campaignInfo[computedMap];
    map.regions = {CampaignRegion(), region};
    map.generated = true;
}

// Region 1 of the map with the pictures "<state><colour>.pcx".
void addReadyMadeMap()
{
    CampaignRegion region;
    for (int state = 0; state < 3; ++state) {
        QStringList names;
        for (int colour = 0; colour < 8; ++colour)
            names.append(QStringLiteral("%1%2.pcx").arg(state).arg(colour));
        region.imageNames.append(names);
    }
    EditorData::campaignInfo[readyMadeMap].regions = {CampaignRegion(), region};
}

} // namespace

class CampaignPictureTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<game_files::GameFolder> m_game;
    std::unique_ptr<Stage> m_stage;

private slots:
    void init()
    {
        m_game = std::make_unique<game_files::GameFolder>();
        m_stage = std::make_unique<Stage>();
    }
    void cleanup()
    {
        m_stage.reset();
        m_game.reset();
    }

    void backgroundIsCutToTheWindow();
    void smallBackgroundIsBlackBeyondItsEdge();
    void backgroundOf32BitsStandsUpright();
    void backgroundThatCantBeHadIsNull_data();
    void backgroundThatCantBeHadIsNull();
    void backgroundIsReadOnceForEachCache();
    void missingBackgroundIsLookedForAgain();
    void paintingOnABackgroundLeavesTheCacheAlone();
    void readyMadePictureIsReadOnce();
    void readyMadePictureIsChosenByStateAndColour_data();
    void readyMadePictureIsChosenByStateAndColour();
    void readyMadePictureIsTransparentWhereItIsCyan();
    void missingReadyMadePictureIsNamed();
    void numbersBeyondTheLayoutGiveNoPicture_data();
    void numbersBeyondTheLayoutGiveNoPicture();
    void computedPictureIsMadeOfTheRegionsMasks_data();
    void computedPictureIsMadeOfTheRegionsMasks();
    void computedPictureIsKept();
    void computedPictureIsKeptUnderAllItsNumbers();
    void computedPictureOfNoStateIsNull();
    void missingMaskEndsTheProcess();
};

void CampaignPictureTest::backgroundIsCutToTheWindow()
{
    m_game->provide({{"bg.pcx", paintedRecord(500, 700)}});
    const QImage picture = campaignBackground("bg.pcx");
    QCOMPARE(picture.size(), QSize(456, 600));
    for (const QPoint at : {QPoint(0, 0), QPoint(455, 0), QPoint(0, 599), QPoint(455, 599)})
        QCOMPARE(picture.pixelColor(at), paintAt(at.x(), at.y()));
}

void CampaignPictureTest::smallBackgroundIsBlackBeyondItsEdge()
{
    m_game->provide({{"bg.pcx", plainRecord(1, 1, {QColor(10, 20, 30)})}});
    const QImage picture = campaignBackground("bg.pcx");
    QCOMPARE(picture.size(), QSize(456, 600));
    QCOMPARE(picture.pixelColor(0, 0), QColor(10, 20, 30));
    QCOMPARE(picture.pixelColor(1, 0), QColor(0, 0, 0));
    QCOMPARE(picture.pixelColor(455, 599), QColor(0, 0, 0));
}

void CampaignPictureTest::backgroundOf32BitsStandsUpright()
{
    m_game->provide({{"bg.pcx", p32Record(1, 2, {QColor(1, 2, 3), QColor(4, 5, 6)})}});
    const QImage picture = campaignBackground("bg.pcx");
    QCOMPARE(picture.pixelColor(0, 0), QColor(4, 5, 6));
    QCOMPARE(picture.pixelColor(0, 1), QColor(1, 2, 3));
}

void CampaignPictureTest::backgroundThatCantBeHadIsNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << QString();
    QTest::newRow("no such file") << QStringLiteral("none.pcx");
    QTest::newRow("short record") << QStringLiteral("short.pcx");
    QTest::newRow("no pixels") << QStringLiteral("empty.pcx");
}

void CampaignPictureTest::backgroundThatCantBeHadIsNull()
{
    QFETCH(QString, name);
    const QByteArray whole = plainRecord(2, 1, {QColor(Qt::red), QColor(Qt::red)});
    m_game->provide(
        {{"short.pcx", whole.left(whole.size() - 1)}, {"empty.pcx", plainHeader(0, 0)}});
    const ReportRecorder recorder;
    QVERIFY(campaignBackground(name).isNull());
    QVERIFY(recorder.errors.isEmpty());
}

// Of another game, started anew, the background of that name is another one.
void CampaignPictureTest::backgroundIsReadOnceForEachCache()
{
    m_game->provide({{"bg.pcx", plainRecord(1, 1, {QColor(Qt::red)})},
                     {"other.pcx", plainRecord(1, 1, {QColor(Qt::green)})}});
    const QImage first = campaignBackground("bg.pcx");
    m_game->provide({{"bg.pcx", plainRecord(1, 1, {QColor(Qt::blue)})},
                     {"other.pcx", plainRecord(1, 1, {QColor(Qt::yellow)})}});
    const QImage second = campaignBackground("bg.pcx");
    QCOMPARE(second.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(second.cacheKey(), first.cacheKey());
    QCOMPARE(second.size(), QSize(456, 600));
    QCOMPARE(campaignBackground("other.pcx").pixelColor(0, 0), QColor(Qt::yellow));
    QCOMPARE(preloadArchive->backgrounds.keys(), (QStringList{"bg.pcx", "other.pcx"}));

    PreloadArchive anew;
    PreloadArchive *const before = std::exchange(preloadArchive, &anew);
    const QImage third = campaignBackground("bg.pcx");
    preloadArchive = before;
    QCOMPARE(third.pixelColor(0, 0), QColor(Qt::blue));
}

void CampaignPictureTest::missingBackgroundIsLookedForAgain()
{
    m_game->provide({});
    QVERIFY(campaignBackground("bg.pcx").isNull());
    m_game->provide({{"bg.pcx", plainRecord(1, 1, {QColor(Qt::red)})}});
    QCOMPARE(campaignBackground("bg.pcx").pixelColor(0, 0), QColor(Qt::red));
}

void CampaignPictureTest::paintingOnABackgroundLeavesTheCacheAlone()
{
    m_game->provide({{"bg.pcx", plainRecord(1, 1, {QColor(Qt::red)})}});
    QImage painted = campaignBackground("bg.pcx");
    painted.fill(Qt::blue);
    QCOMPARE(campaignBackground("bg.pcx").pixelColor(0, 0), QColor(Qt::red));
}

void CampaignPictureTest::readyMadePictureIsReadOnce()
{
    addReadyMadeMap();
    m_game->provide({{"02.pcx", pixelRecord(Qt::red)}, {"03.pcx", pixelRecord(Qt::green)}});
    const QImage first = regionPicture(readyMadeMap, 1, 0, 2).image;
    m_game->provide({{"02.pcx", pixelRecord(Qt::blue)}, {"03.pcx", pixelRecord(Qt::green)}});
    const QImage second = regionPicture(readyMadeMap, 1, 0, 2).image;
    QCOMPARE(second.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(second.cacheKey(), first.cacheKey());
    QCOMPARE(regionPicture(readyMadeMap, 1, 0, 3).image.pixelColor(0, 0), QColor(Qt::green));
}

void CampaignPictureTest::readyMadePictureIsChosenByStateAndColour_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<uint>("colour");
    for (uint state = 0; state < 3; ++state) {
        for (uint colour = 0; colour < 8; ++colour)
            QTest::addRow("state %u, colour %u", state, colour) << state << colour;
    }
}

void CampaignPictureTest::readyMadePictureIsChosenByStateAndColour()
{
    QFETCH(uint, state);
    QFETCH(uint, colour);
    addReadyMadeMap();
    QMap<QByteArray, QByteArray> pictures;
    for (int s = 0; s < 3; ++s) {
        for (int c = 0; c < 8; ++c)
            pictures[QByteArray::number(s) + QByteArray::number(c) + ".pcx"] =
                pixelRecord(QColor(s, c, 99));
    }
    m_game->provide(pictures);
    const RegionPicture picture = regionPicture(readyMadeMap, 1, state, colour);
    QCOMPARE(picture.image.size(), QSize(1, 1));
    QCOMPARE(picture.image.pixelColor(0, 0), QColor(int(state), int(colour), 99));
    QCOMPARE(picture.missingFile, QString());
    QVERIFY(preloadArchive->largeImages.isEmpty());
}

void CampaignPictureTest::readyMadePictureIsTransparentWhereItIsCyan()
{
    addReadyMadeMap();
    m_game->provide({{"02.pcx", pixelRecord(QColor(0, 255, 255))}});
    QCOMPARE(regionPicture(readyMadeMap, 1, 0, 2).image, onePixel(0));
}

void CampaignPictureTest::missingReadyMadePictureIsNamed()
{
    addReadyMadeMap();
    m_game->provide({{"13.pcx", pixelRecord(Qt::red)}});
    const ReportRecorder recorder;
    const RegionPicture picture = regionPicture(readyMadeMap, 1, 2, 7);
    QVERIFY(picture.image.isNull());
    QCOMPARE(picture.missingFile, QStringLiteral("27.pcx"));
    QVERIFY(recorder.errors.isEmpty());
}

void CampaignPictureTest::numbersBeyondTheLayoutGiveNoPicture_data()
{
    QTest::addColumn<uint>("map");
    QTest::addColumn<uint>("region");
    QTest::addColumn<uint>("state");
    QTest::addColumn<uint>("colour");
    QTest::newRow("map") << 99u << 1u << 0u << 0u;
    QTest::newRow("largest map") << ~0u << 1u << 0u << 0u;
    QTest::newRow("region") << readyMadeMap << 2u << 0u << 0u;
    QTest::newRow("largest region") << readyMadeMap << ~0u << 0u << 0u;
    QTest::newRow("region of a computed map") << computedMap << 2u << 0u << 0u;
    QTest::newRow("region without names") << readyMadeMap << 0u << 0u << 0u;
    QTest::newRow("state") << readyMadeMap << 1u << 3u << 0u;
    QTest::newRow("largest state") << readyMadeMap << 1u << ~0u << 0u;
    QTest::newRow("colour") << readyMadeMap << 1u << 0u << 8u;
    QTest::newRow("largest colour") << readyMadeMap << 1u << 0u << ~0u;
}

void CampaignPictureTest::numbersBeyondTheLayoutGiveNoPicture()
{
    QFETCH(uint, map);
    QFETCH(uint, region);
    QFETCH(uint, state);
    QFETCH(uint, colour);
    addReadyMadeMap();
    addComputedMap();
    const RegionPicture picture = regionPicture(map, region, state, colour);
    QVERIFY(picture.image.isNull());
    QCOMPARE(picture.missingFile, QString());
    QVERIFY(preloadArchive->largeImages.isEmpty());
}

void CampaignPictureTest::computedPictureIsMadeOfTheRegionsMasks_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<QRgb>("expected");
    QTest::newRow("unselected") << 0u << 0xaf233971;
    QTest::newRow("selected") << 1u << 0xaf3b4e7f;
    QTest::newRow("unused") << 2u << QRgb(0x4128417f); // the pattern's second pixel
}

// The three masks differ, so that none can stand for another; and map, region, state and colour
// differ as well.
void CampaignPictureTest::computedPictureIsMadeOfTheRegionsMasks()
{
    QFETCH(uint, state);
    QFETCH(QRgb, expected);
    addComputedMap();
    useMasks({onePixel(grey(9)), onePixel(grey(128)), onePixel(grey(200))});
    usePattern(rowOf({grey(64), grey(65)}));
    const RegionPicture picture = regionPicture(computedMap, 1, state, lightBlue);
    QCOMPARE(QString::number(picture.image.pixel(0, 0), 16), QString::number(expected, 16));
    QCOMPARE(picture.missingFile, QString());
}

void CampaignPictureTest::computedPictureIsKept()
{
    addComputedMap();
    useMasks({onePixel(grey(9)), onePixel(notCovered), onePixel(notCovered)});
    const QImage first = regionPicture(computedMap, 1, 1, lightBlue).image;
    QCOMPARE(first, onePixel(0xaf5082ff));
    useMasks({onePixel(grey(9)), onePixel(grey(0)), onePixel(notCovered)});
    const QImage second = regionPicture(computedMap, 1, 1, lightBlue).image;
    QCOMPARE(second, onePixel(0xaf5082ff));
    QCOMPARE(second.cacheKey(), first.cacheKey());
}

void CampaignPictureTest::computedPictureIsKeptUnderAllItsNumbers()
{
    addComputedMap();
    useMasks({onePixel(grey(9)), onePixel(notCovered), onePixel(notCovered)});
    regionPicture(computedMap, 1, 0, 5);
    QCOMPARE(preloadArchive->largeImages.size(), 1);
    const QImage *kept = preloadArchive->getLargeGeneratedImage(24, 1, 0, 5);
    QVERIFY(kept);
    QCOMPARE(*kept, onePixel(0xafaf10c4)); // 175, 16, 196
    QVERIFY(preloadArchive->smallImages.isEmpty());

    preloadArchive->saveLargeGeneratedImage(24, 1, 2, 6, onePixel(0xff010203));
    QCOMPARE(regionPicture(computedMap, 1, 2, 6).image, onePixel(0xff010203));
}

void CampaignPictureTest::computedPictureOfNoStateIsNull()
{
    addComputedMap();
    useMasks({onePixel(grey(9)), onePixel(notCovered), onePixel(notCovered)});
    const RegionPicture picture = regionPicture(computedMap, 1, 3, lightBlue);
    QVERIFY(picture.image.isNull());
    QCOMPARE(picture.missingFile, QString());
}

void CampaignPictureTest::missingMaskEndsTheProcess()
{
    addComputedMap();
    useMasks({onePixel(grey(9)), onePixel(notCovered), QImage()});
    const ReportRecorder recorder;
    QTest::ignoreMessage(QtDebugMsg, "No glow img");
    QCOMPARE(exitCodeOf([] { regionPicture(computedMap, 1, 1, lightBlue); }), 1);
    QVERIFY(recorder.errors.isEmpty());
    QVERIFY(preloadArchive->largeImages.isEmpty());
}

QTEST_GUILESS_MAIN(CampaignPictureTest)
#include "campaign_picture_test.moc"
