#include "gamedata/safe_save.h"

#include "gamedata/file_name.h"
#include "gamedata/file_rights.h"
#include "gamedata/followed_links.h"
#include "gamedata/safe_saves.h"
#include "gamedata/second_file.h"

#include <QFile>

#include <climits>

#include <fcntl.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr mode_t modeOfNewFiles = 0666;
constexpr mode_t modeUntilItsOwn = 0600; // of one that is to have another file's rights

// How far a save has come.
struct Progress
{
    bool opened = false;
    struct stat written = {};
};

SaveResult refused(int code)
{
    return {false, qt_error_string(code)};
}

// Makes a rename in the folder last. The new content is in place already, so an error here says
// nothing about the file.
void syncFolderOf(const fs::path &path)
{
    DiskFile folder;
    if (folder.open(folderOf(path), O_RDONLY | O_DIRECTORY) == 0)
        folder.sync();
}

// True where a finished second file can't be made or can't take the target's place, although the
// target itself may be written: a folder without the right, a mounted file, somebody else's file
// in a folder like /tmp.
bool onlyInPlace(int code)
{
    return code == ENAMETOOLONG || code == EBUSY || code == EXDEV || code == EPERM ||
           code == EACCES || code == EROFS;
}

// What it means to find no room even for a name.
bool isFull(int code)
{
    return code == ENOSPC || code == EDQUOT;
}

// Writes a second file and lets it take the target's place.
int saveBeside(const fs::path &path, const struct stat *old, const std::vector<QByteArray> &pieces,
               SweptFolders &swept, Progress &progress)
{
    SecondFile second(folderOf(path));
    const int unopened = second.open(old ? modeUntilItsOwn : modeOfNewFiles, swept);
    progress.opened = unopened == 0 || isFull(unopened);
    if (unopened != 0)
        return unopened;
    if (const int code = second.file().writeFromStart(pieces))
        return code;
    if (old) {
        if (const int code = copyRights(second.file(), path, *old))
            return code;
    }
    if (const int code = second.file().sync())
        return code;
    // While nobody else can have written to it.
    if (const int code = second.file().status(progress.written))
        return code;
    if (const int code = second.replace(path, old != nullptr))
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

// Gives a file written in part its old bytes back, and its time: nothing has changed for those who
// look at it. The place they take on the disk was never given up, so this succeeds on a full disk
// too. One step that fails is no reason to leave out the next.
void putBack(const DiskFile &file, const QByteArray &old, const struct stat &status)
{
    file.writeFromStart({old});
    file.resize(old.size());
    file.setTimes(status);
    file.sync();
}

int overwrite(const fs::path &path, const std::vector<QByteArray> &pieces, Progress &progress)
{
    DiskFile file;
    const int unopened = file.open(path, O_RDWR);
    progress.opened = unopened == 0;
    if (unopened != 0)
        return unopened;
    struct stat before = {};
    if (const int code = file.status(before))
        return code;
    if (before.st_size >= INT_MAX)
        return EFBIG; // too large to be kept in memory
    QByteArray old;
    if (const int code = file.readFromStart(old, int(before.st_size)))
        return code;
    int code = writeWhole(file, pieces);
    if (code == 0)
        code = file.status(progress.written);
    if (code != 0)
        putBack(file, old, before);
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
        return refused(EILSEQ);
    fs::path target(QFile::encodeName(path).toStdString());
    if (const int code = followLinks(target))
        return refused(code);
    // Qt can't tell every name from another one, nor the system one with a zero in it.
    if (QFile::encodeName(QFile::decodeName(target.c_str())).toStdString() != target.native())
        return refused(EILSEQ);
    struct stat old = {};
    const int missing = errorOf([&] { return stat(target.c_str(), &old); });
    if (missing != 0 && missing != ENOENT)
        return refused(missing);
    const bool exists = missing == 0;
    if (exists && S_ISDIR(old.st_mode))
        return refused(EISDIR);
    if (exists && !S_ISREG(old.st_mode))
        return {false, notARegularFile()};
    // Who may write into the folder could replace what he may not write.
    const auto mayWrite = [&] { return faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS); };
    if (const int forbidden = exists ? errorOf(mayWrite) : 0)
        return refused(forbidden);
    Progress progress;
    int code = saveBeside(target, exists ? &old : nullptr, pieces, m_swept, progress);
    if (exists && onlyInPlace(code))
        code = overwrite(target, pieces, progress);
    if (code != 0)
        return {false, qt_error_string(code), progress.opened};
    return {true, {}, true, progress.written};
}
