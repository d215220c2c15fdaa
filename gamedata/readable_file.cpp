#include "gamedata/readable_file.h"

#include "gamedata/file_name.h"

#include <cerrno>

#include <sys/stat.h>

std::optional<QString> openToRead(QFile &file, QIODevice::OpenMode mode)
{
    if (!namesOneFile(file.fileName()))
        return qt_error_string(EILSEQ);
    struct stat now = {};
    const bool there = stat(QFile::encodeName(file.fileName()).constData(), &now) == 0;
    // Of a folder the file itself tells.
    if (there && !S_ISREG(now.st_mode) && !S_ISDIR(now.st_mode))
        return notARegularFile();
    if (!file.open(mode))
        return file.errorString();
    return {};
}
