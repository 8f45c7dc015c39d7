#pragma once

#include <string>
#include <vector>

namespace vorn_test {

// Sends the debugger output to a fresh temporary file for the life of the
// object and reads it back; on destruction the output is discarded again.
class DebugCapture {
public:
    DebugCapture();
    ~DebugCapture();
    DebugCapture(const DebugCapture&) = delete;
    DebugCapture& operator=(const DebugCapture&) = delete;

    // Everything written so far, as raw UTF-8 bytes.
    std::string text() const;
    // The same split at line feeds (the last, empty piece dropped).
    std::vector<std::string> lines() const;
    // The lines of debug statements without their "File.cpp[line] : " head.
    std::vector<std::string> messages() const;
    const std::string& path() const { return filePath; }

private:
    std::string filePath;
};

// A folder under the system's temporary directory, removed with its content.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return dirPath; }
    std::string file(const std::string& name) const { return dirPath + "/" + name; }

private:
    std::string dirPath;
};

// Reads a whole file; empty if it does not exist.
std::string readFile(const std::string& path);

}  // namespace vorn_test
