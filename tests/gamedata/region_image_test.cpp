// The picture of a region, composed of its masks.
#include "gamedata/region_image.h"
#include "tests/gamedata/region_masks.h"
#include "tests/support/picture_records.h"

#include <QTest>

#include <limits>

using namespace region_masks;

class RegionImageTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Stage> m_stage;

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void playerColorsHaveTheirTints_data();
    void playerColorsHaveTheirTints();
    void pixelIsComposedByState_data();
    void pixelIsComposedByState();
    void blackTintStandsInForUnknownColors_data();
    void blackTintStandsInForUnknownColors();
    void resultHasTheSizeAndFormatOfTheFill_data();
    void resultHasTheSizeAndFormatOfTheFill();
    void pixelOutsideASmallerMaskIsNotCovered_data();
    void pixelOutsideASmallerMaskIsNotCovered();
    void largerMaskIsCutToTheFill();
    void patternIsTakenAtThePlaceOnTheMap();
    void pixelOutsideThePatternHasNoOpacity_data();
    void pixelOutsideThePatternHasNoOpacity();
    void unknownRegionLiesInTheCorner();
    void stateChoosesTheLook();
    void unknownStateGivesNullImage_data();
    void unknownStateGivesNullImage();
    void masksAreReadOnceAndStayAsTheyAre();
};

void RegionImageTest::playerColorsHaveTheirTints_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<QColor>("tint");
    QTest::newRow("0") << 0 << QColor(255, 0, 0);
    QTest::newRow("1") << 1 << QColor(80, 130, 255);
    QTest::newRow("2") << 2 << QColor(193, 139, 84);
    QTest::newRow("3") << 3 << QColor(42, 173, 9);
    QTest::newRow("4") << 4 << QColor(247, 131, 30);
    QTest::newRow("5") << 5 << QColor(175, 16, 196);
    QTest::newRow("6") << 6 << QColor(47, 189, 179);
    QTest::newRow("7") << 7 << QColor(221, 127, 132);
    QTest::newRow("8") << 8 << QColor();
    QTest::newRow("-1") << -1 << QColor();
    QTest::newRow("largest") << std::numeric_limits<int>::max() << QColor();
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << QColor();
}

void RegionImageTest::playerColorsHaveTheirTints()
{
    QFETCH(int, color);
    QFETCH(QColor, tint);
    QCOMPARE(getRegionColor_32bit(color), tint);
    QCOMPARE(getRegionColor_32bit(color).isValid(), color >= 0 && color < 8);
}

