#include "support/DebugCapture.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace vorn_test {

namespace {
constexpr const char* DestinationVariable = "VORNSTD_DEBUG_OUTPUT";
constexpr const char* DebugSeparator = "] : ";
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vornstd-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("mkdtemp failed");
    }
    dirPath = pattern;
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(dirPath, ignored);
}

DebugCapture::DebugCapture() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vornstd-debug-XXXXXX").string();
    const int fd = mkstemp(pattern.data());
    if (fd < 0) {
        throw std::runtime_error("mkstemp failed");
    }
    close(fd);
    filePath = pattern;
    setenv(DestinationVariable, filePath.c_str(), 1);
}

DebugCapture::~DebugCapture() {
    setenv(DestinationVariable, "none", 1);
    unlink(filePath.c_str());
}

std::string DebugCapture::text() const { return readFile(filePath); }

std::vector<std::string> DebugCapture::lines() const {
    std::vector<std::string> result;
    std::istringstream in(text());
    for (std::string line; std::getline(in, line);) {
        result.push_back(line);
    }
    return result;
}

std::vector<std::string> DebugCapture::messages() const {
    std::vector<std::string> result;
    for (const std::string& line : lines()) {
        const size_t head = line.find(DebugSeparator);
        result.push_back(head == std::string::npos ? line
                                                   : line.substr(head + strlen(DebugSeparator)));
    }
    return result;
}

}  // namespace vorn_test
