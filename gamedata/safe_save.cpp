#include "gamedata/safe_save.h"

#include "gamedata/file_name.h"
#include "gamedata/safe_saves.h"
#include "gamedata/second_file.h"

#include <QFile>

#include <climits>

#include <fcntl.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int longestLinkChain = 40; // as the kernel has it
constexpr mode_t modeOfNewFiles = 0666;

SaveResult resultOf(int code)
{
    return code == 0 ? SaveResult{true, {}} : SaveResult{false, qt_error_string(code)};
}

// The text of a link. EINVAL for what is no link, ENOENT for what isn't there.
int readLink(const fs::path &path, fs::path &text)
{
    char bytes[PATH_MAX];
    const ssize_t size = uninterrupted([&] { return readlink(path.c_str(), bytes, sizeof bytes); });
    if (size < 0)
        return errno;
    if (size == ssize_t(sizeof bytes))
        return ENAMETOOLONG;
    text = std::string(bytes, std::size_t(size));
    return 0;
}

// The file behind all links, whether it exists or not.
int followLinks(fs::path &path)
{
    for (int hops = 0; hops <= longestLinkChain; ++hops) {
        fs::path next;
        const int code = readLink(path, next);
        if (code != 0)
            return code == EINVAL || code == ENOENT ? 0 : code;
        path = path.parent_path() / next;
    }
    return ELOOP;
}

fs::path folderOf(const fs::path &path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// Makes a rename in the folder last. The new content is in place already, so an error here says
// nothing about the file.
void syncFolderOf(const fs::path &path)
{
    DiskFile folder;
    if (folder.open(folderOf(path), O_RDONLY | O_DIRECTORY) == 0)
        folder.sync();
}

// Gives the new file the owner, group and mode of the old one. Only root can give a file to another
// user, and nobody to a group that isn't his own: that is no reason not to save, but whom the file
// was closed to it stays closed to. File systems without modes refuse to set them.
int copyOwnerAndMode(const DiskFile &file, const struct stat &old)
{
    struct stat now = {};
    if (const int code = file.status(now))
        return code;
    const auto give = [&](uid_t owner, gid_t group) {
        return errorOf([&] { return fchown(file.handle(), owner, group); }) == 0;
    };
    const bool sameOwner = now.st_uid == old.st_uid || give(old.st_uid, gid_t(-1));
    const bool sameGroup = now.st_gid == old.st_gid || give(uid_t(-1), old.st_gid);
    mode_t mode = old.st_mode & (sameOwner && sameGroup ? 07777 : 0777);
    if (!sameGroup)
        mode &= 0707 | (mode & 07) << 3;
    const int code = errorOf([&] { return fchmod(file.handle(), mode); });
    return code == EPERM || code == ENOTSUP || code == ENOSYS ? 0 : code;
}

// True where a finished second file can't be made or can't take the target's place, although the
// target itself may be written: a folder without the right, a mounted file, somebody else's file
// in a folder like /tmp.
bool onlyInPlace(int code)
{
    return code == ENAMETOOLONG || code == EBUSY || code == EXDEV || code == EPERM ||
           code == EACCES || code == EROFS;
}

// Writes a second file and lets it take the target's place.
int saveBeside(const fs::path &path, const struct stat *old, const std::vector<QByteArray> &pieces,
               SweptFolders &swept)
{
    SecondFile second(folderOf(path));
    if (const int code = second.open(old ? old->st_mode & 0777 : modeOfNewFiles, swept))
        return code;
    if (const int code = second.file().writeFromStart(pieces))
        return code;
    if (old) {
        if (const int code = copyOwnerAndMode(second.file(), *old))
            return code;
    }
    if (const int code = second.file().sync())
        return code;
    if (const int code = second.replace(path, old))
        return code;
    syncFolderOf(path);
    return 0;
}

int writeWhole(const DiskFile &file, const std::vector<QByteArray> &pieces)
{
    off_t size = 0;
    for (const QByteArray &piece : pieces)
        size += piece.size();
    if (const int code = file.writeFromStart(pieces))
        return code;
    if (const int code = file.resize(size))
        return code;
    return file.sync();
}

// Gives a file written in part its old bytes back. The place they take on the disk was never given
// up, so this succeeds on a full disk too. One step that fails is no reason to leave out the next.
void putBack(const DiskFile &file, const QByteArray &old)
{
    file.writeFromStart({old});
    file.resize(old.size());
    file.sync();
}

int overwrite(const fs::path &path, const std::vector<QByteArray> &pieces)
{
    DiskFile file;
    if (const int code = file.open(path, O_RDWR))
        return code;
    struct stat status = {};
    if (const int code = file.status(status))
        return code;
    if (status.st_size >= INT_MAX)
        return EFBIG; // too large to be kept in memory
    QByteArray old;
    if (const int code = file.readFromStart(old, int(status.st_size)))
        return code;
    const int code = writeWhole(file, pieces);
    if (code != 0)
        putBack(file, old);
    return code;
}

} // namespace

SaveResult saveFileSafely(const QString &path, const std::vector<QByteArray> &pieces)
{
    return SafeSaves().save(path, pieces);
}

SaveResult SafeSaves::save(const QString &path, const std::vector<QByteArray> &pieces)
{
    if (!namesOneFile(path))
        return resultOf(EILSEQ);
    fs::path target(QFile::encodeName(path).toStdString());
    if (const int code = followLinks(target))
        return resultOf(code);
    // Qt can't tell every name from another one, nor the system one with a zero in it.
    if (QFile::encodeName(QFile::decodeName(target.c_str())).toStdString() != target.native())
        return resultOf(EILSEQ);
    struct stat old = {};
    const int missing = errorOf([&] { return stat(target.c_str(), &old); });
    if (missing != 0 && missing != ENOENT)
        return resultOf(missing);
    const bool exists = missing == 0;
    if (exists && S_ISDIR(old.st_mode))
        return resultOf(EISDIR);
    if (exists && !S_ISREG(old.st_mode))
        return {false, QStringLiteral("Not a regular file")};
    // Who may write into the folder could replace what he may not write.
    const auto mayWrite = [&] { return faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS); };
    if (const int forbidden = exists ? errorOf(mayWrite) : 0)
        return resultOf(forbidden);
    const int code = saveBeside(target, exists ? &old : nullptr, pieces, m_swept);
    return resultOf(exists && onlyInPlace(code) ? overwrite(target, pieces) : code);
}
