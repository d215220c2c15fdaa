// What stands on the disk while an author works, and what a day without any accident leaves there
// behind each of its steps.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

class Workplace;

// Contents are told by their hashes.
struct DiskState
{
    QMap<QString, QByteArray> files; // in the folder for campaigns, by their names
    QByteArray copy;                 // kept of the document with changes; empty if there is none

    bool operator==(const DiskState &other) const
    {
        return files == other.files && copy == other.copy;
    }
};

// A Failure if there is more than one copy that can be offered, or a hidden file of another kind
// than a save that was killed leaves.
DiskState stateOf(const Workplace &place);

// Behind one step.
struct DayEntry
{
    QString step;
    int milliseconds = 0; // that the step took
    QString window;       // in front; empty if the editor has ended
    QString document;     // the name of its file, in the main window's title
    DiskState disk;

    bool isUntitled() const { return document == QLatin1String("Untitled.e3c"); }
    // Whether nothing but the document is needed to go on from here.
    bool canGoOn() const;
};

using DayRecord = QVector<DayEntry>;

// Looks at the editor and the disk behind a step; `last` is what stood behind the one before.
DayEntry entryBehind(const char *step, int milliseconds, const DayEntry &last, Workplace &place);

// A Failure if it can't be written or read.
void writeRecord(const DayRecord &record, const QString &path);
DayRecord readRecord(const QString &path);
