// The painted pictures of the sample game: their regions, masks, palettes and sizes.
#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/icon_file.h"
#include "tools/sample_game/art/looks.h"
#include "tools/sample_game/art/splash.h"

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr QRgb kCyan = 0xFF00FFFF;
constexpr int kLeastWidth = 50;
constexpr int kLeastHeight = 40;
constexpr int kLeastArea = 1800;

int coveredArea(const QImage &mask)
{
    int area = 0;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            area += qAlpha(mask.pixel(x, y)) != 0 ? 1 : 0;
    return area;
}

QRect coveredBox(const QImage &mask)
{
    QRect box;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            if (qAlpha(mask.pixel(x, y)) != 0)
                box |= QRect(x, y, 1, 1);
    return box;
}

// The size of the part that can be walked from the first covered pixel by sides.
int connectedArea(const QImage &mask)
{
    QSet<QPair<int, int>> seen;
    QVector<QPoint> open;
    const auto visit = [&](int x, int y) {
        if (mask.valid(x, y) && qAlpha(mask.pixel(x, y)) != 0 && !seen.contains({x, y})) {
            seen.insert({x, y});
            open.append({x, y});
        }
    };
    for (int y = 0; y < mask.height() && open.isEmpty(); ++y)
        for (int x = 0; x < mask.width() && open.isEmpty(); ++x)
            visit(x, y);
    while (!open.isEmpty()) {
        const QPoint p = open.takeLast();
        visit(p.x() + 1, p.y());
        visit(p.x() - 1, p.y());
        visit(p.x(), p.y() + 1);
        visit(p.x(), p.y() - 1);
    }
    return seen.size();
}

int sharedArea(const art::PaintedRegion &a, const art::PaintedRegion &b)
{
    int shared = 0;
    for (int y = 0; y < a.fill.height(); ++y)
        for (int x = 0; x < a.fill.width(); ++x) {
            const QPoint other = a.position + QPoint(x, y) - b.position;
            if (qAlpha(a.fill.pixel(x, y)) != 0 && b.fill.valid(other) &&
                qAlpha(b.fill.pixel(other)) != 0)
                ++shared;
        }
    return shared;
}

bool isGreyOrClear(const QImage &mask)
{
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            const QRgb p = mask.pixel(x, y);
            const bool grey = qAlpha(p) == 255 && qRed(p) == qGreen(p) && qGreen(p) == qBlue(p);
            if (!grey && qAlpha(p) != 0)
                return false;
        }
    return true;
}

bool sameMaps(const art::PaintedMap &a, const art::PaintedMap &b)
{
    if (a.background != b.background || a.regions.size() != b.regions.size())
        return false;
    for (int i = 0; i < a.regions.size(); ++i) {
        const art::PaintedRegion &p = a.regions[i];
        const art::PaintedRegion &q = b.regions[i];
        if (p.position != q.position || p.fill != q.fill || p.border != q.border ||
            p.glow != q.glow || p.name != q.name || p.looks[1][2] != q.looks[1][2])
            return false;
    }
    return true;
}

} // namespace

class ArtTest : public QObject
{
    Q_OBJECT

private slots:
    void mapsHaveSoundRegions_data();
    void mapsHaveSoundRegions();
    void masksCoverWhatTheyShould();
    void looksFitPalettes();
    void looksAreNullUnlessAskedFor();
    void namesDiffer();
    void sameSeedGivesSameMap();
    void otherSeedGivesOtherMap();
    void regionCountIsCut();
    void backgroundsDifferAndRepeat();
    void moviePicturesDifferAndRepeat();
    void dashPatternHasGapsAndStrokes();
    void quantisingKeepsFewColoursAndNoCyan();
    void iconFileListsItsPictures();
    void splashesHaveTheAskedSize();
};

void ArtTest::mapsHaveSoundRegions_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("count");
    constexpr int kCounts[] = {2, 7, 12};
    for (int theme = 0; theme < art::kThemes; ++theme)
        for (int i = 0; i < 3; ++i)
            QTest::addRow("theme %d, %d regions", theme, kCounts[i]) << theme << kCounts[i];
    QTest::newRow("most regions") << 1 << 16;
}

