#include "tools/sample_game/art/splash.h"

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/brush.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/scene_props.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/themes.h"

#include <QPainterPath>
#include <QtMath>

namespace art {

namespace {

constexpr quint32 kSeed = 41;
constexpr double kGrain = 0.25; // little, as grain makes large files

struct Hour
{
    QVector<Tone> sky;
    QPointF disc; // as parts of the width and the height
    Tone light, cloud, far, farFoot, near, nearFoot;
    StoneTones castle;
    Tone pine, pineLit;
    double stars;
    Theme theme;
};

Hour morning()
{
    return {{{70, 120, 182}, {164, 186, 206}, {255, 206, 150}, {255, 232, 180}},
            {0.70, 0.40},
            {255, 228, 160},
            {255, 232, 212},
            {126, 132, 170},
            {236, 196, 172},
            {92, 112, 96},
            {66, 84, 66},
            {{222, 204, 178}, {128, 112, 118}, {168, 60, 48}, {255, 224, 140}},
            {40, 62, 52},
            {128, 134, 84},
            0,
            Theme::Isles};
}

Hour nightfall()
{
    return {{{18, 24, 62}, {62, 54, 110}, {176, 96, 122}, {250, 166, 120}},
            {0.09, 0.20},
            {240, 232, 206},
            {170, 104, 132},
            {74, 66, 112},
            {176, 106, 122},
            {44, 46, 70},
            {30, 32, 50},
            {{124, 104, 126}, {50, 44, 70}, {56, 46, 84}, {255, 214, 120}},
            {24, 30, 44},
            {84, 66, 88},
            140,
            Theme::Highlands};
}

// A computed look of a region over the map, as the editor shows it.
void tintRegion(QImage &map, const PaintedRegion &region, const Tone &tint)
{
    for (int y = 0; y < region.fill.height(); ++y)
        for (int x = 0; x < region.fill.width(); ++x) {
            if (qAlpha(region.fill.pixel(x, y)) == 0)
                continue;
            const QPoint p = region.position + QPoint(x, y);
            const QRgb border = region.border.pixel(x, y);
            const double edge = qAlpha(border) != 0 ? qRed(border) / 255.0 : 1.0;
            map.setPixel(p, pack(mix(toTone(map.pixel(p)), tint, 0.46) * edge));
        }
}

// The map lies before the land like a table's top: narrow behind, wide in front.
void layMap(QImage &image, const Hour &hour)
{
    constexpr Tone kTints[] = {{220, 60, 44},  {70, 120, 230}, {60, 160, 60},
                               {236, 150, 50}, {150, 70, 180}, {50, 170, 160}};
    PaintedMap map = paintCampaignMap(hour.theme, 7, kSeed, false);
    for (int i = 0; i < map.regions.size(); ++i)
        tintRegion(map.background, map.regions[i], kTints[i % 6]);
    const QImage turned = map.background.transformed(QTransform().rotate(90));

    const double w = image.width();
    const double h = image.height();
    const QPolygonF target = polygon(
        {{w * 0.20, h * 0.60}, {w * 0.80, h * 0.60}, {w * 0.96, h * 0.975}, {w * 0.04, h * 0.975}});
    const QPolygonF source(QRectF(0, 0, turned.width(), turned.height()));
    QTransform lie;
    QTransform::quadToQuad(polygon({source[0], source[1], source[2], source[3]}), target, lie);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    fillShape(painter, target.translated(0, h * 0.02), QColor(16, 12, 14, 150));
    painter.setTransform(lie);
    painter.drawImage(0, 0, turned);
    painter.resetTransform();
    strokeLine(painter, polygon({target[0], target[1], target[2], target[3], target[0]}),
               QColor(240, 214, 156), 2.4);
}

QImage paintScene(const Hour &hour, int width, int height)
{
    Random random(kSeed);
    QImage image(width, height, QImage::Format_RGB32);
    const double w = width;
    const double h = height;
    paintSky(image, hour.sky, h * 0.55, random.seed());
    addStars(image, static_cast<int>(hour.stars), h * 0.4, random);
    addClouds(image, h * 0.02, h * 0.42, hour.cloud, 0.45, random.seed());
    paintDisc(image, {w * hour.disc.x(), h * hour.disc.y()}, h * 0.05, hour.light, 1.0);
    paintRidge(image, {h * 0.44, h * 0.13, w * 0.3, hour.far, hour.farFoot, 0.4, 26},
               random.seed());
    addMist(image, h * 0.36, h * 0.62, hour.farFoot, 0.5, random.seed());
    const QVector<double> line =
        paintRidge(image, {h * 0.54, h * 0.05, w * 0.45, hour.near, hour.nearFoot, 0.3, 0, false},
                   random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawCastle(painter, hour.castle, {w * 0.30, h * 0.565}, h * 0.42);
    for (int i = 0; i < 46; ++i) {
        const int x = random.below(width);
        drawPine(painter, {static_cast<double>(x), line[x] + h * 0.035},
                 h * random.range(0.06, 0.14), hour.pine, hour.pineLit, random);
    }
    painter.end();
    layMap(image, hour);
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBanner(painter, {w * 0.60, h * 0.80}, h * 0.36, {196, 40, 44}, {250, 222, 150}, 0.8);
    painter.end();
    finishScene(image, 0.4, kGrain, random.seed());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, lookOf(hour.theme), QRectF(0, 0, w, h), h * 0.03);
    return image;
}

// A line of golden letters with its middle there, their edges dark so that they stand out from any
// sky. The height is that of the font, in pixels.
void letter(QPainter &painter, const QString &text, QPointF middle, double height)
{
    QFont font(QStringLiteral("P052"));
    font.setStyleHint(QFont::Serif);
    font.setBold(true);
    font.setPixelSize(qRound(height));
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF extent = path.boundingRect();
    path.translate(middle - extent.center());
    QLinearGradient gold(0, middle.y() - extent.height() / 2, 0, middle.y() + extent.height() / 2);
    gold.setColorAt(0, QColor(255, 246, 206));
    gold.setColorAt(1, QColor(238, 186, 84));
    const QColor edge(44, 22, 20);
    painter.strokePath(
        path.translated(0, height * 0.06),
        QPen(QColor(20, 10, 16, 120), height * 0.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.strokePath(path, QPen(edge, height * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, gold);
}

QImage paintTitled(const Hour &hour, const QStringList &title, int width, int height)
{
    QImage image = paintScene(hour, width, height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = height * 0.105;
    for (int i = 0; i < title.size(); ++i)
        letter(painter, title[i], {width * 0.70, height * 0.13 + size * 1.25 * i}, size);
    return image;
}

} // namespace

QImage paintSplash(int width, int height)
{
    return paintTitled(morning(), {QStringLiteral("Campaign"), QStringLiteral("Editor")}, width,
                       height);
}

QImage paintEveningSplash(int width, int height)
{
    return paintTitled(nightfall(), {QStringLiteral("Редактор"), QStringLiteral("кампаний")}, width,
                       height);
}

QImage paintAppIcon(int size)
{
    // At few pixels the lines between the regions would swallow the regions.
    const bool isSmall = size < 32;
    // Painted four times as large and scaled down: small sizes stay crisp that way.
    const int large = size * 4;
    QImage image(large, large, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(large / 100.0, large / 100.0);

    painter.setPen(QPen(QColor(70, 42, 20), 5));
    painter.setBrush(QColor(238, 214, 160));
    painter.drawRoundedRect(QRectF(4, 14, 92, 82), 10, 10);
    painter.setPen(
        QPen(QColor(58, 34, 18), isSmall ? 1 : 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(70, 130, 216));
    painter.drawPolygon(polygon({{12, 24}, {40, 20}, {48, 44}, {34, 60}, {12, 56}}));
    painter.setBrush(QColor(84, 168, 70));
    painter.drawPolygon(polygon({{40, 20}, {88, 22}, {88, 54}, {64, 58}, {48, 44}}));
    painter.setBrush(QColor(240, 168, 56));
    painter.drawPolygon(polygon({{34, 60}, {48, 44}, {64, 58}, {88, 54}, {88, 88}, {50, 88}}));
    painter.setBrush(QColor(152, 84, 182));
    painter.drawPolygon(polygon({{12, 56}, {34, 60}, {50, 88}, {12, 88}}));

    painter.setPen(QPen(QColor(48, 28, 16), isSmall ? 8 : 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(52, 72), QPointF(52, 8));
    painter.setPen(
        QPen(QColor(96, 16, 20), isSmall ? 1 : 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(224, 40, 44));
    painter.drawPolygon(polygon({{54, 6}, {94, 14}, {82, 25}, {94, 38}, {54, 38}}));
    painter.end();
    return image.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace art
