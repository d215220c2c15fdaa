#include "tests/saving/fault_injector.h"

#include "tests/saving/fault_environment.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

enum class Opened : char
{
    Elsewhere,
    File,
    Folder
};

constexpr int mostHandles = 1024;
constexpr int mostCalls = 4096;

bool armed = false;
FaultPlan plan;
int calls = 0;
// Not a vector: the system may be called where memory can't be asked for.
struct Call
{
    const char *name;
    Opened on;
};
std::array<Call, mostCalls> record{};
std::array<Opened, mostHandles> handles{};

Opened kindOf(int handle)
{
    return handle >= 0 && handle < mostHandles ? handles[std::size_t(handle)] : Opened::Elsewhere;
}

void remember(int handle, Opened kind)
{
    if (handle >= 0 && handle < mostHandles)
        handles[std::size_t(handle)] = kind;
}

bool isWatched(const char *path)
{
    if (!armed || !path)
        return false;
    static const char ownHandles[] = "/proc/self/fd/";
    if (std::strncmp(path, ownHandles, sizeof ownHandles - 1) == 0)
        return kindOf(std::atoi(path + sizeof ownHandles - 1)) != Opened::Elsewhere;
    const std::size_t size = plan.folder.size();
    return plan.folder.compare(0, size, path, std::min(size, std::strlen(path))) == 0 &&
           (path[size] == '/' || path[size] == '\0');
}

bool isWatched(const DIR *folder)
{
    return folder && kindOf(dirfd(const_cast<DIR *>(folder))) != Opened::Elsewhere;
}

template<typename Result>
Result failed()
{
    if constexpr (std::is_pointer_v<Result>)
        return nullptr;
    else
        return -1;
}

// The fault of this call, if it is the one that shall have one.
FaultKind next(const char *name, Opened on)
{
    if (calls < mostCalls)
        record[std::size_t(calls)] = {name, on};
    return ++calls == plan.call ? plan.kind : FaultKind::None;
}

void end()
{
    kill(getpid(), SIGKILL);
}

// Does the call, or lets it go wrong.
template<typename Do>
auto carryOut(const char *name, bool watched, Opened on, Do call) -> decltype(call())
{
    if (!armed || !watched)
        return call();
    const FaultKind fault = next(name, on);
    if (fault == FaultKind::KillBefore)
        end();
    if (fault == FaultKind::Error) {
        errno = plan.error;
        return failed<decltype(call())>();
    }
    const auto result = call();
    const int code = errno;
    if (fault == FaultKind::KillAfter)
        end();
    errno = code;
    return result;
}

