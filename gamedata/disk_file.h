// An open file by the system's own calls. Each is carried through: an interrupted call is made
// again, and a short count is followed by the rest. Where nothing else is said the answer is 0, or
// the system's error number.
#pragma once

#include <QByteArray>

#include <cerrno>
#include <filesystem>
#include <vector>

#include <sys/stat.h>

// A call of the system that answers -1 on error, made again as long as a signal interrupts it.
template<typename Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

// The error number of such a call.
template<typename Call>
int errorOf(Call call)
{
    return uninterrupted(call) == -1 ? errno : 0;
}

class DiskFile
{
public:
    DiskFile() = default;
    // Any error of closing passes: what was written was seen off by `sync`.
    ~DiskFile() { close(); }
    DiskFile(const DiskFile &) = delete;
    DiskFile &operator=(const DiskFile &) = delete;

    // A file that is still open is closed first. The mode is that of a file made here, before the
    // process's mask.
    int open(const std::filesystem::path &path, int flags, mode_t mode = 0);
    void close();
    bool isOpen() const { return m_handle >= 0; }
    int handle() const { return m_handle; }

    int status(struct stat &status) const;
    // The first bytes of the file; EIO if it has fewer.
    int readFromStart(QByteArray &bytes, int size) const;
    // All pieces in order, from the file's start.
    int writeFromStart(const std::vector<QByteArray> &pieces) const;
    int resize(off_t size) const;
    // When it was read and written last, as in a status. Only its owner may say that.
    int setTimes(const struct stat &status) const;
    // Waits until all is on the disk, as far as its file system can promise that.
    int sync() const;

private:
    int m_handle = -1;
};
