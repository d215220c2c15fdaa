#include "tools/sample_game/art/buildings.h"

#include "tools/sample_game/art/brush.h"

namespace art {

namespace {

struct Builder
{
    QPainter &painter;
    const ThemeLook &look;
    QPointF foot;
    double unit; // a hundredth of the building's height

    QPointF at(double x, double y) const { return foot + QPointF(x * unit, -y * unit); }
    double ink() const { return unit > 0.5 ? 1.4 : 0.9; }

    QPolygonF box(double left, double right, double bottom, double top) const
    {
        return polygon({at(left, bottom), at(left, top), at(right, top), at(right, bottom)});
    }

    void wall(double left, double right, double bottom, double top) const
    {
        const double middle = left + (right - left) * 0.6;
        fillShape(painter, box(left, right, bottom, top), toColor(look.wall));
        fillShape(painter, box(middle, right, bottom, top), toColor(look.wall * 0.72));
        inkShape(painter, box(left, right, bottom, top), Qt::transparent, toColor(look.ink), ink());
    }

    void battlements(double left, double right, double top, int teeth) const
    {
        const double step = (right - left) / (2 * teeth - 1);
        for (int i = 0; i < teeth; ++i)
            inkShape(painter,
                     box(left + 2 * i * step, left + (2 * i + 1) * step, top, top + step * 1.1),
                     toColor(look.wall), toColor(look.ink), ink() * 0.8);
    }

    void spire(double left, double right, double bottom, double top) const
    {
        const double middle = (left + right) / 2;
        inkShape(painter, polygon({at(left, bottom), at(middle, top), at(right, bottom)}),
                 toColor(look.roof), toColor(look.ink), ink());
        fillShape(painter,
                  polygon({at(middle + 1, bottom), at(middle, top), at(right - 1, bottom)}),
                  toColor(look.roof * 0.68));
    }

    void gable(double left, double right, double bottom, double top) const
    {
        const double inset = (right - left) * 0.22;
        inkShape(painter,
                 polygon({at(left - 3, bottom), at(left + inset, top), at(right - inset, top),
                          at(right + 3, bottom)}),
                 toColor(look.roof), toColor(look.ink), ink());
    }

    void door(double x, double width, double height) const
    {
        fillShape(painter, box(x - width / 2, x + width / 2, 0, height), toColor(look.ink));
        fillEllipse(painter, at(x, height), width / 2 * unit, width / 2 * unit, toColor(look.ink));
    }

    void window(double x, double y) const
    {
        fillShape(painter, box(x - 3, x + 3, y - 5, y + 5), toColor(look.ink));
    }

    void flag(double x, double y) const
    {
        strokeLine(painter, polygon({at(x, y), at(x, y + 24)}), toColor(look.ink), ink() * 0.8);
        fillShape(painter, polygon({at(x, y + 24), at(x + 20, y + 18), at(x, y + 11)}),
                  toColor(mix(look.roof, {255, 255, 255}, 0.15)));
    }
};

void castle(const Builder &b)
{
    b.wall(-26, 26, 0, 54);
    b.battlements(-26, 26, 54, 4);
    b.wall(-12, 14, 50, 78);
    b.spire(-16, 18, 78, 112);
    b.flag(1, 110);
    for (const double side : {-1.0, 1.0}) {
        b.wall(side * 38 - 14, side * 38 + 14, 0, 66);
        b.spire(side * 38 - 18, side * 38 + 18, 66, 100);
        b.window(side * 38, 44);
    }
    b.door(0, 16, 20);
}

void house(const Builder &b, double left, double right, double height)
{
    b.wall(left, right, 0, height);
    b.gable(left, right, height, height + (right - left) * 0.62);
    b.door((left + right) / 2, (right - left) * 0.22, height * 0.45);
}

void town(const Builder &b)
{
    house(b, -52, -16, 34);
    b.wall(-10, 12, 0, 74);
    b.spire(-15, 17, 74, 116);
    b.window(1, 56);
    house(b, 18, 54, 30);
    house(b, -28, 4, 22);
}

void keep(const Builder &b)
{
    b.wall(-22, 22, 0, 86);
    b.battlements(-28, 28, 86, 4);
    b.window(-6, 62);
    b.window(-6, 36);
    b.door(6, 14, 16);
    b.flag(0, 96);
}

void temple(const Builder &b)
{
    b.wall(-46, 46, 0, 10);
    for (int i = 0; i < 5; ++i)
        b.wall(-40 + i * 18, -32 + i * 18, 10, 50);
    b.wall(-46, 46, 50, 60);
    inkShape(b.painter, polygon({b.at(-50, 60), b.at(0, 90), b.at(50, 60)}), toColor(b.look.roof),
             toColor(b.look.ink), b.ink());
}

void walledTown(const Builder &b)
{
    b.wall(-16, 4, 20, 70);
    b.spire(-20, 8, 70, 104);
    b.wall(12, 30, 20, 50);
    b.gable(12, 30, 50, 66);
    b.wall(-44, -22, 20, 42);
    b.gable(-44, -22, 42, 60);
    b.wall(-54, 54, 0, 30);
    b.battlements(-54, 54, 30, 8);
    b.door(0, 16, 14);
}

} // namespace

void drawBuilding(QPainter &painter, const ThemeLook &look, int kind, QPointF foot, double size)
{
    constexpr void (*kBuildings[kBuildingKinds])(const Builder &) = {castle, town, keep, temple,
                                                                     walledTown};
    fillEllipse(painter, foot + QPointF(size * 0.1, 0), size * 0.66, size * 0.14,
                toColor(look.ink, 90));
    kBuildings[kind % kBuildingKinds](Builder{painter, look, foot, size / 100});
}

void drawLighthouse(QPainter &painter, const ThemeLook &look, QPointF foot, double size)
{
    const Builder b{painter, look, foot, size / 100};
    fillEllipse(painter, b.at(0, 96), size * 0.42, size * 0.42, QColor(255, 236, 150, 46));
    fillShape(painter, polygon({b.at(0, 96), b.at(118, 124), b.at(118, 84)}),
              QColor(255, 240, 170, 80));
    fillShape(painter, polygon({b.at(0, 96), b.at(-118, 112), b.at(-118, 72)}),
              QColor(255, 240, 170, 60));
    inkShape(painter, polygon({b.at(-17, 0), b.at(-10, 84), b.at(10, 84), b.at(17, 0)}),
             toColor(look.wall), toColor(look.ink), b.ink());
    fillShape(painter, polygon({b.at(-14.5, 26), b.at(-12.6, 50), b.at(12.6, 50), b.at(14.5, 26)}),
              toColor(look.roof));
    fillShape(painter, polygon({b.at(5, 0), b.at(4, 84), b.at(10, 84), b.at(17, 0)}),
              toColor(look.ink, 70));
    inkShape(painter, b.box(-13, 13, 84, 88), toColor(look.wall), toColor(look.ink), b.ink());
    inkShape(painter, b.box(-8, 8, 88, 104), QColor(255, 226, 110), toColor(look.ink), b.ink());
    b.spire(-12, 12, 104, 122);
    b.door(0, 12, 10);
}

} // namespace art
