#include "gamedata/second_file.h"

#include <random>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr char hiddenStart[] = ".cmped-save-";
constexpr std::size_t letterCount = 6;
constexpr int mostTries = 100; // for a name that nobody has

fs::path hiddenName()
{
    static const char letters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    static std::random_device source;
    std::uniform_int_distribution<std::size_t> letter(0, sizeof letters - 2);
    std::string name = hiddenStart;
    for (std::size_t i = 0; i < letterCount; ++i)
        name += letters[letter(source)];
    return name;
}

bool isHiddenName(const std::string &name)
{
    return name.rfind(hiddenStart, 0) == 0 && name.size() == sizeof hiddenStart - 1 + letterCount;
}

int lock(const DiskFile &file)
{
    return errorOf([&] { return flock(file.handle(), LOCK_EX | LOCK_NB); });
}

int removeName(const fs::path &path)
{
    return errorOf([&] { return unlink(path.c_str()); });
}

// Removes what processes left that were killed while they saved. Neither a name that can't be
// removed nor a folder that can't be listed is a reason not to save.
void removeLeftovers(const fs::path &folder)
{
    std::error_code end;
    for (fs::directory_iterator entry(folder, end); !end && entry != fs::directory_iterator();
         entry.increment(end)) {
        if (!isHiddenName(entry->path().filename().native()))
            continue;
        DiskFile file;
        struct stat status = {};
        if (file.open(entry->path(), O_RDWR | O_NOFOLLOW | O_NONBLOCK) == 0 &&
            file.status(status) == 0 && S_ISREG(status.st_mode) && lock(file) == 0)
            removeName(entry->path());
    }
}

std::string nameOfHandle(const DiskFile &file)
{
    return "/proc/self/fd/" + std::to_string(file.handle());
}

} // namespace

void SweptFolders::sweep(const fs::path &folder)
{
    if (m_done.insert(folder).second)
        removeLeftovers(folder);
}

SecondFile::~SecondFile()
{
    if (!m_hidden.empty())
        removeName(m_hidden);
}

// What is left behind goes first: it may take the room that the new file needs.
int SecondFile::open(mode_t mode, SweptFolders &swept)
{
    swept.sweep(m_folder);
    return openNameless(mode) ? 0 : openHidden(mode);
}

// A file without a name can be given one only by way of /proc.
bool SecondFile::openNameless(mode_t mode)
{
    if (m_file.open(m_folder, O_TMPFILE | O_RDWR, mode) != 0)
        return false;
    lock(m_file);
    const std::string own = nameOfHandle(m_file);
    if (errorOf([&] { return faccessat(AT_FDCWD, own.c_str(), F_OK, AT_EACCESS); }) == 0)
        return true;
    m_file.close();
    return false;
}

int SecondFile::openHidden(mode_t mode)
{
    int code = EEXIST;
    for (int i = 0; i < mostTries && code == EEXIST; ++i) {
        const fs::path name = m_folder / hiddenName();
        code = m_file.open(name, O_CREAT | O_EXCL | O_RDWR, mode);
        if (code != 0)
            continue;
        // Before it was locked another process could take the file for a leftover.
        struct stat status = {};
        if (lock(m_file) == EWOULDBLOCK || (m_file.status(status) == 0 && status.st_nlink == 0))
            code = EEXIST;
        else
            m_hidden = name;
    }
    return code;
}

int SecondFile::linkTo(const fs::path &name) const
{
    const std::string own = nameOfHandle(m_file);
    return errorOf(
        [&] { return linkat(AT_FDCWD, own.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW); });
}

int SecondFile::linkToHidden()
{
    int code = EEXIST;
    for (int i = 0; i < mostTries && code == EEXIST; ++i) {
        const fs::path name = m_folder / hiddenName();
        code = linkTo(name);
        if (code == 0)
            m_hidden = name;
    }
    return code;
}

// A link never takes another file's place, so it serves for a new file only, unless somebody else
// has made one meanwhile.
int SecondFile::replace(const fs::path &target, bool exists)
{
    if (m_hidden.empty()) {
        const int direct = exists ? EEXIST : linkTo(target);
        if (direct != EEXIST)
            return direct;
        if (const int code = linkToHidden())
            return code;
    }
    const int code = errorOf([&] { return rename(m_hidden.c_str(), target.c_str()); });
    if (code == 0)
        m_hidden.clear();
    return code;
}
