#include "shell/drag_and_drop_handler.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QGraphicsSceneDragDropEvent>
#include <QMimeData>
#include <QUrl>

namespace {

// A name on the disk is bytes, which needn't be UTF-8 as Qt takes those of an address to be.
QString localPath(const QUrl &url)
{
    if (!url.isLocalFile() || !url.host().isEmpty())
        return url.toLocalFile();
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    return QFile::decodeName(QByteArray::fromPercentEncoding(path));
}

} // namespace

DragAndDropHandler::DragAndDropHandler(QObject *parent) : QObject(parent) {}

bool DragAndDropHandler::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->inherits("MainWindow") && !watched->inherits("MyGraphicsScene"))
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
        handleDragEnter(static_cast<QDragEnterEvent *>(event));
        return true;
    case QEvent::Drop:
        handleDrop(static_cast<QDropEvent *>(event));
        return true;
    case QEvent::GraphicsSceneDragEnter:
        handleDragEnter(static_cast<QGraphicsSceneDragDropEvent *>(event));
        return true;
    case QEvent::GraphicsSceneDrop:
        handleDrop(static_cast<QGraphicsSceneDragDropEvent *>(event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void DragAndDropHandler::handleDragEnter(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void DragAndDropHandler::handleDragEnter(QGraphicsSceneDragDropEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void DragAndDropHandler::handleDrop(QDropEvent *event)
{
    event->acceptProposedAction();
    tellDroppedFile(event->mimeData());
}

void DragAndDropHandler::handleDrop(QGraphicsSceneDragDropEvent *event)
{
    event->acceptProposedAction();
    tellDroppedFile(event->mimeData());
}

QString DragAndDropHandler::getUrlFromMimeData(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.isEmpty() ? QString() : localPath(urls.first());
}

void DragAndDropHandler::tellDroppedFile(const QMimeData *data)
{
    if (!data->urls().isEmpty())
        emit fileDropped(getUrlFromMimeData(data));
}
