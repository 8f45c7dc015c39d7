#include <glob.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "internal/LegacyFileSystem.h"

namespace vorn_std_internal {

namespace LegacyFileSystem {

namespace {

constexpr mode_t NewDirectoryMode = 0777;
constexpr mode_t AnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
// glob(3) gives these a meaning of their own; the Windows finder did not.
constexpr const char* GlobOnlyCharacters = "[]\\";

std::string escapeForGlob(const std::string& pattern) {
    std::string escaped;
    escaped.reserve(pattern.size());
    for (const char c : pattern) {
        if (std::string(GlobOnlyCharacters).find(c) != std::string::npos) {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

}  // namespace

bool isAccessible(const std::string& path) { return ::access(path.c_str(), F_OK) == 0; }

bool makeDirectory(const std::string& path) {
    if (::mkdir(path.c_str(), NewDirectoryMode) == 0) {
        return true;
    }
    const int error = errno;
    struct stat status {};
    const bool standsThere =
        error == EEXIST && ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    errno = error;
    return standsThere;
}

bool matchesAnyEntry(const std::string& pattern) {
    glob_t found{};
    // GLOB_PERIOD: "*" matched hidden names on Windows, which has no such idea.
    const int result =
        ::glob(escapeForGlob(pattern).c_str(), GLOB_NOSORT | GLOB_PERIOD, nullptr, &found);
    const bool any = result == 0 && found.gl_pathc > 0;
    ::globfree(&found);
    return any;
}

bool isDirectoryOrReadOnly(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return false;
    }
    return S_ISDIR(status.st_mode) || (status.st_mode & AnyWriteBit) == 0;
}

bool isSameFile(const std::string& first, const std::string& second) {
    struct stat firstStatus {};
    struct stat secondStatus {};
    return ::stat(first.c_str(), &firstStatus) == 0 && ::stat(second.c_str(), &secondStatus) == 0 &&
           firstStatus.st_dev == secondStatus.st_dev && firstStatus.st_ino == secondStatus.st_ino;
}

}  // namespace LegacyFileSystem

}  // namespace vorn_std_internal
