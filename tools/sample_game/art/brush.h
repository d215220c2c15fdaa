// The strokes that the maps' little drawings are made of. All coordinates are in the painter's.
#pragma once

#include "tools/sample_game/art/colour.h"

#include <QPainter>
#include <QPolygonF>

#include <initializer_list>

namespace art {

inline QPolygonF polygon(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points));
}

inline void fillShape(QPainter &painter, const QPolygonF &shape, const QColor &colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(shape);
}

inline void inkShape(QPainter &painter, const QPolygonF &shape, const QColor &fill,
                     const QColor &ink, double width = 0.9)
{
    painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    painter.drawPolygon(shape);
}

inline void strokeLine(QPainter &painter, const QPolygonF &line, const QColor &colour, double width)
{
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

inline void fillEllipse(QPainter &painter, QPointF centre, double rx, double ry,
                        const QColor &colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(centre, rx, ry);
}

// A place given in shares of a picture's width and height.
inline QPointF shareOf(double width, double height, QPointF share)
{
    return {width * share.x(), height * share.y()};
}

inline QPolygonF boxOf(double left, double bottom, double width, double height)
{
    return polygon({{left, bottom},
                    {left, bottom - height},
                    {left + width, bottom - height},
                    {left + width, bottom}});
}

} // namespace art
