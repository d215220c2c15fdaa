#include "gamedata/used_folder.h"

#include "gamedata/ini_file.h"

#include <QFileInfo>

namespace {

constexpr const char *editorSection = "Campaign Editor";
constexpr const char *pathKey = "Path";

} // namespace

QString usedFolder()
{
    return QString::fromUtf8(ini->GetStringVal(editorSection, pathKey, ""));
}

void rememberFolderOf(const QString &file)
{
    const QByteArray folder = QFileInfo(file).absolutePath().toUtf8();
    ini->SetStringVal(editorSection, pathKey, folder.constData());
}
