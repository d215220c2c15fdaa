#include "gamedata/file_name.h"

#include <QFile>

bool namesOneFile(const QString &path)
{
    return !path.contains(QChar(QChar::Null)) && QFile::decodeName(QFile::encodeName(path)) == path;
}