void RegionImageTest::pixelIsComposedByState_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<QRgb>("fill");
    QTest::addColumn<QRgb>("border");
    QTest::addColumn<QRgb>("glow");
    QTest::addColumn<QRgb>("pattern");
    QTest::addColumn<QRgb>("expected");
    const QRgb none = notCovered;
    const auto row = [](const char *name, uint state, QRgb fill, QRgb border, QRgb glow,
                        QRgb pattern, QRgb expected) {
        QTest::newRow(name) << state << fill << border << glow << pattern << expected;
    };
    row("selected, fill only", 1, grey(9), none, none, none, 0xaf5082ff);
    row("selected, glow 0", 1, grey(9), none, grey(0), none, 0xafffffff);
    row("selected, glow 1", 1, grey(9), none, grey(1), none, 0xaffefeff);
    row("selected, glow 128", 1, grey(9), none, grey(128), none, 0xafa7c0ff);
    row("selected, glow 255", 1, grey(9), none, grey(255), none, 0xaf5082ff);
    row("selected, border 0", 1, grey(9), grey(0), none, none, 0xaf000000);
    row("selected, border 128", 1, grey(9), grey(128), none, none, 0xaf28417f);
    row("selected, border 255", 1, grey(9), grey(255), none, none, 0xaf4f81fe);
    row("selected, glow before border", 1, grey(9), grey(100), grey(128), none, 0xaf414b63);
    row("selected, outside the fill", 1, 0x00123456, grey(100), grey(128), none, 0x00123456);
    row("selected, fill of alpha 1", 1, 0x01123456, none, none, none, 0xaf5082ff);
    row("selected, glow of alpha 1", 1, grey(9), none, 0x01808080, none, 0xafa7c0ff);
    row("selected, glow of alpha 0", 1, grey(9), none, 0x00808080, none, 0xaf5082ff);
    row("selected, red of the glow", 1, grey(9), none, 0xff8001fe, none, 0xafa7c0ff);
    row("selected, border of alpha 1", 1, grey(9), 0x01808080, none, none, 0xaf28417f);
    row("selected, border of alpha 0", 1, grey(9), 0x00808080, none, none, 0xaf5082ff);
    row("selected, red of the border", 1, grey(9), 0xff8001fe, none, none, 0xaf28417f);

    row("unselected, fill only", 0, grey(9), none, none, none, 0xaf5082ff);
    row("unselected, glow 0", 0, grey(9), none, grey(0), none, 0xaf27407e);
    row("unselected, glow 1", 0, grey(9), none, grey(1), none, 0xaf28417f);
    row("unselected, glow 2", 0, grey(9), none, grey(2), none, 0xaf28417f);
    row("unselected, glow 200", 0, grey(9), none, grey(200), none, 0xaf4673e2);
    row("unselected, glow 255", 0, grey(9), none, grey(255), none, 0xaf4f81fe);
    row("unselected, border 128", 0, grey(9), grey(128), none, none, 0xaf28417f);
    row("unselected, glow before border", 0, grey(9), grey(128), grey(200), none, 0xaf233971);
    row("unselected, outside the fill", 0, 0x00123456, grey(1), grey(1), none, 0x00123456);
    row("unselected, glow of alpha 0", 0, grey(9), none, 0x00808080, none, 0xaf5082ff);
    row("unselected, red of the glow", 0, grey(9), none, 0xffc80102, none, 0xaf4673e2);

    row("unused, fill only", 2, grey(9), none, none, grey(200), 0x795082ff);
    row("unused, glow takes the pattern", 2, grey(9), none, grey(7), grey(200), 0xc85082ff);
    row("unused, red of the pattern", 2, grey(9), none, grey(7), 0xffc80a14, 0xc85082ff);
    row("unused, pattern of alpha 0", 2, grey(9), none, grey(7), 0x00c80a14, 0xc85082ff);
    row("unused, pattern 0 keeps the colour", 2, grey(9), none, grey(7), grey(0), 0x005082ff);
    row("unused, border 128", 2, grey(9), grey(128), none, grey(200), 0x7928417f);
    row("unused, glow and border", 2, grey(9), grey(128), grey(7), grey(64), 0x4028417f);
    row("unused, glow of alpha 0", 2, grey(9), none, 0x00070707, grey(200), 0x795082ff);
    row("unused, outside the fill", 2, 0x00123456, grey(1), grey(1), grey(200), 0x00123456);
}

void RegionImageTest::pixelIsComposedByState()
{
    QFETCH(uint, state);
    QFETCH(QRgb, fill);
    QFETCH(QRgb, border);
    QFETCH(QRgb, glow);
    QFETCH(QRgb, pattern);
    QFETCH(QRgb, expected);
    useMasks({onePixel(fill), onePixel(border), onePixel(glow)});
    usePattern(onePixel(pattern));
    const QImage image = composed(state, lightBlue);
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(QString::number(image.pixel(0, 0), 16), QString::number(expected, 16));
}

void RegionImageTest::blackTintStandsInForUnknownColors_data()
{
    QTest::addColumn<int>("color");
    QTest::newRow("8") << 8;
    QTest::newRow("255") << 255;
    QTest::newRow("-1") << -1;
}

void RegionImageTest::blackTintStandsInForUnknownColors()
{
    QFETCH(int, color);
    const QImage covered = rowOf({grey(9), grey(9), grey(9)});
    useMasks({covered, rowOf({0, 0, 0}), rowOf({notCovered, grey(0), grey(255)})});
    usePattern(rowOf({grey(50), grey(60), grey(70)}));
    QCOMPARE(composed(0, color), rowOf({0xaf000000, 0xaf000000, 0xaf000000}));
    QCOMPARE(composed(1, color), rowOf({0xaf000000, 0xafffffff, 0xaf000000}));
    QCOMPARE(composed(2, color), rowOf({0x79000000, 0x3c000000, 0x46000000}));
}

void RegionImageTest::resultHasTheSizeAndFormatOfTheFill_data()
{
    QTest::addColumn<uint>("state");
    for (uint state = 0; state < 3; ++state)
        QTest::addRow("state %u", state) << state;
}

void RegionImageTest::resultHasTheSizeAndFormatOfTheFill()
{
    QFETCH(uint, state);
    QRandomGenerator random(3);
    useMasks(
        {randomMask(random, {13, 7}), randomMask(random, {20, 3}), randomMask(random, {4, 9})});
    usePattern(randomMask(random, {5, 5}));
    QCOMPARE(composed(state, 2).size(), QSize(13, 7));
    QCOMPARE(composed(state, 2).format(), QImage::Format_ARGB32);
}

