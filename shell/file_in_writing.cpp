#include "shell/file_in_writing.h"

#include "document/gzip_member.h"
#include "gamedata/disk_file.h"

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int noHandle = -1;
constexpr int mostHandles = 1024 * 1024; // where they are closed one by one

// Writes a file from its start, counting by itself: the handle's own place is the editor's too,
// which may move it meanwhile, as Qt does before it closes a temporary file.
class Writing
{
public:
    explicit Writing(int handle) : m_handle(handle) {}

    bool add(const char *bytes, int size)
    {
        for (int done = 0; done < size;) {
            const ssize_t count = uninterrupted(
                [&] { return pwrite(m_handle, bytes + done, std::size_t(size - done), m_place); });
            if (count <= 0)
                return false;
            done += int(count);
            m_place += count;
        }
        return true;
    }

private:
    const int m_handle;
    off_t m_place = 0;
};

bool packAndWrite(int handle, const UnpackedFile &content, MemberPacker &packer)
{
    Writing file(handle);
    const auto take = [&](const char *bytes, int size) { return file.add(bytes, size); };
    if (!content.head.isEmpty() &&
        !(packer.add(content.head.constData(), content.head.size(), take) && packer.finish(take)))
        return false;
    return std::all_of(content.rest.begin(), content.rest.end(), [&](const QByteArray &piece) {
        return take(piece.constData(), piece.size());
    });
}

// What the process that writes keeps open, in ascending order: its file, its end of the pipe that
// tells when it has ended, and the files that stand in the place till then, for their locks.
using KeptHandles = std::array<int, 5>;

struct Work
{
    const UnpackedFile &content;
    MemberPacker &packer;
    const char *unfinished;
    const char *place;
    int file;
    int before; // ends with the process that writes first
    KeptHandles kept;
    int handleLimit;
};

void closeHandles(int first, int last, int limit)
{
    if (first > last)
        return;
#ifdef SYS_close_range
    if (syscall(SYS_close_range, unsigned(first), unsigned(last), 0U) == 0)
        return;
#endif
    for (int handle = first; handle <= last && handle < limit; ++handle)
        close(handle);
}

void closeAllBut(const KeptHandles &kept, int limit)
{
    int first = 0;
    for (const int handle : kept) {
        closeHandles(first, handle - 1, limit);
        first = handle + 1;
    }
    closeHandles(first, INT_MAX, limit);
}

void waitForEnd(int end)
{
    char byte = 0;
    uninterrupted([&] { return read(end, &byte, 1); });
}

// The life of the writing process. Other threads of the program are gone here, in the middle of
// whatever they did, so nothing is called but what the system allows then: no memory is taken.
[[noreturn]] void writeInPlace(const Work &work)
{
    setsid(); // what ends the editor's group isn't meant for this process
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT})
        std::signal(signal, SIG_IGN); // nor what ends its session
    closeAllBut(work.kept, work.handleLimit);
    if (work.before != noHandle)
        waitForEnd(work.before);
    const bool done = packAndWrite(work.file, work.content, work.packer) &&
                      rename(work.unfinished, work.place) == 0;
    if (!done)
        unlink(work.unfinished);
    _exit(done ? 0 : 1);
}

int handleLimit()
{
    rlimit limit{};
    const bool known = getrlimit(RLIMIT_NOFILE, &limit) == 0;
    return known && limit.rlim_cur < mostHandles ? int(limit.rlim_cur) : mostHandles;
}

} // namespace

FileInWriting::FileInWriting(std::unique_ptr<QTemporaryFile> file, pid_t writer, int end)
    : m_file(std::move(file)), m_unfinishedName(QFile::encodeName(m_file->fileName())),
      m_writer(writer), m_end(end)
{
    m_file->setAutoRemove(false);
}

std::unique_ptr<FileInWriting> FileInWriting::start(std::unique_ptr<QTemporaryFile> unfinished,
                                                    const QString &path,
                                                    const UnpackedFile &content, const QFile &old,
                                                    const FileInWriting *before)
{
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0)
        return nullptr;
    MemberPacker packer; // made here, where memory may be taken
    const QByteArray name = QFile::encodeName(unfinished->fileName());
    const QByteArray place = QFile::encodeName(path);
    const int beforesEnd = before ? before->m_end : noHandle;
    KeptHandles kept{unfinished->handle(), pipe[1], old.handle(), beforesEnd,
                     before ? before->m_file->handle() : noHandle};
    std::sort(kept.begin(), kept.end());
    const Work work{content,    packer, name.constData(), place.constData(), unfinished->handle(),
                    beforesEnd, kept,   handleLimit()};
    const pid_t writer = fork();
    if (writer == 0)
        writeInPlace(work);
    close(pipe[1]);
    if (writer < 0) {
        close(pipe[0]);
        return nullptr;
    }
    return std::unique_ptr<FileInWriting>(
        new FileInWriting(std::move(unfinished), writer, pipe[0]));
}

FileInWriting::~FileInWriting()
{
    finish();
    close(m_end);
}

bool FileInWriting::hasEnded()
{
    if (m_writer != 0 && waitpid(m_writer, nullptr, WNOHANG) != 0)
        noteTheEnd();
    return m_writer == 0;
}

bool FileInWriting::finish()
{
    if (m_writer != 0) {
        uninterrupted([&] { return waitpid(m_writer, nullptr, 0); });
        noteTheEnd();
    }
    return m_inPlace;
}

bool FileInWriting::stop()
{
    if (m_writer != 0)
        kill(m_writer, SIGKILL);
    return finish();
}

// Whoever was ended can't tell. Without the name that it had it is in its place, or nowhere.
void FileInWriting::noteTheEnd()
{
    m_writer = 0;
    unlink(m_unfinishedName.constData());
    struct stat status = {};
    m_inPlace = fstat(m_file->handle(), &status) == 0 && status.st_nlink > 0;
}
