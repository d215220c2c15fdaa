// The maps of a campaign as files of their own in a folder: written out, and read in again after
// somebody has changed them.
//
// The files are named as the campaign names its maps, without any folder (document/map_file_name),
// so they all lie in the folder given. A map without a name is passed over.
#pragma once

#include <QString>

#include <functional>

class CampaignData;

// Tells what went wrong with one map, in the words of the main window.
using TellMapFailure = std::function<void(const QString &text)>;

// Files under whose names nothing can be opened for writing.
enum class Unopened
{
    Told,
    PassedOver
};

// Writes the maps' bytes as they were imported, over maps that are there. Never over
// `campaignFile`, the file of the campaign itself (empty if it has none), nor over what is no map,
// nor outside the folder (document/map_place): a stranger's campaign may name a map so. One that
// can't be written is told, and the next one follows.
void exportMapsTo(const QString &folder, const CampaignData &campaign, const QString &campaignFile,
                  const TellMapFailure &tell, Unopened unopened = Unopened::Told);

struct MapRefresh
{
    bool complete = false;
    QString missing; // the name of the file that isn't there, of which nothing is told
};

// Imports each scenario's map from its file, in order. A map that is refused is told and stays as
// it was. A file that isn't there, or one that can't be read or is a link out of the folder, which
// is told, ends it; the maps before it are refreshed then and those behind it aren't.
MapRefresh refreshMapsFrom(const QString &folder, CampaignData &campaign,
                           const TellMapFailure &tell);
