#include "launcher/game_folder.h"

#include "gamedata/game_search.h"
#include "launcher/complaint.h"
#include "launcher/game_dialog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString ownFolder()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

QString askedGame(const LauncherOptions &options)
{
    QString folder = askForGameFirst(options.editorArguments, chosenGame()).value_or(QString());
    if (!folder.isEmpty() && !rememberChosenGame(folder))
        complain("the game's folder can't be remembered in the settings");
    return folder;
}

// The folder named on the command line; empty if it isn't the game's.
QString namedGame(const LauncherOptions &options)
{
    QString folder = QDir(QFile::decodeName(options.game.c_str())).absolutePath();
    const QStringList missing = missingGameFiles(folder);
    if (missing.isEmpty())
        return folder;
    complain(options.game + " is not the game's folder: it lacks " +
             missing.join(QStringLiteral(", ")).toStdString());
    return {};
}

} // namespace

bool settleGameFolder(const LauncherOptions &options)
{
    QString folder = options.game.empty() ? findGame(ownFolder()) : namedGame(options);
    if (folder.isEmpty() && options.game.empty())
        folder = askedGame(options);
    if (!folder.isEmpty())
        qputenv("CMPED_GAME_DIR", QFile::encodeName(folder));
    return !folder.isEmpty();
}
