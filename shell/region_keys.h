// Chooses regions of the campaign map by the keyboard: an arrow key goes to the nearest region in
// its direction, Home and End to the first and the last, Page Up and Page Down through all in
// their order. The chosen region comes into view.
//
// An event filter on the map's view. Where the map has no regions, keys do what they do in any
// view.
#pragma once

#include <QObject>

class QGraphicsView;

class RegionKeys : public QObject
{
    Q_OBJECT

public:
    // The view becomes the owner.
    explicit RegionKeys(QGraphicsView *newView);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QGraphicsView *view;
};
