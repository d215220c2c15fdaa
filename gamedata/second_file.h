// A file beside the one that is to be replaced: written first, then moved to its place.
//
// Where the file system has files without a name it is one, and a process that is killed leaves
// nothing behind. Elsewhere, and for the moment in which it replaces another file, it has the
// hidden name ".cmped-save-" and six letters. What a killed process leaves under such a name is
// removed by the next command that saves into the folder; that a file is still in use tells a lock
// (flock) on it.
#pragma once

#include "gamedata/disk_file.h"

#include <filesystem>
#include <set>

// The folders in which one command has removed what killed processes left.
class SweptFolders
{
public:
    // Removes it unless that was done before.
    void sweep(const std::filesystem::path &folder);

private:
    std::set<std::filesystem::path> m_done;
};

class SecondFile
{
public:
    explicit SecondFile(std::filesystem::path folder) : m_folder(std::move(folder)) {}
    // A file that didn't replace anything is gone without a trace.
    ~SecondFile();
    SecondFile(const SecondFile &) = delete;
    SecondFile &operator=(const SecondFile &) = delete;

    // All answer 0 or the system's error number.
    int open(mode_t mode, SweptFolders &swept);
    int replace(const std::filesystem::path &target, bool exists);

    const DiskFile &file() const { return m_file; }

private:
    bool openNameless(mode_t mode);
    int openHidden(mode_t mode);
    int linkTo(const std::filesystem::path &name) const;
    int linkToHidden();

    const std::filesystem::path m_folder;
    std::filesystem::path m_hidden; // empty: the file has no such name
    DiskFile m_file;
};
