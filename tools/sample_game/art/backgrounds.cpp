#include "tools/sample_game/art/backgrounds.h"

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/themes.h"

#include <QPainter>

#include <array>

namespace art {

namespace {

constexpr double kPictureFrame = 10;

} // namespace

QImage paintBackground(Theme theme, quint32 seed)
{
    constexpr std::array<void (*)(QImage &, Random &), kThemes> kScenes = {
        paintHarbour, paintCliff, paintPass, paintDunes, paintMarsh, paintVolcano};
    Random random(seed + static_cast<quint32>(theme) * 7919U);
    QImage image(kMapWidth, kMapHeight, QImage::Format_RGB32);
    kScenes[static_cast<size_t>(theme)](image, random);
    finishScene(image, 0.5, 1, random.seed());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, lookOf(theme), QRectF(0, 0, kMapWidth, kMapHeight), kPictureFrame);
    return image;
}

} // namespace art
