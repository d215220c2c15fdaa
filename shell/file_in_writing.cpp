#include "shell/file_in_writing.h"

#include "document/gzip_member.h"
#include "gamedata/disk_file.h"

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

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

// The life of the writing process. Other threads of the program are gone here, in the middle of
// whatever they did, so nothing is called but what the system allows then: no memory is taken.
[[noreturn]] void writeInPlace(int handle, const char *unfinished, const char *place,
                               const UnpackedFile &content, MemberPacker &packer)
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT})
        std::signal(signal, SIG_IGN); // they are meant for the editor
    const bool done = packAndWrite(handle, content, packer) && rename(unfinished, place) == 0;
    if (!done)
        unlink(unfinished);
    _exit(done ? 0 : 1);
}

} // namespace

// The handle is one of this object's own: Qt closes the temporary file's with that.
FileInWriting::FileInWriting(QTemporaryFile &unfinished, pid_t writer)
    : m_unfinishedName(QFile::encodeName(unfinished.fileName())), m_writer(writer)
{
    unfinished.setAutoRemove(false);
    QFile::open(fcntl(unfinished.handle(), F_DUPFD_CLOEXEC, 0), QIODevice::ReadWrite,
                QFileDevice::AutoCloseHandle);
}

std::unique_ptr<FileInWriting> FileInWriting::start(QTemporaryFile &unfinished, const QString &path,
                                                    const UnpackedFile &content)
{
    MemberPacker packer; // made here, where memory may be taken
    const QByteArray name = QFile::encodeName(unfinished.fileName());
    const QByteArray place = QFile::encodeName(path);
    const pid_t writer = fork();
    if (writer < 0)
        return nullptr;
    if (writer == 0)
        writeInPlace(unfinished.handle(), name.constData(), place.constData(), content, packer);
    return std::unique_ptr<FileInWriting>(new FileInWriting(unfinished, writer));
}

FileInWriting::~FileInWriting()
{
    finish();
}

bool FileInWriting::finish()
{
    if (m_writer != 0) {
        uninterrupted([&] { return waitpid(m_writer, nullptr, 0); });
        m_writer = 0;
        // Whoever was ended can't tell. Without the name that it had it is in its place, or
        // nowhere.
        unlink(m_unfinishedName.constData());
        struct stat status = {};
        m_inPlace = fstat(handle(), &status) == 0 && status.st_nlink > 0;
    }
    return m_inPlace;
}

bool FileInWriting::stop()
{
    if (m_writer != 0)
        kill(m_writer, SIGKILL);
    return finish();
}
