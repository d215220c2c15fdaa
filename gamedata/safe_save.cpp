#include "gamedata/safe_save.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <climits>
#include <filesystem>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int longestLinkChain = 40;        // as the kernel has it
constexpr std::size_t secondNameEnding = 7; // QSaveFile's ".XXXXXX"

// What the system says of an error. Qt's own text is "Unknown error" after a short write.
SaveResult failure(int code)
{
    return {false, qt_error_string(code)};
}

SaveResult failure(int code, const QFileDevice &file)
{
    return code != 0 ? failure(code) : SaveResult{false, file.errorString()};
}

// The file behind all links, whether it exists or not. An error number if they lead nowhere.
int followLinks(fs::path &path)
{
    for (int hops = 0; hops <= longestLinkChain; ++hops) {
        std::error_code notALink;
        const fs::path next = fs::read_symlink(path, notALink);
        if (notALink)
            return 0;
        path = path.parent_path() / next;
    }
    return ELOOP;
}

// 0 once the file's bytes are on the disk, as far as its file system can promise that.
int syncToDisk(int handle)
{
    if (fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS)
        return 0;
    return errno;
}

fs::path folderOf(const fs::path &path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// QSaveFile finds out only when all is written: until then its file has no name on many systems.
bool hasRoomForSecondName(const fs::path &path)
{
    const long longest = pathconf(folderOf(path).c_str(), _PC_NAME_MAX);
    const std::size_t size = path.filename().native().size() + secondNameEnding;
    return longest < 0 || size <= static_cast<std::size_t>(longest);
}

// Makes a rename in the folder last. The new content is in place already, so an error here says
// nothing about the file.
void syncFolderOf(const fs::path &path)
{
    const int handle = open(folderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

// Writes all pieces and sees them off to the disk. QFileDevice lets a short write and a failed
// last flush pass, so each is looked at here.
SaveResult writePieces(QFileDevice &file, const std::vector<QByteArray> &pieces)
{
    for (const QByteArray &piece : pieces) {
        errno = 0;
        if (file.write(piece) != piece.size())
            return failure(errno, file);
    }
    errno = 0;
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return failure(errno, file);
    const int code = syncToDisk(file.handle());
    return code == 0 ? SaveResult{true, {}} : failure(code);
}

// Gives the new file the owner and mode of the old one. Only root can give a file away; anybody
// else keeps it, with the permissions that QSaveFile has copied, which is no reason not to save.
void copyOwnerAndMode(int handle, const struct stat &old)
{
    struct stat now = {};
    if (fstat(handle, &now) != 0)
        return;
    if ((now.st_uid != old.st_uid || now.st_gid != old.st_gid) &&
        fchown(handle, old.st_uid, old.st_gid) != 0)
        return;
    fchmod(handle, old.st_mode & 07777);
}

// True where a finished second file couldn't take the target's place although the target itself
// may be writable: a name too long for a second one, a mounted file, somebody else's file in a
// folder like /tmp.
bool onlyInPlace(int code)
{
    return code == ENAMETOOLONG || code == EBUSY || code == EXDEV || code == EPERM ||
           code == EACCES || code == EROFS;
}

// Writes a second file and lets it take the target's place. No answer if the target can only be
// written in place; nothing has happened to it then.
std::optional<SaveResult> saveBeside(const fs::path &path, const struct stat *old,
                                     const std::vector<QByteArray> &pieces)
{
    QSaveFile file(QFile::decodeName(path.c_str()));
    if (!hasRoomForSecondName(path) || !file.open(QIODevice::WriteOnly))
        return std::nullopt;
    if (old)
        copyOwnerAndMode(file.handle(), *old);
    SaveResult written = writePieces(file, pieces);
    if (!written.ok) {
        file.cancelWriting();
        return written;
    }
    errno = 0;
    if (!file.commit()) {
        const int code = errno;
        if (onlyInPlace(code))
            return std::nullopt;
        return failure(code, file);
    }
    syncFolderOf(path);
    return written;
}

// Gives a file written in part its old bytes back. The place they take on the disk was never
// given up, so this succeeds on a full disk too.
void putBack(QFile &file, const QByteArray &old)
{
    file.seek(0);
    file.write(old);
    file.resize(old.size());
    syncToDisk(file.handle());
}

SaveResult overwrite(const fs::path &path, const std::vector<QByteArray> &pieces)
{
    QFile file(QFile::decodeName(path.c_str()));
    // Without a buffer nothing is left that could be written behind the bytes put back.
    errno = 0;
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return failure(errno, file);
    if (file.size() >= INT_MAX)
        return failure(EFBIG); // too large to be kept in memory
    errno = 0;
    const QByteArray old = file.readAll();
    if (old.size() != file.size())
        return failure(errno, file);
    file.seek(0);
    SaveResult written = writePieces(file, pieces);
    errno = 0;
    if (written.ok && file.pos() < old.size() && !file.resize(file.pos()))
        written = failure(errno, file);
    if (!written.ok) {
        putBack(file, old);
        return written;
    }
    syncToDisk(file.handle());
    return written;
}

SaveResult writeNewFile(const fs::path &path, const std::vector<QByteArray> &pieces)
{
    QFile file(QFile::decodeName(path.c_str()));
    errno = 0;
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return failure(errno, file);
    SaveResult written = writePieces(file, pieces);
    if (!written.ok)
        file.remove();
    syncFolderOf(path);
    return written;
}

} // namespace

SaveResult saveFileSafely(const QString &path, const std::vector<QByteArray> &pieces)
{
    fs::path target(QFile::encodeName(path).toStdString());
    if (const int code = followLinks(target))
        return failure(code);
    // Qt can't tell every name from another one, nor the system one with a zero in it.
    if (QFile::encodeName(QFile::decodeName(target.c_str())).toStdString() != target.native())
        return failure(EILSEQ);
    struct stat old = {};
    const bool exists = stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT)
        return failure(errno);
    if (exists && S_ISDIR(old.st_mode))
        return failure(EISDIR);
    if (exists && !S_ISREG(old.st_mode))
        return {false, QStringLiteral("Not a regular file")};
    if (const auto result = saveBeside(target, exists ? &old : nullptr, pieces))
        return *result;
    return exists ? overwrite(target, pieces) : writeNewFile(target, pieces);
}
