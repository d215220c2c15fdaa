// The groups of rows; each stands in a file of its own. The game is loaded before they run.
#pragma once

#include "benchmarks/inputs.h"

// The option by which cmped-bench tells, in a process of its own, by how many bytes its memory
// rises while it opens a campaign and the scenario dialog: cmped-bench OPTION GAMEFOLDER CAMPAIGN.
constexpr char scenarioDialogPeak[] = "--scenario-dialog-peak";
// The game is loaded, and there is an application. Negative if it can't.
qint64 peakOfScenarioDialog(const QString &campaign);

void addOpeningRows(const Inputs &inputs);
void addSavingRows(const Inputs &inputs);
void addMemoryRows(const Inputs &inputs);
void addComposingRows();
void addRedrawRows();
void addStartRows(const Inputs &inputs);
void addScenarioDialogRows();
void addRecoveryRows(const Inputs &inputs);
void addStallRows(const Inputs &inputs);

void addOpeningGrowth(const Inputs &inputs);
void addComposingGrowth();
void addStartGrowth(const Inputs &inputs);
void addTextGrowth();
void addGraphGrowth();
