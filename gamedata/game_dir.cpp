#include "gamedata/game_dir.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

QString &namedRoot()
{
    static QString path;
    return path;
}

} // namespace

QString gameRoot()
{
    if (!namedRoot().isEmpty())
        return namedRoot();
    const QString fromEnvironment = qEnvironmentVariable("CMPED_GAME_DIR");
    return fromEnvironment.isEmpty() ? QCoreApplication::applicationDirPath() : fromEnvironment;
}

void setGameRoot(const QString &path)
{
    namedRoot() = path;
}

QDir getGameDir(const QString &subfolder)
{
    QDir dir(gameRoot());
    dir.cd(subfolder);
    return dir;
}

bool fileExists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && info.isFile();
}
