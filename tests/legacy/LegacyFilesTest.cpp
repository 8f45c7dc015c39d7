#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "support/DebugCapture.h"
#include "support/ScopedEnvironment.h"
#include "vorn_std/VornStd.h"

using namespace VornStd;
using vorn_test::readFile;
using vorn_test::TempDir;

namespace {

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

bool exists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0;
}

SWString wide(const std::string& path) { return SWString(path.c_str()); }

// Every byte value and zeros, longer than the copy blocks.
std::string binaryContent() {
    std::string content;
    for (int i = 0; i < 3000; ++i) {
        content += static_cast<char>(i * 7);
    }
    return content;
}

}  // namespace

class LegacyFilesTest : public ::testing::Test {
protected:
    vorn_test::ScopedEnvironment locale{"LC_ALL", "C"};
    TempDir temp;
};

TEST_F(LegacyFilesTest, SWSfgetsReadsLinesWithTheirLineFeed) {
    // The é straddles the 255th byte, where a line read in pieces would split it.
    const std::string longLine = std::string(254, 'x') + "\xC3\xA9" + std::string(300, 'y') + "\n";
    writeFile(temp.file("lines"), "one\n" + longLine + "\ncaf\xC3\xA9");
    FILE* stream = fopen(temp.file("lines").c_str(), "r");
    ASSERT_NE(nullptr, stream);
    const std::wstring expected[] = {
        L"one\n", std::wstring(254, L'x') + L"\u00E9" + std::wstring(300, L'y') + L"\n", L"\n",
        L"caf\u00E9", L""};
    SWString line;
    for (const std::wstring& text : expected) {
        EXPECT_EQ(text.empty() ? 0 : 1, SWSfgets(line, stream));
        EXPECT_EQ(text, line);
    }
    fclose(stream);
}

TEST_F(LegacyFilesTest, BaseNameAndDirNameThroughTheFilePath) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"/var/log/app.log", "app.log", "/var/log"},
        {"dir\\file", "file", "dir"},
        {"", ".", "."},
        // A byte that is no UTF-8 comes back as it was.
        {"d\xE9/f\xFF", "f\xFF", "d\xE9"},
    };
    for (const auto& [path, base, dir] : cases) {
        char narrow[32] = {};
        EXPECT_EQ(base, BaseName(narrow, path.c_str())) << path;
        EXPECT_EQ(dir, DirName(narrow, path.c_str())) << path;
    }
    wchar_t wideName[32] = {};
    EXPECT_EQ(std::wstring(L"f\u00E9"), BaseName(wideName, L"d\\f\u00E9"));
    EXPECT_EQ(std::wstring(L"."), DirName(wideName, L"file"));
}

TEST_F(LegacyFilesTest, FileExistMatchesOnlyStarAndQuestionMark) {
    for (const char* name : {"a.txt", ".hidden", "br[1].txt", "back\\slash", "\xC3\xA9t\xC3\xA9"}) {
        writeFile(temp.file(name), "x");
    }
    const std::pair<std::string, bool> cases[] = {
        {"a.txt", true},       {"?.txt", true},      {"*.doc", false},
        {"*hidden", true},     {"br[1].txt", true},  {"b[r]*", false},
        {"back\\slash", true}, {"\xC3\xA9t*", true}, {"missing", false},
    };
    for (const auto& [pattern, found] : cases) {
        EXPECT_EQ(found, FileExist(wide(temp.file(pattern)))) << pattern;
    }
    EXPECT_TRUE(FileExist(wide(temp.path())));
    EXPECT_FALSE(FileExist(L""));
}

