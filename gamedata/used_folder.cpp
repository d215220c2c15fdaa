#include "gamedata/used_folder.h"

#include "gamedata/escaped_utf8.h"
#include "gamedata/game_dir.h"
#include "gamedata/ini_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

constexpr const char *editorSection = "Campaign Editor";
constexpr const char *pathKey = "Path";

// The user's own, by the name of the program.
constexpr const char *ownSettings = "cmped";
constexpr const char *ownGameKey = "readOnlyGame/folder";
constexpr const char *ownPathKey = "readOnlyGame/path";

bool canBeWritten(const _Ini_ &settings)
{
    return QFileInfo(QString::fromStdWString(settings.fileName)).isWritable();
}

QString gameName()
{
    return textFromUtf8(QFile::encodeName(gameRoot()));
}

} // namespace

QString usedFolder(const QString &otherwise)
{
    const QString used = textFromUtf8(ini->GetStringVal(editorSection, pathKey, ""));
    return used.isEmpty() ? otherwise : used;
}

void rememberFolderOf(const QString &file)
{
    const QByteArray folder = utf8FromText(QFileInfo(file).absolutePath());
    ini->SetStringVal(editorSection, pathKey, folder.constData());
}

void keepUsedFolder()
{
    if (canBeWritten(*ini))
        return;
    QSettings settings(QString::fromLatin1(ownSettings), QString::fromLatin1(ownSettings));
    settings.setValue(ownGameKey, gameName());
    settings.setValue(ownPathKey, usedFolder());
}

// Of one game only: where two are read, the other's folder is no place to begin in.
void recallUsedFolder()
{
    if (canBeWritten(*ini))
        return;
    const QSettings settings(QString::fromLatin1(ownSettings), QString::fromLatin1(ownSettings));
    const QByteArray folder = utf8FromText(settings.value(ownPathKey).toString());
    if (!folder.isEmpty() && settings.value(ownGameKey).toString() == gameName())
        ini->SetStringVal(editorSection, pathKey, folder.constData());
}
