// The groups of rows; each stands in a file of its own. The game is loaded before they run.
#pragma once

#include "benchmarks/inputs.h"

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
