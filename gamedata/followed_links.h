// The file behind links.
#pragma once

#include <filesystem>

// Replaces a path by that of the file behind all its links, whether the file exists or not. Answers
// 0 or the system's error number, ELOOP for links in a circle.
int followLinks(std::filesystem::path &path);

// The folder in which a path stands, "." for a bare name.
std::filesystem::path folderOf(const std::filesystem::path &path);
