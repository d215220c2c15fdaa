// What the main window keeps to itself, for checks between the monkey's steps.
#pragma once

#include "document/campaign_data.h"
#include "shell/main_window.h"

CampaignData &documentOf(MainWindow &window);
QString &fileOf(MainWindow &window);
