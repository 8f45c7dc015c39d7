#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(SprintfStringAppend, AppendsToWhatIsThere) {
    std::wstring out = L"id=";
    StringUtils::sprintfStringAppend(out, L"%d %ls %s", 42, L"wide", "narrow");
    EXPECT_EQ(L"id=42 wide narrow", out);
}

TEST(SprintfStringAppend, GrowsBeyondTheFirstRoomOf256) {
    for (size_t length : {255u, 256u, 257u, 1000u, 100000u}) {
        const std::wstring argument(length, L'x');
        std::wstring out = L">";
        StringUtils::sprintfStringAppend(out, L"%ls<", argument.c_str());
        EXPECT_EQ(L">" + argument + L"<", out) << length;
    }
}

TEST(SprintfStringAppend, NullFormatIsRefused) {
    std::wstring out;
    EXPECT_EQ(L"Format string cannot be null!",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { StringUtils::sprintfStringAppend(out, nullptr); }));
}

// A conversion that fails for a reason other than room must end in the
// exception rather than in an endless doubling of the buffer.
TEST(SprintfStringAppend, InvalidMultibyteArgumentEndsInTheException) {
    std::wstring out = L"kept";
    EXPECT_EQ(L"Unable to format string: bad <%s>",
              vorn_test::messageOf<VornIllegalArgumentException>(
                  [&] { StringUtils::sprintfStringAppend(out, L"bad <%s>", "\xff\xfe"); }));
    EXPECT_EQ(L"kept", out);
}

TEST(SprintfStringAppend, FailureThatLooksLikeNoRoomStillEnds) {
    // glibc reports this one with the same -1 and no errno as "too small".
    std::wstring out;
    EXPECT_THROW(StringUtils::sprintfStringAppend(out, L"%c", 0xE9), VornIllegalArgumentException);
    EXPECT_THROW(StringUtils::sprintfStringAppend(out, L"trailing %"),
                 VornIllegalArgumentException);
    EXPECT_EQ(L"", out);
}

TEST(StringUtilsText, PrefixesTrimmingAndCharacterClasses) {
    struct Case {
        std::wstring text;
        std::wstring prefix;
        bool has;
        std::wstring rest;
    };
    const Case prefixes[] = {
        {L"prefs.cfg", L"prefs", true, L".cfg"},
        {L"prefs", L"prefs", true, L""},
        {L"Prefs.cfg", L"prefs", false, L""},
        {L"pre", L"prefs", false, L""},
        {L"abc", L"", true, L"abc"},
    };
    for (const Case& c : prefixes) {
        EXPECT_EQ(c.has, StringUtils::hasPrefix(c.text, c.prefix)) << c.text << L"|" << c.prefix;
        EXPECT_EQ(c.rest, StringUtils::trimPrefix(c.text, c.prefix)) << c.text << L"|" << c.prefix;
    }
    const std::pair<std::wstring, std::wstring> trims[] = {
        {L"  a b \t\r\n\v\f", L"  a b"}, {L" \t ", L""}, {L"x\u00A0", L"x\u00A0"}};
    for (const auto& [input, trimmed] : trims) {
        std::wstring text = input;
        EXPECT_EQ(trimmed, StringUtils::trimString(text));
        EXPECT_EQ(trimmed, text);
    }
    const std::tuple<std::wstring, bool, bool> classes[] = {
        {L"", true, true},       {L"0123456789", true, true}, {L"09AFaf", false, true},
        {L"0x1F", false, false}, {L"-1", false, false},       {L"\u0663", false, false},
    };
    for (const auto& [text, digits, hexadecimal] : classes) {
        EXPECT_EQ(digits, StringUtils::isDigits(text)) << text;
        EXPECT_EQ(hexadecimal, StringUtils::isHexadecimal(text)) << text;
    }
    EXPECT_EQ(L"NULL", StringUtils::nullCheckedString(nullptr));
    EXPECT_EQ(L"x", StringUtils::nullCheckedString(L"x"));
}

TEST(StringUtilsText, LinesSplitAtEachLineEndKeepingEmptyOnes) {
    struct Case {
        std::string bytes;
        std::vector<std::wstring> lines;
        std::wstring separator;
    };
    const Case cases[] = {
        {"a\r\nb\rc\nd", {L"a", L"b", L"c", L"d"}, L"\r\n"},
        {"a\nb\r\n", {L"a", L"b", L""}, L"\n"},
        {"a\n\rb", {L"a", L"", L"b"}, L"\n"},
        {"a\rb\r\n", {L"a", L"b", L""}, L"\r"},
        {"", {L""}, L""},
    };
    for (const Case& c : cases) {
        const ByteArray bytes(c.bytes);
        EXPECT_EQ(c.lines, StringUtils::getLines(bytes, L"UTF-8")) << c.bytes;
        EXPECT_EQ(c.separator, StringUtils::getLineSeparator(bytes, L"UTF-8")) << c.bytes;
    }
    const ByteArray units(L"x\r\ny", L"ISO-10646-UCS-2");
    EXPECT_EQ((std::vector<std::wstring>{L"x", L"y"}),
              StringUtils::getLines(units, L"ISO-10646-UCS-2"));
}

TEST(StringUtilsText, ConvertSizeString) {
    const std::tuple<std::wstring, int, int> cases[] = {
        {L"100", 0, 100},
        {L" 2 kb ", 0, 2048},
        {L"1.5MB", 0, 1572864},
        {L"0KB", 5, 0},
        {L"3GB", 5, 2147483647},
        {L"1e300GB", 0, 2147483647},
        {L"", 5, 5},
        {L" \t", 5, 5},
        {L"GB", 7, 7},             // length 2: no unit is seen
        {L"xKB", 3, 3072},         // the default takes the unit too
        {L"1GBX", 0, 1073741824},  // the last two characters go, whatever they are
        {L"4 KB and more", 0, 4096},
        {L"-3GB", 0, 1073741824},  // the low 32 bits of -3221225472
        {L"-1e300", 0, 0},
        {L"1e999", 9, 9},
    };
    for (const auto& [text, defaultValue, size] : cases) {
        EXPECT_EQ(size, StringUtils::convertSizeString(text, defaultValue)) << text;
    }
}
