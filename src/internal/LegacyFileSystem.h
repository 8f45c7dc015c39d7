#pragma once

#include <string>

namespace vorn_std_internal {

// The few file-system questions of the older flat interface that standard C
// cannot answer. Paths are UTF-8 bytes, as the system takes them. None of
// these throws; each leaves errno as the failing call set it.
namespace LegacyFileSystem {

// Whether the path names anything the caller may see (a file or a folder).
bool isAccessible(const std::string& path);

// Creates one folder. True too if it already stands there as a folder, so
// that a path given with a trailing separator, or made by another process
// meanwhile, counts as made.
bool makeDirectory(const std::string& path);

// Whether at least one entry matches the pattern, where only "*" and "?"
// are wildcards, as the Windows finder had them, and they match a leading
// "." too.
bool matchesAnyEntry(const std::string& pattern);

// A folder, or a file without any write permission bit: what Windows
// refused to remove with the access error, and Linux would remove.
bool isDirectoryOrReadOnly(const std::string& path);

// Whether both paths name one existing file (same device and inode).
bool isSameFile(const std::string& first, const std::string& second);

}  // namespace LegacyFileSystem

}  // namespace vorn_std_internal