template<typename Function>
Function *systems(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

void rememberOpened(int handle, const char *path)
{
    if (handle < 0 || !isWatched(path))
        return;
    struct stat status = {};
    const bool armedBefore = std::exchange(armed, false);
    const bool isFolder = fstat(handle, &status) == 0 && S_ISDIR(status.st_mode);
    armed = armedBefore;
    remember(handle, isFolder ? Opened::Folder : Opened::File);
}

// Passes the reading or writing of bytes on, half of them if that is the fault.
template<typename Do>
ssize_t transfer(const char *name, int handle, std::size_t size, Do call)
{
    const Opened on = kindOf(handle);
    if (!armed || on == Opened::Elsewhere)
        return call(size);
    if (plan.kind == FaultKind::Half)
        return call(next(name, on) == FaultKind::Half && size > 1 ? size / 2 : size);
    return carryOut(name, true, on, [&] { return call(size); });
}

int openFile(const char *name, int folder, const char *path, int flags, mode_t mode)
{
    static const auto real = systems<int(int, const char *, int, ...)>("openat");
    if (armed && !plan.nameless && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const int handle = carryOut(name, isWatched(path), Opened::Elsewhere,
                                [&] { return real(folder, path, flags, mode); });
    rememberOpened(handle, path);
    return handle;
}

mode_t modeOf(int flags, va_list arguments)
{
    const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return makes ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// The names in the C library come by asm, so that its own declarations don't stand in the way.
#define STANDS_FOR(name) asm(name) __attribute__((visibility("default")))

#define OPENS(name, symbol)                                                                        \
    extern "C" int name(const char *path, int flags, ...) STANDS_FOR(symbol);                      \
    int name(const char *path, int flags, ...)                                                     \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return openFile("open", AT_FDCWD, path, flags, mode);                                      \
    }

#define OPENS_AT(name, symbol)                                                                     \
    extern "C" int name(int folder, const char *path, int flags, ...) STANDS_FOR(symbol);          \
    int name(int folder, const char *path, int flags, ...)                                         \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return openFile("open", folder, path, flags, mode);                                        \
    }

// One function of the C library: its symbol, the name in the record, its result, its parameters
// and arguments, whether it is on the folder, and what it is on if that is an open file.
#define CALLS(name, symbol, title, result, parameters, arguments, watched, on)                     \
    extern "C" result name parameters STANDS_FOR(symbol);                                          \
    result name parameters                                                                         \
    {                                                                                              \
        static const auto real = systems<result parameters>(symbol);                               \
        return carryOut(title, watched, on, [&] { return real arguments; });                       \
    }

#define ON_PATH(name, symbol, result, parameters, arguments, watched)                              \
    CALLS(name, symbol, symbol, result, parameters, arguments, watched, Opened::Elsewhere)

#define ON_HANDLE(name, symbol, title, result, parameters, arguments)                              \
    CALLS(name, symbol, title, result, parameters, arguments, kindOf(handle) != Opened::Elsewhere, \
          kindOf(handle))

#define TRANSFERS(name, symbol, title, pointer, parameters, arguments)                             \
    extern "C" ssize_t name parameters STANDS_FOR(symbol);                                         \
    ssize_t name parameters                                                                        \
    {                                                                                              \
        static const auto real = systems<ssize_t parameters>(symbol);                              \
        return transfer(title, handle, wanted, [&](std::size_t size) { return real arguments; });  \
    }

#define SYNCS(name, symbol)                                                                        \
    extern "C" int name(int handle) STANDS_FOR(symbol);                                            \
    int name(int handle)                                                                           \
    {                                                                                              \
        static const auto real = systems<int(int)>(symbol);                                        \
        const bool watched = kindOf(handle) != Opened::Elsewhere;                                  \
        const bool waits = !armed || !watched || plan.kind == FaultKind::None;                     \
        return carryOut(symbol, watched, kindOf(handle),                                           \
                        [&] { return waits ? real(handle) : 0; });                                 \
    }

OPENS(faultyOpen, "open")
OPENS(faultyOpen64, "open64")
OPENS_AT(faultyOpenAt, "openat")
OPENS_AT(faultyOpenAt64, "openat64")

TRANSFERS(faultyRead, "read", "read", void *, (int handle, void *data, std::size_t wanted),
          (handle, data, size))
TRANSFERS(faultyWrite, "write", "write", const void *,
          (int handle, const void *data, std::size_t wanted), (handle, data, size))
TRANSFERS(faultyPread, "pread", "pread", void *,
          (int handle, void *data, std::size_t wanted, off_t place), (handle, data, size, place))
TRANSFERS(faultyPread64, "pread64", "pread", void *,
          (int handle, void *data, std::size_t wanted, off_t place), (handle, data, size, place))
TRANSFERS(faultyPwrite, "pwrite", "pwrite", const void *,
          (int handle, const void *data, std::size_t wanted, off_t place),
          (handle, data, size, place))
TRANSFERS(faultyPwrite64, "pwrite64", "pwrite", const void *,
          (int handle, const void *data, std::size_t wanted, off_t place),
          (handle, data, size, place))

ON_HANDLE(faultyWritev, "writev", "writev", ssize_t, (int handle, const iovec *pieces, int count),
          (handle, pieces, count))
SYNCS(faultyFsync, "fsync")
SYNCS(faultyFdatasync, "fdatasync")
ON_HANDLE(faultyFtruncate, "ftruncate", "ftruncate", int, (int handle, off_t size), (handle, size))
ON_HANDLE(faultyFtruncate64, "ftruncate64", "ftruncate", int, (int handle, off_t size),
          (handle, size))
ON_HANDLE(faultyFallocate, "fallocate", "fallocate", int,
          (int handle, int mode, off_t place, off_t size), (handle, mode, place, size))
ON_HANDLE(faultyFallocate64, "fallocate64", "fallocate", int,
          (int handle, int mode, off_t place, off_t size), (handle, mode, place, size))
ON_HANDLE(faultyFstat, "fstat", "fstat", int, (int handle, struct stat *status), (handle, status))
ON_HANDLE(faultyFstat64, "fstat64", "fstat", int, (int handle, struct stat64 *status),
          (handle, status))
ON_HANDLE(faultyFchmod, "fchmod", "fchmod", int, (int handle, mode_t mode), (handle, mode))
ON_HANDLE(faultyFchown, "fchown", "fchown", int, (int handle, uid_t owner, gid_t group),
          (handle, owner, group))
ON_HANDLE(faultyFsetxattr, "fsetxattr", "fsetxattr", int,
          (int handle, const char *name, const void *value, std::size_t size, int flags),
          (handle, name, value, size, flags))
ON_HANDLE(faultyFremovexattr, "fremovexattr", "fremovexattr", int, (int handle, const char *name),
          (handle, name))
ON_HANDLE(faultyFlock, "flock", "flock", int, (int handle, int operation), (handle, operation))
ON_HANDLE(faultyLseek, "lseek", "lseek", off_t, (int handle, off_t place, int from),
          (handle, place, from))
ON_HANDLE(faultyLseek64, "lseek64", "lseek", off_t, (int handle, off_t place, int from),
          (handle, place, from))

ON_PATH(faultyStat, "stat", int, (const char *path, struct stat *status), (path, status),
        isWatched(path))
ON_PATH(faultyStat64, "stat64", int, (const char *path, struct stat64 *status), (path, status),
        isWatched(path))
ON_PATH(faultyLstat, "lstat", int, (const char *path, struct stat *status), (path, status),
        isWatched(path))
ON_PATH(faultyLstat64, "lstat64", int, (const char *path, struct stat64 *status), (path, status),
        isWatched(path))
ON_PATH(faultyStatx, "statx", int,
        (int folder, const char *path, int flags, unsigned mask, struct statx *status),
        (folder, path, flags, mask, status), isWatched(path))
ON_PATH(faultyAccess, "access", int, (const char *path, int mode), (path, mode), isWatched(path))
ON_PATH(faultyFaccessat, "faccessat", int, (int folder, const char *path, int mode, int flags),
        (folder, path, mode, flags), isWatched(path))
ON_PATH(faultyReadlink, "readlink", ssize_t, (const char *path, char *text, std::size_t size),
        (path, text, size), isWatched(path))
ON_PATH(faultyGetxattr, "getxattr", ssize_t,
        (const char *path, const char *name, void *value, std::size_t size),
        (path, name, value, size), isWatched(path))
ON_PATH(faultyChmod, "chmod", int, (const char *path, mode_t mode), (path, mode), isWatched(path))
ON_PATH(faultyRename, "rename", int, (const char *from, const char *to), (from, to),
        isWatched(from) || isWatched(to))
ON_PATH(faultyRenameat, "renameat", int,
        (int fromFolder, const char *from, int toFolder, const char *to),
        (fromFolder, from, toFolder, to), isWatched(from) || isWatched(to))
ON_PATH(faultyRenameat2, "renameat2", int,
        (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags),
        (fromFolder, from, toFolder, to, flags), isWatched(from) || isWatched(to))
ON_PATH(faultyLink, "link", int, (const char *from, const char *to), (from, to),
        isWatched(from) || isWatched(to))
ON_PATH(faultyLinkat, "linkat", int,
        (int fromFolder, const char *from, int toFolder, const char *to, int flags),
        (fromFolder, from, toFolder, to, flags), isWatched(from) || isWatched(to))
ON_PATH(faultyUnlink, "unlink", int, (const char *path), (path), isWatched(path))
ON_PATH(faultyUnlinkat, "unlinkat", int, (int folder, const char *path, int flags),
        (folder, path, flags), isWatched(path))

// A handle is free after a failed close too.
extern "C" int faultyClose(int handle) STANDS_FOR("close");
int faultyClose(int handle)
{
    static const auto real = systems<int(int)>("close");
    const Opened kind = kindOf(handle);
    if (kind == Opened::Elsewhere)
        return real(handle);
    remember(handle, Opened::Elsewhere);
    const int result = carryOut("close", true, kind, [&] { return real(handle); });
    if (result != 0 && armed) {
        const int code = errno;
        real(handle);
        errno = code;
    }
    return result;
}

extern "C" DIR *faultyOpendir(const char *path) STANDS_FOR("opendir");
DIR *faultyOpendir(const char *path)
{
    static const auto real = systems<DIR *(const char *)>("opendir");
    DIR *folder =
        carryOut("opendir", isWatched(path), Opened::Elsewhere, [&] { return real(path); });
    if (folder && isWatched(path))
        remember(dirfd(folder), Opened::Folder);
    return folder;
}

extern "C" int faultyClosedir(DIR *folder) STANDS_FOR("closedir");
int faultyClosedir(DIR *folder)
{
    static const auto real = systems<int(DIR *)>("closedir");
    const bool watched = isWatched(folder);
    if (watched)
        remember(dirfd(folder), Opened::Elsewhere);
    const int result =
        carryOut("closedir", watched, Opened::Elsewhere, [&] { return real(folder); });
    if (result != 0 && watched && armed) {
        const int code = errno;
        real(folder);
        errno = code;
    }
    return result;
}

CALLS(faultyReaddir, "readdir", "readdir", dirent *, (DIR * folder), (folder), isWatched(folder),
      Opened::Elsewhere)
CALLS(faultyReaddir64, "readdir64", "readdir", dirent64 *, (DIR * folder), (folder),
      isWatched(folder), Opened::Elsewhere)

__attribute__((visibility("default"))) void armFaults(const FaultPlan &faults)
{
    plan = faults;
    calls = 0;
    armed = true;
}

__attribute__((visibility("default"))) std::vector<std::string> disarmFaults()
{
    armed = false;
    std::vector<std::string> names;
    for (int i = 0; i < std::min(calls, mostCalls); ++i) {
        const Call &call = record[std::size_t(i)];
        names.emplace_back(call.on == Opened::Folder ? std::string(call.name) + " folder"
                                                     : std::string(call.name));
    }
    return names;
}

namespace {

// Made after everything above it and gone before it.
const ToldByEnvironment toldByEnvironment;

} // namespace