void RegionImageTest::pixelOutsideASmallerMaskIsNotCovered_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<QVector<QRgb>>("expected");
    QTest::newRow("unselected") << 0u << QVector<QRgb>{0xaf233971, 0xaf4673e2, 0xaf5082ff};
    QTest::newRow("selected") << 1u << QVector<QRgb>{0xaf3b4e7f, 0xaf769dff, 0xaf5082ff};
    QTest::newRow("unused") << 2u << QVector<QRgb>{0x4028417f, 0x415082ff, 0x795082ff};
}

// The border is one pixel wide, the glow two.
void RegionImageTest::pixelOutsideASmallerMaskIsNotCovered()
{
    QFETCH(uint, state);
    QFETCH(QVector<QRgb>, expected);
    useMasks(
        {rowOf({grey(1), grey(1), grey(1)}), rowOf({grey(128)}), rowOf({grey(200), grey(200)})});
    usePattern(rowOf({grey(64), grey(65), grey(66)}));
    const QImage image = composed(state, lightBlue);
    for (int x = 0; x < 3; ++x)
        QCOMPARE(QString::number(image.pixel(x, 0), 16), QString::number(expected[x], 16));
}

void RegionImageTest::largerMaskIsCutToTheFill()
{
    QImage border(2, 2, QImage::Format_ARGB32);
    border.fill(grey(0));
    border.setPixel(0, 0, grey(128));
    useMasks({onePixel(grey(1)), border, onePixel(notCovered)});
    QCOMPARE(composed(1, lightBlue), onePixel(0xaf28417f));
}

void RegionImageTest::patternIsTakenAtThePlaceOnTheMap()
{
    QImage pattern(5, 4, QImage::Format_ARGB32);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 5; ++x)
            pattern.setPixel(x, y, grey(uint(16 * y + x)));
    }
    usePattern(pattern);
    QImage covered(2, 2, QImage::Format_ARGB32);
    covered.fill(grey(1));
    QImage empty(2, 2, QImage::Format_ARGB32);
    empty.fill(0);
    useMasks({covered, empty, covered});
    placeRegion(3, 1);
    const QImage image = composed(2, lightBlue);
    QCOMPARE(image.pixel(0, 0), 0x135082ffu);
    QCOMPARE(image.pixel(1, 0), 0x145082ffu);
    QCOMPARE(image.pixel(0, 1), 0x235082ffu);
    QCOMPARE(image.pixel(1, 1), 0x245082ffu);

    EditorData::campaignInfo[4].regions = {CampaignRegion(),
                                           EditorData::campaignInfo[0].regions[0]};
    QCOMPARE(composed(2, lightBlue, 4, 1), image);
}

void RegionImageTest::pixelOutsideThePatternHasNoOpacity_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QVector<int>>("alphas"); // left to right, of the one row
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("inside") << 0 << 0 << QVector<int>{10, 11, 12};
    QTest::newRow("over the left edge") << -1 << 0 << QVector<int>{0, 10, 11};
    QTest::newRow("over the right edge") << 2 << 0 << QVector<int>{12, 13, 0};
    QTest::newRow("left of it") << -3 << 0 << QVector<int>{0, 0, 0};
    QTest::newRow("right of it") << 4 << 0 << QVector<int>{0, 0, 0};
    QTest::newRow("above it") << 0 << -1 << QVector<int>{0, 0, 0};
    QTest::newRow("below it") << 0 << 1 << QVector<int>{0, 0, 0};
    QTest::newRow("far right") << most << 0 << QVector<int>{0, 0, 0};
    QTest::newRow("far left") << least << 0 << QVector<int>{0, 0, 0};
    QTest::newRow("far down") << 0 << most << QVector<int>{0, 0, 0};
    QTest::newRow("far up") << 0 << least << QVector<int>{0, 0, 0};
    QTest::newRow("far away") << most << least << QVector<int>{0, 0, 0};
}

void RegionImageTest::pixelOutsideThePatternHasNoOpacity()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(QVector<int>, alphas);
    usePattern(rowOf({grey(10), grey(11), grey(12), grey(13)}));
    const QImage covered = rowOf({grey(1), grey(1), grey(1)});
    useMasks({covered, rowOf({0, 0, 0}), covered});
    placeRegion(x, y);
    const QImage image = composed(2, lightBlue);
    for (int column = 0; column < 3; ++column)
        QCOMPARE(image.pixel(column, 0), uint(alphas[column]) << 24 | 0x5082ff);
}

