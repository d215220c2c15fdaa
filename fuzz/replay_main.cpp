// Stands in for a fuzzer: gives a target the files named on the command line, and those in the
// folders named there. Each is given whole; those that have a name, and not a hash for one, are
// also cut off at every length, unless --whole stands first.
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
