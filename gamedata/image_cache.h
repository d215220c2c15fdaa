// The pictures of campaign maps, read or composed once and kept until the process ends. Nothing
// is ever evicted or read anew.
#pragma once

#include <QImage>
#include <QMap>
#include <QPair>
#include <QString>

// What a composed picture of the campaign view depends on. Ordered member by member.
struct RegInfo
{
    unsigned map = 0;
    unsigned region = 0;
    unsigned state = 0;
    unsigned color = 0;

    bool operator<(const RegInfo &other) const;
};

class PreloadArchive
{
public:
    QMap<QString, QImage> images32;                      // Format_ARGB32, by name as asked for
    QMap<QString, QImage> images16;                      // Format_RGB16, by name as asked for
    QMap<QPair<unsigned, unsigned>, QImage> smallImages; // previews, by map and region
    QMap<RegInfo, QImage> largeImages;                   // campaign view
    QMap<QString, QImage> backgrounds; // cut to the campaign view, by name as asked for

    void preloadPcxImage32(const QString &name);
    void preloadPcxImage16(const QString &name);

    // A missing file is a null image, which is kept like any other.
    QImage loadPcxImage32(const QString &name);
    QImage loadPcxImage16(const QString &name);

    // The cache's own image, null if there is none yet. Valid until it is saved anew.
    QImage *getLargeGeneratedImage(unsigned map, unsigned region, unsigned state, unsigned color);
    QImage *getSmallGeneratedImage(unsigned map, unsigned region);

    void saveLargeGeneratedImage(unsigned map, unsigned region, unsigned state, unsigned color,
                                 const QImage &image);
    void saveSmallGeneratedImage(unsigned map, unsigned region, const QImage &image);
};

// Set by the start-up before anything asks for a picture, and never freed.
extern PreloadArchive *preloadArchive;
