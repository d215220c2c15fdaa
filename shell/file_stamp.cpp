#include "shell/file_stamp.h"

#include <QFile>
#include <QStringList>

#include <cerrno>
#include <tuple>

#include <sys/stat.h>

namespace {

constexpr qint64 nanosecondsOfASecond = 1000000000;
constexpr const char *absent = "absent";

constexpr FileStamp unknown{true, 0, 0, 0, 0};

auto numbersOf(const FileStamp &stamp)
{
    return std::tie(stamp.exists, stamp.device, stamp.inode, stamp.size, stamp.modified);
}

} // namespace

bool operator==(const FileStamp &a, const FileStamp &b)
{
    return numbersOf(a) == numbersOf(b) && numbersOf(a) != numbersOf(unknown);
}

FileStamp stampOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? FileStamp{} : unknown;
    return S_ISREG(status.st_mode) ? stampOf(status) : FileStamp{};
}

FileStamp stampOf(const QFileDevice &file)
{
    struct stat status = {};
    return fstat(file.handle(), &status) == 0 ? stampOf(status) : unknown;
}

FileStamp stampOf(const struct stat &status)
{
    return {true, status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * nanosecondsOfASecond + status.st_mtim.tv_nsec};
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
