#include "gamedata/game_search.h"

#include "gamedata/escaped_utf8.h"
#include "gamedata/game_dir.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char *, 2> gameFiles{"ravn.dat", "Ravn_settings.ini"};
constexpr const char *archiveFolder = "Data";

constexpr const char *settingsName = "cmped";
constexpr const char *folderKey = "game/folder";

bool hasFile(const QString &folder, const char *name)
{
    return fileExists(QDir(folder).filePath(QString::fromLatin1(name)));
}

// A game that lost a file is still the one to start in: the editor tells what is missing.
bool holdsGameFiles(const QString &folder)
{
    return std::any_of(gameFiles.begin(), gameFiles.end(),
                       [&](const char *name) { return hasFile(folder, name); });
}

} // namespace

QStringList missingGameFiles(const QString &folder)
{
    QStringList missing;
    for (const char *name : gameFiles) {
        if (!hasFile(folder, name))
            missing << QString::fromLatin1(name);
    }
    const QString archives = QString::fromLatin1(archiveFolder);
    if (!QDir(QDir(folder).filePath(archives)).exists())
        missing << archives;
    return missing;
}

// Kept in UTF-8 whatever the encoding is that the programs were told to take names of files in.
QString chosenGame()
{
    const QSettings settings(QString::fromLatin1(settingsName), QString::fromLatin1(settingsName));
    return QFile::decodeName(utf8FromText(settings.value(folderKey).toString()));
}

bool rememberChosenGame(const QString &folder)
{
    QSettings settings(QString::fromLatin1(settingsName), QString::fromLatin1(settingsName));
    settings.setValue(folderKey, textFromUtf8(QFile::encodeName(folder)));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString findGame(const QString &ownFolder)
{
    QString named = qEnvironmentVariable("CMPED_GAME_DIR");
    if (!named.isEmpty())
        return named;
    if (holdsGameFiles(ownFolder))
        return ownFolder;
    const QString chosen = chosenGame();
    return !chosen.isEmpty() && missingGameFiles(chosen).isEmpty() ? chosen : QString();
}
