#include "cli/command.h"

#include "gamedata/report.h"

#include <algorithm>
#include <cstdio>

namespace {

const CommandOption *optionOf(const Command &command, const QString &name)
{
    const auto found = std::find_if(std::begin(command.options), std::end(command.options),
                                    [&](const CommandOption &option) {
                                        return option.name && name == QLatin1String(option.name);
                                    });
    return found == std::end(command.options) ? nullptr : found;
}

QString titleOf(const CommandOption &option)
{
    QString title = QStringLiteral("--") + QLatin1String(option.name);
    if (option.value)
        title += QLatin1Char(' ') + QLatin1String(option.value);
    return title;
}

// Takes the option at `place`, and its value where that is the next word. Answers what is wrong.
QString takeOption(const Command &command, const QStringList &words, int &place,
                   CommandWords &taken)
{
    const QString word = words[place].mid(2);
    const int sign = word.indexOf('=');
    const QString name = word.left(sign);
    if (word == QLatin1String("help")) {
        taken.help = true;
        return {};
    }
    const CommandOption *option = optionOf(command, name);
    if (!option)
        return QStringLiteral("Unknown option '%1'.").arg(name);
    if (!option->value && sign >= 0)
        return QStringLiteral("Unexpected value after '--%1'.").arg(name);
    if (option->value && sign < 0 && place + 1 == words.size())
        return QStringLiteral("Missing value after '--%1'.").arg(name);
    QString value;
    if (option->value)
        value = sign < 0 ? words[++place] : word.mid(sign + 1);
    taken.options.insert(name, value);
    return {};
}

bool isRightCount(const Command &command, int count)
{
    const QString names = QString::fromLatin1(command.arguments);
    const int wanted = names.split(QLatin1Char(' '), Qt::SkipEmptyParts).size();
    return names.endsWith(QLatin1String("...")) ? count >= wanted : count == wanted;
}

} // namespace

CommandWords wordsOf(const Command &command, const QStringList &words)
{
    CommandWords taken;
    bool options = true; // "--" hasn't come yet
    for (int i = 0; i < words.size() && taken.fault.isEmpty(); ++i) {
        if (options && words[i] == QLatin1String("--"))
            options = false;
        else if (options && words[i].startsWith(QLatin1String("--")))
            taken.fault = takeOption(command, words, i, taken);
        else
            taken.arguments << words[i];
    }
    if (taken.fault.isEmpty() && !taken.help && !isRightCount(command, taken.arguments.size()))
        taken.fault = synopsisOf(command);
    return taken;
}

QString synopsisOf(const Command &command)
{
    QString text = QStringLiteral("Usage: cmped-cli [options] ") + QLatin1String(command.name);
    for (const CommandOption &option : command.options) {
        if (option.name)
            text += QStringLiteral(" [%1]").arg(titleOf(option));
    }
    return (text + QLatin1Char(' ') + QLatin1String(command.arguments)).trimmed();
}

QString helpOf(const Command &command)
{
    QString text = synopsisOf(command) + QLatin1Char('\n') + QLatin1String(command.more);
    if (command.options[0].name)
        text += QLatin1Char('\n');
    for (const CommandOption &option : command.options) {
        if (option.name) {
            text += QStringLiteral("  %1  %2\n")
                        .arg(titleOf(option).leftJustified(15), QLatin1String(option.help));
        }
    }
    return text;
}

ExitStatus wrongUsage(const QString &text)
{
    std::fprintf(stderr, "%s\nTry \"cmped-cli --help\".\n", text.toLocal8Bit().constData());
    return exitWrongUsage;
}

ExitStatus failed(const QString &text)
{
    reportError(errorTitle(), text);
    return exitFailed;
}

ExitStatus cannotRead(const QString &path, const QString &reason)
{
    return failed(mainWindowText("Cannot read file %1:\n%2.").arg(path, reason));
}

ExitStatus cannotWrite(const QString &path, const QString &reason)
{
    return failed(mainWindowText("Cannot write file %1:\n%2.").arg(path, reason));
}
