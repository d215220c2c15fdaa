#include "tools/sample_game/pictures.h"

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/noise.h"
#include "tools/sample_game/picture_records.h"

namespace sample {

namespace {

constexpr quint32 kMovieSeed = 700;

struct Background
{
    const char *name;
    art::Theme theme;
    quint32 seed;
};

constexpr Background kBackgrounds[] = {
    {"salt_isles.pcx", art::Theme::Isles, 81}, {"highlands.pcx", art::Theme::Highlands, 82},
    {"winter.pcx", art::Theme::Frost, 83},     {"wells.pcx", art::Theme::Desert, 84},
    {"fen.pcx", art::Theme::Marsh, 85},        {"ember.pcx", art::Theme::Ember, 86},
};

} // namespace

QVector<NamedFile> moviePictures(int count)
{
    QVector<NamedFile> pictures;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("movie%1.pcx").arg(i, 2, 10, QLatin1Char('0'));
        pictures.push_back({name.toLatin1(), record24Bit(art::paintMoviePicture(i, kMovieSeed))});
    }
    return pictures;
}

QVector<NamedFile> backgroundPictures()
{
    QVector<NamedFile> pictures;
    for (const Background &background : kBackgrounds) {
        const QImage picture = art::paintBackground(background.theme, background.seed);
        pictures.push_back({background.name, background.theme == art::Theme::Frost
                                                 ? record32Bit(picture)
                                                 : record24Bit(picture)});
    }
    return pictures;
}

NamedFile dashPattern()
{
    return {"cmpdash.pcx", recordPalette(art::paintDashPattern())};
}

NamedFile outdatedDashPattern()
{
    QImage pattern = art::paintDashPattern();
    pattern.invertPixels();
    return {"CMPDASH.PCX", recordPalette(pattern)};
}

QVector<NamedFile> otherFiles()
{
    Noise noise(6);
    return {{"yakrider.def", noise.bytes(3000)},
            {"yakrider.msk", noise.bytes(48)},
            {"ferryhrn.wav", noise.bytes(2000)}};
}

} // namespace sample
