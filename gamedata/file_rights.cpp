#include "gamedata/file_rights.h"

#include <QtEndian>

#include <sys/xattr.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// An access list as the system keeps it:
//
// | bytes | field                                                |
// |-------|------------------------------------------------------|
// | 4     | version                                              |
// | 8 × n | entries: tag (2), rights (2), user or group (4)      |
//
// all little-endian. Where a file has one, the group's bits of its mode are the list's mask: the
// most that all but the owner and the others can have by it.
constexpr char accessList[] = "system.posix_acl_access";
constexpr int mostListBytes = 65536; // as the kernel has it
constexpr int entriesStart = 4;
constexpr int entryBytes = 8;
constexpr int rightsPlace = 2;

enum Tag : quint16
{
    NamedUser = 0x02,
    OwnGroup = 0x04,
    NamedGroup = 0x08
};

// What a file system without access lists answers, and one with them of a file that has none.
bool meansNone(int code)
{
    return code == ENODATA || code == ENOTSUP || code == ENOSYS;
}

// What can't be set here, whatever room there is: to whom the list names nobody, say.
bool meansNever(int code)
{
    return code == ENOTSUP || code == ENOSYS || code == EPERM || code == EACCES || code == EINVAL;
}

// Empty for a file without one.
int readAccessList(const fs::path &path, QByteArray &list)
{
    list.resize(mostListBytes);
    const ssize_t size = uninterrupted(
        [&] { return getxattr(path.c_str(), accessList, list.data(), std::size_t(list.size())); });
    const int code = size < 0 ? errno : 0;
    list.truncate(size < 0 ? 0 : int(size));
    return meansNone(code) ? 0 : code;
}

// Without a list the file loses the one that it has got from its folder.
int giveAccessList(const DiskFile &file, const QByteArray &list)
{
    if (list.isEmpty()) {
        const int code = errorOf([&] { return fremovexattr(file.handle(), accessList); });
        return meansNone(code) ? 0 : code;
    }
    return errorOf([&] {
        return fsetxattr(file.handle(), accessList, list.constData(), std::size_t(list.size()), 0);
    });
}

// The mode of a file that can't have the list: whoever is in the group or one of the others then
// gets no more than the list gave to anybody who may be that.
mode_t modeWithoutList(mode_t mode, const QByteArray &list)
{
    mode_t group = mode >> 3 & 07;
    mode_t others = mode & 07;
    if (list.isEmpty())
        group &= others; // the folder's list stands there, and the group's bits are its mask
    for (int i = entriesStart; i + entryBytes <= list.size(); i += entryBytes) {
        const auto tag = qFromLittleEndian<quint16>(list.constData() + i);
        const auto rights = qFromLittleEndian<quint16>(list.constData() + i + rightsPlace);
        if (tag == NamedUser || tag == NamedGroup || tag == OwnGroup)
            group &= rights;
        if (tag == NamedUser || tag == NamedGroup)
            others &= rights;
    }
    return (mode & ~mode_t(077)) | group << 3 | others;
}

} // namespace

// Only root can give a file to another user, and nobody to a group that isn't his own: that is no
// reason not to save. File systems without modes refuse to set them. The mode comes last: it is
// kept by the list, and by a change of owner it isn't.
int copyRights(const DiskFile &file, const fs::path &oldPath, const struct stat &old)
{
    struct stat now = {};
    if (const int code = file.status(now))
        return code;
    QByteArray list;
    if (const int code = readAccessList(oldPath, list))
        return code;
    const auto give = [&](uid_t owner, gid_t group) {
        return errorOf([&] { return fchown(file.handle(), owner, group); }) == 0;
    };
    const bool sameOwner = now.st_uid == old.st_uid || give(old.st_uid, gid_t(-1));
    const bool sameGroup = now.st_gid == old.st_gid || give(uid_t(-1), old.st_gid);
    mode_t mode = old.st_mode & (sameOwner && sameGroup ? 07777 : 0777);
    if (const int code = giveAccessList(file, list)) {
        if (!meansNever(code))
            return code;
        mode = modeWithoutList(mode, list);
    }
    if (!sameGroup)
        mode &= 0707 | (mode & 07) << 3;
    const int code = errorOf([&] { return fchmod(file.handle(), mode); });
    return code == EPERM || code == ENOTSUP || code == ENOSYS ? 0 : code;
}
