// Where a map of a campaign stands as a file of its own. A campaign may come from a stranger, in a
// folder that he has packed with it: neither the names of its maps nor links in the folder lead
// to other files than maps in that folder.
#pragma once

#include <QByteArray>
#include <QString>

struct MapPlace
{
    QString path;    // behind the links, if there are any
    int refusal = 0; // the system's error number for what isn't allowed there
};

// The file of a bare name (document/map_file_name) in a folder. A link out of the folder is
// refused.
MapPlace placeOfMap(const QString &folder, const QString &name);

// The same to write these bytes there. Hidden names are refused, and so is a file that is there and
// neither has the ending of maps nor holds one, or these bytes.
MapPlace placeToWriteMap(const QString &folder, const QString &name, const QByteArray &bytes);
