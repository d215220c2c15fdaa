// One command of cmped-cli: a row of the table in commands.cpp, and what all of them share.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// What the process answers to the shell.
enum ExitStatus
{
    exitDone = 0,
    exitWrongUsage = 1,
    exitFailed = 2,  // the input can't be read or the output can't be written
    exitFindings = 3 // "check" has found something
};

// The options of one call and their values, by their names without the dashes. An option that
// takes no value has an empty one.
using CommandOptions = QHash<QString, QString>;

// An option that one command has for itself.
struct CommandOption
{
    const char *name = nullptr;  // without the dashes
    const char *value = nullptr; // the name of its value; null if it takes none
    const char *help = nullptr;  // one line
};

constexpr int mostCommandOptions = 3;

// What a command does with as many arguments as its row names, and with its options if it has any.
class CommandRun
{
public:
    using Plain = ExitStatus (*)(const QStringList &arguments);
    using WithOptions = ExitStatus (*)(const QStringList &arguments, const CommandOptions &options);

    constexpr CommandRun(Plain run) : m_plain(run) {}
    constexpr CommandRun(WithOptions run) : m_withOptions(run) {}

    ExitStatus operator()(const QStringList &arguments, const CommandOptions &options) const
    {
        return m_plain ? m_plain(arguments) : m_withOptions(arguments, options);
    }

private:
    Plain m_plain = nullptr;
    WithOptions m_withOptions = nullptr;
};

struct Command
{
    const char *name;
    const char *arguments; // their names, parted by blanks; behind "..." there may be more of them
    const char *help;      // one line, short enough for the list of commands
    CommandRun run;
    const char *more; // what its own help tells, in whole lines
    CommandOption options[mostCommandOptions] = {};
};

// A command's words: its arguments and its options, wherever these stand. Behind "--" there are
// only arguments. Nothing if they don't fit; then `fault` says why.
struct CommandWords
{
    QStringList arguments;
    CommandOptions options;
    bool help = false;
    QString fault;
};
CommandWords wordsOf(const Command &command, const QStringList &words);

// How the command is called: its name, its options and its arguments.
QString synopsisOf(const Command &command);

// What "cmped-cli COMMAND --help" prints.
QString helpOf(const Command &command);

// Says on standard error what is wrong with the command line.
ExitStatus wrongUsage(const QString &text);

// Says on standard error why the command failed, as the editor would in a message box.
ExitStatus failed(const QString &text);

// An input file that can't be read.
ExitStatus cannotRead(const QString &path, const QString &reason);

// An output file or standard output that can't be written.
ExitStatus cannotWrite(const QString &path, const QString &reason);
