// Turns a file dropped on the main window, or on its map's scene, into a signal.
//
// An event filter. What it is installed on it knows by class name alone, so that it depends on
// neither class.
#pragma once

#include <QObject>
#include <QString>

class QDragEnterEvent;
class QDropEvent;
class QGraphicsSceneDragDropEvent;
class QMimeData;

class DragAndDropHandler : public QObject
{
    Q_OBJECT

public:
    explicit DragAndDropHandler(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

    // Accepts what brings URLs; of what kind the file is, its reader will tell.
    void handleDragEnter(QDragEnterEvent *event);
    void handleDragEnter(QGraphicsSceneDragDropEvent *event);
    // Tells the first URL's path, an empty one too, which its reader turns away as it does any
    // wrong file. A drop without a URL is accepted and passed over.
    void handleDrop(QDropEvent *event);
    void handleDrop(QGraphicsSceneDragDropEvent *event);

    // The local path of the first URL; empty if there is no URL or it is none of this machine.
    QString getUrlFromMimeData(const QMimeData *data);

signals:
    void fileDropped(const QString &path);

private:
    void tellDroppedFile(const QMimeData *data);
};
