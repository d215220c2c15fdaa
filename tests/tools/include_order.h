// The order of the folders, read from the sources: who includes whom, and what breaks the rules.
//
// A room is a folder, or a few files of one. It may include itself and the rooms below it. Rooms
// without widgets include no header of QtWidgets and no form. No file includes itself through
// others. A source includes its own header first, so that no header leans on what stands before it.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

// By path below the project's folder, with "/" between the parts.
using SourceTree = QMap<QString, QByteArray>;

struct Room
{
    QString name;
    QStringList places; // how the paths of its files begin; the longest place that fits decides
    QStringList below;  // names of the rooms it stands on; what those stand on is below it as well
    bool widgets;
};

// From the ground up: a room stands on rooms before it.
const QVector<Room> &roomsOfTheHouse();

// All C++ files of the project, without what was built.
SourceTree readSources(const QString &projectFolder);

// As an #include may name them: "QLabel", "QtWidgets/QLabel", "qlabel.h". Empty if Qt's headers
// aren't where Qt says.
QSet<QString> widgetHeaders();

// A line for each fault, in the order of the files.
QStringList faultsOf(const SourceTree &sources, const QVector<Room> &rooms,
                     const QSet<QString> &widgets);
