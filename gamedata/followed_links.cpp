#include "gamedata/followed_links.h"

#include "gamedata/disk_file.h"

#include <climits>
#include <string>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int longestChain = 40; // as the kernel has it

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

} // namespace

int followLinks(fs::path &path)
{
    for (int hops = 0; hops <= longestChain; ++hops) {
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
