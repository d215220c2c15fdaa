// The texts of a campaign that are there to be translated: its name and description, and of every
// scenario with a map the right-click text, the prologues and the epilogues. What carries texts out
// and in again goes over this one list.
#pragma once

#include <QString>

#include <vector>

class CampaignData;

enum class TextKind
{
    CampaignName,
    CampaignDescription,
    RegionText,
    Prologue,
    Epilogue
};

// Where a text stands. What it says doesn't matter to it, nor do the other texts.
struct TextPlace
{
    TextKind kind = TextKind::CampaignName;
    unsigned int scenario = 0; // its index; 0 for the campaign's own texts
    unsigned int story = 0;    // of prologues and epilogues, from 0 to 2
};

// All of them, in the order of the campaign. Stories that are absent are left out, empty texts
// aren't.
std::vector<TextPlace> textPlaces(const CampaignData &campaign);

// The place must be one of textPlaces.
QString textAt(const CampaignData &campaign, const TextPlace &place);
// A story gets a new record, so that nobody else who holds the old one sees a change.
void setTextAt(CampaignData &campaign, const TextPlace &place, const QString &text);

// The name of a place in files: "campaign.name", "scenario.3.region.text", "scenario.3.prologue.1".
// Scenarios and stories are counted from 1.
QString idOf(const TextPlace &place);

// What a translator is told of a place, in one line: the scenario by its number, its map's title
// and its region, the kind of the text, and how long it may become.
QString contextOf(const CampaignData &campaign, const TextPlace &place);

// How many QChars the editor takes for a text of this kind; 0 if it knows no limit.
int longestText(TextKind kind);
