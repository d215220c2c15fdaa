#include "cli/command.h"

#include "gamedata/report.h"

#include <cstdio>

QStringList argumentNames(const Command &command)
{
    return QString::fromLatin1(command.arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
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

ExitStatus cannotWrite(const QString &path, const QString &reason)
{
    return failed(mainWindowText("Cannot write file %1:\n%2.").arg(path, reason));
}
