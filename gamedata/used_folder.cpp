#include "gamedata/used_folder.h"

#include "gamedata/escaped_utf8.h"
#include "gamedata/ini_file.h"

#include <QFileInfo>

namespace {

constexpr const char *editorSection = "Campaign Editor";
constexpr const char *pathKey = "Path";

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
