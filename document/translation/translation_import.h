// Taking translations over into a campaign.
#pragma once

#include "document/translation/translation_unit.h"

class CampaignData;

struct TranslationNote
{
    QString id;
    QString what; // in English
};

struct TranslationReport
{
    // Why nothing was taken: texts that the campaign can't hold, or a file of another campaign.
    // The campaign is as it was then.
    std::vector<TranslationNote> faults;
    // What wasn't taken, and what has changed: in the order of the campaign, then of the file.
    std::vector<TranslationNote> notes;
    int taken = 0;
    int texts = 0; // of the campaign, empty ones left out
};

// Takes each translation whose source is still the campaign's text, apart from its line ends. With
// `force` those too whose source has changed. Lines of what is taken end as they do in the
// campaign. A text stays as it is where the file has no translation for it, or an unfinished one.
//
// A translation that is longer than the editor takes, or that the campaign's encoding can't hold,
// is a fault.
TranslationReport takeTranslations(CampaignData &campaign,
                                   const std::vector<TranslationUnit> &units, bool force);
