// Stands in for a fuzzer: gives a target the files named on the command line, and those in the
// folders named there. Each is given whole; those that have a name, and not a hash for one, are
// also cut off at every length, unless --whole stands first. An input that takes too much memory
// ends the process for want of it.
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

using Path = std::filesystem::path;

constexpr size_t hashLength = 40;

std::vector<Path> filesOf(const Path &path)
{
    if (!std::filesystem::is_directory(path))
        return {path};
    std::vector<Path> files;
    for (const auto &entry : std::filesystem::directory_iterator(path)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// Found by a fuzzer, which keeps thousands of files.
bool isNamedByHash(const Path &path)
{
    const std::string name = path.filename().string();
    return name.size() == hashLength && std::all_of(name.begin(), name.end(), [](char letter) {
               return std::isxdigit(static_cast<unsigned char>(letter));
           });
}

// Each length gets memory of its own, so that a step past the end is seen.
void runCutTo(const std::vector<char> &bytes, size_t length)
{
    const std::unique_ptr<uint8_t[]> data(new uint8_t[length]);
    std::copy_n(bytes.begin(), length, data.get());
    LLVMFuzzerTestOneInput(data.get(), length);
}

#ifdef CMPED_INSTRUMENTED

// The sanitizers take nearly all addresses there are, and have limits of their own.
bool limitMemory()
{
    return true;
}

#else

constexpr rlim_t bytesAnInput = rlim_t(256) << 20;

// What the process takes of its addresses, 0 if the system doesn't say.
rlim_t addressesTaken()
{
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * rlim_t(sysconf(_SC_PAGESIZE));
}

// All inputs together may take so much beyond what an empty one has made.
bool limitMemory()
{
    runCutTo({}, 0);
    const rlim_t taken = addressesTaken();
    const rlimit limit = {taken + bytesAnInput, taken + bytesAnInput};
    return taken > 0 && setrlimit(RLIMIT_AS, &limit) == 0;
}

#endif

bool replay(const Path &path, bool whole)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "Cannot read %s\n", path.c_str());
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    std::fprintf(stderr, "%s: %zu bytes\n", path.c_str(), bytes.size());
    for (size_t length = whole ? bytes.size() : 0; length <= bytes.size(); ++length)
        runCutTo(bytes, length);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const bool whole = argc > 1 && std::strcmp(argv[1], "--whole") == 0;
    if (!limitMemory()) {
        std::fprintf(stderr, "The memory can't be limited.\n");
        return 1;
    }
    size_t count = 0;
    for (int i = whole ? 2 : 1; i < argc; ++i) {
        for (const Path &file : filesOf(argv[i])) {
            if (!replay(file, whole || isNamedByHash(file)))
                return 1;
            ++count;
        }
    }
    if (count == 0) {
        std::fprintf(stderr, "There is nothing to replay.\n");
        return 1;
    }
    return 0;
}