void ArtTest::mapsHaveSoundRegions()
{
    QFETCH(int, theme);
    QFETCH(int, count);
    const auto map = art::paintCampaignMap(static_cast<art::Theme>(theme), count, 5, false);
    QCOMPARE(map.background.size(), QSize(456, 600));
    QCOMPARE(map.background.format(), QImage::Format_RGB32);
    QCOMPARE(map.regions.size(), count);
    int overlapping = 0;
    for (int i = 0; i < map.regions.size(); ++i) {
        const art::PaintedRegion &region = map.regions[i];
        QVERIFY(map.background.rect().contains(QRect(region.position, region.fill.size())));
        const QRect box = coveredBox(region.fill);
        QVERIFY(box.width() >= kLeastWidth && box.height() >= kLeastHeight);
        const int area = coveredArea(region.fill);
        QVERIFY(area >= kLeastArea);
        QCOMPARE(connectedArea(region.fill), area);
        for (int k = 0; k < i; ++k)
            overlapping += sharedArea(region, map.regions[k]) > 0 ? 1 : 0;
    }
    QVERIFY(overlapping >= 1);
}

void ArtTest::masksCoverWhatTheyShould()
{
    const auto map = art::paintCampaignMap(art::Theme::Frost, 5, 3, false);
    for (const art::PaintedRegion &region : map.regions) {
        QCOMPARE(region.border.size(), region.fill.size());
        QCOMPARE(region.glow.size(), region.fill.size());
        for (const QImage *mask : {&region.fill, &region.border, &region.glow}) {
            QCOMPARE(mask->format(), QImage::Format_ARGB32);
            QVERIFY(isGreyOrClear(*mask));
        }
        for (int y = 0; y < region.fill.height(); ++y)
            for (int x = 0; x < region.fill.width(); ++x) {
                const bool fill = qAlpha(region.fill.pixel(x, y)) != 0;
                const bool border = qAlpha(region.border.pixel(x, y)) != 0;
                const bool glow = qAlpha(region.glow.pixel(x, y)) != 0;
                QCOMPARE(border || glow, fill);
            }
        QVERIFY(coveredArea(region.border) < coveredArea(region.fill));
        QVERIFY(coveredArea(region.glow) < coveredArea(region.fill));
    }
}

void ArtTest::looksFitPalettes()
{
    const auto map = art::paintCampaignMap(art::Theme::Isles, 3, 8, true);
    for (const art::PaintedRegion &region : map.regions)
        for (const auto &state : region.looks)
            for (const QImage &look : state) {
                QCOMPARE(look.size(), region.fill.size());
                QCOMPARE(look.format(), QImage::Format_ARGB32);
                QSet<QRgb> colours;
                for (int y = 0; y < look.height(); ++y)
                    for (int x = 0; x < look.width(); ++x) {
                        const QRgb p = look.pixel(x, y);
                        QCOMPARE(qAlpha(p), qAlpha(region.fill.pixel(x, y)) != 0 ? 255 : 0);
                        QVERIFY(p != kCyan);
                        if (qAlpha(p) != 0)
                            colours.insert(p);
                    }
                QVERIFY(colours.size() > 20);
                QVERIFY(colours.size() <= 200);
            }
    QVERIFY(map.regions[0].looks[0][0] != map.regions[0].looks[0][1]);
    QVERIFY(map.regions[0].looks[0][0] != map.regions[0].looks[1][0]);
    QVERIFY(map.regions[0].looks[1][0] != map.regions[0].looks[2][0]);
}

void ArtTest::looksAreNullUnlessAskedFor()
{
    const auto map = art::paintCampaignMap(art::Theme::Isles, 2, 8, false);
    for (const auto &state : map.regions[0].looks)
        for (const QImage &look : state)
            QVERIFY(look.isNull());
}

void ArtTest::namesDiffer()
{
    const auto map = art::paintCampaignMap(art::Theme::Highlands, 16, 2, false);
    QSet<QString> names;
    for (const art::PaintedRegion &region : map.regions) {
        QVERIFY(!region.name.isEmpty());
        names.insert(region.name);
    }
    QCOMPARE(names.size(), 16);
}

void ArtTest::sameSeedGivesSameMap()
{
    QVERIFY(sameMaps(art::paintCampaignMap(art::Theme::Marsh, 4, 77, true),
                     art::paintCampaignMap(art::Theme::Marsh, 4, 77, true)));
}

void ArtTest::otherSeedGivesOtherMap()
{
    const auto one = art::paintCampaignMap(art::Theme::Marsh, 4, 77, false);
    const auto two = art::paintCampaignMap(art::Theme::Marsh, 4, 78, false);
    QVERIFY(one.background != two.background);
    QVERIFY(one.regions[0].fill != two.regions[0].fill);
}

