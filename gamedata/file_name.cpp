#include "gamedata/file_name.h"

#include "gamedata/report.h"

#include <QFile>

bool namesOneFile(const QString &path)
{
    return !path.contains(QChar(QChar::Null)) && QFile::decodeName(QFile::encodeName(path)) == path;
}

QString notARegularFile()
{
    return mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Not a regular file"));
}
