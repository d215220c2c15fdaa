// The stills of the movies, in the order of their numbers.
#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/scene_tools.h"
#include "tools/sample_game/art/scenes.h"

#include <array>

namespace art {

QImage paintMoviePicture(int number, quint32 seed)
{
    constexpr std::array<void (*)(QImage &, Random &), kMoviePictures> kScenes = {
        paintSunrise,    paintShipAtSea,  paintCastleGate, paintCampfire,
        paintForestPath, paintDragonMoon, paintThroneHall, paintBattleBanners,
        paintSnowstorm,  paintRuins,      paintMapTable,   paintCrownOnCushion};
    Random random(seed + static_cast<quint32>(number) * 104729U);
    QImage image(kMovieWidth, kMovieHeight, QImage::Format_RGB32);
    kScenes[static_cast<size_t>(qAbs(number % kMoviePictures))](image, random);
    finishScene(image, 0.62, 1, random.seed());
    return image;
}

} // namespace art
