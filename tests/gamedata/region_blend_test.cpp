// Blending a region's picture: every blender gives what the slow, plain way gives.
#include "gamedata/region_blend.h"
#include "tests/gamedata/region_masks.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <vector>

using namespace region_masks;

namespace {

QImage naiveImage(unsigned state, const NaiveMasks &masks, const QColor &tint,
                  const QImage &pattern, int x, int y)
{
    switch (state) {
    case 0:
        return naive::unselected(masks, tint);
    case 1:
        return naive::selected(masks, tint);
    default:
        return naive::unused(masks, tint, pattern, x, y);
    }
}

} // namespace

class RegionBlendTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Stage> m_stage;

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void everyGlowAndBorderValueMatchesTheSlowWay_data();
    void everyGlowAndBorderValueMatchesTheSlowWay();
    void randomMasksMatchTheSlowWay_data();
    void randomMasksMatchTheSlowWay();
    void everyBlenderComputesEveryTint();
    void everyBlenderKeepsToTheRun();
};

void RegionBlendTest::everyGlowAndBorderValueMatchesTheSlowWay_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<int>("color");
    for (uint state = 0; state < 3; ++state) {
        for (int color = 0; color <= 8; ++color)
            QTest::addRow("state %u, colour %d", state, color) << state << color;
    }
}

// All pairs of values, each with every choice of what covers the pixel.
void RegionBlendTest::everyGlowAndBorderValueMatchesTheSlowWay()
{
    QFETCH(uint, state);
    QFETCH(int, color);
    const QImage empty(2 * 256, 2 * 256, QImage::Format_ARGB32);
    NaiveMasks masks{empty, empty, empty};
    QImage pattern = empty;
    for (int y = 0; y < empty.height(); ++y) {
        for (int x = 0; x < empty.width(); ++x) {
            const uint glow = uint(x) % 256;
            const uint border = uint(y) % 256;
            const bool filled = (x * 7 + y * 3) % 16 != 0;
            masks.fill.setPixel(x, y, filled ? grey(77) : 0x00aabbcc);
            masks.glow.setPixel(x, y, grey(glow) & (x < 256 ? ~0u : 0xffffffu));
            masks.border.setPixel(x, y, grey(border) & (y < 256 ? ~0u : 0xffffffu));
            pattern.setPixel(x, y, grey((glow + border) % 256));
        }
    }
    useMasks(masks);
    usePattern(pattern);
    const QImage expected = naiveImage(state, masks, getRegionColor_32bit(color), pattern, 0, 0);
    QVERIFY(composed(state, color) == expected);
}

void RegionBlendTest::randomMasksMatchTheSlowWay_data()
{
    QTest::addColumn<uint>("state");
    for (uint state = 0; state < 3; ++state)
        QTest::addRow("state %u", state) << state;
}

// Widths around the vectors' own, so that every rest of a row occurs; sizes that differ.
void RegionBlendTest::randomMasksMatchTheSlowWay()
{
    QFETCH(uint, state);
    QRandomGenerator random(state + 1);
    const auto around = [&random](int side) {
        return random.bounded(3) > 0 ? side : std::max(1, side + int(random.bounded(9)) - 4);
    };
    for (int width = 1; width <= 70; ++width) {
        const int height = 1 + int(random.bounded(5));
        const NaiveMasks masks{randomMask(random, {width, height}),
                               randomMask(random, {around(width), around(height)}),
                               randomMask(random, {around(width), around(height)})};
        const QImage pattern = randomMask(random, {40, 6});
        const int x = int(random.bounded(80)) - 40;
        const int y = int(random.bounded(9)) - 4;
        const int color = int(random.bounded(9));
        useMasks(masks);
        usePattern(pattern);
        placeRegion(x, y);
        const QImage expected =
            naiveImage(state, masks, getRegionColor_32bit(color), pattern, x, y);
        QVERIFY2(composed(state, color) == expected, qPrintable(QString::number(width)));
    }
}

void RegionBlendTest::everyBlenderComputesEveryTint()
{
    const std::vector<const region_blend::Blender *> blenders = region_blend::usableBlenders();
    QVERIFY(!blenders.empty());
    std::array<quint32, 256> fill{};
    std::array<quint32, 256> border{};
    std::array<quint32, 256> glow{};
    std::array<quint32, 256> result{};
    fill.fill(0xff000000);
    for (uint value = 0; value < 256; ++value)
        glow[value] = grey(value);
    const region_blend::Run run{fill.data(), border.data(), glow.data(), nullptr, result.data()};
    for (const region_blend::Blender *blender : blenders) {
        for (int tint = 0; tint < 256; ++tint) {
            blender->selected(run, 256, uint(tint) * 0x010101);
            for (int g = 0; g < 256; ++g)
                QCOMPARE(result[size_t(g)],
                         0xaf000000 | uint(naive::lightened(tint, g)) * 0x010101);
            blender->unselected(run, 256, uint(tint) * 0x010101);
            for (int g = 0; g < 256; ++g)
                QCOMPARE(result[size_t(g)],
                         0xaf000000 | uint(tint * ((g + 255) / 2) / 256) * 0x010101);
        }
    }
}

void RegionBlendTest::everyBlenderKeepsToTheRun()
{
    constexpr quint32 untouched = 0x01020304;
    for (const region_blend::Blender *blender : region_blend::usableBlenders()) {
        for (int length = 0; length <= 70; ++length) {
            // The masks end where the run does: a read beyond them is one beyond the heap block.
            const std::vector<quint32> covered(size_t(length), grey(128));
            std::vector<quint32> result(size_t(length) + 1, untouched);
            const quint32 *mask = covered.data();
            const auto expect = [&](quint32 pixel) {
                return result.back() == untouched &&
                       std::all_of(result.begin(), result.end() - 1,
                                   [&](quint32 found) { return found == pixel; });
            };
            blender->selected({mask, mask, mask, nullptr, result.data()}, length, 0x5082ff);
            QVERIFY(expect(0xaf53607f)); // 167, 192, 255 halved
            blender->unselected({mask, mask, mask, nullptr, result.data()}, length, 0x5082ff);
            QVERIFY(expect(0xaf1d305f)); // 80, 130, 255 by 191, then halved
            blender->unused({mask, mask, mask, mask, result.data()}, length, 0x5082ff);
            QVERIFY(expect(0x8028417f));
        }
    }
}

QTEST_GUILESS_MAIN(RegionBlendTest)
#include "region_blend_test.moc"
