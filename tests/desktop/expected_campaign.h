// Documents that tell what a saved campaign has to hold, as the command line tool dumps it.
//
// They are the dump itself, with short ways of writing what is long:
//   {"of": N, "set": [...]}      a text of N bits, "1" at these places alone
//   {"of": N, "clear": [...]}    the same the other way round
//   {"sizeOf": "X"}              the size of the game's map X
//   {"bytesOf": "X"}             {size, sha256} of the game's map X
//   {"atLeast": {...}}           an object that may hold more than this
//   {"like": "D", "but": {...}}  a whole document: D of the same folder, with other values at the
//                                places named, as in "campaign/scenarios/2/regionText"; a place
//                                behind the last of a list adds to it
#pragma once

#include <QJsonObject>
#include <QString>

// `maps` is the folder with the game's maps. A Failure if a file can't be read.
QJsonValue expectedCampaign(const QString &path, const QString &maps);

// Place, expected and seen value of the first difference; empty if there is none.
QString firstDifference(const QJsonValue &expected, const QJsonValue &seen,
                        const QString &place = QString());