void RegionImageTest::unknownRegionLiesInTheCorner()
{
    usePattern(rowOf({grey(10), grey(11)}));
    useMasks({onePixel(grey(1)), onePixel(notCovered), onePixel(grey(1))});
    placeRegion(1, 0);
    QCOMPARE(composed(2, lightBlue, 0, 0), onePixel(0x0b5082ff));
    QCOMPARE(composed(2, lightBlue, 0, 1), onePixel(0x0a5082ff));
    QCOMPARE(composed(2, lightBlue, 0, ~0u), onePixel(0x0a5082ff));
    QCOMPARE(composed(2, lightBlue, 5, 0), onePixel(0x0a5082ff));
    QCOMPARE(composed(2, lightBlue, ~0u, 0), onePixel(0x0a5082ff));
    QCOMPARE(EditorData::campaignInfo.size(), size_t(1));
}

void RegionImageTest::stateChoosesTheLook()
{
    usePattern(rowOf({grey(10), grey(11)}));
    useMasks({onePixel(grey(1)), onePixel(notCovered), onePixel(grey(0))});
    placeRegion(1, 0);
    const QString fill = "fill";
    const QString border = "border";
    const QString glow = "glow";
    QCOMPARE(composed(0, lightBlue), onePixel(0xaf27407e));
    QCOMPARE(createUnselectedRegionImage_F(1, fill, border, glow), onePixel(0xaf27407e));
    QCOMPARE(composed(1, lightBlue), onePixel(0xafffffff));
    QCOMPARE(createSelectedRegionImage_F(1, fill, border, glow), onePixel(0xafffffff));
    QCOMPARE(composed(2, lightBlue), onePixel(0x0b5082ff));
    QCOMPARE(createUnusedRegionImage_F(1, fill, border, glow, 0, 0), onePixel(0x0b5082ff));
}

void RegionImageTest::unknownStateGivesNullImage_data()
{
    QTest::addColumn<uint>("state");
    QTest::newRow("3") << 3u;
    QTest::newRow("4") << 4u;
    QTest::newRow("largest") << ~0u;
}

void RegionImageTest::unknownStateGivesNullImage()
{
    QFETCH(uint, state);
    usePattern(onePixel(grey(1)));
    useMasks({onePixel(grey(1)), onePixel(grey(1)), onePixel(grey(1))});
    QVERIFY(composed(state, lightBlue).isNull());
}

void RegionImageTest::masksAreReadOnceAndStayAsTheyAre()
{
    using picture_records::paletteRecord;
    const game_files::GameFolder game;
    const QMap<int, QColor> colors{{0, QColor(0, 255, 255)}, {1, QColor(128, 128, 128)}};
    const QByteArray half = paletteRecord(2, 1, QByteArray("\x01\x00", 2), colors);
    const QByteArray whole = paletteRecord(2, 1, QByteArray("\x01\x01", 2), colors);
    game.provide({{"f.pcx", whole}, {"b.pcx", half}, {"g.pcx", half}, {"cmpdash.pcx", whole}});
    placeRegion(0, 0);
    const auto create = [](unsigned state) {
        return createGeneratedImage(lightBlue, 0, 0, state, "f.pcx", "b.pcx", "g.pcx");
    };
    // 167, 192, 255 halved, and the bare tint beside it where the masks are cyan.
    QCOMPARE(create(1), rowOf({0xaf53607f, 0xaf5082ff}));
    const QMap<QString, QImage> cached = preloadArchive->images32;
    QCOMPARE(cached.keys(), (QStringList{"b.pcx", "f.pcx", "g.pcx"}));

    game.provide({{"cmpdash.pcx", whole}});
    QCOMPARE(create(0), rowOf({0xaf1d305f, 0xaf5082ff}));
    QCOMPARE(create(2), rowOf({0x8028417f, 0x795082ff}));
    QCOMPARE(create(1), rowOf({0xaf53607f, 0xaf5082ff}));
    for (auto image = cached.cbegin(); image != cached.cend(); ++image)
        QCOMPARE(preloadArchive->images32[image.key()], *image);
    QVERIFY(preloadArchive->images32.contains("cmpdash.pcx"));
}

QTEST_GUILESS_MAIN(RegionImageTest)
#include "region_image_test.moc"
