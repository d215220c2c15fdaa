// paint_preview DIR: writes every picture of the sample game as PNG, to be looked at.
// paint_preview --resources DIR: writes the program's own splash pictures and its icon.
//
// The splash pictures in resources/ are these in 255 colours, which are unpacked at each start in a
// third of the time:
//     convert IN.png -dither FloydSteinberg -colors 255 -strip -define png:color-type=3
//         -define png:bit-depth=8 -define png:compression-filter=0
//         -define png:compression-level=9 OUT.png
#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/icon_file.h"
#include "tools/sample_game/art/splash.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QTextStream>

#include <array>

namespace {

constexpr quint32 kSeed = 20;
constexpr int kSplashWidth = 480;
constexpr int kSplashHeight = 300;

struct MapPlan
{
    art::Theme theme;
    int regions;
    bool withLooks;
};

constexpr std::array<MapPlan, art::kThemes> kMaps = {{{art::Theme::Isles, 8, true},
                                                      {art::Theme::Highlands, 12, false},
                                                      {art::Theme::Frost, 7, false},
                                                      {art::Theme::Desert, 9, true},
                                                      {art::Theme::Marsh, 6, false},
                                                      {art::Theme::Ember, 10, false}}};

// One region as the editor composes it from the masks; states go round so that all are seen.
QImage composed(const art::PaintedRegion &region, const QImage &dashes, int state, int colour)
{
    constexpr QRgb kTints[] = {0xFF0000, 0x5082FF, 0xC18B54, 0x2AAD09,
                               0xF7831E, 0xAF10C4, 0x2FBDB3, 0xDD7F84};
    QImage image = region.fill;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 0)
                continue;
            const QRgb tint = kTints[colour];
            int channels[3] = {qRed(tint), qGreen(tint), qBlue(tint)};
            const QRgb glow = region.glow.pixel(x, y);
            const QRgb border = region.border.pixel(x, y);
            int alpha = state == 2 ? 121 : 175;
            if (state == 2 && qAlpha(glow) != 0)
                alpha = qRed(dashes.pixel(region.position + QPoint(x, y)));
            for (int &c : channels) {
                if (qAlpha(glow) != 0 && state == 1)
                    c = 255 - (255 - c) * qRed(glow) / 256;
                if (qAlpha(glow) != 0 && state == 0)
                    c = c * ((qRed(glow) + 255) / 2) / 256;
                if (qAlpha(border) != 0)
                    c = c * qRed(border) / 256;
            }
            image.setPixel(x, y, qRgba(channels[0], channels[1], channels[2], alpha));
        }
    return image;
}

void save(const QImage &image, const QDir &dir, const QString &name)
{
    constexpr int kSmallest = 0; // the PNG writer's scale: 0 packs hardest
    if (!image.save(dir.filePath(name), "PNG", kSmallest))
        QTextStream(stderr) << "can't write " << dir.filePath(name) << '\n';
}

void writeMap(const QDir &dir, int number)
{
    const MapPlan plan = kMaps[static_cast<size_t>(number)];
    const art::PaintedMap map = art::paintCampaignMap(
        plan.theme, plan.regions, kSeed + static_cast<quint32>(number), plan.withLooks);
    const QImage dashes = art::paintDashPattern();
    save(map.background, dir, QStringLiteral("map%1.png").arg(number));
    QImage view = map.background;
    QPainter painter(&view);
    for (int i = 0; i < map.regions.size(); ++i) {
        const art::PaintedRegion &region = map.regions[i];
        const int state = i == 1 ? 1 : (i % 4 == 2 ? 2 : 0);
        const int colour = (i + 2) % art::kRegionColours;
        painter.drawImage(region.position, plan.withLooks
                                               ? region.looks[state][colour]
                                               : composed(region, dashes, state, colour));
    }
    painter.end();
    save(view, dir, QStringLiteral("map%1_view.png").arg(number));
}

void writeAll(const QDir &dir)
{
    for (int i = 0; i < art::kThemes; ++i)
        writeMap(dir, i);
    for (int i = 0; i < art::kThemes; ++i)
        save(art::paintBackground(static_cast<art::Theme>(i), kSeed), dir,
             QStringLiteral("background%1.png").arg(i));
    for (int i = 0; i < art::kMoviePictures; ++i)
        save(art::paintMoviePicture(i, kSeed), dir, QStringLiteral("movie%1.png").arg(i));
    save(art::paintDashPattern(), dir, QStringLiteral("dashes.png"));
}

void writeResources(const QDir &dir)
{
    constexpr std::array<int, 7> kIconSizes = {16, 24, 32, 48, 64, 128, 256};
    const QImage splash = art::paintSplash(kSplashWidth, kSplashHeight);
    const QImage evening = art::paintEveningSplash(kSplashWidth, kSplashHeight);
    save(splash, dir, QStringLiteral("ravn_cmped_en.png"));
    save(evening, dir, QStringLiteral("ravn_cmped_ru.png"));
    QVector<QImage> icons;
    for (const int size : kIconSizes) {
        icons.append(art::paintAppIcon(size));
        save(icons.last(), dir, QStringLiteral("cmped_%1.png").arg(size));
    }
    if (!art::writeIcon(icons, dir.filePath(QStringLiteral("cmped.ico"))))
        QTextStream(stderr) << "can't write the icon\n";
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv); // for the splash pictures' letters
    const bool resources = argc == 3 && qstrcmp(argv[1], "--resources") == 0;
    if (argc != 2 && !resources) {
        QTextStream(stderr) << "usage: paint_preview [--resources] DIR\n";
        return 1;
    }
    const QDir dir(QString::fromLocal8Bit(argv[argc - 1]));
    if (!dir.mkpath(QStringLiteral("."))) {
        QTextStream(stderr) << "can't make " << dir.path() << '\n';
        return 2;
    }
    if (resources)
        writeResources(dir);
    else
        writeAll(dir);
    return 0;
}