void ArtTest::regionCountIsCut()
{
    QCOMPARE(art::paintCampaignMap(art::Theme::Ember, -3, 1, false).regions.size(), 2);
    QCOMPARE(art::paintCampaignMap(art::Theme::Ember, 17, 1, false).regions.size(), 16);
}

void ArtTest::backgroundsDifferAndRepeat()
{
    QVector<QImage> pictures;
    for (int theme = 0; theme < art::kThemes; ++theme) {
        const QImage picture = art::paintBackground(static_cast<art::Theme>(theme), 4);
        QCOMPARE(picture.size(), QSize(456, 600));
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
    }
    QCOMPARE(art::paintBackground(art::Theme::Ember, 4), pictures.last());
    QVERIFY(art::paintBackground(art::Theme::Ember, 5) != pictures.last());
}

void ArtTest::moviePicturesDifferAndRepeat()
{
    QVector<QImage> pictures;
    for (int number = 0; number < art::kMoviePictures + 1; ++number) {
        const QImage picture = art::paintMoviePicture(number, 4);
        QCOMPARE(picture.size(), QSize(400, 300));
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
    }
    QCOMPARE(art::paintMoviePicture(3, 4), pictures[3]);
    QCOMPARE(art::paintMoviePicture(-1, 4).size(), QSize(400, 300));
}

void ArtTest::dashPatternHasGapsAndStrokes()
{
    const QImage pattern = art::paintDashPattern();
    QCOMPARE(pattern.size(), QSize(800, 600));
    QCOMPARE(pattern.format(), QImage::Format_Grayscale8);
    int faint = 0;
    int strong = 0;
    for (int y = 0; y < pattern.height(); ++y)
        for (int x = 0; x < pattern.width(); ++x) {
            const int value = qRed(pattern.pixel(x, y));
            faint += value < 60 ? 1 : 0;
            strong += value > 140 ? 1 : 0;
        }
    QVERIFY(faint > 800 * 600 / 3);
    QVERIFY(strong > 800 * 600 / 12);
}

void ArtTest::quantisingKeepsFewColoursAndNoCyan()
{
    QImage image(64, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            image.setPixel(x, y, x < 8 ? kCyan : qRgb(x * 4, y * 4, (x ^ y) * 4));
    image.setPixel(63, 63, qRgba(10, 20, 30, 0));
    const QImage result = art::quantised(image, 16);
    QSet<QRgb> colours;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            if (x != 63 || y != 63)
                colours.insert(result.pixel(x, y));
    QVERIFY(colours.size() > 8);
    QVERIFY(colours.size() <= 16);
    QVERIFY(!colours.contains(kCyan));
    QCOMPARE(result.pixel(63, 63), 0U);

    QImage lone(40, 40, QImage::Format_ARGB32);
    lone.fill(Qt::transparent);
    lone.setPixel(1, 0, kCyan);
    QCOMPARE(art::quantised(lone, 16).pixel(1, 0), qRgb(4, 255, 255));
}

void ArtTest::iconFileListsItsPictures()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("app.ico"));
    QVERIFY(art::writeIcon({art::paintAppIcon(16), art::paintAppIcon(256)}, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(bytes.left(6).toHex(), QByteArray("000001000200"));
    QCOMPARE(bytes.mid(6, 8).toHex(), QByteArray("1010000001002000"));
    QCOMPARE(bytes.mid(18, 4).toHex(), QByteArray("26000000"));
    QCOMPARE(bytes.mid(22, 8).toHex(), QByteArray("0000000001002000"));
    const QImage first = QImage::fromData(bytes.mid(38), "PNG");
    QCOMPARE(first.size(), QSize(16, 16));
    QVERIFY(!art::writeIcon({first}, dir.filePath(QStringLiteral("missing/app.ico"))));
}

void ArtTest::splashesHaveTheAskedSize()
{
    const QImage day = art::paintSplash(480, 300);
    const QImage evening = art::paintEveningSplash(480, 300);
    QCOMPARE(day.size(), QSize(480, 300));
    QCOMPARE(evening.size(), QSize(480, 300));
    QVERIFY(day != evening);
    QCOMPARE(qAlpha(art::paintAppIcon(32).pixel(0, 0)), 0);
}

QTEST_MAIN(ArtTest)
#include "art_test.moc"
