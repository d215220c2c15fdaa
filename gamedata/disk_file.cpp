#include "gamedata/disk_file.h"

#include <fcntl.h>
#include <unistd.h>

int DiskFile::open(const std::filesystem::path &path, int flags, mode_t mode)
{
    close();
    m_handle = uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); });
    return isOpen() ? 0 : errno;
}

// Never twice: after an interruption the handle is free all the same, and may be another's already.
void DiskFile::close()
{
    if (isOpen())
        ::close(m_handle);
    m_handle = -1;
}

int DiskFile::status(struct stat &status) const
{
    return errorOf([&] { return fstat(m_handle, &status); });
}

int DiskFile::readFromStart(QByteArray &bytes, int size) const
{
    bytes.resize(size);
    for (int done = 0; done < size;) {
        const ssize_t count = uninterrupted(
            [&] { return pread(m_handle, bytes.data() + done, std::size_t(size - done), done); });
        if (count <= 0)
            return count < 0 ? errno : EIO;
        done += int(count);
    }
    return 0;
}

int DiskFile::writeFromStart(const std::vector<QByteArray> &pieces) const
{
    off_t place = 0;
    for (const QByteArray &piece : pieces) {
        for (int done = 0; done < piece.size();) {
            const ssize_t count = uninterrupted([&] {
                return pwrite(m_handle, piece.constData() + done, std::size_t(piece.size() - done),
                              place);
            });
            if (count <= 0)
                return count < 0 ? errno : EIO;
            done += int(count);
            place += count;
        }
    }
    return 0;
}

int DiskFile::resize(off_t size) const
{
    return errorOf([&] { return ftruncate(m_handle, size); });
}

int DiskFile::setTimes(const struct stat &status) const
{
    const timespec times[] = {status.st_atim, status.st_mtim};
    return errorOf([&] { return futimens(m_handle, times); });
}

int DiskFile::sync() const
{
    const int code = errorOf([&] { return fsync(m_handle); });
    return code == EINVAL || code == ENOTSUP || code == EROFS ? 0 : code;
}
