// The page of the main window that shows the campaign map: a view on a scene that holds the
// background and, above it, one item for each region.
#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QWidget>

#include <memory>

class QLabel;
class Ui_MapBrowser;
class Ui_ScenarioBrowser;

// Under this key a graphics item says which of the two kinds it is.
constexpr int mapItemKindKey = 256;
constexpr int backgroundItemKind = 0;
constexpr int regionItemKind = 1;

class MyGraphicsScene : public QGraphicsScene
{
    Q_OBJECT

public:
    using QGraphicsScene::QGraphicsScene;
};

// Neither takes drops, which are the window's, nor scrolls by the wheel.
class MyQGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit MyQGraphicsView(QWidget *parent);

    // Names the label that tells the hint of the map; it must outlive the view.
    void connectUI(QLabel *label);

public slots:
    void showContextMenu(const QPoint &pos);

signals:
    // By a double click or the context menu: the author wants the scenario of the selected region,
    // or the first where the campaign has no map.
    void propertiesRequested();

protected:
    void enterEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QLabel *hintLabel = nullptr; // not owned
};

class MapBrowser : public QWidget
{
    Q_OBJECT

public:
    MapBrowser(QWidget *parent, QLabel *hintLabel);
    ~MapBrowser() override;

    MyQGraphicsView *getGraphicsView();

private:
    const std::unique_ptr<Ui_MapBrowser> ui;
};

// An empty page.
class ScenarioBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioBrowser(QWidget *parent);
    ~ScenarioBrowser() override;

private:
    const std::unique_ptr<Ui_ScenarioBrowser> ui;
};
