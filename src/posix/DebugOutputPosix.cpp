#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "internal/DebugOutput.h"
#include "internal/PlatformText.h"

namespace vorn_std_internal {

namespace {

constexpr const char* DestinationVariable = "VORNSTD_DEBUG_OUTPUT";
constexpr const char* DiscardValue = "none";

void writeAll(int fd, const char* bytes, size_t length) {
    while (length > 0) {
        const ssize_t written = ::write(fd, bytes, length);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return;
        }
        bytes += written;
        length -= static_cast<size_t>(written);
    }
}

}  // namespace

void DebugOutput::write(const std::wstring& text) {
    const std::string bytes = toPlatformUtf8(text);
    writeBytes(bytes.data(), bytes.size());
}

void DebugOutput::writeBytes(const char* bytes, size_t length) {
    const int savedErrno = errno;  // callers may be reporting errno themselves
    const char* destination = ::getenv(DestinationVariable);
    if (destination == nullptr || *destination == '\0') {
        writeAll(STDERR_FILENO, bytes, length);
    } else if (std::strcmp(destination, DiscardValue) != 0) {
        const int fd = ::open(destination, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
        if (fd >= 0) {
            writeAll(fd, bytes, length);
            ::close(fd);
        }
    }
    errno = savedErrno;
}

}  // namespace vorn_std_internal