TEST_F(LegacyFilesTest, FileCopyIsBinaryAndRefusesItself) {
    const std::string content = binaryContent();
    writeFile(temp.file("source"), content);
    writeFile(temp.file("dest"), "longer old content that must not survive" + content);
    EXPECT_TRUE(FileCopy(wide(temp.file("source")), wide(temp.file("dest"))));
    EXPECT_EQ(content, readFile(temp.file("dest")));

    EXPECT_FALSE(FileCopy(wide(temp.file("source")), wide(temp.file("./source"))));
    EXPECT_EQ(content, readFile(temp.file("source")));
    EXPECT_FALSE(FileCopy(wide(temp.file("missing")), wide(temp.file("other"))));
    EXPECT_FALSE(exists(temp.file("other")));
}

TEST_F(LegacyFilesTest, CopyOverRenamesTheSourceOverTheTarget) {
    writeFile(temp.file("new"), "new content");
    writeFile(temp.file("target"), "old content");
    EXPECT_EQ(CopyOverRenamed, CopyOver(wide(temp.file("new")), wide(temp.file("target"))));
    EXPECT_EQ("new content", readFile(temp.file("target")));
    EXPECT_FALSE(exists(temp.file("new")));

    vorn_test::DebugCapture capture;
    EXPECT_EQ(CopyOverFailed, CopyOver(wide(temp.file("missing")), wide(temp.file("target"))));
    EXPECT_EQ(std::vector<std::string>{"Unable to open file [" + temp.file("missing") +
                                       "]: 2:No such file or directory."},
              capture.messages());
}

TEST_F(LegacyFilesTest, CopyOverRefusesAFolderOrReadOnlyTargetAndDropsTheSource) {
    ASSERT_EQ(0, mkdir(temp.file("folder").c_str(), 0755));
    writeFile(temp.file("read-only"), "kept");
    ASSERT_EQ(0, chmod(temp.file("read-only").c_str(), 0444));
    const std::string source = temp.file("new\xC3\xA9");
    for (const char* target : {"folder", "read-only"}) {
        writeFile(source, "new");
        vorn_test::DebugCapture capture;
        EXPECT_EQ(CopyOverFailed, CopyOver(wide(source), wide(temp.file(target))));
        EXPECT_EQ(std::vector<std::string>{"File [" + temp.file(target) +
                                           "] is a directory or read-only, deleting file [" +
                                           source + "]"},
                  capture.messages());
        EXPECT_FALSE(exists(source)) << target;
    }
    EXPECT_TRUE(exists(temp.file("folder")));
    EXPECT_EQ("kept", readFile(temp.file("read-only")));
}

TEST_F(LegacyFilesTest, CopyOverCopiesByHandAcrossFileSystemsAndEmptiesTheSource) {
    std::unique_ptr<TempDir> other;
    {
        vorn_test::ScopedEnvironment shared("TMPDIR", "/dev/shm");
        other = std::make_unique<TempDir>();
    }
    struct stat here {};
    struct stat there {};
    ASSERT_EQ(0, stat(temp.path().c_str(), &here));
    ASSERT_EQ(0, stat(other->path().c_str(), &there));
    if (here.st_dev == there.st_dev) {
        GTEST_SKIP() << "a rename fails only between two file systems; /dev/shm is not one here";
    }
    const std::string content = binaryContent();
    writeFile(other->file("new"), content);
    writeFile(temp.file("target"), "old");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(CopyOverCopied, CopyOver(wide(other->file("new")), wide(temp.file("target"))));
    // The rename was tried again after 1, 2, 4 and 8 ms.
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(15));
    EXPECT_EQ(content, readFile(temp.file("target")));
    EXPECT_TRUE(exists(other->file("new")));
    EXPECT_EQ("", readFile(other->file("new")));
}

TEST(LegacySystemTest, TimestampAndOperatingSystem) {
    const std::string stamp = GetCurrentTimestamp().mb_str();
    EXPECT_TRUE(std::regex_match(stamp, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} )")))
        << stamp;
    const std::wstring system = GetOSName();
    EXPECT_EQ(0u, system.find(L"Linux ")) << system;
    EXPECT_GT(system.size(), 6u) << system;
}
