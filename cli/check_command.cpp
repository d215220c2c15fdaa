#include "cli/check_command.h"

#include "cli/standard_output.h"
#include "document/check/campaign_check.h"
#include "document/check/map_check.h"
#include "document/one_line.h"
#include "gamedata/game_loading.h"
#include "gamedata/readable_file.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

namespace {

bool isMap(const QString &path)
{
    return path.endsWith(QLatin1String(".e3m"), Qt::CaseInsensitive);
}

// Tells a file that can't be read.
ExitStatus check(const QString &path, Findings &findings)
{
    QFile file(path);
    if (const std::optional<QString> failure = openToRead(file))
        return cannotRead(path, *failure);
    if (isMap(path)) {
        if (checkMapFile(file, findings))
            return exitDone;
        return cannotRead(path, file.error() == QFile::NoError ? qt_error_string(EFBIG)
                                                               : file.errorString());
    }
    const std::optional<QString> failure = checkCampaign(file, findings);
    return failure ? failed(path + QStringLiteral(": ") + *failure) : exitDone;
}

} // namespace

ExitStatus runCheck(const QStringList &arguments)
{
    if (!std::all_of(arguments.begin(), arguments.end(), isMap))
        loadGame();
    StandardOutput output;
    bool anyUnread = false;
    bool anyFound = false;
    for (const QString &path : arguments) {
        Findings findings;
        anyUnread = check(path, findings) != exitDone || anyUnread;
        anyFound = anyFound || !findings.empty();
        for (const Finding &finding : findings) {
            const QString line = QStringLiteral(": ") + finding.where + QStringLiteral(": ") +
                                 finding.what + QLatin1Char('\n');
            output.write(path.toLocal8Bit() + line.toLocal8Bit());
        }
    }
    if (const ExitStatus status = output.finish())
        return status;
    if (anyUnread)
        return exitFailed;
    return anyFound ? exitFindings : exitDone;
}
