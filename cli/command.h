// One command of cmped-cli: a row of the table in commands.cpp, and what all of them share.
#pragma once

#include <QString>
#include <QStringList>

// What the process answers to the shell.
enum ExitStatus
{
    exitDone = 0,
    exitWrongUsage = 1,
    exitFailed = 2 // the input can't be read or the output can't be written
};

struct Command
{
    const char *name;
    const char *arguments; // their names, parted by blanks, in the order of the command line
    const char *help;      // one line
    ExitStatus (*run)(const QStringList &arguments); // as many as `arguments` has names
};

// The names of a command's arguments.
QStringList argumentNames(const Command &command);

// Says on standard error what is wrong with the command line.
ExitStatus wrongUsage(const QString &text);

// Says on standard error why the command failed, as the editor would in a message box.
ExitStatus failed(const QString &text);

// An output file or standard output that can't be written.
ExitStatus cannotWrite(const QString &path, const QString &reason);
