// One region of the campaign map: its picture, and being selected.
//
// Owned by the scene and destroyed when the window rebuilds it.
#pragma once

#include <QGraphicsPixmapItem>

class MainWindow;
class ScenarioData;

class CampaignRegionItem : public QGraphicsPixmapItem
{
public:
    quint32 regionColor = 2; // a player's colour
    quint32 state = 0;       // belongs to the window; nothing here looks at it
    quint32 campaignId = 0;  // number of the campaign map
    quint32 regionIndex = 0; // of the region and of its scenario
    bool isSelected = false;
    bool hasScenario = false; // a scenario map is assigned
    QGraphicsScene *scene = nullptr;
    MainWindow *mainWindow = nullptr;

    CampaignRegionItem();

    // Takes the picture anew. A picture that can't be had ends the process with a message.
    void refreshImage();
    // Follows the scenario's colour and map after an edit.
    void updateImage(ScenarioData *scenario);
    // Makes this the selected region, and the only one.
    void select();

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    unsigned imageState() const;
    void deselectOthers();
};
