#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using VornStd::SDirPath;
using VornStd::SFilePath;
using VornStd::SWString;

TEST(SFilePathTest, AppendJoinsWithTheSeparatorUnlessEmpty) {
    SFilePath path;
    path.Append(L"a") += L"b";
    EXPECT_EQ(L"a/b//c", path + L"/c");
    EXPECT_EQ(L"a/b/d", path + SWString(L"d"));
    EXPECT_EQ(L"a/b/e", path + std::wstring(L"e"));
    EXPECT_EQ(L"a/b/f", path + "f");

    SFilePath windows(L"C:", L'\\');
    EXPECT_EQ(L"C:\\dir", windows + L"dir");
    EXPECT_EQ(L'\\', (windows + L"dir").GetSeparator());
    // Assigning text keeps the path's separator; assigning a path takes its.
    windows = L"D:";
    EXPECT_EQ(L'\\', windows.GetSeparator());
    windows = SFilePath(L"x");
    EXPECT_EQ(L'/', windows.GetSeparator());
}

TEST(SFilePathTest, BasenameSuffixnameAndDirname) {
    struct Case {
        std::wstring path;
        std::wstring suffix;
        std::wstring basename;
        std::wstring suffixname;
        std::wstring dirname;
    };
    const Case cases[] = {
        {L"a\\b.txt", L"txt", L"b", L"txt", L"a"},
        {L"dir/sub/b.txt.txt", L"txt", L"b.txt", L"txt", L"dir/sub"},
        // A suffix that is not there gives the whole path, not the name.
        {L"a/b.txt", L"doc", L"a/b.txt", L"txt", L"a"},
        // Without a separator the suffix is not looked at.
        {L"x.txt", L"txt", L"x.txt", L"txt", L"."},
        {L"d/txt", L"txt", L"", L"", L"d"},
        {L"a/b\\c", L"", L"c", L"", L"a/b"},
        {L"a\\b/c", L"", L"c", L"", L"a\\b"},
        {L"a.d/b", L"", L"b", L"d/b", L"a.d"},
        {L"a/", L"", L"", L"", L"a"},
        {L"/x", L"", L"x", L"", L""},
        {L"", L"", L".", L"", L"."},
    };
    for (const Case& c : cases) {
        const SFilePath path(c.path);
        EXPECT_EQ(c.basename, path.Basename(c.suffix)) << c.path << L" " << c.suffix;
        EXPECT_EQ(c.suffixname, path.Suffixname()) << c.path;
        EXPECT_EQ(c.dirname, path.Dirname()) << c.path;
    }
    const SDirPath colonParent = SFilePath(L"a:b", L':').Dirname();
    EXPECT_EQ(L"a", colonParent);
    EXPECT_EQ(L':', colonParent.GetSeparator());

    EXPECT_EQ(L"b.txt", SFilePath::getFilename(L"a\\b.txt"));
    EXPECT_EQ(L"a/", SFilePath::getDirectory(L"a\\b.txt"));
    EXPECT_EQ(L"./", SFilePath::getDirectory(L"b.txt"));
}

TEST(SDirPathTest, CreatePathMakesEveryMissingParent) {
    vorn_test::TempDir temp;
    const std::wstring root(temp.path().begin(), temp.path().end());
    EXPECT_TRUE(SDirPath(L"").CreatePath());
    EXPECT_TRUE(SDirPath(root).CreatePath());

    const SDirPath nested(root + L"/a/b/c");
    EXPECT_FALSE(nested.Exists());
    EXPECT_TRUE(nested.CreatePath());
    struct stat status {};
    ASSERT_EQ(0, stat((temp.path() + "/a/b/c").c_str(), &status));
    EXPECT_TRUE(S_ISDIR(status.st_mode));

    // A trailing separator names the same folder once more; names go as UTF-8.
    EXPECT_TRUE(SDirPath(root + L"/\u00E9/e/").CreatePath());
    EXPECT_EQ(0, stat((temp.path() + "/\xC3\xA9/e").c_str(), &status));

    fclose(fopen(temp.file("file").c_str(), "w"));
    EXPECT_FALSE(SDirPath(root + L"/file/below").CreatePath());
    EXPECT_FALSE(SDirPath(root + L"/file/below").Exists());
}
