#include "shell/file_stamp.h"

#include <QFile>
#include <QStringList>

#include <tuple>

#include <sys/stat.h>

namespace {

constexpr qint64 nanosecondsOfASecond = 1000000000;
constexpr const char *absent = "absent";

FileStamp stampFrom(const struct stat &status)
{
    return {true, status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * nanosecondsOfASecond + status.st_mtim.tv_nsec};
}

} // namespace

bool operator==(const FileStamp &a, const FileStamp &b)
{
    return std::tie(a.exists, a.device, a.inode, a.size, a.modified) ==
           std::tie(b.exists, b.device, b.inode, b.size, b.modified);
}

FileStamp stampOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return stampFrom(status);
}

FileStamp stampOf(const QFileDevice &file)
{
    struct stat status = {};
    if (fstat(file.handle(), &status) != 0)
        return {};
    return stampFrom(status);
}

QString textOf(const FileStamp &stamp)
{
    if (!stamp.exists)
        return QLatin1String(absent);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(QString::number(stamp.device), QString::number(stamp.inode),
             QString::number(stamp.size), QString::number(stamp.modified));
}

std::optional<FileStamp> stampFrom(const QString &text)
{
    if (text == QLatin1String(absent))
        return FileStamp{};
    const QStringList numbers = text.split(QLatin1Char(' '));
    if (numbers.size() != 4)
        return std::nullopt;
    bool ok[4] = {};
    const FileStamp stamp{true, numbers[0].toULongLong(&ok[0]), numbers[1].toULongLong(&ok[1]),
                          numbers[2].toLongLong(&ok[2]), numbers[3].toLongLong(&ok[3])};
    if (!(ok[0] && ok[1] && ok[2] && ok[3]))
        return std::nullopt;
    return stamp;
}
