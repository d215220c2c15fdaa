// The small picture of a campaign map, or of a background alone, in the campaign dialogs.
#pragma once

#include <QString>

class QLabel;

// Shows the background of this name, scaled to the label. With regions, those of the campaign map
// are drawn on it, selected and in colour 2; one that can't be had ends the process silently. A
// background that no archive has leaves the label as it was.
void putBackgroundToLabel(QLabel *label, QString name, bool withRegions, unsigned int campaignId);
