// What has to hold whatever the monkey does. Each answers what is wrong, or an empty text.
#pragma once

#include <QString>

class CampaignData;
class MainWindow;
class ScenarioInfo;

// The records fit each other and the game's tables.
QString faultOfCampaign(const CampaignData &campaign);

// Title, map and cursor show the document, when no dialog is open.
QString faultOfWindow(MainWindow &window);

// The list is in step with the scenarios.
QString faultOfScenarioDialog(ScenarioInfo &dialog);
