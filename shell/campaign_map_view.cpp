#include "shell/campaign_map_view.h"

#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "ui_MapBrowser.h"
#include "ui_ScenarioBrowser.h"

#include <QAction>
#include <QGraphicsItem>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QWheelEvent>

MyQGraphicsView::MyQGraphicsView(QWidget *parent) : QGraphicsView(parent)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &MyQGraphicsView::showContextMenu);
    // A view would accept a file's drag, find no item for it and refuse: the window never saw it.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
}

void MyQGraphicsView::connectUI(QLabel *label)
{
    hintLabel = label;
}

void MyQGraphicsView::showContextMenu(const QPoint &pos)
{
    QMenu menu;
    QAction properties(tr("Properties..."));
    connect(&properties, &QAction::triggered, this, &MyQGraphicsView::propertiesRequested);
    menu.addAction(&properties);
    menu.exec(viewport()->mapToGlobal(pos));
    // The menu has taken the release that belongs to the press in front of it. The region that
    // still waits for it would swallow the next click.
    if (QGraphicsItem *pressed = scene() ? scene()->mouseGrabberItem() : nullptr)
        pressed->ungrabMouse();
}

void MyQGraphicsView::enterEvent(QEvent *event)
{
    if (hintLabel)
        hintLabel->setText(textOf(EditorData::editorCmdText, 0));
    event->accept();
}

// The press before it has selected the region, whichever button it was.
void MyQGraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        event->ignore();
        return;
    }
    emit propertiesRequested();
}

void MyQGraphicsView::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

MapBrowser::MapBrowser(QWidget *parent, QLabel *hintLabel)
    : QWidget(parent), ui(std::make_unique<Ui_MapBrowser>())
{
    ui->setupUi(this);
    // Layouts must not stretch the page beyond the picture when the window is enlarged.
    setMaximumSize(campaignPictureSize);
    auto *scene = new MyGraphicsScene(ui->graphicsView);
    scene->setSceneRect(QRectF(QPointF(0, 0), campaignPictureSize));
    ui->graphicsView->setScene(scene);
    ui->graphicsView->setAlignment(Qt::AlignAbsolute);
    ui->graphicsView->connectUI(hintLabel);
}

MapBrowser::~MapBrowser() = default;

MyQGraphicsView *MapBrowser::getGraphicsView()
{
    return ui->graphicsView;
}

ScenarioBrowser::ScenarioBrowser(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_ScenarioBrowser>())
{
    ui->setupUi(this);
}

ScenarioBrowser::~ScenarioBrowser() = default;
